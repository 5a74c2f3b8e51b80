#include "chart/Markers.h"

#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"

#include <algorithm>

namespace Traces {

namespace {

void ClearMarkers(Control& control, MarkerSet& markers)
{
    markers.MarkerOn.fill(false);
    control.DisplayMarkerValues = false;
    RedrawTrace(control);
}

void SetMarkerFlag(Control& control, MarkerSet& markers, std::int16_t index, bool value)
{
    if (index < 0 || index > MarkerItem::Last)
        return;
    if (index < static_cast<std::int16_t>(MarkerCount)) {
        markers.MarkerOn[static_cast<std::size_t>(index)] = value;
        control.DisplayMarkerValues = true;
        const LifeWatch watch(control);
        if (control.Events != nullptr)
            control.Events->MarkerChanged(index, value);
        if (!watch.Gone())
            RedrawTrace(control);
    } else if (index == MarkerItem::ClearAll) {
        ClearMarkers(control, markers);
    } else if (index == MarkerItem::ShowValues) {
        control.DisplayMarkerValues = !control.DisplayMarkerValues;
        RedrawTrace(control);
    } else {
        throw HostFault(FaultKind::Range, "the place of a separator is no marker");
    }
}

/// The row that tells these markers' texts, null where their X does. A trace that was refused leaves its mode
/// in the header, but the markers are those of the one on show.
const ModeRow* TextRow(const Control& control, const MarkerSet& markers)
{
    const ModeRow* row = control.Families.FindMode(control.Header.Mode);
    const bool tells = row != nullptr && row->MarkerText != nullptr && row->Markers != nullptr;
    return tells && &(control.*row->Markers) == &markers ? row : nullptr;
}

std::string TextOfMarker(Control& control, const MarkerSet& markers, std::size_t marker)
{
    const ModeRow* row = TextRow(control, markers);
    return row != nullptr ? row->MarkerText(control, marker) : FormatValue(markers.MarkerX[marker], "#0.000");
}

} // namespace

MarkerSet* FamilyMarkers(Control& control)
{
    const ModeRow* row = CurrentRow(control);
    return row != nullptr && row->Markers != nullptr ? &(control.*row->Markers) : nullptr;
}

void SetMarkerState(Control& control, std::int16_t index, bool value)
{
    if (MarkerSet* markers = FamilyMarkers(control))
        SetMarkerFlag(control, *markers, index, value);
}

bool MarkerState(const Control& control, std::int16_t index)
{
    if (index < 0 || index >= static_cast<std::int16_t>(MarkerCount) || control.CurrentMode > TraceMode::GSM)
        return false;
    const ModeRow* row = CurrentRow(control);
    if (row == nullptr || row->Markers == nullptr)
        return false;
    const MarkerSet& markers = control.*row->Markers;
    const bool one = control.CurrentMode == TraceMode::Spectrogram;
    return markers.MarkerOn[one ? 0 : static_cast<std::size_t>(index)];
}

void MarkerAtX(Control& control, MarkerSet& markers, std::size_t marker)
{
    const TraceSlot& slot = control.TraceSlots[0];
    const auto end = slot.X.begin() + static_cast<std::ptrdiff_t>(UsedPoints(slot));
    const float x = markers.MarkerX[marker];
    const auto right = std::find_if(slot.X.begin(), end, [&](float each) { return each > x; });
    if (right == end)
        return;
    markers.MarkerIndex[marker] = static_cast<std::int16_t>(right - slot.X.begin());
    markers.MarkerText[marker] = TextOfMarker(control, markers, marker);
}

void StepMarker(Control& control, MarkerSet& markers, int keyCode)
{
    const std::int16_t selected = markers.SelectedMarker;
    if ((keyCode != KeyCodes::Left && keyCode != KeyCodes::Right) || selected < 0 ||
        selected >= static_cast<std::int16_t>(MarkerCount))
        return;
    const auto marker = static_cast<std::size_t>(selected);
    if (!markers.MarkerOn[marker])
        return;
    // A step past the curve's ends is taken back by the redraw, which clamps every marker.
    std::int16_t& index = markers.MarkerIndex[marker];
    index = static_cast<std::int16_t>(index + (keyCode == KeyCodes::Left ? -1 : 1));
    const TraceSlot& slot = control.TraceSlots[0];
    if (const std::size_t points = UsedPoints(slot); points > 0 && TextRow(control, markers) == nullptr)
        markers.MarkerX[marker] =
            slot.X[std::min(static_cast<std::size_t>(std::max<std::int16_t>(index, 0)), points - 1)];
    markers.MarkerText[marker] = TextOfMarker(control, markers, marker);
    RedrawTrace(control);
}

void DrawMarkerReadouts(MarkerSet& markers)
{
    constexpr int left = 4;
    constexpr int right = 280;
    constexpr struct {
        std::string_view Label;
        std::size_t Marker;
        int X, Y;
    } rows[] = {{"M1: ", 0, left, 424},  {"M3: ", 2, left, 440},  {"M5: ", 4, left, 456},
                {"M2: ", 1, right, 424}, {"M4: ", 3, right, 440}, {"M6: ", 5, right, 456}};
    ChartSurface& holder = *markers.Holder;
    SetBoxFont(holder, 10, false);
    holder.FillBox(0, 420, 640, 480, holder.BackColor);
    for (const auto& row : rows) {
        holder.CurrentX = static_cast<float>(row.X);
        holder.CurrentY = static_cast<float>(row.Y);
        holder.Font.Bold = markers.SelectedMarker == static_cast<std::int16_t>(row.Marker);
        holder.Print(std::string(row.Label) + markers.MarkerText[row.Marker]);
    }
    holder.Font.Bold = false;
}

} // namespace Traces
