// The picture of a channel scan: a bar a channel, labelled with its number, above the level that it reached.
#pragma once

namespace Traces {

struct Control;

void DrawCSTrace(Control& control);

} // namespace Traces
