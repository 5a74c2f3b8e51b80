// A control on a printer's page.
#pragma once

#include "control/Platform.h"
#include "qt/SizedFonts.h"

class QPagedPaintDevice;

namespace Traces {

/// Draws the picture onto the part of the page's printable area that `place` tells, stretched to fill it,
/// as vectors. False when the device can't be drawn on.
bool PrintOnPage(QPagedPaintDevice& device, const Control& control, const PagePlace& place,
                 SizedFonts& fonts);

/// The largest place for the control's picture that keeps its proportions, in the middle of a page's width.
PagePlace FittingPlace(const QPagedPaintDevice& device, const Control& control);

} // namespace Traces
