// Writes and reads back raw trace buffers: big-endian integers and fixed-width texts at offsets that
// count from 1. Knows the common head of all traces; what stands behind it belongs to each family's file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Traces::Samples {

using Bytes = std::vector<std::uint8_t>;

/// The first 56 bytes of every trace. The trace's length is no field here: RawWriter::Finish writes it.
struct CommonHead {
    std::string Model = "TRC-100"; ///< 7 characters, padded with blanks.
    std::string Version = "3.20";  ///< 4 characters.
    std::uint8_t Mode = 0;
    std::int32_t HeaderWord = 0;
    std::string Date;      ///< 10 characters, month/day/year.
    std::string Time;      ///< 8 characters.
    std::string RefNumber; ///< 16 characters, padded with zero characters.
    std::int16_t DataPoints = 0;
};

/// The rest is the encoder's to say.
CommonHead HeadOf(const char* version, const char* date, const char* time, const char* reference);

/// Position as the instruments send it: whole degrees x 1,000,000 plus minutes x 10,000, negative in the
/// south and west, altitude in metres. The values of a fresh record stand for "no fix".
struct GpsFix {
    std::int32_t Latitude = -1;
    std::int32_t Longitude = -1;
    std::int16_t Altitude = -30000;
};

/// A buffer that grows to whatever is put into it; bytes never put are zero.
class RawWriter {
public:
    void PutByte(std::size_t offset, std::uint8_t value);
    void PutI16(std::size_t offset, std::int16_t value);
    void PutU32(std::size_t offset, std::uint32_t value);
    void PutI32(std::size_t offset, std::int32_t value);

    /// Value rounded to the nearest integer; remembers how close it came to a tie.
    std::int32_t Rounded(double value);

    /// Puts value rounded to the nearest integer and remembers how close it came to a tie.
    /// value must fit a signed 32-bit integer.
    void PutRounded(std::size_t offset, double value);

    /// Puts text cut to width characters, or padded to it with pad.
    void PutChars(std::size_t offset, std::size_t width, std::string_view text, char pad);

    void PutHead(const CommonHead& head);

    /// Grows the buffer to length bytes, writes that length into its head and hands it over.
    Bytes Finish(std::size_t length);

    /// Smallest distance of any rounded value from the next tie, 0 to 0.5. A value too close to a tie
    /// could come out differently with another compiler or mathematics library.
    double NearestTie() const { return nearestTie; }

private:
    Bytes bytes;
    double nearestTie = 0.5;
};

/// Integers of a finished buffer; offset must lie within it.
std::int16_t RawI16(const Bytes& bytes, std::size_t offset);
std::int32_t RawI32(const Bytes& bytes, std::size_t offset);
std::uint32_t RawU32(const Bytes& bytes, std::size_t offset);

/// width characters of a finished buffer, without padding blanks and zero characters at the end.
std::string RawChars(const Bytes& bytes, std::size_t offset, std::size_t width);

} // namespace Traces::Samples
