// The same picture as a program would draw it that knows nothing of views: its primitives in device pixels,
// texts, pens and fonts ready made, and one QPainter call for each.
#pragma once

#include "output/Replay.h"

#include <QFont>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPen>
#include <QString>

#include <variant>
#include <vector>

namespace Traces::Bench {

struct PlainClip {
    QRect Rect; ///< null ends the innermost one
};
struct PlainFill {
    QRect Rect;
    QColor Ink;
};
struct PlainBox {
    QRectF Rect;
    QPen Pen;
};
struct PlainLines {
    QList<QPointF> Points;
    QPen Pen;
    bool Crisp;
};
struct PlainImage {
    QRectF Rect;
    QImage Cells;
};
struct PlainCircle {
    QPointF Centre;
    double Radius;
    QPen Pen;
    QBrush Fill;
};
struct PlainText {
    QPointF BaseLine;
    QString Text;
    QFont Font;
    QColor Ink;
};

using PlainPicture =
    std::vector<std::variant<PlainClip, PlainFill, PlainBox, PlainLines, PlainImage, PlainCircle, PlainText>>;

/// Collects the primitives of a replay.
class PlainCanvas final : public Canvas {
public:
    PlainPicture Picture;

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
    std::vector<QRect> clips;
};

void DrawPlainly(QPainter& painter, const PlainPicture& picture);

} // namespace Traces::Bench
