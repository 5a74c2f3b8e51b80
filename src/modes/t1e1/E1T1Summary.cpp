#include "modes/t1e1/E1T1Summary.h"

#include "chart/SummaryPane.h"
#include "control/Control.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"

#include <array>
#include <optional>

namespace Traces {

namespace {

constexpr float TextSize = 11;
constexpr int LabelLeft = 14;
constexpr int PanelLeft = 10, LabelWidth = 160;

struct PaneRow {
    std::string_view Label;
    std::string Value;
};

std::string Count(std::int32_t value)
{
    return FormatValue(value, "#0");
}

void PrintValue(ChartSurface& pane, const std::string& value, int y, int right)
{
    constexpr int room = 150;
    PanePrint(pane, value, y, right, TextSize, PaneAlign::End, room);
}

/// A banded table with its texts, `inset` below the rows' rules.
template <std::size_t Rows>
void DrawTable(ChartSurface& pane, const std::array<PaneRow, Rows>& rows, int top, int rowHeight, int inset,
               int valueRight)
{
    PaneTable(
        pane,
        {.Rows = Rows, .Left = PanelLeft, .Top = top, .RowHeight = rowHeight, .LabelWidth = LabelWidth});
    int y = top + inset;
    for (const PaneRow& row : rows) {
        PanePrint(pane, row.Label, y, LabelLeft, TextSize);
        PrintValue(pane, row.Value, y, valueRight);
        y += rowHeight;
    }
}

/// The hour and the rest of "H:MM:SS", of which the seconds may be missing.
std::optional<std::array<int, 3>> TimeOfDay(std::string_view text)
{
    constexpr std::array<int, 3> limits = {24, 60, 60};
    std::array<int, 3> parts{};
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const std::size_t colon = std::min(text.find(':'), text.size());
        const auto number = StrictNumber<std::uint8_t>(text.substr(0, colon));
        if (!number || *number >= limits[part])
            return std::nullopt;
        parts[part] = *number;
        if (colon == text.size())
            return part > 0 ? std::optional(parts) : std::nullopt;
        text.remove_prefix(colon + 1);
    }
    return std::nullopt;
}

/// What the elapsed time leaves of seconds without the counted ones; 0 when there is no time. An hour has
/// always counted a twelfth of a second here, and instruments' reports are compared with that.
std::string SecondsLeft(const E1T1Record& record, std::int32_t counted)
{
    constexpr std::size_t days = 3;
    const std::string_view elapsed = TrimBlanks(record.ElapsedTime);
    const auto time = elapsed.size() > days ? TimeOfDay(elapsed.substr(days)) : std::nullopt;
    if (!time)
        return "0";
    const auto [hour, minute, second] = *time;
    return FormatValue(hour / 12.0 + minute * 60 + second - counted, "#0");
}

/// An E1 line counts two sorts of checksum errors in one row.
void PrintCrcRow(ChartSurface& pane, const E1T1Record& record, int y, int right)
{
    constexpr int countLeft = 188, letterLeft = 235, wordLeft = 260, room = 44;
    PanePrint(pane, Count(record.CrcErrorCount), y, countLeft, TextSize, PaneAlign::Start, room);
    PanePrint(pane, "E", y, letterLeft, TextSize);
    PanePrint(pane, "Bits", y, wordLeft, TextSize);
    PanePrint(pane, Count(record.EBitErrorCount), y, right, TextSize, PaneAlign::End, room);
}

} // namespace

std::string LoopWords(const E1T1Record& record)
{
    return LoopCode.Text(record.LoopCode) + " " + LoopType.Text(record.LoopType);
}

void E1T1Summary(Control& control)
{
    constexpr int countersTop = 10, countersRow = 20, countersRight = 336, crcTop = 92;
    constexpr int settingsTop = 248, settingsRow = 28, settingsRight = 338;
    const E1T1Record& record = control.E1T1;
    const bool isE1 = control.Header.Mode == TraceMode::E1;
    ChartSurface& pane = OpenPane(control);
    DrawTable(pane,
              std::to_array<PaneRow>({{"Frame Bits", Count(record.FrameErrorCount)},
                                      {"Bit Errors", Count(record.BitErrors)},
                                      {"BER", record.BitErrorRate},
                                      {"BPV", Count(record.BpvErrorCount)},
                                      {"CRC", isE1 ? "" : Count(record.CrcErrorCount)},
                                      {"Errored Sec", Count(record.ErroredSeconds)},
                                      {"EFS", SecondsLeft(record, record.ErroredSeconds)},
                                      {"SES", Count(record.SeverelyErroredSeconds)},
                                      {"UAS", Count(record.UnavailableSeconds)},
                                      {"AS", SecondsLeft(record, record.UnavailableSeconds)},
                                      {"DGRM", Count(record.DegradedMinutes)}}),
              countersTop, countersRow, 2, countersRight);
    if (isE1)
        PrintCrcRow(pane, record, crcTop, countersRight);
    DrawTable(pane,
              std::to_array<PaneRow>({{"Framing", record.FramingMode},
                                      {"Tx Level", isE1 ? "N/A" : record.TxLevel},
                                      {"Rx Config", record.ReceiveInput},
                                      {"Clock Src", record.ClockSource},
                                      {"Pattern", record.Pattern},
                                      {"Error Ins", record.ErrorInsertType},
                                      {"Line Code", record.LineCoding},
                                      {"Loop Code", isE1 ? "N/A" : LoopWords(record)}}),
              settingsTop, settingsRow, 4, settingsRight);
    ClosePane(pane);
}

} // namespace Traces
