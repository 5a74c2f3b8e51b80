#include "control/Platform.h"
#include "formats/HostFault.h"
#include "output/Capture.h"
#include "qt/Images.h"
#include "widgets/ShownPlot.h"

#include <QListWidget>
#include <QMenu>
#include <QSignalSpy>

namespace Traces {
namespace {

using Testing::WorstDifference;
using Widgets = Testing::ShownPlot;

TEST_F(Widgets, WindowShowsWhatTheControlRecorded)
{
    const Picture picture = TracePicture(State());
    EXPECT_EQ(picture.MimeType, "image/png");
    const QImage recorded =
        QImage::fromData(QByteArray::fromStdString(picture.Bytes)).convertToFormat(QImage::Format_RGB32);
    EXPECT_LE(WorstDifference(Painted(), recorded), 4) << "antialiasing's last bits";
}

TEST_F(Widgets, MarkerDragRepaintsTheOverlayAlone)
{
    widget.Plot().MarkerOn(1);
    const ChartSurface& box = State().VNABox;
    const TraceSlot& curve = State().TraceSlots[0];
    const float from = curve.X[static_cast<std::size_t>(State().VNAMarkers.MarkerIndex[1])];
    const float middle = box.ScaleTop + box.ScaleHeight / 2;
    const QPoint start = PixelOf(box, from, middle);
    const QPoint end = PixelOf(box, curve.X[140], middle);
    const QImage before = Painted();
    const unsigned painted = widget.PaintedPictures();

    QTest::mousePress(&widget, Qt::LeftButton, {}, start);
    for (int step = 1; step <= 10; ++step)
        Move(start + (end - start) * step / 10, Qt::LeftButton);
    EXPECT_GT(WorstDifference(Painted(), before), 4) << "the dragged line and its readouts are shown";
    EXPECT_EQ(widget.PaintedPictures(), painted);
    EXPECT_NEAR(static_cast<double>(State().VNAMarkers.MarkerX[1]), static_cast<double>(curve.X[140]), 1);

    QTest::mouseRelease(&widget, Qt::LeftButton, {}, end);
    EXPECT_NEAR(State().VNAMarkers.MarkerIndex[1], 140, 1);
    Painted();
    EXPECT_GT(widget.PaintedPictures(), painted);
}

TEST_F(Widgets, EventsOfAGpsCheckScrollInAList)
{
    ShowSample("gpst_lost_fixes.raw");
    auto* list = widget.findChild<QListWidget*>("Events");
    ASSERT_TRUE(list != nullptr && list->isVisible());
    EXPECT_EQ(list->count(), 49) << "without the lost fixes";
    EXPECT_EQ(list->pos(), PixelOf(State().GPSiDENBox, 0, 0));
    EXPECT_FALSE(list->rect().contains(list->visualItemRect(list->item(48))));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {20, 5});
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_TRUE(list->rect().contains(list->visualItemRect(list->item(48))));
    QKeyEvent up(QEvent::ShortcutOverride, Qt::Key_Up, Qt::NoModifier);
    up.ignore();
    QApplication::sendEvent(list, &up);
    EXPECT_TRUE(up.isAccepted()) << "the list's key, whatever shortcuts its window has";
    ShowSample("gpst_clear_sky.raw");
    EXPECT_EQ(list->count(), 12);
    ShowSample("rl_gsm900_antenna_201pts.raw");
    EXPECT_FALSE(list->isVisible());
}

TEST_F(Widgets, ZoomGoesByDoubleClickDragAndMenu)
{
    const ChartSurface& box = State().VNABox;
    const float x1 = box.ScaleLeft + box.ScaleWidth * 0.25F, x2 = box.ScaleLeft + box.ScaleWidth * 0.5F;
    const float y1 = box.ScaleTop + box.ScaleHeight * 0.25F, y2 = box.ScaleTop + box.ScaleHeight * 0.75F;
    const float left = box.ScaleLeft;
    const QPoint corner = PixelOf(box, x1, y1);
    QTest::mousePress(&widget, Qt::LeftButton, {}, corner);
    EXPECT_EQ(widget.cursor().shape(), Qt::CrossCursor);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, corner);
    EXPECT_EQ(widget.cursor().shape(), Qt::ArrowCursor);
    QTest::mouseDClick(&widget, Qt::LeftButton, {}, corner);
    EXPECT_TRUE(State().ZoomActive);
    EXPECT_EQ(widget.cursor().shape(), Qt::CrossCursor);
    Drag(corner, PixelOf(box, x2, y2));
    EXPECT_NEAR(static_cast<double>(box.ScaleLeft), static_cast<double>(x1), 1);
    EXPECT_NEAR(static_cast<double>(box.ScaleLeft + box.ScaleWidth), static_cast<double>(x2), 1);

    WhenOpen<QMenu>([](QMenu& menu) {
        auto* undo = menu.findChild<QAction*>("menuUndoZoom");
        ASSERT_NE(undo, nullptr);
        EXPECT_TRUE(undo->isEnabled());
        menu.setActiveAction(undo);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    QTest::mousePress(&widget, Qt::RightButton, {}, corner);
    EXPECT_EQ(box.ScaleLeft, left);
    EXPECT_FALSE(State().ZoomActive);
    EXPECT_EQ(State().Captured, nullptr) << "the menu took the release";
}

TEST_F(Widgets, MenuShowsItsChecksAndOpensByKey)
{
    widget.Plot().MarkerOn(2);
    QStringList checked, captions;
    WhenOpen<QMenu>([&](QMenu& menu) {
        for (const QAction* action : menu.findChildren<QAction*>()) {
            captions.append(action->text());
            if (action->isChecked())
                checked.append(action->text());
        }
        menu.close();
    });
    widget.setFocus();
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {10, 10}, widget.mapToGlobal(QPoint(10, 10)));
    QApplication::sendEvent(&widget, &key);
    EXPECT_TRUE(captions.contains("Copy to Clipboard"));
    EXPECT_FALSE(captions.contains("Slot Mode"));
    EXPECT_EQ(checked, QStringList({"Marker 3", "Show Marker Values"}));
    widget.setAllowPopupMenu(false);
    QApplication::sendEvent(&widget, &key); // hangs in the menu when one opens
}

TEST_F(Widgets, HostHearsOfPropertiesKeysAndMarkers)
{
    QSignalSpy colour(&widget, &PlotWidget::BackColorChanged),
        style(&widget, &PlotWidget::BorderStyleChanged), params(&widget, &PlotWidget::ShowParamsChanged),
        scale(&widget, &PlotWidget::AutoScaleYChanged), keys(&widget, &PlotWidget::KeyDown),
        characters(&widget, &PlotWidget::KeyPress), marker(&widget, &PlotWidget::MarkerChanged),
        down(&widget, &PlotWidget::MouseDown);
    widget.setProperty("BackColor", QColor(1, 2, 3));
    widget.setProperty("BorderStyle", 2);
    widget.setProperty("ShowParams", true);
    widget.setProperty("AutoScaleY", true);
    EXPECT_EQ(widget.Plot().BackColor(), RGB(1, 2, 3));
    EXPECT_EQ(widget.Plot().BorderStyle(), MyBorderStyles::pbRaised);
    EXPECT_EQ(colour.size() + style.size() + params.size() + scale.size(), 4);
    QTest::keyClick(&widget, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&widget, Qt::Key_A);
    ASSERT_EQ(keys.size(), 3) << "the shift key is one, too";
    EXPECT_EQ(keys[1], QVariantList({39, 1}));
    ASSERT_EQ(characters.size(), 1);
    EXPECT_EQ(characters[0][0], 'a');
    widget.Plot().MarkerOn(4);
    ASSERT_EQ(marker.size(), 1);
    EXPECT_EQ(marker[0], QVariantList({4, true}));
    // With the pane the frame leaves the control's own surface free at the right edge.
    widget.Relayout();
    QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.width() - 1, widget.height() - 1});
    EXPECT_EQ(down.size(), 1);
}

TEST_F(Widgets, HostMayEndOrFailTheWidgetInAnEvent)
{
    QObject::connect(&widget, &PlotWidget::MarkerChanged, &widget,
                     [] { throw HostFault(FaultKind::Range, "the host's own"); });
    EXPECT_THROW(widget.Plot().MarkerOn(0), HostFault);
    widget.disconnect();
    EXPECT_TRUE(widget.Plot().MarkerState(0));
    Painted();
    QObject::connect(&widget, &PlotWidget::MarkerChanged, qApp, [this] { owner.reset(); });
    owner->Plot().MarkerOn(3);
    EXPECT_EQ(owner, nullptr);

    owner = std::make_unique<PlotWidget>();
    QObject::connect(owner.get(), &PlotWidget::AutoScaleYChanged, qApp, [this] { owner.reset(); });
    owner->ChooseMenuItem("menuAutoScale");
    ASSERT_NE(owner, nullptr) << "first the control's own work";
    QTest::qWait(10);
    EXPECT_EQ(owner, nullptr);
}

TEST_F(Widgets, SentenceTellsTheTraceToScreenReaders)
{
    widget.Plot().MarkerOn(0);
    QTest::qWait(300);
    const QString sentence = widget.accessibleDescription();
    EXPECT_TRUE(sentence.startsWith("RL Frequency \"Tower\", 201 points from ")) << sentence.toStdString();
    EXPECT_TRUE(sentence.contains("marker 1 at ")) << sentence.toStdString();
    EXPECT_FALSE(widget.accessibleName().isEmpty());
    ShowSample("iden_demod_noisy.raw");
    QTest::qWait(300);
    EXPECT_TRUE(widget.accessibleDescription().contains(" from -2680 to 2768"))
        << "the span, whatever its order";
}

} // namespace
} // namespace Traces
