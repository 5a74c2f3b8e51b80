// The colours of a level map.
#pragma once

#include "control/DrawCommand.h"

#include <vector>

namespace Traces {

/// From dark violet over red to light yellow: neighbours are equally far apart to the eye, and a higher level
/// is always the lighter one, so that the map reads in grey as well.
const std::vector<Colour>& ColourRamp();

} // namespace Traces
