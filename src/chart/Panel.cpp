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

void DrawResultCells(ChartSurface& holder, float lastEdge)
{
    constexpr float top = 360, middle = 420, bottom = 480, firstEdge = 183, right = 600;
    holder.FillBox(0, top, right, bottom, PaleYellow);
    for (const float y : {top, middle})
        holder.Line(0, y, right, y, Black);
    for (const float x : {firstEdge, lastEdge})
        holder.Line(x, top, x, bottom, Black);
}

void DrawResults(ChartSurface& holder, std::span<const Result> results)
{
    constexpr int labelSize = 10;
    constexpr int valueBelow = 16;
    for (const Result& result : results) {
        DrawTextAt(holder, result.Label, result.X, result.Y, labelSize, false, Black);
        DrawTextAt(holder, result.Value, result.X, result.Y + valueBelow, result.Size, false, Blue);
    }
}

} // namespace Traces
