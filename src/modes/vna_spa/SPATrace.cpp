#include "modes/vna_spa/SPATrace.h"

#include "chart/SweepCurve.h"
#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/RowKey.h"
#include "formats/Text.h"
#include "modes/vna_spa/SPAFields.h"
#include "modes/vna_spa/SavedNumbers.h"

#include <algorithm>
#include <cstddef>

namespace Traces {

namespace {

std::size_t PointsInRecord(const Control& control)
{
    const int points = std::clamp<int>(control.Header.DataPoints, 0, SPARecord::MaxPoints);
    return static_cast<std::size_t>(points);
}

/// "1:", the key of the first point's line.
RowKey PointKey(std::size_t point)
{
    return {{}, point + 1};
}

/// Points that the record has no room for are left out.
void DecodeSPAPoints(Control& control, const RawBuffer& buffer)
{
    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        const int offset = SPAFirstPoint + SPAPointBytes * static_cast<int>(i);
        if (const auto raw = ReadU32(buffer, offset))
            control.SPA.PointLevel[i] = static_cast<float>(*raw / SPALevelScale + SPALevelBias);
    }
}

/// The text from the first point's line on, when no line in front of it begins as a point's does: then the
/// lines that follow are those that lookups would find. Empty otherwise.
std::string_view SavedPoints(const TraceText& text)
{
    std::string_view rest = text.Whole();
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        rest.remove_prefix(end + 1);
        if (!rest.empty() && rest[0] >= '0' && rest[0] <= '9')
            return rest.starts_with("1:\t") ? rest : std::string_view();
    }
    return {};
}

/// Reads lines as a save writes them, and returns how many.
std::size_t LoadSavedPoints(SPARecord& record, std::size_t points, std::string_view rest)
{
    for (std::size_t i = 0; i < points; ++i) {
        std::size_t number = 0;
        const auto key = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        const auto width = static_cast<std::size_t>(key.ptr - rest.data());
        if (number != i + 1 || rest.empty() || rest[0] == '0' || rest.substr(width, 2) != ":\t")
            return i;
        rest.remove_prefix(width + 2);
        float level = 0;
        if (!TakeNumber(rest, level, '\r') || !rest.starts_with('\n'))
            return i;
        record.PointLevel[i] = level;
        rest.remove_prefix(1);
    }
    return points;
}

void LoadSPAPoints(Control& control, const TraceText& text)
{
    const std::size_t points = PointsInRecord(control);
    for (std::size_t i = LoadSavedPoints(control.SPA, points, SavedPoints(text)); i < points; ++i)
        LoadField(text.ParamValue(PointKey(i)), &control.SPA.PointLevel[i], Through::FieldType);
}

/// Loaders take these two through a byte: a name leaves the field as it was, and a number comes back as its
/// text.
void LoadCodeName(const TraceText& text, std::string_view key, const std::string& before, std::string& field)
{
    const auto code = StrictNumber<std::uint8_t>(text.ParamValue(key));
    field = code ? NumberText(std::int32_t{*code}) : before;
}

/// And these two through a 32-bit float, which keeps seven digits.
void LoadCoordinate(const TraceText& text, std::string_view key, std::int32_t before, std::int32_t& field)
{
    field = before;
    LoadField(text.ParamValue(key), &field, Through::Float);
}

} // namespace

void DecodeSPARecord(Control& control, const RawBuffer& buffer)
{
    SPARecord& record = control.SPA;
    DecodeFields(buffer, record, SPAFields);
    // Instruments' software reads this field from the first two bytes of the sweep time, not from its own
    // place: what hosts have shown and saved all along is that.
    constexpr int sweepTime = 323;
    DecodeField(buffer, {sweepTime, Read::I16, 1000}, &record.ImpedenceLoss);
    DecodeSPAPoints(control, buffer);
}

void DecodeSPATrace(Control& control, const RawBuffer& buffer)
{
    DecodeSPARecord(control, buffer);
    SPAParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void SPAParams(const Control& control, ParameterList& lines)
{
    const SPARecord& record = control.SPA;
    for (const auto& field : SPAFields) {
        if (field.Key == "Channel Selection:")
            lines.AddLine(field.Key, NumberOrNA(record.ChannelSelection));
        else
            AddParamLine(lines, field.Key, field.Member.In(record));
    }
    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        std::string& line = lines.BeginLine();
        line += PointKey(i);
        line += '\t';
        AppendNumberText(line, record.PointLevel[i]);
        lines.EndLine();
    }
}

void FillSPACurve(Control& control)
{
    const SPARecord& record = control.SPA;
    FillSweepCurve(control, record.StartFreq, record.StopFreq, record.PointLevel);
    control.YScaleTop = record.RefLevel;
    // Ten divisions below 0 dBm: the reference level takes no part in it.
    control.YScaleBottom = record.ScaleDiv * -10;
}

void LoadSPARecord(Control& control, const TraceText& text)
{
    SPARecord& record = control.SPA;
    const SPARecord before = record;
    LoadFields(text, record, SPAFields, Through::FieldType);
    // Of the limits a load takes the first two upper ones alone; the others keep what they held.
    constexpr std::ptrdiff_t loadedLimitPoints = 8;
    std::copy(before.LimitPoints.begin() + loadedLimitPoints, before.LimitPoints.end(),
              record.LimitPoints.begin() + loadedLimitPoints);
    // A text without a value keeps what it held as a number does.
    constexpr std::size_t antennaWidth = 16;
    record.AntennaName =
        record.AntennaName.empty() ? before.AntennaName : FixedText(record.AntennaName, antennaWidth);
    if (record.SignalStandard.empty())
        record.SignalStandard = before.SignalStandard;
    LoadCodeName(text, "Interference Analysis Cell Standard", before.InterferenceStandard,
                 record.InterferenceStandard);
    LoadCodeName(text, "Trigger Type", before.TriggerType, record.TriggerType);
    LoadCoordinate(text, "GPS Latitude", before.GpsLatitude, record.GpsLatitude);
    LoadCoordinate(text, "GPS Longitude", before.GpsLongitude, record.GpsLongitude);
    LoadSPAPoints(control, text);
}

void LoadSPAText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    LoadSPARecord(control, *traceText);
    const SPARecord& record = control.SPA;
    FillWhatFits(control, record.StartFreq, record.StopFreq, record.PointLevel);
    SPAParams(control, control.lstParameters);
    EndTextLoad(control);
}

} // namespace Traces
