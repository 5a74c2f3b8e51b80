#include "modes/evdo/EvDOView.h"

#include "chart/ChartView.h"
#include "chart/Markers.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/cdma/CodeChart.h"
#include "modes/evdo/EvDOChart.h"
#include "modes/evdo/EvDOPanels.h"
#include "modes/evdo/EvDOSummary.h"
#include "modes/evdo/EvDOTrace.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr int TextSize = 10;

struct Rectangle {
    float Left, Top, Width, Height;
};

/// Where the charts of the pages stand, in the holder's units.
constexpr Rectangle WholeChart = {100, 42, 440, 310};
constexpr Rectangle ChartOfI = {100, 42, 215, 310}, ChartOfQ = {325, 42, 215, 310};
constexpr Rectangle SpectrumChart = {100, 42, 440, 130}, TimeChart = {100, 196, 440, 136};

bool Has(const EvDORecord& record, std::uint8_t bit)
{
    return (record.StatusByte1 & bit) != 0;
}

void Place(ChartSurface& box, const Rectangle& place)
{
    box.Left = place.Left;
    box.Top = place.Top;
    box.Width = place.Width;
    box.Height = place.Height;
    box.Visible = true;
}

std::string Title(const Control& control)
{
    std::string title = "EvDO-" + TitleOfPath(control.TraceName);
    if (control.EvDOViewMode == CodeView::Spectrum)
        return title + (Has(control.EvDO, EvDOStatus::Active) ? "(Active)" : "(Idle)");
    if (control.EvDOViewMode == CodeView::OverTheAir)
        return title;
    return title + (Has(control.EvDO, EvDOStatus::MAC) ? "(MAC)" : "(Data)");
}

std::string SearchText(const EvDORecord& record)
{
    constexpr std::uint8_t gpsManual = 1, externalManual = 3;
    if (record.SearchMode == gpsManual)
        return "GPS " + NumberText(record.PNOffset0);
    if (record.SearchMode == externalManual)
        return "Ext " + NumberText(record.PNOffset0);
    return TriggerMode.Text(record.SearchMode);
}

void DrawHead(Control& control)
{
    EvDORecord& record = control.EvDO;
    ChartSurface& holder = control.EvDOHolder;
    const auto put = [&](const std::string& text, int x, int y) { DrawTextAt(holder, text, x, y, TextSize); };
    const std::string title = Title(control);
    const ChartSurface& titled = control.GSMBox; // over whose place CDMA's titles stand, too
    DrawCentred(holder, title, WholeUnits(titled.Left + titled.Width / 2), 4, TextSize);
    put("Std=" + record.SignalStandard, WholeUnits(WholeChart.Left), 20);
    put("Channel=" + NumberOrNA(record.Channel), 400, 20);
    if (record.RefLevelOffsetCalStatus.empty())
        record.RefLevelOffsetCalStatus = "0";
    const bool cable = ValueOf(record.RefLevelOffsetCalStatus) == 1;
    put("Center", 2, 20);
    put(FormatValue(record.CenterFrequency, "#0.000") + "MHz", 2, 60);
    put("Scale=", 2, 90);
    // The record's division is in dB already; the page has always divided it once more.
    put(FormatValue(record.ScaleDivision / 1000, "#0 dB/Div"), 2, 110);
    put("Pwr Offset", 2, 200);
    put(cable ? "Cable" : FormatValue(record.PowerOffset, "#0.0 dB"), 12, 216);
    put("PN Search", 2, 292);
    put(SearchText(record), 12, 308);
    put("Trig " + TriggerEdge.Text(record.StatusByte1), 2, 328);
}

/// The markers that stand on this box's codes; the others have a box of their own.
void DrawBoxMarkers(Control& control, ChartSurface& box)
{
    constexpr std::int16_t lastDataCode = EvDORecord::DataCodes - 1;
    MarkerSet shown = control.EvDOMarkers;
    for (std::size_t k = 0; k < MarkerCount; ++k) {
        if (!shown.MarkerOnAlt[k])
            shown.MarkerIndex[k] = std::min(shown.MarkerIndex[k], lastDataCode);
        shown.MarkerOn[k] = shown.MarkerOn[k] && EvDOMarkerStandsIn(control, box, k);
    }
    DrawMarkerLines(control, box, shown);
    control.EvDOMarkers.MarkerIndex = shown.MarkerIndex;
}

void DrawMACCodes(Control& control)
{
    ChartSurface& box = control.EvDOTopBox;
    Place(box, WholeChart);
    control.EvDOSubBox.Visible = false;
    const ChartWindow window = ChooseWindow(control);
    if (!ScaleCodeChart(control, box, window))
        return;
    const float half = HalfBarWidth(control, box);
    for (std::size_t t = 0; t < LiveSlots; ++t) {
        const TraceSlot& slot = control.TraceSlots[t];
        for (std::size_t i = 0; static_cast<int>(i) < slot.Length && i < EvDORecord::MACCodes; ++i) {
            CheckCurvePoint(slot, i);
            DrawCodeBar(box, {slot.X[i], slot.Y[i]}, half, window, control.EvDO.CDPMACType[i]);
        }
    }
    DrawLevelLines(control, box, window);
    if (control.EvDOChartHasMarkers)
        DrawBoxMarkers(control, box);
}

void DrawDataChart(Control& control, ChartSurface& box, std::string_view head,
                   const std::array<float, EvDORecord::DataCodes>& powers, const ChartWindow& window)
{
    constexpr int headSize = 16;
    constexpr float half = 0.4F;
    ChartSurface& holder = control.EvDOHolder;
    // The heads stand at the charts' right ends: the standard and the channel have the left ones.
    DrawTextAt(holder, head, WholeUnits(box.Left + box.Width) - 14, 16, headSize, false, Black);
    if (control.EvDO.DataPowerActive == EvDONotCaptured)
        return DrawCentredInChart(box, "No Data Captured", 45, headSize);
    box.Scale(window.Xmin, window.Ymax, window.Xmax, window.Ymin);
    for (std::size_t i = 0; i < powers.size(); ++i)
        box.FillBox(static_cast<float>(i) - half, window.Ymin, static_cast<float>(i) + half, powers[i],
                    Yellow);
    DrawLevelLines(control, box, window);
}

/// The codes, and one range of levels for both charts, so that their bars can be compared.
ChartWindow DataWindow(const Control& control)
{
    const auto [lowI, highI] = std::ranges::minmax(control.EvDO.CDPDataI);
    const auto [lowQ, highQ] = std::ranges::minmax(control.EvDO.CDPDataQ);
    float low = std::min(lowI, lowQ), high = std::max(highI, highQ), step = 0;
    if (control.AutoScaleY && low < high) {
        NiceRange(low, high, step, true);
    } else {
        low = control.YScaleBottom;
        high = control.YScaleTop;
    }
    return {-0.5F, EvDORecord::DataCodes - 0.5F, low, high};
}

void DrawDataCodes(Control& control)
{
    ChartSurface& first = control.EvDOTopBox;
    ChartSurface& second = control.EvDOSubBox;
    Place(first, ChartOfI);
    Place(second, ChartOfQ);
    const ChartWindow window = DataWindow(control);
    DrawDataChart(control, first, "I", control.EvDO.CDPDataI, window);
    DrawDataChart(control, second, "Q", control.EvDO.CDPDataQ, window);
    if (control.EvDOChartHasMarkers && control.EvDO.DataPowerActive != EvDONotCaptured)
        DrawBoxMarkers(control, second);
}

/// The slot's power against the chips of a slot; the scale of an active slot is wider.
void DrawTimeChart(Control& control)
{
    constexpr int labelSize = 12;
    const EvDORecord& record = control.EvDO;
    ChartSurface& box = control.EvDOSubBox;
    const bool active = Has(record, EvDOStatus::Active);
    if ((active ? record.DataPowerActive : record.DataPowerIdle) == EvDONotCaptured)
        return DrawCentredInChart(box, active ? "No Data Captured" : "No Idle Slot", 40, 16);
    const ChartWindow window = active ? ChartWindow{0, EvDORecord::CurvePoints - 1, -90, 10}
                                      : ChartWindow{0, EvDORecord::CurvePoints - 1, -55, 5};
    box.Scale(window.Xmin, window.Ymax, window.Xmax, window.Ymin);
    const auto& curve = active ? record.ActivePowerTime : record.IdlePowerTime;
    for (std::size_t i = 1; i < curve.size(); ++i)
        box.Line(static_cast<float>(i - 1), curve[i - 1], static_cast<float>(i), curve[i], Yellow);
    DrawLevelLines(control, box, window);
    const auto label = [&](const char* text, float level, float above) {
        DrawTextAt(box, text, 4, WholeUnits(level + above * std::abs(box.TextHeight("H"))), labelSize, false,
                   White);
    };
    SetBoxFont(box, labelSize, false);
    label(active ? "+10 dB" : "+5 dB", window.Ymax, 0);
    if (!active)
        label("-5 dB", -5, 0);
    label(active ? "-90 dB" : "-55 dB", window.Ymin, 1);
}

void DrawTimeLabels(ChartSurface& holder)
{
    constexpr int y = 334;
    const char* const labels[] = {"0", "Data", "Pilot & Mac", "Data", "1023"};
    for (std::size_t i = 0; i < std::size(labels); ++i) {
        const float part = static_cast<float>(i) / (std::size(labels) - 1);
        const float width = holder.TextWidth(labels[i]);
        // The first and the last stand within the chart's edges.
        DrawTextAt(holder, labels[i], WholeUnits(TimeChart.Left + (TimeChart.Width - width) * part), y,
                   TextSize, false, Black);
    }
}

void DrawSpectrum(Control& control)
{
    ChartSurface& holder = control.EvDOHolder;
    ChartSurface& box = control.EvDOTopBox;
    Place(box, SpectrumChart);
    Place(control.EvDOSubBox, TimeChart);
    DrawTextAt(holder, "Center  " + FormatValue(control.EvDO.CenterFrequency, "#0.000 MHz"), 100, 176,
               TextSize, false, Black);
    const std::string span = "Span  2.500MHz";
    DrawTextAt(holder, span, WholeUnits(540 - holder.TextWidth(span)), 176, TextSize, false, Black);
    DrawTimeChart(control);
    DrawTimeLabels(holder);
    const ChartWindow window = ChooseWindow(control);
    if (!ScaleCodeChart(control, box, window))
        return;
    DrawYellowCurves(control, box);
    DrawLevelLines(control, box, window);
}

void DrawPage(Control& control)
{
    if (control.EvDOViewMode == CodeView::Spectrum) {
        DrawSpectrum(control);
    } else if (control.EvDOViewMode == CodeView::OverTheAir) {
        control.EvDOTopBox.Visible = control.EvDOSubBox.Visible = false;
        DrawEvDOScan(control);
    } else if (Has(control.EvDO, EvDOStatus::MAC)) {
        DrawMACCodes(control);
    } else {
        DrawDataCodes(control);
    }
}

void DrawReadouts(Control& control)
{
    for (std::size_t k = 0; k < MarkerCount; ++k)
        control.EvDOMarkers.MarkerText[k] = EvDOMarkerText(control, k);
    control.EvDOHolder.ForeColor = Black;
    if (control.DisplayMarkerValues)
        DrawMarkerReadouts(control.EvDOMarkers);
}

} // namespace

void DrawEvDOTrace(Control& control)
{
    ChartSurface& holder = control.EvDOHolder;
    ChartSurface& top = control.EvDOTopBox;
    ChartSurface& sub = control.EvDOSubBox;
    BeginView(holder, top);
    sub.AutoRedraw = true;
    sub.DrawStyle = LineStyle::Solid;
    sub.Cls();
    control.ParamBox.Visible = false;
    if (!IsGoodEvDOMeasurement(control)) {
        Place(top, WholeChart);
        sub.Visible = false;
        DrawBadMeasurement(top, MeasurementStatus.Text(control.EvDO.SignalStatus),
                           ValidState.Text(control.EvDO.MeasurementStatus));
    } else {
        holder.ForeColor = Black;
        SetBoxFont(holder, TextSize, false);
        DrawHead(control);
        DrawEvDOPanels(control);
        DrawPage(control);
        DrawReadouts(control);
        if (control.ShowParams)
            DrawEvDOSummary(control);
    }
    sub.AutoRedraw = false;
    EndView(holder, top);
}

} // namespace Traces
