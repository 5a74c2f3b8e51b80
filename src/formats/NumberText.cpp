#include "formats/Decimal.h"
#include "formats/Numbers.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <type_traits>

namespace Traces {

namespace {

// Longer than any text of a double (sign, "0.000", 15 digits) and what a row writes behind its digits.
constexpr std::size_t LongestNumber = 32;
using NumberBuffer = std::array<char, LongestNumber>;

// Eight digits of a value, each in a byte of its own, the first digit in the lowest byte: halves are
// split in all lanes at once.
std::uint64_t SplitDigits(std::uint32_t value)
{
    std::uint64_t lanes = value / 10000 | std::uint64_t{value % 10000} << 32;
    const std::uint64_t hundreds = ((lanes * 10486) >> 20) & 0x0000'007F'0000'007F;
    lanes = hundreds | (lanes - 100 * hundreds) << 16;
    const std::uint64_t tens = ((lanes * 103) >> 10) & 0x000F'000F'000F'000F;
    return tens | (lanes - 10 * tens) << 8;
}

constexpr std::uint64_t DigitZeros = 0x3030'3030'3030'3030;

void PutBytes(char* to, std::uint64_t bytes)
{
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(to, &bytes, sizeof bytes);
    } else {
        for (int i = 0; i < 8; ++i)
            to[i] = static_cast<char>((bytes >> (8 * i)) & 0xFF);
    }
}

int CountWithoutTrailingZeros(std::uint64_t digits)
{
    return static_cast<int>((std::bit_width(digits) + 7) / 8);
}

// The shown digits of a number, ready to be written from any of them on. A row may write zeros behind
// its last digit.
template <class T>
class DigitRow;

// A float's digits stay in a register: writing them and reading them back would cost as much as all else.
template <>
class DigitRow<float> {
public:
    explicit DigitRow(std::uint64_t significand)
        : Digits(SplitDigits(static_cast<std::uint32_t>(significand) * 10))
    {
    }

    int Count() const { return CountWithoutTrailingZeros(Digits); }
    void Put(char* to, int first) const { PutBytes(to, (Digits | DigitZeros) >> (8 * first)); }

private:
    std::uint64_t Digits;
};

template <>
class DigitRow<double> {
public:
    explicit DigitRow(std::uint64_t significand)
        : Front(SplitDigits(static_cast<std::uint32_t>(significand / 10'000'000))),
          Back(SplitDigits(static_cast<std::uint32_t>(significand % 10'000'000) * 10))
    {
        PutBytes(Text.data(), Front | DigitZeros);
        PutBytes(Text.data() + 8, Back | DigitZeros);
    }

    int Count() const
    {
        return Back == 0 ? CountWithoutTrailingZeros(Front) : 8 + CountWithoutTrailingZeros(Back);
    }
    void Put(char* to, int first) const
    {
        std::memcpy(to, Text.data() + first, static_cast<std::size_t>(16 - first));
    }

private:
    std::uint64_t Front;
    std::uint64_t Back;
    std::array<char, 16> Text;
};

char* PutText(char* to, std::string_view text)
{
    std::memcpy(to, text.data(), text.size());
    return to + text.size();
}

char* PutExponent(char* to, int exponent)
{
    *to++ = 'E';
    *to++ = exponent < 0 ? '-' : '+';
    const auto magnitude = static_cast<std::uint32_t>(std::abs(exponent));
    if (magnitude >= 100)
        *to++ = static_cast<char>('0' + magnitude / 100);
    *to++ = static_cast<char>('0' + magnitude / 10 % 10);
    *to++ = static_cast<char>('0' + magnitude % 10);
    return to;
}

template <class T>
char* PutNumber(char* to, T value)
{
    constexpr int precision = ShownDigits<T>;
    if (!std::isfinite(value))
        return PutText(to, std::isnan(value) ? "NAN" : value < 0 ? "-INF" : "INF");
    const Decimal decimal = NearestDecimal(value);
    if (decimal.Negative)
        *to++ = '-';
    if (decimal.Significand == 0)
        return PutText(to, "0");

    const DigitRow<T> digits(decimal.Significand);
    const int count = digits.Count();
    const int exponent = static_cast<int>(decimal.Exponent) + precision - 1; // of the first digit
    if (exponent < 0 && exponent >= -4) {
        PutText(to, "0.000");
        to += 1 - exponent;
        digits.Put(to, 0);
        return to + count;
    }
    const bool plain = exponent >= 0 && exponent < precision;
    const int integerDigits = plain ? exponent + 1 : 1;
    digits.Put(to, 0);
    to += integerDigits;
    if (count > integerDigits) {
        *to++ = '.';
        digits.Put(to, integerDigits);
        to += count - integerDigits;
    }
    return plain ? to : PutExponent(to, exponent);
}

template <class T>
std::string TextOf(T value)
{
    NumberBuffer buffer;
    if constexpr (std::is_floating_point_v<T>)
        return {buffer.data(), PutNumber(buffer.data(), value)};
    else
        return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

} // namespace

std::string NumberText(std::int64_t value)
{
    return TextOf(value);
}
std::string NumberText(std::int32_t value)
{
    return TextOf(value);
}
std::string NumberText(std::int16_t value)
{
    return TextOf(value);
}
std::string NumberText(std::uint8_t value)
{
    return TextOf(int{value});
}
std::string NumberText(float value)
{
    return TextOf(value);
}
std::string NumberText(double value)
{
    return TextOf(value);
}

void AppendNumberText(std::string& text, float value)
{
    // Written in place: a copy out of a buffer would wait for the stores into it.
    const std::size_t before = text.size();
    text.resize(before + LongestNumber);
    char* const start = text.data() + before;
    text.resize(before + static_cast<std::size_t>(PutNumber(start, value) - start));
}

void AppendNumberText(std::string& text, std::int32_t value)
{
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    text.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

std::string SignedNumberText(std::int32_t value)
{
    return (value < 0 ? "" : " ") + std::to_string(value);
}

} // namespace Traces
