#include "modes/iden/IDENView.h"

#include "chart/ChartView.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/iden/IDENChart.h"

#include <array>
#include <cmath>
#include <vector>

namespace Traces {

namespace {

constexpr int TextSize = 10;

struct Value {
    std::string Label, Text;
};

std::string FourValues(const std::array<float, 4>& values, std::string_view mask)
{
    std::string text;
    for (const float value : values)
        text += (text.empty() ? "" : "/") + FormatValue(value, mask);
    return text;
}

/// The six results of a view, from the top left cell of its band to the bottom right one.
std::array<Value, 6> ResultsOf(const IDENRecord& record, std::int16_t view)
{
    const auto& ratio = record.AdjacentPowerRatio;
    const auto decibels = [](float value) { return FormatValue(value, "#0.0"); };
    const auto whole = [](std::int16_t value) { return FormatValue(std::int32_t{value}, "#0"); };
    switch (view) {
    case IDENView::ACPR:
        return {{{"Lower ACPR 1 (dB)", decibels(ratio[0])},
                 {"Lower ACPR 2 (dB)", decibels(ratio[1])},
                 {"Lower ACPR 3 (dB)", decibels(ratio[2])},
                 {"Upper ACPR 5 (dB)", decibels(ratio[4])},
                 {"Upper ACPR 6 (dB)", decibels(ratio[5])},
                 {"Upper ACPR 7 (dB)", decibels(ratio[6])}}};
    case IDENView::PowerTime:
        return {{{"Active Slot Pwr (dBm)", decibels(record.ActiveSlotPower)},
                 {"Duty Cycle (%)", whole(record.AverageDutyCycle)},
                 {"On/Off Ratio (dB)", whole(record.OnOffRatio)},
                 {"Slot Powers 1-4 (dBm)", FourValues(record.SubchannelPower, "#0.0")},
                 {"Peak/Average (dB)", decibels(record.PeakToAverageRatio)},
                 {"Main Ch Pwr (dBm)", decibels(record.MainChannelPower)}}};
    case IDENView::Demod:
        return {{{"SQE (dB)", decibels(record.DemodSQE)},
                 {"EVM (%)", decibels(record.EVMAverage)},
                 {"Rho", whole(record.Rho)},
                 {"Subch EVM 1-4 (%)", FourValues(record.SubchannelEVM, "#0")},
                 {"Freq Error (Hz)", FormatValue(record.FrequencyError, "#0")},
                 {"Phase Noise", whole(record.PhaseNoise)}}};
    default:
        return {{{"Main Ch Pwr (dBm)", decibels(record.MainChannelPower)},
                 {"Freq Error (Hz)", FormatValue(record.FrequencyError, "#0")},
                 {"Meas Occ BW (kHz)", decibels(record.OccupiedBandwidth)},
                 {"Peak/Average (dB)", decibels(record.PeakToAverageRatio)},
                 {"SQE (dB)", decibels(record.DemodSQE)},
                 {"EVM (%)", decibels(record.EVMAverage)}}};
    }
}

/// As wide as high on the screen, whatever the box's shape.
ChartWindow SquareOnScreen(const ChartSurface& box, ChartWindow window)
{
    const auto aspect = static_cast<float>(box.DeviceWidth() / box.DeviceHeight());
    if (aspect > 1) {
        window.Xmin *= aspect;
        window.Xmax *= aspect;
    } else if (aspect > 0) {
        window.Ymin /= aspect;
        window.Ymax /= aspect;
    }
    return window;
}

void DrawConstellation(const Control& control, ChartSurface& box, const TraceSlot& slot)
{
    constexpr float zero = 0;
    box.Line(box.ScaleLeft, zero, box.ScaleLeft + box.ScaleWidth, zero, control.GridColor);
    box.Line(zero, box.ScaleTop, zero, box.ScaleTop + box.ScaleHeight, control.GridColor);
    const auto halfWidth = static_cast<float>(Ratio(1, box.PixelsPerUnitX()));
    const auto halfHeight = static_cast<float>(Ratio(1, std::abs(box.PixelsPerUnitY())));
    for (std::size_t i = 0; static_cast<int>(i) < slot.Length; ++i) {
        CheckCurvePoint(slot, i);
        box.FillBox(slot.X[i] - halfWidth, slot.Y[i] - halfHeight, slot.X[i] + halfWidth,
                    slot.Y[i] + halfHeight, Yellow);
    }
}

void DrawChartOf(Control& control, ChartSurface& box, std::int16_t view)
{
    const ChartWindow window = IDENWindow(control.IDEN, view);
    const TraceSlot slot = IDENCurve(control.IDEN, view);
    if (view == IDENView::Demod) {
        ScaleBox(box, SquareOnScreen(box, window));
        return DrawConstellation(control, box, slot);
    }
    if (!(window.Ymin < window.Ymax))
        return;
    ScaleBox(box, window);
    DrawYellowCurve(slot, box);
    DrawGraticule(control, box, window);
}

/// The main chart shows slot 0, which is the view's own curve, and what a host laid over it.
void DrawMainChart(Control& control)
{
    ChartSurface& box = control.idenbox;
    if (control.IDENViewMode == IDENView::Demod)
        return DrawChartOf(control, box, IDENView::Demod);
    const ChartWindow window = UnzoomedWindow(control);
    if (window.Xmin == window.Xmax || window.Ymin == window.Ymax)
        return;
    ScaleBox(box, window);
    DrawYellowCurves(control, box);
    DrawGraticule(control, box, window);
}

void DrawLevels(ChartSurface& holder, const ChartSurface& box)
{
    const int right = WholeUnits(box.Left) - 4, top = WholeUnits(box.Top);
    const int bottom = WholeUnits(box.Top + box.Height) - 14;
    DrawEnding(holder, FormatValue(box.ScaleTop, "#0"), right, top, TextSize);
    DrawEnding(holder, FormatValue(box.ScaleTop + box.ScaleHeight, "#0"), right, bottom, TextSize);
}

void DrawHead(Control& control)
{
    const IDENRecord& record = control.IDEN;
    ChartSurface& holder = control.idenHolder;
    const ChartSurface& box = control.idenbox;
    const std::string name = TitleOfPath(control.TraceName);
    const std::string title =
        std::string(IDENViewName(control.IDENViewMode)) + (name.empty() ? "" : "-" + name);
    DrawCentred(holder, title, WholeUnits(box.Left + box.Width / 2), 4, TextSize);
    DrawTextAt(holder, "Std=" + record.SignalStandardName, WholeUnits(box.Left), 20, TextSize);
    DrawTextAt(holder, "Channel=" + NumberText(record.ChannelNumber), 400, 20, TextSize);
}

/// What is along the X axis, below the chart.
void DrawAxis(Control& control)
{
    constexpr int y = 340;
    const IDENRecord& record = control.IDEN;
    const int left = WholeUnits(control.idenbox.Left);
    const auto put = [&](const std::string& text, int x) {
        DrawTextAt(control.idenHolder, text, x, y, TextSize);
    };
    if (control.IDENViewMode == IDENView::Demod)
        return put("I to the right, Q upwards", left);
    if (control.IDENViewMode == IDENView::PowerTime)
        return put("Time", left);
    put("Center " + FormatValue(record.CenterFrequency, "#0.0000") + "MHz", left);
    if (control.IDENViewMode == IDENView::ACPR)
        put("Span " + NumberText(record.ACPRFrequencySpan) + " kHz", 400);
}

void DrawBand(Control& control)
{
    constexpr int valueSize = 20, longValueSize = 12;
    constexpr std::size_t longValue = 12;
    ChartSurface& holder = control.idenHolder;
    DrawResultCells(holder);
    constexpr int lefts[] = {6, 190, 372};
    std::vector<Result> results;
    for (const auto& [label, text] : ResultsOf(control.IDEN, control.IDENViewMode)) {
        const int left = lefts[results.size() % std::size(lefts)];
        const int top = results.size() < std::size(lefts) ? 364 : 424;
        results.push_back({left, top, label, text, text.size() > longValue ? longValueSize : valueSize});
    }
    DrawResults(holder, results);
}

void DrawOneView(Control& control)
{
    ChartSurface& holder = control.idenHolder;
    DrawHead(control);
    DrawAxis(control);
    DrawBand(control);
    holder.ForeColor = Black;
    DrawMainChart(control);
    if (control.IDENViewMode != IDENView::Demod)
        DrawLevels(holder, control.idenbox);
}

/// A chart of the wide layout: its name above, its results below.
void DrawQuarter(Control& control, ChartSurface& box, std::int16_t view)
{
    constexpr int nameAbove = 16, resultsBelow = 4, rowHeight = 14, valueLeft = 95, textSize = 16;
    ChartSurface& holder = control.idenHolder;
    const int left = WholeUnits(box.Left);
    DrawChartOf(control, box, view);
    holder.ForeColor = Black;
    DrawTextAt(holder, IDENViewName(view), left, WholeUnits(box.Top) - nameAbove, textSize);
    int y = WholeUnits(box.Top + box.Height) + resultsBelow;
    for (const Value& result : ResultsOf(control.IDEN, view)) {
        DrawTextAt(holder, result.Label, left, y, textSize);
        DrawTextAt(holder, result.Text, left + valueLeft, y, textSize);
        y += rowHeight;
    }
    if (view != IDENView::Demod)
        DrawLevels(holder, box);
}

/// Four charts over the whole of the wide control, in whose corner the layout has put the holder.
void DrawAllViews(Control& control)
{
    ChartSurface& holder = control.idenHolder;
    holder.Width = control.Surface.ScaleWidth - 2 * holder.Left;
    holder.Height = control.Surface.ScaleHeight - 2 * holder.Top;
    ChartSurface& main = control.idenbox;
    main.Left = control.idenbox2.Left;
    main.Top = control.idenbox1.Top;
    main.Width = control.idenbox1.Width;
    main.Height = control.idenbox1.Height;
    DrawCentred(holder, "iDEN-" + TitleOfPath(control.TraceName), WholeUnits(holder.ScaleWidth / 2), 4,
                TextSize);
    ChartSurface* const boxes[] = {&main, &control.idenbox1, &control.idenbox2, &control.idenbox3};
    for (std::size_t i = 0; i < std::size(boxes); ++i)
        DrawQuarter(control, *boxes[i], IDENView::All[i]);
}

} // namespace

void DrawIDENTrace(Control& control)
{
    ChartSurface& holder = control.idenHolder;
    const std::array<ChartSurface*, 3> small = {&control.idenbox1, &control.idenbox2, &control.idenbox3};
    const bool wide = IsLaidOutWide(control);
    BeginView(holder, control.idenbox);
    for (ChartSurface* box : small) {
        box->Visible = wide;
        box->AutoRedraw = true;
        box->Cls();
    }
    control.ParamBox.Visible = false;
    holder.ForeColor = Black;
    if (wide)
        DrawAllViews(control);
    else
        DrawOneView(control);
    for (ChartSurface* box : small)
        box->AutoRedraw = false;
    EndView(holder, control.idenbox);
}

} // namespace Traces
