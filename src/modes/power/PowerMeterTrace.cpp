#include "modes/power/PowerMeterTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "modes/power/PowerFields.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

/// Firmware from here on sends the signal standard's name.
constexpr double FirstVersionWithName = 3.15;

/// The divisor of the band's four frequencies: from a selector of 10 on, they come in tens of hertz.
double BandDivisor(const RawBuffer& buffer)
{
    constexpr int selectorOffset = 96;
    constexpr int firstCoarse = 10;
    return ReadI16(buffer, selectorOffset).value_or(0) < firstCoarse ? HzPerMHz : HzPerMHz / 10;
}

bool IsBandFrequency(const Field<PowerRecord>& field)
{
    constexpr int start = 59;
    constexpr int span = 71;
    return field.Offset >= start && field.Offset <= span;
}

void TakeStandardName(PowerRecord& record, const RawBuffer& buffer)
{
    constexpr int nameOffset = 117;
    constexpr int nameWidth = 24;
    if (const auto name = ReadChars(buffer, nameOffset, nameWidth))
        record.SignalStandard = CutAtNul(*name);
}

/// The calibration flag overrules the offset's own status.
void TakeCalFlag(PowerRecord& record, const RawBuffer& buffer)
{
    constexpr int calFlagOffset = 155;
    DecodeField(buffer, {calFlagOffset, Read::Byte}, &record.CalFlag);
    if (record.CalFlag == "1")
        record.OffsetStatus = "CAL ON";
}

/// These are looked up with their colon: without it, the first three would be found in the line of another
/// field that begins alike.
constexpr auto KeysWithColon = std::to_array<std::string_view>(
    {"Power Offset:", "Power Relative:", "Signal Standard:", "Signal Standard Link Type:"});

std::string_view LoadKeyOf(const Field<PowerRecord>& field)
{
    return std::ranges::count(KeysWithColon, field.Key) != 0 ? field.Key : field.LoadKey();
}

} // namespace

void DecodePowerMeter(Control& control, const RawBuffer& buffer)
{
    PowerRecord& record = control.Power;
    Library().TraceVersionValue = ValueOf(control.Header.Version);
    const double bandDivisor = BandDivisor(buffer);
    for (const auto& field : PowerMeterFields) {
        RawForm form = field.Form();
        if (IsBandFrequency(field))
            form.Divisor = bandDivisor;
        DecodeField(buffer, form, field.Member.Of(record));
    }
    if (Library().TraceVersionValue >= FirstVersionWithName)
        TakeStandardName(record, buffer);
    TakeCalFlag(record, buffer);
    PowerMeterParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void PowerMeterParams(const Control& control, ParameterList& lines)
{
    const PowerRecord& record = control.Power;
    constexpr std::string_view linkTypeKey = "Signal Standard Link Type:";
    for (const auto& field : PowerMeterFields) {
        if (field.Key == linkTypeKey)
            continue; // It is listed beside its standard.
        if (field.Key == "Channel Selection:")
            lines.AddLine(field.Key, NumberOrNA(record.ChannelSelection));
        else
            AddParamLine(lines, field.Key, field.Member.In(record));
        if (field.Key == "Signal Standard:")
            lines.AddLine(linkTypeKey, record.LinkType);
    }
}

void LoadPowerMeterText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    PowerRecord& record = control.Power;
    for (const auto& field : PowerMeterFields) {
        const std::string_view value = traceText->ParamValue(LoadKeyOf(field));
        if (field.Key != "Channel Selection:")
            LoadField(value, field.Member.Of(record), Through::FieldType);
        else if (const auto channel = NumberFromNA(value); channel && !TrimBlanks(value).empty())
            record.ChannelSelection = *channel;
    }
    PowerMeterParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
