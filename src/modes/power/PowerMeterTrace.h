// The routes of a power meter's reading: raw trace to record, record to parameter lines, text file and comma
// form to record, and the three upload encoders.
#pragma once

#include "control/ModeRow.h"
#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Traces {

struct Control;

/// Reads the record from a raw trace and lists it.
void DecodePowerMeter(Control& control, const RawBuffer& buffer);

/// Appends the record's lines to a parameter list.
void PowerMeterParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
void LoadPowerMeterText(Control& control, std::string_view text, const std::string& path);

/// Loads a comma form, scrambled by the platform's table. It has no checksum; a field that is missing or no
/// number stays as it was.
void LoadPowerMeterDat(Control& control, std::string_view text);

/// The fields of a comma form, from 0. Characters from the 15th on are scrambled by a table of seven.
std::vector<std::string> DatFields(std::string_view text, const std::array<std::uint8_t, 7>& scramble);

/// Upload frames from the record on show, from a trace file's text, and from a raw file's bytes.
std::string EncodePowerMeterRecord(const Control& control);
std::string EncodePowerMeterText(std::string_view file);
std::string EncodePowerMeterRaw(std::string_view file);

} // namespace Traces
