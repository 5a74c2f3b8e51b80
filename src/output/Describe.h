// The picture in words, for those who can't see it.
#pragma once

#include <string>

namespace Traces {

struct Control;

/// One sentence: mode and title, the reading or the span and number of the curve's points, the markers that
/// are on and where they stand.
std::string DescribePlot(const Control& control);

} // namespace Traces
