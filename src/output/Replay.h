// From recorded commands to device pixels: walks the control's surfaces, maps user coordinates, joins
// connected lines, and calls a canvas. A back end implements the canvas and knows nothing of views.
#pragma once

#include "control/ChartSurface.h"

#include <span>
#include <string_view>

namespace Traces {

struct Control;

struct DevicePoint {
    double X, Y;
};

struct DeviceRect {
    double Left, Top, Right, Bottom;
};

/// Coordinates are device pixels of the whole control, Y downwards.
class Canvas {
public:
    virtual ~Canvas() = default;

    /// A surface's background and picture follow, until EndPicture. False when the canvas has kept them: the
    /// replay goes on with the overlay then.
    virtual bool BeginPicture(const ChartSurface& /*surface*/, const DeviceRect& /*rect*/) { return true; }
    virtual void EndPicture() {}

    virtual void PushClip(const DeviceRect& rect) = 0;
    virtual void PopClip() = 0;
    virtual void Fill(const DeviceRect& rect, Colour colour) = 0;
    virtual void Outline(const DeviceRect& rect, const Pen& pen) = 0;

    /// Connected lines of one pen, two points or more. A crisp one lies along pixel centres and is drawn
    /// without antialiasing.
    virtual void Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp) = 0;

    /// A whole grid of cells, the first row on top; neighbours share no pixel and leave none out.
    virtual void Image(const DeviceRect& rect, const ColourCells& cells) = 0;

    /// `fill` is NoColour for an outline alone.
    virtual void Circle(DevicePoint centre, double radius, Colour ink, Colour fill) = 0;

    /// A text with its top left at a point; `pixels` is the font's size.
    virtual void Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
                      Colour ink) = 0;
};

/// Draws all that is shown of the control: parents before children, pictures before overlays. A pixel ratio
/// above 1 draws the same control on so many device pixels more.
void ReplayControl(const Control& control, Canvas& canvas, double pixelRatio = 1);

} // namespace Traces
