// What the embedding program listens to. Events are synchronous: a handler runs inside the control's call.
// It may call back, and may destroy the control; what it throws reaches whoever made the call.
#pragma once

#include <cstdint>

namespace Traces {

/// Mouse buttons and shift states as the events carry them: bits.
namespace MouseButton {
inline constexpr int Left = 1, Right = 2, Middle = 4;
}

class PlotEvents {
public:
    virtual ~PlotEvents() = default;

    /// Of the control's own surface, outside of its holders; X and Y in its user coordinates.
    virtual void KeyDown(int /*keyCode*/, int /*shift*/) {}
    virtual void KeyPress(int /*keyAscii*/) {}
    virtual void KeyUp(int /*keyCode*/, int /*shift*/) {}
    virtual void MouseDown(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
    virtual void MouseUp(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}
    virtual void Click() {}
    virtual void DblClick() {}

    /// A marker was switched, before the redraw. A handler may call back into the control.
    virtual void MarkerChanged(std::int16_t /*index*/, bool /*value*/) {}
};

} // namespace Traces
