// The common head of every raw trace: which instrument made it, when, in which mode, with how many points.
#pragma once

#include "formats/ParameterList.h"
#include "formats/RawBuffer.h"
#include "formats/TraceText.h"

#include <cstdint>
#include <string>

namespace Traces {

/// Offsets 1 to 56 of a raw trace. Texts of fixed width are cut or padded with blanks when they are set.
struct TraceHeader {
    std::int16_t TraceLength = 0; ///< whole trace in bytes
    std::uint8_t HeaderByte3 = 0; ///< carried, not interpreted
    std::string Model;            ///< 7 characters
    std::string Version;          ///< firmware, 4 characters such as "3.15"
    std::uint8_t Mode = 0;        ///< see TraceMode
    std::int32_t HeaderWord = 0;  ///< carried, not interpreted
    std::string Date;             ///< 10 characters, as the instrument wrote it
    std::string Time;             ///< 8 characters, as the instrument wrote it
    std::string RefNumber;        ///< up to 16 characters, may end in zero characters
    std::int16_t DataPoints = 0;
};

namespace HeaderWidth {
inline constexpr std::size_t Model = 7, Version = 4, Date = 10, Time = 8, RefNumber = 16;
}

/// Reads the head of a raw trace and begins the parameter list with it. Tests nothing, never fails.
void DecodeHeader(const RawBuffer& buffer, TraceHeader& header, ParameterList& lines);

/// The same from a trace file's text: a key without a number leaves its field, a key without a text
/// empties it.
void HeaderFromText(const TraceText& text, TraceHeader& header, ParameterList& lines);

/// Begins the parameter list anew with the header's lines.
void HeaderParams(const TraceHeader& header, ParameterList& lines);

} // namespace Traces
