// The mouse on a chart box: dragging markers, framing a zoom, reading the cursor's place. A box's user
// coordinates are chart units, so X and Y are frequency and level as they arrive.
#pragma once

#include "control/ChildControls.h"
#include "control/MarkerSet.h"

#include <string_view>

namespace Traces {

struct Control;

/// A chart box with what its mouse works on.
struct ChartBox {
    ChartSurface ChildControls::*Box;
    MarkerSet Control::*Markers; ///< null for a chart without markers, which has no zoom either
    Label ChildControls::*Coords;
    std::string_view MaskX, MaskY; ///< of the coordinate label
    bool Zooms;                    ///< a double click turns zoom mode on and off
    bool StepsMarkers = false;     ///< the arrow keys move the selected marker
};

/// The row of a surface; null for one that is no chart box.
const ChartBox* FindChartBox(const Control& control, const ChartSurface& surface);

/// The row of the chart box on show; null when none is.
const ChartBox* ShownChartBox(const Control& control);

/// Turns zoom mode on or off, without a redraw.
void ToggleZoomMode(Control& control, const ChartBox& chart);

/// A press: begins a zoom rectangle, grabs the first marker within 3 pixels, or shows the coordinates. The
/// popup menu has been dealt with before.
void ChartMouseDown(Control& control, const ChartBox& chart, float x, float y);

/// `button` is the state of the buttons, 0 for none.
void ChartMouseMove(Control& control, const ChartBox& chart, int button, float x, float y);

/// A release: zooms into the rectangle, or drops the dragged marker on a point.
void ChartMouseUp(Control& control, const ChartBox& chart, int button, float x, float y);

/// The full view again; the rectangle stays stored.
void UndoZoom(Control& control);

/// Zooms about the middle of the chart on show, to `factor` times what it shows. Nothing where there is no
/// zoom.
void ZoomAboutMiddle(Control& control, float factor);

void ToggleAutoScale(Control& control);

} // namespace Traces
