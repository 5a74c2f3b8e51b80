// A canvas on any QPainter: image, window, PDF page, printer.
#pragma once

#include "output/Replay.h"
#include "qt/SizedFonts.h"

#include <QPen>
#include <QPointF>
#include <QRect>

#include <vector>

class QPainter;

namespace Traces {

class PainterCanvas final : public Canvas {
public:
    /// Draws at the painter's origin, in its device's pixels even where the device has a pixel ratio of its
    /// own. `pixelRatio` is the one that the control is replayed with: pens grow with it. The painter's
    /// state is restored when the canvas goes; painter and fonts outlive it.
    PainterCanvas(QPainter& painter, SizedFonts& fonts, double pixelRatio = 1);
    ~PainterCanvas() override;
    PainterCanvas(const PainterCanvas&) = delete;
    PainterCanvas& operator=(const PainterCanvas&) = delete;

    void PushClip(const DeviceRect& rect) override;
    void PopClip() override;
    void Fill(const DeviceRect& rect, Colour colour) override;
    void Outline(const DeviceRect& rect, const Pen& pen) override;
    void Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp) override;
    void Image(const DeviceRect& rect, const ColourCells& cells) override;
    void Circle(DevicePoint centre, double radius, Colour ink, Colour fill) override;
    void Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
              Colour ink) override;

private:
    void SetPen(const Pen& pen);

    QPainter& painter;
    SizedFonts& fonts;
    const double pixelRatio;
    std::vector<QRect> clips;
    Pen lastPen;
    QPen drawnPen;
    std::vector<QPointF> places; ///< of the polyline or text at hand
    std::vector<quint32> glyphs; ///< of the text at hand
};

} // namespace Traces
