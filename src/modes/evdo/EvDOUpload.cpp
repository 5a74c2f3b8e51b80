// The upload frames of an EV-DO trace: the older raw layout 13 bytes lower, at every firmware, and what
// instruments have got of it all along.
#include "control/Control.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/cdma/CodeRoutes.h"
#include "modes/evdo/EvDOFields.h"
#include "modes/evdo/EvDOTrace.h"

namespace Traces {

namespace {

constexpr int FrameLength = 3139;
constexpr double CodePowerOffset = -CodePowerBase * CodePowerScale;
constexpr const EvDOBlocks& Blocks = EvDOOlderBlocks;

/// The Q block has kept its raw place: the spectrum, written later, covers its end.
constexpr int DataQPosition = 785;

/// Fields whose way into a frame isn't that of the table. False for those that have no rule of their own.
bool PutOddNumber(UploadFrame& frame, const Field<EvDORecord>& field, double value, double activityScale)
{
    const int position = field.Offset - FrameShift;
    if (field.Key == "Scale Division:") // unscaled
        frame.Put(position, PutI16(value));
    else if (field.Key == "Idle Activity:" || field.Key == "Active Activity:")
        frame.Put(position, PutI16(value * activityScale));
    else if (field.Key == "CDP Threshold:") // two bytes of the four
        frame.Put(position, PutU32(value, LevelScale, -field.Then * LevelScale).substr(0, 2));
    else
        return false;
    return true;
}

void PutMACCode(UploadFrame& frame, std::size_t row, double type, double power)
{
    const int position = Blocks.MAC - FrameShift + 5 * static_cast<int>(row);
    frame.Put(position, PutByte(type));
    frame.Put(position + 1, PutU32(power, CodePowerScale, CodePowerOffset));
}

void PutDataCode(UploadFrame& frame, int first, std::size_t row, double power)
{
    frame.Put(first + 4 * static_cast<int>(row), PutU32(power, CodePowerScale, CodePowerOffset));
}

void PutCurvePoint(UploadFrame& frame, int offset, std::size_t row, double level)
{
    frame.Put(offset - FrameShift + 2 * static_cast<int>(row),
              PutI16(level * LevelScale + PowerBias(Library().TraceVersionValue)));
}

template <std::size_t Count>
void PutRecordFields(UploadFrame& frame, const EvDORecord& record,
                     const std::array<Field<EvDORecord>, Count>& fields)
{
    constexpr double activityScale = 10;
    for (const auto& field : fields) {
        const FieldView view = field.Member.In(record);
        const auto* number = std::get_if<const float*>(&view);
        if (number == nullptr || !PutOddNumber(frame, field, static_cast<double>(**number), activityScale))
            EncodeField(frame, field.Offset - FrameShift, field.Form(), view);
    }
}

template <std::size_t Count>
void PutTextFields(UploadFrame& frame, const TraceText& text,
                   const std::array<Field<EvDORecord>, Count>& fields)
{
    // Ten times what the record route and the instruments have.
    constexpr double activityScale = 100;
    for (const auto& field : fields) {
        const std::string_view value = text.ParamValue(field.Key);
        RawForm form = field.Form();
        if (PutOddNumber(frame, field, ValueOf(value), activityScale))
            continue;
        if (const CodeTable* table = EvDOTableOf(field.Key))
            form.Table = table;
        const int position = field.Offset - FrameShift;
        if (field.Key == "Channel:")
            frame.Put(position, PutI16(NumberFromNA(value).value_or(0)));
        else if (field.Key == "Data Markers:")
            frame.Put(position, PutByte(DataMarkersValue(value)));
        else
            EncodeFieldText(frame, position, form, text, field.Key);
    }
}

void PutStandardName(UploadFrame& frame, std::string_view name)
{
    frame.Put(StandardName - FrameShift, FixedText(name, StandardNameWidth));
}

/// The text route's places of the pilots' numbers: as instruments have got them, the sixth one too low.
void PutPilotNumbers(UploadFrame& frame, const TraceText& text)
{
    constexpr int positions[] = {199, 201, 203, 205, 207, 208, 211};
    // What the table has put at the places of the record route.
    frame.Put(201, std::string(14, ' '));
    for (std::size_t k = 0; k < std::size(positions); ++k)
        frame.Put(positions[k], PutI16(ValueOf(text.ParamValue(RowKey("Pilot Scan PN ", k + 1)))));
}

} // namespace

std::string EncodeEvDORecord(const Control& control)
{
    const EvDORecord& record = control.EvDO;
    const double version = Library().TraceVersionValue;
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    PutRecordFields(frame, record, EvDOHeadFields(version));
    PutStandardName(frame, record.SignalStandardName);
    // Two of the active slot's levels have always been those of the whole frame.
    EvDORecord sent = record;
    sent.PilotMACPowerActive = record.PilotMACPowerAverage;
    sent.DataPowerActive = record.DataPowerAverage;
    PutRecordFields(frame, sent, EvDOScanFields(version));
    PutRecordFields(frame, sent, EvDOTailFields(version));
    for (std::size_t i = 0; i < Blocks.MACCodes; ++i)
        PutMACCode(frame, i, record.CDPMACType[i], record.CDPMACPower[i]);
    for (std::size_t i = 0; i < EvDORecord::DataCodes; ++i) {
        PutDataCode(frame, Blocks.DataI - FrameShift, i, record.CDPDataI[i]);
        PutDataCode(frame, DataQPosition, i, record.CDPDataQ[i]);
    }
    for (std::size_t i = 0; i < EvDORecord::CurvePoints; ++i) {
        PutCurvePoint(frame, Blocks.Spectrum, i, record.RFSpectrum[i]);
        PutCurvePoint(frame, Blocks.IdleTime, i, record.IdlePowerTime[i]);
        PutCurvePoint(frame, Blocks.ActiveTime, i, record.ActivePowerTime[i]);
    }
    return frame.Bytes();
}

std::string EncodeEvDOText(std::string_view file)
{
    const TraceText text(file);
    const double version = Library().TraceVersionValue;
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, TraceMode::EvDO, text);
    PutTextFields(frame, text, EvDOHeadFields(version));
    PutStandardName(frame, text.ParamValue("Signal Standard Name:"));
    PutTextFields(frame, text, EvDOScanFields(version));
    PutPilotNumbers(frame, text);
    PutTextFields(frame, text, EvDOTailFields(version));
    for (std::size_t i = 0; i < Blocks.MACCodes; ++i) {
        LineFields fields;
        if (text.ParamFields(RowKey("CDP MAC Data ", i + 1, 2), fields) && fields.UpperIndex == 1)
            PutMACCode(frame, i, CDMAChannelType.Code(fields.Parts[1]), ValueOf(fields.Parts[0]));
    }
    const auto valueOf = [&](std::string_view stem, std::size_t row, std::size_t digits) {
        return ValueOf(text.ParamValue(RowKey(stem, row + 1, digits)));
    };
    for (std::size_t i = 0; i < EvDORecord::DataCodes; ++i) {
        PutDataCode(frame, Blocks.DataI - FrameShift, i, valueOf("CDP Data I", i, 2));
        PutDataCode(frame, DataQPosition, i, valueOf("CDP Data Q", i, 2));
    }
    for (std::size_t i = 0; i < EvDORecord::CurvePoints; ++i) {
        PutCurvePoint(frame, Blocks.Spectrum, i, valueOf("RF Spectrum Data ", i, 3));
        PutCurvePoint(frame, Blocks.IdleTime, i, valueOf("Idle Power/Time ", i, 3));
        PutCurvePoint(frame, Blocks.ActiveTime, i, valueOf("Active Power/Time ", i, 3));
    }
    return frame.Bytes();
}

std::string EncodeEvDORaw(std::string_view file)
{
    constexpr FileStretch stretches[] = {{57, 62},   {154, 133}, {287, 14},   {301, 100}, {401, 320},
                                         {721, 128}, {849, 768}, {1617, 768}, {2385, 768}};
    return FrameOfFile(file, FrameLength, stretches);
}

} // namespace Traces
