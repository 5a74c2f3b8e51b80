#include "apps/cli/PictureLibrary.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace Traces::Cli {

namespace {

constexpr const char* LibraryName = "libTracesQt.so";

/// Where the library lies in a build folder and in an installation.
std::string PathBesideProgram()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string() : (program.parent_path() / ".." / "lib" / LibraryName).string();
}

} // namespace

PictureBackEnd* OpenPictureBackEnd(std::string& problem)
{
    const std::string beside = PathBesideProgram();
    std::error_code error;
    const bool isThere = !beside.empty() && std::filesystem::exists(beside, error);
    void* library = dlopen(isThere ? beside.c_str() : LibraryName, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        const char* reason = dlerror();
        problem = std::string("PNG and PDF need the Qt layer, which can't be opened: ") +
                  (reason != nullptr ? reason : LibraryName);
        return nullptr;
    }
    const auto function = reinterpret_cast<PictureBackEndFunction>(dlsym(library, PictureBackEndSymbol));
    PictureBackEnd* backEnd = function != nullptr ? function() : nullptr;
    if (backEnd == nullptr)
        problem = "PNG and PDF need the Qt layer, which makes no pictures here";
    return backEnd;
}

} // namespace Traces::Cli
