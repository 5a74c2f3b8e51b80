// The routes of a spectrum: raw trace to record, record to parameter lines and curve, text file to record,
// and the three upload encoders.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"
#include "formats/UploadFrame.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;
class TraceText;

/// Reads the record and its points from a raw trace and lists them.
void DecodeSPATrace(Control& control, const RawBuffer& buffer);

/// The record and its points alone, without their lines.
void DecodeSPARecord(Control& control, const RawBuffer& buffer);

/// Appends the record's lines and one line a point to a parameter list.
void SPAParams(const Control& control, ParameterList& lines);

/// Curve slot 0 from the record, frequency in MHz against level in dBm, and the chart's limits: from the
/// reference level down to ten divisions below 0 dBm.
/// @throws HostFault Range for a point count below 1 or above the record's room, DivisionByZero for one
/// point.
void FillSPACurve(Control& control);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
void LoadSPAText(Control& control, std::string_view text, const std::string& path);

/// The record and its points alone, from a text that has been verified and whose header has been read.
void LoadSPARecord(Control& control, const TraceText& text);

/// Frame from the record on show.
/// @throws HostFault Range for more points than the frame holds.
std::string EncodeSPARecord(const Control& control);

/// Frame from a trace file's text.
/// @throws HostFault Range for more points than the frame holds, Overflow for values that it can't hold.
std::string EncodeSPAText(std::string_view text);

/// Frame from a raw file's bytes, unconverted. A copy goes to the file "Up.dmp" in the current folder.
/// @throws HostFault FileAccess when that can't be written.
std::string EncodeSPARaw(std::string_view file);

/// A text route's points: one value each at 401 + 4i, from the lines whose keys are the points' numbers
/// from 1.
/// @throws HostFault Range for more points than the frame holds, Overflow for a count beyond 16 bits.
void PutNumberedPoints(UploadFrame& frame, const TraceText& text);

} // namespace Traces
