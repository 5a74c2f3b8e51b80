#include "modes/gps_tester/GPSTesterTrace.h"

#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "modes/gps_tester/GPSTesterFields.h"

#include <algorithm>

namespace Traces {

namespace {

/// An event of this code tells whether there is a fix, any other how many satellites are tracked.
constexpr std::uint8_t StatusReport = 1;

constexpr std::string_view CurrentEnd = "mA)";

std::string StatusText(int code, int number)
{
    if (code == StatusReport)
        return number >= 1 ? "GPS Status Good" : "GPS Status Bad";
    return "Tracked " + NumberText(number) + " satellites";
}

void ResizeEvents(Control& control)
{
    const std::int16_t count =
        std::clamp<std::int16_t>(control.GPSTester.EventCount, 0, GPSTesterRecord::MostEvents);
    control.GPSEvents.resize(static_cast<std::size_t>(count));
}

std::string TimeText(const RawBuffer& buffer, int offset, int width)
{
    return CutAtNul(ReadChars(buffer, offset, width).value_or(""));
}

void DecodeEvent(const RawBuffer& buffer, int at, GPSEvent& event)
{
    const int code = ReadByte(buffer, at + GPSEventRow::Code).value_or(0);
    event.Code = NumberText(code);
    event.Number = NumberText(ReadI16(buffer, at + GPSEventRow::Number).value_or(0));
    event.Status = StatusText(code, ReadI16(buffer, at + GPSEventRow::Status).value_or(0));
    event.Current = NumberText(ReadU32(buffer, at + GPSEventRow::Current).value_or(0));
    event.Time = TimeText(buffer, at + GPSEventRow::Time, GPSEventRow::TimeWidth);
    event.SecondTime = TimeText(buffer, at + GPSEventRow::SecondTime, GPSEventRow::SecondTimeWidth);
}

constexpr std::string_view EventStem = "GPS Tester Data ";

/// The columns of the list come first: no more of the line is read back.
void AddEvent(const GPSEvent& event, std::size_t index, ParameterList& lines)
{
    std::string& line = lines.BeginLine();
    line += RowKey(EventStem, index + 1, 3);
    line += '\t' + event.Time + '\t' + event.Status + "\t(" + event.Current + std::string(CurrentEnd) + '\t' +
            event.Code + '\t' + event.Number + '\t' + event.SecondTime;
    lines.EndLine();
}

/// The three columns of an event's line; nothing from one that has others.
void LoadEvent(std::string_view line, GPSEvent& event)
{
    constexpr std::string_view end = "A)";
    line = TrimBlanks(line.substr(0, std::min(line.find(end), line.size()) + end.size()));
    const std::size_t status = line.find('\t');
    const std::size_t current = line.find("\t(", std::min(status, line.size()) + 1);
    if (current == line.npos || !line.ends_with(CurrentEnd))
        return;
    event.Time = line.substr(0, status);
    event.Status = line.substr(status + 1, current - status - 1);
    line.remove_prefix(current + 2);
    event.Current = line.substr(0, line.size() - CurrentEnd.size());
}

void LoadEvents(Control& control, const TraceText& text)
{
    constexpr std::size_t valuePlace = 21, valueWidth = 50;
    control.GPSEvents.clear(); // those of the trace before
    ResizeEvents(control);
    for (std::size_t i = 0; i < control.GPSEvents.size(); ++i)
        LoadEvent(text.ParamChars(RowKey(EventStem, i + 1, 3), valuePlace, valueWidth), control.GPSEvents[i]);
}

} // namespace

void DecodeGPSTester(Control& control, const RawBuffer& buffer)
{
    GPSTesterRecord& record = control.GPSTester;
    if (const auto flag = ReadI16(buffer, GPSAutoSaveFlag))
        record.AutoSaveFlag = *flag > 0;
    DecodeFields(buffer, record, GPSTesterFields);
    for (std::string* text : {&record.GpsFixTime, &record.LostGpsTime, &record.UtcTime})
        *text = CutAtNul(*text);
    ResizeEvents(control);
    int at = GPSEventRow::First;
    for (GPSEvent& event : control.GPSEvents) {
        DecodeEvent(buffer, at, event);
        at += GPSEventRow::Bytes;
    }
    GPSTesterParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void GPSTesterParams(const Control& control, ParameterList& lines)
{
    const GPSTesterRecord& record = control.GPSTester;
    for (const auto& field : GPSTesterFields) {
        AddParamLine(lines, field.Key, field.Member.In(record));
        if (field.Offset == GPSAutoSaveFlag + 1)
            lines.AddLine(GPSAutoSaveFlagKey, record.AutoSaveFlag ? "True" : "False");
    }
    for (std::size_t i = 0; i < control.GPSEvents.size(); ++i)
        AddEvent(control.GPSEvents[i], i, lines);
}

void LoadiDen_GPS_Tester_Text(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    GPSTesterRecord& record = control.GPSTester;
    for (const auto& field : GPSTesterFields)
        LoadLine(*traceText, field.Key, field.Member.Of(record));
    const std::string_view flag = traceText->ParamValue(GPSAutoSaveFlagKey);
    if (flag == "True" || flag == "False")
        record.AutoSaveFlag = flag == "True";
    LoadEvents(control, *traceText);
    GPSTesterParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
