// One trace in a control of its own, as every command but the script works on it: loaded by its content, with
// what went wrong told on the console.
#pragma once

#include "apps/cli/Input.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"

#include <string>
#include <string_view>
#include <vector>

namespace Traces {
}

namespace Traces::Cli {

/// Leaves no temporary file behind. The control does, one each time that it verifies a checksum, and a
/// batch of ten thousand files would fill the folder with them.
class TidyPlatform : public HeadlessPlatform {
public:
    using HeadlessPlatform::HeadlessPlatform;
    ~TidyPlatform() override;
    TidyPlatform(const TidyPlatform&) = delete;
    TidyPlatform& operator=(const TidyPlatform&) = delete;

    std::string GetTempFileNameA(const std::string& folder, std::string_view prefix) override;

private:
    std::vector<std::string> made;
};

class OpenTrace {
public:
    explicit OpenTrace(const TextMetrics& metrics = BuiltInMetrics());

    /// What a command needs of a trace: its record, which every accepted trace has, or its curve, which some
    /// point counts make impossible.
    enum class Need { Record, Curve };

    /// Shows a trace and lists its parameters, header and record. A raw one takes its title from the file's
    /// name. False when the console has told why it can't be shown.
    bool Load(Console& console, const Input& input, Need need);

    Traces::Plot& Plot() { return plot; }
    Control& Instance() { return plot.Instance(); }
    TidyPlatform& Platform() { return platform; }

private:
    TidyPlatform platform;
    Traces::Plot plot{platform};
};

} // namespace Traces::Cli
