#include "modes/iden/IDENTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "modes/iden/IDENChart.h"
#include "modes/iden/IDENFields.h"

#include <algorithm>

namespace Traces {

namespace {

/// The instruments' codes lie in bands, a band a view.
std::int16_t FoldView(std::int16_t code)
{
    if (code == 1)
        return 0;
    if (code > 700)
        return 3;
    if (code > 500)
        return 2;
    return code > 100 ? std::int16_t{1} : code;
}

void DecodeCurve(const RawBuffer& buffer, const IDENCurveField& field, std::span<float> curve)
{
    int offset = field.Offset;
    for (float& point : curve) {
        DecodeField(buffer, {offset, Read::I16, field.Divisor}, &point);
        offset += 2;
    }
}

void AddCurve(const IDENCurveField& field, std::span<const float> curve, ParameterList& lines)
{
    for (std::size_t i = 0; i < field.Listed; ++i) {
        std::string& line = lines.BeginLine();
        line += RowKey(field.Name, i, 3);
        line += '\t';
        AppendNumberText(line, curve[i]);
        lines.EndLine();
    }
}

/// What stands in a saved line's columns, up to a tab behind the number.
void LoadCurve(const TraceText& text, const IDENCurveField& field, std::span<float> curve)
{
    for (std::size_t i = 0; i < field.Listed; ++i) {
        std::string_view value = text.ParamChars(RowKey(field.Name, i, 3), field.ValueSkip, field.ValueWidth);
        value.remove_prefix(std::min(value.find_first_not_of('\t'), value.size()));
        LoadField(value.substr(0, value.find('\t')), &curve[i], Through::FieldType);
    }
}

void LoadKeys(const TraceText& text, IDENRecord& record)
{
    for (const auto& field : IDENFields)
        LoadLine(text, field.Key == "PhaseNoise:" ? "phaseNoise:" : field.Key, field.Member.Of(record));
}

} // namespace

void DecodeIDEN(Control& control, const RawBuffer& buffer)
{
    constexpr std::size_t mainChannel = 3;
    IDENRecord& record = control.IDEN;
    for (const auto& field : IDENFields)
        if (field.Offset != NoIDENOffset)
            DecodeField(buffer, field.Form(), field.Member.Of(record));
    record.ViewMode = FoldView(record.ViewMode);
    record.AdjacentPowerRatio[mainChannel] = 0;
    for (std::string* text : {&record.SignalStandardName, &record.UtcTime})
        *text = CutAtNul(*text);
    for (const IDENCurveField& field : IDENCurves)
        DecodeCurve(buffer, field, field.Of(record));
    IDENParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void IDENParams(const Control& control, ParameterList& lines)
{
    AddParamLines(lines, control.IDEN, IDENFields);
    for (const IDENCurveField& field : IDENCurves)
        AddCurve(field, field.In(control.IDEN), lines);
}

void LoadiDen_Tester_Text(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    LoadKeys(*traceText, control.IDEN);
    for (const IDENCurveField& field : IDENCurves)
        LoadCurve(*traceText, field, field.Of(control.IDEN));
    FillIDENCurve(control);
    IDENParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
