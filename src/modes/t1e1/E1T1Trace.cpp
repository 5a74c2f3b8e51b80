#include "modes/t1e1/E1T1Trace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/t1e1/E1T1Fields.h"

#include <algorithm>

namespace Traces {

namespace {

/// The texts of fixed width, cut or padded to it. Those of a raw trace keep no zeros.
void FixTexts(E1T1Record& record, bool raw)
{
    for (const auto& field : E1T1HeadFields)
        if (field.Reader == Read::Chars) {
            auto& text = *std::get<std::string*>(field.Member.Of(record));
            text = FixedText(raw ? TrimNuls(text) : text, static_cast<std::size_t>(field.Width));
        }
}

void DecodeSlices(const RawBuffer& buffer, E1T1Record& record)
{
    for (std::size_t i = 0; i < record.Slices.size(); ++i) {
        const int offset = FirstSlice + SliceBytes * static_cast<int>(i);
        DecodeField(buffer, {offset, Read::Byte}, &record.Slices[i].SliceFlags);
        DecodeField(buffer, {offset + 1, Read::I32}, &record.Slices[i].SliceCount);
    }
}

/// The level's scale is known when the whole record is.
void TakeVppLevel(const RawBuffer& buffer, E1T1Record& record)
{
    constexpr int offset = 656;
    if (const auto raw = ReadI16(buffer, offset))
        record.VppLevel = static_cast<float>((*raw - (record.VppScaling != 0 ? DbdsxBias : 0)) / VppScale);
}

void AddSlices(const E1T1Record& record, ParameterList& lines)
{
    for (std::size_t i = 0; i < record.Slices.size(); ++i) {
        std::string& line = lines.BeginLine();
        line += SliceStem;
        AppendNumberText(line, static_cast<std::int32_t>(i + 1));
        line += SliceKeyEnd;
        line += '\t';
        AppendNumberText(line, std::int32_t{record.Slices[i].SliceFlags});
        line += '\t';
        AppendNumberText(line, record.Slices[i].SliceCount);
        lines.EndLine();
    }
}

/// A line that is none leaves its slice.
void LoadSlices(const TraceText& text, E1T1Record& record)
{
    for (std::size_t i = 0; i < record.Slices.size(); ++i) {
        if (const auto columns = SliceColumns(text.ParamValue(SliceKey(i)))) {
            LoadField(columns->first, &record.Slices[i].SliceFlags, Through::FieldType);
            LoadField(columns->second, &record.Slices[i].SliceCount, Through::FieldType);
        }
    }
}

/// These begin other keys, so they are looked up with their colon.
std::string_view LoadKeyOf(const Field<E1T1Record>& field)
{
    constexpr auto whole = std::to_array<std::string_view>(
        {"Impedance:", "Pattern:", "Rx Alarms:", "Bit Count:", "Bit Errors:"});
    return std::ranges::count(whole, field.Key) != 0 ? field.Key : field.LoadKey();
}

/// Loop code and loop type are numbers here, which their words in a saved file are not: they stay.
void LoadHead(const TraceText& text, E1T1Record& record)
{
    for (const auto& field : E1T1HeadFields) {
        const std::string_view key = LoadKeyOf(field);
        if (field.Key != "Rx Alarms:")
            LoadLine(text, key, field.Member.Of(record));
        else if (const auto alarm = StrictNumber<std::uint8_t>(text.ParamValue(key)))
            record.RxAlarms = NumberText(*alarm);
    }
    FixTexts(record, false);
}

/// Levels go through a whole number, words through their table and back: "100 Ohms" has no way back.
void LoadTail(const TraceText& text, E1T1Record& record)
{
    for (const auto& field : E1T1TailFields) {
        const std::string_view value = text.ParamValue(field.LoadKey());
        const FieldRef member = field.Member.Of(record);
        if (field.Table != nullptr)
            *std::get<std::string*>(member) = field.Table->Text(field.Table->Code(value));
        else if (field.Reader != Read::I16 || !std::holds_alternative<float*>(member))
            LoadField(value, member, Through::FieldType);
        else if (const auto whole = StrictNumber<std::int16_t>(value))
            *std::get<float*>(member) = *whole;
    }
}

} // namespace

void DecodeE1T1(Control& control, const RawBuffer& buffer)
{
    constexpr int keptByte = 687;
    E1T1Record& record = control.E1T1;
    DecodeFields(buffer, record, E1T1HeadFields);
    FixTexts(record, true);
    DecodeSlices(buffer, record);
    DecodeFields(buffer, record, E1T1TailFields);
    DecodeField(buffer, {keptByte, Read::Byte}, &record.Record687);
    DecodeFields(buffer, record, E1T1SecondsFields);
    if (control.Header.Mode == TraceMode::T1)
        record.VppImpedance = "100 Ohms";
    TakeVppLevel(buffer, record);
    E1T1Params(control, control.lstParameters);
    control.TraceSaved = false;
}

void E1T1Params(const Control& control, ParameterList& lines)
{
    const E1T1Record& record = control.E1T1;
    for (const auto& field : E1T1HeadFields) {
        if (field.Key == "Loop Code:")
            lines.AddLine(field.Key, LoopCode.Text(record.LoopCode));
        else if (field.Key == "Loop Type:")
            lines.AddLine(field.Key, LoopType.Text(record.LoopType));
        else
            AddParamLine(lines, field.Key, field.Member.In(record));
        if (field.Key == "CRC Error Count:")
            AddParamLines(lines, record, E1T1SecondsFields);
    }
    AddSlices(record, lines);
    AddParamLines(lines, record, E1T1TailFields);
}

void FillE1T1Curve(Control& control)
{
    SetSlotLength(control, 0, E1T1Record::SliceRoom);
    TraceSlot& slot = control.TraceSlots[0];
    for (std::size_t i = 0; i < slot.X.size(); ++i) {
        slot.X[i] = static_cast<float>(i + 1);
        slot.Y[i] = static_cast<float>(control.E1T1.Slices[i].SliceCount);
    }
}

void LoadE1T1Text(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    E1T1Record& record = control.E1T1;
    LoadHead(*traceText, record);
    LoadFields(*traceText, record, E1T1SecondsFields, Through::FieldType);
    LoadSlices(*traceText, record);
    LoadTail(*traceText, record);
    FillE1T1Curve(control);
    E1T1Params(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
