#include "apps/cli/OpenTrace.h"

#include "control/Control.h"
#include "control/ModeTable.h"
#include "formats/HostFault.h"
#include "formats/Text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Traces::Cli {

TidyPlatform::~TidyPlatform()
{
    std::error_code error;
    for (const std::string& path : made)
        std::filesystem::remove(path, error);
}

std::string TidyPlatform::GetTempFileNameA(const std::string& folder, std::string_view prefix)
{
    std::string path = HeadlessPlatform::GetTempFileNameA(folder, prefix);
    if (!path.empty())
        made.push_back(path);
    return path;
}

namespace {

/// A box's text on one line: line breaks become blanks, as two control characters in a row do.
std::string MessageLine(std::string_view text)
{
    std::string line = TerminalText(text);
    for (std::size_t at = line.find("  "); at != std::string::npos; at = line.find("  ", at))
        line.erase(at, 1);
    return line;
}

} // namespace

OpenTrace::OpenTrace(const TextMetrics& metrics) : platform(metrics)
{
    // The demonstration curve of a new control is none of the trace's.
    plot.Clear();
}

bool OpenTrace::Load(Console& console, const Input& input, Need need)
{
    std::string problem = TerminalText(ContentProblem(AllFamilies, input.Content));
    if (problem.empty()) {
        try {
            ShowContent(plot.Instance(), input.Content, AnsiFromUtf8(StemOf(input.Name)));
        } catch (const HostFault& fault) {
            // A raw trace is decoded before its curve is laid.
            if (need == Need::Curve)
                problem = fault.what();
        }
        for (const Message& message : platform.Messages) {
            if (message.Icon == MessageIcon::Stop)
                problem = "can't be verified: no temporary file can be made";
            else
                console.Note(input.Name, MessageLine(message.Text));
        }
    }
    if (!problem.empty())
        console.Error(input.Name, problem);
    return problem.empty();
}

} // namespace Traces::Cli
