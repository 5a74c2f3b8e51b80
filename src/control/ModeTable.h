// The table of measurement modes: one row a mode, one row a text file's extension. The only place that
// knows all families.
#pragma once

#include "control/ModeRow.h"

namespace Traces {

extern const Families AllFamilies;

} // namespace Traces
