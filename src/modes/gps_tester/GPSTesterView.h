// The picture of a GPS check: the list of its events, and the summary pane.
#pragma once

#include <string>
#include <vector>

namespace Traces {

struct Control;

/// The lines of the list: every event but those that tell of a lost fix.
std::vector<std::string> ShownGPSEvents(const Control& control);

/// Draws GPSiDENHolder. Its box shows the lines that fit in it; where there is a window, a list that scrolls
/// lies over the box.
void DrawGPSTesterTrace(Control& control);

} // namespace Traces
