#include "modes/power/ZephraTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "modes/power/ZephraFields.h"

#include <algorithm>
#include <array>

namespace Traces {

namespace {

constexpr std::string_view MeasOffsetKey = "Meas Offset:";
constexpr std::string_view LimitUnitKey = "Limit Unit Display:";
constexpr std::string_view UtcTimeKey = "UTC Time:";

/// Two numbers are read as the words of a status byte, and no word is a number: they keep what they held,
/// and saved files show that.
void DecodeWordAsNumber(const RawBuffer& buffer, const RawForm& form, FieldRef field)
{
    if (const auto byte = ReadByte(buffer, form.Offset))
        LoadField(OnOff.Text(*byte), field, Through::FieldType);
}

/// Without their colon; the others are looked up with it.
constexpr auto KeysWithoutColon = std::to_array<std::string_view>(
    {"Center Freq:", "Power Meter Reading:", "MaxHold:", "Power Offset Status:", "Power Relative Status:",
     "GPS Latitude:", "GPS Longitude:", "GPS Altitude:"});

std::string_view LoadKeyOf(const Field<ZephraRecord>& field)
{
    return std::ranges::count(KeysWithoutColon, field.Key) != 0 ? field.LoadKey() : field.Key;
}

/// A number and its text again; any other text leaves the field as it was.
void LoadNumberText(const TraceText& text, std::string_view key, std::string& field)
{
    if (const auto number = StrictNumber<double>(text.ParamValue(key)))
        field = NumberText(*number);
}

} // namespace

void DecodeZephra(Control& control, const RawBuffer& buffer)
{
    ZephraRecord& record = control.Zephra;
    Library().TraceVersionValue = ValueOf(control.Header.Version);
    for (const auto& field : ZephraFields) {
        if (field.Key == MeasOffsetKey || field.Key == LimitUnitKey)
            DecodeWordAsNumber(buffer, field.Form(), field.Member.Of(record));
        else if (field.Key == UtcTimeKey) // a text of no fixed width: empty when it isn't there
            record.UtcTime = ReadChars(buffer, field.Offset, field.Width).value_or(record.UtcTime);
        else
            DecodeField(buffer, field.Form(), field.Member.Of(record));
    }
    ZephraParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void ZephraParams(const Control& control, ParameterList& lines)
{
    const ZephraRecord& record = control.Zephra;
    for (const auto& field : ZephraFields) {
        if (field.Key == UtcTimeKey)
            lines.AddLine("Signal Std Link Type:", record.LinkType);
        AddParamLine(lines, field.Key, field.Member.In(record));
    }
}

void LoadPowerMeter_Zephra_Text(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    ZephraRecord& record = control.Zephra;
    const ZephraRecord before = record;
    for (const auto& field : ZephraFields)
        LoadField(traceText->ParamValue(LoadKeyOf(field)), field.Member.Of(record), Through::FieldType);
    // These go through a number: a word leaves the field as it was, but the averages have their word already.
    record.MeasOffsetStatus = before.MeasOffsetStatus;
    record.ErrorStatus = before.ErrorStatus;
    LoadNumberText(*traceText, "Meas Offset Status:", record.MeasOffsetStatus);
    LoadNumberText(*traceText, "Error Mes Status:", record.ErrorStatus);
    LoadNumberText(*traceText, "RAN Value:", record.RanValue);
    ZephraParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
