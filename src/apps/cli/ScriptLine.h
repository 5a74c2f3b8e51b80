// The form of a script's line: a member's name and its arguments, as they stand. What a member makes of them
// is in ScriptMembers.h.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Traces::Cli {

struct ScriptArgument {
    std::string Text;            ///< a bare word, or what stood in quotes, without its escapes
    bool IsList = false;         ///< numbers in brackets
    std::vector<double> Numbers; ///< of a list
};

struct ScriptLine {
    std::string Member; ///< empty for a blank line
    std::vector<ScriptArgument> Arguments;
    std::string Problem; ///< why the arguments are malformed; empty when they aren't
};

/// Blanks separate the parts of a line.
ScriptLine ParseScriptLine(std::string_view line);

} // namespace Traces::Cli
