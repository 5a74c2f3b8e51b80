#include "modes/cdma/CodeRoutes.h"

#include "formats/Text.h"

namespace Traces {

std::string_view CodeLookupKey(std::string_view key)
{
    for (const std::string_view whole : {"Channel:", "PN Offset:", "Tau:", "Noise Floor:"})
        if (key == whole)
            return key;
    return key.substr(0, key.size() - 1);
}

void DecodeCodeText(const RawBuffer& buffer, int offset, int width, std::string& field)
{
    if (const auto text = ReadChars(buffer, offset, width))
        field = CutAtNul(*text);
}

} // namespace Traces
