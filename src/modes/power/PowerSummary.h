// The summary panes of the three power modes.
#pragma once

namespace Traces {

struct Control;

/// Each shows the pane and writes the settings of the trace on show.
void PowerSummaryPMON(Control& control);
void PowerSummaryPMET(Control& control);
void PowerSummaryZephra(Control& control);

} // namespace Traces
