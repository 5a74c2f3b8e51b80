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

/// The field that the checksum library writes into a copy of the text; empty when it fails. The copy is
/// removed.
std::string FreshChecksumField(Platform& platform, const std::string& copy)
{
    std::string field;
    if (platform.TavrixChecksumStdCall(copy, VerifyChecksumKey) != 0)
        if (const auto rewritten = ReadWholeFile(copy))
            field = ReadChecksumField(*rewritten);
    std::error_code error;
    std::filesystem::remove(copy, error);
    return field;
}

/// Writes the text to a temporary file, or to `path` when none can be made. The file's name; empty when it
/// couldn't be written.
std::string WriteCopy(Platform& platform, std::string_view text, const std::string& path)
{
    // The test and the use each make a name, so one empty file stays behind at every verify. Tools that
    // clean up after the instruments' software count on it.
    if (MakeTempName(platform).empty())
        return !path.empty() && WriteWholeFile(path, text) ? path : std::string();
    // The file is there and empty; to truncate it would cost a flush of the disk.
    const std::string copy = MakeTempName(platform);
    return OverwriteFileBytes(copy, 0, text) ? copy : std::string();
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
        const std::string copy = WriteCopy(platform, text, path);
        verified = !copy.empty() && FreshChecksumField(platform, copy) == stored;
    }
    if (!verified)
        platform.MessageBox({"File Open", "Failed to open trace file.  Checksum failed.", MessageIcon::Stop});
    return verified;
}

void TakeTextHead(Control& control, const TraceText& text)
{
    HeaderFromText(text, control.Header, control.lstParameters);
    control.TraceName = TrimNuls(control.Header.RefNumber);
}

std::optional<TraceText> BeginTextLoad(Control& control, std::string_view text, const std::string& path)
{
    if (!VerifyTraceChecksum(control.Platform, text, path))
        return std::nullopt;
    std::optional<TraceText> traceText(text);
    TakeTextHead(control, *traceText);
    return traceText;
}

void EndTextLoad(Control& control)
{
    SetCurrentMode(control, control.Header.Mode);
    control.TraceSaved = false;
    // A loader reports nothing but the checksum.
    TryRedrawTrace(control);
}

} // namespace Traces
