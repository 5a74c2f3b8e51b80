#include "apps/cli/Output.h"

#include "apps/cli/Input.h"
#include "formats/Files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Traces::Cli {

namespace fs = std::filesystem;

namespace {

std::string RealPath(const std::string& path)
{
    std::error_code error;
    const fs::path real = fs::weakly_canonical(path, error);
    return error ? path : real.string();
}

} // namespace

std::string TargetProblem(const std::string& target)
{
    std::error_code error;
    if (fs::is_directory(target, error))
        return "is a folder";
    const fs::path parent = fs::path(target).parent_path();
    if (!parent.empty() && !fs::is_directory(parent, error))
        return "can't be written: there is no folder " + parent.string();
    return {};
}

bool WriteOutput(Console& console, const std::string& target, std::string_view content)
{
    if (target == StandardStream) {
        console.Out.write(content.data(), static_cast<std::streamsize>(content.size()));
        return console.Out.good();
    }
    std::string problem = TargetProblem(target);
    if (problem.empty() && !ReplaceFile(target, content, [](const std::string&) {}))
        problem = "can't be written";
    if (!problem.empty())
        console.Error(target, problem);
    return problem.empty();
}

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

std::string LowerExtension(const std::string& path)
{
    const std::string extension = fs::path(path).extension().string();
    return extension.empty() ? extension : LowerCase(extension).substr(1);
}

bool SameFile(const std::string& a, const std::string& b)
{
    std::error_code error;
    return fs::equivalent(a, b, error) && !error;
}

FolderTargets::FolderTargets(std::string targetFolder, std::string targetExtension,
                             const std::vector<std::string>& inputs)
    : folder(std::move(targetFolder)), extension(std::move(targetExtension))
{
    for (const std::string& input : inputs)
        inputPaths.insert(RealPath(input));
}

std::string FolderTargets::For(Console& console, const std::string& input)
{
    const std::string stem = StemOf(input);
    const std::string wanted = stem + "." + extension;
    const auto pathOf = [&](const std::string& name) { return (fs::path(folder) / name).string(); };
    const auto isFree = [&](const std::string& name) {
        return !taken.contains(name) && !inputPaths.contains(RealPath(pathOf(name)));
    };
    std::string name = wanted;
    int& number = lastNumbers[stem];
    while (!isFree(name))
        name = stem + "-" + std::to_string(++number + 1) + "." + extension;
    if (name != wanted)
        console.Note(input, "goes to " + name + ", since " + wanted +
                                (taken.contains(wanted) ? " is another input's" : " is an input"));
    taken.insert(name);
    return pathOf(name);
}

} // namespace Traces::Cli
