// The program: its command line, and what runs for it.
#pragma once

#include "apps/cli/Console.h"

#include <string>
#include <vector>

namespace Traces::Cli {

/// Runs the program on its arguments, without the program's own name. Gives its exit status: 0, 1 when
/// anything failed, 2 for wrong usage.
int RunProgram(Console& console, const std::vector<std::string>& arguments);

} // namespace Traces::Cli
