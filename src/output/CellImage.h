// Grids of coloured cells on their way to a device: the part that shows, upright, and the same as a PNG file
// for back ends that embed one. What a grid means is the view's.
#pragma once

#include "output/Replay.h"

#include <string>

namespace Traces {

/// The cells of an image that show within `visible`, mirrored where the image runs to the left or upwards,
/// and the place of just those on the device. Cells far larger than a pixel become one column or row a pixel,
/// so that no place lies far off the device. No cells when none shows.
struct ShownCells {
    ColourCells Cells;
    DeviceRect Place{};
};
ShownCells CellsWithin(const DeviceRect& visible, const ColourCells& cells, DevicePoint from, DevicePoint to);

/// A PNG file with a palette, its pixels stored without compression. A cell beyond the palette takes its last
/// colour.
std::string PalettePng(const ColourCells& cells);

/// Base64 with padding.
std::string Base64(std::string_view bytes);

} // namespace Traces
