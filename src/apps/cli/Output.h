// Where a command's results go: files under the names that were asked for, and standard output for "-".
#pragma once

#include "apps/cli/Console.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Traces::Cli {

/// Writes a file whole or not at all. False when the console has told why it can't be.
bool WriteOutput(Console& console, const std::string& target, std::string_view content);

/// Why nothing can be written under a name; empty when something may.
std::string TargetProblem(const std::string& target);

/// ASCII letters in lower case.
std::string LowerCase(std::string_view text);

/// Extension of a path in lower case, without the point.
std::string LowerExtension(const std::string& path);

/// The names of a batch's results in a folder: each input's stem with an extension. Inputs of one stem get
/// numbers, and no input is written over.
class FolderTargets {
public:
    FolderTargets(std::string folder, std::string extension, const std::vector<std::string>& inputs);

    /// The path for an input's result. The console is told of one whose stem was taken.
    std::string For(Console& console, const std::string& input);

private:
    std::string folder, extension;
    std::set<std::string> inputPaths;
    std::set<std::string> taken;            ///< names given out
    std::map<std::string, int> lastNumbers; ///< of each stem that was taken more than once
};

/// Whether two names lead to one file.
bool SameFile(const std::string& a, const std::string& b);

} // namespace Traces::Cli
