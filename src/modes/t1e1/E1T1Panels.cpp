#include "modes/t1e1/E1T1Panels.h"

#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"
#include "formats/CodeTable.h"
#include "formats/FormatValue.h"
#include "formats/Numbers.h"
#include "modes/t1e1/E1T1Summary.h"

namespace Traces {

namespace {

constexpr int SettingText = 10, PanelText = 12, TitleText = 24;
constexpr float LevelText = 48, SmallLevelText = 14;

struct LabelPlace {
    float Left, Top, Width, Height;
    float FontSize; ///< points at the control's design size
};

/// The caption of the level is the whole panel of one view, and a corner of the other's.
void PlaceLevel(Control& control, const LabelPlace& place)
{
    Label& label = control.VppLabel;
    label.Left = place.Left;
    label.Top = place.Top;
    label.Width = place.Width;
    label.Height = place.Height;
    label.Font.Size = place.FontSize * control.ScreenFacts().FontScaleFactor;
}

/// How the bar of a level stands over its scale.
struct VppScale {
    std::string_view Heading, Mask, TickMask, Unit;
    float BarWidth;
    int FirstTick, LastTick, TickStep; ///< in the unit of the level
    int TickSpacing;                   ///< in the holder's units
    int LongTickEvery;
    float Left, Right; ///< the bar's own system
    float Floor;       ///< where the level's box begins
};

constexpr VppScale Decibels = {"dBdsx", "#0.00 dB", "##0", "dBdsx", 225, -35, 5, 5, 25, 10, -37, 7, -35};
constexpr VppScale Volts = {
    "Peak to Peak Voltage", "#0.00 VPP", "0", "Vpp", 264, -1, 9, 1, 24, 4, -1.4F, 9.4F, -1};

void DrawTicks(ChartSurface& holder, const VppScale& scale)
{
    constexpr int firstX = 50, textTop = 304;
    int place = firstX;
    for (int value = scale.FirstTick; value <= scale.LastTick; value += scale.TickStep) {
        const bool isLong = value % scale.LongTickEvery == 0;
        const auto x = static_cast<float>(place);
        if (isLong)
            DrawCentred(holder, FormatValue(std::int32_t{value}, scale.TickMask), place, textTop, PanelText);
        holder.FillBox(x, 286, x + 1, isLong ? 298 : 292, White);
        place += scale.TickSpacing;
    }
}

void DrawBar(Control& control, const VppScale& scale)
{
    ChartSurface& bar = control.VppBar;
    bar.Width = scale.BarWidth;
    bar.Scale(scale.Left, 1.1F, scale.Right, -0.1F);
    bar.FillBox(scale.Floor, 1, control.E1T1.VppLevel, 0, Red);
}

void EndReading(Control& control)
{
    if (control.ShowParams)
        E1T1Summary(control);
    for (ChartSurface* surface : {&control.E1T1Holder, &control.E1T1Box, &control.ErrorsBox, &control.VppBar})
        surface->AutoRedraw = false;
}

std::string FrequencyText(const E1T1Record& record)
{
    constexpr int lowestTone = 100;
    return record.ReceiveToneFreq >= lowestTone ? NumberText(record.ReceiveToneFreq) : "< 100";
}

std::string PowerText(const E1T1Record& record)
{
    constexpr float lowestLevel = -40;
    return record.ReceiveLevel < lowestLevel ? "< -40.0" : FormatValue(record.ReceiveLevel, "#0.0");
}

void DrawVFSettings(Control& control)
{
    constexpr int right = 276;
    const E1T1Record& record = control.E1T1;
    const auto put = [&](const std::string& text, int x, int y) {
        DrawTextAt(control.E1T1Holder, text, x, y, PanelText);
    };
    DrawStatus(control, "Carrier:", 2, 352, PanelText, record.CarrierStatus);
    put("Framing = " + record.FramingMode, 2, 376);
    put("Rx Config = " + record.ReceiveInput, 2, 400);
    put("Line Code = " + record.LineCoding, 2, 424);
    put("Clock Source = " + record.ClockSource, 2, 448);
    DrawStatus(control, "Frame Sync:", right, 352, PanelText, record.FrameSyncStatus);
    put("Channel = " + NumberText(record.ChannelNumber), right, 376);
    put("Volume = " + NumberText(record.AudioVolume) + "%", right, 400);
    put("Tx Level (dBm) = " + NumberText(record.SendLevel), right, 424);
    put("Tx Freq (Hz) = " + NumberText(record.SendFreq), right, 448);
}

} // namespace

void DrawStatus(Control& control, std::string_view label, int x, int y, int size, const std::string& state)
{
    ChartSurface& holder = control.E1T1Holder;
    int lampX = -1, lampY = -1;
    DrawTextAt(holder, label, x, y, size);
    DrawLed(holder, holder, lampX, lampY, SyncState.Code(state) != 1);
}

void DrawVppView(Control& control)
{
    const E1T1Record& record = control.E1T1;
    ChartSurface& holder = control.E1T1Holder;
    ChartSurface& bar = control.VppBar;
    bar.Visible = control.VppLabel.Visible = true;
    control.E1T1Box.Visible = control.ErrorsBox.Visible = false;
    control.VFFreqLabel.Visible = control.VFPowerLabel.Visible = false;
    bar.AutoRedraw = true;
    bar.Cls();
    bar.Left = 40;
    PlaceLevel(control, {50, 100, 450, 100, LevelText});
    DrawRaisedPanel(holder, 30, 30, 520, 400);
    holder.ForeColor = White;
    holder.FillBox(50, 40, 500, 60, BarGreen);
    // The decoder takes any scaling but 0 for decibels, the view this one alone.
    const VppScale& scale = record.VppScaling == 1 ? Decibels : Volts;
    DrawTextAt(holder, scale.Heading, 70, 42, PanelText);
    control.VppLabel.Caption = FormatValue(record.VppLevel, scale.Mask);
    DrawTicks(holder, scale);
    DrawBar(control, scale);
    DrawCentred(holder, scale.Unit, WholeUnits(bar.Left + bar.Width / 2), 324, PanelText);
    holder.ForeColor = Black;
    DrawTextAt(holder, "Impedance = " + record.VppImpedance, 2, 442, SettingText);
    DrawTextAt(holder, "Rx Config = " + record.VppRxConfig, 2, 460, SettingText);
    EndReading(control);
}

void DrawVFView(Control& control)
{
    const E1T1Record& record = control.E1T1;
    ChartSurface& holder = control.E1T1Holder;
    control.VFFreqLabel.Visible = control.VFPowerLabel.Visible = control.VppLabel.Visible = true;
    control.E1T1Box.Visible = control.ErrorsBox.Visible = control.VppBar.Visible = false;
    PlaceLevel(control, {340, 124, 120, 22, SmallLevelText});
    SetBoxFont(holder, TitleText, false);
    // Centred by the name that the instrument has for it.
    const double middle = 275 - static_cast<double>(holder.TextWidth("VF/DSO Testor")) / 2;
    DrawTextAt(holder, "VF/DSO Tester", WholeUnits(middle), 30, TitleText);
    DrawRaisedPanel(holder, 80, 90, 470, 320);
    holder.ForeColor = White;
    holder.FillBox(90, 100, 460, 120, BarGreen);
    DrawTextAt(holder, "VF Measurements", 100, 102, PanelText);
    control.VppLabel.Caption = FormatValue(record.VppLevel, "#0.00 dB");
    const bool known = SyncState.Code(record.FrameSyncStatus) == 0;
    DrawTextAt(holder, "Frequency (Hz)", 100, 130, PanelText);
    control.VFFreqLabel.Caption = known ? FrequencyText(record) : "UNAVAILABLE";
    DrawTextAt(holder, "Power (dBm)", 100, 230, PanelText);
    control.VFPowerLabel.Caption = known ? PowerText(record) : "UNAVAILABLE";
    DrawVFSettings(control);
    EndReading(control);
}

} // namespace Traces
