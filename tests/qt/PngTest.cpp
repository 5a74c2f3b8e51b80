#include "qt/Png.h"

#include "Images.h"
#include "output/CellImage.h"

#include <functional>
#include <gtest/gtest.h>

namespace Traces {
namespace {

QImage Decoded(const std::string& png)
{
    return QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()), "PNG");
}

TEST(Png, TheCoresOwnFilesAreReadByOthers)
{
    // More pixels than one stored block holds.
    ColourCells cells = {401, 200, {}, {}};
    for (int i = 0; i < 256; ++i)
        cells.Palette.push_back(RGB(i, 255 - i, i / 2));
    for (int i = 0; i < 401 * 200; ++i)
        cells.Places.push_back(static_cast<std::uint8_t>(i * 7));
    const QImage image = Decoded(PalettePng(cells));
    ASSERT_EQ(image.size(), QSize(401, 200));
    for (int i = 0; i < 401 * 200; i += 13) {
        const int place = i * 7 & 0xFF;
        EXPECT_EQ(image.pixel(i % 401, i / 401), qRgb(place, 255 - place, place / 2)) << i;
    }
}

TEST(Png, KeepsEveryPixelWithinThePalettesTolerance)
{
    const struct {
        const char* what;
        QSize size;
        std::function<QRgb(int, int)> colour;
        bool palette;
        int worst;
    } cases[] = {
        {"one colour", {5, 3}, [](int, int) { return qRgb(1, 2, 3); }, true, 0},
        {"one pixel", {1, 1}, [](int, int) { return qRgb(255, 255, 255); }, true, 0},
        {"256 colours", {16, 16}, [](int x, int y) { return qRgb(x * 16, y * 16, 255 - x); }, true, 0},
        {"two full ramps", {256, 2}, [](int x, int y) { return qRgb(x, x, y == 0 ? x : 0); }, true, 2},
        {"257 colours", {257, 1}, [](int x, int) { return qRgb(x % 8 * 32, x / 8 * 7, 9); }, false, 0},
        {"too many to count", {64, 64}, [](int x, int y) { return qRgb(x * 4, y * 4, 9); }, false, 0},
    };
    for (const auto& c : cases) {
        QImage image(c.size, QImage::Format_RGB32);
        for (int y = 0; y < c.size.height(); ++y)
            for (int x = 0; x < c.size.width(); ++x)
                image.setPixel(x, y, c.colour(x, y));
        const QImage decoded = Decoded(PngBytes(image));
        EXPECT_EQ(decoded.format() == QImage::Format_Indexed8, c.palette) << c.what;
        EXPECT_LE(Testing::WorstDifference(image, decoded), c.worst) << c.what;
    }
}

TEST(Png, CommonColoursStayExactWhenRareShadesMustGiveWay)
{
    QImage image(256, 40, QImage::Format_RGB32);
    image.fill(qRgb(200, 201, 199));
    for (int x = 0; x < image.width(); ++x) {
        image.setPixel(x, 0, qRgb(x, x, x));
        image.setPixel(x, 1, qRgb(x, x, 0));
        image.setPixel(x, 2, qRgb(77, 78, 0));
    }
    const QImage decoded = Decoded(PngBytes(image));
    EXPECT_EQ(decoded.format(), QImage::Format_Indexed8);
    EXPECT_EQ(decoded.pixel(10, 20), image.pixel(10, 20));
    EXPECT_EQ(decoded.pixel(10, 2), image.pixel(10, 2));
}

TEST(Png, AnEmptyPictureHasNoFile)
{
    EXPECT_EQ(PngBytes(QImage()), "");
}

} // namespace
} // namespace Traces
