#include "modes/gsm/GSMView.h"

#include "chart/ChartView.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/gsm/GSMChart.h"

namespace Traces {

namespace {

constexpr int TextSize = 10;

void DrawFrameTexts(Control& control)
{
    const GSMRecord& record = control.GSM;
    ChartSurface& holder = control.GSMHolder;
    const ChartSurface& box = control.GSMBox;
    const int boxLeft = WholeUnits(box.Left);
    const auto put = [&](const std::string& text, int x, int y) { DrawTextAt(holder, text, x, y, TextSize); };
    const std::string title = "GSM-" + TitleOfPath(control.TraceName);
    DrawCentred(holder, title, WholeUnits(box.Left + box.Width / 2), 4, TextSize);
    put("Std=" + record.SignalStandard, boxLeft, 20);
    put("Channel=" + NumberOrNA(record.Channel), 400, 20);
    put("Pwr Offset", 8, 240);
    // The instruments' own software has always shown an offset of 0 here, whatever the record's is.
    put(ValueOf(record.RefLevelCalStatus) == 1 ? "Cable" : FormatValue(0, "#0.0 dB"), 8, 260);
    if (control.GSMViewMode == GSMView::Spectrum) {
        put("Center " + FormatValue(record.CenterFrequency, "#0.000") + "MHz", boxLeft, 340);
        put("Span 500 kHz", 400, 340);
    }
}

void DrawBand(ChartSurface& holder, const GSMRecord& record)
{
    constexpr int size = 30;
    const bool centred = record.CenterFrequency != 0;
    const float ppm = centred ? record.FreqError / record.CenterFrequency : 0;
    const auto known = [](bool measured, const std::string& text) { return measured ? text : "---"; };
    const Result results[] = {
        {6, 364, "Ch Pwr (dBm)", FormatValue(record.ChannelPower, "#0.00"), size},
        {6, 424, "Burst Power (dBm)", FormatValue(record.BurstPower, "#0.00"), size},
        {190, 364, "Freq Error (Hz)", FormatValue(record.FreqError, "#0"), size},
        {190, 424, "Freq Error (ppm)", known(centred, FormatValue(ppm, "#0.00")), size},
        {372, 364, "Meas Occ BW (kHz)",
         known(record.OccupiedBandwidth != 0, FormatValue(record.OccupiedBandwidth, "#0.0")), size},
        {372, 424, "TSC",
         known(record.MeasuredTSC != GSMRecord::NoTSC, FormatValue(std::int32_t{record.MeasuredTSC}, "#0")),
         size},
    };
    DrawResults(holder, results);
}

/// Where a normal burst has to stay: below the outer lines, and above the inner ones while it is on.
void DrawGSMSlotMask(ChartSurface& box)
{
    constexpr Colour maskColour = RGB(160, 200, 255);
    constexpr struct {
        float X1, Y1, X2, Y2;
    } lines[] = {
        {30, -90, 30, -2},   {370, -90, 370, -2},  {30, -2, 370, -2},    {0, -72, 10, -72},
        {10, -72, 10, -32},  {10, -32, 16, -32},   {16, -32, 16, -8},    {16, -8, 24, -8},
        {24, -8, 24, 5},     {24, 5, 30, 5},       {30, 5, 30, 2},       {30, 2, 370, 2},
        {370, 5, 370, 2},    {370, 5, 376, 5},     {376, -8, 376, 5},    {376, -8, 384, -8},
        {384, -32, 384, -8}, {384, -32, 390, -32}, {390, -72, 390, -32}, {390, -72, 400, -72},
    };
    for (const auto& line : lines)
        box.Line(line.X1, line.Y1, line.X2, line.Y2, maskColour);
}

/// False when the window has no span: then nothing of the chart is drawn.
bool DrawBurst(Control& control, ChartSurface& box)
{
    const ChartWindow window = ChooseWindow(control);
    if (window.Xmin == window.Xmax || window.Ymin == window.Ymax)
        return false;
    ScaleBox(box, window);
    DrawYellowCurves(control, box);
    box.DrawStyle = LineStyle::Dotted;
    if (control.GSMViewMode == GSMView::Slot)
        DrawGSMSlotMask(box);
    DrawMarkerLines(control, box, control.GSMMarkers);
    return true;
}

} // namespace

void DrawGSMTrace(Control& control)
{
    ChartSurface& holder = control.GSMHolder;
    ChartSurface& box = control.GSMBox;
    BeginView(holder, box);
    SetBoxFont(holder, TextSize, false);
    constexpr float lastCell = 367;
    DrawResultCells(holder, lastCell);
    DrawFrameTexts(control);
    DrawBand(holder, control.GSM);
    holder.ForeColor = Black;
    SetBoxFont(holder, TextSize, false);
    if (!DrawBurst(control, box))
        return;
    control.ParamBox.Visible = false;
    EndView(holder, box);
}

} // namespace Traces
