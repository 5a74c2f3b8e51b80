#include "control/Input.h"

#include "chart/ChartMouse.h"
#include "chart/Markers.h"
#include "control/ChartMenu.h"
#include "control/Control.h"

namespace Traces {

namespace {

bool Contains(const ChartSurface& surface, double x, double y)
{
    const DevicePlace place = DevicePlaceOf(surface);
    return x >= place.Left && x < place.Left + surface.DeviceWidth() && y >= place.Top &&
           y < place.Top + surface.DeviceHeight();
}

ChartSurface& DeepestAt(ChartSurface& surface, double x, double y)
{
    for (auto child = surface.Children().rbegin(); child != surface.Children().rend(); ++child)
        if ((*child)->Visible && Contains(**child, x, y))
            return DeepestAt(**child, x, y);
    return surface;
}

ChartSurface* FindBelow(ChartSurface& surface, std::string_view name)
{
    if (surface.Name == name)
        return &surface;
    for (ChartSurface* child : surface.Children())
        if (ChartSurface* found = FindBelow(*child, name))
            return found;
    return nullptr;
}

bool LiesIn(const ChartSurface& surface, const ChartSurface& holder)
{
    return &surface == &holder || (surface.Parent != nullptr && LiesIn(*surface.Parent, holder));
}

/// The mode whose menu a right click beside the charts opens; null with none.
const ModeRow* MenuRow(const Control& control, const ChartSurface& surface)
{
    for (const ModeRow& row : control.Families.Modes)
        if (row.RightClick != HolderMenu::None && LiesIn(surface, control.*row.Holder))
            return &row;
    return nullptr;
}

/// Whether a right click on a surface opens a menu.
bool HasMenu(const Control& control, const ChartSurface& surface, const ChartBox* chart)
{
    return control.AllowPopupMenu &&
           (chart != nullptr || &surface == &control.ParamBox || MenuRow(control, surface) != nullptr);
}

void OpenMenu(Control& control, const ChartSurface& surface, const ChartBox* chart)
{
    if (!HasMenu(control, surface, chart))
        return;
    const ModeRow* row = MenuRow(control, surface);
    if (chart != nullptr)
        ShowChartMenu(control, chart->Markers != nullptr ? &(control.*chart->Markers) : nullptr);
    else if (row != nullptr && row->RightClick == HolderMenu::Power)
        ShowPowerMenu(control);
    else if (row != nullptr && row->Markers != nullptr && row->HasMarkersMenu)
        ShowChartMenu(control, &(control.*row->Markers));
    else
        ShowChartMenu(control, nullptr);
}

void Capture(Control& control, ChartSurface& surface, int button)
{
    control.Captured = &surface;
    control.Focused = &surface;
    control.ButtonsDown |= button;
}

/// Keys go where the mouse was last pressed, as long as it is shown; at first to a chart whose markers they
/// move.
ChartSurface& KeySurface(Control& control)
{
    if (control.Focused != nullptr && control.Focused->IsShown())
        return *control.Focused;
    const ChartBox* chart = ShownChartBox(control);
    return chart != nullptr && chart->StepsMarkers ? control.*chart->Box : control.Surface;
}

/// What a press leaves, whatever a handler of the host did to it.
class PressEnd {
public:
    PressEnd(Control& pressed, const ChartBox* on, Point at)
        : control(pressed), life(pressed), chart(on), place(at)
    {
    }
    PressEnd(const PressEnd&) = delete;
    PressEnd& operator=(const PressEnd&) = delete;
    ~PressEnd()
    {
        if (life.Gone())
            return;
        if (MenuTookMouse) { // and the release with it
            control.Captured = nullptr;
            control.ButtonsDown = 0;
        }
        // A zoom rectangle begins at the last press, of whichever button.
        if (chart != nullptr) {
            control.ZoomX1 = place.X;
            control.ZoomY1 = place.Y;
        }
    }

    bool MenuTookMouse = false;

private:
    Control& control;
    LifeWatch life;
    const ChartBox* chart;
    Point place;
};

} // namespace

DevicePlace DevicePlaceOf(const ChartSurface& surface)
{
    if (surface.Parent == nullptr)
        return {0, 0};
    const ChartSurface& parent = *surface.Parent;
    const DevicePlace place = DevicePlaceOf(parent);
    return {place.Left + static_cast<double>(surface.Left - parent.ScaleLeft) * parent.PixelsPerUnitX(),
            place.Top + static_cast<double>(surface.Top - parent.ScaleTop) * parent.PixelsPerUnitY()};
}

void MouseDown(Control& control, ChartSurface& surface, int button, int shift, float x, float y)
{
    const ChartBox* chart = FindChartBox(control, surface);
    const LifeWatch life(control);
    PressEnd end(control, chart, {x, y});
    end.MenuTookMouse = button == MouseButton::Right && HasMenu(control, surface, chart);
    if (end.MenuTookMouse)
        OpenMenu(control, surface, chart);
    if (life.Gone())
        return;
    if (chart != nullptr) {
        if (!end.MenuTookMouse)
            ChartMouseDown(control, *chart, x, y);
    } else if (&surface == &control.Surface && control.Events != nullptr) {
        control.Events->MouseDown(button, shift, x, y);
        if (life.Gone())
            return;
    }
    control.Platform.Repaint();
}

void MouseMove(Control& control, ChartSurface& surface, int button, int, float x, float y)
{
    if (const ChartBox* chart = FindChartBox(control, surface))
        ChartMouseMove(control, *chart, button, x, y);
}

void MouseUp(Control& control, ChartSurface& surface, int button, int shift, float x, float y)
{
    if (const ChartBox* chart = FindChartBox(control, surface)) {
        ChartMouseUp(control, *chart, button, x, y);
    } else if (&surface == &control.Surface && control.Events != nullptr) {
        const LifeWatch life(control);
        control.Events->MouseUp(button, shift, x, y);
        if (!life.Gone() && control.Events != nullptr)
            control.Events->Click();
    }
}

void DblClick(Control& control, ChartSurface& surface)
{
    const ChartBox* chart = FindChartBox(control, surface);
    const ModeRow* row = CurrentRow(control);
    if (chart != nullptr && chart->Zooms)
        ToggleZoomMode(control, *chart);
    else if (chart != nullptr && surface.IsShown() && row != nullptr && row->DoubleClick != nullptr)
        row->DoubleClick(control);
    else if (&surface == &control.Surface && control.Events != nullptr)
        control.Events->DblClick();
}

void KeyDown(Control& control, ChartSurface& surface, int keyCode, int shift)
{
    const ChartBox* chart = FindChartBox(control, surface);
    if (chart != nullptr && chart->StepsMarkers)
        StepMarker(control, control.*chart->Markers, keyCode);
    else if (&surface == &control.Surface && control.Events != nullptr)
        control.Events->KeyDown(keyCode, shift);
}

void KeyPress(Control& control, ChartSurface& surface, int keyAscii)
{
    if (&surface == &control.Surface && control.Events != nullptr)
        control.Events->KeyPress(keyAscii);
}

void KeyUp(Control& control, ChartSurface& surface, int keyCode, int shift)
{
    if (&surface == &control.Surface && control.Events != nullptr)
        control.Events->KeyUp(keyCode, shift);
}

void DevicePress(Control& control, int button, int shift, double x, double y)
{
    ChartSurface& surface = control.Captured != nullptr ? *control.Captured : SurfaceAt(control, x, y);
    Capture(control, surface, button);
    const Point at = UserPoint(surface, x, y);
    MouseDown(control, surface, button, shift, at.X, at.Y);
}

void DeviceMove(Control& control, int buttons, int shift, double x, double y)
{
    if (buttons == 0)
        control.Captured = nullptr; // A release that went elsewhere.
    ChartSurface& surface = control.Captured != nullptr ? *control.Captured : SurfaceAt(control, x, y);
    const Point at = UserPoint(surface, x, y);
    MouseMove(control, surface, buttons, shift, at.X, at.Y);
}

void DeviceRelease(Control& control, int button, int shift, double x, double y)
{
    ChartSurface& surface = control.Captured != nullptr ? *control.Captured : SurfaceAt(control, x, y);
    control.ButtonsDown &= ~button;
    if (control.ButtonsDown == 0)
        control.Captured = nullptr;
    const Point at = UserPoint(surface, x, y);
    MouseUp(control, surface, button, shift, at.X, at.Y);
}

void DeviceDoubleClick(Control& control, double x, double y)
{
    // The second press is a press as well: what is dragged from here stays with the surface.
    ChartSurface& surface = SurfaceAt(control, x, y);
    Capture(control, surface, MouseButton::Left);
    DblClick(control, surface);
}

void DeviceKeyDown(Control& control, int keyCode, int shift)
{
    KeyDown(control, KeySurface(control), keyCode, shift);
}

void DeviceKeyPress(Control& control, int keyAscii)
{
    KeyPress(control, KeySurface(control), keyAscii);
}

void DeviceKeyUp(Control& control, int keyCode, int shift)
{
    KeyUp(control, KeySurface(control), keyCode, shift);
}

void DeviceMenuKey(Control& control)
{
    const ModeRow* row = CurrentRow(control);
    if (const ChartBox* chart = ShownChartBox(control))
        OpenMenu(control, control.*chart->Box, chart);
    else if (row != nullptr && row->RightClick != HolderMenu::None)
        OpenMenu(control, control.*row->Holder, nullptr);
    else
        OpenMenu(control, control.ParamBox, nullptr);
}

ChartSurface& SurfaceAt(Control& control, double x, double y)
{
    return DeepestAt(control.Surface, x, y);
}

Point UserPoint(const ChartSurface& surface, double x, double y)
{
    const DevicePlace place = DevicePlaceOf(surface);
    return {static_cast<float>(static_cast<double>(surface.ScaleLeft) +
                               Ratio(x - place.Left, surface.PixelsPerUnitX())),
            static_cast<float>(static_cast<double>(surface.ScaleTop) +
                               Ratio(y - place.Top, surface.PixelsPerUnitY()))};
}

ChartSurface* FindSurface(Control& control, std::string_view name)
{
    return FindBelow(control.Surface, name);
}

} // namespace Traces
