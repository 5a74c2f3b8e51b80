// Power meter and power monitor: level, bar and scale. They differ in their captions and in the meter's foot
// lines. ZephraView.cpp has the high accuracy meter.
#include "modes/power/PowerView.h"

#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/power/PowerLadder.h"
#include "modes/power/PowerPanel.h"
#include "modes/power/PowerSummary.h"

#include <cmath>
#include <limits>

namespace Traces {

namespace {

constexpr int SmallText = 10;

// The scale: a tick every 20 units from 50 on, a long one for each fifth.
constexpr int FirstTick = 50;
constexpr int TickStep = 20;
constexpr int LongTickEvery = 5;
constexpr int ScaleTextTop = 304;

constexpr float ZeroedWatts = 0.01F;

void DrawTick(ChartSurface& holder, int place, bool isLong)
{
    const auto x = static_cast<float>(FirstTick + TickStep * place);
    holder.FillBox(x, 286, x + 1, isLong ? 298 : 292, White);
}

/// The bar over `ticks` ticks from `first` on, filled from there to the value.
void DrawBar(ChartSurface& bar, float first, float ticks, float value)
{
    bar.Scale(first - 0.5F, 1.2F, first + ticks - 0.5F, -0.2F);
    bar.FillBox(first, 1, value, 0, BarGreen);
}

std::string InLadderUnit(const Control& control, float value, std::string_view mask)
{
    return FormatValue(value, mask) + control.PowerLadderUnit;
}

std::string InLadderUnit(const Control& control, std::string_view mask)
{
    return FormatValue(control.PowerLadderValue, mask) + control.PowerLadderUnit;
}

/// The captions, which come after the ladder in watts.
std::string MonitorCaption(const Control& control, bool inWatts)
{
    const PowerRecord& record = control.Power;
    const bool relative = record.RelativeStatus == "ON";
    if (!inWatts)
        return FormatValue(record.PowerReading, relative ? "#0.0 dB" : "#0.0 dBm");
    if (record.ZeroStatus == "ON")
        return InLadderUnit(control, ZeroedWatts, "#0.0 ");
    if (relative)
        return FormatValue(control.PowerLadderValue / 10, "#0.0 ") + "%";
    return InLadderUnit(control, "#0.0 ");
}

std::string MeterCaption(const Control& control, bool inWatts)
{
    const PowerRecord& record = control.Power;
    if (!inWatts)
        return FormatValue(record.PowerReading, "#0.00 dBm");
    if (record.ZeroStatus == "ON")
        return InLadderUnit(control, ZeroedWatts, "#0.00 ");
    return InLadderUnit(control, "#0.00 ");
}

/// One decade, whose power of ten stands at its end.
void DrawWattsScale(Control& control)
{
    constexpr int ticks = 12;
    ChartSurface& holder = control.PMHolder;
    const bool zeroed = control.Power.ZeroStatus == "ON";
    const double watts = zeroed ? 0.01 : WattsOfDbm(static_cast<double>(control.Power.PowerReading));
    for (int i = 0; i < ticks; ++i)
        DrawTick(holder, i, i % LongTickEvery == 0);
    const ScientificParts parts = ScientificPartsOf(watts);
    DrawCentred(holder, zeroed ? "0" : "1", FirstTick, ScaleTextTop, SmallText);
    DrawCentred(holder, "5", FirstTick + 5 * TickStep, ScaleTextTop, SmallText);
    DrawCentred(holder, "10E" + parts.Exponent, FirstTick + 10 * TickStep, ScaleTextTop, SmallText);
    DrawBar(control.PowerBar, 0, ticks, static_cast<float>(parts.Mantissa));
}

/// The decade of decibels that the reading lies in, from the tick in front of it to that behind the next.
void DrawDecibelScale(Control& control)
{
    constexpr int ticks = 13;
    ChartSurface& holder = control.PMHolder;
    const float reading = control.Power.PowerReading;
    const auto first = RoundTo<std::int32_t>(std::floor(static_cast<double>(reading) / 10) * 10 - 1);
    if (!first || *first > std::numeric_limits<std::int32_t>::max() - ticks)
        return; // No instrument reads that; a file may say so.
    for (int place = 0; place < ticks; ++place) {
        const std::int32_t decibels = *first + place;
        const bool isLong = decibels % LongTickEvery == 0;
        DrawTick(holder, place, isLong);
        if (isLong)
            DrawCentred(holder, FormatValue(decibels, "##0"), FirstTick + TickStep * place, ScaleTextTop,
                        SmallText);
    }
    DrawBar(control.PowerBar, static_cast<float>(*first), ticks, reading);
}

/// Panel, level, scale and bar.
void DrawReading(Control& control, const PowerPanel& panel, std::string (*caption)(const Control&, bool))
{
    constexpr std::uint8_t decibels = 1;
    ChartSurface& bar = control.PowerBar;
    BeginPanel(control, control.PMHolder, panel);
    bar.AutoRedraw = true;
    bar.Cls();
    bar.Left = 40;
    bar.Width = 260;
    const bool inWatts = control.Power.PowerUnit != decibels;
    if (inWatts) {
        bar.Width = 240;
        auto level = static_cast<double>(control.Power.PowerReading);
        PowerLadder(control, level);
    }
    control.PowerLabel.Caption = caption(control, inWatts);
    if (inWatts)
        DrawWattsScale(control);
    else
        DrawDecibelScale(control);
    bar.AutoRedraw = false;
    control.PMHolder.ForeColor = Black;
}

void DrawMeterFoot(Control& control)
{
    const PowerRecord& record = control.Power;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.PMHolder, text, x, y, SmallText);
    };
    put("Center=" + FormatValue(record.CenterFreq, "#0.00 MHz"), 2, 424);
    put("Span=" + FormatValue(record.FreqSpan, "#0.00 MHz"), 2, 442);
    put("Relative:" + record.RelativeStatus, 2, 460);
    put("Std=" + record.SignalStandard, 275, 424);
    put("Channel=" + NumberOrNA(record.ChannelSelection), 275, 442);
    put("Offset:" + record.OffsetStatus, 275, 460);
}

} // namespace

void DrawPowerMonitorTrace(Control& control)
{
    DrawReading(control, {450, "PMON-", "Power Monitor", false}, MonitorCaption);
    EndPanel(control, control.PMHolder, PowerSummaryPMON);
}

void DrawPowerMeterTrace(Control& control)
{
    // The view's own doing, whatever the redraw made of the holder.
    control.PMHolder.Visible = true;
    DrawReading(control, {400, "PMET-", "Power Meter", false}, MeterCaption);
    DrawMeterFoot(control);
    EndPanel(control, control.PMHolder, PowerSummaryPMET);
}

} // namespace Traces
