#include "formats/Files.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace Traces {

namespace fs = std::filesystem;

namespace {

struct FileCloser {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): this is the owner letting go
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

File Open(const std::string& path, const char* mode)
{
    return File(std::fopen(path.c_str(), mode));
}

bool Write(File file, std::string_view content)
{
    if (!file || std::fwrite(content.data(), 1, content.size(), file.get()) != content.size())
        return false;
    // The close writes what is still in the buffer, so a full disk may show only now.
    return std::fclose(file.release()) == 0;
}

/// Where a save really goes: the file behind symbolic links, also one that isn't there yet. Nothing for
/// links that lead back to themselves.
std::optional<std::string> ResolveLinks(fs::path path)
{
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int i = 0; i < mostLinks; ++i) {
        if (!fs::is_symlink(path, error))
            return path.string();
        path = path.parent_path() / fs::read_symlink(path, error);
        if (error)
            break;
    }
    return std::nullopt;
}

using Finish = std::function<void(const std::string& path)>;

/// Finishes the content in a temporary file and sends it on.
bool SendFinished(const std::string& path, std::string_view content, const Finish& finish)
{
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    if (error)
        return false;
    const auto copy = MakeNewFile((folder / "Traces").string());
    if (!copy)
        return false;
    bool sent = false;
    if (OverwriteFileBytes(*copy, 0, content)) {
        finish(*copy);
        const auto finished = ReadWholeFile(*copy);
        sent = finished && WriteWholeFile(path, *finished);
    }
    fs::remove(*copy, error);
    return sent;
}

} // namespace

std::optional<std::string> ReadWholeFile(const std::string& path)
{
    // Opening a folder succeeds on some systems; reading it must not look like an empty file.
    std::error_code error;
    if (fs::is_directory(path, error))
        return std::nullopt;
    const File file = Open(path, "rb");
    if (!file)
        return std::nullopt;
    std::string content;
    std::array<char, 65536> block; // NOLINT(cppcoreguidelines-pro-type-member-init): fread fills it
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get())) {
        content.append(block.data(), count);
        if (content.size() > LargestFile)
            return std::nullopt;
    }
    if (std::ferror(file.get()) != 0)
        return std::nullopt;
    return content;
}

bool WriteWholeFile(const std::string& path, std::string_view content)
{
    return Write(Open(path, "wb"), content);
}

bool OverwriteFileBytes(const std::string& path, std::size_t place, std::string_view bytes)
{
    File file = Open(path, "r+b");
    if (!file || std::fseek(file.get(), static_cast<long>(place), SEEK_SET) != 0)
        return false;
    return Write(std::move(file), bytes);
}

std::optional<std::string> MakeNewFile(const std::string& stem)
{
    constexpr int tries = 100;
    for (int i = 0; i < tries; ++i) {
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        std::string path = stem + std::to_string(ticks) + ".tmp";
        // "x" opens the file only when the name is new, whoever else may try the same.
        if (Open(path, "wbx"))
            return path;
    }
    return std::nullopt;
}

bool ReplaceFile(const std::string& path, std::string_view content, const Finish& finish)
{
    std::error_code error;
    const fs::file_status old = fs::status(path, error);
    if (fs::exists(old) && !fs::is_regular_file(old))
        return SendFinished(path, content, finish);
    const auto target = ResolveLinks(path);
    // A rename asks the folder for permission, not the file: a protected one has to be asked for here.
    if (!target || (fs::exists(old) && !Open(*target, "ab")))
        return false;
    const auto beside = MakeNewFile((fs::path(*target).parent_path() / "Traces").string());
    if (!beside)
        return false;
    if (OverwriteFileBytes(*beside, 0, content)) {
        finish(*beside);
        if (fs::exists(old))
            fs::permissions(*beside, old.permissions(), error);
        fs::rename(*beside, *target, error);
        if (!error)
            return true;
    }
    fs::remove(*beside, error);
    return false;
}

} // namespace Traces
