// The widget in a real window: a step of a drag, from the mouse's move to the painted frame, a resize, and an
// arrow key that moves a marker along the codes, each against painting the whole control once. Run it under
// xvfb-run where there is no display.
#include "Measure.h"
#include "SampleTraces.h"
#include "control/Control.h"
#include "qt/PainterCanvas.h"
#include "qt/QtMetrics.h"
#include "qt/widgets/PlotWidget.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

using namespace Traces;
using namespace Traces::Bench;

constexpr double LongestDragStep = 2000; ///< microseconds of processor time
constexpr double LongestResize = 5000;
constexpr double LongestKeyStep = 1000;

void SendMouse(PlotWidget& widget, QEvent::Type type, QPointF place, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Steps of a drag that is under way, each painted at once.
auto DragStep(PlotWidget& widget)
{
    return [&widget](int call) {
        const QPointF place(100 + call % 300, 200 + call % 100);
        SendMouse(widget, QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
        widget.repaint();
    };
}

/// An arrow key there and back again, each painted at once.
auto KeyStep(PlotWidget& widget)
{
    return [&widget](int call) {
        QKeyEvent event(QEvent::KeyPress, call / 20 % 2 == 0 ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
        widget.repaint();
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    PlotWidget widget;
    widget.resize(550, 480);
    widget.show();
    QCoreApplication::processEvents();
    widget.Plot().ShowTrace(ReadSample());
    widget.Plot().ClearMarkers();
    QCoreApplication::processEvents();

    const QtMetrics metrics;
    SizedFonts fonts(metrics);
    QImage image(widget.size(), QImage::Format_RGB32);
    const auto whole = [&](int) {
        QPainter painter(&image);
        PainterCanvas canvas(painter, fonts);
        ReplayControl(widget.Plot().Instance(), canvas);
    };

    Report report;
    const unsigned painted = widget.PaintedPictures();
    // Zoom mode begins with a double click; the rectangle's corner is the next press.
    SendMouse(widget, QEvent::MouseButtonDblClick, {100, 200}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonPress, {100, 200}, Qt::LeftButton, Qt::LeftButton);
    const Times zoom = TimeInTurns(DragStep(widget), whole);
    report.Add("step of a zoom rectangle / painting the whole control", zoom, 3);
    const bool overlayAlone = widget.PaintedPictures() == painted;
    SendMouse(widget, QEvent::MouseButtonRelease, {300, 300}, Qt::LeftButton, Qt::NoButton);

    widget.Plot().ShowTrace(ReadSample());
    widget.Plot().MarkerOn(0);
    const Control& control = widget.Plot().Instance();
    const double left = static_cast<double>(control.VNABox.Left) * control.VNAHolder.PixelsPerUnitX();
    SendMouse(widget, QEvent::MouseButtonPress, {left + 1, 200}, Qt::LeftButton, Qt::LeftButton);
    report.Add("step of a marker's drag / painting the whole control", TimeInTurns(DragStep(widget), whole),
               3);
    SendMouse(widget, QEvent::MouseButtonRelease, {300, 300}, Qt::LeftButton, Qt::NoButton);

    const auto resize = [&](int call) {
        widget.resize(550 + call % 7, 480 + call % 5);
        widget.repaint();
    };
    const Times resized = TimeInTurns(resize, whole);
    report.Add("resize to the painted frame / painting the whole control", resized, 8);

    widget.resize(550, 480);
    widget.Plot().ShowTrace(ReadSample("cdma_cell_128codes_v320.raw"));
    QCoreApplication::processEvents();
    Control& state = widget.Plot().Instance();
    // A press takes the keys to the chart; that of an arrow key takes a selected marker.
    SendMouse(widget, QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, {200, 200}, Qt::LeftButton, Qt::NoButton);
    state.CDMAMarkers.SelectedMarker = 0;
    const auto before = state.CDMAMarkers.MarkerIndex;
    KeyStep(widget)(0);
    const bool moved = state.CDMAMarkers.MarkerIndex != before;
    const Times keyed = TimeInTurns(KeyStep(widget), whole);
    report.Add("step of a marker by key, 128 codes / painting the whole control", keyed, 5);
    if (!moved)
        std::printf("a key moved no marker\n");
    if (!overlayAlone)
        std::printf("a drag painted a picture anew\n");
    const bool inTime =
        zoom.Ours < LongestDragStep && resized.Ours < LongestResize && keyed.Ours < LongestKeyStep;
    return overlayAlone && moved && inTime ? report.ExitStatus() : 1;
}
