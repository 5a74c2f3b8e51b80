#include "chart/Panel.h"

#include "control/ViewText.h"

namespace Traces {

void DrawRaisedPanel(ChartSurface& holder, float left, float top, float right, float bottom)
{
    constexpr Colour light = RGB(250, 250, 250);
    holder.FillBox(left, top, right, bottom, PanelGrey);
    holder.Line(left, top, right, top, light);
    holder.Line(left, top, left, bottom, light);
    holder.Line(right, top, right, bottom, Black);
    holder.Line(left, bottom, right, bottom, Black);
}

void DrawCentred(ChartSurface& holder, std::string_view text, int x, int y, int size)
{
    SetBoxFont(holder, static_cast<float>(size), false);
    const auto half = static_cast<double>(holder.TextWidth(text)) / 2;
    DrawTextAt(holder, text, WholeUnits(x - half), y, size);
}

void DrawEnding(ChartSurface& holder, std::string_view text, int x, int y, int size)
{
    SetBoxFont(holder, static_cast<float>(size), false);
    DrawTextAt(holder, text, WholeUnits(x - static_cast<double>(holder.TextWidth(text))), y, size);
}

void DrawResult(ChartSurface& holder, const Result& result)
{
    constexpr Colour blue = RGB(0, 0, 255);
    constexpr int labelSize = 10;
    constexpr int valueBelow = 16;
    DrawTextAt(holder, result.Label, result.X, result.Y, labelSize, false, Black);
    DrawTextAt(holder, result.Value, result.X, result.Y + valueBelow, result.Size, false, blue);
}

} // namespace Traces
