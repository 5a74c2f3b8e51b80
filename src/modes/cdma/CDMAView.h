// The picture of a CDMA trace: settings on the left, the chart of codes or of the spectrum, results below.
#pragma once

namespace Traces {

struct Control;

/// Draws CDMAHolder and CDMABox from the record, and the summary pane where it is shown. A measurement that
/// is none shows its two statuses alone.
/// @throws HostFault Overflow for a curve that isn't finite.
void DrawCDMATrace(Control& control);

} // namespace Traces
