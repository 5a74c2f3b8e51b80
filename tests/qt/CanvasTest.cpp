#include "Paper.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "support/RawBuilder.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace Traces {
namespace {

using Testing::Paper;
using Testing::Red;

TEST(PainterCanvas, CrispLinesTakeWholePixelsFromEndToEnd)
{
    const struct {
        const char* what;
        Pen pen;
        double ratio;
        std::string row;
    } cases[] = {
        {"solid", {Red, LineStyle::Solid, 1}, 1, "..##########################...."},
        {"dotted", {Red, LineStyle::Dotted, 1}, 1, "..#..#..#..#..#..#..#..#..#....."},
        {"dashed", {Red, LineStyle::Dashed, 1}, 1, "..######....######....######...."},
        {"dots of a wide pen keep their rhythm", {Red, LineStyle::Dashed, 3}, 1, ""},
        {"finer pixels, longer dashes", {Red, LineStyle::Dashed, 1}, 2, "..############........######...."},
    };
    for (const auto& c : cases) {
        const std::array<DevicePoint, 2> line{{{2.5, 8.5}, {27.5, 8.5}}};
        Paper paper(QSize(32, 16), c.ratio);
        paper.Draw([&](Canvas& canvas) { canvas.Polyline(line, c.pen, true); });
        const QRect ink = paper.Ink();
        EXPECT_EQ(ink.height(), static_cast<int>(c.pen.Width * c.ratio)) << c.what;
        for (int y = ink.top(); y <= ink.bottom(); ++y)
            EXPECT_EQ(paper.Row(y).find('?'), std::string::npos) << c.what << ": half a pixel is a blur";
        if (!c.row.empty()) {
            EXPECT_EQ(paper.Row(8), c.row) << c.what;
        }
    }
}

TEST(PainterCanvas, CellsFillTheirPixelsWithoutBlending)
{
    Paper paper(QSize(12, 6), 1);
    const ColourCells cells = {3, 2, {0, 1, 0, 9, 0, 1}, {White, Red}};
    paper.Draw([&](Canvas& canvas) { canvas.Image({2, 1, 8, 5}, cells); });
    EXPECT_EQ(paper.Row(0), "............");
    EXPECT_EQ(paper.Row(1), "....##......");
    EXPECT_EQ(paper.Row(2), "....##......");
    EXPECT_EQ(paper.Row(3), "..##..##....") << "a place beyond the palette takes its last colour";
    EXPECT_EQ(paper.Row(4), "..##..##....");
    EXPECT_EQ(paper.Row(5), "............");
    // Places between pixels: no cell is lost or blurred.
    paper.Draw([&](Canvas& canvas) { canvas.Image({2.3, 1.4, 8.4, 4.6}, cells); });
    for (int y = 0; y < 6; ++y)
        EXPECT_EQ(paper.Row(y).find('?'), std::string::npos) << y;
}

TEST(PainterCanvas, CrispLinesIncludeBothEndsInEveryDirection)
{
    const struct {
        DevicePoint from, to;
        QRect ink;
    } cases[] = {
        {{2.5, 3.5}, {9.5, 3.5}, {2, 3, 8, 1}}, {{9.5, 3.5}, {2.5, 3.5}, {2, 3, 8, 1}},
        {{3.5, 2.5}, {3.5, 9.5}, {3, 2, 1, 8}}, {{3.5, 9.5}, {3.5, 2.5}, {3, 2, 1, 8}},
        {{3.5, 4.5}, {3.5, 4.5}, {3, 4, 1, 1}},
    };
    for (const auto& c : cases) {
        Paper paper(QSize(12, 12));
        const std::array<DevicePoint, 2> line{c.from, c.to};
        paper.Draw([&](Canvas& canvas) { canvas.Polyline(line, {Red, LineStyle::Solid, 1}, true); });
        EXPECT_EQ(paper.Ink(), c.ink) << c.from.X << ' ' << c.from.Y << " to " << c.to.X << ' ' << c.to.Y;
    }
}

TEST(PainterCanvas, BoxesStandOnTheirPixels)
{
    Paper paper(QSize(12, 10));
    paper.Draw([](Canvas& canvas) { canvas.Outline({2.5, 2.5, 8.5, 6.5}, {Red, LineStyle::Solid, 1}); });
    EXPECT_EQ(paper.Ink(), QRect(2, 2, 7, 5));
    EXPECT_EQ(paper.Row(2), "..#######...");
    EXPECT_EQ(paper.Row(4), "..#.....#...");
    EXPECT_EQ(paper.Row(6), "..#######...");
}

TEST(PainterCanvas, NeighboursShareNoPixelAndLeaveNoneOut)
{
    Paper paper(QSize(8, 3));
    paper.Draw([](Canvas& canvas) {
        canvas.Fill({0, 0, 3.4, 3}, Red);
        canvas.Fill({3.4, 0, 5.6, 3}, RGB(0, 0, 255));
        canvas.Fill({5.6, 0, 8, 3}, Red);
    });
    EXPECT_EQ(paper.Row(1), "###???##");
    EXPECT_EQ(paper.Row(1, Qt::blue), "???###??");
}

TEST(PainterCanvas, AnInnerClipNeverShowsMoreThanTheOuterOne)
{
    Paper paper(QSize(10, 4));
    paper.Draw([](Canvas& canvas) {
        canvas.PushClip({2, 0, 8, 3});
        canvas.PushClip({0, 1, 4, 4});
        canvas.Fill({0, 0, 10, 4}, RGB(0, 0, 255));
        canvas.PopClip();
        canvas.Fill({5, 0, 10, 4}, Red);
        canvas.PopClip();
        canvas.Fill({9, 3, 10, 4}, Red);
    });
    EXPECT_EQ(paper.Row(0), ".....###..");
    EXPECT_EQ(paper.Row(1, Qt::blue), "..##.???..");
    EXPECT_EQ(paper.Row(3), ".........#");
}

TEST(PainterCanvas, CurvesAreSmoothAndOfTheTracesColour)
{
    Paper paper(QSize(40, 20));
    const std::array<DevicePoint, 3> curve{{{2, 4.5}, {20, 4.5}, {38, 16}}};
    paper.Draw([&](Canvas& canvas) { canvas.Polyline(curve, {Red, LineStyle::Solid, 1}, false); });
    EXPECT_EQ(paper.Row(4).substr(3, 15), std::string(15, '#'));
    EXPECT_NE(paper.Row(10).find('?'), std::string::npos) << "a slope has shades";
}

TEST(PainterCanvas, CirclesAreFilledOnlyWithAColour)
{
    for (const Colour fill : {NoColour, RGB(0, 0, 255)}) {
        Paper paper(QSize(21, 21));
        paper.Draw([&](Canvas& canvas) { canvas.Circle({10.5, 10.5}, 8, Red, fill); });
        EXPECT_EQ(paper.Image.pixelColor(10, 10), fill == NoColour ? QColor(Qt::white) : QColor(Qt::blue));
        EXPECT_LT(paper.Image.pixelColor(2, 10).green(), 100) << "the outline is red";
        EXPECT_EQ(paper.Ink(), QRect(2, 2, 17, 17));
    }
}

TEST(PainterCanvas, TextsFillTheRoomThatWasMeasuredForThem)
{
    const QtMetrics& metrics = dynamic_cast<const QtMetrics&>(TracesPictureBackEnd()->Metrics());
    constexpr std::string_view text = "HHHHHHHHHHHHHHHHHHHH";
    for (const bool bold : {false, true}) {
        // Sizes between whole pixels, which a QFont would round to the next.
        for (const double pixels : {7.5, 13.333, 13.5, 26.4}) {
            Font font;
            font.Bold = bold;
            font.Size = static_cast<float>(pixels);
            const double width = metrics.TextWidth(text, font);
            Paper paper(QSize(600, 60));
            paper.Draw([&](Canvas& canvas) { canvas.Text({10, 10}, text, font, pixels, Black); });
            const QRect ink = paper.Ink();
            const double bearing = 0.079 * pixels;
            EXPECT_NEAR(ink.left(), 10 + bearing, 1.3) << pixels;
            EXPECT_NEAR(ink.right() + 1, 10 + width - bearing, 1.3) << pixels;
            EXPECT_NEAR(ink.bottom() + 1, 10 + 0.905 * pixels, 1) << pixels << ": the base line";
            EXPECT_GE(ink.top(), 10 + static_cast<int>(0.15 * pixels)) << pixels;
        }
    }
}

TEST(PainterCanvas, UnderlinesRunUnderTheWholeTextInOneRow)
{
    Font font;
    font.Underline = true;
    Paper paper(QSize(60, 30));
    paper.Draw([&](Canvas& canvas) { canvas.Text({5, 5}, "HHH", font, 12, Red); });
    const auto width = static_cast<std::size_t>(std::lround(3 * 0.722 * 12));
    const std::string row = paper.Row(paper.Ink().bottom());
    EXPECT_EQ(row, std::string(5, '.') + std::string(width, '#') + std::string(55 - width, '.'));
    EXPECT_GT(paper.Ink().bottom(), 5 + 0.905 * 12);
}

TEST(PainterCanvas, ADevicesOwnPixelRatioChangesNothing)
{
    const auto drawing = [](Canvas& canvas) {
        const std::array<DevicePoint, 2> line{{{2.5, 3.5}, {60.5, 3.5}}};
        canvas.PushClip({0, 0, 70, 50});
        canvas.Fill({0, 0, 70, 50}, RGB(0, 0, 80));
        canvas.Polyline(line, {Red, LineStyle::Dotted, 1}, true);
        canvas.Text({5, 10}, "Freq (MHz)", {}, 22, White);
        canvas.PopClip();
    };
    for (const double ratio : {1.5, 2.0}) {
        Paper plain(QSize(80, 60), ratio);
        Paper fine(QSize(80, 60), ratio, ratio);
        plain.Draw(drawing);
        fine.Draw(drawing);
        fine.Image.setDevicePixelRatio(1);
        EXPECT_EQ(plain.Image, fine.Image) << ratio;
    }
}

TEST(PainterCanvas, PlacesBeyondAllSenseAreLeftOut)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    const double places[] = {1E30, -1E30, infinite, -infinite, std::nan(""), 1E5};
    for (const double place : places) {
        for (const LineStyle style : {LineStyle::Solid, LineStyle::Dashed}) {
            Paper paper(QSize(20, 20));
            const std::array<DevicePoint, 3> curve{{{2, 10.5}, {10, 10.5}, {place, place}}};
            const std::array<DevicePoint, 2> line{{{place, 5.5}, {10.5, 5.5}}};
            paper.Draw([&](Canvas& canvas) {
                canvas.Polyline(curve, {Red, style, 1}, false);
                canvas.Polyline(line, {Red, style, 1}, true);
                canvas.Outline({3.5, 3.5, place, place}, {Red, style, 1});
                canvas.Circle({10, 10}, place, Red, NoColour);
                canvas.Text({place, place}, "far", {}, 12, Black);
                canvas.Text({0, 0}, "huge", {}, place, Black);
                canvas.PushClip({place, 0, place, 20});
                canvas.Fill({0, 0, place, place}, Red);
                canvas.PopClip();
            });
            EXPECT_EQ(paper.Row(10).substr(3, 5), "#####") << place << ": what is near still shows";
        }
    }
}

TEST(Metrics, LettersInTheSymbolFontAreGreek)
{
    const auto& metrics = dynamic_cast<const QtMetrics&>(TracesPictureBackEnd()->Metrics());
    const QRawFont face = QRawFont::fromFont(ScreenFont(false));
    Font symbol;
    symbol.Name = "Symbol";
    const auto glyphOf = [&](const QString& letter) { return face.glyphIndexesForString(letter).front(); };
    EXPECT_EQ(metrics.LettersOf(symbol)['D'].Glyph, glyphOf(QStringLiteral("\u0394")));
    EXPECT_EQ(metrics.LettersOf(symbol)['m'].Glyph, glyphOf(QStringLiteral("\u03bc")));
    EXPECT_EQ(metrics.LettersOf({})['D'].Glyph, glyphOf(QStringLiteral("D")));
    EXPECT_EQ(metrics.LettersOf({})[0xFC].Glyph, glyphOf(QStringLiteral("\u00fc")));
    EXPECT_EQ(metrics.LettersOf({})[0x81].Glyph, glyphOf(QStringLiteral(" "))) << "an open place";
}

TEST(Metrics, EveryLetterIsAsWideAsTheBuiltInOnesAtAnySize)
{
    const TextMetrics& metrics = TracesPictureBackEnd()->Metrics();
    for (int code = 0; code < 256; ++code) {
        const char letter = static_cast<char>(code);
        Font font;
        for (const bool bold : {false, true}) {
            for (const float size : {0.5F, 8.25F, 100.0F}) {
                font.Bold = bold;
                font.Size = size;
                const double builtIn = BuiltInMetrics().TextWidth({&letter, 1}, font);
                EXPECT_NEAR(metrics.TextWidth({&letter, 1}, font), builtIn, builtIn / 100) << code;
            }
        }
    }
}

// Each runs in a process of its own, before any application was made.
TEST(ApplicationDeathTest, AHostsApplicationIsUsedAndLeftAlone)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hosted = [](auto makeApplication, bool draws) {
        char name[] = "host", option[] = "-platform", platform[] = "offscreen";
        char* arguments[] = {name, option, platform, nullptr};
        int count = 3;
        auto application = makeApplication(count, arguments);
        PictureBackEnd* const backEnd = TracesPictureBackEnd();
        bool kept = (backEnd != nullptr) == draws && QCoreApplication::instance() == application.get();
        if (backEnd != nullptr) {
            HeadlessPlatform headless(backEnd->Metrics());
            Plot plot(headless);
            plot.ShowTrace(Testing::RawSweep(0, {1000, 500}).Bytes());
            kept = kept && !backEnd->Png(plot.Instance(), 1).empty();
        }
        application.reset(); // and the fonts that were used in it go later
        std::exit(kept ? 0 : 1);
    };
    EXPECT_EXIT(hosted([](int& n, char** a) { return std::make_unique<QGuiApplication>(n, a); }, true),
                testing::ExitedWithCode(0), "");
    EXPECT_EXIT(hosted([](int& n, char** a) { return std::make_unique<QCoreApplication>(n, a); }, false),
                testing::ExitedWithCode(0), "");
    EXPECT_EXIT(std::exit(TracesPictureBackEnd() != nullptr &&
                                  QGuiApplication::platformName() == QStringLiteral("offscreen")
                              ? 0
                              : 1),
                testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace Traces
