// The routes of a power monitor's reading, a lighter form of the power meter's on the same record.
#pragma once

#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the monitor's fields of the record from a raw trace and lists them.
void DecodePowerMonitor(Control& control, const RawBuffer& buffer);

/// Appends the monitor's lines to a parameter list.
void PowerMonitorParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
/// What it lists are the power meter's lines.
void LoadPowerMonitorText(Control& control, std::string_view text, const std::string& path);

} // namespace Traces
