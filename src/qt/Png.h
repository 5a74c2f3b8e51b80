// PNG files of painted pictures. A picture of few colours becomes a palette image, which is written in a
// quarter of the time that a true colour image takes, and is smaller.
#pragma once

#include <QImage>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Traces {

/// Pixels as places in a palette, row by row.
struct PaletteImage {
    std::vector<std::uint32_t> Colours; ///< 0xRRGGBB, 256 at most
    std::vector<std::uint8_t> Pixels;
};

/// A white text and a coloured curve on black have up to 255 shades each once they are antialiased. To find
/// room for them, shades that differ by no more than this in each channel become one. No eye tells them
/// apart in the single pixels of an edge, and the plain colours of lines, letters and grounds stay as they
/// are, being the commonest of their shades.
inline constexpr int PaletteTolerance = 3;

/// Null when the picture has too many colours. `image` is of the format RGB32.
std::optional<PaletteImage> ReduceToPalette(const QImage& image);

/// The file's bytes; empty when the image is, or when there is no memory left. `image` is of the format
/// RGB32.
std::string PngBytes(const QImage& image);

} // namespace Traces
