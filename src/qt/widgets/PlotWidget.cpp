#include "qt/widgets/PlotWidget.h"

#include "chart/Markers.h"
#include "control/ChartMenu.h"
#include "control/Control.h"
#include "control/Input.h"
#include "formats/HostFault.h"
#include "formats/Text.h"
#include "modes/gps_tester/GPSTesterView.h"
#include "output/Capture.h"
#include "output/Describe.h"
#include "qt/widgets/KeepingCanvas.h"
#include "qt/widgets/KeyCodes.h"
#include "qt/widgets/PrintedPage.h"
#include "qt/widgets/QtPlatform.h"

#include <QContextMenuEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTimer>

#include <algorithm>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace Traces {

namespace {

QColor ScreenColour(Colour colour)
{
    return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

Colour ControlColour(const QColor& colour)
{
    return RGB(colour.red(), colour.green(), colour.blue());
}

Qt::CursorShape PointerShape(int pointer)
{
    switch (pointer) {
    case MousePointers::Cross: return Qt::CrossCursor;
    case MousePointers::SizeWE: return Qt::SizeHorCursor;
    default: return Qt::ArrowCursor;
    }
}

} // namespace

class PlotWidget::Events final : public PlotEvents {
public:
    explicit Events(PlotWidget& plotWidget) : widget(plotWidget) {}
    void KeyDown(int keyCode, int shift) override { Q_EMIT widget.KeyDown(keyCode, shift); }
    void KeyPress(int keyAscii) override { Q_EMIT widget.KeyPress(keyAscii); }
    void KeyUp(int keyCode, int shift) override { Q_EMIT widget.KeyUp(keyCode, shift); }
    void MouseDown(int button, int shift, float x, float y) override
    {
        Q_EMIT widget.MouseDown(button, shift, x, y);
    }
    void MouseUp(int button, int shift, float x, float y) override
    {
        Q_EMIT widget.MouseUp(button, shift, x, y);
    }
    void Click() override { Q_EMIT widget.Click(); }
    void DblClick() override { Q_EMIT widget.DblClick(); }
    void MarkerChanged(std::int16_t index, bool value) override { Q_EMIT widget.MarkerChanged(index, value); }

private:
    PlotWidget& widget;
};

/// A list whose own keys are its own, though its window may have them as shortcuts.
class EventList final : public QListWidget {
public:
    using QListWidget::QListWidget;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return QListWidget::event(event);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        constexpr int moves[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
        if (key.modifiers() == Qt::NoModifier && std::ranges::find(moves, key.key()) != std::end(moves))
            event->accept();
        return true;
    }
};

/// What the widget keeps between paint events.
struct PlotWidget::Kept {
    KeptPictures Pictures;
    QTimer Description;            ///< screen readers needn't hear each step of a drag
    QTimer ChangedScale;           ///< a handler runs when the control's own work is over
    QListWidget* Events = nullptr; ///< the widget's own child, over the box of a GPS check
    std::vector<std::string> EventLines;
    bool AutoScaleY = false; ///< as it was told last
};

PlotWidget::PlotWidget(QWidget* parent)
    : QWidget(parent), platform(std::make_unique<QtPlatform>(*this)), events(std::make_unique<Events>(*this)),
      kept(std::make_unique<Kept>())
{
    // The control repaints while it is made: until it is there, the pointer says so.
    plot = std::make_unique<Traces::Plot>(*platform);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Measurement chart"));
    constexpr int descriptionDelay = 200; // milliseconds
    kept->Description.setSingleShot(true);
    kept->Description.setInterval(descriptionDelay);
    connect(&kept->Description, &QTimer::timeout, this, &PlotWidget::DescribeTrace);
    kept->ChangedScale.setSingleShot(true);
    connect(&kept->ChangedScale, &QTimer::timeout, this, &PlotWidget::TellChangedScale);
    plot->Listen(events.get());
    DescribeTrace();
}

PlotWidget::~PlotWidget() = default;

template <class Action>
void PlotWidget::Guarded(Action action)
{
    const QPointer<PlotWidget> self(this);
    try {
        action(plot->Instance());
    } catch (const std::exception& fault) { // of the trace's numbers, or of a handler: Qt can't carry them on
        if (!self.isNull())
            Q_EMIT Faulted(QString::fromUtf8(fault.what()));
    }
    if (!self.isNull())
        PictureChanged();
}

template <class Action>
void PlotWidget::GuardedPointer(QPointF place, Action action)
{
    Guarded([&](Control& control) {
        const LifeWatch life(control);
        action(control);
        if (!life.Gone())
            ShowPointer(place);
    });
}

void PlotWidget::SetPrinter(QPrinter* printer)
{
    platform->Printer = printer;
}

void PlotWidget::SetScrambleTable(const std::array<std::uint8_t, 7>& table)
{
    platform->Scramble = table;
}

QColor PlotWidget::BackColor() const
{
    return ScreenColour(plot->BackColor());
}

QColor PlotWidget::ForeColor() const
{
    return ScreenColour(plot->ForeColor());
}

void PlotWidget::setShowParams(bool value)
{
    if (plot->ShowParams() == value)
        return;
    plot->ShowParams(value);
    updateGeometry();
    Q_EMIT ShowParamsChanged(value);
}

void PlotWidget::setAllowPopupMenu(bool value)
{
    if (plot->AllowPopupMenu() == value)
        return;
    plot->AllowPopupMenu(value);
    Q_EMIT AllowPopupMenuChanged(value);
}

void PlotWidget::setBackColor(const QColor& value)
{
    plot->BackColor(ControlColour(value));
}

void PlotWidget::setForeColor(const QColor& value)
{
    plot->ForeColor(ControlColour(value));
}

void PlotWidget::setBorderStyle(BorderStyles value)
{
    plot->BorderStyle(static_cast<MyBorderStyles>(value));
}

void PlotWidget::setAutoScaleY(bool value)
{
    plot->AutoScaleY(value);
}

unsigned PlotWidget::PaintedPictures() const
{
    return kept->Pictures.Painted;
}

QSize PlotWidget::sizeHint() const
{
    if (IsLaidOutWide(plot->Instance()))
        return {WideWidth, WideHeight};
    return {ShowParams() ? WidthWithPane : DesignWidth, DesignHeight};
}

bool PlotWidget::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    const QPointer<QPrintDialog> form(new QPrintDialog(&printer, this));
    const bool accepted = form->exec() == QDialog::Accepted;
    const bool alive = !form.isNull();
    delete form;
    return accepted && alive &&
           PrintOnPage(printer, plot->Instance(), FittingPlace(printer, plot->Instance()), platform->Fonts());
}

void PlotWidget::PrintPreview()
{
    QPrinter printer(QPrinter::HighResolution);
    const QPointer<QPrintPreviewDialog> form(new QPrintPreviewDialog(&printer, this));
    connect(form, &QPrintPreviewDialog::paintRequested, this, &PlotWidget::PrintOn);
    form->exec();
    delete form;
}

void PlotWidget::PrintOn(QPrinter* printer)
{
    PrintOnPage(*printer, plot->Instance(), FittingPlace(*printer, plot->Instance()), platform->Fonts());
}

void PlotWidget::ChooseMenuItem(const char* name)
{
    Guarded([&](Control& control) {
        const Menu menu = ChartMenu(control, FamilyMarkers(control));
        const MenuChoice choice = {name};
        const MenuItem* item = FindChosen(menu.Items, choice);
        RunMenuItem(control, choice, item != nullptr && item->Checked);
    });
}

void PlotWidget::Relayout()
{
    plot->Resize(width(), height());
    PictureChanged();
}

void PlotWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    KeepingCanvas canvas(painter, platform->Fonts(), kept->Pictures, ratio);
    ReplayControl(plot->Instance(), canvas, ratio);
}

void PlotWidget::resizeEvent(QResizeEvent*)
{
    Relayout();
}

void PlotWidget::mousePressEvent(QMouseEvent* event)
{
    const int button = ButtonsOf(event->button());
    if (button == 0)
        return;
    platform->MenuPlace = event->globalPosition().toPoint();
    GuardedPointer(event->position(), [&](Control& control) {
        DevicePress(control, button, ShiftOf(event->modifiers()), event->position().x(),
                    event->position().y());
    });
}

void PlotWidget::mouseMoveEvent(QMouseEvent* event)
{
    GuardedPointer(event->position(), [&](Control& control) {
        DeviceMove(control, ButtonsOf(event->buttons()), ShiftOf(event->modifiers()), event->position().x(),
                   event->position().y());
    });
}

void PlotWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const int button = ButtonsOf(event->button());
    if (button == 0)
        return;
    GuardedPointer(event->position(), [&](Control& control) {
        DeviceRelease(control, button, ShiftOf(event->modifiers()), event->position().x(),
                      event->position().y());
    });
}

void PlotWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return mousePressEvent(event);
    GuardedPointer(event->position(), [&](Control& control) {
        DeviceDoubleClick(control, event->position().x(), event->position().y());
    });
}

void PlotWidget::keyPressEvent(QKeyEvent* event)
{
    const QPointer<PlotWidget> self(this);
    const int code = KeyCodeOf(*event);
    const int shift = ShiftOf(event->modifiers());
    const int ascii = KeyAsciiOf(*event);
    QWidget::keyPressEvent(event); // what the control doesn't use is its window's
    if (code != 0)
        Guarded([&](Control& control) { DeviceKeyDown(control, code, shift); });
    if (!self.isNull() && ascii != 0)
        Guarded([&](Control& control) { DeviceKeyPress(control, ascii); });
}

void PlotWidget::keyReleaseEvent(QKeyEvent* event)
{
    const int code = KeyCodeOf(*event);
    if (code != 0 && !event->isAutoRepeat())
        Guarded([&](Control& control) { DeviceKeyUp(control, code, ShiftOf(event->modifiers())); });
}

void PlotWidget::contextMenuEvent(QContextMenuEvent* event)
{
    // The mouse's own menu opened with the press.
    if (event->reason() != QContextMenuEvent::Keyboard)
        return;
    platform->MenuPlace = mapToGlobal(rect().center());
    Guarded([](Control& control) { DeviceMenuKey(control); });
}

void PlotWidget::TellPropertyChanged(std::string_view name)
{
    if (plot == nullptr) // while it is being made
        return;
    if (name == "BackColor")
        Q_EMIT BackColorChanged(BackColor());
    else if (name == "ForeColor")
        Q_EMIT ForeColorChanged(ForeColor());
    else if (name == "BorderStyle")
        Q_EMIT BorderStyleChanged(BorderStyle());
    else if (name == "AutoScaleY")
        TellChangedScale();
}

void PlotWidget::PictureChanged()
{
    update();
    if (plot == nullptr)
        return;
    ShowEventList();
    if (!kept->Description.isActive())
        kept->Description.start();
    if (kept->AutoScaleY != plot->AutoScaleY())
        kept->ChangedScale.start(0);
}

/// Menus and new traces change it, too.
void PlotWidget::TellChangedScale()
{
    const bool scaled = plot->AutoScaleY();
    if (std::exchange(kept->AutoScaleY, scaled) != scaled)
        Q_EMIT AutoScaleYChanged(scaled);
}

/// A list that scrolls, in the place of the lines that the control has drawn into its box.
void PlotWidget::ShowEventList()
{
    const Control& control = plot->Instance();
    const ChartSurface& box = control.GPSiDENBox;
    if (!box.IsShown()) {
        if (kept->Events != nullptr)
            kept->Events->hide();
        return;
    }
    if (kept->Events == nullptr) {
        kept->Events = new EventList(this);
        kept->Events->setObjectName("Events");
        kept->Events->setAccessibleName(tr("Events"));
        kept->Events->setFrameShape(QFrame::NoFrame);
        kept->Events->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(kept->Events, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
            platform->MenuPlace = kept->Events->mapToGlobal(at);
            Guarded([](Control& shown) { DeviceMenuKey(shown); });
        });
    }
    QListWidget& list = *kept->Events;
    const DevicePlace place = DevicePlaceOf(box);
    list.setGeometry(qRound(place.Left), qRound(place.Top), qRound(box.DeviceWidth()),
                     qRound(box.DeviceHeight()));
    QFont font = list.font();
    constexpr double textSize = 10;
    font.setPointSizeF(std::max(1.0, textSize * static_cast<double>(box.Screen().FontScaleFactor)));
    list.setFont(font);
    if (std::vector<std::string> lines = ShownGPSEvents(control);
        list.count() == 0 || lines != kept->EventLines) {
        kept->EventLines = std::move(lines);
        list.clear();
        for (const std::string& line : kept->EventLines)
            list.addItem(QString::fromStdString(Utf8FromAnsi(line)));
    }
    list.show();
}

void PlotWidget::ShowPointer(QPointF place)
{
    Control& control = plot->Instance();
    const ChartSurface& surface =
        control.Captured != nullptr ? *control.Captured : SurfaceAt(control, place.x(), place.y());
    const Qt::CursorShape shape = PointerShape(surface.MousePointer);
    if (cursor().shape() != shape)
        setCursor(shape);
}

void PlotWidget::DescribeTrace()
{
    setAccessibleDescription(QString::fromStdString(Utf8FromAnsi(DescribePlot(plot->Instance()))));
}

} // namespace Traces
