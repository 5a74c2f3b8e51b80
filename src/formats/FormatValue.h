// Numbers as masked texts, for screens and summaries: FormatValue and its mask language.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

/// The value through a mask such as "#0.00 dB". A mask is an optional leading literal, a number section
/// of '#', '0', '.' and ',', and an optional trailing literal.
///
/// '0' is a digit that always prints, '#' one that prints when the number has it. Integer digits are
/// never lost. The positions right of the point set the rounding, half away from zero on the digits
/// that NumberText prints for the value's type: 7 for a float, 15 for a double. A comma between digit
/// positions asks for thousands groups. A value that rounds to zero has no sign.
std::string FormatValue(float value, std::string_view mask);
std::string FormatValue(double value, std::string_view mask);
std::string FormatValue(std::int32_t value, std::string_view mask);

/// FormatValue, cut on the right to `width` characters.
std::string FormatCut(double value, std::string_view mask, std::size_t width);
std::string FormatCut(float value, std::string_view mask, std::size_t width);

} // namespace Traces
