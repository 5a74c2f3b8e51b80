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
constexpr int PanelLeft = 10, LabelWidth = 160;

std::string Count(std::int32_t value)
{
    return FormatValue(value, "#0");
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
    constexpr int countersRight = 336, crcTop = 92;
    const E1T1Record& record = control.E1T1;
    const bool isE1 = control.Header.Mode == TraceMode::E1;
    ChartSurface& pane = OpenPane(control);
    const PaneRow counters[] = {{"Frame Bits", Count(record.FrameErrorCount)},
                                {"Bit Errors", Count(record.BitErrors)},
                                {"BER", record.BitErrorRate},
                                {"BPV", Count(record.BpvErrorCount)},
                                {"CRC", isE1 ? "" : Count(record.CrcErrorCount)},
                                {"Errored Sec", Count(record.ErroredSeconds)},
                                {"EFS", SecondsLeft(record, record.ErroredSeconds)},
                                {"SES", Count(record.SeverelyErroredSeconds)},
                                {"UAS", Count(record.UnavailableSeconds)},
                                {"AS", SecondsLeft(record, record.UnavailableSeconds)},
                                {"DGRM", Count(record.DegradedMinutes)}};
    PaneRows(pane, {.Left = PanelLeft, .Top = 10, .RowHeight = 20, .LabelWidth = LabelWidth}, counters,
             {.Inset = 2});
    if (isE1)
        PrintCrcRow(pane, record, crcTop, countersRight);
    const PaneRow settings[] = {
        {"Framing", record.FramingMode},    {"Tx Level", isE1 ? "N/A" : record.TxLevel},
        {"Rx Config", record.ReceiveInput}, {"Clock Src", record.ClockSource},
        {"Pattern", record.Pattern},        {"Error Ins", record.ErrorInsertType},
        {"Line Code", record.LineCoding},   {"Loop Code", isE1 ? "N/A" : LoopWords(record)}};
    PaneRows(pane, {.Left = PanelLeft, .Top = 248, .RowHeight = 28, .LabelWidth = LabelWidth}, settings,
             {.ValueRight = 338});
    ClosePane(pane);
}

} // namespace Traces
