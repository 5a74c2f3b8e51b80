#include "qt/Images.h"
#include "support/TraceFiles.h"
#include "widgets/ShownPlot.h"

#include <QPageSize>
#include <QPrinter>
#include <QProcess>

namespace Traces {
namespace {

class Printing : public Testing::ShownPlot {
protected:
    Testing::TemporaryFolder folder;
    QPrinter printer{QPrinter::HighResolution};

    Printing()
    {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setFullPage(true);
        widget.SetPrinter(&printer);
    }

    /// The printed page at 72 dots per inch, and where its ink lies as parts of the page.
    QRectF InkOf(double width, double height, double left, double top)
    {
        const QString pdf = QString::fromStdString(folder / "page.pdf");
        printer.setOutputFileName(pdf);
        EXPECT_TRUE(widget.Plot().PrintTrace(width, height, left, top));
        const QString stem = QString::fromStdString(folder / "page");
        EXPECT_EQ(QProcess::execute(TRACES_PDFTOPPM, {"-png", "-singlefile", "-r", "72", pdf, stem}), 0);
        const QImage page(stem + ".png");
        const QRect ink = Testing::InkOf(page);
        return {double(ink.left()) / page.width(), double(ink.top()) / page.height(),
                double(ink.width()) / page.width(), double(ink.height()) / page.height()};
    }
};

TEST_F(Printing, PercentagesPlaceThePictureOnThePage)
{
    for (const auto& [width, height, left, top] :
         {std::array{100, 100, 0, 0}, std::array{50, 50, 25, 25}, std::array{50, 30, 10, 60}}) {
        const QRectF ink = InkOf(width, height, left, top);
        constexpr double pixel = 0.004;
        EXPECT_NEAR(ink.width(), width / 100.0, pixel);
        EXPECT_NEAR(ink.height(), height / 100.0, pixel);
        EXPECT_NEAR(ink.left(), left / 100.0, pixel);
        EXPECT_NEAR(ink.top(), top / 100.0, pixel);
    }
}

TEST_F(Printing, PrinterThatCantBeginIsAFailure)
{
    printer.setOutputFileName(QString::fromStdString(folder / "none/page.pdf"));
    EXPECT_FALSE(widget.Plot().PrintTrace(100, 100, 0, 0));
}

} // namespace
} // namespace Traces
