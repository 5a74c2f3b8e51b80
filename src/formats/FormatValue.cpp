#include "formats/FormatValue.h"

#include "formats/Decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Traces {

namespace {

// What a mask asks for.
struct Mask {
    std::string_view Leading;
    std::string_view Trailing;
    std::size_t LeastInteger = 0; // digits that always print left of the point
    std::size_t LeastDecimals = 0;
    std::size_t MostDecimals = 0;
    bool HasPoint = false;
    bool Grouped = false;
};

// Splits a mask into its parts. The number section reaches from the first of its characters to the first
// other one or a second point. Without one, the digits print behind the literal.
Mask ParseMask(std::string_view text)
{
    constexpr std::string_view sectionCharacters = "#0.,";
    const std::size_t start = std::min(text.find_first_of(sectionCharacters), text.size());
    std::string_view section = text.substr(start);
    section = section.substr(0, section.find_first_not_of(sectionCharacters));
    const std::size_t point = section.find('.');
    const bool hasPoint = point != std::string_view::npos;
    if (hasPoint)
        section = section.substr(0, section.find('.', point + 1));
    const std::string_view integer = section.substr(0, point);
    const std::string_view decimals = hasPoint ? section.substr(point + 1) : std::string_view();

    Mask mask;
    mask.Leading = text.substr(0, start);
    mask.Trailing = text.substr(start + section.size());
    mask.HasPoint = hasPoint;
    bool digitBefore = false;
    bool commaBefore = false;
    for (const char c : integer) {
        mask.Grouped = mask.Grouped || (c != ',' && commaBefore);
        commaBefore = c == ',' && digitBefore;
        digitBefore = digitBefore || c != ',';
        // From the first "0" on, every position prints.
        if (c == '0' || (c == '#' && mask.LeastInteger > 0))
            ++mask.LeastInteger;
    }
    for (const char c : decimals) {
        if (c == ',')
            continue;
        ++mask.MostDecimals;
        if (c == '0')
            mask.LeastDecimals = mask.MostDecimals;
    }
    return mask;
}

// Rounds half away from zero to a count of digits behind the point.
Decimal RoundedTo(Decimal decimal, std::size_t decimals)
{
    const std::int64_t dropped = -decimal.Exponent - static_cast<std::int64_t>(decimals);
    if (dropped > 0) {
        decimal.Exponent += dropped;
        if (dropped > ShownDigits<double>) {
            decimal.Significand = 0;
        } else {
            const std::uint64_t unit = PowerOfTen(static_cast<int>(dropped));
            decimal.Significand = (decimal.Significand + unit / 2) / unit;
        }
    }
    if (decimal.Significand == 0)
        return {};
    return decimal;
}

std::string WithGroups(const std::string& integer)
{
    std::string grouped;
    for (std::size_t i = 0; i < integer.size(); ++i) {
        if (i > 0 && (integer.size() - i) % 3 == 0)
            grouped += ',';
        grouped += integer[i];
    }
    return grouped;
}

std::size_t Lacking(std::size_t wanted, std::size_t present)
{
    return wanted > present ? wanted - present : 0;
}

// The digits of a rounded decimal in the places that a mask provides.
std::string MaskedDigits(const Decimal& decimal, const Mask& mask)
{
    const std::string significand = decimal.Significand == 0 ? "" : std::to_string(decimal.Significand);
    const auto places = static_cast<std::size_t>(std::max<std::int64_t>(-decimal.Exponent, 0));
    std::string digits(Lacking(places, significand.size()), '0');
    digits += significand;
    digits.append(static_cast<std::size_t>(std::max<std::int64_t>(decimal.Exponent, 0)), '0');
    const std::string_view integer = std::string_view(digits).substr(0, digits.size() - places);
    const std::string_view decimals = std::string_view(digits).substr(integer.size());

    std::string text(Lacking(mask.LeastInteger, integer.size()), '0');
    text += integer;
    if (mask.Grouped)
        text = WithGroups(text);
    if (!mask.HasPoint)
        return text;
    const std::size_t shown = std::max(decimals.find_last_not_of('0') + 1, mask.LeastDecimals);
    text += '.';
    text += decimals.substr(0, shown);
    text.append(Lacking(shown, decimals.size()), '0');
    return text;
}

std::string Assemble(bool negative, const Mask& mask, std::string_view number)
{
    std::string text(negative ? "-" : "");
    text += mask.Leading;
    text += number;
    text += mask.Trailing;
    return text;
}

std::string FormatDecimal(const Decimal& exact, std::string_view maskText)
{
    const Mask mask = ParseMask(maskText);
    const Decimal rounded = RoundedTo(exact, mask.MostDecimals);
    return Assemble(rounded.Negative, mask, MaskedDigits(rounded, mask));
}

template <class T>
std::string FormatFloating(T value, std::string_view maskText)
{
    if (std::isfinite(value))
        return FormatDecimal(NearestDecimal(value), maskText);
    return Assemble(value < 0, ParseMask(maskText), std::isnan(value) ? "NAN" : "INF");
}

std::string Cut(std::string text, std::size_t width)
{
    if (text.size() > width)
        text.resize(width);
    return text;
}

} // namespace

std::string FormatValue(float value, std::string_view mask)
{
    return FormatFloating(value, mask);
}

std::string FormatValue(double value, std::string_view mask)
{
    return FormatFloating(value, mask);
}

std::string FormatValue(std::int32_t value, std::string_view mask)
{
    const auto magnitude = static_cast<std::uint64_t>(std::abs(std::int64_t{value}));
    return FormatDecimal({magnitude, 0, value < 0}, mask);
}

std::string FormatCut(double value, std::string_view mask, std::size_t width)
{
    return Cut(FormatValue(value, mask), width);
}

std::string FormatCut(float value, std::string_view mask, std::size_t width)
{
    return Cut(FormatValue(value, mask), width);
}

} // namespace Traces
