// `traces verify`: whether the checksum of a text trace file is that of its text.
#include "apps/cli/Commands.h"
#include "apps/cli/Input.h"
#include "formats/Checksum.h"

namespace Traces::Cli {

int RunVerify(Console& console, const std::vector<std::string>& files)
{
    bool allRight = true;
    for (const std::string& name : files) {
        const auto input = ReadInput(console, name);
        if (!input)
            continue;
        const std::size_t field =
            input->Form == TraceForm::Text ? FindChecksumField(input->Content) : std::string::npos;
        std::string_view verdict = "no checksum";
        if (field != std::string::npos)
            verdict =
                ComputeChecksum(input->Content, field) == ReadChecksumField(input->Content) ? "OK" : "FAILED";
        allRight = allRight && verdict == "OK";
        console.Out << OneLine(name) << ": " << verdict << '\n';
    }
    const int status = console.ExitStatus();
    return allRight ? status : Status::Failed;
}

} // namespace Traces::Cli
