#include "modes/power/PowerLadder.h"

#include "control/Control.h"
#include "formats/Decimal.h"
#include "formats/FormatValue.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

namespace Traces {

void PowerLadder(Control& control, double& level)
{
    const double watts = std::pow(10.0, level / 10 - 3);
    level = watts;
    const auto set = [&control](double value, std::string_view unit) {
        control.PowerLadderValue = value;
        control.PowerLadderUnit = unit;
    };
    if (watts >= 1)
        control.PowerLadderUnit = "W";
    else if (watts >= 1e-3)
        set(watts / 1e-3, "mW");
    else if (watts >= 1e-6)
        set(watts / 1e-6, "uW");
    else if (watts >= 1e-15) // smaller ones than a nanowatt have no rung of their own
        set(watts / 1e-9, "nW");
}

double WattsOfDbm(double level)
{
    const double watts = std::pow(10.0, level / 10 - 3);
    return std::isfinite(watts) ? watts : 0;
}

ScientificParts ScientificPartsOf(double value)
{
    constexpr int keptDigits = 3;
    constexpr int droppedDigits = ShownDigits<double> - keptDigits;
    const Decimal exact = NearestDecimal(value);
    const std::uint64_t unit = PowerOfTen(droppedDigits);
    std::uint64_t kept = (exact.Significand + unit / 2) / unit;
    auto exponent =
        static_cast<std::int32_t>(exact.Significand == 0 ? 0 : exact.Exponent + ShownDigits<double> - 1);
    if (kept == PowerOfTen(keptDigits)) {
        kept /= 10;
        ++exponent;
    }
    const double mantissa = static_cast<double>(kept) / 100;
    return {exact.Negative ? -mantissa : mantissa,
            (exponent < 0 ? "-" : "+") + FormatValue(std::abs(exponent), "00")};
}

} // namespace Traces
