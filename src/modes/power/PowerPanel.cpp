#include "modes/power/PowerPanel.h"

#include "chart/Panel.h"
#include "control/Control.h"
#include "control/ViewText.h"

namespace Traces {

namespace {

constexpr int SmallText = 10;
constexpr int NameText = 12;

} // namespace

void BeginPanel(const Control& control, ChartSurface& holder, const PowerPanel& panel)
{
    holder.AutoRedraw = true;
    holder.Cls();
    holder.Font.Bold = false;
    SetBoxFont(holder, SmallText, false);
    holder.ForeColor = Black;
    DrawRaisedPanel(holder, 30, 30, 520, panel.Bottom);
    DrawCentred(holder, std::string(panel.TitlePrefix) + control.TraceName, WholeUnits(holder.ScaleWidth / 2),
                4, SmallText);
    holder.FillBox(50, 40, 500, 60, BarGreen);
    holder.Font.Bold = panel.Bold;
    DrawTextAt(holder, panel.Name, 70, 42, NameText, false, White);
    DrawTextAt(holder, "Power", 56, 86, SmallText, false, White);
}

void EndPanel(Control& control, ChartSurface& holder, void (*summary)(Control& control))
{
    control.ParamBox.Visible = false;
    if (control.ShowParams)
        summary(control);
    holder.AutoRedraw = false;
}

} // namespace Traces
