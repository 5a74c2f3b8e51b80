#include "formats/Decimal.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>
#include <type_traits>

namespace Traces {

namespace {

constexpr auto PowersOfTen = [] {
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

// The powers of ten that a double holds without error.
constexpr int LargestExactPower = 22;
constexpr std::array<double, LargestExactPower + 1> ExactPowers = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

double TimesPowerOfTen(double value, int exponent)
{
    return exponent < 0 ? value / ExactPowers[static_cast<std::size_t>(-exponent)]
                        : value * ExactPowers[static_cast<std::size_t>(exponent)];
}

// The digits of std::to_chars in scientific form: slower, but right for every finite value.
template <class T>
Decimal DecimalOfText(T value)
{
    std::array<char, 40> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::scientific, ShownDigits<T> - 1)
                         .ptr;
    Decimal decimal;
    const char* at = text.data();
    if (*at == '-') {
        decimal.Negative = true;
        ++at;
    }
    for (; *at != 'e'; ++at) {
        if (*at != '.')
            decimal.Significand = decimal.Significand * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    const char* exponent = at[1] == '+' ? at + 2 : at + 1;
    std::from_chars(exponent, end, decimal.Exponent);
    decimal.Exponent -= ShownDigits<T> - 1;
    return decimal;
}

// Reads a decimal again through its text, for those that one exact operation can't convert.
template <class T>
std::optional<T> BinaryOfText(const Decimal& decimal)
{
    // No type reaches beyond these, whatever the up to 20 digits of the significand are.
    const std::int64_t exponent = std::clamp<std::int64_t>(decimal.Exponent, -1000, 1000);
    const std::string text = std::to_string(decimal.Significand) + 'e' + std::to_string(exponent);

    T magnitude = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), magnitude).ec != std::errc()) {
        if (exponent > 0)
            return std::nullopt;
        magnitude = 0;
    }
    return decimal.Negative ? -magnitude : magnitude;
}

} // namespace

std::uint64_t PowerOfTen(int exponent)
{
    return PowersOfTen[static_cast<std::size_t>(exponent)];
}

Decimal NearestDecimal(float value)
{
    constexpr std::uint32_t smallest = 1'000'000;
    constexpr std::uint32_t beyond = 10 * smallest;
    const auto bits = std::bit_cast<std::uint32_t>(value);
    const bool negative = (bits >> 31) != 0;
    const int binaryExponent = static_cast<int>((bits >> 23) & 0xFF) - 127;
    // The value lies in [2^e, 2^(e+1)); 1233/4096 is log10(2), near enough for every exponent of a float.
    const int decimalExponent = (binaryExponent * 1233) >> 12;
    int scale = ShownDigits<float> - 1 - decimalExponent;
    if (std::abs(scale) <= LargestExactPower - 1) {
        // One operation on exact operands, so the only error is its own rounding, below 1e-8 here. The
        // digits are proven when they are nearer than a half by more than that.
        const double magnitude = std::bit_cast<float>(bits & 0x7FFF'FFFFU);
        double scaled = TimesPowerOfTen(magnitude, scale);
        if (scaled >= beyond)
            scaled = TimesPowerOfTen(magnitude, --scale);
        // A tie rounds wrongly here, and isn't proven below.
        // NOLINTNEXTLINE(bugprone-incorrect-roundings)
        const auto digits = static_cast<std::uint32_t>(static_cast<std::int32_t>(scaled + 0.5));
        if (std::abs(scaled - digits) < 0.5 - 1e-8) {
            if (digits == beyond)
                return {smallest, 1 - scale, negative};
            return {digits, -scale, negative};
        }
    }
    if (value == 0)
        return {0, 0, negative};
    return DecimalOfText(value);
}

Decimal NearestDecimal(double value)
{
    if (value == 0)
        return {0, 0, std::signbit(value)};
    return DecimalOfText(value);
}

template <class T>
std::optional<T> NearestBinary(const Decimal& decimal)
{
    constexpr std::uint64_t exactIntegers = std::uint64_t{1} << std::numeric_limits<double>::digits;
    if (decimal.Significand == 0)
        return decimal.Negative ? -T{0} : T{0};
    if (decimal.Significand <= exactIntegers && std::abs(decimal.Exponent) <= LargestExactPower) {
        // Both operands are exact, so the double is the nearest one.
        const double nearest =
            TimesPowerOfTen(static_cast<double>(static_cast<std::int64_t>(decimal.Significand)),
                            static_cast<int>(decimal.Exponent));
        if constexpr (std::is_same_v<T, double>) {
            return decimal.Negative ? -nearest : nearest;
        } else {
            // Rounding it again is right unless it stands halfway between two floats: there the part
            // that was rounded away decides.
            constexpr int droppedBits =
                std::numeric_limits<double>::digits - std::numeric_limits<float>::digits;
            constexpr std::uint64_t half = std::uint64_t{1} << (droppedBits - 1);
            if ((std::bit_cast<std::uint64_t>(nearest) & (2 * half - 1)) != half)
                return static_cast<float>(decimal.Negative ? -nearest : nearest);
        }
    }
    return BinaryOfText<T>(decimal);
}

template std::optional<float> NearestBinary(const Decimal& decimal);
template std::optional<double> NearestBinary(const Decimal& decimal);

} // namespace Traces
