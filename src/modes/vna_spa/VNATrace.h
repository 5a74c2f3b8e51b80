// The routes of a sweep: raw trace to record, record to parameter lines and curve, text file to record, and
// the three upload encoders.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Traces {

struct Control;
class TraceText;

/// Reads the record and its points from a raw trace and lists them.
void DecodeVNATrace(Control& control, const RawBuffer& buffer);

/// The record and its points alone, without their lines.
void DecodeVNARecord(Control& control, const RawBuffer& buffer);

/// The magnitude of a point in display units, from the raw linear reflection x 10,000: dB or SWR by the
/// measurement mode. Nothing for the distance modes, whose points aren't converted.
std::optional<float> ConvertMagnitude(int mode, std::int32_t raw);

/// Appends the record's lines and one line a point to a parameter list.
void VNAParams(const Control& control, ParameterList& lines);

/// Curve slot 0 from the record, frequency in MHz against the points' values, and the chart's limits.
/// @throws HostFault Range for a point count below 1 or above the record's room, DivisionByZero for one
/// point.
void FillVNACurve(Control& control);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
void LoadVNAText(Control& control, std::string_view text, const std::string& path);

/// The record and its points alone, from a text that has been verified and whose header has been read.
void LoadVNARecord(Control& control, const TraceText& text);

/// Frame from the record on show. It carries dB or SWR where the raw trace carries the reflection.
std::string EncodeVNARecord(const Control& control);

/// Frame from a trace file's text.
/// @throws HostFault Range for more points than the frame holds.
std::string EncodeVNAText(std::string_view text);

/// Frame from a raw file's bytes, unconverted.
std::string EncodeVNARaw(std::string_view file);

} // namespace Traces
