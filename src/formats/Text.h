// Small text helpers. Texts are bytes inside the control: one byte a character, Windows-1252, zero
// characters included. They become UTF-8 only where they leave for a screen, JSON or SVG.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

/// Cuts at the first zero character, then removes blanks at both ends.
std::string CutAtNul(std::string_view text);

/// Removes all zero characters wherever they stand, then blanks at both ends.
std::string TrimNuls(std::string_view text);

/// Blanks at both ends removed.
std::string_view TrimBlanks(std::string_view text);

/// TrimNuls, then blanks on the right up to the length of the text given.
std::string PadWithBlanks(std::string_view text);

/// What a character field of fixed width holds after an assignment: the text cut to the width, or
/// padded with blanks on the right.
std::string FixedText(std::string_view text, std::size_t width);

/// What stands behind the last backslash, cut in front of the first point. For reference numbers.
std::string StripToBaseName(std::string_view text);

/// The last piece of a path between backslashes, without its points and what stands behind the last
/// one: "C:\t\a.b.spa" gives "ab", a name without a point gives an empty text.
std::string FileBaseName(std::string_view path);

/// What stands behind the first point of the whole path, in upper case; empty without a point. A point
/// in a directory's name therefore spoils the extension.
std::string FileExtension(std::string_view path);

/// With the letters a to z in upper case, whatever the locale.
std::string UpperCase(std::string_view text);

/// The decimal number behind the first "(" of a text (of the whole text when it has none), rounded; 0
/// when it doesn't fit 16 bits. What a text means that no code table holds.
std::int16_t ParseUnknownCode(std::string_view text);

/// Two upper-case hexadecimal digits.
std::string HexByte(std::uint8_t value);

/// The bits of a value in groups of four, the lowest at the far right: 8 of them, 16 above 255.
std::string BitGroupsText(std::uint16_t value);

/// Windows-1252 to UTF-8 and back. The five bytes that Windows-1252 leaves open stand for the control
/// characters of the same number, so all 256 byte values survive the round trip. A character that
/// Windows-1252 doesn't have, or a malformed sequence, becomes "?".
std::string Utf8FromAnsi(std::string_view text);
std::string AnsiFromUtf8(std::string_view text);

} // namespace Traces
