// What a picture is to look like, and the texts in which the command line says so.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Traces::Cli {

enum class PictureFormat { Svg, Png, Pdf };

/// By a name such as "png", in lower case.
std::optional<PictureFormat> PictureFormatOf(std::string_view name);
std::string_view NameOf(PictureFormat format);

/// Pixels.
struct PictureSize {
    int Width, Height;
};

/// Marker 1 to 6 at the point nearest to X, in the chart's unit.
struct MarkerRequest {
    int Marker;
    float X;
};

/// A window in chart units; the first of each pair is the lower one.
struct ZoomRequest {
    float X1, X2, Y1, Y2;
};

struct RenderOptions {
    std::vector<std::string> Files;
    std::string Out; ///< a file, a folder or "-"
    std::optional<PictureFormat> Format;
    std::optional<PictureSize> Size;
    bool Params = false;  ///< with the summary pane
    bool Results = false; ///< in the place of the markers' readouts, where a view has both
    std::string View;
    std::vector<MarkerRequest> Markers;
    std::optional<ZoomRequest> Zoom;
    bool AutoScale = false;
};

/// "WIDTHxHEIGHT", each from 1 to 16384.
std::optional<PictureSize> ParseSize(std::string_view text);

/// "N@X".
std::optional<MarkerRequest> ParseMarker(std::string_view text);

/// "X1,X2,Y1,Y2". The ends may come in either order, but not be equal.
std::optional<ZoomRequest> ParseZoom(std::string_view text);

} // namespace Traces::Cli
