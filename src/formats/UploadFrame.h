// The frame in which an instrument takes a trace back: a text of fixed length, blank at first, into which
// the encoders write numbers and texts. The modes' fields are told by their families.
#pragma once

#include "formats/TraceHeader.h"
#include "formats/TraceText.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Traces {

/// How much lower than in the raw trace a field stands in a frame, whose head is the shorter one.
inline constexpr int FrameShift = 13;

/// Positions count from 1. A field that no encoder writes stays blank.
class UploadFrame {
public:
    /// @throws HostFault Range for a negative length.
    explicit UploadFrame(int length);

    /// Writes a text; what reaches behind the frame's end is cut.
    /// @throws HostFault Range when the position itself lies outside of the frame.
    void Put(int position, std::string_view text);

    int Length() const { return static_cast<int>(bytes.size()); }
    const std::string& Bytes() const { return bytes; }

private:
    std::string bytes;
};

/// Byte writers: big-endian, fractions rounded to the nearest integer, halves to even; what doesn't fit
/// keeps its low bytes.
/// @{
std::string PutI16(double value);
std::string PutU32(double value, double scale, double offset);
std::string PutU32FromI32(std::int32_t value, double scale, double offset);
/// @throws HostFault Overflow out of 0 to 255.
std::string PutByte(double value);
/// @}

/// The same from a trace file's line; with an empty key the text itself is the value. 0 when there is no
/// such line.
/// @{
std::string PutByteFromText(const TraceText& text, std::string_view key);
std::string PutI16FromText(const TraceText& text, std::string_view key, double scale, double offset);
std::string PutU32FromText(const TraceText& text, std::string_view key, double scale, double offset);
/// @}

/// The head of the record route: frame length, mode, zeros, and the header's date, time, reference and
/// point count over them. `Model`, `Version` and `TraceLength` aren't carried.
void PutFrameHead(UploadFrame& frame, const TraceHeader& header);

/// The head of a text route, which takes the mode byte from the encoder and the rest from the file's lines.
void PutFrameHeadFromText(UploadFrame& frame, std::uint8_t mode, const TraceText& text);

/// The head of a raw route: the file's own mode, word, date, time, reference and point count. That count.
int PutFrameHeadFromRaw(UploadFrame& frame, std::string_view file);

/// A raw route's frame: its head, and stretches of the file's bytes, whose offsets count from 1, each
/// FrameShift lower. What no stretch holds stays blank.
struct FileStretch {
    int Offset, Count;
};
std::string FrameOfFile(std::string_view file, int length, std::span<const FileStretch> stretches);

/// Copies `count` bytes of a raw file, from a source offset that counts from 1, to a frame position. Bytes
/// behind the file's end copy as zero.
/// @throws HostFault Range when the target lies outside of the frame.
void CopyFileBytes(std::string_view file, UploadFrame& frame, int source, int target, int count);

} // namespace Traces
