// A widget in a window of the display, with a sweep in it, and the user's hands on it.
#pragma once

#include "control/Control.h"
#include "formats/Files.h"
#include "qt/widgets/PlotWidget.h"

#include <QApplication>
#include <QImage>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace Traces::Testing {

class ShownPlot : public testing::Test {
protected:
    std::unique_ptr<PlotWidget> owner = std::make_unique<PlotWidget>();
    PlotWidget& widget = *owner;

    ShownPlot()
    {
        widget.resize(660, 576); // 1.2 times the design size
        widget.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
        ShowSample("rl_gsm900_antenna_201pts.raw");
    }

    Control& State() { return widget.Plot().Instance(); }

    void ShowSample(const std::string& name)
    {
        const auto bytes = ReadWholeFile(std::string(TRACES_SAMPLES_FOLDER) + "/" + name);
        ASSERT_TRUE(bytes.has_value());
        widget.Plot().TraceName("Tower");
        EXPECT_TRUE(widget.Plot().DisplayTrace(*bytes));
        widget.Plot().ClearMarkers();
        Painted();
    }

    /// What the widget shows, in the device's pixels.
    QImage Painted()
    {
        QCoreApplication::processEvents();
        return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    /// The widget's pixel of a place in a box.
    QPoint PixelOf(const ChartSurface& box, float x, float y)
    {
        double left = 0, top = 0;
        for (const ChartSurface* surface = &box; surface->Parent != nullptr; surface = surface->Parent) {
            const ChartSurface& parent = *surface->Parent;
            left += static_cast<double>(surface->Left - parent.ScaleLeft) * parent.PixelsPerUnitX();
            top += static_cast<double>(surface->Top - parent.ScaleTop) * parent.PixelsPerUnitY();
        }
        return {qRound(left + static_cast<double>(x - box.ScaleLeft) * box.PixelsPerUnitX()),
                qRound(top + static_cast<double>(y - box.ScaleTop) * box.PixelsPerUnitY())};
    }

    /// A real drag: press, moves with the button down, release.
    void Drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        Move((from + to) / 2, Qt::LeftButton);
        Move(to, Qt::LeftButton);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
    }

    void Move(QPoint to, Qt::MouseButton button = Qt::NoButton)
    {
        QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, button, Qt::NoModifier);
        QApplication::sendEvent(&widget, &move);
        QCoreApplication::processEvents();
    }

    /// Runs `answer` on the dialog or menu that opens next, once it is there.
    template <class Window, class Answer>
    void WhenOpen(Answer answer)
    {
        auto* timer = new QTimer(&widget);
        QObject::connect(timer, &QTimer::timeout, &widget, [timer, answer] {
            QWidget* open = QApplication::activePopupWidget() != nullptr ? QApplication::activePopupWidget()
                                                                         : QApplication::activeModalWidget();
            if (auto* window = qobject_cast<Window*>(open)) {
                timer->stop();
                timer->deleteLater();
                answer(*window);
            }
        });
        timer->start(20);
    }
};

} // namespace Traces::Testing
