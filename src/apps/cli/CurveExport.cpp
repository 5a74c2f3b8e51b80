#include "apps/cli/CurveExport.h"

#include "apps/cli/Console.h"
#include "apps/cli/OpenTrace.h"
#include "control/Control.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "modes/cdma/CDMAChart.h"
#include "modes/iden/IDENChart.h"

#include <algorithm>

namespace Traces::Cli {

namespace {

float FrequencyOf(const Control& control, std::size_t point)
{
    return control.TraceSlots[0].X[point];
}

/// The chart shows distance sweeps against frequency; the record tells the distances.
float SweepDistanceOf(const Control& control, std::size_t point)
{
    const auto last = static_cast<float>(UsedPoints(control.TraceSlots[0]) - 1);
    const float span = control.VNA.StopDistance - control.VNA.StartDistance;
    return control.VNA.StartDistance + (last > 0 ? span * static_cast<float>(point) / last : 0);
}

float SweepPhaseOf(const Control& control, std::size_t point)
{
    return point < control.VNA.PointPhase.size() ? control.VNA.PointPhase[point] : 0;
}

/// The chart numbers its bars; the record tells their channels.
float ChannelFrequencyOf(const Control& control, std::size_t point)
{
    return point < control.CS.Channel.size() ? control.CS.Channel[point].Frequency : 0;
}

float ChannelNumberOf(const Control& control, std::size_t point)
{
    return point < control.CS.Channel.size() ? control.CS.Channel[point].Number : 0;
}

/// The chart numbers its bars, which may stand in bit-reversed order.
float WalshCodeOf(const Control& control, std::size_t point)
{
    return WalshDisplayIndex(control, static_cast<std::int16_t>(point));
}

float PlaceOf(const Control& control, std::size_t point)
{
    return control.TraceSlots[0].X[point];
}

bool ShowsCDMASpectrum(const Control& control)
{
    return !control.ChartHasMarkers;
}

bool ShowsEvDOCodes(const Control& control)
{
    return control.EvDOChartHasMarkers;
}

bool ShowsConstellation(const Control& control)
{
    return control.IDENViewMode == IDENView::Demod;
}

/// What a curve's value says of the reflection.
enum class Reflection { None, Decibels, Swr };

struct ExportRow {
    std::uint8_t Mode;
    std::string_view X, Value, Third; ///< headings with units; not all have a third column
    float (*XOf)(const Control& control, std::size_t point);
    float (*ThirdOf)(const Control& control, std::size_t point);
    Reflection Holds;
    bool (*Shows)(const Control& control) =
        nullptr; ///< null is always; the first row of a mode that fits counts
};

// clang-format off
constexpr ExportRow Rows[] = {
    {TraceMode::RLFrequency,        "Frequency (MHz)", "Return loss (dB)", "Phase (deg)", FrequencyOf,     SweepPhaseOf, Reflection::Decibels},
    {TraceMode::SWRFrequency,       "Frequency (MHz)", "SWR",              "Phase (deg)", FrequencyOf,     SweepPhaseOf, Reflection::Swr},
    {TraceMode::CableLossFrequency, "Frequency (MHz)", "Cable loss (dB)",  "Phase (deg)", FrequencyOf,     SweepPhaseOf, Reflection::None},
    {TraceMode::RLDistance,         "Distance (mm)",   "Return loss (dB)", "Phase (deg)", SweepDistanceOf, SweepPhaseOf, Reflection::None},
    {TraceMode::SWRDistance,        "Distance (mm)",   "SWR",              "Phase (deg)", SweepDistanceOf, SweepPhaseOf, Reflection::None},
    {TraceMode::Spectrum,           "Frequency (MHz)", "Level (dBm)",      {},            FrequencyOf,     nullptr,      Reflection::None},
    {TraceMode::ChannelScanner,     "Frequency (MHz)", "Level (dBm)",      "Channel",     ChannelFrequencyOf, ChannelNumberOf, Reflection::None},
    {TraceMode::Spectrogram,        "Frequency (MHz)", "Level (dBm)",      {},            FrequencyOf,     nullptr,      Reflection::None},
    {TraceMode::T1,                 "Slice",           "Bit errors",       {},            PlaceOf,         nullptr,      Reflection::None},
    {TraceMode::E1,                 "Slice",           "Bit errors",       {},            PlaceOf,         nullptr,      Reflection::None},
    {TraceMode::CDMA,               "Point",           "Level (dB)",       {},            PlaceOf,         nullptr,      Reflection::None, ShowsCDMASpectrum},
    {TraceMode::CDMA,               "Walsh code",      "Power (dB)",       {},            WalshCodeOf,     nullptr,      Reflection::None},
    {TraceMode::EvDO,               "MAC code",        "Power (dB)",       {},            PlaceOf,         nullptr,      Reflection::None, ShowsEvDOCodes},
    {TraceMode::EvDO,               "Point",           "Level (dB)",       {},            PlaceOf,         nullptr,      Reflection::None},
    {TraceMode::GSM,                "Point",           "Level (dB)",       {},            PlaceOf,         nullptr,      Reflection::None},
    {TraceMode::IDEN,               "I",               "Q",                {},            PlaceOf,         nullptr,      Reflection::None, ShowsConstellation},
    {TraceMode::IDEN,               "Point",           "Level (dB)",       {},            PlaceOf,         nullptr,      Reflection::None},
    {TraceMode::VNAUnnamed,         "Frequency (MHz)", "Magnitude (dB)",   "Phase (deg)", FrequencyOf,     SweepPhaseOf, Reflection::None},
};
// clang-format on

const ExportRow* FindRow(int mode)
{
    const auto* row = std::find_if(std::begin(Rows), std::end(Rows),
                                   [&](const ExportRow& each) { return each.Mode == mode; });
    return row != std::end(Rows) ? row : nullptr;
}

/// A field in quotes where a comma, a quote or a line break would end it.
std::string Quoted(std::string_view field)
{
    if (field.find_first_of(",\"\r\n") == std::string_view::npos)
        return std::string(field);
    std::string quoted = "\"";
    for (const char c : field) {
        quoted += c;
        if (c == '"')
            quoted += c;
    }
    return quoted + '"';
}

std::string NoRoute(const Control& control, std::string_view what)
{
    return "can't be written as " + std::string(what) + ": it is a trace of " + ModeName(control.Header.Mode);
}

float MagnitudeOfSwr(double swr)
{
    return static_cast<float>((swr - 1) / (swr + 1));
}

/// What tells a reader of the file where it comes from.
std::string Remark(const TraceHeader& header)
{
    std::string remark;
    for (const std::string& part : {header.Model, header.RefNumber, header.Date, header.Time}) {
        const std::string text = TerminalText(TrimNuls(part));
        if (!text.empty())
            remark += (remark.empty() ? "! " : ", ") + text;
    }
    return remark.empty() ? remark : remark + "\r\n";
}

} // namespace

bool HasCsv(int mode)
{
    return FindRow(mode) != nullptr;
}

bool HasTouchstone(int mode)
{
    const ExportRow* row = FindRow(mode);
    return row != nullptr && row->Holds != Reflection::None;
}

Export CsvOf(const Control& control)
{
    const auto* row = std::find_if(std::begin(Rows), std::end(Rows), [&](const ExportRow& each) {
        return each.Mode == control.Header.Mode && (each.Shows == nullptr || each.Shows(control));
    });
    if (row == std::end(Rows))
        return {{}, NoRoute(control, "a table of its curve"), {}};
    const TraceSlot& slot = control.TraceSlots[0];
    const std::size_t points = UsedPoints(slot);
    if (points == 0)
        return {{}, "has no points", {}};
    std::string text = Quoted(row->X) + ',' + Quoted(row->Value);
    if (row->ThirdOf != nullptr)
        text += ',' + Quoted(row->Third);
    text += "\r\n";
    for (std::size_t i = 0; i < points; ++i) {
        AppendNumberText(text, row->XOf(control, i));
        text += ',';
        AppendNumberText(text, slot.Y[i]);
        if (row->ThirdOf != nullptr) {
            text += ',';
            AppendNumberText(text, row->ThirdOf(control, i));
        }
        text += "\r\n";
    }
    const auto isZero = [](float value) { return value == 0; };
    const auto end = slot.Y.begin() + static_cast<std::ptrdiff_t>(points);
    if (row->XOf == SweepDistanceOf && std::all_of(slot.Y.begin(), end, isZero))
        return {
            std::move(text), {}, "has values of 0 alone: raw magnitudes against distance aren't converted"};
    return {std::move(text), {}, {}};
}

Export TouchstoneOf(const Control& control)
{
    const ExportRow* row = FindRow(control.Header.Mode);
    if (row == nullptr || row->Holds == Reflection::None)
        return {{}, NoRoute(control, "Touchstone, which takes return loss or SWR against frequency"), {}};
    const TraceSlot& slot = control.TraceSlots[0];
    const std::size_t points = UsedPoints(slot);
    if (points == 0)
        return {{}, "has no points", {}};
    const bool isSwr = row->Holds == Reflection::Swr;
    std::string text = Remark(control.Header) + (isSwr ? "# MHZ S MA R 50\r\n" : "# MHZ S DB R 50\r\n");
    for (std::size_t i = 0; i < points; ++i) {
        if (i > 0 && !(slot.X[i] > slot.X[i - 1]))
            return {{}, "can't be written as Touchstone: its frequencies don't rise from point to point", {}};
        if (isSwr && !(slot.Y[i] >= 1))
            return {{}, "can't be written as Touchstone: it has an SWR below 1", {}};
        AppendNumberText(text, slot.X[i]);
        text += ' ';
        AppendNumberText(text, isSwr ? MagnitudeOfSwr(static_cast<double>(slot.Y[i])) : slot.Y[i]);
        text += ' ';
        AppendNumberText(text, row->ThirdOf(control, i));
        text += "\r\n";
    }
    return {std::move(text), {}, {}};
}

} // namespace Traces::Cli
