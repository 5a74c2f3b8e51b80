// The texts and lamps that all views place in the same way.
#pragma once

#include "control/ChartSurface.h"

#include <string>
#include <string_view>

namespace Traces {

/// The one positioned text call of the views. Draws a filled box behind the text when fillColour is above
/// -1, sets ForeColor unless foreColour is -1, sets the font size by screen density and control scale, and
/// outlines the text in black, with a blank's room at both sides, when boxed.
void DrawTextAt(ChartSurface& surface, std::string_view text, int x, int y, int size, bool boxed = false,
                Colour foreColour = NoColour, Colour fillColour = NoColour);

/// Font size in points, scaled as all text of the control, and the underline.
void SetBoxFont(ChartSurface& surface, float size, bool underline);

/// A status lamp, green for on and red for off. `label` is the surface whose font and pen place it, `box`
/// the one it is drawn on; they may be the same. A coordinate of -1 is taken from the pen: an "H" to the
/// right, half an "H" down, and handed back.
void DrawLed(ChartSurface& label, ChartSurface& box, int& x, int& y, bool on);

/// A trace's title: of a path on drive C what stands behind its last backslash, anything else whole.
std::string TitleOfPath(std::string_view traceName);

/// The nearest whole user unit, halves to even, as positions of texts are kept.
int WholeUnits(double value);

} // namespace Traces
