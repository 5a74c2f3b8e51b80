// What the control shows, as JSON: its surfaces with the commands of both layers in user coordinates, and its
// labels.
#pragma once

#include "apps/cli/Json.h"

#include <string_view>

namespace Traces {
struct Control;
class ChartSurface;
} // namespace Traces

namespace Traces::Cli {

/// All surfaces and labels that are shown, parents before children, in the order in which they are painted.
Json DrawJson(const Control& control);

/// The surface or label of a name alone, in a list, whether it is shown or not. Null when there is none.
Json DrawJson(const Control& control, std::string_view name);

} // namespace Traces::Cli
