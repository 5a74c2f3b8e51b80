// Mouse and keys on their way to the surfaces: hit test, capture, user coordinates, and which routine a
// surface answers with. A back end forwards device events here and decides nothing.
#pragma once

#include "control/ChartSurface.h"

namespace Traces {

struct Control;

/// Events of one surface, in its own user coordinates. Buttons are those of MouseButton: the one pressed or
/// released, or for a move the ones that are down.
/// @{
void MouseDown(Control& control, ChartSurface& surface, int button, int shift, float x, float y);
void MouseMove(Control& control, ChartSurface& surface, int button, int shift, float x, float y);
void MouseUp(Control& control, ChartSurface& surface, int button, int shift, float x, float y);
void DblClick(Control& control, ChartSurface& surface);
void KeyDown(Control& control, ChartSurface& surface, int keyCode, int shift);
void KeyPress(Control& control, ChartSurface& surface, int keyAscii);
void KeyUp(Control& control, ChartSurface& surface, int keyCode, int shift);
/// @}

/// The same from a device: pixels of the whole control. A press captures the surface until the release, so
/// a drag that leaves the surface goes on.
/// @{
void DevicePress(Control& control, int button, int shift, double x, double y);
void DeviceMove(Control& control, int buttons, int shift, double x, double y);
void DeviceRelease(Control& control, int button, int shift, double x, double y);
void DeviceDoubleClick(Control& control, double x, double y);
void DeviceKeyDown(Control& control, int keyCode, int shift);
void DeviceKeyPress(Control& control, int keyAscii);
void DeviceKeyUp(Control& control, int keyCode, int shift);
/// The key that opens popup menus: the menu of the chart on show.
void DeviceMenuKey(Control& control);
/// @}

/// The topmost shown surface under a device point; the control's own when there is no other.
ChartSurface& SurfaceAt(Control& control, double x, double y);

/// Where a surface's top left corner stands on the device, in pixels.
struct DevicePlace {
    double Left, Top;
};
DevicePlace DevicePlaceOf(const ChartSurface& surface);

/// A device point in a surface's user coordinates.
Point UserPoint(const ChartSurface& surface, double x, double y);

/// A surface by its name; null when there is none.
ChartSurface* FindSurface(Control& control, std::string_view name);

} // namespace Traces
