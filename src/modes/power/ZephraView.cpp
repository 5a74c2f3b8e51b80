// The high accuracy power meter: level in two units, limit test, warning.
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "modes/power/PowerLadder.h"
#include "modes/power/PowerPanel.h"
#include "modes/power/PowerSummary.h"
#include "modes/power/PowerView.h"

namespace Traces {

namespace {

constexpr int RowText = 12;
constexpr Colour Green = RGB(0, 255, 0);

bool IsRelative(const ZephraRecord& record)
{
    return record.RelativeStatus == "ON";
}

/// The captions keep the colour of the last reading that was tested. A warning takes the verdict's place.
void DrawLimitTest(Control& control)
{
    const ZephraRecord& record = control.Zephra;
    const bool tested = record.LimitStatus == "ON";
    const bool inRange = record.LowerLimit <= record.PowerReading && record.PowerReading <= record.UpperLimit;
    if (tested) {
        const Colour verdict = inRange ? Green : Red;
        control.ZephraPowerLabel.BackColor = verdict;
        control.ZephraPowerLabelUnit.BackColor = verdict;
    }
    ChartSurface& holder = control.ZephraHolder;
    constexpr int verdictText = 16;
    if (record.ErrorStatus != "0")
        DrawTextAt(holder, PowerWarningText(record.ErrorStatus), 56, 210, RowText, false, Red);
    else if (tested)
        DrawTextAt(holder, inRange ? "PASS" : "FAIL", 250, 210, verdictText);
    holder.ForeColor = Black;
}

std::string LevelCaption(const ZephraRecord& record)
{
    return IsRelative(record) ? FormatValue(record.PowerReading - record.PowerRelative, "#0.00 dB")
                              : FormatValue(record.PowerReading, "#0.0 dBm");
}

/// The level in watts, or against the reference. The two are compared as the ladder scaled them, each by its
/// own prefix; a reference that it left at 0 leaves the caption as it was.
void SetUnitCaption(Control& control, double scaled)
{
    std::string& caption = control.ZephraPowerLabelUnit.Caption;
    if (!IsRelative(control.Zephra)) {
        caption = FormatValue(scaled, "#0.00 ") + control.PowerLadderUnit;
        return;
    }
    auto reference = static_cast<double>(control.Zephra.PowerRelative);
    PowerLadder(control, reference);
    if (control.PowerLadderValue != 0)
        caption = FormatValue(scaled / control.PowerLadderValue * 100, "#0.00 ") + "%";
}

void SetCaptions(Control& control)
{
    auto level = static_cast<double>(control.Zephra.PowerReading);
    PowerLadder(control, level);
    const double scaled = control.PowerLadderValue;
    if (control.Zephra.ZeroStatus == "ON")
        control.ZephraPowerLabel.Caption = FormatValue(0.01, "#0.0 ") + control.PowerLadderUnit;
    SetUnitCaption(control, scaled);
}

void DrawFoot(Control& control)
{
    const ZephraRecord& record = control.Zephra;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.ZephraHolder, text, x, y, RowText);
    };
    put("Center=" + FormatValue(record.CenterFreq, "#0.00 MHz"), 2, 424);
    put("Relative:" + record.RelativeStatus, 2, 460);
    put("Std=" + record.SignalStandard, 275, 424);
    put("Offset:" + record.OffsetStatus, 275, 460);
}

} // namespace

void DrawZephraTrace(Control& control)
{
    ChartSurface& holder = control.ZephraHolder;
    BeginPanel(control, holder, {400, "HIPM-", "High Accuracy Power Meter", true});
    holder.ForeColor = Black;
    control.ZephraPowerLabel.Caption = LevelCaption(control.Zephra);
    DrawLimitTest(control);
    control.PowerBar.Width = 240;
    SetCaptions(control);
    DrawFoot(control);
    EndPanel(control, holder, PowerSummaryZephra);
}

} // namespace Traces
