#include "formats/RawBuffer.h"

#include <limits>

namespace Traces {

RawBuffer RawBuffer::FromText(std::string_view text)
{
    return RawBuffer({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::optional<std::string> ReadChars(const RawBuffer& buffer, int offset, int count)
{
    if (offset < 1 || offset + count > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    const int behind = offset + count;
    if (buffer.UpperBound() < static_cast<std::size_t>(behind))
        return std::string();
    const std::uint8_t* at = buffer.From(static_cast<std::size_t>(offset));
    return std::string(at, at + count);
}

} // namespace Traces
