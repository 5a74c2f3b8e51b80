// What tests ask of a finished image.
#pragma once

#include <QImage>
#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace Traces::Testing {

/// The rectangle of all that isn't white.
inline QRect InkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

/// The furthest that a channel of any pixel departs; 1000 when the sizes differ.
inline int WorstDifference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 1000;
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                              std::abs(qBlue(one) - qBlue(other))});
        }
    return worst;
}

} // namespace Traces::Testing
