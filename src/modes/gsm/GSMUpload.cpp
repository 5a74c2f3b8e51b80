// The upload frames of a GSM trace: the raw layout 13 bytes lower.
#include "control/Control.h"
#include "formats/CodeTable.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/gsm/GSMFields.h"
#include "modes/gsm/GSMTrace.h"

namespace Traces {

namespace {

constexpr int FrameLength = 2562;

void PutLevel(UploadFrame& frame, const GSMCurveField& curve, std::size_t point, double level, double bias)
{
    const int position = curve.Offset - FrameShift + 2 * static_cast<int>(point);
    frame.Put(position, PutI16(level * GSMLevelScale + bias));
}

/// A number that no byte holds leaves its place blank.
bool IsByte(double value)
{
    return RoundTo<std::uint8_t>(value).has_value();
}

/// The status of the reference offset stands in the record route's frames alone, as the name in front of it.
constexpr std::string_view RecordRouteKey = "RefLelOffset CalStatus:";

void PutTextField(UploadFrame& frame, const TraceText& text, const Field<GSMRecord>& field)
{
    const int position = field.Offset - FrameShift;
    const std::string_view value = text.ParamValue(field.Key);
    if (field.Key == "Channel:")
        frame.Put(position, PutI16(NumberFromNA(value).value_or(0)));
    else if (field.Key == "Display Units:")
        frame.Put(position, PutByte(GSMUnits.Code(value)));
    else if (field.Key != RecordRouteKey && (field.Reader != Read::Byte || IsByte(ValueOf(value))))
        EncodeFieldText(frame, position, field.Form(), text, field.Key);
}

} // namespace

std::string EncodeGSMRecord(const Control& control)
{
    const GSMRecord& record = control.GSM;
    const double bias = GSMLevelBias(control.Header.Version);
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    for (const auto& field : GSMFields(bias))
        if (field.Key != RecordRouteKey || IsByte(ValueOf(record.RefLevelCalStatus)))
            EncodeField(frame, field.Offset - FrameShift, field.Form(), field.Member.In(record));
    frame.Put(GSMStandardName - FrameShift, FixedText(record.SignalStandard, GSMStandardNameWidth));
    for (const GSMCurveField& curve : GSMCurves)
        for (std::size_t i = 0; i < GSMRecord::Points; ++i)
            PutLevel(frame, curve, i, (record.*curve.Curve)[i], bias);
    return frame.Bytes();
}

std::string EncodeGSMText(std::string_view file)
{
    constexpr std::size_t versionWidth = 4;
    const TraceText text(file);
    const double bias = GSMLevelBias(FixedText(text.ParamValue("Version:"), versionWidth));
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, TraceMode::GSM, text);
    for (const auto& field : GSMFields(bias))
        PutTextField(frame, text, field);
    for (std::size_t i = 0; i < GSMRecord::Points; ++i) {
        LineFields fields;
        if (!text.ParamFields(RowKey("", i, 3), fields) || fields.Parts.size() != std::size(GSMCurves))
            continue;
        for (std::size_t c = 0; c < std::size(GSMCurves); ++c)
            PutLevel(frame, GSMCurves[c], i, ValueOf(fields.Parts[c]), bias);
    }
    return frame.Bytes();
}

std::string EncodeGSMRaw(std::string_view file)
{
    constexpr FileStretch stretches[] = {{57, 30}, {127, 14}, {157, 802}, {959, 802}, {1761, 802}};
    return FrameOfFile(file, FrameLength, stretches);
}

} // namespace Traces
