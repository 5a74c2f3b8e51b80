// The routes of an iDEN analysis: raw trace to record, record to parameter lines, text file to record. Such
// traces aren't uploaded.
#pragma once

#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"

#include <string>
#include <string_view>

namespace Traces {

struct Control;

/// Reads the record and lists it.
void DecodeIDEN(Control& control, const RawBuffer& buffer);

/// Appends the record's lines and those of the four curves, one after the other, to a parameter list.
void IDENParams(const Control& control, ParameterList& lines);

/// Loads the text of a trace file; shows the checksum message and changes nothing when it doesn't verify. The
/// phase noise stays as it was: its key has always been asked for in another spelling than it is saved under.
/// Points come from columns of a fixed width: what is wider loses its end.
void LoadiDen_Tester_Text(Control& control, std::string_view text, const std::string& path);

} // namespace Traces
