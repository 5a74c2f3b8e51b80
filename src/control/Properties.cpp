#include "control/Properties.h"

#include <array>

namespace Traces {

namespace {

constexpr std::int32_t StoredTrue = -1;
constexpr Colour DefaultBackColor = Grey;

std::int32_t Stored(bool value)
{
    return value ? StoredTrue : 0;
}

MyBorderStyles BorderStyleOf(std::int32_t value)
{
    return value == 1   ? MyBorderStyles::pbInset
           : value == 2 ? MyBorderStyles::pbRaised
                        : MyBorderStyles::pbflat;
}

/// The holders that take the background whenever it is set.
auto ColouredSurfaces(Control& control)
{
    return std::to_array<ChartSurface*>({&control.Surface, &control.VNAHolder, &control.SPAHolder,
                                         &control.GSMHolder, &control.CDMAHolder, &control.GPSiDENHolder,
                                         &control.EvDOHolder, &control.E1T1Holder, &control.PMHolder,
                                         &control.ZephraHolder, &control.ParamBox});
}

/// A two-line box: the outer ring in the full colours, the inner one in grey against them.
void DrawRing(ChartSurface& surface, float left, float right, float bottom, bool inset)
{
    constexpr Colour grey = RGB(175, 175, 175);
    const auto ring = [&](float step, Colour upper, Colour lower) {
        const float top = step;
        const float x1 = left + step;
        const float x2 = right - step;
        const float y2 = bottom - step;
        surface.Line(x1, top, x2, top, upper);
        surface.Line(x1, top, x1, y2, upper);
        surface.Line(x2, top, x2, y2, lower);
        surface.Line(x1, y2, x2, y2, lower);
    };
    if (inset) {
        ring(0, Black, White);
        ring(1, grey, grey);
    } else {
        ring(0, White, Black);
        ring(1, grey, grey);
    }
}

} // namespace

void LoadProperties(Control& control, const PropertyBag& bag)
{
    const auto stored = [&](const char* key, std::int32_t otherwise) {
        const auto found = bag.find(key);
        return found == bag.end() ? otherwise : found->second;
    };
    control.ShowParams = stored("ShowParams", 0) != 0;
    control.AllowPopupMenu = stored("AllowPopup", StoredTrue) != 0;
    control.ForeColor = stored("ForeColor", Black);
    control.BorderStyle = BorderStyleOf(stored("BorderStyle", 0));
    control.AutoScaleY = stored("AutoScaleY", 0) != 0;
    const Colour back = stored("BackColor", DefaultBackColor);
    for (ChartSurface* surface : ColouredSurfaces(control))
        surface->BackColor = back;
    control.CSHolder.BackColor = back;
    control.SpectroHolder.BackColor = back;
    Resize(control, static_cast<int>(control.Surface.Width), static_cast<int>(control.Surface.Height));
}

void StoreProperties(const Control& control, PropertyBag& bag)
{
    bag["ShowParams"] = Stored(control.ShowParams);
    // The key differs from the member's name: hosts' forms hold it so.
    bag["AllowPopup"] = Stored(control.AllowPopupMenu);
    bag["BackColor"] = BackColor(control);
    bag["ForeColor"] = control.ForeColor;
    bag["BorderStyle"] = static_cast<std::int32_t>(control.BorderStyle);
    bag["AutoScaleY"] = Stored(control.AutoScaleY);
}

void SetBackColor(Control& control, Colour colour)
{
    for (ChartSurface* surface : ColouredSurfaces(control))
        surface->BackColor = colour;
    DrawFrame(control);
    control.Platform.Repaint();
    control.Platform.PropertyChanged("BackColor");
}

Colour BackColor(const Control& control)
{
    return control.VNAHolder.BackColor;
}

void SetForeColor(Control& control, Colour colour)
{
    control.ForeColor = colour;
    control.Platform.PropertyChanged("ForeColor");
}

void SetBorderStyle(Control& control, MyBorderStyles style)
{
    control.BorderStyle = style;
    Resize(control, static_cast<int>(control.Surface.Width), static_cast<int>(control.Surface.Height));
    control.Platform.PropertyChanged("BorderStyle");
}

void SetAutoScaleY(Control& control, bool value)
{
    control.AutoScaleY = value;
    control.Platform.PropertyChanged("AutoScaleY");
}

void SetShowParams(Control& control, bool value)
{
    control.ShowParams = value;
}
void SetAllowPopupMenu(Control& control, bool value)
{
    control.AllowPopupMenu = value;
}

void DrawFrame(Control& control)
{
    ChartSurface& surface = control.Surface;
    surface.Erase();
    if (control.BorderStyle == MyBorderStyles::pbflat)
        return;
    // The frame lies in the 4 units that a border adds, 2 on each side.
    constexpr float margin = 2;
    const bool inset = control.BorderStyle == MyBorderStyles::pbInset;
    const float bottom = 479 + 2 * margin;
    surface.AutoRedraw = true;
    DrawRing(surface, 0, 549 + 2 * margin, bottom, inset);
    if (control.ShowParams)
        DrawRing(surface, 558 + 2 * margin, 909 + 2 * margin, bottom, inset);
    surface.AutoRedraw = false;
}

} // namespace Traces
