// The results below a CDMA chart.
#pragma once

namespace Traces {

struct Control;

/// The cells of the view on show; a rule alone while the markers' readouts have their place.
void DrawCDMAPanels(Control& control);

} // namespace Traces
