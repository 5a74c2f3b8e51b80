// A canvas for windows: it keeps each surface's picture as an image, so that a drag, which changes an
// overlay alone, paints no picture anew.
#pragma once

#include "qt/PainterCanvas.h"

#include <QImage>
#include <QPainter>
#include <QRect>

#include <map>
#include <optional>

namespace Traces {

/// The images of one control's surfaces, for as long as its window shows it.
class KeptPictures {
public:
    struct Picture {
        unsigned Revision = 0;
        Colour BackColor = NoColour;
        QRect Place; ///< device pixels of the control
        QImage Image;
    };

    Picture& Of(const ChartSurface& surface) { return pictures[&surface]; }

    /// How many pictures have been painted since the beginning: none is while a marker is dragged.
    unsigned Painted = 0;

private:
    std::map<const ChartSurface*, Picture> pictures;
};

class KeepingCanvas final : public Canvas {
public:
    /// `pixelRatio` is the device's pixels to a pixel of the control. All outlive the canvas.
    KeepingCanvas(QPainter& painter, SizedFonts& fonts, KeptPictures& pictures, double pixelRatio);

    bool BeginPicture(const ChartSurface& surface, const DeviceRect& rect) override;
    void EndPicture() override;
    void PushClip(const DeviceRect& rect) override { target->PushClip(rect); }
    void PopClip() override { target->PopClip(); }
    void Fill(const DeviceRect& rect, Colour colour) override { target->Fill(rect, colour); }
    void Outline(const DeviceRect& rect, const Pen& pen) override { target->Outline(rect, pen); }
    void Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp) override
    {
        target->Polyline(points, pen, crisp);
    }
    void Image(const DeviceRect& rect, const ColourCells& cells) override { target->Image(rect, cells); }
    void Circle(DevicePoint centre, double radius, Colour ink, Colour fill) override
    {
        target->Circle(centre, radius, ink, fill);
    }
    void Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
              Colour ink) override
    {
        target->Text(topLeft, text, font, pixels, ink);
    }

private:
    /// Painting into a picture's own image.
    struct Painting {
        Painting(KeptPictures::Picture& picture, SizedFonts& fonts, double ratio);
        QPainter Painter;
        std::optional<PainterCanvas> Canvas;
    };

    void Show(const KeptPictures::Picture& picture);

    QPainter& painter;
    SizedFonts& fonts;
    KeptPictures& pictures;
    const double ratio;
    PainterCanvas window;
    std::optional<Painting> painting;
    KeptPictures::Picture* begun = nullptr;
    Canvas* target = &window; ///< the window, or the picture that is being painted
};

} // namespace Traces
