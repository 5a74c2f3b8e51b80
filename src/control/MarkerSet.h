// Six markers of a chart family: vertical lines that stand on a data point. A plain record; what moves and
// draws them is in chart/.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Traces {

class ChartSurface;

inline constexpr std::size_t MarkerCount = 6;

struct MarkerSet {
    ChartSurface* Holder = nullptr;  ///< the family's holder, not owned
    std::int16_t SelectedMarker = 0; ///< last one grabbed or stepped; -1 after a click beside all
    std::int16_t DraggedMarker = -1; ///< the one being dragged, -1 when none
    bool DragMoved = false;          ///< the mouse has moved since the press that began the drag
    std::array<std::int16_t, MarkerCount> MarkerIndex{}; ///< point of slot 0 on which each stands
    std::array<float, MarkerCount> MarkerX{};            ///< X of a marker during a drag
    std::array<std::string, MarkerCount> MarkerText;     ///< readouts
    std::array<bool, MarkerCount> MarkerOn{};
    std::array<bool, MarkerCount> MarkerOnAlt{}; ///< second on state of the EV-DO family
};

} // namespace Traces
