// A raw trace as the instrument sent it, and the readers of its fields. Offsets count from 1. Readers are
// total: what lies behind the buffer's end reads as zero or empty. Nothing here knows a mode.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Traces {

/// A view of a host's bytes; it doesn't own them.
class RawBuffer {
public:
    explicit RawBuffer(std::span<const std::uint8_t> trace) : bytes(trace) {}

    /// The same for a text that holds one byte a character.
    static RawBuffer FromText(std::string_view text);

    /// The highest offset, which is the buffer's length.
    std::size_t UpperBound() const { return bytes.size(); }

    /// The `count` bytes from an offset on; the caller has checked that they are there.
    const std::uint8_t* From(std::size_t offset) const { return bytes.data() + (offset - 1); }

private:
    std::span<const std::uint8_t> bytes;
};

namespace Detail {

/// The unsigned big-endian number of `width` bytes at an offset, 0 behind the end.
inline std::optional<std::uint32_t> ReadBytes(const RawBuffer& buffer, int offset, int width)
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

} // namespace Detail

/// Offsets are 16-bit numbers in the instruments' own readers: a field that reaches beyond 32767 isn't
/// read at all and keeps what it held. That, and only that, is an empty optional.
/// @{

/// Unsigned 32 bits, big-endian, as a double: 0 to 4,294,967,295.
inline std::optional<double> ReadU32(const RawBuffer& buffer, int offset)
{
    const auto value = Detail::ReadBytes(buffer, offset, 4);
    return value ? std::optional<double>(*value) : std::nullopt;
}

/// Two's complement 32 bits, big-endian.
inline std::optional<std::int32_t> ReadI32(const RawBuffer& buffer, int offset)
{
    const auto value = Detail::ReadBytes(buffer, offset, 4);
    return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

/// Two's complement 16 bits, big-endian.
inline std::optional<std::int16_t> ReadI16(const RawBuffer& buffer, int offset)
{
    const auto value = Detail::ReadBytes(buffer, offset, 2);
    return value ? std::optional(static_cast<std::int16_t>(*value)) : std::nullopt;
}

/// Unsigned 16 bits, big-endian.
inline std::optional<std::int32_t> ReadU16(const RawBuffer& buffer, int offset)
{
    const auto value = Detail::ReadBytes(buffer, offset, 2);
    return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

inline std::optional<std::uint8_t> ReadByte(const RawBuffer& buffer, int offset)
{
    const auto value = Detail::ReadBytes(buffer, offset, 1);
    return value ? std::optional(static_cast<std::uint8_t>(*value)) : std::nullopt;
}

/// `count` characters, zero characters included. Stricter than the numbers by one byte: a text that ends
/// on the buffer's last byte reads as empty, as it does in the instruments' software.
std::optional<std::string> ReadChars(const RawBuffer& buffer, int offset, int count);

/// @}

} // namespace Traces
