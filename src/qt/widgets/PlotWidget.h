// The control as a Qt widget: shows a Plot, forwards mouse and keys to it, and offers its stored properties
// and its events in Qt's way. Everything else is done through Plot().
#pragma once

#include "control/Plot.h"

#include <QColor>
#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>

class QPagedPaintDevice;
class QPrinter;

namespace Traces {

class QtPlatform;

class PlotWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool ShowParams READ ShowParams WRITE setShowParams NOTIFY ShowParamsChanged)
    Q_PROPERTY(bool AllowPopupMenu READ AllowPopupMenu WRITE setAllowPopupMenu NOTIFY AllowPopupMenuChanged)
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor NOTIFY BackColorChanged)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor NOTIFY ForeColorChanged)
    Q_PROPERTY(BorderStyles BorderStyle READ BorderStyle WRITE setBorderStyle NOTIFY BorderStyleChanged)
    Q_PROPERTY(bool AutoScaleY READ AutoScaleY WRITE setAutoScaleY NOTIFY AutoScaleYChanged)

public:
    /// The values of MyBorderStyles.
    enum BorderStyles { pbflat, pbInset, pbRaised };
    Q_ENUM(BorderStyles)

    explicit PlotWidget(QWidget* parent = nullptr);
    ~PlotWidget() override;
    PlotWidget(const PlotWidget&) = delete;
    PlotWidget& operator=(const PlotWidget&) = delete;

    /// The control. Its events are this widget's signals: who calls Listen takes them away from it.
    Traces::Plot& Plot() { return *plot; }
    const Traces::Plot& Plot() const { return *plot; }

    /// What PrintTrace prints on from now on; not owned. Null asks the user each time, as at first.
    void SetPrinter(QPrinter* printer);

    /// The seven values that unscramble what LoadPowerMeterDat is given from now on; all zero at first, for a
    /// text that isn't scrambled.
    void SetScrambleTable(const std::array<std::uint8_t, 7>& table);

    /// The stored properties; see Plot. Forms ask for setters of these names. ShowParams shows with the next
    /// resize, AutoScaleY with the next redraw.
    /// @{
    bool ShowParams() const { return plot->ShowParams(); }
    bool AllowPopupMenu() const { return plot->AllowPopupMenu(); }
    QColor BackColor() const;
    QColor ForeColor() const;
    BorderStyles BorderStyle() const { return static_cast<BorderStyles>(plot->BorderStyle()); }
    bool AutoScaleY() const { return plot->AutoScaleY(); }
    void setShowParams(bool value);
    void setAllowPopupMenu(bool value);
    void setBackColor(const QColor& value);
    void setForeColor(const QColor& value);
    void setBorderStyle(BorderStyles value);
    void setAutoScaleY(bool value);
    /// @}

    /// How many surfaces' pictures have been painted; a drag paints none. For measuring.
    unsigned PaintedPictures() const;

    QSize sizeHint() const override;

public Q_SLOTS:
    /// PrintTrace on the whole width of a page with the picture's own proportions, after asking for the
    /// printer; and the same on a preview.
    /// @{
    bool Print();
    void PrintPreview();
    void PrintOn(QPrinter* printer);
    /// @}

    /// What choosing an item of the chart's menu does, by its name there; the name of none does nothing.
    void ChooseMenuItem(const char* name);

    /// The layout for the size at hand, as a resize would do it.
    void Relayout();

Q_SIGNALS:
    void ShowParamsChanged(bool value);
    void AllowPopupMenuChanged(bool value);
    void BackColorChanged(const QColor& value);
    void ForeColorChanged(const QColor& value);
    void BorderStyleChanged(Traces::PlotWidget::BorderStyles value);
    void AutoScaleYChanged(bool value);

    /// The control's events, of its own surface outside of the charts: key codes and shift states as the
    /// control has them, X and Y in its user coordinates.
    /// @{
    void KeyDown(int keyCode, int shift);
    void KeyPress(int keyAscii);
    void KeyUp(int keyCode, int shift);
    void MouseDown(int button, int shift, float x, float y);
    void MouseUp(int button, int shift, float x, float y);
    void Click();
    void DblClick();
    void MarkerChanged(int index, bool value);
    /// @}

    /// A fault of the trace's own numbers, or of a handler, while the user worked on the chart, where there
    /// is no caller to throw it to.
    void Faulted(const QString& what);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    friend class QtPlatform;
    class Events;
    struct Kept;

    void TellPropertyChanged(std::string_view name);
    void PictureChanged();
    void ShowPointer(QPointF place);
    void DescribeTrace();
    void ShowEventList();
    void TellChangedScale();

    /// Runs what a device event does to the control. This may be gone afterwards.
    template <class Action>
    void Guarded(Action action);

    /// The same for the mouse, whose pointer it may change.
    template <class Action>
    void GuardedPointer(QPointF place, Action action);

    std::unique_ptr<QtPlatform> platform;
    std::unique_ptr<Events> events;
    std::unique_ptr<Kept> kept;
    std::unique_ptr<Traces::Plot> plot;
};

} // namespace Traces
