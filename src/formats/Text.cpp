#include "formats/Text.h"

#include "formats/Numbers.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

// What Windows-1252 has at 0x80 to 0x9F. Everything else is the character of the same number.
constexpr std::array<char16_t, 32> AnsiUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool IsUpperControl(char32_t code)
{
    return code >= 0x80 && code < 0xA0;
}

char32_t UnicodeFromAnsi(unsigned char byte)
{
    return IsUpperControl(byte) ? AnsiUpperControls[byte - 0x80U] : byte;
}

char AnsiFromUnicode(char32_t code)
{
    if (code < 0x100 && !IsUpperControl(code))
        return static_cast<char>(code);
    const auto found = std::find(AnsiUpperControls.begin(), AnsiUpperControls.end(), code);
    return found == AnsiUpperControls.end() ? '?'
                                            : static_cast<char>(0x80 + (found - AnsiUpperControls.begin()));
}

struct Utf8Lead {
    std::size_t Length = 1; // of the whole sequence
    char32_t Bits = 0;      // of the character, in the first byte
    char32_t Least = 0;     // smallest character that needs the length
};

// What a first byte says; Length 0 when none begins so.
constexpr Utf8Lead LeadOf(unsigned char byte)
{
    if (byte < 0x80)
        return {1, byte, 0};
    if (byte >= 0xC0 && byte < 0xE0)
        return {2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF8)
        return {4, byte & 0x07U, 0x10000};
    return {0, 0, 0};
}

// Takes one character, or the bytes of a malformed sequence up to the first that can't belong to it.
char TakeUtf8AsAnsi(std::string_view& text)
{
    const Utf8Lead lead = LeadOf(static_cast<unsigned char>(text.front()));
    text.remove_prefix(1);
    char32_t code = lead.Bits;
    for (std::size_t i = 1; i < lead.Length; ++i) {
        if (text.empty() || (static_cast<unsigned char>(text.front()) & 0xC0U) != 0x80)
            return '?';
        code = (code << 6) | (static_cast<unsigned char>(text.front()) & 0x3FU);
        text.remove_prefix(1);
    }
    return lead.Length == 0 || code < lead.Least ? '?' : AnsiFromUnicode(code);
}

std::string_view BehindLastBackslash(std::string_view path)
{
    return path.substr(path.rfind('\\') + 1); // npos + 1 is 0
}

} // namespace

std::string_view TrimBlanks(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string CutAtNul(std::string_view text)
{
    return std::string(TrimBlanks(text.substr(0, text.find('\0'))));
}

std::string TrimNuls(std::string_view text)
{
    std::string kept(text);
    std::erase(kept, '\0');
    return std::string(TrimBlanks(kept));
}

std::string PadWithBlanks(std::string_view text)
{
    return FixedText(TrimNuls(text), text.size());
}

std::string FixedText(std::string_view text, std::size_t width)
{
    std::string fixed(text.substr(0, width));
    fixed.resize(width, ' ');
    return fixed;
}

std::string StripToBaseName(std::string_view text)
{
    const std::string_view name = BehindLastBackslash(text);
    return std::string(name.substr(0, name.find('.')));
}

std::string FileBaseName(std::string_view path)
{
    const std::string_view name = BehindLastBackslash(path);
    const std::size_t lastPoint = name.rfind('.');
    std::string joined(name.substr(0, lastPoint == std::string_view::npos ? 0 : lastPoint));
    std::erase(joined, '.');
    return joined;
}

std::string FileExtension(std::string_view path)
{
    const std::size_t point = path.find('.');
    return UpperCase(path.substr(point == std::string_view::npos ? path.size() : point + 1));
}

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::int16_t ParseUnknownCode(std::string_view text)
{
    const std::string_view number = text.substr(text.find('(') + 1); // npos + 1 is 0
    return RoundTo<std::int16_t>(ValueOf(number)).value_or(0);
}

std::string HexByte(std::uint8_t value)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    return {digits[value >> 4], digits[value & 0x0F]};
}

std::string BitGroupsText(std::uint16_t value)
{
    std::string text = value > 255 ? "0000 0000 0000 0000" : "0000 0000";
    for (std::size_t bit = 0; bit < 16; ++bit) {
        if ((value >> bit) & 1)
            text[text.size() - 1 - (bit + bit / 4)] = '1';
    }
    return text;
}

std::string Utf8FromAnsi(std::string_view text)
{
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t code = UnicodeFromAnsi(static_cast<unsigned char>(c));
        if (code < 0x80) {
            utf8 += c;
        } else if (code < 0x800) {
            utf8 += static_cast<char>(0xC0 | (code >> 6));
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (code >> 12));
            utf8 += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (code & 0x3F));
        }
    }
    return utf8;
}

std::string AnsiFromUtf8(std::string_view text)
{
    std::string ansi;
    ansi.reserve(text.size());
    while (!text.empty())
        ansi += TakeUtf8AsAnsi(text);
    return ansi;
}

} // namespace Traces
