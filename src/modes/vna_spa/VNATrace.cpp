#include "modes/vna_spa/VNATrace.h"

#include "chart/SweepCurve.h"
#include "control/Control.h"
#include "control/TextLoader.h"
#include "formats/Numbers.h"
#include "formats/PowerUnits.h"
#include "formats/TraceMode.h"
#include "modes/vna_spa/VNAFields.h"

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

std::size_t PointsInRecord(const Control& control)
{
    const int points = std::clamp<int>(control.Header.DataPoints, 0, VNARecord::MaxPoints);
    return static_cast<std::size_t>(points);
}

/// Points that the record has no room for are left out.
void DecodeVNAPoints(Control& control, const RawBuffer& buffer)
{
    VNARecord& record = control.VNA;
    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        const int offset = VNAFirstPoint + VNAPointBytes * static_cast<int>(i);
        if (const auto raw = ReadI32(buffer, offset)) {
            const auto magnitude = ConvertMagnitude(control.Header.Mode, *raw);
            if (magnitude.Converted)
                record.PointValue[i] = magnitude.Value;
        }
        if (const auto raw = ReadI32(buffer, offset + 4))
            record.PointPhase[i] = static_cast<float>(*raw / VNAPhaseScale);
    }
}

/// "Data point 0:", the key of a point's line.
void AppendPointKey(std::string& text, std::size_t point)
{
    text += "Data point";
    text += SignedNumberText(static_cast<std::int32_t>(point));
    text += ':';
}

void LoadVNAPoints(Control& control, const TraceText& text)
{
    // A point without a line takes the fields of the point before it: they stay in `fields`.
    LineFields fields;
    std::string key;
    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        key.clear();
        AppendPointKey(key, i);
        text.ParamFields(key, fields);
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

VNAMagnitude ConvertMagnitude(int mode, std::int32_t raw)
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
    default: return {false, 0};
    }
    return {true, static_cast<float>(value)};
}

void DecodeVNATrace(Control& control, const RawBuffer& buffer)
{
    DecodeFields(buffer, control.VNA, VNAFields);
    DecodeVNAPoints(control, buffer);
    VNAParams(control);
    control.TraceSaved = false;
}

void VNAParams(Control& control)
{
    VNARecord& record = control.VNA;
    ParameterList& lines = control.lstParameters;
    // The lines of distance markers 3 to 6 have always shown marker 2, and a saved file sets them all to it.
    const auto markers = record.DistanceMarker;
    std::fill(record.DistanceMarker.begin() + 2, record.DistanceMarker.end(), markers[1]);
    AddParamLines(lines, record, VNAFields);
    record.DistanceMarker = markers;

    for (std::size_t i = 0; i < PointsInRecord(control); ++i) {
        std::string& line = lines.BeginLine();
        AppendPointKey(line, i);
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
    control.YScaleTop = record.ScaleTop;
    control.YScaleBottom = -record.ScaleBottom;
    FillSweepCurve(control, record.StartFreq, record.StopFreq, record.PointValue);
}

GpsFix VNAPosition(const Control& control)
{
    return {control.VNA.GpsLatitude, control.VNA.GpsLongitude, control.VNA.GpsAltitude, std::nullopt};
}

void LoadVNAText(Control& control, std::string_view text, const std::string& path)
{
    const auto traceText = BeginTextLoad(control, text, path);
    if (!traceText)
        return;
    VNARecord& record = control.VNA;
    const std::string standard = record.VNASignalStd;
    LoadFields(*traceText, record, VNAFields, Through::Float);
    LoadVNASignalStd(record, *traceText, standard);
    LoadVNAPoints(control, *traceText);
    FillWhatFits(control, record.StartFreq, record.StopFreq, record.PointValue);
    EndTextLoad(control);
}

} // namespace Traces
