#include "modes/evdo/EvDOTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "modes/cdma/CodeRoutes.h"
#include "modes/evdo/EvDOChart.h"
#include "modes/evdo/EvDOFields.h"

#include <algorithm>

namespace Traces {

namespace {

void DecodeCurve(const RawBuffer& buffer, int offset, double version,
                 std::array<float, EvDORecord::CurvePoints>& curve)
{
    for (std::size_t i = 0; i < curve.size(); ++i)
        DecodeField(buffer, {offset + 2 * static_cast<int>(i), Read::U16, LevelScale, LevelBase(version)},
                    &curve[i]);
}

void DecodeBlocks(EvDORecord& record, const RawBuffer& buffer, const EvDOBlocks& blocks, double version)
{
    const auto power = [&](int offset, float& field) {
        DecodeField(buffer, {offset, Read::U32, CodePowerScale, CodePowerBase}, &field);
    };
    for (std::size_t i = 0; i < blocks.MACCodes; ++i) {
        const int offset = blocks.MAC + 5 * static_cast<int>(i);
        DecodeField(buffer, {offset, Read::Byte}, &record.CDPMACType[i]);
        power(offset + 1, record.CDPMACPower[i]);
    }
    for (std::size_t i = 0; i < EvDORecord::DataCodes; ++i) {
        power(blocks.DataI + 4 * static_cast<int>(i), record.CDPDataI[i]);
        power(blocks.DataQ + 4 * static_cast<int>(i), record.CDPDataQ[i]);
    }
    DecodeCurve(buffer, blocks.Spectrum, version, record.RFSpectrum);
    DecodeCurve(buffer, blocks.IdleTime, version, record.IdlePowerTime);
    DecodeCurve(buffer, blocks.ActiveTime, version, record.ActivePowerTime);
}

/// A delay below -30 is a number below zero, which the raw trace counts down from the largest one.
void DecodePathDelays(EvDORecord& record, const RawBuffer& buffer)
{
    constexpr double largest = 4'294'967'295.0;
    constexpr double longest = 1000;
    const auto delay = [](double raw) { return raw / 10 - 30; };
    for (std::size_t k = 0; k < EvDORecord::Paths; ++k)
        if (const auto raw = ReadU32(buffer, EvDOPathDelays + 4 * static_cast<int>(k)))
            record.PilotTau[k] =
                static_cast<float>(delay(*raw) > longest ? delay(*raw - largest) : delay(*raw));
}

double BeginDecode(Control& control, const RawBuffer& buffer)
{
    EvDORecord& record = control.EvDO;
    const double version = ValueOf(control.Header.Version);
    Library().TraceVersionValue = record.VersionNumber = version;
    DecodeFields(buffer, record, EvDOHeadFields(version));
    // The name wins over the code, at every version.
    DecodeCodeText(buffer, StandardName, StandardNameWidth, record.SignalStandard);
    return version;
}

void AddRows(const EvDORecord& record, std::size_t macCodes, ParameterList& lines)
{
    const auto add = [&](std::string_view stem, std::size_t row, std::size_t digits, float value,
                         const std::string& type) {
        std::string& line = lines.BeginLine();
        line += RowKey(stem, row + 1, digits);
        line += '\t';
        AppendNumberText(line, value);
        line += type;
        lines.EndLine();
    };
    for (std::size_t i = 0; i < macCodes; ++i)
        add("CDP MAC Data ", i, 2, record.CDPMACPower[i], '\t' + CDMAChannelType.Text(record.CDPMACType[i]));
    for (std::size_t i = 0; i < EvDORecord::DataCodes; ++i) {
        add("CDP Data I", i, 2, record.CDPDataI[i], {});
        add("CDP Data Q", i, 2, record.CDPDataQ[i], {});
    }
    for (const auto& [stem, curve] : {std::pair{"RF Spectrum Data ", &record.RFSpectrum},
                                      {"Idle Power/Time ", &record.IdlePowerTime},
                                      {"Active Power/Time ", &record.ActivePowerTime}})
        for (std::size_t i = 0; i < curve->size(); ++i)
            add(stem, i, 3, (*curve)[i], {});
}

/// Lines of a table; a code goes through the table of its key.
template <std::size_t Count>
void AddLines(const EvDORecord& record, const std::array<Field<EvDORecord>, Count>& fields,
              ParameterList& lines)
{
    for (const auto& field : fields) {
        const FieldView view = field.Member.In(record);
        if (const CodeTable* table = EvDOTableOf(field.Key)) {
            const int code = std::visit(
                [](const auto* value) {
                    if constexpr (std::is_same_v<decltype(value), const std::string*>)
                        return 0;
                    else
                        return static_cast<int>(*value);
                },
                view);
            lines.AddLine(field.Key, table->Text(code));
        } else if (field.Key == "Channel:") {
            lines.AddLine(field.Key, NumberOrNA(record.Channel));
            lines.AddLine("RefLelOffset CalStatus:", record.RefLevelOffsetCalStatus);
        } else if (field.Key == "Data Markers:") {
            lines.AddLine("Signal Standard Name:", record.SignalStandardName);
            lines.AddLine(field.Key, DataMarkersText(record.DataMarkers));
        } else {
            AddParamLine(lines, field.Key, view);
        }
    }
}

void StoreCode(FieldRef field, int code)
{
    std::visit(
        [&](auto* value) {
            using T = std::remove_pointer_t<decltype(value)>;
            if constexpr (std::is_integral_v<T>)
                *value = static_cast<T>(code);
        },
        field);
}

template <std::size_t Count>
void LoadKeys(const TraceText& text, EvDORecord& record, const std::array<Field<EvDORecord>, Count>& fields)
{
    for (const auto& field : fields) {
        const std::string_view key = CodeLookupKey(field.Key);
        const std::string_view value = text.ParamValue(key);
        const CodeTable* table = EvDOTableOf(field.Key);
        if (value.empty())
            LoadLine(text, key, field.Member.Of(record));
        else if (table != nullptr)
            StoreCode(field.Member.Of(record), table->Code(value));
        else if (field.Key == "Data Markers:")
            record.DataMarkers = DataMarkersValue(value);
        else if (field.Key == "Channel:")
            record.Channel = NumberFromNA(value).value_or(record.Channel);
        else
            LoadField(value, field.Member.Of(record), Through::FieldType);
    }
    LoadLine(text, "RefLelOffset CalStatus", &record.RefLevelOffsetCalStatus);
    LoadLine(text, "Signal Standard Name:", &record.SignalStandardName);
}

void LoadRows(const TraceText& text, EvDORecord& record, std::size_t macCodes)
{
    // A missing row takes the fields of the row before it: they stay in `fields`.
    LineFields fields;
    for (std::size_t i = 0; i < macCodes; ++i) {
        text.ParamFields(RowKey("CDP MAC Data ", i + 1, 2), fields);
        if (fields.UpperIndex != 1)
            continue;
        LoadField(fields.Parts[0], &record.CDPMACPower[i], Through::FieldType);
        record.CDPMACType[i] = static_cast<std::uint8_t>(CDMAChannelType.Code(fields.Parts[1]));
    }
    const auto load = [&](std::string_view stem, std::size_t row, std::size_t digits, float& field) {
        LoadField(text.ParamValue(RowKey(stem, row + 1, digits)), &field, Through::FieldType);
    };
    for (std::size_t i = 0; i < EvDORecord::DataCodes; ++i) {
        load("CDP Data I", i, 2, record.CDPDataI[i]);
        load("CDP Data Q", i, 2, record.CDPDataQ[i]);
    }
    for (std::size_t i = 0; i < EvDORecord::CurvePoints; ++i) {
        load("RF Spectrum Data ", i, 3, record.RFSpectrum[i]);
        load("Idle Power/Time ", i, 3, record.IdlePowerTime[i]);
        load("Active Power/Time ", i, 3, record.ActivePowerTime[i]);
    }
}

void WarnOfBadMeasurement(Control& control)
{
    const EvDORecord& record = control.EvDO;
    if (!IsGoodEvDOMeasurement(control))
        control.Platform.MessageBox(
            {"",
             "Cannot display the EvDO Trace.\r\nSignal Status: " +
                 MeasurementStatus.Text(record.SignalStatus) +
                 "\r\nMeasurement Status: " + ValidState.Text(record.MeasurementStatus),
             MessageIcon::Information});
}

/// What both loaders do behind their keys. False when the control is gone.
bool EndLoad(Control& control, const TraceText& text, std::size_t macCodes)
{
    LoadRows(text, control.EvDO, macCodes);
    SetCurrentMode(control, control.Header.Mode);
    TakeEvDOMarkers(control);
    control.EvDOViewMode = control.EvDO.DisplayType;
    const LifeWatch life(control);
    WarnOfBadMeasurement(control);
    if (life.Gone())
        return false;
    FillEvDOCurve(control);
    return true;
}

} // namespace

std::string DataMarkersText(std::uint8_t value)
{
    return BitGroupsText(value);
}

std::uint8_t DataMarkersValue(std::string_view text)
{
    unsigned value = 0;
    for (const char digit : text)
        if (digit == '0' || digit == '1')
            value = value << 1 | (digit == '1' ? 1U : 0U);
    return static_cast<std::uint8_t>(value);
}

void DecodeEvDOTrace(Control& control, const RawBuffer& buffer)
{
    EvDORecord& record = control.EvDO;
    const double version = BeginDecode(control, buffer);
    DecodeFields(buffer, record, EvDOScanFields(version));
    DecodeFields(buffer, record, EvDOTailFields(version));
    DecodeField(buffer, {EvDOOlderBlocks.CalStatus, Read::Byte}, &record.RefLevelOffsetCalStatus);
    DecodeBlocks(record, buffer, EvDOOlderBlocks, version);
    TakeEvDOMarkers(control);
    EvDOParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void DecodeEvDOTrace_v320_above(Control& control, const RawBuffer& buffer)
{
    EvDORecord& record = control.EvDO;
    const double version = BeginDecode(control, buffer);
    DecodeFields(buffer, record, EvDOScanFields_v320_above(version));
    DecodePathDelays(record, buffer);
    DecodeFields(buffer, record, EvDOTailFields_v320_above(version));
    DecodeField(buffer, {EvDOBlocks_v320_above.CalStatus, Read::Byte}, &record.RefLevelOffsetCalStatus);
    DecodeCodeText(buffer, EvDOUTCTime, UTCTimeWidth, record.UTCTime);
    DecodeField(buffer, {EvDOValidPilots, Read::Byte}, &record.NoValidPilotScan);
    DecodeBlocks(record, buffer, EvDOBlocks_v320_above, version);
    TakeEvDOMarkers(control);
    EvDOParams_v320_above(control, control.lstParameters);
    control.TraceSaved = false;
}

void DecodeEvDOTraceByVersion(Control& control, const RawBuffer& buffer)
{
    const bool newer = ValueOf(control.Header.Version) >= LayoutVersion;
    return newer ? DecodeEvDOTrace_v320_above(control, buffer) : DecodeEvDOTrace(control, buffer);
}

void EvDOParams(const Control& control, ParameterList& lines)
{
    const EvDORecord& record = control.EvDO;
    AddLines(record, EvDOHeadFields(LevelVersion), lines);
    AddLines(record, EvDOScanFields(LevelVersion), lines);
    AddLines(record, EvDOTailFields(LevelVersion), lines);
    AddRows(record, EvDOOlderBlocks.MACCodes, lines);
}

void EvDOParams_v320_above(const Control& control, ParameterList& lines)
{
    const EvDORecord& record = control.EvDO;
    AddLines(record, EvDOHeadFields(LayoutVersion), lines);
    AddLines(record, EvDOScanFields_v320_above(LayoutVersion), lines);
    for (std::size_t k = 0; k < EvDORecord::Paths; ++k)
        lines.AddLine(RowKey("Tau ", k + 1), NumberText(record.PilotTau[k]));
    lines.AddLine("UTC Time:", record.UTCTime);
    lines.AddLine("No Valid PilotScan:", NumberText(record.NoValidPilotScan));
    AddLines(record, EvDOTailFields_v320_above(LayoutVersion), lines);
    AddRows(record, EvDOBlocks_v320_above.MACCodes, lines);
}

void EvDOParamsByVersion(const Control& control, ParameterList& lines)
{
    const bool newer = Library().TraceVersionValue >= LayoutVersion;
    return newer ? EvDOParams_v320_above(control, lines) : EvDOParams(control, lines);
}

void LoadEvDOText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    EvDORecord& record = control.EvDO;
    LoadField(traceText->ParamValue("Version"), &record.VersionNumber, Through::FieldType);
    if (record.VersionNumber >= LayoutVersion)
        return LoadEvDOText_v320_above(control, text, path);
    Library().TraceVersionValue = record.VersionNumber;
    LoadKeys(*traceText, record, EvDOHeadFields(LevelVersion));
    LoadKeys(*traceText, record, EvDOScanFields(LevelVersion));
    LoadKeys(*traceText, record, EvDOTailFields(LevelVersion));
    if (!EndLoad(control, *traceText, EvDOOlderBlocks.MACCodes))
        return;
    EndTextLoad(control);
    EvDOParams(control, control.lstParameters);
}

void LoadEvDOText_v320_above(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    EvDORecord& record = control.EvDO;
    LoadField(traceText->ParamValue("Version"), &record.VersionNumber, Through::FieldType);
    Library().TraceVersionValue = record.VersionNumber;
    LoadKeys(*traceText, record, EvDOHeadFields(LayoutVersion));
    LoadKeys(*traceText, record, EvDOScanFields_v320_above(LayoutVersion));
    for (std::size_t k = 0; k < EvDORecord::Paths; ++k)
        LoadLine(*traceText, RowKey("Tau ", k + 1), &record.PilotTau[k]);
    LoadLine(*traceText, "UTC Time:", &record.UTCTime);
    LoadField(traceText->ParamValue("No Valid PilotScan:"), &record.NoValidPilotScan, Through::Float);
    LoadKeys(*traceText, record, EvDOTailFields_v320_above(LayoutVersion));
    if (!EndLoad(control, *traceText, EvDOBlocks_v320_above.MACCodes))
        return;
    EndTextLoad(control);
    EvDOParams_v320_above(control, control.lstParameters);
}

bool IsGoodEvDOMeasurement(const Control& control)
{
    return control.EvDO.SignalStatus < 1 && control.EvDO.MeasurementStatus == 0;
}

} // namespace Traces
