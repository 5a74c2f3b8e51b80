// A small picture to draw on in tests, without a control.
#pragma once

#include "Images.h"
#include "output/PictureBackEnd.h"
#include "qt/PainterCanvas.h"
#include "qt/QtPictures.h"

#include <QColor>
#include <QPainter>

#include <string>

namespace Traces::Testing {

inline constexpr Colour Red = RGB(255, 0, 0);

class Paper {
public:
    /// `deviceRatio` is the picture's own, which a QPainter scales by; `pixelRatio` the canvas's.
    explicit Paper(QSize size, double pixelRatio = 1, double deviceRatio = 1)
        : Image(size, QImage::Format_RGB32), ratio(pixelRatio)
    {
        TracesPictureBackEnd(); // makes the application whose fonts are needed
        Image.fill(Qt::white);
        Image.setDevicePixelRatio(deviceRatio);
    }

    QImage Image;

    template <class Drawing>
    void Draw(Drawing drawing)
    {
        const QtMetrics metrics;
        SizedFonts fonts(metrics);
        QPainter painter(&Image);
        PainterCanvas canvas(painter, fonts, ratio);
        drawing(canvas);
    }

    QRect Ink() const { return InkOf(Image); }

    /// A row of pixels as letters: "#" of a colour, "." white, "?" anything else.
    std::string Row(int y, QColor colour = Qt::red) const
    {
        std::string row;
        for (int x = 0; x < Image.width(); ++x) {
            const QColor pixel = Image.pixelColor(x, y);
            row += pixel == colour ? '#' : pixel == QColor(Qt::white) ? '.' : '?';
        }
        return row;
    }

private:
    double ratio;
};

} // namespace Traces::Testing
