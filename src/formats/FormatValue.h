// Numbers as masked texts, for screens and summaries: FormatValue and its mask language.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

/// The value through a mask such as "#0.00 dB". A mask is an optional leading literal, a number section
/// of '#', '0', '.' and ',', and an optional trailing literal; from a second point on, all is literal.
///
/// '0' is a digit that always prints, '#' one that prints when the number has it. Integer digits are
/// never lost, and a point in the mask always prints (2 through "#0.###" is "2."). The positions right
/// of the point set the rounding, half away from zero on the digits that NumberText prints for the
/// value's type: 7 for a float, 15 for a double; the digits beyond those are zeros. A comma between
/// digit positions of the integer part asks for thousands groups. The sign of a negative value precedes
/// the literal; a value that rounds to zero has none. What isn't finite prints as NumberText has it, in
/// place of the digits.
std::string FormatValue(float value, std::string_view mask);
std::string FormatValue(double value, std::string_view mask);
std::string FormatValue(std::int32_t value, std::string_view mask);

/// FormatValue, cut on the right to `width` characters.
std::string FormatCut(double value, std::string_view mask, std::size_t width);
std::string FormatCut(float value, std::string_view mask, std::size_t width);

} // namespace Traces
