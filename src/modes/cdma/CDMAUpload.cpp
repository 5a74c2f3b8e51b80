// The upload frames of a CDMA trace: the raw layout 13 bytes lower, in the version of the firmware that was
// decoded or loaded last, whatever the file's own is.
#include "control/Control.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "formats/UploadFrame.h"
#include "modes/cdma/CDMAFields.h"
#include "modes/cdma/CDMATrace.h"
#include "modes/cdma/CodeRoutes.h"

namespace Traces {

namespace {

constexpr int FrameLength = 1826;
constexpr double CodePowerOffset = -CodePowerBase * CodePowerScale;

void PutCode(UploadFrame& frame, std::size_t row, double power, double link, std::string_view type)
{
    const int code = static_cast<int>(row);
    frame.Put(CDMACodePowers - FrameShift + 4 * code, PutU32(power, CodePowerScale, CodePowerOffset));
    frame.Put(CDMALinks - FrameShift + code, PutByte(link));
    frame.Put(CDMAChannelTypes - FrameShift + code, PutByte(CDMAChannelType.Code(type)));
}

void PutSpectrumPoint(UploadFrame& frame, std::size_t row, double level, double version)
{
    frame.Put(CDMASpectrum - FrameShift + 2 * static_cast<int>(row),
              PutI16(level * LevelScale + PowerBias(version)));
}

template <std::size_t Count>
void PutTextFields(UploadFrame& frame, const TraceText& text,
                   const std::array<Field<CDMARecord>, Count>& fields)
{
    for (const auto& field : fields) {
        const int position = field.Offset - FrameShift;
        if (field.Key != "Channel:")
            EncodeFieldText(frame, position, field.Form(), text, field.Key);
        else
            frame.Put(position, PutI16(NumberFromNA(text.ParamValue(field.Key)).value_or(0)));
    }
}

/// What stands behind the results of the record route alone.
void PutPlace(UploadFrame& frame, const CDMARecord& record, bool newer)
{
    const RawForm& status = newer ? CDMACalStatus_v320_above : CDMACalStatus;
    EncodeFields(frame, record, newer ? CDMAPlaceFields_v320_above : CDMAPlaceFields, FrameShift);
    EncodeField(frame, status.Offset - FrameShift, status, &record.RefLevelOffsetCalStatus);
    if (!newer)
        return;
    frame.Put(CDMAUTCTime - FrameShift, FixedText(record.UTCTime, UTCTimeWidth));
    EncodeField(frame, CDMAValidPilots.Offset - FrameShift, CDMAValidPilots, &record.NoValidPilotScan);
}

/// The paths' delays have been moved on before: they go out as they stand.
void PutAdvancedTau(UploadFrame& frame, const CDMARecord& record)
{
    constexpr int first = 236 - FrameShift;
    constexpr double scale = 100;
    for (std::size_t k = 0; k < CDMARecord::Paths; ++k)
        frame.Put(first + 4 * static_cast<int>(k), PutU32(record.PilotTau[k], scale, 0));
}

} // namespace

void AdvanceCDMATau(Control& control)
{
    constexpr float advance = 30;
    if (Library().TraceVersionValue >= LayoutVersion)
        for (float& tau : control.CDMA.PilotTau)
            tau += advance;
}

std::string EncodeCDMARecord(const Control& control)
{
    const CDMARecord& record = control.CDMA;
    const double version = Library().TraceVersionValue;
    const bool newer = version >= LayoutVersion;
    UploadFrame frame(FrameLength);
    PutFrameHead(frame, control.Header);
    EncodeFields(frame, record, CDMAHeadFields(version), FrameShift);
    if (newer) {
        EncodeFields(frame, record, CDMAScanFields_v320_above(version), FrameShift);
        PutAdvancedTau(frame, record);
    } else {
        EncodeFields(frame, record, CDMAScanFields(version), FrameShift);
    }
    PutPlace(frame, record, newer);
    for (std::size_t i = 0; i < CDMARecord::Codes; ++i)
        PutCode(frame, i, record.CDPPower[i], record.CDPLink[i],
                CDMAChannelType.Text(record.CDPChannelType[i]));
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i)
        PutSpectrumPoint(frame, i, record.RFSpectrum[i], version);
    return frame.Bytes();
}

std::string EncodeCDMAText(std::string_view file)
{
    const TraceText text(file);
    const double version = Library().TraceVersionValue;
    UploadFrame frame(FrameLength);
    PutFrameHeadFromText(frame, TraceMode::CDMA, text);
    PutTextFields(frame, text, CDMAHeadFields(version));
    if (version >= LayoutVersion)
        PutTextFields(frame, text, CDMAScanFields_v320_above(version));
    else
        PutTextFields(frame, text, CDMAScanFields(version));
    for (std::size_t i = 0; i < CDMARecord::Codes; ++i) {
        LineFields fields;
        if (text.ParamFields(RowKey("CDP Data ", i + 1, 3), fields) && fields.UpperIndex == 2)
            PutCode(frame, i, ValueOf(fields.Parts[0]), ValueOf(fields.Parts[1]), fields.Parts[2]);
    }
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i)
        PutSpectrumPoint(frame, i, ValueOf(text.ParamValue(RowKey("RF Spectrum Data ", i + 1, 3))), version);
    return frame.Bytes();
}

std::string EncodeCDMARaw(std::string_view file)
{
    constexpr FileStretch stretches[] = {{57, 37},   {154, 86},  {304, 512},
                                         {816, 128}, {944, 128}, {1072, 768}};
    return FrameOfFile(file, FrameLength, stretches);
}

} // namespace Traces
