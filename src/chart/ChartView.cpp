#include "chart/ChartView.h"

#include "control/Control.h"
#include "formats/HostFault.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr int Divisions = 10;

/// The places of grid lines from one end to the other, upwards or downwards. Rounding decides whether the
/// last one is drawn.
template <class Draw>
void ForEachDivision(float from, float to, Draw draw)
{
    const float step = (to - from) / Divisions;
    float place = from;
    for (int line = 0; line <= Divisions && (from < to ? place <= to : place >= to); ++line, place += step)
        draw(place);
}

void DrawCurve(const TraceSlot& slot, ChartSurface& box, Colour colour)
{
    for (std::size_t i = 1; static_cast<int>(i) < slot.Length; ++i) {
        CheckCurvePoint(slot, i - 1);
        CheckCurvePoint(slot, i);
        box.Line(slot.X[i - 1], slot.Y[i - 1], slot.X[i], slot.Y[i], colour);
    }
}

Colour MarkerColour(const Control& control, const MarkerSet& markers, int marker)
{
    if (marker == markers.DraggedMarker)
        return RGB(255, 150, 150);
    // The highlight follows the CDMA family's selection in every family.
    if (marker == control.CDMAMarkers.SelectedMarker)
        return RGB(255, 185, 185);
    return RGB(180, 255, 255);
}

} // namespace

void BeginView(ChartSurface& holder, ChartSurface& box)
{
    holder.AutoRedraw = true;
    box.AutoRedraw = true;
    box.DrawStyle = LineStyle::Solid; // a drag leaves it dashed
    box.Cls();
    holder.Cls();
    box.Refresh();
}

void EndView(ChartSurface& holder, ChartSurface& box)
{
    holder.AutoRedraw = false;
    box.AutoRedraw = false;
}

void ScaleBox(ChartSurface& box, const ChartWindow& window)
{
    box.ScaleWidth = static_cast<float>(static_cast<double>(window.Xmax - window.Xmin) * ChartSliver);
    box.ScaleLeft = window.Xmin;
    box.ScaleHeight = -(window.Ymax - window.Ymin);
    box.ScaleTop = window.Ymax;
}

void CheckCurvePoint(const TraceSlot& slot, std::size_t point)
{
    if (!std::isfinite(slot.X[point]) || !std::isfinite(slot.Y[point]))
        throw HostFault(FaultKind::Overflow, "the curve has a point that is no number");
}

void DrawCurves(const Control& control, ChartSurface& box, std::size_t first)
{
    box.DrawStyle = LineStyle::Solid;
    for (std::size_t t = first; t < LiveSlots; ++t)
        DrawCurve(control.TraceSlots[t], box, control.TraceColors[t]);
}

void DrawYellowCurve(const TraceSlot& curve, ChartSurface& box)
{
    box.DrawStyle = LineStyle::Solid;
    DrawCurve(curve, box, Yellow);
}

void DrawYellowCurves(const Control& control, ChartSurface& box)
{
    for (std::size_t t = 0; t < LiveSlots; ++t)
        DrawYellowCurve(control.TraceSlots[t], box);
}

void DrawGraticule(const Control& control, ChartSurface& box, const ChartWindow& window)
{
    const float bottom = box.ScaleTop + box.ScaleHeight;
    const float right = box.ScaleLeft + box.ScaleWidth;
    box.DrawStyle = LineStyle::Dotted;
    ForEachDivision(window.Xmin, window.Xmax,
                    [&](float x) { box.Line(x, box.ScaleTop, x, bottom, control.GridColor); });
    ForEachDivision(window.Ymin, window.Ymax,
                    [&](float y) { box.Line(box.ScaleLeft, y, right, y, control.GridColor); });
}

void DrawMarkerLines(Control& control, ChartSurface& box, MarkerSet& markers)
{
    const TraceSlot& slot = control.TraceSlots[0];
    const auto last = static_cast<std::int16_t>(std::max<std::size_t>(slot.X.size(), 1) - 1);
    box.DrawStyle = LineStyle::Dashed;
    for (std::size_t i = 0; i < MarkerCount; ++i) {
        markers.MarkerIndex[i] = std::clamp<std::int16_t>(markers.MarkerIndex[i], 0, last);
        if (!markers.MarkerOn[i] || slot.X.empty())
            continue;
        const int marker = static_cast<int>(i);
        const float x = marker == markers.DraggedMarker
                            ? markers.MarkerX[i]
                            : slot.X[static_cast<std::size_t>(markers.MarkerIndex[i])];
        box.Line(x, box.ScaleTop, x, box.ScaleTop + box.ScaleHeight, MarkerColour(control, markers, marker));
    }
    box.DrawStyle = LineStyle::Solid;
}

bool DrawChart(Control& control, ChartSurface& box, MarkerSet& markers)
{
    const ChartWindow window = ChooseWindow(control);
    if (window.Xmin == window.Xmax || window.Ymin == window.Ymax)
        return false;
    ScaleBox(box, window);
    DrawCurves(control, box);
    DrawGraticule(control, box, window);
    DrawMarkerLines(control, box, markers);
    return true;
}

} // namespace Traces
