#include "chart/SweepCurve.h"

#include "control/Control.h"
#include "formats/HostFault.h"

#include <algorithm>
#include <cmath>

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
        throw HostFault(FaultKind::DivisionByZero, "a sweep of one point has no frequency step");
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        slot.X[i] = SweepX(start, stop, points, i);
        if (i >= values.size())
            throw HostFault(FaultKind::Range, "the sweep has more points than its record holds");
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
    const auto slot = static_cast<std::size_t>(control.SetIndex);
    const auto points = static_cast<std::size_t>(std::max<std::int16_t>(length, 0));
    if (length < 1 || x.size() < points || y.size() < points) {
        control.TraceSlots[slot].Length = 0;
        return false;
    }
    SetSlotLength(control, slot, length);
    std::copy_n(x.begin(), points, control.TraceSlots[slot].X.begin());
    std::copy_n(y.begin(), points, control.TraceSlots[slot].Y.begin());
    RedrawTrace(control);
    return true;
}

} // namespace Traces
