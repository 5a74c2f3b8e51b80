#include "modes/cdma/CDMASummary.h"

#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "formats/FormatValue.h"
#include "formats/LibraryValues.h"
#include "modes/cdma/CDMAFields.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace Traces {

namespace {

constexpr int Left = 10, Right = 340;
constexpr int RowHeight = 16;
constexpr float TextSize = 9;

/// Columns of a scan's table: number, bar, delay (from 3.20), power.
constexpr int BarLeft = 60, DelayLeft = 210, PowerLeft = 270;

struct ScanRow {
    std::string Number, Delay, PowerText;
    float Power;
};

void PrintIn(ChartSurface& pane, const std::string& text, int y, int left, int right)
{
    PanePrint(pane, text, y, (left + right) / 2, TextSize, PaneAlign::Centre, right - left - 4, Black);
}

void DrawBar(ChartSurface& pane, int y, int right, float power, float most)
{
    constexpr float floor = -40;
    constexpr int inset = 3;
    if (!(most > floor))
        return;
    const float length = static_cast<float>(right - BarLeft - 2 * inset);
    const float part = std::clamp((power - floor) / (most - floor), 0.0F, 1.0F);
    pane.FillBox(BarLeft + inset, static_cast<float>(y + inset), BarLeft + inset + length * part,
                 static_cast<float>(y + RowHeight - inset), Red);
}

/// A table of rows with bars against the strongest pilot, where something was measured; gives the place
/// below it.
int DrawScan(ChartSurface& pane, int top, const std::vector<std::string>& heads,
             const std::vector<ScanRow>& rows, std::optional<float> strongest)
{
    const bool delays = heads.size() == 4;
    const int barRight = delays ? DelayLeft : PowerLeft;
    std::vector<int> edges = {Left, BarLeft, barRight, Right};
    if (delays)
        edges.insert(edges.end() - 1, PowerLeft);
    for (std::size_t column = 0; column < heads.size(); ++column) {
        const int bottom = top + RowHeight * static_cast<int>(rows.size() + 1);
        PaneBand(pane, edges[column], top, edges[column + 1], bottom, PaneValueBand);
        PaneBand(pane, edges[column], top, edges[column + 1], top + RowHeight, PaneLabelBand);
        PrintIn(pane, heads[column], top + 1, edges[column], edges[column + 1]);
    }
    int y = top;
    for (const ScanRow& row : rows) {
        y += RowHeight;
        PrintIn(pane, row.Number, y + 1, Left, BarLeft);
        if (strongest)
            DrawBar(pane, y, barRight, row.Power, *strongest);
        if (delays)
            PrintIn(pane, row.Delay, y + 1, DelayLeft, PowerLeft);
        PrintIn(pane, row.PowerText, y + 1, PowerLeft, Right);
    }
    return y + RowHeight;
}

std::string DelayText(float tau)
{
    return tau == -30 ? "---" : FormatValue(tau, "#0.00");
}

std::vector<ScanRow> PilotRows(const CDMARecord& record, bool newer, bool measured)
{
    constexpr std::size_t olderPilots = 7;
    const bool numbered = measured && record.SearchMode != "Untriggered";
    std::vector<ScanRow> rows;
    for (std::size_t i = 0; i < (newer ? CDMARecord::Pilots : olderPilots); ++i) {
        const float power = record.PilotScanPower[i];
        rows.push_back({numbered ? FormatValue(std::int32_t{record.PilotScanPN[i]}, "#0") : "N/A",
                        i < CDMARecord::Paths ? DelayText(record.PilotTau[i]) : "---",
                        measured ? FormatValue(power, "#0.00") : "N/A", power});
    }
    return rows;
}

void DrawResults(ChartSurface& pane, int top, const CDMARecord& record)
{
    const bool measured = (record.StatusByte3 & CDMAOption::OverTheAir) != 0;
    const bool spectrum = (record.StatusByte3 & CDMAOption::RF) != 0;
    const auto text = [](float value, const char* mask, bool known = true) {
        return known ? FormatValue(value, mask) : std::string("N/A");
    };
    const PaneRow rows[] = {
        {"Ec/lo", text(record.PilotScanPower[0], "#0.00 dB")},
        {"Rho", text(record.MeasuredRho, "#0.000")},
        {"PN Search", record.SearchMode},
        {"Tau", text(record.Tau, "#0.0 us")},
        {"Freq Error", text(record.FrequencyError, "#0 Hz")},
        {"Carrier FT", text(record.CarrierFeedthrough, "#0.00 dB")},
        {"Noise Floor", text(record.NoiseFloor, "#0.00 dB")},
        {"Pilot Dominance", text(record.PilotDominance, "#0.00 dB", measured)},
        {"Multipath Power", text(record.MultipathPower, "#0.00 dB", measured)},
        {"Meas Occ BW", text(record.OccupiedBandwidth, "#0 kHz", spectrum)},
    };
    PaneRows(pane, {.Left = Left, .Top = top, .RowHeight = 20, .LabelWidth = 150}, rows,
             {.Size = 10, .Inset = 2, .ValueRoom = 170, .LabelColour = Black});
}

} // namespace

void DrawCDMASummary(Control& control)
{
    constexpr int gap = 8;
    const CDMARecord& record = control.CDMA;
    const bool newer = Library().TraceVersionValue >= LayoutVersion;
    const bool measured = (record.StatusByte3 & CDMAOption::OverTheAir) != 0;
    ChartSurface& pane = OpenPane(control);
    const std::vector<ScanRow> pilots = PilotRows(record, newer, measured);
    std::optional<float> strongest;
    if (measured)
        strongest = std::ranges::max(pilots, {}, &ScanRow::Power).Power;
    using Heads = std::vector<std::string>;
    int y = DrawScan(pane, gap,
                     newer ? Heads{"PN", "Pilot Scan Results", "Tau (us)", "Power"}
                           : Heads{"PN", "Pilot Scan Results", "Ec/Io"},
                     pilots, strongest);
    const ScanRow multipath = {DelayText(record.Tau), "",
                               measured ? FormatValue(record.MultipathPower, "#0.00") : "N/A",
                               record.MultipathPower};
    y = DrawScan(pane, y + gap, {"Tau (us)", "Multipath", newer ? "Power" : "Ec/Io"}, {multipath}, strongest);
    DrawResults(pane, y + gap, record);
    ClosePane(pane);
}

} // namespace Traces
