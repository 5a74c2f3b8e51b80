// The table of measurement modes: one row a mode, one row a text file's extension. What a family does is told
// here; its records, boxes and loaders have their names in Control, ChildControls and Plot.
#pragma once

#include "control/ModeRow.h"

namespace Traces {

extern const Families AllFamilies;

} // namespace Traces
