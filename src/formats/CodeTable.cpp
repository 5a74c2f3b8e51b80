// How a code table is read, and the small converters that have the form of a table but no rows of codes.
#include "formats/CodeTable.h"

#include "formats/Numbers.h"
#include "formats/Text.h"

#include <algorithm>

namespace Traces {

namespace {

// Hexadecimal digits of 16 bits without leading zeros, at least one.
std::string HexDigits(std::uint16_t bits)
{
    std::string digits =
        HexByte(static_cast<std::uint8_t>(bits >> 8)) + HexByte(static_cast<std::uint8_t>(bits & 0xFF));
    digits.erase(0, std::min(digits.find_first_not_of('0'), digits.size() - 1));
    return digits;
}

constexpr std::uint32_t Colour(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
{
    return red | std::uint32_t{green} << 8 | std::uint32_t{blue} << 16;
}

struct WarningRow {
    std::string_view Status;
    std::string_view Text;
};

constexpr WarningRow PowerWarnings[] = {
    {"1", "Warning! Power Supply Error."},
    {"2", "Warning! RF power level is too high."},
    {"4", "Warning! Sensor not zeroed properly. Zero sensor again."},
    {"8", "Warning! Specified temperature range exceeded."},
    {"16", "Warning! Temperature has changed. Zero sensor again."},
};

constexpr std::uint32_t ChannelTypeColors[] = {
    Colour(255, 0, 0),   Colour(0, 255, 0),   Colour(0, 0, 255),   Colour(255, 0, 255),
    Colour(255, 255, 0), Colour(255, 177, 0), Colour(0, 255, 255), Colour(216, 216, 216),
};

} // namespace

std::string CodeTable::Text(int code) const
{
    const int wanted = code & CodeMask;
    for (const CodeRow& row : Rows)
        if (row.Code == wanted)
            return std::string(row.Text);

    switch (OtherCodes) {
    case Unknown::FixedText: return std::string(Otherwise);
    case Unknown::HexDigits: return "Unknown(" + HexDigits(static_cast<std::uint16_t>(wanted)) + "h)";
    case Unknown::HexByte: break;
    }
    return "Unknown(" + Traces::HexByte(static_cast<std::uint8_t>(wanted)) + "h)";
}

int CodeTable::Code(std::string_view text) const
{
    for (const CodeRow& row : TextRows)
        if (row.Text == text)
            return row.Code;

    const int code = ParseUnknownCode(text);
    return SmallestCode <= code && code <= LargestCode ? code : 0;
}

std::string NumberOrNA(std::int16_t value)
{
    return value < 0 ? "N/A" : NumberText(value);
}

std::optional<std::int16_t> NumberFromNA(std::string_view text)
{
    const std::string_view trimmed = TrimBlanks(text);
    if (trimmed == "N/A")
        return std::int16_t{-1};
    return RoundTo<std::int16_t>(ValueOf(trimmed));
}

std::string CDMAModeText(std::uint8_t options)
{
    std::string text = "CDMA";
    if (options & 1)
        text += "/OTA";
    if (options & 2)
        text += "/RF";
    return text;
}

std::string_view PowerWarningText(std::string_view status)
{
    for (const WarningRow& row : PowerWarnings)
        if (row.Status == status)
            return row.Text;
    return {};
}

std::uint32_t ChannelTypeColor(std::uint8_t type)
{
    return type < std::size(ChannelTypeColors) ? ChannelTypeColors[type] : Colour(0, 255, 255);
}

} // namespace Traces
