#include "formats/Numbers.h"

#include "formats/Decimal.h"
#include "formats/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <type_traits>

namespace Traces {

namespace {

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
};

std::optional<PrefixedNumber> StrictPrefixed(std::string_view text)
{
    if (text.size() < 3)
        return std::nullopt;
    const int base = PrefixBase(text[1]);
    PrefixedNumber number{0, text.size() - 2};
    for (const char c : text.substr(2)) {
        if (DigitValue(c) >= base)
            return std::nullopt;
        number.Magnitude = number.Magnitude * base + DigitValue(c);
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
        // An octal number of so few digits never gets beyond the largest.
        if (std::is_signed_v<T> && number.Digits == 2 * sizeof(T) && value > largest)
            value -= 2 * (largest + 1);
        return RoundTo<T>(value);
    }
}

} // namespace

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
    if constexpr (std::is_floating_point_v<T>) {
        // The common forms, which are most of a trace file, read faster so. What is left over has commas or
        // a plus sign, is too large or too small, or isn't a number.
        T value = 0;
        const char* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, value);
        if (error == std::errc() && stop == end && std::isfinite(value))
            return value;
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
