#include "modes/vna_spa/VNAView.h"

#include "chart/ChartView.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"

namespace Traces {

namespace {

constexpr int TextSize = 10;

/// Where a text's left edge stands so that it is centred over the chart, or ends at its right edge.
int Centred(const Control& control, std::string_view text)
{
    const ChartSurface& box = control.VNABox;
    return WholeUnits(box.Left + (box.Width - control.VNAHolder.TextWidth(text)) / 2);
}

int RightAligned(const Control& control, std::string_view text)
{
    constexpr float margin = 6;
    const ChartSurface& box = control.VNABox;
    return WholeUnits(box.Left + box.Width - control.VNAHolder.TextWidth(text) - margin);
}

void DrawFrameTexts(Control& control)
{
    const VNARecord& record = control.VNA;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.VNAHolder, text, x, y, TextSize);
    };
    const std::string start = FormatValue(record.StartFreq, "#0.0");
    const std::string stop = FormatValue(record.StopFreq, "#0.0");
    const std::string points = NumberText(control.Header.DataPoints) + " Points";

    // The title has always been measured without its hyphen.
    put("?\?-" + control.TraceName, Centred(control, "?\?" + control.TraceName), 4);
    // A constant: the record's calibration status doesn't reach the frame.
    put("Cal Off", 2, 24);
    put(points, Centred(control, points), 24);
    put(start, 2, 422);
    put("Freq (MHz)", Centred(control, "Freq (MHz)"), 422);
    put(stop, RightAligned(control, stop), 422);
    put("F1=" + start + "MHz", 2, 442);
    put("F2=" + stop + "MHz", 2, 460);
    put("Average Cable Loss = " + FormatValue(record.AveCableLoss, "#0.00 dB"), 275, 442);
    put("Std=" + record.VNASignalStd, 275, 460);
}

/// The record's own scale values in the chart's corners, in device units: they stay what they are under
/// zoom and autoscale.
void DrawCornerLabels(Control& control)
{
    ChartSurface& box = control.VNABox;
    box.ScaleReset();
    const auto put = [&](float value, int y) {
        DrawTextAt(box, FormatValue(value, "#0.00 dB"), 4, y, TextSize, false, White);
    };
    put(control.VNA.ScaleTop, 4);
    put(control.VNA.ScaleBottom, WholeUnits(box.ScaleHeight - box.TextHeight("H") - 6));
}

} // namespace

void DrawVNATrace(Control& control)
{
    ChartSurface& holder = control.VNAHolder;
    ChartSurface& box = control.VNABox;
    BeginView(holder, box);
    SetBoxFont(holder, TextSize, false);
    DrawFrameTexts(control);
    holder.ForeColor = Black;
    box.ForeColor = White;
    DrawCornerLabels(control);
    // The rule above the foot lines runs past the holder's edge, which cuts it.
    holder.Line(0, 440, 600, 440, Black);
    if (!DrawChart(control, box, control.VNAMarkers))
        return;
    control.ParamBox.Visible = false;
    EndView(holder, box);
}

} // namespace Traces
