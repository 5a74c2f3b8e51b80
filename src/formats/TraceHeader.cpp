#include "formats/TraceHeader.h"

#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

namespace Traces {

namespace {

template <class T>
void Keep(T& field, const std::optional<T>& value)
{
    if (value)
        field = *value;
}

void KeepText(std::string& field, const std::optional<std::string>& value, std::size_t width)
{
    if (value)
        field = FixedText(*value, width);
}

} // namespace

void DecodeHeader(const RawBuffer& buffer, TraceHeader& header, ParameterList& lines)
{
    Keep(header.TraceLength, ReadI16(buffer, 1));
    Keep(header.HeaderByte3, ReadByte(buffer, 3));
    KeepText(header.Model, ReadChars(buffer, 5, 7), HeaderWidth::Model);
    KeepText(header.Version, ReadChars(buffer, 12, 4), HeaderWidth::Version);
    Keep(header.Mode, ReadByte(buffer, 16));
    Keep(header.HeaderWord, ReadI32(buffer, 17));
    KeepText(header.Date, ReadChars(buffer, 21, 10), HeaderWidth::Date);
    KeepText(header.Time, ReadChars(buffer, 31, 8), HeaderWidth::Time);
    Keep(header.RefNumber, ReadChars(buffer, 39, 16));
    Keep(header.DataPoints, ReadI16(buffer, 55));
    HeaderParams(header, lines);
}

void HeaderFromText(const TraceText& text, TraceHeader& header, ParameterList& lines)
{
    Keep(header.TraceLength, StrictNumber<std::int16_t>(text.ParamValue("Trace length")));
    header.Model = FixedText(text.ParamValue("Model"), HeaderWidth::Model);
    header.Version = FixedText(text.ParamValue("Version"), HeaderWidth::Version);
    header.Mode = ModeCode(text.ParamValue("Mode:"));
    header.Date = FixedText(text.ParamValue("Date"), HeaderWidth::Date);
    header.Time = FixedText(text.ParamValue("Time"), HeaderWidth::Time);
    header.RefNumber = StripToBaseName(text.ParamValue("Ref Number:"));
    Keep(header.DataPoints, StrictNumber<std::int16_t>(text.ParamValue("DataPoints")));
    HeaderParams(header, lines);
}

void HeaderParams(const TraceHeader& header, ParameterList& lines)
{
    lines.Clear();
    lines.AddLine("Trace length:", NumberText(header.TraceLength));
    lines.AddLine("Model:", FixedText(header.Model, HeaderWidth::Model));
    lines.AddLine("Version:", FixedText(header.Version, HeaderWidth::Version));
    lines.AddLine("Mode:", ModeName(header.Mode));
    lines.AddLine("Date:", FixedText(header.Date, HeaderWidth::Date));
    lines.AddLine("Time:", FixedText(header.Time, HeaderWidth::Time));
    lines.AddLine("Ref Number:", StripToBaseName(header.RefNumber));
    lines.AddLine("DataPoints:", NumberText(header.DataPoints));
}

} // namespace Traces
