#include "control/Platform.h"

#include "formats/Checksum.h"
#include "formats/Files.h"

#include <chrono>
#include <filesystem>
#include <system_error>

namespace Traces {

std::uint32_t Platform::GetTickCount()
{
    using namespace std::chrono;
    return static_cast<std::uint32_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

std::string Platform::GetTempPathA()
{
    std::error_code error;
    return std::filesystem::temp_directory_path(error).string();
}

std::string Platform::GetTempFileNameA(const std::string& folder, std::string_view prefix)
{
    return MakeNewFile(folder + std::string(prefix)).value_or(std::string());
}

std::int32_t Platform::TavrixChecksumStdCall(const std::string& path, std::string_view key)
{
    return RewriteChecksum(path, key);
}

void WaitTicks(Platform& platform, std::uint32_t milliseconds)
{
    const std::uint32_t start = platform.GetTickCount();
    // The difference is right across the counter's wrap after 49 days.
    while (platform.GetTickCount() - start < milliseconds)
        platform.DoEvents();
}

} // namespace Traces
