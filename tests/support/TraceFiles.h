// Files for tests: a folder that no other test process shares, and the text of a trace file.
#pragma once

#include "formats/Checksum.h"

#include <filesystem>
#include <random>
#include <string>
#include <string_view>

namespace Traces::Testing {

/// A new folder that is removed with all that is in it: tests run side by side.
class TemporaryFolder {
public:
    TemporaryFolder()
    {
        std::random_device random;
        do
            path = std::filesystem::temp_directory_path() / ("traces-test-" + std::to_string(random()));
        while (!std::filesystem::create_directory(path));
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path; }
    std::string operator/(std::string_view name) const { return (path / name).string(); }

private:
    std::filesystem::path path;
};

/// A trace file's text with its checksum set right.
inline std::string WithChecksum(std::string_view lines)
{
    std::string text = std::string(EmptyChecksumLine) + std::string(lines);
    const std::size_t field = FindChecksumField(text);
    return text.replace(field, ChecksumWidth, ComputeChecksum(text, field));
}

} // namespace Traces::Testing
