#include "qt/widgets/KeepingCanvas.h"

#include <cmath>

namespace Traces {

namespace {

/// All pixels that a rectangle touches.
QRect TouchedPixels(const DeviceRect& rect)
{
    const int left = static_cast<int>(std::floor(rect.Left));
    const int top = static_cast<int>(std::floor(rect.Top));
    return {left, top, static_cast<int>(std::ceil(rect.Right)) - left,
            static_cast<int>(std::ceil(rect.Bottom)) - top};
}

/// No screen has more pixels in a row; a larger surface is painted without being kept.
constexpr int LargestSide = 16384;

} // namespace

KeepingCanvas::Painting::Painting(KeptPictures::Picture& picture, SizedFonts& fonts, double ratio)
    : Painter(&picture.Image)
{
    Painter.translate(-picture.Place.topLeft());
    Canvas.emplace(Painter, fonts, ratio);
}

KeepingCanvas::KeepingCanvas(QPainter& windowPainter, SizedFonts& sizedFonts, KeptPictures& kept,
                             double pixelRatio)
    : painter(windowPainter), fonts(sizedFonts), pictures(kept), ratio(pixelRatio),
      window(windowPainter, sizedFonts, pixelRatio)
{
}

bool KeepingCanvas::BeginPicture(const ChartSurface& surface, const DeviceRect& rect)
{
    const QRect place = TouchedPixels(rect);
    KeptPictures::Picture& picture = pictures.Of(surface);
    if (!picture.Image.isNull() && picture.Revision == surface.PictureRevision() &&
        picture.BackColor == surface.BackColor && picture.Place == place) {
        Show(picture);
        return false;
    }
    ++pictures.Painted;
    if (place.isEmpty() || place.width() > LargestSide || place.height() > LargestSide)
        return true;
    if (picture.Image.size() != place.size())
        picture.Image = QImage(place.size(), QImage::Format_RGB32);
    if (picture.Image.isNull())
        return true;
    picture.Revision = surface.PictureRevision();
    picture.BackColor = surface.BackColor;
    picture.Place = place;
    begun = &picture;
    painting.emplace(picture, fonts, ratio);
    target = &*painting->Canvas;
    return true;
}

void KeepingCanvas::EndPicture()
{
    if (begun == nullptr)
        return;
    painting.reset();
    target = &window;
    Show(*begun);
    begun = nullptr;
}

void KeepingCanvas::Show(const KeptPictures::Picture& picture)
{
    painter.drawImage(picture.Place.topLeft(), picture.Image);
}

} // namespace Traces
