#include "control/TraceContent.h"

#include "control/Control.h"
#include "control/TraceEntry.h"
#include "formats/Checksum.h"
#include "formats/TraceMode.h"
#include "formats/TraceText.h"

#include <algorithm>

namespace Traces {

namespace {

bool IsParameterLine(std::string_view line)
{
    const std::size_t tab = line.find('\t');
    const auto printable = [](char c) { return static_cast<unsigned char>(c) >= ' '; };
    return tab != 0 && tab != std::string_view::npos &&
           std::all_of(line.begin(), line.begin() + tab, printable);
}

std::string TextProblem(const Families& families, std::string_view text)
{
    std::string problem;
    if (TextFileKind(families, text, problem) == nullptr)
        return problem;
    const std::size_t field = FindChecksumField(text);
    if (field == std::string_view::npos)
        return "has no checksum";
    return ComputeChecksum(text, field) == ReadChecksumField(text)
               ? std::string()
               : "isn't as it was saved: its checksum is wrong";
}

} // namespace

TraceForm FormOf(std::string_view content)
{
    if (content.substr(0, content.find('\n')).find(ChecksumKey) != std::string_view::npos)
        return TraceForm::Text;
    std::size_t lines = 0;
    std::size_t parameters = 0;
    while (!content.empty()) {
        const std::string_view line = content.substr(0, content.find('\n'));
        content.remove_prefix(std::min(line.size() + 1, content.size()));
        if (!line.empty() && line != "\r")
            ++lines;
        if (IsParameterLine(line))
            ++parameters;
    }
    return 2 * parameters > lines ? TraceForm::Text : TraceForm::Raw;
}

std::string RawProblem(const Families& families, std::string_view content)
{
    constexpr int lengthOffset = 1;
    constexpr int modeOffset = 16;
    constexpr int shortest = 100;
    constexpr int tolerance = 2;
    constexpr std::size_t longest = 32767;
    const RawBuffer buffer = RawBuffer::FromText(content);
    const bool spectrogram = content.size() > LongestPlainTrace;
    const int length = ReadI16(buffer, lengthOffset).value_or(0);
    const std::string size = std::to_string(content.size());
    if (content.size() > longest)
        return "isn't a trace: " + size + " bytes are more than one has";
    if (content.size() < static_cast<std::size_t>(shortest))
        return "isn't a trace: " + size + " bytes are fewer than one has";
    if (!spectrogram && length < shortest)
        return "isn't a trace: its " + size + " bytes don't begin with a trace's length";
    if (!spectrogram && static_cast<std::size_t>(length) > content.size() + tolerance)
        return "is cut off: its header tells " + std::to_string(length) + " bytes, there are " + size;
    const std::uint8_t mode = spectrogram ? TraceMode::Spectrogram : ReadByte(buffer, modeOffset).value_or(0);
    const ModeRow* row = families.FindMode(mode);
    if (row == nullptr || row->Decode == nullptr)
        return "has a mode that isn't supported, " + std::to_string(mode) + " (" + ModeName(mode) + ")";
    return {};
}

const FileKind* TextFileKind(const Families& families, std::string_view text, std::string& problem)
{
    const std::string mode(TraceText(text).ParamValue("Mode:"));
    for (const ModeRow& row : families.Modes)
        if (row.TextFile != nullptr && ModeName(row.Mode) == mode)
            return row.TextFile;
    problem = mode.empty() ? "has no line \"Mode:\", which tells what it holds"
                           : "has a mode that isn't supported, \"" + mode + "\"";
    return nullptr;
}

std::string ContentProblem(const Families& families, std::string_view content)
{
    if (content.empty())
        return "is empty";
    return FormOf(content) == TraceForm::Raw ? RawProblem(families, content) : TextProblem(families, content);
}

void ShowContent(Control& control, std::string_view content, std::string_view title)
{
    std::string problem;
    if (FormOf(content) == TraceForm::Raw) {
        control.TraceName = title;
        ShowTrace(control, RawBuffer::FromText(content));
    } else if (const FileKind* kind = TextFileKind(control.Families, content, problem)) {
        kind->Load(control, content, {});
        // The sweeps' loader lists the header alone. What the others list is theirs to choose.
        constexpr std::size_t headerLines = 8;
        if (control.lstParameters.ListCount() == headerLines)
            RebuildParameters(control);
    }
}

} // namespace Traces
