// A script's control and the calls on it: one line in, one JSON object out. Fuzzers and tests drive it as the
// command does.
#pragma once

#include "apps/cli/Json.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace Traces::Cli {

class Script {
public:
    /// The reply to a line, without a line break; nothing for a blank line. No line ends the script.
    std::optional<std::string> Run(std::string_view line);

    Traces::Plot& Plot() { return plot; }
    Control& Instance() { return plot.Instance(); }
    HeadlessPlatform& Platform() { return platform; }

    /// Items that the next popup menus answer with, in order.
    std::deque<std::string> Choices;

private:
    Json Call(std::string_view line);

    HeadlessPlatform platform;
    Traces::Plot plot{platform};
};

} // namespace Traces::Cli
