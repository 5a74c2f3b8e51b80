#include "formats/Numbers.h"

#include "formats/Decimal.h"
#include "formats/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <type_traits>

namespace Traces {

namespace {

// Longest text of a double: sign, 15 digits, point, "0.000" or "E-308", rounded up.
using NumberBuffer = std::array<char, 32>;

constexpr auto DigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

void PutPair(char* to, std::uint32_t value)
{
    std::memcpy(to, &DigitPairs[std::size_t{2} * value], 2);
}

// Writes exactly `count` digits (an odd number) and gives how many are left without trailing zeros.
template <int count>
int PutDigits(char* to, std::uint64_t value)
{
    for (int at = count - 2; at > 0; at -= 2) {
        PutPair(to + at, static_cast<std::uint32_t>(value % 100));
        value /= 100;
    }
    to[0] = static_cast<char>('0' + value);
    int kept = count;
    while (kept > 1 && to[kept - 1] == '0')
        --kept;
    return kept;
}

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
    PutPair(to, magnitude % 100);
    return to + 2;
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

    const int exponent = static_cast<int>(decimal.Exponent) + precision - 1; // of the first digit
    if (exponent < 0 && exponent >= -4) {
        std::memcpy(to, "0.000", 5);
        to += 1 - exponent;
        return to + PutDigits<precision>(to, decimal.Significand);
    }
    const bool plain = exponent >= 0 && exponent < precision;
    const int integerDigits = plain ? exponent + 1 : 1;
    const int kept = PutDigits<precision>(to, decimal.Significand);
    if (kept > integerDigits) {
        // The digits behind the point move one position on; a fixed count costs least.
        char* const point = to + integerDigits;
        std::memmove(point + 1, point, precision - 1);
        *point = '.';
        to += kept + 1;
    } else {
        to += integerDigits;
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

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsExponentLetter(char c)
{
    return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

// Collects the digits of a number. Those past the 19th move the exponent only: they are beyond what any
// target resolves.
class DigitCollector {
public:
    void Add(char digit)
    {
        Any = true;
        if (Value.Significand < Full)
            Value.Significand = Value.Significand * 10 + static_cast<std::uint64_t>(digit - '0');
        else
            ++Value.Exponent;
        if (BehindPoint)
            --Value.Exponent;
    }

    Decimal Value;
    bool Any = false;
    bool BehindPoint = false;

private:
    static constexpr std::uint64_t Full = 1'000'000'000'000'000'000;
};

// One step of reading an exponent; stops growing far beyond any exponent that matters, and far beyond
// what the digits of a text in memory could make up for.
std::int64_t GrowExponent(std::int64_t exponent, char digit)
{
    return std::min<std::int64_t>(exponent * 10 + (digit - '0'), 1'000'000'000'000'000);
}

int DigitValue(char c)
{
    if (IsDigit(c))
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return 99;
}

// The base that the letter of a prefix "&h" or "&o" asks for, 0 for another letter.
int PrefixBase(char letter)
{
    if (letter == 'h' || letter == 'H')
        return 16;
    return letter == 'o' || letter == 'O' ? 8 : 0;
}

// Reads the characters that ValueOf sees: all but blanks, tabs and line feeds.
class LenientReader {
public:
    explicit LenientReader(std::string_view text) : Rest(text) { Skip(); }

    // The character at hand; a zero character at the end, which no number holds.
    char Peek() const { return Rest.empty() ? '\0' : Rest.front(); }

    char Take()
    {
        const char c = Peek();
        Rest.remove_prefix(1);
        Skip();
        return c;
    }

    bool TakeSign()
    {
        const bool negative = Peek() == '-';
        if (negative || Peek() == '+')
            Take();
        return negative;
    }

private:
    void Skip() { Rest.remove_prefix(std::min(Rest.find_first_not_of(" \t\n"), Rest.size())); }

    std::string_view Rest;
};

// The exponent that a reader stands in front of, 0 when no digits follow its letter.
std::int64_t LenientExponent(LenientReader reader)
{
    if (!IsExponentLetter(reader.Peek()))
        return 0;
    reader.Take();
    const bool negative = reader.TakeSign();
    std::int64_t exponent = 0;
    while (IsDigit(reader.Peek()))
        exponent = GrowExponent(exponent, reader.Take());
    return negative ? -exponent : exponent;
}

double LenientPrefixed(LenientReader reader)
{
    reader.Take();
    const int base = PrefixBase(reader.Peek());
    double value = 0;
    if (base == 0)
        return value;
    reader.Take();
    while (DigitValue(reader.Peek()) < base)
        value = value * base + DigitValue(reader.Take());
    return std::min(value, std::numeric_limits<double>::max());
}

struct PrefixedNumber {
    double Magnitude = 0;
    std::size_t Digits = 0;
    int Base = 0;
};

std::optional<PrefixedNumber> StrictPrefixed(std::string_view text)
{
    if (text.size() < 3)
        return std::nullopt;
    PrefixedNumber number{0, text.size() - 2, PrefixBase(text[1])};
    for (const char c : text.substr(2)) {
        if (DigitValue(c) >= number.Base)
            return std::nullopt;
        number.Magnitude = number.Magnitude * number.Base + DigitValue(c);
    }
    return number;
}

// What a strict text's exponent, from its letter on, stands for.
std::optional<std::int64_t> StrictExponent(std::string_view text)
{
    text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    if (text.empty())
        return std::nullopt;
    std::int64_t exponent = 0;
    for (const char c : text) {
        if (!IsDigit(c))
            return std::nullopt;
        exponent = GrowExponent(exponent, c);
    }
    return negative ? -exponent : exponent;
}

std::optional<Decimal> StrictDecimal(std::string_view text)
{
    DigitCollector digits;
    std::size_t at = 0;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        digits.Value.Negative = text[0] == '-';
        at = 1;
    }
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (IsDigit(c)) {
            digits.Add(c);
        } else if (c == '.' && !digits.BehindPoint) {
            digits.BehindPoint = true;
        } else if (c == ',' && !digits.BehindPoint) {
            if (!digits.Any || at + 1 == text.size() || !IsDigit(text[at + 1]))
                return std::nullopt;
        } else if (IsExponentLetter(c) && digits.Any) {
            const auto exponent = StrictExponent(text.substr(at));
            if (!exponent)
                return std::nullopt;
            digits.Value.Exponent += *exponent;
            return digits.Value;
        } else {
            return std::nullopt;
        }
    }
    if (!digits.Any)
        return std::nullopt;
    return digits.Value;
}

template <StrictTarget T>
std::optional<T> FromPrefixed(const PrefixedNumber& number)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (number.Magnitude > static_cast<double>(std::numeric_limits<T>::max()))
            return std::nullopt;
        return static_cast<T>(number.Magnitude);
    } else {
        constexpr double largest = std::numeric_limits<T>::max();
        double value = number.Magnitude;
        if (std::is_signed_v<T> && number.Base == 16 && number.Digits == 2 * sizeof(T) && value > largest)
            value -= 2 * (largest + 1);
        return RoundTo<T>(value);
    }
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
    NumberBuffer buffer;
    text.append(buffer.data(), PutNumber(buffer.data(), value));
}

std::string SignedNumberText(std::int32_t value)
{
    std::string text = NumberText(value);
    if (value >= 0)
        text.insert(text.begin(), ' ');
    return text;
}

double ValueOf(std::string_view text)
{
    LenientReader reader(text);
    if (reader.Peek() == '&')
        return LenientPrefixed(reader);

    DigitCollector digits;
    digits.Value.Negative = reader.TakeSign();
    for (;;) {
        const char c = reader.Peek();
        if (IsDigit(c))
            digits.Add(c);
        else if (c == '.' && !digits.BehindPoint)
            digits.BehindPoint = true;
        else
            break;
        reader.Take();
    }
    if (!digits.Any)
        return 0;
    digits.Value.Exponent += LenientExponent(reader);
    const double largest = std::numeric_limits<double>::max();
    return NearestBinary<double>(digits.Value).value_or(digits.Value.Negative ? -largest : largest);
}

template <StrictTarget T>
std::optional<T> StrictNumber(std::string_view text)
{
    text = TrimBlanks(text);
    if (text.starts_with('&')) {
        const auto number = StrictPrefixed(text);
        return number ? FromPrefixed<T>(*number) : std::nullopt;
    }
    const auto decimal = StrictDecimal(text);
    if (!decimal)
        return std::nullopt;
    if constexpr (std::is_floating_point_v<T>) {
        return NearestBinary<T>(*decimal);
    } else {
        const auto value = NearestBinary<double>(*decimal);
        return value ? RoundTo<T>(*value) : std::nullopt;
    }
}

template std::optional<std::uint8_t> StrictNumber(std::string_view text);
template std::optional<std::int16_t> StrictNumber(std::string_view text);
template std::optional<std::int32_t> StrictNumber(std::string_view text);
template std::optional<float> StrictNumber(std::string_view text);
template std::optional<double> StrictNumber(std::string_view text);

} // namespace Traces
