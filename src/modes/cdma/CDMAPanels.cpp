#include "modes/cdma/CDMAPanels.h"

#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/FormatValue.h"
#include "formats/PowerUnits.h"
#include "modes/cdma/CodeChart.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Traces {

namespace {

constexpr int LabelSize = 10, RowTextSize = 12;

/// Nothing is shown as lower, in the lists beside bars.
constexpr float LowestShown = -30;

constexpr int BarHeight = 14;

std::string ValueText(float value, const char* mask = "#0.00")
{
    return FormatValue(value, mask);
}

/// A level as it is shown, in the record's units.
struct ShownLevel {
    std::string Unit, Text;
};

/// The limits are single precision, so that just a milliwatt shows as 1000.00 uW.
ShownLevel ToWatts(double level)
{
    constexpr std::pair<double, const char*> units[] = {{1, "W"}, {1e-3, "mW"}, {1e-6, "uW"}, {1e-9, "nW"}};
    const double watts = std::pow(10.0, level / 10 - 3);
    for (const auto& [unit, name] : units)
        if (watts >= static_cast<double>(static_cast<float>(unit)))
            return {name, FormatValue(watts / unit, "#0.00")};
    return {"pW", FormatValue(watts / 1e-12, "#0.00")};
}

ShownLevel LevelOf(const CDMARecord& record, float power)
{
    const float level = power + record.PowerOffset;
    if (record.DisplayUnits == 0)
        return {"dBm", ValueText(level)};
    return ToWatts(static_cast<double>(level));
}

void DrawSpectrumResults(ChartSurface& holder, const CDMARecord& record)
{
    constexpr int size = 24;
    const float power = record.ChannelPowerRMS + record.PowerOffset;
    const bool centred = record.CenterFrequency != 0;
    const float ppm = centred ? record.FrequencyError / record.CenterFrequency : 0;
    const Result results[] = {
        {6, 364, "Ch Power (dBm)", ValueText(power), size},
        {6, 424, "Ch Power (rms)", CDMALevelWattsText(static_cast<double>(power)), size},
        {190, 364, "Freq Error (Hz)", ValueText(record.FrequencyError, "#0"), size},
        {190, 424, "Freq Error (ppm)", centred ? ValueText(ppm) : "---", size},
        {372, 364, "Meas Occ Bw (kHz)", ValueText(record.OccupiedBandwidth, "#0"), size},
        {372, 424, "Noise Floor (dB)", ValueText(record.NoiseFloor), size},
    };
    DrawResults(holder, results);
}

/// A row of a list: a bar that ends at 490 for the strongest, and the value behind it.
void DrawListRow(ChartSurface& holder, int row, float left, float barEnd, const std::string& value)
{
    const auto top = static_cast<float>(row);
    holder.FillBox(left, top, barEnd, top + BarHeight, Red);
    DrawTextAt(holder, value, 500, row, RowTextSize, false, Blue);
}

/// Where the bar of a level ends. `most` is the list's strongest; when even that is as low as a bar goes,
/// there is no scale, and no bar has a length.
float BarEnd(float level, float most, float left)
{
    constexpr float right = 490;
    if (most <= LowestShown)
        return left;
    const float scale = (right - left) / (most - LowestShown);
    return right + (std::max(level, LowestShown) - most) * scale;
}

/// How sync, page and quick page channel stand against the pilot.
void DrawDeltaList(ChartSurface& holder, const Control& control, std::array<int, 3> rows)
{
    constexpr float left = 430;
    constexpr int labelSize = 9;
    constexpr std::int16_t pointsWithQuickPage = 80;
    constexpr struct {
        std::string_view Label;
        std::size_t Code;
    } channels[] = {{"Sync", 32}, {"Page", 1}, {"Q Page", 80}};
    const auto& power = control.CDMA.CDPPower;
    const auto delta = [&](std::size_t code) { return power[code] - power[0]; };
    const float most = std::max({delta(32), delta(1), delta(80)});
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (i == 2 && control.Header.DataPoints < pointsWithQuickPage)
            break;
        holder.Font.Name = "Symbol"; // whose D is the capital delta
        DrawTextAt(holder, "D", 372, rows[i], labelSize, false, Black);
        holder.Font.Name = "Arial";
        DrawTextAt(holder, channels[i].Label, 382, rows[i], labelSize, false, Black);
        const float shown = std::max(delta(channels[i].Code), LowestShown);
        DrawListRow(holder, rows[i], left, BarEnd(shown, most, left), ValueText(shown, "#0.0"));
    }
}

/// The three strongest pilots of the scan, in their stored order.
void DrawPilotList(ChartSurface& holder, const CDMARecord& record)
{
    constexpr float left = 420;
    constexpr std::array<int, 3> rows = {424, 442, 460};
    const float most = *std::max_element(record.PilotScanPower.begin(), record.PilotScanPower.begin() + 3);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string pn = record.SearchMode == "Untriggered"
                                   ? "N/A"
                                   : FormatValue(std::int32_t{record.PilotScanPN[i]}, "#0");
        DrawTextAt(holder, pn, 372, rows[i], RowTextSize, false, Blue);
        const float power = record.PilotScanPower[i];
        DrawListRow(holder, rows[i], left, BarEnd(power, most, left), ValueText(power));
    }
}

void DrawOverTheAirResults(ChartSurface& holder, const Control& control)
{
    constexpr int size = 30;
    const CDMARecord& record = control.CDMA;
    const ShownLevel pilot = LevelOf(record, record.PeakPowerRMS);
    const ShownLevel channel = LevelOf(record, record.ChannelPowerRMS);
    const Result results[] = {
        {6, 364, "Pilot Power (" + pilot.Unit + ")", pilot.Text, size},
        {6, 424, "Noise Floor (dB)", ValueText(record.NoiseFloor), size},
        {190, 364, "Ch Power RMS (" + channel.Unit + ")", channel.Text, size},
        {190, 424, "Pilot Dominance(dB)", ValueText(record.PilotDominance), size},
        {372, 424, "Multipath Pwr (dB)", ValueText(record.MultipathPower), size},
    };
    DrawResults(holder, results);
    DrawDeltaList(holder, control, {364, 382, 400});
}

void DrawCodeDomainResults(ChartSurface& holder, const Control& control)
{
    constexpr int size = 30;
    const CDMARecord& record = control.CDMA;
    const ShownLevel pilot = LevelOf(record, record.PeakPowerRMS);
    const ShownLevel channel = LevelOf(record, record.ChannelPowerRMS);
    const Result results[] = {
        {6, 364, "Pilot Power (" + pilot.Unit + ")", pilot.Text, size},
        {6, 424, "Rho", ValueText(record.MeasuredRho, "#0.000"), size},
        {190, 364, "Ch Power RMS (" + channel.Unit + ")", channel.Text, size},
        {190, 424, "Noise Floor (dB)", ValueText(record.NoiseFloor), size},
        {372, 364, "Freq Error (Hz)", ValueText(record.FrequencyError, "#0"), size},
    };
    DrawResults(holder, results);
    if ((record.StatusByte3 & CDMAOption::OverTheAir) == 0) {
        DrawTextAt(holder, "PN Offset (x64 chip)", 372, 424, LabelSize, false, Black);
        DrawTextAt(holder, record.SearchMode, 372, 454, 16, false, Blue);
    } else if (control.ShowParams) {
        DrawDeltaList(holder, control, {424, 442, 460});
    } else {
        DrawPilotList(holder, record);
    }
}

} // namespace

void DrawCDMAPanels(Control& control)
{
    ChartSurface& holder = control.CDMAHolder;
    if (control.DisplayMarkerValues) {
        return DrawReadoutRule(holder);
    }
    DrawResultCells(holder);
    if (control.CDMAViewMode == CodeView::Spectrum)
        DrawSpectrumResults(holder, control.CDMA);
    else if (control.CDMAViewMode == CodeView::OverTheAir)
        DrawOverTheAirResults(holder, control);
    else
        DrawCodeDomainResults(holder, control);
}

} // namespace Traces
