// The trace handed on as something other than a file: a picture, the clipboard, a printed page.
#pragma once

#include "control/Platform.h"

namespace Traces {

struct Control;

/// The whole control at its current size: a bitmap where the platform paints, else SVG.
Picture TracePicture(const Control& control);

/// Puts the parameter list and the picture on the clipboard. False when a step failed.
bool Copy2Clipboard(Control& control);

/// Prints the picture; all four are percentages of the page, sizes and then places. False when nothing was
/// printed.
bool PrintTrace(Control& control, double xScale, double yScale, double xPosition, double yPosition);

} // namespace Traces
