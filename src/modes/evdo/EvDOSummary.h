// The summary pane of EV-DO: powers of the frame and its slots, quality, activity, position.
#pragma once

namespace Traces {

struct Control;

/// Writes ParamBox.
void DrawEvDOSummary(Control& control);

} // namespace Traces
