// `traces convert`: a trace as a text trace file, as a table of its curve, or as a Touchstone file.
#include "apps/cli/Commands.h"
#include "apps/cli/CurveExport.h"
#include "apps/cli/OpenTrace.h"
#include "apps/cli/Output.h"
#include "control/Control.h"
#include "control/ModeTable.h"
#include "formats/Files.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

#include <filesystem>

namespace Traces::Cli {

namespace {

/// What a name's extension stands for among text trace files; null when nothing.
const FileKind* KindOfName(const std::string& path)
{
    const std::string extension = LowerExtension(path);
    for (const FileKind& kind : AllFamilies.Files)
        if (LowerCase(kind.Extension) == extension)
            return &kind;
    return nullptr;
}

/// Whether text files of an extension are loaded as those of the trace's mode are.
bool FitsMode(const ModeRow* row, const std::string& path)
{
    const FileKind* kind = KindOfName(path);
    return row != nullptr && row->TextFile != nullptr &&
           (kind == nullptr || kind->Load == row->TextFile->Load);
}

/// The control appends an extension to a name without a point; what was asked for is the name as it is.
std::string NameWithPoint(const std::string& path)
{
    if (path.find('.') != std::string::npos)
        return path;
    const std::filesystem::path whole(path);
    return (whole.parent_path() / "." / whole.filename()).string();
}

bool SaveText(Console& console, OpenTrace& trace, const std::string& target)
{
    std::string filename = NameWithPoint(target);
    trace.Instance().TraceSaved = true;
    trace.Platform().Messages.clear();
    const std::string problem = TargetProblem(target);
    if (!problem.empty())
        console.Error(target, problem);
    else if (!trace.Plot().SaveTrace(filename))
        console.Error(target, "can't be written");
    else if (!trace.Platform().Messages.empty())
        console.Error(target, TerminalText(trace.Platform().Messages.front().Text));
    else
        return true;
    return false;
}

/// The control saves to files alone, so standard output gets the content of a temporary one.
void SaveTextToOutput(Console& console, OpenTrace& trace)
{
    TidyPlatform& platform = trace.Platform();
    const std::string file = platform.GetTempFileNameA(platform.GetTempPathA() + "/", "Traces");
    if (file.empty())
        console.Error("standard output", "no temporary file can be made");
    else if (SaveText(console, trace, file))
        WriteOutput(console, std::string(StandardStream), ReadWholeFile(file).value_or(""));
}

void ConvertToText(Console& console, OpenTrace& trace, const ConvertOptions& options)
{
    const ModeRow* row = CurrentRow(trace.Instance());
    if (!FitsMode(row, options.Out))
        console.Error(options.In, "can't be saved as " + options.Out + ": a trace of " +
                                      ModeName(trace.Instance().Header.Mode) +
                                      " would not be loaded from a file of that extension");
    else if (options.Out == StandardStream)
        SaveTextToOutput(console, trace);
    else
        SaveText(console, trace, options.Out);
}

void ConvertToExport(Console& console, const Export& result, const ConvertOptions& options)
{
    if (!result.Problem.empty())
        console.Error(options.In, result.Problem);
    else if (WriteOutput(console, options.Out, result.Content) && !result.Note.empty())
        console.Note(options.In, result.Note);
}

} // namespace

int RunConvert(Console& console, const ConvertOptions& options)
{
    std::string format = options.Format;
    if (format.empty())
        format = KindOfName(options.Out) != nullptr ? "text" : LowerExtension(options.Out);
    if (format != "text" && format != "csv" && format != "s1p")
        return console.Usage("convert: " +
                             (options.Format.empty() ? options.Out + " doesn't tell a format"
                                                     : options.Format + " is no format") +
                             ", --to takes text, csv or s1p");
    const auto input = ReadInput(console, options.In);
    OpenTrace trace;
    const auto need = format == "text" ? OpenTrace::Need::Record : OpenTrace::Need::Curve;
    if (!input || !trace.Load(console, *input, need))
        return console.ExitStatus();
    if (format == "text")
        ConvertToText(console, trace, options);
    else
        ConvertToExport(console, format == "csv" ? CsvOf(trace.Instance()) : TouchstoneOf(trace.Instance()),
                        options);
    return console.ExitStatus();
}

} // namespace Traces::Cli
