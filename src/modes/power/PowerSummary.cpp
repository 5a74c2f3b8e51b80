#include "modes/power/PowerSummary.h"

#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/power/PowerMeterTrace.h"

#include <initializer_list>

namespace Traces {

namespace {

constexpr float RowText = 11;
constexpr int RowHeight = 28;

struct PaneRow {
    int Y;
    std::string_view Label;
    std::string Value;
    int ValueAbove = 0; ///< what the value stands higher than its label
};

void PrintRows(ChartSurface& pane, std::initializer_list<PaneRow> rows)
{
    constexpr int labelLeft = 14;
    constexpr int valueRight = 336;
    constexpr int valueWidth = 150;
    for (const PaneRow& row : rows) {
        PanePrint(pane, row.Label, row.Y, labelLeft, RowText);
        PanePrint(pane, row.Value, row.Y - row.ValueAbove, valueRight, RowText, PaneAlign::End, valueWidth);
    }
}

void DrawPanel(ChartSurface& pane, int top, int rows, int rowHeight = RowHeight)
{
    PaneTable(pane, {.Rows = rows, .Left = 10, .Top = top, .RowHeight = rowHeight, .LabelWidth = 186});
}

/// From a first row's place on.
void PrintPosition(ChartSurface& pane, const GpsFix& fix, int top, int rowHeight = RowHeight)
{
    const PanePosition position = PanePositionTexts(fix);
    PrintRows(pane, {{top, "GPS-Latitude:", position.Latitude},
                     {top + rowHeight, "GPS-Longitude:", position.Longitude},
                     {top + 2 * rowHeight, "GPS-Altitude:", position.Altitude}});
}

std::string UnitName(const PowerRecord& record)
{
    const bool relative = record.RelativeStatus == "ON";
    if (record.PowerUnit == 1)
        return relative ? "dB" : "dBm";
    return relative ? "%" : "Watts";
}

std::string MonitorOffset(const PowerRecord& record)
{
    const std::string& status = record.OffsetStatus;
    return status == "ON" ? NumberText(record.PowerOffset) + "dB(" + status + ")" : status;
}

/// A word shows as it stands, a number of a file through the mask.
std::string Masked(const std::string& text, std::string_view mask)
{
    const auto number = StrictNumber<double>(text);
    return number ? FormatValue(*number, mask) : text;
}

} // namespace

void PowerSummaryPMON(Control& control)
{
    const PowerRecord& record = control.Power;
    const TraceHeader& header = control.Header;
    ChartSurface& pane = OpenPane(control);
    constexpr float titleText = 18;
    PanePrint(pane, "Power Monitor", 30, 90, titleText);
    DrawPanel(pane, 100, 7);
    PrintRows(pane, {{104, "Units :", UnitName(record)},
                     {132, "Relative: ", record.RelativeStatus},
                     {160, "Offset: ", MonitorOffset(record)},
                     {188, "Zero Adj:", record.ZeroStatus},
                     {216, "Model:", header.Model},
                     {244, "Measure Date:", header.Date},
                     {272, "Measure Time:", header.Time}});
    DrawPanel(pane, 356, 3);
    PrintPosition(pane, PositionOf(control.Power), 360);
    ClosePane(pane);
}

void PowerSummaryPMET(Control& control)
{
    const PowerRecord& record = control.Power;
    const TraceHeader& header = control.Header;
    const auto megahertz = [](float value) { return FormatValue(value, "#0.00 MHz"); };
    ChartSurface& pane = OpenPane(control);
    DrawPanel(pane, 10, 10);
    PrintRows(pane, {{12, "Center Freq:", megahertz(record.CenterFreq)},
                     {40, "Freq. Span:", megahertz(record.FreqSpan)},
                     {68, "Start Freq:", megahertz(record.StartFreq)},
                     {96, "Stop Freq:", megahertz(record.StopFreq)},
                     {124, "Power Rel. Ref:", FormatValue(record.PowerRelative, "#0.00 dB")},
                     {152, "Power Offset:", FormatValue(record.PowerOffset, "#0.00 dB")},
                     {180, "RMS Averaging:", record.RmsAveraging},
                     {208, "Signal Std:", record.SignalStandard},
                     {236, "Uplink/Downlink:", record.LinkType},
                     {264, "Channel:", NumberOrNA(record.ChannelSelection)}});
    DrawPanel(pane, 296, 3);
    PrintRows(pane, {{298, "Model:", header.Model},
                     {326, "Measure Date:", header.Date},
                     {354, "Measure Time:", header.Time}});
    DrawPanel(pane, 388, 3);
    PrintPosition(pane, PositionOf(control.Power), 390);
    ClosePane(pane);
}

void PowerSummaryZephra(Control& control)
{
    const ZephraRecord& record = control.Zephra;
    const TraceHeader& header = control.Header;
    ChartSurface& pane = OpenPane(control);
    // The ninth row has always stood below the panel of eight.
    DrawPanel(pane, 10, 8);
    const bool offset = record.OffsetStatus != "OFF";
    PrintRows(pane, {{12, "Center Freq:", FormatValue(record.CenterFreq, "#0.00 MHz")},
                     {40, "MaxHold:", Masked(record.MaxHold, "0")},
                     {68, "Upper Limit:", FormatValue(record.UpperLimit, "#0.00 dBm")},
                     {96, "Lower limit:", FormatValue(record.LowerLimit, "#0.00 dBm")},
                     {124, "Power Offset:", offset ? FormatValue(record.PowerOffset, "#0.00 dB") : "OFF"},
                     {152, "Zero Adj:", Masked(record.ZeroStatus, "#0.00")},
                     {180, "Limits:", record.LimitStatus},
                     {208, "Signal Std:", record.SignalStandard, 4},
                     {236, "Averages:", record.RanValue}});
    DrawPanel(pane, 294, 4);
    PrintRows(pane, {{296, "Model:", header.Model},
                     {324, "Measure Date:", header.Date},
                     {352, "Measure Time:", header.Time},
                     {380, "UTC Time:", record.UtcTime}});
    // Lower rows than the others', or the pane would cut the last one.
    constexpr int positionTop = 409;
    constexpr int lowRow = 23;
    DrawPanel(pane, positionTop, 3, lowRow);
    PrintPosition(pane, {record.GpsLatitude, record.GpsLongitude, record.GpsAltitude, std::nullopt},
                  positionTop + 1, lowRow);
    ClosePane(pane);
}

} // namespace Traces
