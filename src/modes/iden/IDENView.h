// The pictures of an iDEN analysis: one view in the main chart over a band of its results, or all four side
// by side, each over its results.
#pragma once

namespace Traces {

struct Control;

/// Draws idenHolder. In the wide layout it takes the whole control, and the small charts show.
/// @throws HostFault Overflow for a curve point that isn't finite.
void DrawIDENTrace(Control& control);

} // namespace Traces
