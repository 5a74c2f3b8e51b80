#include "apps/cli/Input.h"

#include "formats/Files.h"

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
    while (content.size() <= LargestFile) {
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

std::string StemOf(const std::string& name)
{
    return name == StandardStream ? "trace" : std::filesystem::path(name).stem().string();
}

} // namespace Traces::Cli
