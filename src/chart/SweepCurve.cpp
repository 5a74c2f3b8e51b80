#include "chart/SweepCurve.h"

#include "control/Control.h"
#include "formats/HostFault.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace Traces {

namespace {

/// Abscissa of a point, in single precision step by step. One point alone has none.
float SweepX(float start, float stop, std::int16_t points, std::size_t i)
{
    return (stop - start) / static_cast<float>(points - 1) * static_cast<float>(i) + start;
}

} // namespace

void FillSweepCurve(Control& control, float start, float stop, std::span<const float> values)
{
    const std::int16_t points = control.Header.DataPoints;
    SetSlotLength(control, 0, points);
    if (points == 1)
        throw HostFault(FaultKind::DivisionByZero,
                        "one data point has no frequency step, so there is no curve");
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        slot.X[i] = SweepX(start, stop, points, i);
        if (i >= values.size())
            throw HostFault(FaultKind::Range,
                            std::to_string(points) + " data points are more than the record holds");
        slot.Y[i] = values[i];
    }
}

void FillWhatFits(Control& control, float start, float stop, std::span<const float> values)
{
    const std::int16_t points = control.Header.DataPoints;
    TraceSlot& slot = control.TraceSlots[0];
    slot.Length = points;
    if (points < 1)
        return;
    SetSlotLength(control, 0, points);
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        const float x = points == 1 ? NAN : SweepX(start, stop, points, i);
        if (std::isfinite(x))
            slot.X[i] = x;
        if (i < values.size())
            slot.Y[i] = values[i];
    }
}

bool PlotCurve(Control& control, std::int16_t length, std::span<const float> x, std::span<const float> y)
{
    const auto index = static_cast<std::size_t>(control.SetIndex);
    TraceSlot& slot = control.TraceSlots[index];
    const std::size_t points = length < 1 ? 0 : static_cast<std::size_t>(length);
    if (points > 0)
        SetSlotLength(control, index, length);
    // What the arrays hold is taken over before one is found too short.
    std::copy_n(x.begin(), std::min(points, x.size()), slot.X.begin());
    std::copy_n(y.begin(), std::min({points, x.size(), y.size()}), slot.Y.begin());
    if (points == 0 || x.size() < points || y.size() < points) {
        slot.Length = 0;
        return false;
    }
    RedrawTrace(control);
    return true;
}

} // namespace Traces
