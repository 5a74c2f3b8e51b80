#include "modes/cdma/CDMAView.h"

#include "chart/ChartView.h"
#include "chart/Markers.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/cdma/CDMAChart.h"
#include "modes/cdma/CDMAPanels.h"
#include "modes/cdma/CDMASummary.h"
#include "modes/cdma/CDMATrace.h"
#include "modes/cdma/CodeChart.h"

namespace Traces {

namespace {

constexpr int TextSize = 10;

void DrawHead(Control& control)
{
    const CDMARecord& record = control.CDMA;
    ChartSurface& holder = control.CDMAHolder;
    const ChartSurface& chart = control.GSMBox; // whose place the two families have always shared
    const std::string title = "CDMA-" + TitleOfPath(control.TraceName);
    const auto put = [&](const std::string& text, int x, int y) { DrawTextAt(holder, text, x, y, TextSize); };
    DrawCentred(holder, title, WholeUnits(chart.Left + chart.Width / 2), 4, TextSize);
    put("Std=" + record.SignalStandard, WholeUnits(control.CDMABox.Left), 20);
    put("Channel=" + NumberOrNA(record.Channel), 400, 20);
}

void DrawLeftColumn(Control& control)
{
    CDMARecord& record = control.CDMA;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.CDMAHolder, text, x, y, TextSize);
    };
    if (record.RefLevelOffsetCalStatus.empty())
        record.RefLevelOffsetCalStatus = "0";
    const bool cable = ValueOf(record.RefLevelOffsetCalStatus) == 1;
    put("Center", 2, 20);
    put(FormatValue(record.CenterFrequency, "#0.000") + "MHz", 2, 40);
    put(FormatValue(record.ScaleDivision / 1000, "#0 dB/Div"), 2, 60);
    put("Pwr Offset", 2, 200);
    put(cable ? "Cable" : FormatValue(record.PowerOffset, "#0.0 dB"), 12, 216);
    put("PN Increment", 2, 260);
    put(NumberText(record.PNIncrement), 12, 276);
    put("PN Search", 2, 292);
    put(record.SearchMode, 12, 308);
    put("Trig " + TriggerEdge.Text(record.StatusByte1), 2, 328);
}

/// A bar a code, in the colour of its channel's type; the rest above it is wiped, so that a later slot's bar
/// hides a former one's.
void DrawCodes(Control& control, const ChartWindow& window)
{
    const CDMARecord& record = control.CDMA;
    ChartSurface& box = control.CDMABox;
    const float half = HalfBarWidth(control, box);
    for (std::size_t t = 0; t < LiveSlots; ++t) {
        const TraceSlot& slot = control.TraceSlots[t];
        for (std::size_t i = 0; slot.Length > 1 && i < slot.X.size(); ++i) {
            const auto code =
                static_cast<std::size_t>(WalshDisplayIndex(control, static_cast<std::int16_t>(i)));
            if (static_cast<int>(i) >= slot.Length || code >= CDMARecord::Codes)
                break;
            CheckCurvePoint(slot, i);
            DrawCodeBar(box, {slot.X[i], slot.Y[i]}, half, window, record.CDPChannelType[code]);
            if (record.CDPLink[code] == 0)
                box.Line(slot.X[i] - half, window.Ymin, slot.X[i] - half, window.Ymax, Black);
        }
    }
}

bool DrawChartBox(Control& control)
{
    ChartSurface& box = control.CDMABox;
    box.ForeColor = Black;
    SetBoxFont(box, TextSize, false);
    const ChartWindow window = ChooseWindow(control);
    if (!ScaleCodeChart(control, box, window))
        return false;
    if (control.CDMAViewMode == CodeView::Spectrum)
        DrawYellowCurves(control, box);
    else
        DrawCodes(control, window);
    DrawLevelLines(control, box, window);
    return true;
}

void DrawMarkers(Control& control)
{
    // The texts come before the lines, which clamp the markers to the chart: a marker that a key has moved
    // past the last code tells the place that it was moved to, until the next redraw.
    MarkerSet& markers = control.CDMAMarkers;
    for (std::size_t k = 0; k < MarkerCount; ++k)
        markers.MarkerText[k] = CDMAMarkerText(control, k);
    if (control.ChartHasMarkers)
        DrawMarkerLines(control, control.CDMABox, markers);
    if (control.DisplayMarkerValues)
        DrawMarkerReadouts(markers);
}

} // namespace

void DrawCDMATrace(Control& control)
{
    const CDMARecord& record = control.CDMA;
    ChartSurface& holder = control.CDMAHolder;
    ChartSurface& box = control.CDMABox;
    BeginView(holder, box);
    control.ParamBox.Visible = false;
    if (!IsGoodCDMAMeasurement(control)) {
        DrawBadMeasurement(box, record.SignalStatus, record.MeasurementStatus);
        return EndView(holder, box);
    }
    holder.ForeColor = Black;
    SetBoxFont(holder, TextSize, false);
    DrawHead(control);
    DrawLeftColumn(control);
    DrawCDMAPanels(control);
    if (!DrawChartBox(control))
        return;
    DrawMarkers(control);
    if (control.ShowParams)
        DrawCDMASummary(control);
    EndView(holder, box);
}

} // namespace Traces
