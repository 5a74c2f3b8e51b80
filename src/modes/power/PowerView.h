// The pictures of the three power modes: a panel with the level in large letters, for power meter and
// monitor above a bar, for the high accuracy meter with its limit test. None is a chart.
#pragma once

namespace Traces {

struct Control;

void DrawPowerMeterTrace(Control& control);
void DrawPowerMonitorTrace(Control& control);
void DrawZephraTrace(Control& control);

} // namespace Traces
