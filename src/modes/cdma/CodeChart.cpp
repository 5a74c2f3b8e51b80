#include "modes/cdma/CodeChart.h"

#include "chart/ChartView.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"

#include <algorithm>

namespace Traces {

void SetCodeLimits(Control& control)
{
    control.YScaleTop = 0;
    control.YScaleBottom = -50;
}

bool ScaleCodeChart(Control& control, ChartSurface& box, const ChartWindow& window)
{
    constexpr double margin = 0.01;
    if (window.Xmin == window.Xmax || window.Ymin == window.Ymax)
        return false;
    const double width = static_cast<double>(window.Xmax - window.Xmin);
    box.ScaleWidth = static_cast<float>(width * (1 + 2 * margin));
    box.ScaleLeft = static_cast<float>(static_cast<double>(window.Xmin) - width * margin);
    box.ScaleHeight = -(window.Ymax - window.Ymin);
    box.ScaleTop = window.Ymax;
    control.ZoomX1 = window.Xmin;
    control.ZoomX2 = window.Xmax;
    control.ZoomY1 = window.Ymin;
    control.ZoomY2 = window.Ymax;
    return true;
}

float HalfBarWidth(const Control& control, const ChartSurface& box)
{
    return box.ScaleWidth / static_cast<float>(std::max<std::int16_t>(control.TraceSlots[0].Length, 1)) / 2;
}

void DrawCodeBar(ChartSurface& box, Point top, float half, const ChartWindow& window, std::uint8_t type)
{
    box.FillBox(top.X - half, window.Ymin, top.X + half, top.Y, static_cast<Colour>(ChannelTypeColor(type)));
    box.FillBox(top.X - half, top.Y, top.X + half, window.Ymax, Black);
}

void DrawLevelLines(const Control& control, ChartSurface& box, const ChartWindow& window)
{
    constexpr int divisions = 10;
    const float right = box.ScaleLeft + box.ScaleWidth;
    box.DrawStyle = LineStyle::Dotted;
    for (int line = 0; line <= divisions; ++line) {
        const float y = window.Ymin + (window.Ymax - window.Ymin) * static_cast<float>(line) / divisions;
        box.Line(box.ScaleLeft, y, right, y, control.GridColor);
    }
    box.DrawStyle = LineStyle::Solid;
}

void DrawCentredInChart(ChartSurface& box, const std::string& text, int y, int size)
{
    constexpr float extent = 100;
    box.Scale(0, 0, extent, extent);
    box.ForeColor = Red;
    SetBoxFont(box, static_cast<float>(size), false);
    box.CurrentX = (extent - box.TextWidth(text)) / 2;
    box.CurrentY = static_cast<float>(y);
    box.Print(text);
}

void DrawReadoutRule(ChartSurface& holder)
{
    holder.DrawWidth = 2;
    holder.Line(0, 360, 600, 360, Black);
    holder.DrawWidth = 1;
}

void DrawBadMeasurement(ChartSurface& box, const std::string& signal, const std::string& measurement)
{
    constexpr int size = 14;
    DrawCentredInChart(box, signal, 40, size);
    DrawCentredInChart(box, "Measurement Status: " + measurement, 50, size);
}

} // namespace Traces
