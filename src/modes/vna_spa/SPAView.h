// The picture of a spectrum: a frame that imitates the instrument's screen, with a column of settings left of
// the chart.
#pragma once

namespace Traces {

struct Control;

void DrawSPATrace(Control& control);

} // namespace Traces
