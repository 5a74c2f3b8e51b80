// A trace as the program is given it: the bytes of a file or of standard input, and what form they have. The
// content tells the form, whatever the file is called.
#pragma once

#include "apps/cli/Console.h"

#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace Traces {
struct FileKind;
}

namespace Traces::Cli {

enum class TraceForm { Raw, Text };

struct Input {
    std::string Name; ///< as given on the command line
    std::string Content;
    TraceForm Form = TraceForm::Raw;
};

/// No trace comes near; a device that never ends does.
inline constexpr std::size_t LargestInput = std::size_t{64} << 20;

/// Opens a file to read its bytes. What is wrong, in words that follow the file's name; empty when it is
/// open.
std::string OpenFile(const std::string& name, std::ifstream& file);

/// The content of a file. Without one, `problem` says why.
std::optional<std::string> ReadFile(const std::string& name, std::string& problem);

/// A trace's text file has a checksum in its first line, or is mostly lines of key, tab, value.
TraceForm FormOf(std::string_view content);

/// Reads a trace. Without one, the console has told why.
std::optional<Input> ReadInput(Console& console, const std::string& name);

/// How a text file is loaded, by its "Mode:" line. Null, with `problem` told, when no family reads it.
const FileKind* TextFileKind(std::string_view text, std::string& problem);

/// A file's name without folder and last extension; "trace" for standard input.
std::string StemOf(const std::string& name);

} // namespace Traces::Cli
