#include "chart/ChartWindow.h"

#include "control/Control.h"
#include "formats/HostFault.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Traces {

namespace {

constexpr auto LargestFloat = static_cast<double>(std::numeric_limits<float>::max());

/// Single precision, which ends at its largest value.
float Narrow(double value)
{
    return static_cast<float>(std::clamp(value, -LargestFloat, LargestFloat));
}

/// Width of a label step for a range of `whole` units of its decade. 8 and 10 divide by two, 9 doesn't:
/// charts have been labelled so all along.
float StepUnits(float whole)
{
    constexpr float units[] = {1, 0.2F, 0.25F, 0.5F, 0.5F, 1, 1, 1, 2, 1, 2, 2};
    return whole >= 1 && whole <= 11 ? units[static_cast<int>(whole)] : 1;
}

void Extend(float value, float& smallest, float& largest)
{
    if (value < smallest)
        smallest = value;
    if (value > largest)
        largest = value;
}

void CheckFinite(const ChartWindow& window)
{
    const double width = static_cast<double>(window.Xmax - window.Xmin) * ChartSliver;
    if (!(std::abs(width) <= LargestFloat) || !std::isfinite(window.Ymax - window.Ymin))
        throw HostFault(FaultKind::Overflow, "the curve has values that no axis holds");
}

} // namespace

bool TraceExtent(const TraceSlot& slot, ChartWindow& window)
{
    if (slot.X.empty()) {
        window = {};
        return false;
    }
    const auto used = std::min(slot.X.size(), static_cast<std::size_t>(std::max<int>(slot.Length, 1)));
    window = {slot.X[0], slot.X[0], slot.Y[0], slot.Y[0]};
    // By comparisons of our own: a host's curve can hold what is no number and has no order.
    for (std::size_t i = 1; i < used; ++i) {
        Extend(slot.X[i], window.Xmin, window.Xmax);
        Extend(slot.Y[i], window.Ymin, window.Ymax);
    }
    return window.Ymax > window.Ymin && window.Xmax > window.Xmin;
}

void NiceRange(float& ymin, float& ymax, float& step, bool round)
{
    double span = static_cast<double>(ymax - ymin);
    if (!(span > 0) || std::isinf(span)) {
        ymin = -1;
        ymax = 1;
        step = 2;
        return;
    }
    int decade = 0;
    for (; span < 1; ++decade)
        span *= 10;
    for (; span >= 10; --decade)
        span /= 10;
    const double p = std::pow(10.0, decade);
    // The products count in single precision, so that an end of 0.1 is 0.1 and not a little more.
    constexpr double almostOne = 0.9999999999;
    const double a = std::floor(static_cast<double>(Narrow(p * static_cast<double>(ymin))));
    const double b = std::floor(static_cast<double>(Narrow(p * static_cast<double>(ymax))) + almostOne);
    step = static_cast<float>(static_cast<double>(StepUnits(static_cast<float>(b - a))) / p);
    if (round) {
        ymin = Narrow(a / p);
        ymax = Narrow(b / p);
    }
}

void PadZoomRange(ChartWindow& zoom, float top, float bottom)
{
    constexpr float narrowest = 0.1F;
    const float limits = top - bottom;
    if (limits / 100 > zoom.Ymax - zoom.Ymin) {
        zoom.Ymin -= limits / 200;
        zoom.Ymax += limits / 200;
    }
    if (narrowest > zoom.Xmax - zoom.Xmin) {
        zoom.Xmin -= narrowest / 2;
        zoom.Xmax += narrowest / 2;
    }
}

ChartWindow UnzoomedWindow(const Control& control)
{
    ChartWindow window;
    const bool extends = TraceExtent(control.TraceSlots[0], window);
    CheckFinite(window);
    if (extends && (control.AutoScaleY || !(control.YScaleBottom < control.YScaleTop))) {
        float step = 0;
        NiceRange(window.Ymin, window.Ymax, step, control.AutoScaleY);
    } else {
        window.Ymax = control.YScaleTop;
        window.Ymin = control.YScaleBottom;
    }
    CheckFinite(window);
    return window;
}

ChartWindow ChooseWindow(const Control& control)
{
    if (!control.ZoomActive || !(control.ZoomX2 > control.ZoomX1))
        return UnzoomedWindow(control);
    ChartWindow window = {control.ZoomX1, control.ZoomX2, control.ZoomY1, control.ZoomY2};
    PadZoomRange(window, control.YScaleTop, control.YScaleBottom);
    CheckFinite(window);
    return window;
}

} // namespace Traces
