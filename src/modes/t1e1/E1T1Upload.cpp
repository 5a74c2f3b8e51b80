// The upload frames of a line test: every field 13 bytes below its raw offset.
#include "control/Control.h"
#include "formats/Numbers.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/t1e1/E1T1Fields.h"
#include "modes/t1e1/E1T1Trace.h"

namespace Traces {

namespace {

constexpr int FrameLength = 737;
constexpr int VppPosition = 643;

constexpr std::string_view UserPatternKey = "User Defined Pattern:";

/// Instruments take three of the four bytes.
void PutUserPattern(UploadFrame& frame, double pattern)
{
    constexpr int position = 101;
    constexpr std::size_t taken = 3;
    frame.Put(position, PutU32(pattern, 1, 0).substr(0, taken));
}

void PutSlice(UploadFrame& frame, std::size_t slice, double flags, double count)
{
    const int position = FirstSlice - FrameShift + SliceBytes * static_cast<int>(slice);
    if (RoundTo<std::uint8_t>(flags))
        frame.Put(position, PutByte(flags));
    frame.Put(position + 1, PutU32(count, 1, 0));
}

/// The seconds and minutes aren't sent.
void PutEnd(UploadFrame& frame)
{
    constexpr int position = 674;
    frame.Put(position, std::string(FrameLength - position + 1, '\0'));
}

/// A number that no byte holds leaves its place blank.
void PutTextField(UploadFrame& frame, const Field<E1T1Record>& field, const TraceText& text)
{
    RawForm form = field.Form();
    // The words of these two are codes in the record.
    if (field.Key == "Loop Code:")
        form.Table = &LoopCode;
    else if (field.Key == "Loop Type:")
        form.Table = &LoopType;
    const bool isNumber = form.Table == nullptr && form.Reader == Read::Byte;
    if (!isNumber || RoundTo<std::uint8_t>(ValueOf(text.ParamValue(field.Key))))
        EncodeFieldText(frame, field.Offset - FrameShift, form, text, field.Key);
}

/// The text route has always asked for three of the lines in lower case, which none is: it finds 0. And it
/// sends every level as one in dBdsx.
void PutTextTail(UploadFrame& frame, const TraceText& text)
{
    for (const auto& field : E1T1TailFields)
        PutTextField(frame, field, text);
    frame.Put(671, PutByte(RoundTo<std::uint8_t>(ValueOf(text.ParamValue("Vpp Scaling:"))).value_or(0)));
    frame.Put(672, PutByte(VFTermination.Code(text.ParamValue("Vpp Rx Config:"))));
    frame.Put(673, PutByte(VFImpedance.Code(text.ParamValue("Vpp Impedance:"))));
    frame.Put(VppPosition, PutI16(ValueOf(text.ParamValue("VPP/dBdsx:")) * VppScale + DbdsxBias));
}

} // namespace

std::string EncodeE1T1Record(const Control& control)
{
    const E1T1Record& record = control.E1T1;
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    for (const auto& field : E1T1HeadFields)
        if (field.Key != UserPatternKey)
            EncodeField(frame, field.Offset - FrameShift, field.Form(), field.Member.In(record));
    PutUserPattern(frame, record.UserPattern);
    for (std::size_t i = 0; i < record.Slices.size(); ++i)
        PutSlice(frame, i, record.Slices[i].SliceFlags, record.Slices[i].SliceCount);
    EncodeFields(frame, record, E1T1TailFields, FrameShift);
    const double bias = record.VppScaling != 0 ? DbdsxBias : 0;
    frame.Put(VppPosition, PutI16(static_cast<double>(record.VppLevel) * VppScale + bias));
    PutEnd(frame);
    return frame.Bytes();
}

std::string EncodeE1T1Text(std::string_view file)
{
    const TraceText text(file);
    const bool isE1 = text.ParamValue("Mode:").starts_with("E1");
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, isE1 ? TraceMode::E1 : TraceMode::T1, text);
    for (const auto& field : E1T1HeadFields)
        if (field.Key != UserPatternKey)
            PutTextField(frame, field, text);
    PutUserPattern(frame, ValueOf(text.ParamValue(UserPatternKey)));
    for (std::size_t i = 0; i < E1T1Record::SliceRoom; ++i) {
        if (const auto columns = SliceColumns(text.ParamValue(SliceKey(i))))
            PutSlice(frame, i, ValueOf(columns->first), ValueOf(columns->second));
    }
    PutTextTail(frame, text);
    PutEnd(frame);
    return frame.Bytes();
}

std::string EncodeE1T1Raw(std::string_view file)
{
    constexpr FileStretch stretches[] = {{57, 694}};
    return FrameOfFile(file, FrameLength, stretches);
}

} // namespace Traces
