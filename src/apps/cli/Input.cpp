#include "apps/cli/Input.h"

#include "control/ModeTable.h"
#include "formats/Checksum.h"
#include "formats/TraceMode.h"
#include "formats/TraceText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace Traces::Cli {

namespace {

std::optional<std::string> ReadStream(std::istream& in, std::string& problem)
{
    std::string content;
    std::array<char, 65536> block; // NOLINT(cppcoreguidelines-pro-type-member-init): read fills it
    while (content.size() <= LargestInput) {
        in.read(block.data(), block.size());
        content.append(block.data(), static_cast<std::size_t>(in.gcount()));
        if (!in) {
            if (in.eof())
                return content;
            problem = "can't be read";
            return std::nullopt;
        }
    }
    problem = "is larger than any trace";
    return std::nullopt;
}

bool IsParameterLine(std::string_view line)
{
    const std::size_t tab = line.find('\t');
    const auto printable = [](char c) { return static_cast<unsigned char>(c) >= ' '; };
    return tab != 0 && tab != std::string_view::npos &&
           std::all_of(line.begin(), line.begin() + tab, printable);
}

} // namespace

std::string OpenFile(const std::string& name, std::ifstream& file)
{
    std::error_code error;
    if (std::filesystem::is_directory(name, error))
        return "is a folder";
    errno = 0;
    file.open(name, std::ios::binary);
    return file ? std::string() : "can't be opened: " + std::generic_category().message(errno);
}

std::optional<std::string> ReadFile(const std::string& name, std::string& problem)
{
    std::ifstream file;
    problem = OpenFile(name, file);
    return problem.empty() ? ReadStream(file, problem) : std::nullopt;
}

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

std::optional<Input> ReadInput(Console& console, const std::string& name)
{
    std::string problem;
    auto content = name == StandardStream ? ReadStream(console.In, problem) : ReadFile(name, problem);
    if (content && content->empty())
        problem = "is empty";
    if (!problem.empty()) {
        console.Error(name, problem);
        return std::nullopt;
    }
    const TraceForm form = FormOf(*content);
    return Input{name, std::move(*content), form};
}

const FileKind* TextFileKind(std::string_view text, std::string& problem)
{
    const std::string mode(TraceText(text).ParamValue("Mode:"));
    for (const ModeRow& row : AllFamilies.Modes)
        if (row.TextFile != nullptr && ModeName(row.Mode) == mode)
            return row.TextFile;
    problem = mode.empty() ? "has no line \"Mode:\", which tells what it holds"
                           : "has a mode that isn't supported, \"" + TerminalText(mode) + "\"";
    return nullptr;
}

std::string StemOf(const std::string& name)
{
    return name == StandardStream ? "trace" : std::filesystem::path(name).stem().string();
}

} // namespace Traces::Cli
