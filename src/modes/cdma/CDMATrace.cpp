#include "modes/cdma/CDMATrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "modes/cdma/CDMAChart.h"
#include "modes/cdma/CDMAFields.h"
#include "modes/cdma/CodeRoutes.h"

namespace Traces {

namespace {

void DecodeCodes(CDMARecord& record, const RawBuffer& buffer, double version)
{
    for (std::size_t i = 0; i < CDMARecord::Codes; ++i) {
        const int code = static_cast<int>(i);
        DecodeField(buffer, {CDMACodePowers + 4 * code, Read::U32, CodePowerScale, CodePowerBase},
                    &record.CDPPower[i]);
        DecodeField(buffer, {CDMALinks + code, Read::Byte}, &record.CDPLink[i]);
        DecodeField(buffer, {CDMAChannelTypes + code, Read::Byte}, &record.CDPChannelType[i]);
    }
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i)
        DecodeField(buffer,
                    {CDMASpectrum + 2 * static_cast<int>(i), Read::U16, LevelScale, LevelBase(version)},
                    &record.RFSpectrum[i]);
}

/// Takes the version over and reads what both layouts share.
double BeginDecode(Control& control, const RawBuffer& buffer)
{
    CDMARecord& record = control.CDMA;
    const double version = ValueOf(control.Header.Version);
    Library().TraceVersionValue = record.VersionNumber = version;
    const std::string standard = record.SignalStandard;
    DecodeFields(buffer, record, CDMAHeadFields(version));
    if (LevelVersion <= version) {
        record.SignalStandard = standard;
        DecodeCodeText(buffer, StandardName, StandardNameWidth, record.SignalStandard);
    }
    return version;
}

/// False when the control is gone.
bool EndDecode(Control& control, const RawBuffer& buffer, double version)
{
    DecodeCodes(control.CDMA, buffer, version);
    TakeCDMAMarkers(control);
    const LifeWatch life(control);
    CDMAStatusMessage(control);
    return !life.Gone();
}

/// The display's name in a report, whose table has other numbers than the views.
std::string DisplayName(const CDMARecord& record)
{
    constexpr int histogram = 0, overTheAir = 2, measurement = 3;
    switch (record.DisplayType) {
    case 3: return CDMADisplay.Text(overTheAir);
    case 4: return CDMADisplay.Text(measurement);
    case 1: return CDMADisplay.Text(1);
    default: return CDMADisplay.Text(histogram);
    }
}

void AddHeadLines(const CDMARecord& record, const std::string& display, ParameterList& lines)
{
    for (const auto& field : CDMAHeadFields(LevelVersion)) {
        if (field.Key == "Display Type:") {
            lines.AddLine(field.Key, display);
        } else if (field.Key == "Channel:") {
            lines.AddLine(field.Key, NumberOrNA(record.Channel));
            lines.AddLine("RefLelOffset CalStatus:", record.RefLevelOffsetCalStatus);
        } else {
            AddParamLine(lines, field.Key, field.Member.In(record));
        }
        if (field.Key == "Status Byte 3:")
            lines.AddLine("Options:", CDMAModeText(record.StatusByte3));
    }
}

void AddRows(const CDMARecord& record, ParameterList& lines)
{
    for (std::size_t i = 0; i < CDMARecord::Codes; ++i) {
        std::string& line = lines.BeginLine();
        line += RowKey("CDP Data ", i + 1, 3);
        line += '\t';
        AppendNumberText(line, record.CDPPower[i]);
        line += '\t' + NumberText(record.CDPLink[i]) + '\t' + CDMAChannelType.Text(record.CDPChannelType[i]);
        lines.EndLine();
    }
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i) {
        std::string& line = lines.BeginLine();
        line += RowKey("RF Spectrum Data ", i + 1, 3);
        line += '\t';
        AppendNumberText(line, record.RFSpectrum[i]);
        lines.EndLine();
    }
}

void AddOlderLines(const CDMARecord& record, const std::string& display, ParameterList& lines)
{
    AddHeadLines(record, display, lines);
    AddParamLines(lines, record, CDMAScanFields(LevelVersion));
    AddParamLines(lines, record, CDMAPlaceFields);
    AddRows(record, lines);
}

void AddNewerLines(const CDMARecord& record, const std::string& display, ParameterList& lines)
{
    AddHeadLines(record, display, lines);
    AddParamLines(lines, record, CDMAScanFields_v320_above(LayoutVersion));
    AddParamLines(lines, record, CDMAPlaceFields_v320_above);
    lines.AddLine("UTC Time:", record.UTCTime);
    lines.AddLine("No Valid PilotScan:", NumberText(record.NoValidPilotScan));
    AddRows(record, lines);
}

template <std::size_t Count>
void LoadKeys(const TraceText& text, CDMARecord& record, const std::array<Field<CDMARecord>, Count>& fields)
{
    for (const auto& field : fields) {
        // The two statuses aren't read back: they stay as the trace before left them.
        if (field.Key == "Signal Status:" || field.Key == "Measurement Status:")
            continue;
        const std::string_view key = CodeLookupKey(field.Key);
        const std::string_view value = text.ParamValue(key);
        if (field.Key != "Channel:" || value.empty())
            LoadLine(text, key, field.Member.Of(record));
        else
            record.Channel = NumberFromNA(value).value_or(record.Channel);
    }
    LoadLine(text, "RefLelOffset CalStatus", &record.RefLevelOffsetCalStatus);
}

void LoadRows(const TraceText& text, CDMARecord& record)
{
    // A missing row takes the fields of the row before it: they stay in `fields`.
    LineFields fields;
    for (std::size_t i = 0; i < CDMARecord::Codes; ++i) {
        text.ParamFields(RowKey("CDP Data ", i + 1, 3), fields);
        if (fields.UpperIndex != 2)
            continue;
        LoadField(fields.Parts[0], &record.CDPPower[i], Through::FieldType);
        LoadField(fields.Parts[1], &record.CDPLink[i], Through::FieldType);
        record.CDPChannelType[i] = static_cast<std::uint8_t>(CDMAChannelType.Code(fields.Parts[2]));
    }
    for (std::size_t i = 0; i < CDMARecord::SpectrumPoints; ++i)
        LoadField(text.ParamValue(RowKey("RF Spectrum Data ", i + 1, 3)), &record.RFSpectrum[i],
                  Through::FieldType);
}

/// What both loaders do behind their keys. False when the control is gone.
bool EndLoad(Control& control, const TraceText& text)
{
    CDMARecord& record = control.CDMA;
    LoadRows(text, record);
    SetCurrentMode(control, control.Header.Mode);
    TakeCDMAMarkers(control);
    control.CDMAViewMode = record.DisplayType;
    const LifeWatch life(control);
    CDMAStatusMessage(control);
    if (life.Gone())
        return false;
    TryFillCDMACurve(control);
    return true;
}

} // namespace

void DecodeCDMATrace(Control& control, const RawBuffer& buffer)
{
    CDMARecord& record = control.CDMA;
    const double version = BeginDecode(control, buffer);
    DecodeFields(buffer, record, CDMAScanFields(version));
    DecodeFields(buffer, record, CDMAPlaceFields);
    DecodeField(buffer, CDMACalStatus, &record.RefLevelOffsetCalStatus);
    if (!EndDecode(control, buffer, version))
        return;
    CDMAParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void DecodeCDMATrace_v320_above(Control& control, const RawBuffer& buffer)
{
    CDMARecord& record = control.CDMA;
    const double version = BeginDecode(control, buffer);
    DecodeFields(buffer, record, CDMAScanFields_v320_above(version));
    DecodeFields(buffer, record, CDMAPlaceFields_v320_above);
    DecodeField(buffer, CDMACalStatus_v320_above, &record.RefLevelOffsetCalStatus);
    DecodeCodeText(buffer, CDMAUTCTime, UTCTimeWidth, record.UTCTime);
    DecodeField(buffer, CDMAValidPilots, &record.NoValidPilotScan);
    if (!EndDecode(control, buffer, version))
        return;
    CDMAParams_v320_above(control, control.lstParameters);
    control.TraceSaved = false;
}

void DecodeCDMATraceByVersion(Control& control, const RawBuffer& buffer)
{
    const bool newer = ValueOf(control.Header.Version) >= LayoutVersion;
    return newer ? DecodeCDMATrace_v320_above(control, buffer) : DecodeCDMATrace(control, buffer);
}

void CDMAParams(const Control& control, ParameterList& lines)
{
    AddOlderLines(control.CDMA, NumberText(control.CDMA.DisplayType), lines);
}

void CDMAParams_v320_above(const Control& control, ParameterList& lines)
{
    AddNewerLines(control.CDMA, NumberText(control.CDMA.DisplayType), lines);
}

void CDMAParamsByVersion(const Control& control, ParameterList& lines)
{
    const bool newer = Library().TraceVersionValue >= LayoutVersion;
    return newer ? CDMAParams_v320_above(control, lines) : CDMAParams(control, lines);
}

void CDMAReport(const Control& control, ParameterList& lines)
{
    const bool newer = Library().TraceVersionValue >= LayoutVersion;
    (newer ? AddNewerLines : AddOlderLines)(control.CDMA, DisplayName(control.CDMA), lines);
}

void LoadCDMAText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    CDMARecord& record = control.CDMA;
    LoadField(traceText->ParamValue("Version"), &record.VersionNumber, Through::FieldType);
    if (record.VersionNumber >= LayoutVersion)
        return LoadCDMAText_v320_above(control, text, path);
    Library().TraceVersionValue = record.VersionNumber;
    LoadKeys(*traceText, record, CDMAHeadFields(LevelVersion));
    LoadKeys(*traceText, record, CDMAScanFields(LevelVersion));
    if (!EndLoad(control, *traceText))
        return;
    EndTextLoad(control);
    CDMAParams(control, control.lstParameters);
}

void LoadCDMAText_v320_above(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    CDMARecord& record = control.CDMA;
    LoadField(traceText->ParamValue("Version"), &record.VersionNumber, Through::FieldType);
    Library().TraceVersionValue = record.VersionNumber;
    LoadKeys(*traceText, record, CDMAHeadFields(LayoutVersion));
    LoadKeys(*traceText, record, CDMAScanFields_v320_above(LayoutVersion));
    LoadKeys(*traceText, record, CDMAPlaceFields_v320_above);
    LoadLine(*traceText, "UTC Time:", &record.UTCTime);
    LoadField(traceText->ParamValue("No Valid PilotScan:"), &record.NoValidPilotScan, Through::Float);
    if (!EndLoad(control, *traceText))
        return;
    EndTextLoad(control);
    CDMAParams_v320_above(control, control.lstParameters);
}

bool IsGoodCDMAMeasurement(const Control& control)
{
    const CDMARecord& record = control.CDMA;
    return MeasurementStatus.Code(record.SignalStatus) < 1 && ValidState.Code(record.MeasurementStatus) == 0;
}

void CDMAStatusMessage(Control& control)
{
    if (IsGoodCDMAMeasurement(control))
        return;
    const CDMARecord& record = control.CDMA;
    control.Platform.MessageBox({"",
                                 "Cannot display the CDMA Trace.\r\nSignal Status: " + record.SignalStatus +
                                     "\r\nMeasurement Status: " + record.MeasurementStatus,
                                 MessageIcon::Information});
}

GpsFix CDMAPosition(const Control& control)
{
    const CDMARecord& record = control.CDMA;
    return {record.GpsLatitude, record.GpsLongitude, record.GpsAltitude, record.UTCTime};
}

} // namespace Traces
