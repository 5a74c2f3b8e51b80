#include "modes/channel_scanner/CSView.h"

#include "chart/ChartView.h"
#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/Numbers.h"
#include "modes/channel_scanner/CSTrace.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

constexpr int TextSize = 10;
constexpr float SmallText = 8;
constexpr float HalfBar = 0.4F;

/// Part of the chart's height below the lowest level that the channel labels have for themselves.
constexpr float LabelStrip = 0.1F;

constexpr Colour OverLimit = RGB(255, 96, 64);

std::string ChannelText(const CSChannel& channel)
{
    return "Ch " + NumberText(channel.Number) + ", " + FormatValue(channel.Frequency, "#0.000 MHz") + ", " +
           FormatValue(channel.Level, "#0.0 dBm");
}

void DrawHead(Control& control)
{
    const CSRecord& record = control.CS;
    const ChartSurface& box = control.CSBox;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.CSHolder, text, x, y, TextSize);
    };
    const std::string title = "CS-" + control.TraceName;
    DrawCentred(control.CSHolder, title, WholeUnits(box.Left + box.Width / 2), 4, TextSize);
    put("Ref Lvl " + FormatValue(record.RefLevel, "#0.0 dBm"), 2, 24);
    put("RBW " + FormatValue(record.RBWSetting / 1000.0, "#00 kHz"), 200, 24);
    put("VBW " + FormatValue(record.VBWSetting / 1000.0, "#00 kHz"), 400, 24);
}

void DrawFoot(Control& control)
{
    const CSRecord& record = control.CS;
    const auto channels = ChannelsOf(record);
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.CSHolder, text, x, y, TextSize);
    };
    if (!channels.empty()) {
        const auto byLevel = [](const CSChannel& a, const CSChannel& b) { return a.Level < b.Level; };
        const auto limit = static_cast<float>(record.SingleLimit);
        const auto above = std::count_if(channels.begin(), channels.end(),
                                         [&](const CSChannel& channel) { return channel.Level > limit; });
        put("Strongest: " + ChannelText(*std::max_element(channels.begin(), channels.end(), byLevel)), 25,
            342);
        put("Weakest: " + ChannelText(*std::min_element(channels.begin(), channels.end(), byLevel)), 25, 360);
        put("Above limit of " + FormatValue(record.SingleLimit, "#0 dBm") + ": " + NumberText(above) +
                " of " + NumberText(static_cast<std::int32_t>(channels.size())),
            25, 378);
    }
    put("Channel bandwidth " + FormatValue(record.ChannelBandwidth, "#0.000 MHz"), 25, 396);
    put("Atten " + FormatValue(record.Attenuation, "#0.0 dB"), 275, 396);
    control.CSHolder.Line(0, 440, 600, 440, Black);
    put("Start=" + FormatValue(record.StartFreq, "#0.000000") + "MHz", 2, 442);
    put("Stop=" + FormatValue(record.StopFreq, "#0.000000") + "MHz", 2, 460);
    put("Std=" + record.SignalStandard, 275, 442);
    put("Link=" + record.LinkType, 275, 460);
}

/// Levels from the data window, places of the channels with room for their bars.
ChartWindow BarWindow(const Control& control)
{
    ChartWindow window = UnzoomedWindow(control);
    window.Xmin -= 0.5F;
    window.Xmax += 0.5F;
    return window;
}

/// Prints a text centred on a place of the chart, its top at a level.
void PutCentred(ChartSurface& box, const std::string& text, float x, float top, Colour ink)
{
    box.ForeColor = ink;
    box.CurrentX = x - box.TextWidth(text) / 2;
    box.CurrentY = top;
    box.Print(text);
}

/// Level lines at round values, their numbers left of the chart.
void DrawLevelLines(Control& control, const ChartWindow& window)
{
    ChartSurface& box = control.CSBox;
    ChartSurface& holder = control.CSHolder;
    float low = window.Ymin;
    float high = window.Ymax;
    float step = 0;
    NiceRange(low, high, step, true);
    box.DrawStyle = LineStyle::Dotted;
    SetBoxFont(holder, SmallText, false);
    constexpr int mostLines = 20;
    for (int i = 0; i <= mostLines; ++i) {
        const float level = low + step * static_cast<float>(i);
        if (!(level <= window.Ymax))
            break;
        if (level < window.Ymin)
            continue;
        box.Line(box.ScaleLeft, level, box.ScaleLeft + box.ScaleWidth, level, control.GridColor);
        const std::string text = FormatValue(level, "#0.###");
        const std::string shown = text.ends_with('.') ? text.substr(0, text.size() - 1) : text;
        holder.CurrentX = box.Left - holder.TextWidth(shown) - 1;
        // A line along the chart's edge has its number inside of it.
        const float height = holder.TextHeight(shown);
        const float top = box.Top + (level - box.ScaleTop) * box.Height / box.ScaleHeight - height / 2;
        holder.CurrentY = std::max(top, box.Top);
        holder.Print(shown);
    }
    box.DrawStyle = LineStyle::Solid;
}

/// A level above its bar, or below the bar's top where there is no room above.
void PutLevel(ChartSurface& box, float x, float level, float bottom)
{
    const std::string text = FormatValue(level, "#0");
    const float height = box.TextHeight(text);
    const float top = std::max(level, bottom) + height;
    if (top > box.ScaleTop)
        return PutCentred(box, text, x, std::min(level, box.ScaleTop), Black);
    // Lines of the chart don't run through it.
    const float half = box.TextWidth(text) / 2;
    box.FillBox(x - half, top, x + half, top - 0.85F * height, Black);
    PutCentred(box, text, x, top, White);
}

/// Numbers of the channels below their bars; in two rows where one would run together.
void DrawChannelLabels(const Control& control, ChartSurface& box, float bottom)
{
    const auto channels = ChannelsOf(control.CS);
    float widest = 0;
    for (const CSChannel& channel : channels)
        widest = std::max(widest, box.TextWidth(NumberText(channel.Number) + " "));
    const float rowHeight = box.TextHeight("0");
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const float row = widest > 1 && i % 2 == 1 ? rowHeight : 0;
        PutCentred(box, NumberText(channels[i].Number), static_cast<float>(i + 1), bottom - row, White);
    }
}

bool DrawBars(Control& control)
{
    ChartSurface& box = control.CSBox;
    const TraceSlot& slot = control.TraceSlots[0];
    const ChartWindow window = BarWindow(control);
    const float strip = (window.Ymax - window.Ymin) * LabelStrip;
    if (slot.Length < 1 || !(window.Ymin < window.Ymax) || !std::isfinite(strip))
        return false;
    ScaleBox(box, {window.Xmin, window.Xmax, window.Ymin - strip, window.Ymax});
    DrawLevelLines(control, window);
    SetBoxFont(box, SmallText, false);
    const auto limit = static_cast<float>(control.CS.SingleLimit);
    for (std::size_t i = 0; static_cast<int>(i) < slot.Length; ++i) {
        if (!std::isfinite(slot.X[i]) || !std::isfinite(slot.Y[i]))
            throw HostFault(FaultKind::Overflow, "the curve has a point that is no number");
        const bool over = slot.Y[i] > limit && limit > window.Ymin;
        if (slot.Y[i] > window.Ymin)
            box.FillBox(slot.X[i] - HalfBar, slot.Y[i], slot.X[i] + HalfBar, window.Ymin,
                        over ? OverLimit : control.TraceColors[0]);
    }
    box.Line(box.ScaleLeft, window.Ymin, box.ScaleLeft + box.ScaleWidth, window.Ymin, control.GridColor);
    if (limit > window.Ymin) {
        box.DrawStyle = LineStyle::Dashed;
        box.Line(box.ScaleLeft, limit, box.ScaleLeft + box.ScaleWidth, limit, OverLimit);
        box.DrawStyle = LineStyle::Solid;
    }
    for (std::size_t i = 0; static_cast<int>(i) < slot.Length; ++i)
        PutLevel(box, slot.X[i], slot.Y[i], window.Ymin);
    DrawChannelLabels(control, box, window.Ymin);
    DrawCurves(control, box, 1);
    return true;
}

} // namespace

void DrawCSTrace(Control& control)
{
    ChartSurface& holder = control.CSHolder;
    ChartSurface& box = control.CSBox;
    BeginView(holder, box);
    SetBoxFont(holder, TextSize, false);
    holder.ForeColor = Black;
    DrawHead(control);
    DrawFoot(control);
    if (!DrawBars(control))
        return;
    control.ParamBox.Visible = false;
    EndView(holder, box);
}

} // namespace Traces
