// Text trace files of any bytes through every loader and every text encoder. Checksums are always accepted,
// so that the loaders proper are reached; what a loaded trace saves must load and save as the same lines.
#include "Check.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/ModeTable.h"
#include "control/Plot.h"
#include "control/Upload.h"
#include "formats/Checksum.h"
#include "formats/Files.h"
#include "formats/HostFault.h"
#include "formats/TraceMode.h"
#include "output/Svg.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace {

using namespace Traces;
using Fuzz::Check;

/// One temporary file a process, in memory where the system has such a folder: a verification writes it,
/// reads it back and removes it.
const std::string& TemporaryFile()
{
    static const std::string path = [] {
        const std::filesystem::path memory = "/dev/shm";
        std::error_code error;
        const auto folder = is_directory(memory, error) ? memory : std::filesystem::temp_directory_path();
        return (folder / ("traces-fuzz-" + std::to_string(getpid()))).string();
    }();
    return path;
}

class AcceptingPlatform : public HeadlessPlatform {
public:
    std::string GetTempPathA() override { return "/"; }
    std::string GetTempFileNameA(const std::string&, std::string_view) override
    {
        return WriteWholeFile(TemporaryFile(), "") ? TemporaryFile() : std::string();
    }
    std::int32_t TavrixChecksumStdCall(const std::string&, std::string_view) override { return 1; }
};

/// The checksum doesn't depend on what stands in its own field.
void CheckChecksum(const std::string& file)
{
    const std::size_t field = FindChecksumField(file);
    if (field == file.npos)
        return;
    std::string signedFile = file;
    signedFile.replace(field, ChecksumWidth, ComputeChecksum(file, field));
    Check(FindChecksumField(signedFile) == field, "writing a checksum leaves it in its place");
    Check(ComputeChecksum(signedFile, field) == ReadChecksumField(signedFile), "a checksum verifies");
}

std::string FileOf(Plot& plot)
{
    plot.ParametersToSave();
    return std::string(EmptyChecksumLine) + plot.Instance().lstParameters.Text();
}

/// Whether a saved file says what was loaded: no line break in a text, no key that is looked for anywhere, a
/// mode whose name leads back, or that the loader sets by itself.
bool Returns(const Control& state, const FileKind& kind)
{
    const TraceHeader& header = state.Header;
    for (const std::string* text : {&header.Model, &header.Version, &header.Date, &header.Time,
                                    &header.RefNumber, &state.VNA.VNASignalStd, &state.SPA.AntennaName,
                                    &state.SPA.SignalStandard, &state.CS.SignalStandard, &state.CS.LinkType,
                                    &state.Spectro.AntennaName, &state.Spectro.SignalStandard})
        for (const char* breach : {"\r", "\n", "Data point", "Channel", "Sweep"})
            if (text->find(breach) != text->npos)
                return false;
    return kind.Extension == "CS" || kind.Extension == "SPG" ||
           ModeCode(ModeName(header.Mode)) == header.Mode;
}

/// Whether each value of the list stands in one line and leads back: a line feed in one may hide another
/// key's line, and the hexadecimal digits of an unknown code read as decimal ones.
bool ListReturns(const ParameterList& lines)
{
    for (std::size_t i = 0; i < lines.ListCount(); ++i)
        for (const char* breach : {"\n", "Unknown("})
            if (lines.List(i).find(breach) != std::string_view::npos)
                return false;
    return true;
}

void LoadAndSave(const FileKind& kind, const std::string& file)
{
    AcceptingPlatform platform;
    Plot plot(platform);
    Control& state = plot.Instance();
    kind.Load(state, file, {});
    for (const Message& message : platform.Messages)
        Check(message.Icon == MessageIcon::Information, "an accepted checksum shows no failure");
    Check(state.CurrentMode == state.Header.Mode && !state.TraceSaved, "a loaded trace is the one on show");
    const std::string saved = FileOf(plot);
    Check(FileOf(plot) == saved, "the list is built anew each time");
    plot.TraceInfo();
    SvgPicture(state);
    if (!Returns(state, kind) || !ListReturns(state.lstParameters))
        return;
    kind.Load(state, saved, {});
    Check(FileOf(plot) == saved, "a saved file loads and saves as it is", saved + FileOf(plot));
}

void Encode(const FileKind& kind, const std::string& file)
{
    if (kind.EncodeText == nullptr)
        return;
    try {
        const std::string frame = kind.EncodeText(file);
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(frame[i]); };
        Check(byte(0) * 256U + byte(1) == frame.size(), "a frame begins with its length");
    } catch (const HostFault&) {
        // More points or larger values than the frame holds: the host hears of it.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string file(reinterpret_cast<const char*>(data), size);
    if (FindChecksumField(file) == file.npos)
        file.insert(0, EmptyChecksumLine);
    CheckChecksum(file);
    for (const FileKind& kind : AllFamilies.Files) {
        LoadAndSave(kind, file);
        Encode(kind, file);
    }
    return 0;
}
