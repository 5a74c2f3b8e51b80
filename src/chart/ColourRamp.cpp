#include "chart/ColourRamp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Traces {

namespace {

/// A colour of CIELAB, which measures distances roughly as the eye does.
struct Lab {
    double L, A, B;
};

using Linear = std::array<double, 3>; ///< red, green, blue, before the screen's curve

Linear LinearOf(const Lab& lab)
{
    const auto cubed = [](double f) {
        constexpr double knee = 6.0 / 29;
        return f > knee ? f * f * f : 3 * knee * knee * (f - 4.0 / 29);
    };
    const double f = (lab.L + 16) / 116;
    // White of daylight, D65.
    const double x = 0.95047 * cubed(f + lab.A / 500);
    const double y = cubed(f);
    const double z = 1.08883 * cubed(f - lab.B / 200);
    return {3.2404542 * x - 1.5371385 * y - 0.4985314 * z, -0.9692660 * x + 1.8760108 * y + 0.0415560 * z,
            0.0556434 * x - 0.2040259 * y + 1.0572252 * z};
}

bool IsOnScreen(const Linear& linear)
{
    return std::ranges::all_of(linear, [](double channel) { return channel >= 0 && channel <= 1; });
}

Colour ScreenColour(const Lab& lab)
{
    const auto channel = [](double linear) {
        const double value = linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
        return static_cast<int>(std::lround(255 * std::clamp(value, 0.0, 1.0)));
    };
    const Linear linear = LinearOf(lab);
    return RGB(channel(linear[0]), channel(linear[1]), channel(linear[2]));
}

/// The way through the colours, 0 to 1: lightness grows evenly while the hue turns from violet over red to
/// yellow, as strong as a screen shows it.
Lab OnTheWay(double t)
{
    const double lightness = 7 + 86 * t;
    const double hue = (290 + 170 * t) * std::numbers::pi / 180;
    const auto at = [&](double chroma) {
        return Lab{lightness, chroma * std::cos(hue), chroma * std::sin(hue)};
    };
    constexpr int halvings = 12;
    double chroma = 0;
    double step = 30 + 40 * std::sin(std::numbers::pi * t);
    if (IsOnScreen(LinearOf(at(step))))
        return at(step);
    for (int i = 0; i < halvings; ++i) {
        step /= 2;
        if (IsOnScreen(LinearOf(at(chroma + step))))
            chroma += step;
    }
    return at(chroma);
}

std::vector<Colour> MakeRamp()
{
    constexpr std::size_t colours = 128;
    constexpr std::size_t places = 2048;
    std::vector<Lab> way;
    std::vector<double> length{0};
    for (std::size_t i = 0; i < places; ++i) {
        way.push_back(OnTheWay(static_cast<double>(i) / (places - 1)));
        if (i > 0) {
            const Lab& a = way[i - 1];
            const Lab& b = way[i];
            length.push_back(length.back() + std::hypot(b.L - a.L, b.A - a.A, b.B - a.B));
        }
    }
    std::vector<Colour> ramp;
    for (std::size_t i = 0; i < colours; ++i) {
        const double wanted = length.back() * static_cast<double>(i) / (colours - 1);
        const auto place = std::ranges::lower_bound(length, wanted) - length.begin();
        ramp.push_back(ScreenColour(way[static_cast<std::size_t>(place)]));
    }
    return ramp;
}

} // namespace

const std::vector<Colour>& ColourRamp()
{
    static const std::vector<Colour> ramp = MakeRamp();
    return ramp;
}

} // namespace Traces
