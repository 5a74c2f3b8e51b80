// Numbers as plain text and back: what parameter lines, trace files and upload frames are made of.
// No conversion asks the locale: the decimal mark is always the point. Masked screen texts are in
// FormatValue.h.
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Traces {

/// Plain text of an integer: decimal digits, with a minus sign when negative.
std::string NumberText(std::int64_t value);
std::string NumberText(std::int32_t value);
std::string NumberText(std::int16_t value);
std::string NumberText(std::uint8_t value);

/// Plain text with 7 significant digits for a float, 15 for a double: the shortest of plain and
/// exponent form by the rule of printf's %G, without trailing zeros ("0.5", "1.234568E+07", "1E-06").
std::string NumberText(float value);
std::string NumberText(double value);

/// Appends NumberText(value) to text without making a string of its own.
void AppendNumberText(std::string& text, float value);

/// Decimal digits with one blank in front of a value that isn't negative: " 0", "-1". Makes the keys
/// of data point lines.
std::string SignedNumberText(std::int32_t value);

/// The number that a text begins with, 0 when there is none; never fails. Blanks, tabs and line feeds
/// between characters are skipped; reading stops at the first other character. "&h" and "&o" read the
/// rest as hexadecimal or octal. Upload encoders use it: a missing key counts as 0.
double ValueOf(std::string_view text);

template <class T>
concept StrictTarget = std::same_as<T, std::uint8_t> || std::same_as<T, std::int16_t> ||
                       std::same_as<T, std::int32_t> || std::same_as<T, float> || std::same_as<T, double>;

/// The number that the whole text is, or nothing: for an empty text, for one that isn't a number, for a
/// value out of the range of T. Text loaders use it: a field whose text fails keeps its value. Halves
/// round to the nearest even integer; commas separate digits of the integer part; blanks may surround;
/// "&h" and "&o" are two's complement when they have just the digits of a signed T.
template <StrictTarget T>
std::optional<T> StrictNumber(std::string_view text);

/// The nearest integer, halves to even, or nothing when it doesn't fit T (or isn't a number at all).
template <std::integral T>
std::optional<T> RoundTo(double value);

} // namespace Traces
