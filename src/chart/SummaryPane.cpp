#include "chart/SummaryPane.h"

#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"

#include <algorithm>
#include <cstdlib>

namespace Traces {

namespace {

constexpr int PaneMargin = 20;

void Rule(ChartSurface& surface, int x1, int y1, int x2, int y2)
{
    surface.Line(static_cast<float>(x1), static_cast<float>(y1), static_cast<float>(x2),
                 static_cast<float>(y2), Black);
}

/// The right edge of a table: its width is the surface's, less the margin.
int RightEdge(const ChartSurface& surface, const PaneGrid& grid)
{
    const int margin = surface.Name == "ParamBox" ? PaneMargin : grid.Margin;
    return grid.Left + WholeUnits(surface.Width) - margin;
}

void RowRules(ChartSurface& surface, const PaneGrid& grid, int right)
{
    surface.DrawStyle = LineStyle::Solid;
    for (int row = 1; row < grid.Rows; ++row) {
        const int y = grid.Top + row * grid.RowHeight;
        Rule(surface, grid.Left, y, right, y);
    }
}

std::string CoordinateText(std::int64_t coordinate, char positive, char negative)
{
    constexpr std::int64_t perDegree = 1'000'000;
    constexpr double perMinute = 10'000;
    const std::int64_t size = std::abs(coordinate);
    return std::string(1, coordinate < 1 ? negative : positive) + NumberText(size / perDegree) + "*" +
           NumberText(static_cast<double>(size % perDegree) / perMinute) + "'";
}

} // namespace

ChartSurface& OpenPane(Control& control)
{
    ChartSurface& pane = control.ParamBox;
    pane.Visible = true;
    pane.AutoRedraw = true;
    pane.Cls();
    pane.DrawStyle = LineStyle::Solid;
    pane.DrawWidth = 1;
    pane.ForeColor = Black;
    pane.Font.Bold = false;
    pane.Font.Underline = false;
    return pane;
}

void ClosePane(ChartSurface& pane)
{
    pane.AutoRedraw = false;
}

void PanePrint(ChartSurface& pane, std::string_view text, int y, int x, float size, PaneAlign align,
               int maxWidth, Colour colour)
{
    constexpr float smallestSize = 1; // No font is smaller, however long the text is.
    if (colour != NoColour)
        pane.ForeColor = colour;
    pane.CurrentY = static_cast<float>(y);
    SetBoxFont(pane, size, pane.Font.Underline);
    if (maxWidth > 0) {
        const int width = WholeUnits(pane.TextWidth(text));
        const int height = WholeUnits(pane.TextHeight(text));
        if (width > maxWidth) {
            const float shrink = static_cast<float>(maxWidth) / static_cast<float>(width);
            pane.Font.Size = std::max(shrink * pane.Font.Size - 1, smallestSize);
            pane.CurrentY += shrink * static_cast<float>(height) / 2;
        }
    }
    const float width = pane.TextWidth(text);
    pane.CurrentX = static_cast<float>(x);
    if (align == PaneAlign::End)
        pane.CurrentX -= width;
    else if (align == PaneAlign::Centre)
        pane.CurrentX -= width / 2;
    pane.Print(text);
}

void PaneBand(ChartSurface& surface, int left, int top, int right, int bottom, Colour fill)
{
    const auto x1 = static_cast<float>(left), y1 = static_cast<float>(top);
    const auto x2 = static_cast<float>(right), y2 = static_cast<float>(bottom);
    surface.FillBox(x1, y1, x2, y2, fill);
    surface.Box(x1, y1, x2, y2, Black);
}

void PaneTable(ChartSurface& surface, const PaneGrid& grid)
{
    const int split = grid.Left + grid.LabelWidth;
    const int right = RightEdge(surface, grid);
    const int bottom = grid.Top + grid.Rows * grid.RowHeight;
    PaneBand(surface, grid.Left, grid.Top, split, bottom, grid.LabelColour);
    PaneBand(surface, split, grid.Top, right, bottom, grid.ValueColour);
    RowRules(surface, grid, right);
}

void PaneRows(ChartSurface& pane, PaneGrid grid, std::span<const PaneRow> rows, const PaneRowTexts& texts)
{
    constexpr int labelInset = 4;
    grid.Rows = static_cast<int>(rows.size());
    PaneTable(pane, grid);
    int y = grid.Top + texts.Inset;
    for (const PaneRow& row : rows) {
        PanePrint(pane, row.Label, y, grid.Left + labelInset, texts.Size, PaneAlign::Start, 0,
                  texts.LabelColour);
        PanePrint(pane, row.Value, y, texts.ValueRight, texts.Size, PaneAlign::End, texts.ValueRoom);
        y += grid.RowHeight;
    }
}

void PaneTableWide(ChartSurface& surface, const PaneGrid& grid, int valueWidth)
{
    PaneTable(surface, grid);
    const int split = grid.Left + grid.LabelWidth + valueWidth;
    Rule(surface, split, grid.Top, split, grid.Top + grid.Rows * grid.RowHeight);
}

PanePosition PanePositionTexts(const GpsFix& fix)
{
    if (fix.Latitude == -1 && fix.Longitude == -1)
        return {"N/A", "N/A", "N/A"};
    return {CoordinateText(fix.Latitude, 'N', 'S'), CoordinateText(fix.Longitude, 'E', 'W'),
            FormatValue(std::int32_t{fix.Altitude}, "#0") + "m"};
}

} // namespace Traces
