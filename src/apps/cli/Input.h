// A trace as the program is given it: the bytes of a file or of standard input, and what form they have. The
// content tells the form, whatever the file is called.
#pragma once

#include "apps/cli/Console.h"
#include "control/TraceContent.h"

#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace Traces::Cli {

struct Input {
    std::string Name; ///< as given on the command line
    std::string Content;
    TraceForm Form = TraceForm::Raw;
};

/// Opens a file to read its bytes. What is wrong, in words that follow the file's name; empty when it is
/// open.
std::string OpenFile(const std::string& name, std::ifstream& file);

/// The content of a file. Without one, `problem` says why.
std::optional<std::string> ReadFile(const std::string& name, std::string& problem);

/// Reads a trace. Without one, the console has told why.
std::optional<Input> ReadInput(Console& console, const std::string& name);

/// A file's name without folder and last extension; "trace" for standard input.
std::string StemOf(const std::string& name);

} // namespace Traces::Cli
