// The power meter's comma form: a text of quoted fields, scrambled from its 15th character on, that hosts
// hand over as it comes from the instruments' own software.
#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/power/PowerFields.h"
#include "modes/power/PowerMeterTrace.h"

#include <algorithm>

namespace Traces {

namespace {

constexpr std::size_t PlainCharacters = 14;

/// All places of a text in another, found from left to right, none of which overlaps the one before.
std::string Replaced(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from)) {
        result.append(text.substr(0, at)).append(to);
        text.remove_prefix(at + from.size());
    }
    return result.append(text);
}

/// The fields of one text and how they reach header and record. A field that isn't there or no number leaves
/// its target alone.
class Fields {
public:
    explicit Fields(std::vector<std::string> values) : fields(std::move(values)) {}

    template <class T>
    void Number(std::size_t index, T& target) const
    {
        if (index < fields.size())
            LoadField(fields[index], &target, Through::FieldType);
    }

    void Text(std::size_t index, std::string& target, std::size_t width) const
    {
        if (index < fields.size())
            target = FixedText(fields[index], width);
    }

    void Text(std::size_t index, std::string& target) const
    {
        if (index < fields.size())
            target = fields[index];
    }

    /// A code of type T by its table.
    template <class T>
    void Code(std::size_t index, const CodeTable& table, std::string& target) const
    {
        const auto code = index < fields.size() ? StrictNumber<T>(fields[index]) : std::nullopt;
        if (code)
            target = table.Text(*code);
    }

private:
    const std::vector<std::string> fields;
};

void TakeHeader(TraceHeader& header, const Fields& fields)
{
    constexpr std::int16_t traceLength = 152;
    header.TraceLength = traceLength;
    header.HeaderByte3 = 0;
    fields.Text(7, header.Model, HeaderWidth::Model);
    fields.Text(8, header.Version, HeaderWidth::Version);
    header.Mode = TraceMode::PowerMeter;
    header.HeaderWord = 0;
    fields.Text(6, header.Date, HeaderWidth::Date);
    fields.Text(5, header.Time, HeaderWidth::Time);
    fields.Text(4, header.RefNumber);
    fields.Number(14, header.DataPoints);
}

void TakeRecord(PowerRecord& record, const Fields& fields)
{
    // The span has always been set to the number of its field instead of the field: hosts know it so.
    constexpr float span = 18;
    constexpr std::int16_t noAltitude = -30000;
    fields.Number(11, record.PowerMode);
    fields.Number(12, record.PowerUnit);
    fields.Number(15, record.StartFreq);
    fields.Number(16, record.StopFreq);
    fields.Number(17, record.CenterFreq);
    record.FreqSpan = span;
    fields.Code<std::uint8_t>(20, OnOff, record.OffsetStatus);
    fields.Number(21, record.PowerOffset);
    fields.Code<std::uint8_t>(22, OnOff, record.RelativeStatus);
    fields.Number(23, record.PowerRelative);
    fields.Code<std::uint8_t>(24, AveragingLevel, record.RmsAveraging);
    record.ZeroStatus = "OFF";
    record.ExternalRefStatus = "OFF";
    fields.Number(25, record.ExternalRefFreq);
    fields.Code<std::int16_t>(26, SignalStandard, record.SignalStandard);
    record.LinkType = "Unknown";
    fields.Number(27, record.ChannelSelection);
    record.GpsLatitude = -1;
    record.GpsLongitude = -1;
    record.GpsAltitude = noAltitude;
    fields.Number(28, record.PowerReading);
}

} // namespace

std::vector<std::string> DatFields(std::string_view text, const std::array<std::uint8_t, 7>& scramble)
{
    std::string plain(text);
    for (std::size_t i = PlainCharacters; i < plain.size(); ++i)
        plain[i] = static_cast<char>(static_cast<unsigned char>(plain[i]) ^
                                     scramble[(i - PlainCharacters) % scramble.size()]);
    // An empty quoted field is kept by a mark while quotes and line breaks become commas and commas merge.
    plain = Replaced(plain, ",\"\",", ",~,");
    plain = Replaced(plain, "\"", ",");
    plain = Replaced(plain, "\r\n", ",");
    for (int pass = 0; pass < 3; ++pass)
        plain = Replaced(plain, ",,", ",");
    std::erase(plain, '~');
    std::string_view rest = plain;
    if (rest.starts_with(','))
        rest.remove_prefix(1);
    std::vector<std::string> fields;
    for (std::size_t comma = rest.find(','); comma != std::string_view::npos; comma = rest.find(',')) {
        fields.emplace_back(rest.substr(0, comma));
        rest.remove_prefix(comma + 1);
    }
    fields.emplace_back(rest);
    return fields;
}

void LoadPowerMeterDat(Control& control, std::string_view text)
{
    const Fields fields(DatFields(text, control.Platform.ScrambleTable()));
    TakeHeader(control.Header, fields);
    HeaderParams(control.Header, control.lstParameters);
    TakeRecord(control.Power, fields);
    PowerMeterParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
