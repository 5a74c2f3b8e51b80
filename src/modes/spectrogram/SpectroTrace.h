// The routes of a spectrogram: raw trace to record, record to parameter lines and curve, text file to record.
// It has no upload.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;
struct SpectroRecord;

/// Reads head and record from a raw trace and lists them. The trace entry doesn't read the head of a long
/// buffer, so it is read here; mode and length stay as they were told.
void DecodeSpectroTrace(Control& control, const RawBuffer& buffer);

/// Appends the head's and the record's lines to a parameter list, and two lines a sweep: its time and its
/// levels.
void SpectroParams(const Control& control, ParameterList& lines);

/// Curve slot 0: frequency in MHz against the levels of the last sweep. The chart's limits count sweeps, with
/// room for the legend below them.
void FillSpectroCurve(Control& control);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify, nor
/// when the user interrupts it.
void LoadSpectroText(Control& control, std::string_view text, const std::string& path);

/// Makes a sweep the chosen one, whose levels are the curve; the nearest one when there is none such.
void ChooseSweep(Control& control, float sweep);

/// Level of a point; the lowest of the scale where there is none.
float LevelAt(const SpectroRecord& record, std::int16_t sweep, std::size_t point);

} // namespace Traces
