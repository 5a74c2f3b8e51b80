// What the routes of CDMA and EV-DO traces have in common: how a text file's lines are looked up.
#pragma once

#include "formats/FieldTable.h"

#include <string>
#include <string_view>

namespace Traces {

/// What a key is looked up by: without its colon, but for keys that are the beginning of others.
std::string_view CodeLookupKey(std::string_view key);

/// Characters of a raw trace up to the first zero, without blanks at both ends.
void DecodeCodeText(const RawBuffer& buffer, int offset, int width, std::string& field);

} // namespace Traces
