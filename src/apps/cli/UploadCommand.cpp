// `traces upload`: the frame in which an instrument takes a trace back. The content decides the route. A text
// file's checksum isn't asked: files of the instruments' own tools have one that only those tools know.
#include "apps/cli/Commands.h"
#include "apps/cli/Input.h"
#include "apps/cli/Output.h"
#include "control/ModeTable.h"
#include "control/Upload.h"
#include "formats/HostFault.h"

namespace Traces::Cli {

namespace {

std::string FrameOf(const Input& input, std::string& problem)
{
    if (input.Form == TraceForm::Raw) {
        problem = RawProblem(AllFamilies, input.Content);
        return problem.empty() ? EncodeRawFile(AllFamilies, input.Content) : std::string();
    }
    const FileKind* kind = TextFileKind(AllFamilies, input.Content, problem);
    return kind != nullptr ? EncodeTextFile(AllFamilies, kind->Extension, input.Content) : std::string();
}

} // namespace

int RunUpload(Console& console, const UploadOptions& options)
{
    const auto input = ReadInput(console, options.File);
    if (!input)
        return console.ExitStatus();
    std::string problem;
    std::string frame;
    try {
        frame = FrameOf(*input, problem);
        if (problem.empty() && frame.empty())
            problem = "has a mode that instruments don't take back";
    } catch (const HostFault& fault) {
        problem = fault.what();
    }
    if (problem.empty())
        WriteOutput(console, options.Frame, frame);
    else
        console.Error(options.File, TerminalText(problem));
    return console.ExitStatus();
}

} // namespace Traces::Cli
