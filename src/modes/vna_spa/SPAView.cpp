#include "modes/vna_spa/SPAView.h"

#include "chart/ChartView.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"

namespace Traces {

namespace {

constexpr int TextSize = 10;

/// Where the title's left edge stands: it has always been measured with the prefix of another mode.
int TitleLeft(const Control& control)
{
    const ChartSurface& box = control.SPABox;
    return WholeUnits(box.Left + (box.Width - control.SPAHolder.TextWidth("GSM-" + control.TraceName)) / 2);
}

/// "100 kHz" of a bandwidth in Hz.
std::string KilohertzText(std::int32_t hertz)
{
    return FormatValue(hertz / 1000.0, "#00 kHz");
}

void DrawFrameTexts(Control& control)
{
    const SPARecord& record = control.SPA;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.SPAHolder, text, x, y, TextSize);
    };
    put("SPA-" + control.TraceName, TitleLeft(control), 4);
    put("Ref Lvl " + FormatValue(record.RefLevel, "#0.0 dBm"), 2, 24);
    put("RBW " + KilohertzText(record.RBWSetting), 200, 24);
    put("VBW " + KilohertzText(record.VBWSetting), 400, 24);
    put(FormatValue(record.ScaleDiv, "#0 dB/Div"), 2, 80);
    put("Atten", 2, 100);
    put(FormatValue(record.Attenuation, " #0") + " dB", 2, 116);
    // Constants: the record's detection and sweep settings don't reach the frame.
    put("Recall", 2, 136);
    put("Pos Peak", 2, 236);
    put("Swp Time", 2, 404);
    put(" Recall", 2, 420);
    put("Start " + FormatValue(record.StartFreq, "#0.000") + "MHz", 80, 422);
    put("Stop " + FormatValue(record.StopFreq, "#0.000") + "MHz", 380, 422);
    put("Start=" + FormatValue(record.StartFreq, "#0.000000") + "MHz", 2, 442);
    put("Stop=" + FormatValue(record.StopFreq, "#0.000000") + "MHz", 2, 460);
    put("Std=" + record.SignalStandard, 275, 442);
    put("Channel=" + NumberOrNA(record.ChannelSelection), 275, 460);
}

} // namespace

void DrawSPATrace(Control& control)
{
    ChartSurface& holder = control.SPAHolder;
    ChartSurface& box = control.SPABox;
    BeginView(holder, box);
    holder.Font.Size = TextSize * holder.Screen().FontScaleFactor;
    DrawFrameTexts(control);
    holder.ForeColor = Black;
    // The rule above the foot lines runs past the holder's edge, which cuts it.
    holder.Line(0, 440, 600, 440, Black);
    if (!DrawChart(control, box, control.SPAMarkers))
        return;
    control.ParamBox.Visible = false;
    EndView(holder, box);
}

} // namespace Traces
