#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "control/ViewText.h"
#include "formats/Files.h"
#include "output/PictureBackEnd.h"
#include "qt/Png.h"
#include "support/RawBuilder.h"
#include "support/TraceFiles.h"

#include <QColor>
#include <QImage>

#include <cstdlib>
#include <gtest/gtest.h>

extern "C" Traces::PictureBackEnd* TracesPictureBackEnd();

namespace Traces {
namespace {

using Testing::RawSweep;

class Pictures : public testing::Test {
protected:
    PictureBackEnd& backEnd = *TracesPictureBackEnd();
    HeadlessPlatform platform{backEnd.Metrics()};
    Plot plot{platform};
    Control& state = plot.Instance();

    Pictures()
    {
        plot.ShowTrace(RawSweep(0, {1000, 3162, 500}).Bytes());
        plot.TraceName("Tower");
    }

    QImage Painted(double pixelRatio = 1)
    {
        const std::string png = backEnd.Png(state, pixelRatio);
        return QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()),
                                "PNG")
            .convertToFormat(QImage::Format_RGB32);
    }

    /// How many pixels of a rectangle have a colour, within the palette's tolerance.
    static int Count(const QImage& image, QRect rect, QColor colour)
    {
        int count = 0;
        for (int y = rect.top(); y <= rect.bottom(); ++y)
            for (int x = rect.left(); x <= rect.right(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                count += std::abs(pixel.red() - colour.red()) <= PaletteTolerance &&
                         std::abs(pixel.green() - colour.green()) <= PaletteTolerance &&
                         std::abs(pixel.blue() - colour.blue()) <= PaletteTolerance;
            }
        return count;
    }
};

TEST_F(Pictures, GridLinesAreCrispAndTheCurveLiesUnderThem)
{
    const QImage image = Painted();
    ASSERT_EQ(image.size(), QSize(550, 480));
    EXPECT_EQ(image.pixelColor(540, 20), QColor(0x80, 0x80, 0x80)) << "the holder's grey";
    // A dotted horizontal line: its row has the grid's colour and black, the rows beside it black alone.
    const int row = 42 + 38;
    EXPECT_GT(Count(image, QRect(10, row, 500, 1), QColor(200, 200, 200)), 150);
    EXPECT_EQ(Count(image, QRect(70, row - 1, 40, 1), QColor(200, 200, 200)), 0);
    EXPECT_GT(Count(image, QRect(4, 42, 542, 380), QColor(255, 255, 0)), 10) << "the curve's yellow";
}

TEST_F(Pictures, AFlatCurveIsOneCrispRow)
{
    plot.ShowTrace(RawSweep(0, {5000, 5000, 5000, 5000}).Bytes());
    const QImage image = Painted();
    int rows = 0;
    for (int y = 42; y < 422; ++y)
        rows += Count(image, QRect(4, y, 542, 1), QColor(255, 255, 0)) > 400;
    EXPECT_EQ(rows, 1);
}

TEST_F(Pictures, TextsStayInsideTheirMeasuredPlaces)
{
    const QImage image = Painted();
    const auto& title = std::get<TextCommand>(state.VNAHolder.Picture().at(1));
    const int left = static_cast<int>(title.At.X);
    const int width = WholeUnits(state.VNAHolder.TextWidth(title.Text));
    const int height = WholeUnits(state.VNAHolder.TextHeight(title.Text));
    EXPECT_GT(Count(image, QRect(left, 4, width, height), Qt::black), 20);
    const QColor grey(0x80, 0x80, 0x80);
    EXPECT_EQ(Count(image, QRect(left - 40, 4, 38, height), grey), 38 * height);
    EXPECT_EQ(Count(image, QRect(left + width + 2, 4, 38, height), grey), 38 * height);
    EXPECT_EQ(Count(image, QRect(left, 4 + height, width, 2), grey), 2 * width) << "nothing hangs below";
}

TEST_F(Pictures, APixelRatioDrawsTheSamePictureFiner)
{
    const QImage twice = Painted(2);
    ASSERT_EQ(twice.size(), QSize(1100, 960));
    EXPECT_EQ(twice.pixelColor(1080, 40), QColor(0x80, 0x80, 0x80));
    EXPECT_GT(Count(twice, QRect(20, 2 * 80, 1000, 2), QColor(200, 200, 200)), 400);
    EXPECT_TRUE(Painted(1000).isNull()) << "a picture that no device could hold";
}

TEST_F(Pictures, APdfIsOnePageWithRealText)
{
    const Testing::TemporaryFolder folder;
    const std::string pdf = backEnd.Pdf(state);
    ASSERT_TRUE(pdf.starts_with("%PDF"));
    const std::string name = folder / "page.pdf";
    ASSERT_TRUE(WriteWholeFile(name, pdf));
    ASSERT_EQ(std::system(("pdftotext -layout " + name + " " + name + ".txt && pdfinfo " + name + " > " +
                           name + ".info")
                              .c_str()),
              0);
    const std::string text = ReadWholeFile(name + ".txt").value_or("");
    EXPECT_NE(text.find("Average Cable Loss = 0.35 dB"), std::string::npos) << text;
    EXPECT_NE(text.find("?\?-Tower"), std::string::npos) << text;
    const std::string info = ReadWholeFile(name + ".info").value_or("");
    EXPECT_NE(info.find("Pages:           1\n"), std::string::npos) << info;
    EXPECT_NE(info.find("413 x 360 pts"), std::string::npos) << info << "550 x 480 pixels at 96 dpi";
    EXPECT_NE(pdf.find("/FontFile2"), std::string::npos) << "the font comes with it";
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos) << "lines, not pixels";
}

} // namespace
} // namespace Traces
