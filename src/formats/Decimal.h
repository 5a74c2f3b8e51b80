// A number as an integer times a power of ten: the middle form between binary values and their texts.
// NumberText and FormatValue print it, StrictNumber and ValueOf read it. No text syntax here.
#pragma once

#include <cstdint>
#include <optional>

namespace Traces {

/// (Negative ? -1 : 1) * Significand * 10^Exponent.
struct Decimal {
    std::uint64_t Significand = 0;
    std::int64_t Exponent = 0;
    bool Negative = false;
};

/// 10^exponent for 0 to 19.
std::uint64_t PowerOfTen(int exponent);

/// The significant digits that a text of a float or a double shows.
template <class T>
inline constexpr int ShownDigits = sizeof(T) == sizeof(float) ? 7 : 15;

/// The decimal with just ShownDigits digits (or a significand of 0) that is nearest to a finite value;
/// exact ties go to the even digit, as printf's do.
Decimal NearestDecimal(float value);
Decimal NearestDecimal(double value);

/// The nearest float or double, 0 when the decimal is too small for one, nothing when it is too large.
template <class T>
std::optional<T> NearestBinary(const Decimal& decimal);

} // namespace Traces
