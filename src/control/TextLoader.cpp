#include "control/TextLoader.h"

#include "control/Control.h"
#include "formats/Checksum.h"
#include "formats/Files.h"
#include "formats/Text.h"

#include <filesystem>
#include <system_error>

namespace Traces {

namespace {

/// The component's own name begins the names of its temporary files.
constexpr std::string_view TempPrefix = "Traces";

/// The field that the checksum library writes into a copy of the text; empty when anything fails.
std::string FreshChecksumField(Platform& platform, std::string_view text, const std::string& copy)
{
    std::string field;
    if (WriteWholeFile(copy, text) && platform.TavrixChecksumStdCall(copy, VerifyChecksumKey) != 0)
        if (const auto rewritten = ReadWholeFile(copy))
            field = ReadChecksumField(*rewritten);
    std::error_code error;
    std::filesystem::remove(copy, error);
    return field;
}

} // namespace

std::string MakeTempName(Platform& platform)
{
    std::string folder = platform.GetTempPathA();
    if (folder.empty())
        return {};
    constexpr auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
    if (folder.back() != separator)
        folder += separator;
    return platform.GetTempFileNameA(folder, TempPrefix);
}

bool VerifyTraceChecksum(Platform& platform, std::string_view text, const std::string& path)
{
    const std::string stored = ReadChecksumField(text);
    bool verified = false;
    if (stored.size() == ChecksumWidth) {
        // The test and the use each make a name, so one empty file stays behind at every verify. Tools that
        // clean up after the instruments' software count on it.
        const std::string copy = MakeTempName(platform).empty() ? path : MakeTempName(platform);
        verified = !copy.empty() && FreshChecksumField(platform, text, copy) == stored;
    }
    if (!verified)
        platform.MessageBox({"File Open", "Failed to open trace file.  Checksum failed.", MessageIcon::Stop});
    return verified;
}

std::optional<TraceText> BeginTextLoad(Control& control, std::string_view text, const std::string& path)
{
    if (!VerifyTraceChecksum(control.Platform, text, path))
        return std::nullopt;
    std::optional<TraceText> traceText(text);
    HeaderFromText(*traceText, control.Header, control.lstParameters);
    control.TraceName = TrimNuls(control.Header.RefNumber);
    return traceText;
}

void EndTextLoad(Control& control)
{
    control.CurrentMode = control.Header.Mode;
    control.TraceSaved = false;
    // A loader reports nothing but the checksum.
    TryRedrawTrace(control);
}

} // namespace Traces
