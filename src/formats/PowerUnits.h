// Levels and their units: the decibel helpers and the ladders that choose a unit for a power. The
// ladders differ from each other on purpose; each serves the views named with it.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace Traces {

/// Decimal logarithm as the instruments' software takes it: ln x / 2.30258509299405; of exactly 0 it
/// is 0.
inline double Log10(double x)
{
    return x == 0 ? 0 : std::log(x) / 2.30258509299405;
}

/// A power with the unit that fits it.
struct PowerInUnit {
    double Value = 0;
    std::string_view Unit;
};

/// A level in dBm as watts in the fitting unit, "W" down to "pW".
PowerInUnit DbmToWattsUnit(double level);

/// A level in dBm as masked text: through "#0.00" in dBm, or in watts with three significant places
/// behind the point and the unit. EV-DO views and summary.
std::string DbmToWattsRounded(double level, bool inWatts);

/// Ladder of the power views. Replaces the level in dBm by the power P in watts, and sets
/// LibraryValues' ScaledPower and PowerUnit; below 1E-15 W both keep what they held.
void DbmToPowerScale(double& level);

/// Ladder of the CDMA view, from a level in dBm to a masked text. The units don't fit the power's own
/// scale; operators' records compare these texts, so they stay as they are.
std::string CDMALevelWattsText(double level);

/// A count on an axis that is linear within each decade: 0 below 1, 1 at 1, 2 at 10, up to 5 from
/// 10000 on. T1/E1 histogram.
float DecadeScale(float x);

/// The low 6 or 7 bits of a value in reverse order, the others dropped. Walsh codes of the CDMA view.
std::int16_t BitReverse6(std::int16_t value);
std::int16_t BitReverse7(std::int16_t value);

} // namespace Traces
