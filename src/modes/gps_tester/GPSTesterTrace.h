// The routes of a GPS check: raw trace to record and events, record to parameter lines, text file to record.
#pragma once

#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record and its events, as many as are told and 200 at most, and lists them.
void DecodeGPSTester(Control& control, const RawBuffer& buffer);

/// Appends the record's lines and one line an event to a parameter list.
void GPSTesterParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify.
/// Of an event it takes what the list shows; codes, numbers and second times are lost, and so is an event
/// whose line has other columns.
void LoadiDen_GPS_Tester_Text(Control& control, std::string_view text, const std::string& path);

} // namespace Traces
