// The subcommands: what each is given by the command line, and the function that runs it. Each gives the
// program's exit status.
#pragma once

#include "apps/cli/Console.h"
#include "apps/cli/RenderOptions.h"

#include <span>
#include <string>
#include <vector>

namespace Traces::Cli {

struct InfoOptions {
    std::vector<std::string> Files;
    bool Json = false;
};

/// Header and parameters: as lines for one file, as a table for several, or as one JSON object a file.
int RunInfo(Console& console, const InfoOptions& options);

/// Pictures of traces.
int RunRender(Console& console, const RenderOptions& options);

struct ConvertOptions {
    std::string In, Out;
    std::string Format; ///< "text", "csv" or "s1p"; by the name of Out when empty
};

/// A trace as a text trace file, a table of its curve, or a Touchstone file.
int RunConvert(Console& console, const ConvertOptions& options);

struct UploadOptions {
    std::string File, Frame;
};

/// The frame in which an instrument takes a trace back.
int RunUpload(Console& console, const UploadOptions& options);

/// Checksums of text trace files, one line a file. Fails unless all are right.
int RunVerify(Console& console, const std::vector<std::string>& files);

struct OptionHelp {
    std::string Name, Description;
};

/// What is read and written, and with which options.
int RunFormats(Console& console, std::span<const OptionHelp> renderOptions,
               std::span<const OptionHelp> convertOptions);

/// The control without a window: one call a line, one JSON object a line.
int RunScript(Console& console, const std::string& file);

} // namespace Traces::Cli
