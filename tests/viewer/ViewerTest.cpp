#include "apps/viewer/MainWindow.h"
#include "control/Control.h"
#include "formats/Files.h"
#include "qt/widgets/PlotWidget.h"
#include "support/TraceFiles.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace Traces::Viewer {
namespace {

class Viewing : public testing::Test {
protected:
    Testing::TemporaryFolder folder;
    std::unique_ptr<MainWindow> window;

    Viewing()
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(folder / "settings"));
        for (const char* name : {"cl_shorted_feeder_201pts.raw", "rl_gsm900_antenna_201pts.raw",
                                 "rl_open_101pts.raw", "swr_umts_antenna_401pts.raw"})
            std::filesystem::copy_file(std::string(TRACES_SAMPLES_FOLDER) + "/" + name, folder / name);
        Show();
    }

    void Show()
    {
        window = std::make_unique<MainWindow>();
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }

    QString Path(std::string_view name) { return QString::fromStdString(folder / name); }
    Control& State() { return window->Chart().Plot().Instance(); }

    /// Opens a file that can't be shown; what the user is told.
    QString Refusal(const QString& path)
    {
        QString told;
        QTimer::singleShot(50, window.get(), [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told = box->text();
                box->accept();
            }
        });
        EXPECT_FALSE(window->OpenFile(path));
        return told;
    }

    QAction* Action(const QString& text)
    {
        for (QAction* action : window->findChildren<QAction*>())
            if (action->text().remove('&') == text)
                return action;
        ADD_FAILURE() << text.toStdString();
        return nullptr;
    }
};

TEST_F(Viewing, ArrowKeysStepThroughTheFolder)
{
    ASSERT_TRUE(window->OpenFile(Path("rl_gsm900_antenna_201pts.raw")));
    auto* list = window->findChild<QListWidget*>("files");
    EXPECT_EQ(list->count(), 4);
    EXPECT_EQ(list->currentRow(), 1);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(State().Header.DataPoints, 101);
    Action("Next trace")->trigger();
    EXPECT_EQ(State().CurrentMode, 1);
    EXPECT_FALSE(Action("Next trace")->isEnabled());
    Action("Previous trace")->trigger();
    EXPECT_EQ(window->windowTitle(), "rl_open_101pts.raw - Traces");
    ASSERT_TRUE(window->OpenFile(Path(""))) << "a folder stands for its first trace";
    EXPECT_EQ(window->windowTitle(), "cl_shorted_feeder_201pts.raw - Traces");
    EXPECT_EQ(list->currentRow(), 0);
}

TEST_F(Viewing, FileThatIsNoneLeavesTheTraceOnShowAlone)
{
    ASSERT_TRUE(window->OpenFile(Path("rl_open_101pts.raw")));
    const QImage before = window->Chart().grab().toImage();
    ASSERT_TRUE(WriteWholeFile(folder / "letter.txt", "Dear Sir,\n"));
    ASSERT_TRUE(WriteWholeFile(folder / "empty.raw", ""));
    EXPECT_TRUE(Refusal(Path("letter.txt")).startsWith("letter.txt isn't a trace"));
    EXPECT_EQ(Refusal(Path("empty.raw")), "empty.raw is empty.");
    EXPECT_EQ(Refusal(Path("gone.raw")), "gone.raw can't be read.");
    ASSERT_TRUE(std::filesystem::create_directory(folder / "none"));
    EXPECT_EQ(Refusal(Path("none/")), "none holds no traces.");
    EXPECT_EQ(window->Chart().grab().toImage(), before);
    EXPECT_EQ(State().Header.DataPoints, 101);
}

TEST_F(Viewing, TraceWithoutACurveIsSteppedOverAndOverlaysEndWithTheirTrace)
{
    auto bytes = *ReadWholeFile(folder / "rl_open_101pts.raw");
    bytes[54] = bytes[55] = 0; // no points
    ASSERT_TRUE(WriteWholeFile(folder / "m_none.raw", bytes));
    ASSERT_TRUE(window->OpenFile(Path("cl_shorted_feeder_201pts.raw")));
    ASSERT_TRUE(window->OverlayFile(Path("cl_shorted_feeder_201pts.raw")));
    EXPECT_EQ(State().TraceSlots[1].Length, 201);
    EXPECT_NE(Refusal(Path("m_none.raw")), QString());
    EXPECT_EQ(State().TraceSlots[0].Length, 201) << "the trace before stays";
    EXPECT_EQ(State().TraceSlots[1].Length, 201);

    auto* files = window->findChild<QListWidget*>("files");
    QTimer::singleShot(100, window.get(), [] { QApplication::activeModalWidget()->close(); });
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_EQ(files->currentItem()->text(), "m_none.raw");
    QTest::keyClick(files, Qt::Key_Down);
    EXPECT_EQ(window->windowTitle(), "rl_gsm900_antenna_201pts.raw - Traces");
    EXPECT_EQ(State().TraceSlots[1].Length, 0) << "what was laid over went with its trace";
}

TEST_F(Viewing, DropShowsTheFirstAndLaysTheOthersOverIt)
{
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(Path("rl_gsm900_antenna_201pts.raw")),
                   QUrl::fromLocalFile(Path("rl_open_101pts.raw"))});
    QDragEnterEvent enter(QPoint(100, 100), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(100, 100), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(State().TraceSlots[0].Length, 201);
    EXPECT_EQ(State().TraceSlots[1].Length, 101);
    EXPECT_EQ(State().SetIndex, 0);
    ASSERT_TRUE(window->OpenFile(Path("rl_open_101pts.raw")));
    EXPECT_EQ(State().TraceSlots[1].Length, 0) << "another trace begins without overlays";
}

TEST_F(Viewing, PicturesAreExportedInTheFormOfTheirName)
{
    ASSERT_TRUE(window->OpenFile(Path("rl_gsm900_antenna_201pts.raw")));
    for (const auto& [name, begin] : {std::pair{"a.png", "\x89PNG"}, {"a.svg", "<svg"}, {"a.pdf", "%PDF"}}) {
        ASSERT_TRUE(window->ExportPicture(Path(name)));
        EXPECT_TRUE(ReadWholeFile(folder / name)->starts_with(begin)) << name;
    }
    Action("Copy")->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
}

TEST_F(Viewing, MarkersZoomAndSummaryGoByTheKeyboard)
{
    ASSERT_TRUE(window->OpenFile(Path("rl_gsm900_antenna_201pts.raw")));
    QApplication::setActiveWindow(window.get()); // no window manager does
    QTest::keyClick(&window->Chart(), Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(State().VNAMarkers.MarkerOn[1]);
    QTest::keyClick(&window->Chart(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(State().AutoScaleY);
    State().ZoomActive = true;
    QTest::keyClick(&window->Chart(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_FALSE(State().ZoomActive);
    QTest::keyClick(&window->Chart(), Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(State().ShowParams);
    EXPECT_EQ(State().Surface.ScaleWidth, 911);
}

TEST_F(Viewing, WindowAndRecentFilesAreRemembered)
{
    ASSERT_TRUE(window->OpenFile(Path("rl_open_101pts.raw")));
    window->resize(700, 610);
    const QSize size = window->size();
    window->close();
    Show();
    EXPECT_EQ(window->size(), size);
    Action("rl_open_101pts.raw")->trigger();
    EXPECT_EQ(State().Header.DataPoints, 101);
}

TEST_F(Viewing, EveryActionHasAToolTipAndMostHaveAShortcut)
{
    QStringList seen;
    for (const QAction* action : window->findChildren<QAction*>()) {
        if (action->isSeparator() || action->menu() != nullptr || action->text().isEmpty())
            continue;
        EXPECT_FALSE(action->toolTip().isEmpty()) << action->text().toStdString();
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_FALSE(seen.contains(key.toString())) << "twice: " << key.toString().toStdString();
            seen.append(key.toString());
        }
    }
    EXPECT_GE(seen.size(), 20);
}

} // namespace
} // namespace Traces::Viewer
