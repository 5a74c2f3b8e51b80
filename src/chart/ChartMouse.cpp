#include "chart/ChartMouse.h"

#include "chart/Markers.h"
#include "control/Control.h"
#include "control/PlotEvents.h"
#include "formats/FormatValue.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace Traces {

namespace {

constexpr auto ChartBoxes = std::to_array<ChartBox>({
    {&ChildControls::VNABox, &Control::VNAMarkers, &ChildControls::VNACoords, "#0.000", "#0.000", true},
    {&ChildControls::SPABox, &Control::SPAMarkers, &ChildControls::SPACoords, "#0.000", "#0.000", true},
    {&ChildControls::CSBox, nullptr, &ChildControls::CSCoords, "", "", false},
    {&ChildControls::SpectroBox, &Control::SpectroMarkers, &ChildControls::SpectroCoords, "#0.000", "#0.0",
     false},
    {&ChildControls::E1T1Box, &Control::E1T1Markers, &ChildControls::E1T1Coords, "#0.000", "#0.000", true},
    {&ChildControls::GSMBox, &Control::GSMMarkers, &ChildControls::GSMCoords, "#0.000", "#0.000", true},
    {&ChildControls::CDMABox, &Control::CDMAMarkers, &ChildControls::CDMACoords, "#0.000", "#0.000", true,
     true},
    {&ChildControls::EvDOTopBox, &Control::EvDOMarkers, &ChildControls::EvDOCoords, "#0.000", "#0", false,
     true},
    {&ChildControls::EvDOSubBox, &Control::EvDOMarkers, &ChildControls::EvDOSubCoords, "#0.000", "#0", false,
     true},
    {&ChildControls::idenbox, nullptr, &ChildControls::iDenCoords, "#0.0", "#0.0", false},
});

MarkerSet* MarkersOf(Control& control, const ChartBox& chart)
{
    return chart.Markers != nullptr ? &(control.*chart.Markers) : nullptr;
}

/// The first marker that the box shows within 3 pixels of a place.
std::optional<std::int16_t> MarkerNear(const Control& control, const ChartBox& chart, float x)
{
    constexpr float reach = 3;
    if (chart.Markers == nullptr)
        return std::nullopt;
    const ChartSurface& box = control.*chart.Box;
    const MarkerSet& markers = control.*chart.Markers;
    const TraceSlot& slot = control.TraceSlots[0];
    const ModeRow* row = CurrentRow(control);
    const auto standsIn = row != nullptr ? row->MarkerStandsIn : nullptr;
    for (std::size_t i = 0; i < MarkerCount; ++i) {
        const auto point = static_cast<std::size_t>(markers.MarkerIndex[i]);
        if (standsIn != nullptr && !standsIn(control, box, i))
            continue;
        if (!markers.MarkerOn[i] || markers.MarkerIndex[i] < 0 || point >= slot.X.size())
            continue;
        if (std::abs((slot.X[point] - x) * box.Width) < reach * std::abs(box.ScaleWidth))
            return static_cast<std::int16_t>(i);
    }
    return std::nullopt;
}

void BeginOverlay(ChartSurface& box)
{
    box.AutoRedraw = false;
    box.DrawStyle = LineStyle::Dashed;
}

/// Gives a label the size of its caption, in the units of the box that it lies in.
void FitToCaption(ChartSurface& box, Label& label)
{
    label.Font.Size = Font{}.Size * box.Screen().FontScaleFactor;
    const Font kept = std::exchange(box.Font, label.Font);
    label.Width = box.TextWidth(label.Caption);
    label.Height = box.TextHeight(label.Caption);
    box.Font = kept;
}

/// The label follows the mouse 2 pixels off, on the side where there is room.
void MoveCoords(Control& control, const ChartBox& chart, float x, float y)
{
    ChartSurface& box = control.*chart.Box;
    Label& label = control.*chart.Coords;
    const ModeRow* row = CurrentRow(control);
    label.Caption = row != nullptr && row->CoordsText != nullptr
                        ? row->CoordsText(control, x, y)
                        : FormatValue(x, chart.MaskX) + ", " + FormatValue(y, chart.MaskY);
    FitToCaption(box, label);
    const float gap = box.Width > 0 ? 2 * box.ScaleWidth / box.Width : 0;
    const bool nearRight = box.ScaleLeft + box.ScaleWidth - label.Width < x;
    label.Left = nearRight ? x - label.Width - gap : x + gap;
    label.Top = box.ScaleTop - label.Height < y ? y - label.Height : y + label.Height;
}

void DragMarker(Control& control, const ChartBox& chart, float x)
{
    ChartSurface& box = control.*chart.Box;
    MarkerSet& markers = control.*chart.Markers;
    const auto marker = static_cast<std::size_t>(markers.DraggedMarker);
    box.Cls();
    markers.DragMoved = true;
    markers.MarkerX[marker] = x;
    MarkerAtX(control, markers, marker);
    if (control.DisplayMarkerValues) {
        markers.Holder->EraseOverlay();
        DrawMarkerReadouts(markers);
    }
    box.Line(x, box.ScaleTop, x, box.ScaleTop + box.ScaleHeight, RGB(255, 200, 200));
}

void DropMarker(Control& control, const ChartBox& chart)
{
    ChartSurface& box = control.*chart.Box;
    MarkerSet& markers = control.*chart.Markers;
    const auto marker = static_cast<std::size_t>(markers.DraggedMarker);
    const TraceSlot& slot = control.TraceSlots[0];
    const auto end = slot.X.begin() + static_cast<std::ptrdiff_t>(UsedPoints(slot));
    const auto right =
        std::find_if(slot.X.begin(), end, [&](float each) { return each > markers.MarkerX[marker]; });
    // Right of the last point the marker stays, and so it does without a move: then its X is that of an
    // older drag. On a point exactly it goes to the next one.
    if (right != end && markers.DragMoved)
        markers.MarkerIndex[marker] = static_cast<std::int16_t>(right - slot.X.begin());
    markers.DraggedMarker = -1;
    box.Cls();
    box.DrawStyle = LineStyle::Solid;
    box.AutoRedraw = true;
    RedrawTrace(control);
}

void ZoomIn(Control& control, ChartSurface& box, float x, float y)
{
    control.ZoomX2 = x;
    control.ZoomY2 = y;
    if (control.ZoomY2 < control.ZoomY1)
        std::swap(control.ZoomY1, control.ZoomY2);
    if (control.ZoomX2 < control.ZoomX1)
        std::swap(control.ZoomX1, control.ZoomX2);
    box.AutoRedraw = true;
    RedrawTrace(control);
}

} // namespace

const ChartBox* FindChartBox(const Control& control, const ChartSurface& surface)
{
    const auto found = std::find_if(ChartBoxes.begin(), ChartBoxes.end(),
                                    [&](const ChartBox& chart) { return &(control.*chart.Box) == &surface; });
    return found == ChartBoxes.end() ? nullptr : &*found;
}

const ChartBox* ShownChartBox(const Control& control)
{
    const auto found = std::find_if(ChartBoxes.begin(), ChartBoxes.end(),
                                    [&](const ChartBox& chart) { return (control.*chart.Box).IsShown(); });
    return found == ChartBoxes.end() ? nullptr : &*found;
}

void ToggleZoomMode(Control& control, const ChartBox& chart)
{
    ChartSurface& box = control.*chart.Box;
    control.ZoomActive = !control.ZoomActive;
    if (control.ZoomActive) {
        BeginOverlay(box);
        box.MousePointer = MousePointers::Cross;
    } else {
        box.MousePointer = MousePointers::Arrow;
    }
}

void ChartMouseDown(Control& control, const ChartBox& chart, float x, float y)
{
    ChartSurface& box = control.*chart.Box;
    MarkerSet* markers = MarkersOf(control, chart);
    if (control.ZoomActive && markers != nullptr) {
        BeginOverlay(box);
    } else if (const auto near = MarkerNear(control, chart, x)) {
        markers->SelectedMarker = markers->DraggedMarker = *near;
        markers->DragMoved = false;
        BeginOverlay(box);
    } else {
        (control.*chart.Coords).Visible = true;
        box.MousePointer = MousePointers::Cross;
        if (markers != nullptr)
            markers->SelectedMarker = markers->DraggedMarker = -1;
        if (const ModeRow* row = CurrentRow(control); row != nullptr && row->Press != nullptr)
            row->Press(control, x, y);
    }
    control.ZoomX1 = x;
    control.ZoomY1 = y;
}

void ChartMouseMove(Control& control, const ChartBox& chart, int button, float x, float y)
{
    ChartSurface& box = control.*chart.Box;
    const MarkerSet* markers = MarkersOf(control, chart);
    const bool left = (button & MouseButton::Left) != 0;
    if (left && markers != nullptr && markers->DraggedMarker >= 0) {
        DragMarker(control, chart, x);
    } else if (left && markers != nullptr && control.ZoomActive) {
        box.Cls();
        box.Box(control.ZoomX1, control.ZoomY1, x, y, control.GridColor);
    }
    MoveCoords(control, chart, x, y);
    if (button == 0 && !control.ZoomActive)
        box.MousePointer = MarkerNear(control, chart, x) ? MousePointers::SizeWE : MousePointers::Arrow;
    control.Platform.Repaint();
}

void ChartMouseUp(Control& control, const ChartBox& chart, int button, float x, float y)
{
    ChartSurface& box = control.*chart.Box;
    const MarkerSet* markers = MarkersOf(control, chart);
    const bool zooms = control.ZoomActive && markers != nullptr;
    if ((button & MouseButton::Left) != 0 && zooms && !box.AutoRedraw)
        ZoomIn(control, box, x, y);
    else if (markers != nullptr && markers->DraggedMarker >= 0)
        DropMarker(control, chart);
    box.MousePointer = zooms ? MousePointers::Cross : MousePointers::Arrow;
    (control.*chart.Coords).Visible = false;
    control.Platform.Repaint();
}

void UndoZoom(Control& control)
{
    control.ZoomActive = false;
    RedrawTrace(control);
}

void ZoomAboutMiddle(Control& control, float factor)
{
    const ChartBox* chart = ShownChartBox(control);
    if (chart == nullptr || !chart->Zooms)
        return;
    const ChartSurface& box = control.*chart->Box;
    const float width = box.ScaleWidth, height = std::abs(box.ScaleHeight);
    const float middleX = box.ScaleLeft + width / 2, middleY = box.ScaleTop + box.ScaleHeight / 2;
    control.ZoomX1 = middleX - width * factor / 2;
    control.ZoomX2 = middleX + width * factor / 2;
    control.ZoomY1 = middleY - height * factor / 2;
    control.ZoomY2 = middleY + height * factor / 2;
    control.ZoomActive = true;
    RedrawTrace(control);
}

void ToggleAutoScale(Control& control)
{
    control.AutoScaleY = !control.AutoScaleY;
    RedrawTrace(control);
}

} // namespace Traces
