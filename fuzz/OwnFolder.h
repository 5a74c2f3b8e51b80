// A folder of a fuzz target's own, to work in: what a control writes to the current folder goes there.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace Traces::Fuzz {

/// A new folder, in memory where the system has one; it is the current one from here on, also for temporary
/// files, and is removed at the end.
class OwnFolder {
public:
    OwnFolder()
    {
        namespace fs = std::filesystem;
        std::error_code error;
        const fs::path memory = "/dev/shm";
        const fs::path parent = fs::is_directory(memory, error) ? memory : fs::temp_directory_path();
        std::string name = (parent / "traces-fuzz-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            std::abort();
        path = name;
        setenv("TMPDIR", name.c_str(), 1);
        fs::current_path(path);
    }
    ~OwnFolder()
    {
        std::error_code error;
        std::filesystem::current_path("/", error);
        std::filesystem::remove_all(path, error);
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;

    const std::filesystem::path& Path() const { return path; }

private:
    std::filesystem::path path;
};

/// Makes the names of the fuzzer's own files independent of the current folder; for LLVMFuzzerInitialize.
inline void MakeNamesAbsolute(int* argc, char*** argv)
{
    static std::vector<std::string> arguments(*argv, *argv + *argc);
    static std::vector<char*> pointers;
    constexpr std::string_view prefix = "-artifact_prefix=";
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string& argument = arguments[i];
        if (argument.starts_with(prefix))
            argument.replace(prefix.size(), argument.npos,
                             std::filesystem::absolute(argument.substr(prefix.size())));
        else if (i > 0 && !argument.starts_with('-'))
            argument = std::filesystem::absolute(argument);
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    *argv = pointers.data();
}

} // namespace Traces::Fuzz
