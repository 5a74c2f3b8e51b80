#include "RawWriter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Traces::Samples {

CommonHead HeadOf(const char* version, const char* date, const char* time, const char* reference)
{
    CommonHead head;
    head.Version = version;
    head.Date = date;
    head.Time = time;
    head.RefNumber = reference;
    return head;
}

void RawWriter::PutByte(std::size_t offset, std::uint8_t value)
{
    if (bytes.size() < offset)
        bytes.resize(offset);
    bytes[offset - 1] = value;
}

void RawWriter::PutI16(std::size_t offset, std::int16_t value)
{
    const auto bits = static_cast<std::uint16_t>(value);
    PutByte(offset, static_cast<std::uint8_t>(bits >> 8));
    PutByte(offset + 1, static_cast<std::uint8_t>(bits & 0xFF));
}

void RawWriter::PutU32(std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        PutByte(offset + i, static_cast<std::uint8_t>((value >> (24 - 8 * i)) & 0xFF));
}

void RawWriter::PutI32(std::size_t offset, std::int32_t value)
{
    PutU32(offset, static_cast<std::uint32_t>(value));
}

std::int32_t RawWriter::Rounded(double value)
{
    const double below = std::floor(value);
    nearestTie = std::min(nearestTie, std::abs(value - below - 0.5));
    return static_cast<std::int32_t>(value - below < 0.5 ? below : below + 1);
}

void RawWriter::PutRounded(std::size_t offset, double value)
{
    PutI32(offset, Rounded(value));
}

void RawWriter::PutChars(std::size_t offset, std::size_t width, std::string_view text, char pad)
{
    for (std::size_t i = 0; i < width; ++i)
        PutByte(offset + i, static_cast<std::uint8_t>(i < text.size() ? text[i] : pad));
}

void RawWriter::PutHead(const CommonHead& head)
{
    PutChars(5, 7, head.Model, ' ');
    PutChars(12, 4, head.Version, ' ');
    PutByte(16, head.Mode);
    PutI32(17, head.HeaderWord);
    PutChars(21, 10, head.Date, ' ');
    PutChars(31, 8, head.Time, ' ');
    PutChars(39, 16, head.RefNumber, '\0');
    PutI16(55, head.DataPoints);
}

Bytes RawWriter::Finish(std::size_t length)
{
    PutI16(1, static_cast<std::int16_t>(length));
    bytes.resize(length);
    return std::move(bytes);
}

std::int16_t RawI16(const Bytes& bytes, std::size_t offset)
{
    return static_cast<std::int16_t>(bytes[offset - 1] << 8 | bytes[offset]);
}

std::uint32_t RawU32(const Bytes& bytes, std::size_t offset)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | bytes[offset - 1 + i];
    return value;
}

std::int32_t RawI32(const Bytes& bytes, std::size_t offset)
{
    return static_cast<std::int32_t>(RawU32(bytes, offset));
}

std::string RawChars(const Bytes& bytes, std::size_t offset, std::size_t width)
{
    std::string text(bytes.begin() + static_cast<std::ptrdiff_t>(offset - 1),
                     bytes.begin() + static_cast<std::ptrdiff_t>(offset - 1 + width));
    while (!text.empty() && (text.back() == ' ' || text.back() == '\0'))
        text.pop_back();
    return text;
}

} // namespace Traces::Samples
