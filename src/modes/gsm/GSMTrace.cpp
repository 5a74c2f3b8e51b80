#include "modes/gsm/GSMTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/LibraryValues.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "modes/gsm/GSMChart.h"
#include "modes/gsm/GSMFields.h"

namespace Traces {

namespace {

void DecodeCurves(GSMRecord& record, const RawBuffer& buffer, double bias)
{
    const double base = -bias / GSMLevelScale;
    for (std::size_t i = 0; i < GSMRecord::Points; ++i)
        for (const GSMCurveField& curve : GSMCurves)
            DecodeField(buffer, {curve.Offset + 2 * static_cast<int>(i), Read::U16, GSMLevelScale, base},
                        &(record.*curve.Curve)[i]);
}

std::string LineText(const GSMRecord& record, const Field<GSMRecord>& field)
{
    if (field.Key == "Display Units:")
        return GSMUnits.Text(record.DisplayUnits);
    return NumberOrNA(record.Channel);
}

bool IsShownAsText(std::string_view key)
{
    return key == "Display Units:" || key == "Channel:";
}

/// The burst's power is looked up under a key that no line begins with, so it isn't read back.
std::string_view LoadKey(const Field<GSMRecord>& field)
{
    return field.Key == "Measured Burst Power:" ? "Measured_Burst_Power" : field.LoadKey();
}

void LoadKeys(const TraceText& text, GSMRecord& record)
{
    for (const auto& field : GSMFields(0)) {
        const std::string_view key = LoadKey(field);
        const std::string_view value = text.ParamValue(key);
        if (value.empty() || !IsShownAsText(field.Key))
            LoadLine(text, key, field.Member.Of(record));
        else if (field.Key == "Display Units:")
            record.DisplayUnits = static_cast<std::uint8_t>(GSMUnits.Code(value));
        else
            record.Channel = NumberFromNA(value).value_or(record.Channel);
    }
}

void LoadCurves(const TraceText& text, GSMRecord& record)
{
    // A missing point takes the fields of the point before it: they stay in `fields`.
    LineFields fields;
    for (std::size_t i = 0; i < GSMRecord::Points; ++i) {
        text.ParamFields(RowKey("", i, 3), fields);
        if (fields.Parts.size() != std::size(GSMCurves))
            continue;
        for (std::size_t c = 0; c < std::size(GSMCurves); ++c)
            LoadField(fields.Parts[c], &(record.*GSMCurves[c].Curve)[i], Through::FieldType);
    }
}

} // namespace

void DecodeGSMTrace(Control& control, const RawBuffer& buffer)
{
    GSMRecord& record = control.GSM;
    Library().TraceVersionValue = record.VersionNumber = ValueOf(control.Header.Version);
    const double bias = GSMLevelBias(control.Header.Version);
    for (const auto& field : GSMFields(bias))
        if (field.Key != "Signal Standard:")
            DecodeField(buffer, field.Form(), field.Member.Of(record));
    if (const auto name = ReadChars(buffer, GSMStandardName, GSMStandardNameWidth))
        record.SignalStandard = CutAtNul(*name);
    DecodeCurves(record, buffer, bias);
    GSMParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void GSMParams(const Control& control, ParameterList& lines)
{
    const GSMRecord& record = control.GSM;
    for (const auto& field : GSMFields(0)) {
        if (IsShownAsText(field.Key))
            lines.AddLine(field.Key, LineText(record, field));
        else
            AddParamLine(lines, field.Key, field.Member.In(record));
    }
    for (std::size_t i = 0; i < GSMRecord::Points; ++i) {
        std::string& line = lines.BeginLine();
        line += RowKey("", i, 3);
        for (const GSMCurveField& curve : GSMCurves) {
            line += '\t';
            AppendNumberText(line, (record.*curve.Curve)[i]);
        }
        lines.EndLine();
    }
}

void LoadGSMText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    GSMRecord& record = control.GSM;
    LoadField(traceText->ParamValue("Version"), &record.VersionNumber, Through::FieldType);
    Library().TraceVersionValue = record.VersionNumber;
    LoadKeys(*traceText, record);
    LoadCurves(*traceText, record);
    FillGSMCurve(control);
    GSMParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
