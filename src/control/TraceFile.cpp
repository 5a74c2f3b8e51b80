#include "control/TraceFile.h"

#include "control/Control.h"
#include "control/TraceEntry.h"
#include "formats/Checksum.h"
#include "formats/Files.h"
#include "formats/HostFault.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

#include <utility>

namespace Traces {

namespace {

constexpr std::size_t LongestFileName = 256;

/// The checksum line and the parameter list, as a file holds them.
bool WriteTraceFile(Control& control, const std::string& filename)
{
    const std::string content = std::string(EmptyChecksumLine) + control.lstParameters.Text();
    bool summed = false;
    const bool written = ReplaceFile(filename, content, [&](const std::string& unfinished) {
        summed = control.Platform.TavrixChecksumStdCall(unfinished, SaveChecksumKey) == 0;
    });
    if (written && !summed)
        control.Platform.MessageBox(
            {"File Save", "File save operation failed:  Could not create Checksum.", MessageIcon::Stop});
    return written;
}

/// The decoder that a save of a raw trace takes: none for the power monitor and the high accuracy power
/// meter, which save what their records held before.
const ModeRow* RowForRawSave(const Control& control, RawTextForm form)
{
    int mode = control.Header.Mode;
    if (mode == TraceMode::PowerMonitor || mode == TraceMode::HighAccuracyPower)
        return nullptr;
    if (mode == TraceMode::Spectrogram && form == RawTextForm::Characters)
        mode = TraceMode::ChannelScanner;
    return control.Families.FindMode(mode);
}

} // namespace

bool AskSaveName(Control& control, std::string_view title, std::string& filename, int mode)
{
    SaveDialog dialog;
    dialog.Title = title;
    dialog.FileName = filename.substr(0, LongestFileName);
    const SaveFilter filter = ModeSaveFilter(static_cast<std::uint8_t>(mode));
    if (!filter.Text.empty())
        dialog.Filters.push_back({std::string(filter.Text), std::string(filter.Pattern)});
    dialog.Filters.push_back({"All Files (*.*)", "*.*"});
    dialog.FilterIndex = 2;
    dialog.DefaultExtension = filter.DefaultExtension;
    const auto answer = control.Platform.GetSaveFileNameA(dialog);
    filename = answer ? CutAtNul(*answer) : std::string();
    return answer.has_value();
}

bool SaveTrace(Control& control, std::string& filename)
{
    const LifeWatch watch(control);
    if (filename.empty() || !control.TraceSaved) {
        if (filename.empty())
            filename = control.TraceName;
        AskSaveName(control, "Save Current Trace", filename, control.Header.Mode);
    }
    if (filename.empty() || watch.Gone())
        return false;
    if (filename.find('.') == std::string::npos)
        filename += ModeExtension(control.Header.Mode);
    RebuildParameters(control);
    if (!WriteTraceFile(control, filename))
        return false;
    if (!watch.Gone())
        control.TraceSaved = true;
    return true;
}

bool SaveRawTrace(Control& control, std::string_view trace, std::string& filename, RawTextForm form)
{
    const RawBuffer buffer = RawBuffer::FromText(trace);
    DecodeHeader(buffer, control.Header, control.lstParameters);
    if (!PassesLengthGate(control, buffer))
        return false;
    const ModeRow* row = RowForRawSave(control, form);
    const LifeWatch life(control);
    if (row != nullptr && row->DecodeToSave != nullptr)
        row->DecodeToSave(control, buffer);
    else if (row != nullptr && row->Decode != nullptr)
        row->Decode(control, buffer);
    if (life.Gone())
        return false;
    // No dialog when a name is given.
    control.TraceSaved = true;
    return SaveTrace(control, filename);
}

bool LoadRawTrace(Control& control, const std::string& filename)
{
    constexpr std::size_t shortest = 2;
    const std::string content = ReadWholeFileOrFault(filename);
    bool shown = false;
    if (content.size() >= shortest) {
        Clear(control);
        control.TraceName = FileBaseName(filename);
        shown = ShowTrace(control, RawBuffer::FromText(content));
    }
    control.TraceSaved = false;
    return shown;
}

void LoadTextFile(Control& control, const std::string& path)
{
    const std::string extension = FileExtension(path);
    if (extension == "RAW") {
        LoadRawTrace(control, path);
    } else {
        const std::string text = ReadWholeFileOrFault(path);
        const FileKind* kind = control.Families.FindFileKind(extension);
        if (kind != nullptr && kind->LoadsByName)
            kind->Load(control, text, {});
    }
    control.TraceSaved = false;
}

std::string ReadWholeFileOrFault(const std::string& path)
{
    auto content = ReadWholeFile(path);
    if (!content)
        throw HostFault(FaultKind::FileAccess, "can't read " + path);
    return std::move(*content);
}

} // namespace Traces
