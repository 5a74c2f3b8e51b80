// A bare QPainter program: the primitives of a sweep's picture, each by a call with its place in it, saved
// by QImage::save. What a process that makes one picture can't do without.
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <array>
#include <cmath>

namespace {

void DrawFrame(QPainter& painter)
{
    painter.fillRect(0, 0, 550, 480, QColor(128, 128, 128));
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(13);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(QPointF(268, 16), QStringLiteral("?\?-"));
    painter.drawText(QPointF(2, 36), QStringLiteral("Cal Off"));
    painter.drawText(QPointF(243, 36), QStringLiteral("601 Points"));
    painter.drawText(QPointF(2, 434), QStringLiteral("800.0"));
    painter.drawText(QPointF(241, 434), QStringLiteral("Freq (MHz)"));
    painter.drawText(QPointF(499, 434), QStringLiteral("2000.0"));
    painter.drawText(QPointF(2, 454), QStringLiteral("F1=800.0MHz"));
    painter.drawText(QPointF(2, 472), QStringLiteral("F2=2000.0MHz"));
    painter.drawText(QPointF(275, 454), QStringLiteral("Average Cable Loss = 0.52 dB"));
    painter.drawText(QPointF(275, 472), QStringLiteral("Std=GSM 1800"));
    painter.drawLine(0, 440, 549, 440);
}

void DrawChart(QPainter& painter)
{
    painter.setClipRect(4, 42, 542, 380);
    painter.fillRect(4, 42, 542, 380, Qt::black);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(4, 54), QStringLiteral("0.00 dB"));
    painter.drawText(QPointF(4, 419), QStringLiteral("35.00 dB"));

    std::array<QPointF, 601> curve;
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const auto x = static_cast<double>(i);
        curve[i] = {4 + x * 0.898, 200 + 120 * std::sin(x * 0.02) + 5 * std::sin(x * 0.3)};
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(QPen(Qt::yellow, 1));
    painter.drawPolyline(curve.data(), static_cast<int>(curve.size()));
    painter.setRenderHint(QPainter::Antialiasing, false);

    QPen dotted(QColor(200, 200, 200), 1);
    dotted.setDashPattern({1, 2});
    dotted.setCapStyle(Qt::FlatCap);
    painter.setPen(dotted);
    for (int line = 0; line <= 10; ++line) {
        painter.drawLine(4 + 54 * line, 42, 4 + 54 * line, 421);
        painter.drawLine(4, 42 + 38 * line, 545, 42 + 38 * line);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    QImage image(550, 480, QImage::Format_RGB32);
    {
        QPainter painter(&image);
        DrawFrame(painter);
        DrawChart(painter);
    }
    return image.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
