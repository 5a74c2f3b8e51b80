#include "formats/RawBuffer.h"

#include <limits>

namespace Traces {

namespace {

/// The unsigned big-endian number of `width` bytes at an offset, 0 behind the end.
std::optional<std::uint32_t> ReadBytes(const RawBuffer& buffer, int offset, int width)
{
    const int last = offset + width - 1;
    if (offset < 1 || last > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    if (buffer.UpperBound() < static_cast<std::size_t>(last))
        return 0;
    std::uint32_t value = 0;
    const std::uint8_t* at = buffer.From(static_cast<std::size_t>(offset));
    for (int i = 0; i < width; ++i)
        value = value << 8 | at[i];
    return value;
}

} // namespace

RawBuffer RawBuffer::FromText(std::string_view text)
{
    return RawBuffer({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::optional<double> ReadU32(const RawBuffer& buffer, int offset)
{
    const auto value = ReadBytes(buffer, offset, 4);
    return value ? std::optional<double>(*value) : std::nullopt;
}

std::optional<std::int32_t> ReadI32(const RawBuffer& buffer, int offset)
{
    const auto value = ReadBytes(buffer, offset, 4);
    return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

std::optional<std::int16_t> ReadI16(const RawBuffer& buffer, int offset)
{
    const auto value = ReadBytes(buffer, offset, 2);
    return value ? std::optional(static_cast<std::int16_t>(*value)) : std::nullopt;
}

std::optional<std::int32_t> ReadU16(const RawBuffer& buffer, int offset)
{
    const auto value = ReadBytes(buffer, offset, 2);
    return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

std::optional<std::uint8_t> ReadByte(const RawBuffer& buffer, int offset)
{
    const auto value = ReadBytes(buffer, offset, 1);
    return value ? std::optional(static_cast<std::uint8_t>(*value)) : std::nullopt;
}

std::optional<std::string> ReadChars(const RawBuffer& buffer, int offset, int count)
{
    if (offset < 1 || offset + count > std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    if (buffer.UpperBound() < static_cast<std::size_t>(offset + count))
        return std::string();
    const std::uint8_t* at = buffer.From(static_cast<std::size_t>(offset));
    return std::string(at, at + count);
}

} // namespace Traces
