// The picture of an EV-DO trace: settings on the left, the charts of the page on show, results below. Pages:
// the MAC codes in one chart; the data codes in two, I and Q; the spectrum above the power over time of a
// slot; and over the air, two tables.
#pragma once

namespace Traces {

struct Control;

/// Draws EvDOHolder and its two boxes from the record, and the summary pane where it is shown. A measurement
/// that is none shows its two statuses alone.
/// @throws HostFault Overflow for a curve that isn't finite.
void DrawEvDOTrace(Control& control);

} // namespace Traces
