#include "modes/power/PowerPanel.h"

#include "control/Control.h"
#include "control/ViewText.h"

namespace Traces {

namespace {

constexpr int SmallText = 10;
constexpr int NameText = 12;

/// Light from the top left.
void DrawRaisedBox(ChartSurface& holder, float left, float top, float right, float bottom)
{
    constexpr Colour light = RGB(250, 250, 250);
    holder.FillBox(left, top, right, bottom, PanelGrey);
    holder.Line(left, top, right, top, light);
    holder.Line(left, top, left, bottom, light);
    holder.Line(right, top, right, bottom, Black);
    holder.Line(left, bottom, right, bottom, Black);
}

} // namespace

void BeginPanel(const Control& control, ChartSurface& holder, const PowerPanel& panel)
{
    holder.AutoRedraw = true;
    holder.Cls();
    holder.Font.Bold = false;
    SetBoxFont(holder, SmallText, false);
    holder.ForeColor = Black;
    DrawRaisedBox(holder, 30, 30, 520, panel.Bottom);
    DrawCentred(holder, std::string(panel.TitlePrefix) + control.TraceName, WholeUnits(holder.ScaleWidth / 2),
                4);
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

void DrawCentred(ChartSurface& holder, std::string_view text, int x, int y)
{
    SetBoxFont(holder, SmallText, false);
    const auto half = static_cast<double>(holder.TextWidth(text)) / 2;
    DrawTextAt(holder, text, WholeUnits(x - half), y, SmallText);
}

} // namespace Traces
