// The texts of an EV-DO page: the results below its charts, the tables of the page over the air, and the
// summary pane.
#pragma once

namespace Traces {

struct Control;

/// The six cells of the page on show; a rule alone while the markers' readouts have their place.
void DrawEvDOPanels(Control& control);

/// The pilots of the scan and the multipath, in place of a chart.
void DrawEvDOScan(Control& control);

/// Writes ParamBox: powers of the frame and its slots, quality, activity, position.
void DrawEvDOSummary(Control& control);

} // namespace Traces
