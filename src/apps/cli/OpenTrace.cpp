#include "apps/cli/OpenTrace.h"

#include "control/Control.h"
#include "control/ModeTable.h"
#include "control/TraceEntry.h"
#include "formats/Checksum.h"
#include "formats/HostFault.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

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

std::string RawProblem(std::string_view content)
{
    constexpr int lengthOffset = 1;
    constexpr int modeOffset = 16;
    constexpr int shortest = 100;
    constexpr int tolerance = 2;
    const RawBuffer buffer = RawBuffer::FromText(content);
    constexpr std::size_t longest = 32767;
    const bool spectrogram = content.size() > LongestPlainTrace;
    const int length = ReadI16(buffer, lengthOffset).value_or(0);
    const std::string size = std::to_string(content.size());
    if (content.size() > longest)
        return "isn't a trace: " + size + " bytes are more than one has";
    if (!spectrogram && length < shortest)
        return "isn't a trace: its " + size + " bytes don't begin with a trace's length";
    if (!spectrogram && static_cast<std::size_t>(length) > content.size() + tolerance)
        return "is cut off: its header tells " + std::to_string(length) + " bytes, there are " + size;
    const std::uint8_t mode = spectrogram ? TraceMode::Spectrogram : ReadByte(buffer, modeOffset).value_or(0);
    const ModeRow* row = AllFamilies.FindMode(mode);
    if (row == nullptr || row->Decode == nullptr)
        return "has a mode that isn't supported, " + std::to_string(mode) + " (" + ModeName(mode) + ")";
    return {};
}

std::size_t UsedPoints(const TraceSlot& slot)
{
    return std::min(static_cast<std::size_t>(std::max<std::int16_t>(slot.Length, 0)), slot.X.size());
}

OpenTrace::OpenTrace(const TextMetrics& metrics) : platform(metrics)
{
    // The demonstration curve of a new control is none of the trace's.
    plot.Clear();
}

std::string OpenTrace::LoadRaw(const Input& input)
{
    std::string problem = RawProblem(input.Content);
    if (!problem.empty())
        return problem;
    plot.Instance().TraceName = AnsiFromUtf8(StemOf(input.Name));
    ShowTrace(plot.Instance(), RawBuffer::FromText(input.Content));
    return {};
}

std::string OpenTrace::LoadText(const Input& input)
{
    std::string problem;
    const FileKind* kind = TextFileKind(input.Content, problem);
    if (kind == nullptr)
        return problem;
    const std::size_t field = FindChecksumField(input.Content);
    if (field == std::string::npos)
        return "has no checksum";
    platform.Messages.clear();
    kind->Load(plot.Instance(), input.Content, {});
    if (platform.Messages.empty()) {
        // The loader lists the header alone.
        RebuildParameters(plot.Instance());
        return {};
    }
    if (ComputeChecksum(input.Content, field) == ReadChecksumField(input.Content))
        return "can't be verified: no temporary file can be made";
    return TerminalText(platform.Messages.front().Text);
}

bool OpenTrace::Load(Console& console, const Input& input, Need need)
{
    std::string problem;
    try {
        problem = input.Form == TraceForm::Raw ? LoadRaw(input) : LoadText(input);
    } catch (const HostFault& fault) {
        // A raw trace is decoded before its curve is laid.
        if (need == Need::Curve)
            problem = fault.what();
    }
    if (!problem.empty())
        console.Error(input.Name, problem);
    return problem.empty();
}

} // namespace Traces::Cli
