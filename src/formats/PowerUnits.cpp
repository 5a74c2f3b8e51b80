#include "formats/PowerUnits.h"

#include "formats/FormatValue.h"
#include "formats/LibraryValues.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Traces {

namespace {

std::int16_t ReverseLowBits(std::int16_t value, int count)
{
    unsigned reversed = 0;
    for (int bit = 0; bit < count; ++bit)
        reversed = (reversed << 1) | ((static_cast<unsigned>(value) >> bit) & 1U);
    return static_cast<std::int16_t>(reversed);
}

} // namespace

PowerInUnit DbmToWattsUnit(double level)
{
    const double watts = std::pow(10.0, level / 10 - 3);
    if (watts >= 1)
        return {watts, "W"};
    if (watts >= 1e-3)
        return {watts / 1e-3, "mW"};
    if (watts >= 1e-6)
        return {watts / 1e-6, "uW"};
    if (watts >= 1e-9)
        return {watts / 1e-9, "nW"};
    return {watts / 1e-12, "pW"};
}

std::string DbmToWattsRounded(double level, bool inWatts)
{
    if (!inWatts)
        return FormatValue(level, "#0.00");
    const auto [value, unit] = DbmToWattsUnit(level);
    const std::string_view mask = value < 10 ? "#0.000" : value < 100 ? "#0.00" : "#0.0";
    return FormatValue(value, mask).append(" ").append(unit);
}

void DbmToPowerScale(double& level)
{
    const double watts = std::pow(10.0, level / 10 - 3);
    level = watts;
    LibraryValues& library = Library();
    const auto set = [&library](double value, std::string_view unit) {
        library.ScaledPower = value;
        library.PowerUnit = unit;
    };
    if (watts >= 1)
        set(watts, "W");
    else if (watts >= 1e-3)
        set(watts / 1e-3, "mW");
    else if (watts >= 1e-6)
        set(watts / 1e-6, "uW");
    else if (watts >= 1e-15) // the views show everything smaller in nW, too
        set(watts / 1e-9, "nW");
}

std::string CDMALevelWattsText(double level)
{
    constexpr double largest = std::numeric_limits<float>::max();
    const auto power = static_cast<float>(std::min(std::pow(10.0, level / 10), largest));
    if (power < 5E-07F) {
        const float picowatts = power * 1e9F;
        return FormatValue(picowatts, picowatts < 100 ? "#0.00 pW" : "#0.0 pW");
    }
    if (power < 1E-05F)
        return FormatValue(power * 1e6F, "#0.00 uW");
    if (power < 0.01F)
        return FormatValue(power * 1000, "#0.00 mW");
    if (power < 10)
        return FormatValue(power, "#0.000 W");
    return FormatValue(power / 1000, "#0.000 W");
}

float DecadeScale(float x)
{
    if (x >= 10000)
        return 5;
    if (x >= 1000)
        return 4 + (x - 1000) / 9000;
    if (x >= 100)
        return 3 + (x - 100) / 900;
    if (x >= 10)
        return 2 + (x - 10) / 90;
    if (x >= 1)
        return 1 + (x - 1) / 9;
    return 0;
}

std::int16_t BitReverse6(std::int16_t value)
{
    return ReverseLowBits(value, 6);
}

std::int16_t BitReverse7(std::int16_t value)
{
    return ReverseLowBits(value, 7);
}

} // namespace Traces
