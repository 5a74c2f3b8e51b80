#include "control/Upload.h"

#include "control/Control.h"
#include "control/TraceFile.h"
#include "formats/Text.h"

namespace Traces {

namespace {

std::string EncodeTraceFile(const Families& families, const std::string& path)
{
    const std::string extension = FileExtension(path);
    if (extension == "RAW")
        return EncodeRawFile(families, ReadWholeFileOrFault(path));
    const FileKind* kind = families.FindFileKind(extension);
    if (kind == nullptr || kind->EncodeText == nullptr)
        return {};
    return kind->EncodeText(ReadWholeFileOrFault(path));
}

} // namespace

std::string GetUpLoadTrace(Control& control, const std::string& path)
{
    if (!path.empty())
        return EncodeTraceFile(control.Families, path);
    const ModeRow* row = control.Families.FindMode(control.Header.Mode);
    if (row == nullptr || row->EncodeRecord == nullptr)
        return {};
    if (row->BeforeUpload != nullptr)
        row->BeforeUpload(control);
    return row->EncodeRecord(control);
}

std::string EncodeRawFile(const Families& families, std::string_view file)
{
    constexpr int modeOffset = 16;
    const auto mode = ReadByte(RawBuffer::FromText(file), modeOffset);
    const ModeRow* row = mode ? families.FindMode(*mode) : nullptr;
    return row != nullptr && row->EncodeRaw != nullptr ? row->EncodeRaw(file) : std::string();
}

std::string EncodeTextFile(const Families& families, std::string_view extension, std::string_view text)
{
    const FileKind* kind = families.FindFileKind(extension);
    return kind != nullptr && kind->EncodeText != nullptr ? kind->EncodeText(text) : std::string();
}

} // namespace Traces
