#include "modes/evdo/EvDOPanels.h"

#include "chart/Panel.h"
#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/LibraryValues.h"
#include "formats/PowerUnits.h"
#include "modes/cdma/CodeChart.h"
#include "modes/evdo/EvDOFields.h"
#include "modes/evdo/EvDOTrace.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Traces {

namespace {

constexpr int LargeSize = 30, TextSize = 10, ListSize = 12;
constexpr std::uint8_t Untriggered = 4;

bool Has(const EvDORecord& record, std::uint8_t bit)
{
    return (record.StatusByte1 & bit) != 0;
}

/// The size at which a value fits its cell: watts with their unit are longer than decibels.
int LevelSize(const EvDORecord& record)
{
    constexpr int smaller = 20;
    return record.DisplayUnits == 0 ? LargeSize : smaller;
}

std::string UnitOf(const EvDORecord& record)
{
    return record.DisplayUnits == 0 ? " (dBm)" : "";
}

std::string ModulationText(const EvDORecord& record)
{
    const std::string text = Modulation.Text(record.DataModulation);
    return record.DataModulation == 0 ? text : "Manual (" + text + ")";
}

void DrawSpectrumResults(ChartSurface& holder, const EvDORecord& record)
{
    const bool active = Has(record, EvDOStatus::Active);
    const bool idleCaptured = record.DataPowerIdle != EvDONotCaptured;
    const Result slotActivity =
        active
            ? Result{190, 424, "Active Activity (%)", FormatValue(record.ActiveActivity, "#0.0"), LargeSize}
            : Result{190, 424, "Idle Activity (%)", FormatValue(record.IdleActivity, "#0.0"), LargeSize};
    const Result slotPower =
        active ? Result{372, 424, "Active Data Pwr(dB)",
                        record.DataPowerActive == EvDONotCaptured
                            ? "N/A"
                            : FormatValue(record.DataPowerActive + record.PowerOffset, "#0.00"),
                        LargeSize}
               : Result{372, 424, "On/Off Ratio (dB)",
                        idleCaptured ? FormatValue(record.DataPowerIdle - record.PilotMACPowerIdle, "##.00")
                                     : "N/A",
                        LargeSize};
    const Result results[] = {
        {6, 364, "Pilot/MAC Pwr" + UnitOf(record), EvDOLevelText(record, record.PilotMACPowerAverage),
         LevelSize(record)},
        {6, 424, "Ch Power (rms)", FormatValue(record.ChannelPowerRMS + record.PowerOffset, "#0.00"),
         LargeSize},
        {190, 364, "Freq Error (Hz)", FormatValue(record.FrequencyError, "#0"), LargeSize},
        {372, 364, "Meas Occ Bw (kHz)", FormatValue(record.OccupiedBandwidth, "#0"), LargeSize},
        slotActivity,
        slotPower,
    };
    DrawResults(holder, results);
}

void DrawDataResults(ChartSurface& holder, const EvDORecord& record)
{
    const bool idle = Has(record, EvDOStatus::Idle);
    const auto [lowI, highI] = std::ranges::minmax(record.CDPDataI);
    const auto [lowQ, highQ] = std::ranges::minmax(record.CDPDataQ);
    const auto code = [&](float value) { return idle ? std::string("Idle") : FormatValue(value, "#0.00"); };
    const Result results[] = {
        {6, 364, "Active Data" + UnitOf(record),
         idle ? "Idle" : EvDOLevelText(record, record.DataPowerActive), LevelSize(record)},
        {6, 424, "Data Code Max(dB)", code(std::max(highI, highQ)), LargeSize},
        {190, 364, "Rho Overall 2", FormatValue(record.RhoOverall2, "#0.000"), LargeSize},
        {190, 424, "Data Code Min(dB)", code(std::min(lowI, lowQ)), LargeSize},
        {372, 364, "EVM", FormatValue(record.EVM, "#0.00"), LargeSize},
        {372, 424, "Measured Modulation", Modulation.Text(record.MeasuredDataModulationType), 16},
    };
    DrawResults(holder, results);
}

void DrawMACResults(ChartSurface& holder, const EvDORecord& record)
{
    const Result results[] = {
        {6, 364, "Pilot/MAC Power", EvDOLevelText(record, record.PilotMACPowerAverage), LevelSize(record)},
        {6, 424, "Noise Floor (dB)", FormatValue(record.NoiseFloor, "#0.0"), LargeSize},
        {190, 364, "Rho Overall 1", FormatValue(record.RhoOverall1, "#0.000"), LargeSize},
        {190, 424, "Freq Error (Hz)", FormatValue(record.FrequencyError, "#0"), LargeSize},
        {372, 364, "Data Modulation", ModulationText(record), 16},
    };
    DrawResults(holder, results);
    constexpr int rows[] = {424, 442, 460};
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const std::string pn =
            record.SearchMode == Untriggered ? "N/A" : FormatValue(std::int32_t{record.PilotScanPN[i]}, "#0");
        DrawTextAt(holder, pn, 372, rows[i], ListSize, false, Blue);
    }
}

void DrawScanResults(ChartSurface& holder, const EvDORecord& record)
{
    const Result results[] = {
        {6, 364, "Pilot/MAC Power", EvDOLevelText(record, record.PilotMACPowerAverage), LevelSize(record)},
        {6, 424, "Pilot Dominance (dB)", FormatValue(record.PilotDominance, "#0.00"), LargeSize},
        {190, 364, "Noise Floor (dB)", FormatValue(record.NoiseFloor, "#0.0"), LargeSize},
        {190, 424, "Rho Pilot", FormatValue(record.RhoPilot, "#0.000"), LargeSize},
        {372, 364, "Freq Error (Hz)", FormatValue(record.FrequencyError, "#0"), LargeSize},
        {372, 424, "Multipath Pwr (dB)", FormatValue(record.MultipathPower, "#0.00"), LargeSize},
    };
    DrawResults(holder, results);
}

/// A row of a table over the air: number, bar, delay where the table has it, power.
struct ScanRow {
    std::string Number, Delay, PowerText;
    float Power;
    bool HasBar;
};

/// A head at the table's top, and its rows below.
struct ScanTable {
    int Top, FirstRow, RowStep, Size;
    const char* NumberHead;
    const char* Title;
    bool HasDelays;
};

void DrawTable(ChartSurface& holder, const ScanTable& table, const std::vector<ScanRow>& rows)
{
    constexpr int number = 110, bars = 170, delay = 350, power = 430;
    constexpr float floor = -40, barLength = 160;
    const int bottom = table.FirstRow + table.RowStep * static_cast<int>(rows.size());
    PaneBand(holder, 100, table.Top, 540, bottom, PaleYellow);
    PaneBand(holder, 100, table.Top, 540, table.Top + 20, PaneLabelBand);
    const auto head = [&](const char* text, int x) {
        DrawTextAt(holder, text, x, table.Top + 2, TextSize, false, Black);
    };
    head(table.NumberHead, number);
    head(table.Title, bars);
    if (table.HasDelays)
        head("Tau(us)", delay);
    head("Power", power);
    float most = floor;
    for (const ScanRow& row : rows)
        most = row.HasBar ? std::max(most, row.Power) : most;
    int y = table.FirstRow;
    for (const ScanRow& row : rows) {
        DrawTextAt(holder, row.Number, number, y, table.Size, false, Blue);
        if (row.HasBar && most > floor) {
            const float length = barLength * std::clamp((row.Power - floor) / (most - floor), 0.0F, 1.0F);
            const auto top = static_cast<float>(y);
            holder.FillBox(bars, top + 3, bars + length, top + 15, Red);
        }
        if (table.HasDelays)
            DrawTextAt(holder, row.Delay, delay, y, table.Size, false, Blue);
        DrawTextAt(holder, row.PowerText, power, y, table.Size, false, Blue);
        y += table.RowStep;
    }
}

/// A delay that no path has.
constexpr float NoDelay = -30;

std::string DelayText(float tau)
{
    return tau == NoDelay ? "---" : FormatValue(tau, "#0.00");
}

ScanRow PilotRow(const EvDORecord& record, std::size_t i, bool newer)
{
    constexpr std::int16_t noPilot = 999;
    constexpr std::size_t firstDoubtful = 4;
    const bool none = i >= firstDoubtful && record.PilotScanPN[i] == noPilot;
    const bool valid = !newer || static_cast<int>(i) < record.NoValidPilotScan;
    if (none && valid)
        return {"N/A", "N/A", "N/A", 0, false};
    const std::string number = none || record.SearchMode == Untriggered
                                   ? "N/A"
                                   : FormatValue(std::int32_t{record.PilotScanPN[i]}, "#0");
    const std::string delay = newer && valid ? DelayText(record.PilotTau[i]) : "---";
    return {number, delay, valid ? FormatValue(record.PilotScanPower[i], "#0.00") : "---",
            record.PilotScanPower[i], valid};
}

} // namespace

std::string EvDOLevelText(const EvDORecord& record, float level)
{
    return level == EvDONotCaptured
               ? "N/A"
               : DbmToWattsRounded(static_cast<double>(level + record.PowerOffset), record.DisplayUnits != 0);
}

void DrawEvDOPanels(Control& control)
{
    ChartSurface& holder = control.EvDOHolder;
    const EvDORecord& record = control.EvDO;
    if (control.DisplayMarkerValues && control.EvDOViewMode < 2) {
        return DrawReadoutRule(holder);
    }
    DrawResultCells(holder);
    if (control.EvDOViewMode == CodeView::Spectrum)
        DrawSpectrumResults(holder, record);
    else if (control.EvDOViewMode == CodeView::OverTheAir)
        DrawScanResults(holder, record);
    else if (Has(record, EvDOStatus::MAC))
        DrawMACResults(holder, record);
    else
        DrawDataResults(holder, record);
}

void DrawEvDOScan(Control& control)
{
    ChartSurface& holder = control.EvDOHolder;
    const EvDORecord& record = control.EvDO;
    const bool newer = Library().TraceVersionValue >= LayoutVersion;
    std::vector<ScanRow> pilots;
    for (std::size_t i = 0; i < (newer ? EvDORecord::Paths : 3U); ++i)
        pilots.push_back(PilotRow(record, i, newer));
    const ScanTable scan = newer ? ScanTable{60, 85, 20, ListSize, "PN", "Pilot Scan Results", true}
                                 : ScanTable{66, 92, 30, 16, "PN", "Pilot Scan Results", false};
    DrawTable(holder, scan, pilots);

    // The record tells one delay and the power of all paths together.
    const bool untriggered = record.SearchMode == Untriggered;
    std::vector<ScanRow> paths(3, ScanRow{"---", "", "---", 0, false});
    if (!newer || record.NoValidPilotScan > 0)
        paths[0] = {DelayText(record.Tau), "", FormatValue(record.MultipathPower, "#0.00"),
                    record.MultipathPower, true};
    if (untriggered)
        paths.assign(3, ScanRow{"N/A", "", "N/A", 0, false});
    DrawTable(holder, {210, 242, 30, 16, "Tau", "Multipath", false}, paths);
}

} // namespace Traces
