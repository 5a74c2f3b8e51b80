// Masked and plain number texts on any input: the first line is a number (its text, or the bytes of a
// double), the rest a mask. The same first line goes through the parsers.
#include "formats/FormatValue.h"
#include "formats/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>

namespace {

using namespace Traces;

/// Ends the run with a report when a property doesn't hold.
void Check(bool holds, const char* property, double value, std::string_view text, std::string_view result)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s: value %.17g, text \"%.*s\", result \"%.*s\"\n", property, value,
                 static_cast<int>(text.size()), text.data(), static_cast<int>(result.size()), result.data());
    std::abort();
}

/// Fifteen digits of the largest double round beyond it: no double can be read back from them.
constexpr double SafeLargest = 1.797e308;

/// The number that the line begins with, or its bytes as one.
double ValueFrom(std::string_view line)
{
    double value = 0;
    if (std::from_chars(line.data(), line.data() + line.size(), value).ec == std::errc() || line.size() < 8)
        return value;
    std::memcpy(&value, line.data(), sizeof value);
    return value;
}

/// A mask in its three pieces.
struct MaskPieces {
    std::string_view Leading, Section, Trailing;
};

/// The pieces of a mask that no reader can take in two ways: one section, at most one point, and no
/// character in the literals that a number may hold. Nothing for other masks.
bool SplitPlainMask(std::string_view mask, MaskPieces& pieces)
{
    constexpr std::string_view sectionCharacters = "#0,.";
    const std::size_t begin = mask.find_first_of(sectionCharacters);
    if (begin == mask.npos)
        return false;
    const std::size_t end = std::min(mask.find_first_not_of(sectionCharacters, begin), mask.size());
    pieces = {mask.substr(0, begin), mask.substr(begin, end - begin), mask.substr(end)};
    constexpr std::string_view numberCharacters = "0123456789#,.-";
    return pieces.Section.find_first_of("#0") != mask.npos && std::ranges::count(pieces.Section, '.') <= 1 &&
           pieces.Leading.find_first_of(numberCharacters) == mask.npos &&
           pieces.Trailing.find_first_of(numberCharacters) == mask.npos;
}

/// Groups of three digits from the right, one to three in the first.
bool IsGrouped(std::string_view integer)
{
    if (integer.empty() || integer.front() == ',' || integer.back() == ',')
        return integer.empty();
    for (std::size_t i = 0; i < integer.size(); ++i)
        if ((integer[i] == ',') != ((integer.size() - i) % 4 == 0))
            return false;
    return true;
}

/// The number in a masked text is the value, rounded at the mask's last position and no further than
/// the `digits` that NumberText prints: so no integer digit is lost.
template <class T>
void CheckMasked(T value, std::string_view mask, int digits)
{
    const std::string text = FormatValue(value, mask);
    MaskPieces pieces;
    if (!(std::abs(static_cast<double>(value)) <= SafeLargest) || !SplitPlainMask(mask, pieces))
        return;

    const auto check = [&](bool holds, const char* property) {
        Check(holds, property, static_cast<double>(value), mask, text);
    };
    std::string_view body = text;
    const bool negative = body.starts_with('-');
    body.remove_prefix(negative ? 1 : 0);
    check(body.starts_with(pieces.Leading) && body.ends_with(pieces.Trailing) &&
              body.size() >= pieces.Leading.size() + pieces.Trailing.size(),
          "the literals stand around the number");
    body.remove_prefix(pieces.Leading.size());
    body.remove_suffix(pieces.Trailing.size());
    check(body.find_first_not_of("0123456789,.") == body.npos, "the number is made of digits");

    const std::size_t maskPoint = std::min(pieces.Section.find('.'), pieces.Section.size());
    const std::size_t point = std::min(body.find('.'), body.size());
    check((point < body.size()) == (maskPoint < pieces.Section.size()),
          "a point stands where the mask has one");
    const std::string_view integer = body.substr(0, point);
    check(integer.find(',') == integer.npos || IsGrouped(integer), "commas stand between groups of three");

    const std::string_view fraction = body.substr(std::min(point + 1, body.size()));
    const std::string_view fractionMask =
        pieces.Section.substr(std::min(maskPoint + 1, pieces.Section.size()));
    const auto places = std::ranges::count_if(fractionMask, [](char c) { return c == '#' || c == '0'; });
    check(fraction.find(',') == fraction.npos && static_cast<std::ptrdiff_t>(fraction.size()) <= places,
          "no more decimals than positions");

    std::string plain;
    std::ranges::copy_if(body, std::back_inserter(plain), [](char c) { return c != ','; });
    double shown = 0;
    if (plain.find_first_of("0123456789") != plain.npos)
        std::from_chars(plain.data(), plain.data() + plain.size(), shown);
    check(shown != 0 || !negative, "zero has no sign");
    shown = negative ? -shown : shown;
    const double exact = static_cast<double>(value);
    const double allowed = 0.5 * std::pow(10.0, -static_cast<double>(places)) * (1 + 1e-9) +
                           std::abs(exact) * 5.5 * std::pow(10.0, -digits);
    check(std::abs(shown / 2 - exact / 2) <= allowed / 2 + std::numeric_limits<double>::denorm_min(),
          "the number is the value, rounded at the last position");
}

/// What the C library prints of a number in its general form.
std::string PrintedGeneral(double value, int digits)
{
    std::array<char, 32> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.*G", digits, value);
    return {text.data(), static_cast<std::size_t>(length)};
}

/// NumberText keeps a number to its digits, and both parsers read it back alike.
void CheckPlain(double value)
{
    if (std::abs(value) <= SafeLargest) {
        const std::string text = NumberText(value);
        const auto back = StrictNumber<double>(text);
        if (value != 0)
            Check(text == PrintedGeneral(value, 15), "plain text is the general form", value, text, "");
        Check(back.has_value(), "plain text of a double is a number", value, text, "");
        Check(std::abs(*back - value) <= std::abs(value) * 5.5e-15 + 1e-322, "15 digits are kept", value,
              text, "");
        Check(ValueOf(text) == *back, "both parsers agree", value, text, "");
        if (std::abs(value) >= 1e-300)
            Check(NumberText(*back) == text, "plain text of what was read is the same", value, text, "");
    }

    const float single =
        std::abs(value) <= std::numeric_limits<float>::max() ? static_cast<float>(value) : 0.0F;
    const std::string text = NumberText(single);
    if (single != 0)
        Check(text == PrintedGeneral(static_cast<double>(single), 7), "plain text is the general form",
              static_cast<double>(single), text, "");
    const auto back = StrictNumber<float>(text);
    Check(back.has_value() && std::abs(*back - single) <= std::abs(single) * 6e-7F + 1e-44F,
          "7 digits of a float are kept", static_cast<double>(single), text, "");
    std::string appended = "x";
    AppendNumberText(appended, single);
    Check(appended == "x" + text, "appending is the same as printing", static_cast<double>(single), text,
          appended);

    if (const auto whole = RoundTo<std::int32_t>(value)) {
        Check(std::abs(value - *whole) <= 0.5, "rounding goes to the nearest", value, "", NumberText(*whole));
        Check(StrictNumber<std::int32_t>(NumberText(*whole)) == *whole, "integers return", value, "", "");
        Check(StrictNumber<std::int32_t>(SignedNumberText(*whole)) == *whole, "blank-led integers return",
              value, "", SignedNumberText(*whole));
    } else {
        Check(!(std::abs(value) < 2147483647.0), "only a number out of range has no integer", value, "", "");
    }
}

/// Whatever one type reads in a text, a wider one reads too, and the lenient parser sees the same.
void CheckParsers(std::string_view text)
{
    const double lenient = ValueOf(text);
    Check(!std::isnan(lenient), "the lenient parser gives a number", lenient, text, "");

    const auto number = StrictNumber<double>(text);
    const auto single = StrictNumber<float>(text);
    const auto byte = StrictNumber<std::uint8_t>(text);
    const auto i16 = StrictNumber<std::int16_t>(text);
    const auto i32 = StrictNumber<std::int32_t>(text);
    Check(!number || std::isfinite(*number), "a strict number is finite", number.value_or(0), text, "");
    if (text.find('&') != text.npos)
        return; // Two's complement depends on the type.

    Check(!byte || i16 == *byte, "what fits a byte fits 16 bits", lenient, text, "");
    Check(!i16 || i32 == *i16, "what fits 16 bits fits 32", lenient, text, "");
    Check(!i32 || (number && std::abs(*number - *i32) <= 0.5), "an integer is the number, rounded", lenient,
          text, "");
    Check(!single || number.has_value(), "what a float holds, a double holds", lenient, text, "");
    Check(!single || std::abs(*single - *number) <= std::abs(*number) * 6e-8 + 1e-45, "a float is the number",
          lenient, text, "");
    if (!number || text.find(',') != text.npos)
        return;
    // A significand keeps 19 digits at least; what stands behind them may turn the last bit of a double.
    constexpr std::size_t keptDigits = 19;
    const double lastBit = text.size() <= keptDigits ? 0 : std::abs(*number) * 2.3e-16;
    Check(std::abs(lenient - *number) <= lastBit, "both parsers agree on a plain number", lenient, text, "");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t lineEnd = std::min(input.find('\n'), input.size());
    const std::string_view line = input.substr(0, lineEnd);
    const std::string_view mask = input.substr(std::min(lineEnd + 1, input.size()));

    const double value = ValueFrom(line);
    CheckMasked(value, mask, 15);
    CheckMasked(static_cast<float>(std::clamp(value, -3e38, 3e38)), mask, 7);
    if (const auto whole = RoundTo<std::int32_t>(value))
        CheckMasked(*whole, mask, 15);
    FormatCut(value, mask, size % 16);
    CheckPlain(std::isnan(value) ? 0 : value);
    CheckParsers(line);
    return 0;
}
