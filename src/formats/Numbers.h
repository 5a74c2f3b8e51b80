// Numbers as plain text and back: what parameter lines, trace files and upload frames are made of.
// No conversion asks the locale: the decimal mark is always the point. Masked screen texts are in
// FormatValue.h.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace Traces {

/// Plain text of an integer: decimal digits, with a minus sign when negative.
std::string NumberText(std::int64_t value);
std::string NumberText(std::int32_t value);
std::string NumberText(std::int16_t value);
std::string NumberText(std::uint8_t value);

/// Plain text with 7 significant digits for a float, 15 for a double, in plain or exponent form by the
/// rule of printf's %G, without trailing zeros ("0.5", "1.234568E+07", "1E-06"). A negative zero is
/// "-0"; what is no number is "NAN", and infinities are "INF" and "-INF".
std::string NumberText(float value);
std::string NumberText(double value);

/// Appends NumberText(value) to text without making a string of its own.
void AppendNumberText(std::string& text, float value);
void AppendNumberText(std::string& text, std::int32_t value);

/// Decimal digits with one blank in front of a value that isn't negative: " 0", "-1". As the keys
/// of data point lines have it.
std::string SignedNumberText(std::int32_t value);

/// The number that a text begins with, 0 when there is none; never fails. Blanks, tabs and line feeds
/// between characters are skipped; reading stops at the first other character. An exponent counts when
/// digits follow its letter (E or D). "&h" and "&o" in front, without a sign, read the rest as
/// hexadecimal or octal; unlike StrictNumber they never give a negative number, "&hFFFF" is 65535. The
/// result is finite: a number too large for a double gives the largest one. Upload encoders use it: a
/// missing key counts as 0.
double ValueOf(std::string_view text);

template <class T>
concept StrictTarget = std::same_as<T, std::uint8_t> || std::same_as<T, std::int16_t> ||
    std::same_as<T, std::int32_t> || std::same_as<T, float> || std::same_as<T, double>;

/// The number that the whole text is, or nothing: for an empty text, for one that isn't a number, for a
/// value out of the range of T. Text loaders use it: a field whose text fails keeps its value. Halves
/// round to the nearest even integer, a value too small for a float or double to 0. Commas may stand
/// between digits of the integer part, in any grouping; blanks, and nothing else, may surround; "5." and
/// ".5" are numbers. "&h" and "&o" in front, without a sign, make it hexadecimal or octal; "&h" is two's
/// complement when it has just the digits of a signed T, 4 or 8 ("&hFFFF" is -1 for 16 bits, 65535 for 32).
template <StrictTarget T>
std::optional<T> StrictNumber(std::string_view text);

/// The nearest integer, halves to even, or nothing when it doesn't fit T (or isn't a number at all).
template <std::integral T>
std::optional<T> RoundTo(double value)
{
    constexpr auto largest = std::numeric_limits<T>::max();
    constexpr T half = largest / 2 + 1; // a power of two, so exact
    constexpr double beyond = 2 * static_cast<double>(half);
    constexpr auto smallest = static_cast<double>(std::numeric_limits<T>::min());
    const double rounded = std::nearbyint(value);
    if (rounded >= smallest && rounded < beyond)
        return static_cast<T>(rounded);
    return std::nullopt;
}

} // namespace Traces
