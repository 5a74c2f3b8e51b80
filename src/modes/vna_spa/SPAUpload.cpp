// The upload frames of a spectrum. Its parameters aren't the raw layout moved by one distance: the frame
// leaves fields out and closes the gaps.
#include "control/Control.h"
#include "formats/Files.h"
#include "formats/FormatValue.h"
#include "formats/HostFault.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/vna_spa/SPAFields.h"
#include "modes/vna_spa/SPATrace.h"

#include <optional>

namespace Traces {

namespace {

constexpr int FrameLength = 2004;
constexpr int FirstPointPosition = 401;
constexpr double LevelOffset = -SPALevelBias * SPALevelScale;

/// A stretch of the raw layout and what its frame positions lie below the raw offsets. What lies in none of
/// them isn't sent: the smallest step, four spare bytes, the power of the occupied bandwidth, the position.
struct Stretch {
    int First, Last, Shift;
};
constexpr Stretch Stretches[] = {{57, 72, 13}, {77, 316, 17}, {321, 358, 17}, {363, 363, 21}};

std::optional<int> FramePosition(int rawOffset)
{
    for (const Stretch& stretch : Stretches)
        if (rawOffset >= stretch.First && rawOffset <= stretch.Last)
            return rawOffset - stretch.Shift;
    return std::nullopt;
}

/// The text route asks for three fields by keys that instruments' own files hold. A file of this program has
/// them under others and sends 0.
std::string_view TextRouteKey(std::string_view key)
{
    if (key == "Center Freq:")
        return "Center Frequency:";
    if (key == "Freq Span:")
        return "Frequency Span:";
    if (key == "Interference Analysis Cell Bandwidth:")
        return "Interference Analysis Estimated Bandwidth:";
    return key;
}

void PutTextField(UploadFrame& frame, int position, const Field<SPARecord>& field, const TraceText& text)
{
    RawForm form = field.Form();
    if (field.Key == "Channel Selection:") {
        const std::string_view value = text.ParamValue(field.Key);
        frame.Put(position, PutI16(TrimBlanks(value) == "N/A" ? -1 : ValueOf(value)));
        return;
    }
    // Instruments' own files tell the impedance by name, ours by its code.
    if (field.Key == "Impedence:")
        form.Table = &Impedance;
    EncodeFieldText(frame, position, form, text, TextRouteKey(field.Key));
}

} // namespace

void PutNumberedPoints(UploadFrame& frame, const TraceText& text)
{
    const auto points = RoundTo<std::int16_t>(ValueOf(text.ParamValue("DataPoints:")));
    if (!points)
        throw HostFault(FaultKind::Overflow, "the file's point count doesn't fit its field");
    for (std::int32_t i = 0; i < *points; ++i)
        frame.Put(FirstPointPosition + SPAPointBytes * i,
                  PutU32FromText(text, FormatValue(i + 1, "#0:"), SPALevelScale, LevelOffset));
}

std::string EncodeSPARecord(const Control& control)
{
    const SPARecord& record = control.SPA;
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    for (const auto& field : SPAFields)
        if (const auto position = FramePosition(field.Offset))
            EncodeField(frame, *position, field.Form(), field.Member.In(record));
    for (int i = 0; i < control.Header.DataPoints; ++i) {
        const auto point = static_cast<std::size_t>(i);
        if (point >= SPARecord::MaxPoints)
            throw HostFault(FaultKind::Range, "the spectrum has more points than its record holds");
        frame.Put(FirstPointPosition + SPAPointBytes * i,
                  PutU32(record.PointLevel[point], SPALevelScale, LevelOffset));
    }
    return frame.Bytes();
}

std::string EncodeSPAText(std::string_view file)
{
    const TraceText text(file);
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, TraceMode::Spectrum, text);
    for (const auto& field : SPAFields)
        if (const auto position = FramePosition(field.Offset))
            PutTextField(frame, *position, field, text);
    PutNumberedPoints(frame, text);
    return frame.Bytes();
}

std::string EncodeSPARaw(std::string_view file)
{
    UploadFrame frame(FrameLength);
    const int points = PutFrameHeadFromRaw(frame, file);
    for (const Stretch& stretch : Stretches)
        CopyFileBytes(file, frame, stretch.First, stretch.First - stretch.Shift,
                      stretch.Last - stretch.First + 1);
    CopyFileBytes(file, frame, SPAFirstPoint, FirstPointPosition, points * SPAPointBytes);
    // This route alone has always left a copy of its last frame.
    if (!WriteWholeFile("Up.dmp", frame.Bytes()))
        throw HostFault(FaultKind::FileAccess, "can't write Up.dmp in the current folder");
    return frame.Bytes();
}

} // namespace Traces
