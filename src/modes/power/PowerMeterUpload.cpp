// The upload frames of a power meter's reading. A field stands 13 bytes below its raw offset; what no row
// names stays blank: the standard's name, the scale selector, the calibration flag.
#include "control/Control.h"
#include "formats/Numbers.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/power/PowerFields.h"
#include "modes/power/PowerMeterTrace.h"

namespace Traces {

namespace {

constexpr int FrameLength = 141;

/// What the file's line gives for a field, or nothing for a number that the field can't hold.
void PutTextField(UploadFrame& frame, const Field<PowerRecord>& field, const TraceText& text)
{
    const int position = field.Offset - FrameShift;
    const std::string_view value = text.ParamValue(field.Key);
    if (field.Key == "Channel Selection:") {
        if (const auto channel = NumberFromNA(value))
            frame.Put(position, PutI16(*channel));
        return;
    }
    RawForm form = field.Form();
    // This status alone is taken as a number, which neither "ON" nor "OFF" is: instruments get 0 for both.
    if (field.Key == "Power Offset Status:")
        form.Table = nullptr;
    if (form.Reader != Read::Byte || form.Table != nullptr || RoundTo<std::uint8_t>(ValueOf(value)))
        EncodeFieldText(frame, position, form, text, field.Key);
}

} // namespace

std::string EncodePowerMeterRecord(const Control& control)
{
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    EncodeFields(frame, control.Power, PowerMeterFields, FrameShift);
    return frame.Bytes();
}

std::string EncodePowerMeterText(std::string_view file)
{
    const TraceText text(file);
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, TraceMode::PowerMeter, text);
    for (const auto& field : PowerMeterFields)
        PutTextField(frame, field, text);
    return frame.Bytes();
}

std::string EncodePowerMeterRaw(std::string_view file)
{
    UploadFrame frame(FrameLength);
    PutFrameHeadFromRaw(frame, file);
    for (const auto& field : PowerMeterFields)
        CopyFileBytes(file, frame, field.Offset, field.Offset - FrameShift,
                      WidthOf(field.Reader, field.Width));
    return frame.Bytes();
}

} // namespace Traces
