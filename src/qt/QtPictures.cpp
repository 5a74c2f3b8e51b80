#include "qt/QtPictures.h"

#include "control/Control.h"
#include "qt/PainterCanvas.h"
#include "qt/Png.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QMessageLogContext>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <array>
#include <cmath>
#include <cstdio>
#include <memory>

namespace Traces {

namespace {

/// Pixels for a size of the control; 0 when no image has that many.
int ImageSize(double pixels)
{
    constexpr double most = 32767; // QPainter's limit
    return pixels >= 1 && pixels <= most ? static_cast<int>(std::ceil(pixels)) : 0;
}

} // namespace

std::string QtPictures::Png(const Control& control, double pixelRatio)
{
    const ChartSurface& root = control.Surface;
    QImage image(ImageSize(root.DeviceWidth() * pixelRatio), ImageSize(root.DeviceHeight() * pixelRatio),
                 QImage::Format_RGB32);
    if (image.isNull())
        return {};
    image.fill(Qt::white); // a fractional last row or column isn't the control's
    {
        QPainter painter(&image);
        PainterCanvas canvas(painter, fonts, pixelRatio);
        ReplayControl(control, canvas, pixelRatio);
    }
    return PngBytes(image);
}

std::string QtPictures::Pdf(const Control& control)
{
    // A pixel of the control is one of a screen at this density, whatever the true screen has.
    constexpr int dotsPerInch = 96;
    constexpr double pointsPerPixel = 72.0 / dotsPerInch;
    const ChartSurface& root = control.Surface;
    const QSizeF size(root.DeviceWidth(), root.DeviceHeight());
    const QPageSize page(size * pointsPerPixel, QPageSize::Point, QString(), QPageSize::ExactMatch);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    writer.setPageSize(page);
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    writer.setCreator(QStringLiteral("Traces"));
    {
        QPainter painter(&writer);
        // Qt writes pages of whole points: stretched by less than one, the picture leaves no edge white.
        painter.scale(page.sizePoints().width() / (size.width() * pointsPerPixel),
                      page.sizePoints().height() / (size.height() * pointsPerPixel));
        PainterCanvas canvas(painter, fonts);
        ReplayControl(control, canvas);
    }
    return bytes.toStdString();
}

} // namespace Traces

namespace {

/// Qt warns about folders of the desktop that a picture has no use for, on the standard error of a program
/// whose user never asked for Qt.
void DropWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type != QtWarningMsg && type != QtDebugMsg && type != QtInfoMsg)
        std::fputs((message + QLatin1Char('\n')).toLocal8Bit().constData(), stderr);
}

std::unique_ptr<QGuiApplication> ApplicationWithoutDisplay()
{
    // Qt keeps the arguments by reference.
    static std::array<char, 7> program{"traces"};
    static std::array<char, 10> option{"-platform"};
    static std::array<char, 10> platform{"offscreen"};
    static std::array<char*, 4> arguments{program.data(), option.data(), platform.data(), nullptr};
    static int count = 3;
    const QtMessageHandler usual = qInstallMessageHandler(DropWarnings);
    auto application = std::make_unique<QGuiApplication>(count, arguments.data());
    qInstallMessageHandler(usual);
    return application;
}

} // namespace

Traces::PictureBackEnd* TracesPictureBackEnd()
{
    static const std::unique_ptr<QGuiApplication> own =
        QCoreApplication::instance() == nullptr ? ApplicationWithoutDisplay() : nullptr;
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr)
        return nullptr;
    static thread_local Traces::QtPictures pictures;
    return &pictures;
}
