// The picture of a sweep: frame texts around one chart, the same in all modes of the family.
#pragma once

namespace Traces {

struct Control;

void DrawVNATrace(Control& control);

} // namespace Traces
