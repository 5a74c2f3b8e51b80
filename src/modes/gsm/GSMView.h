// The picture of a GSM trace: the curve of the sub view, in the slot view within the burst's mask, over a
// band of results.
#pragma once

namespace Traces {

struct Control;

/// Draws GSMHolder and GSMBox from the decoded state.
/// @throws HostFault Overflow when the curve isn't finite.
void DrawGSMTrace(Control& control);

} // namespace Traces
