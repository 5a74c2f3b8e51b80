// Readings outside of a chart: the raised panel on which they stand like on an instrument's front, its
// colours, and the results in the band below a chart.
#pragma once

#include "control/ChartSurface.h"

#include <span>
#include <string>
#include <string_view>

namespace Traces {

inline constexpr Colour BarGreen = RGB(105, 245, 105);
inline constexpr Colour PanelGrey = RGB(170, 170, 170);

/// A grey box with light from the top left.
void DrawRaisedPanel(ChartSurface& holder, float left, float top, float right, float bottom);

/// A text in the current colour, centred on x.
void DrawCentred(ChartSurface& holder, std::string_view text, int x, int y, int size);

/// A text in the current colour that ends at x.
void DrawEnding(ChartSurface& holder, std::string_view text, int x, int y, int size);

/// The ground of the results below a chart: two rows of three cells, the last of which begins at `lastEdge`.
void DrawResultCells(ChartSurface& holder, float lastEdge = 366);

/// A result in a band below a chart: its label in black and its value in blue below it.
struct Result {
    int X, Y;
    std::string Label, Value;
    int Size; ///< of the value
};
void DrawResults(ChartSurface& holder, std::span<const Result> results);

} // namespace Traces
