#include "modes/vna_spa/VNATrace.h"

#include "chart/SweepCurve.h"
#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/PowerUnits.h"
#include "formats/RowKey.h"
#include "formats/TraceMode.h"
#include "modes/vna_spa/SavedNumbers.h"
#include "modes/vna_spa/VNAFields.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

/// ConvertMagnitude for the loop over the points. Inlined there, because an optional float that comes back
/// from a call goes through memory, and waiting for it took longer than the logarithm.
inline std::optional<float> MagnitudeOf(int mode, std::int32_t raw)
{
    constexpr double lowestReturnLoss = -60;
    constexpr double highestSWR = 65;
    const double x = raw / VNAMagnitudeScale;
    const double a = std::abs(x);
    double value = 0;
    switch (mode) {
    case TraceMode::RLFrequency:
        value = x == 0 ? lowestReturnLoss : std::max(20 * Log10(a), lowestReturnLoss);
        break;
    // The ceiling is for total reflection only: 0.99 is an SWR of 199.
    case TraceMode::SWRFrequency: value = a < 1 ? (1 + a) / (1 - a) : highestSWR; break;
    // One-way loss, hence 10 and not 20; and no reflection at all reads as 0 dB, since Log10(0) is 0.
    case TraceMode::CableLossFrequency: value = std::max(10 * Log10(a), lowestReturnLoss); break;
    case TraceMode::VNAUnnamed: {
        constexpr double lowest = -120;
        constexpr double highest = 100;
        // The mode's numbers were divided twice from the start.
        value = x == 0 ? lowest : std::clamp(20 * Log10(a / VNAMagnitudeScale), lowest, highest);
        break;
    }
    default: return std::nullopt;
    }
    return static_cast<float>(value);
}

std::size_t PointsInRecord(const Control& control)
{
    const int points = std::clamp<int>(control.Header.DataPoints, 0, VNARecord::MaxPoints);
    return static_cast<std::size_t>(points);
}

/// Points that the record has no room for are left out.
void DecodeVNAPoints(Control& control, const RawBuffer& buffer)
{
    VNARecord& record = control.VNA;
    const std::size_t points = PointsInRecord(control);
    const int mode = control.Header.Mode;
    for (std::size_t i = 0; i < points; ++i) {
        const int offset = VNAFirstPoint + VNAPointBytes * static_cast<int>(i);
        if (const auto raw = ReadI32(buffer, offset)) {
            if (const auto magnitude = MagnitudeOf(mode, *raw))
                record.PointValue[i] = *magnitude;
        }
        if (const auto raw = ReadI32(buffer, offset + 4))
            record.PointPhase[i] = static_cast<float>(*raw / VNAPhaseScale);
    }
}

constexpr std::string_view PointKeyStem = "Data point ";

/// "Data point 0:", the key of a point's line.
RowKey PointKey(std::size_t point)
{
    return {PointKeyStem, point};
}

/// Reads the points' lines as a save writes them: one behind the other, with two plain numbers each. Stops
/// at the first that is otherwise, and returns how many it read. Lookups would find the same, in twice the
/// time: no key stands in front of the first line, and none hides in a line of numbers.
std::size_t LoadSavedPoints(VNARecord& record, std::size_t points, std::string_view text)
{
    std::string_view rest = text.substr(std::min(text.find(PointKeyStem), text.size()));
    for (std::size_t i = 0; i < points; ++i) {
        const RowKey row = PointKey(i);
        const std::string_view key = row;
        if (!rest.starts_with(key) || !rest.substr(key.size()).starts_with('\t'))
            return i;
        rest.remove_prefix(key.size() + 1);
        float value = 0;
        float phase = 0;
        if (!TakeNumber(rest, value, '\t') || !TakeNumber(rest, phase, '\r'))
            return i;
        record.PointValue[i] = value;
        record.PointPhase[i] = phase;
        rest.remove_prefix(rest.starts_with('\n') ? 1 : 0);
    }
    return points;
}

void LoadVNAPoints(Control& control, const TraceText& text)
{
    const std::size_t points = PointsInRecord(control);
    const std::size_t saved = LoadSavedPoints(control.VNA, points, text.Whole());
    // A point without a line takes the fields of the point before it: they stay in `fields`, and so the
    // last point that was read is looked up once more.
    LineFields fields;
    for (std::size_t i = saved == points ? points : saved - std::min<std::size_t>(saved, 1); i < points;
         ++i) {
        text.ParamFields(PointKey(i), fields);
        if (fields.UpperIndex != 1)
            continue;
        LoadField(fields.Parts[0], &control.VNA.PointValue[i], Through::Float);
        LoadField(fields.Parts[1], &control.VNA.PointPhase[i], Through::Float);
    }
}

/// The standard goes through a number on its way in, which a name is not: so a file's name never replaces
/// the record's, and a numeric text comes back as that number's text.
void LoadVNASignalStd(VNARecord& record, const TraceText& text, const std::string& before)
{
    const auto number = StrictNumber<float>(text.ParamValue("VNA Signal Std"));
    record.VNASignalStd = number ? NumberText(*number) : before;
}

} // namespace

std::optional<float> ConvertMagnitude(int mode, std::int32_t raw)
{
    return MagnitudeOf(mode, raw);
}

void DecodeVNARecord(Control& control, const RawBuffer& buffer)
{
    DecodeFields(buffer, control.VNA, VNAFields);
    DecodeVNAPoints(control, buffer);
}

void DecodeVNATrace(Control& control, const RawBuffer& buffer)
{
    DecodeVNARecord(control, buffer);
    VNAParams(control, control.lstParameters);
    control.TraceSaved = false;
}

void VNAParams(const Control& control, ParameterList& lines)
{
    const VNARecord& record = control.VNA;
    // The lines of distance markers 3 to 6 have always shown marker 2, and a saved file sets them all to it.
    VNARecord shown = record;
    std::fill(shown.DistanceMarker.begin() + 2, shown.DistanceMarker.end(), record.DistanceMarker[1]);
    AddParamLines(lines, shown, VNAFields);

    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        std::string& line = lines.BeginLine();
        line += PointKey(i);
        line += '\t';
        AppendNumberText(line, record.PointValue[i]);
        line += '\t';
        AppendNumberText(line, record.PointPhase[i]);
        lines.EndLine();
    }
}

void FillVNACurve(Control& control)
{
    const VNARecord& record = control.VNA;
    FillSweepCurve(control, record.StartFreq, record.StopFreq, record.PointValue);
    control.YScaleTop = record.ScaleTop;
    control.YScaleBottom = -record.ScaleBottom;
}

void LoadVNARecord(Control& control, const TraceText& text)
{
    VNARecord& record = control.VNA;
    const std::string standard = record.VNASignalStd;
    LoadFields(text, record, VNAFields, Through::Float);
    LoadVNASignalStd(record, text, standard);
    LoadVNAPoints(control, text);
}

void LoadVNAText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    LoadVNARecord(control, *traceText);
    const VNARecord& record = control.VNA;
    FillWhatFits(control, record.StartFreq, record.StopFreq, record.PointValue);
    EndTextLoad(control);
}

} // namespace Traces
