// The routes of a high accuracy power meter's reading: raw trace to record, record to parameter lines, text
// file to record. It has no upload.
#pragma once

#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record from a raw trace and lists it.
void DecodeZephra(Control& control, const RawBuffer& buffer);

/// Appends the record's lines to a parameter list. The link type stands there twice.
void ZephraParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
void LoadPowerMeter_Zephra_Text(Control& control, std::string_view text, const std::string& path);

} // namespace Traces
