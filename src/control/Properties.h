// The six stored properties: how a host's property bag keeps them, and what setting one does.
#pragma once

#include "control/Control.h"

namespace Traces {

/// Applies the stored properties, with the defaults for keys that the bag hasn't, and lays out anew.
void LoadProperties(Control& control, const PropertyBag& bag);

/// Writes all six.
void StoreProperties(const Control& control, PropertyBag& bag);

/// The background of the control and of the holders that follow it; those of the channel scanner and the
/// spectrogram keep the colour that they were loaded with.
void SetBackColor(Control& control, Colour colour);
Colour BackColor(const Control& control);

void SetForeColor(Control& control, Colour colour);
void SetBorderStyle(Control& control, MyBorderStyles style);

/// Shows with the next redraw.
void SetAutoScaleY(Control& control, bool value);

/// Show with the next resize, and with the next right click.
void SetShowParams(Control& control, bool value);
void SetAllowPopupMenu(Control& control, bool value);

/// The three-dimensional frame around holder and pane, for the border styles that have one.
void DrawFrame(Control& control);

} // namespace Traces
