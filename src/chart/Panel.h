// The raised panel on which readings stand like on an instrument's front, and the colours that go with it.
#pragma once

#include "control/ChartSurface.h"

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

} // namespace Traces
