#include "PlainPicture.h"

#include "output/ScreenText.h"

#include <QFontMetricsF>

#include <cmath>

namespace Traces::Bench {

namespace {

QColor ColourOf(Colour colour)
{
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

QPen PenOf(const Pen& pen)
{
    QPen drawn(ColourOf(pen.Ink), pen.Width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin);
    if (pen.Style == LineStyle::Dashed)
        drawn.setDashPattern({6, 4});
    if (pen.Style == LineStyle::Dotted)
        drawn.setDashPattern({1, 2});
    return drawn;
}

QRect RectOf(const DeviceRect& rect)
{
    return QRectF(QPointF(rect.Left, rect.Top), QPointF(rect.Right, rect.Bottom)).toRect();
}

struct Draw {
    QPainter& Painter;

    void operator()(const PlainClip& clip) const
    {
        if (clip.Rect.isNull())
            Painter.setClipping(false);
        else
            Painter.setClipRect(clip.Rect);
    }
    void operator()(const PlainFill& fill) const { Painter.fillRect(fill.Rect, fill.Ink); }
    void operator()(const PlainBox& box) const
    {
        Painter.setRenderHint(QPainter::Antialiasing, false);
        Painter.setPen(box.Pen);
        Painter.drawRect(box.Rect);
    }
    void operator()(const PlainLines& lines) const
    {
        Painter.setRenderHint(QPainter::Antialiasing, !lines.Crisp);
        Painter.setPen(lines.Pen);
        Painter.drawPolyline(lines.Points.data(), static_cast<int>(lines.Points.size()));
    }
    void operator()(const PlainImage& image) const
    {
        Painter.setRenderHint(QPainter::Antialiasing, false);
        Painter.drawImage(image.Rect, image.Cells);
    }
    void operator()(const PlainCircle& circle) const
    {
        Painter.setRenderHint(QPainter::Antialiasing, true);
        Painter.setPen(circle.Pen);
        Painter.setBrush(circle.Fill);
        Painter.drawEllipse(circle.Centre, circle.Radius, circle.Radius);
        Painter.setBrush(Qt::NoBrush);
    }
    void operator()(const PlainText& text) const
    {
        Painter.setPen(text.Ink);
        Painter.setFont(text.Font);
        Painter.drawText(text.BaseLine, text.Text);
    }
};

} // namespace

void PlainCanvas::PushClip(const DeviceRect& rect)
{
    clips.push_back(clips.empty() ? RectOf(rect) : clips.back().intersected(RectOf(rect)));
    Picture.emplace_back(PlainClip{clips.back()});
}

void PlainCanvas::PopClip()
{
    clips.pop_back();
    Picture.emplace_back(PlainClip{clips.empty() ? QRect() : clips.back()});
}

void PlainCanvas::Fill(const DeviceRect& rect, Colour colour)
{
    Picture.emplace_back(PlainFill{RectOf(rect), ColourOf(colour)});
}

void PlainCanvas::Outline(const DeviceRect& rect, const Pen& pen)
{
    Picture.emplace_back(
        PlainBox{QRectF(QPointF(rect.Left, rect.Top), QPointF(rect.Right, rect.Bottom)), PenOf(pen)});
}

void PlainCanvas::Polyline(std::span<const DevicePoint> points, const Pen& pen, bool crisp)
{
    PlainLines lines{{}, PenOf(pen), crisp};
    for (const DevicePoint& point : points)
        lines.Points.append({point.X, point.Y});
    Picture.emplace_back(std::move(lines));
}

void PlainCanvas::Image(const DeviceRect& rect, const ColourCells& cells)
{
    QList<QRgb> palette;
    for (const Colour colour : cells.Palette)
        palette.push_back(ColourOf(colour).rgb());
    const QImage borrowed(cells.Places.data(), cells.Columns, cells.Rows, cells.Columns,
                          QImage::Format_Indexed8);
    QImage image = borrowed.copy();
    image.setColorTable(palette);
    Picture.emplace_back(
        PlainImage{QRectF(QPointF(rect.Left, rect.Top), QPointF(rect.Right, rect.Bottom)), image});
}

void PlainCanvas::Circle(DevicePoint centre, double radius, Colour ink, Colour fill)
{
    Picture.emplace_back(PlainCircle{{centre.X, centre.Y},
                                     radius,
                                     QPen(ColourOf(ink)),
                                     fill == NoColour ? QBrush(Qt::NoBrush) : QBrush(ColourOf(fill))});
}

void PlainCanvas::Text(DevicePoint topLeft, std::string_view text, const Font& font, double pixels,
                       Colour ink)
{
    QFont drawn(QString::fromUtf8(ScreenFontFamily.data(), ScreenFontFamily.size()));
    drawn.setPixelSize(static_cast<int>(std::round(pixels)));
    drawn.setBold(font.Bold);
    drawn.setUnderline(font.Underline);
    Picture.emplace_back(PlainText{{topLeft.X, topLeft.Y + QFontMetricsF(drawn).ascent()},
                                   QString::fromStdString(ScreenText(text, font.Name)),
                                   drawn,
                                   ColourOf(ink)});
}

void DrawPlainly(QPainter& painter, const PlainPicture& picture)
{
    const Draw draw{painter};
    for (const auto& primitive : picture)
        std::visit(draw, primitive);
}

} // namespace Traces::Bench
