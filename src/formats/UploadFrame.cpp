#include "formats/UploadFrame.h"

#include "formats/HostFault.h"
#include "formats/Numbers.h"
#include "formats/Text.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

/// The low `width` bytes, 4 at most, of the nearest integer.
std::string LowBytes(double value, std::size_t width)
{
    constexpr double beyond32Bits = 4294967296;
    // The remainder is exact for a number of any size; what is no number has no bytes.
    const double low = std::isfinite(value) ? std::fmod(std::nearbyint(value), beyond32Bits) : 0;
    const auto whole = static_cast<std::uint64_t>(static_cast<std::int64_t>(low));
    std::string bytes(width, '\0');
    for (std::size_t i = 0; i < width; ++i)
        bytes[width - 1 - i] = static_cast<char>(whole >> (8 * i) & 0xFF);
    return bytes;
}

double TextNumber(const TraceText& text, std::string_view key)
{
    return ValueOf(key.empty() ? text.Whole() : text.ParamValue(key));
}

std::string TrimmedReference(std::string_view reference)
{
    return TrimNuls(reference).substr(0, HeaderWidth::RefNumber);
}

} // namespace

UploadFrame::UploadFrame(int length)
{
    if (length < 0)
        throw HostFault(FaultKind::Range, "an upload frame can't have a negative length");
    bytes.assign(static_cast<std::size_t>(length), ' ');
}

void UploadFrame::Put(int position, std::string_view text)
{
    if (position < 1 || position > Length())
        throw HostFault(FaultKind::Range, "a field lies behind the end of its upload frame");
    const auto at = static_cast<std::size_t>(position - 1);
    bytes.replace(at, std::min(text.size(), bytes.size() - at), text, 0, bytes.size() - at);
}

std::string PutI16(double value)
{
    return LowBytes(value, 2);
}

std::string PutU32(double value, double scale, double offset)
{
    return LowBytes(value * scale + offset, 4);
}

std::string PutU32FromI32(std::int32_t value, double scale, double offset)
{
    return PutU32(value, scale, offset);
}

std::string PutByte(double value)
{
    const auto byte = RoundTo<std::uint8_t>(value);
    if (!byte)
        throw HostFault(FaultKind::Overflow, "a value doesn't fit its byte in the upload frame");
    return std::string(1, static_cast<char>(*byte));
}

std::string PutByteFromText(const TraceText& text, std::string_view key)
{
    return PutByte(TextNumber(text, key));
}

std::string PutI16FromText(const TraceText& text, std::string_view key, double scale, double offset)
{
    return PutI16(TextNumber(text, key) * scale + offset);
}

std::string PutU32FromText(const TraceText& text, std::string_view key, double scale, double offset)
{
    return PutU32(TextNumber(text, key), scale, offset);
}

void PutFrameHead(UploadFrame& frame, const TraceHeader& header)
{
    constexpr int zeros = 38;
    frame.Put(1, PutI16(frame.Length()));
    frame.Put(3, PutByte(header.Mode));
    frame.Put(4, std::string(zeros, '\0'));
    frame.Put(8, FixedText(header.Date, HeaderWidth::Date));
    frame.Put(18, FixedText(header.Time, HeaderWidth::Time));
    // Written with its own length, so that the zeros stay behind a short reference.
    frame.Put(26, TrimmedReference(header.RefNumber));
    frame.Put(42, PutI16(header.DataPoints));
}

void PutFrameHeadFromText(UploadFrame& frame, std::uint8_t mode, const TraceText& text)
{
    frame.Put(1, PutI16(frame.Length()));
    frame.Put(3, PutByte(mode));
    frame.Put(8, FixedText(text.ParamValue("Date:"), HeaderWidth::Date));
    frame.Put(18, FixedText(text.ParamValue("Time:"), HeaderWidth::Time));
    frame.Put(26, TrimmedReference(text.ParamValue("Ref Number:")));
    frame.Put(42, PutI16FromText(text, "DataPoints:", 1, 0));
}

int PutFrameHeadFromRaw(UploadFrame& frame, std::string_view file)
{
    constexpr int countPosition = 42;
    frame.Put(1, PutI16(frame.Length()));
    CopyFileBytes(file, frame, 16, 3, 1);
    CopyFileBytes(file, frame, 17, 4, 4);
    CopyFileBytes(file, frame, 21, 8, 10);
    CopyFileBytes(file, frame, 31, 18, 8);
    CopyFileBytes(file, frame, 39, 26, 16);
    CopyFileBytes(file, frame, 55, countPosition, 2);
    const auto byteAt = [&](int position) {
        return static_cast<unsigned char>(frame.Bytes()[static_cast<std::size_t>(position - 1)]);
    };
    return byteAt(countPosition) * 256 + byteAt(countPosition + 1);
}

std::string FrameOfFile(std::string_view file, int length, std::span<const FileStretch> stretches)
{
    UploadFrame frame(length);
    PutFrameHeadFromRaw(frame, file);
    for (const FileStretch& stretch : stretches)
        CopyFileBytes(file, frame, stretch.Offset, stretch.Offset - FrameShift, stretch.Count);
    return frame.Bytes();
}

void CopyFileBytes(std::string_view file, UploadFrame& frame, int source, int target, int count)
{
    std::string copied(static_cast<std::size_t>(std::max(count, 0)), '\0');
    for (std::size_t i = 0; i < copied.size(); ++i) {
        const std::size_t from = static_cast<std::size_t>(source - 1) + i;
        if (from < file.size())
            copied[i] = file[from];
    }
    if (!copied.empty())
        frame.Put(target, copied);
}

} // namespace Traces
