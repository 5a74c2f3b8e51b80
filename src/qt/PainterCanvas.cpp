#include "qt/PainterCanvas.h"

#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Traces {

namespace {

/// Places beyond this are off every screen, and far enough off that a line to one keeps its slope on it.
constexpr double Far = 1E7;

QColor ScreenColour(Colour colour)
{
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

double OnDevice(double place)
{
    return std::isnan(place) ? -Far : std::clamp(place, -Far, Far);
}

QPointF DrawnPoint(DevicePoint point)
{
    return {OnDevice(point.X), OnDevice(point.Y)};
}

/// Lengthens a line along pixel centres to the edges of its first and last pixel, which a pen with flat caps
/// would else leave out. Other caps would lengthen each dash.
void CoverEndPixels(std::vector<QPointF>& line)
{
    QPointF way = line.back() - line.front();
    if (way.isNull())
        way = {1, 0}; // a line of one pixel
    const QPointF half((way.x() > 0) - (way.x() < 0), (way.y() > 0) - (way.y() < 0));
    line.front() -= half / 2;
    line.back() += half / 2;
}

/// The pixels whose centres lie in a rectangle: neighbours share no pixel and leave none out.
QRect PixelsOf(const DeviceRect& rect)
{
    const auto edge = [](double place) { return static_cast<int>(std::floor(OnDevice(place) + 0.5)); };
    const int left = edge(rect.Left);
    const int top = edge(rect.Top);
    return {left, top, edge(rect.Right) - left, edge(rect.Bottom) - top};
}

} // namespace

PainterCanvas::PainterCanvas(QPainter& target, SizedFonts& sizedFonts, double ratio)
    : painter(target), fonts(sizedFonts), pixelRatio(ratio)
{
    painter.save();
    const double deviceRatio = painter.device()->devicePixelRatio();
    if (deviceRatio != 1)
        painter.scale(1 / deviceRatio, 1 / deviceRatio);
    painter.setBrush(Qt::NoBrush);
    drawnPen.setCapStyle(Qt::FlatCap);
    drawnPen.setJoinStyle(Qt::BevelJoin);
    lastPen.Width = 0; // no pen has it, so the first one is set
}

PainterCanvas::~PainterCanvas()
{
    painter.restore();
}

void PainterCanvas::PushClip(const DeviceRect& rect)
{
    const QRect pixels = PixelsOf(rect);
    clips.push_back(clips.empty() ? pixels : clips.back().intersected(pixels));
    painter.setClipRect(clips.back());
}

void PainterCanvas::PopClip()
{
    clips.pop_back();
    if (clips.empty())
        painter.setClipping(false);
    else
        painter.setClipRect(clips.back());
}

void PainterCanvas::Fill(const DeviceRect& rect, Colour colour)
{
    painter.fillRect(PixelsOf(rect), ScreenColour(colour));
}

void PainterCanvas::Outline(const DeviceRect& rect, const Pen& pen)
{
    SetPen(pen);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.drawRect(QRectF(DrawnPoint({rect.Left, rect.Top}), DrawnPoint({rect.Right, rect.Bottom})));
}

void PainterCanvas::Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp)
{
    SetPen(pen);
    painter.setRenderHint(QPainter::Antialiasing, !crisp);
    places.resize(points.size());
    std::ranges::transform(points, places.begin(), DrawnPoint);
    if (crisp)
        CoverEndPixels(places);
    painter.drawPolyline(places.data(), static_cast<int>(places.size()));
}

void PainterCanvas::Image(const DeviceRect& rect, const ColourCells& cells)
{
    QList<QRgb> palette;
    for (const Colour colour : cells.Palette)
        palette.push_back(ScreenColour(colour).rgb());
    // A place beyond the palette takes its last colour.
    palette.resize(256, palette.back());
    QImage image(cells.Places.data(), cells.Columns, cells.Rows, cells.Columns, QImage::Format_Indexed8);
    image.setColorTable(palette);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(QRectF(DrawnPoint({rect.Left, rect.Top}), DrawnPoint({rect.Right, rect.Bottom})),
                      image);
}

void PainterCanvas::Circle(DevicePoint centre, double radius, Colour ink, Colour fill)
{
    SetPen({ink, LineStyle::Solid, 1});
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (fill != NoColour)
        painter.setBrush(ScreenColour(fill));
    const double size = OnDevice(radius);
    painter.drawEllipse(DrawnPoint(centre), size, size);
    painter.setBrush(Qt::NoBrush);
}

void PainterCanvas::Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
                         Colour ink)
{
    // Smaller letters can't be seen, and font engines don't care for them.
    if (text.empty() || !(pixels >= 1))
        return;
    const QtMetrics& metrics = fonts.Metrics();
    const QtMetrics::Letters& letters = metrics.LettersOf(font);
    const QRawFont& sized = fonts.Sized(font.Bold, pixels);
    const double baseLine = topLeft.Y + metrics.Ascent(font) * pixels;
    double x = topLeft.X;
    glyphs.clear();
    places.clear();
    for (const char code : text) {
        const Letter& letter = letters[static_cast<unsigned char>(code)];
        glyphs.push_back(letter.Glyph);
        places.push_back(DrawnPoint({x, baseLine}));
        x += letter.Advance * pixels;
    }
    QGlyphRun run;
    run.setRawFont(sized);
    run.setRawData(glyphs.data(), places.data(), static_cast<int>(glyphs.size()));
    SetPen({ink, LineStyle::Solid, 1});
    painter.drawGlyphRun({}, run);
    if (font.Underline) {
        const double top = baseLine + sized.underlinePosition() - sized.lineThickness() / 2;
        const double thickness = std::max(1.0, std::round(sized.lineThickness()));
        Fill({topLeft.X, top, x, top + thickness}, ink);
    }
}

void PainterCanvas::SetPen(const Pen& pen)
{
    if (pen == lastPen)
        return;
    lastPen = pen;
    drawnPen.setColor(ScreenColour(pen.Ink));
    const double width = std::max(1.0, std::round(pen.Width * pixelRatio));
    drawnPen.setWidthF(width);
    // A pattern counts in pen widths, and its lengths are the same for all pens.
    const double unit = pixelRatio / width;
    switch (pen.Style) {
    case LineStyle::Solid: drawnPen.setStyle(Qt::SolidLine); break;
    case LineStyle::Dashed: drawnPen.setDashPattern({6 * unit, 4 * unit}); break;
    case LineStyle::Dotted: drawnPen.setDashPattern({1 * unit, 2 * unit}); break;
    }
    painter.setPen(drawnPen);
}

} // namespace Traces
