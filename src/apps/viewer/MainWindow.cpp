#include "apps/viewer/MainWindow.h"

#include "chart/ChartMouse.h"
#include "chart/Markers.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/ModeTable.h"
#include "control/TraceContent.h"
#include "formats/Files.h"
#include "formats/HostFault.h"
#include "formats/LibraryValues.h"
#include "formats/Text.h"
#include "formats/TraceMode.h"
#include "output/Svg.h"
#include "qt/QtPictures.h"
#include "qt/widgets/PlotWidget.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <functional>
#include <span>

namespace Traces::Viewer {

namespace {

constexpr int MostRecent = 10;

QString ScreenText(std::string_view text)
{
    return QString::fromStdString(Utf8FromAnsi(text));
}

std::string FileName(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

/// A trace shown out of sight first, so that one whose numbers make no curve changes nothing.
/// The thread's library values, which decoding writes, are those of the trace on show again afterwards.
struct Trial {
    HeadlessPlatform Platform;
    Plot Control{Platform};
    QString Problem;

    explicit Trial(const QString& path)
    {
        const auto read = ReadWholeFile(FileName(path));
        Problem = read ? ScreenText(ContentProblem(AllFamilies, *read)) : QObject::tr("can't be read");
        if (!Problem.isEmpty())
            return;
        Content = *read;
        const LibraryValues shown = Library();
        try {
            Control.Clear(); // the demonstration curve
            ShowContent(Control.Instance(), Content, {});
        } catch (const HostFault& fault) {
            Problem = QObject::tr("can't be shown: %1").arg(QString::fromUtf8(fault.what()));
        }
        Library() = shown;
    }

    std::string Content;
};

/// Shows the sub view that another control of the same mode shows.
void ShowViewOf(Control& control, const Control& other)
{
    const ModeRow* row = CurrentRow(other);
    for (const FamilyMenuItem& item : row != nullptr ? row->Menu.Items : std::span<const FamilyMenuItem>())
        if (!item.View.empty() && item.Checked(other))
            return item.Run(control);
}

/// The words of a fault or a problem behind a file's name.
QString Sentence(const QString& path, const QString& problem)
{
    return QFileInfo(path).fileName() + QLatin1Char(' ') + problem + QLatin1Char('.');
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), chart(new PlotWidget(this)), files(new QListWidget(this)), trace(new QLabel(this)),
      counts(new QLabel(this))
{
    setWindowTitle(tr("Traces"));
    setAcceptDrops(true);
    chart->setObjectName(QStringLiteral("chart"));
    chart->Plot().Clear(); // the demonstration curve is none of the user's
    setCentralWidget(chart);
    QToolBar* bar = addToolBar(tr("Actions"));
    bar->setObjectName(QStringLiteral("actions"));
    statusBar()->addWidget(trace, 1);
    statusBar()->addPermanentWidget(counts);
    trace->setText(tr("Open a trace, or drop one here."));
    QSettings settings;
    recent = settings.value(QStringLiteral("recent")).toStringList();
    MakeFileMenu();
    MakeTraceMenu();
    MakeViewMenu();
    MakeFolderList();
    MakeHelpMenu();
    ListRecent();
    for (QAction* action : traceActions)
        action->setEnabled(false);
    connect(chart, &PlotWidget::Faulted, this,
            [this](const QString& what) { statusBar()->showMessage(what); });
    if (!restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray()))
        resize((chart->sizeHint() * 1.5).boundedTo(screen()->availableSize() * 0.9));
    restoreState(settings.value(QStringLiteral("state")).toByteArray());
    summary->setChecked(settings.value(QStringLiteral("summary")).toBool());
}

QAction* MainWindow::Add(QMenu* menu, const QString& text, const QKeySequence& key, const QString& tip,
                         const std::function<void()>& run)
{
    QAction* action = menu->addAction(text);
    action->setShortcut(key);
    const QString shown = key.isEmpty() ? tip
                                        : tip + QStringLiteral(" (") +
                                              key.toString(QKeySequence::NativeText) + QLatin1Char(')');
    action->setToolTip(shown);
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, [this, run] { Guarded(run); });
    menu->setToolTipsVisible(true);
    return action;
}

void MainWindow::MakeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    auto* bar = findChild<QToolBar*>();
    bar->addAction(Add(menu, tr("&Open..."), QKeySequence::Open, tr("Show a trace from a file"),
                       [this] { AskForFile(); }));
    recentMenu = menu->addMenu(tr("Open &recent"));
    QAction* overlay = Add(menu, tr("O&verlay..."), QKeySequence(tr("Ctrl+L")),
                           tr("Lay another trace's curve over this one"), [this] { AskForOverlay(); });
    menu->addSeparator();
    previous =
        Add(menu, tr("Pre&vious trace"), QKeySequence(tr("Alt+Left")),
            tr("Show the trace before this one in its folder"), [this] { ShowPlace(folder.Place() - 1); });
    next = Add(menu, tr("&Next trace"), QKeySequence(tr("Alt+Right")),
               tr("Show the trace after this one in its folder"), [this] { ShowPlace(folder.Place() + 1); });
    // Up and down step, too: left and right are the markers' in a chart of codes.
    previous->setShortcuts(
        {QKeySequence(Qt::ALT | Qt::Key_Left), QKeySequence(Qt::Key_Up), QKeySequence(Qt::Key_PageUp)});
    next->setShortcuts(
        {QKeySequence(Qt::ALT | Qt::Key_Right), QKeySequence(Qt::Key_Down), QKeySequence(Qt::Key_PageDown)});
    menu->addSeparator();
    QAction* save = Add(menu, tr("&Save as text..."), QKeySequence::Save,
                        tr("Save the trace as a text trace file"), [this] { Save(); });
    QAction* picture = Add(menu, tr("&Export picture..."), QKeySequence(tr("Ctrl+E")),
                           tr("Write the picture as PNG, SVG or PDF"), [this] { AskForPicture(); });
    menu->addSeparator();
    QAction* print = Add(menu, tr("&Print..."), QKeySequence::Print, tr("Print the picture on a page"),
                         [this] { chart->Print(); });
    QAction* preview = Add(menu, tr("Print pre&view..."), QKeySequence(tr("Ctrl+Shift+P")),
                           tr("See the printed page first"), [this] { chart->PrintPreview(); });
    menu->addSeparator();
    Add(menu, tr("&Quit"), QKeySequence(tr("Ctrl+Q")), tr("Close the viewer"), [this] { close(); });
    for (QAction* action : {overlay, previous, next, save, picture, print})
        bar->addAction(action);
    traceActions += {overlay, previous, next, save, picture, print, preview};
}

void MainWindow::MakeTraceMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Trace"));
    const auto choose = [this](const char* item) { return [this, item] { chart->ChooseMenuItem(item); }; };
    traceActions += {
        Add(menu, tr("&Copy"), QKeySequence::Copy, tr("Copy parameters and picture to the clipboard"),
            [this] {
                const bool copied = chart->Plot().Copy2Clipboard();
                statusBar()->showMessage(copied ? tr("Copied.") : tr("The clipboard didn't take it."));
            }),
        Add(menu, tr("&Sub-title..."), QKeySequence(tr("F2")), tr("Change the title of the plot"),
            choose("menuSubTitle")),
        Add(menu, tr("&Information..."), QKeySequence(tr("Ctrl+I")), tr("List the trace's parameters"),
            choose("menuTraceInfo")),
        Add(menu, tr("&GPS coordinates..."), QKeySequence(tr("Ctrl+G")),
            tr("Tell where the trace was taken, and copy it"), choose("menuGPSCoords")),
    };
}

void MainWindow::MakeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    menu->setObjectName(QStringLiteral("view"));
    auto* bar = findChild<QToolBar*>();
    QAction* scale = Add(menu, tr("&Autoscale"), QKeySequence(tr("Ctrl+A")),
                         tr("Fit the levels' axis to the curve, or go back to the trace's own"),
                         [this] { chart->ChooseMenuItem("menuAutoScale"); });
    QAction* undo = Add(menu, tr("&Undo zoom"), QKeySequence(tr("Ctrl+0")), tr("Show the whole curve again"),
                        [this] { chart->ChooseMenuItem("menuUndoZoom"); });
    bar->addActions({scale, undo});
    constexpr float closer = 0.5F, farther = 2;
    traceActions += {scale, undo,
                     Add(menu, tr("Zoom &in"), QKeySequence::ZoomIn, tr("Show the middle half of the chart"),
                         [this] { ZoomAboutMiddle(chart->Plot().Instance(), closer); }),
                     Add(menu, tr("Zoom &out"), QKeySequence::ZoomOut, tr("Show twice as much of the chart"),
                         [this] { ZoomAboutMiddle(chart->Plot().Instance(), farther); })};
    menu->addSeparator();
    for (std::int16_t k = 0; k < static_cast<std::int16_t>(MarkerCount); ++k) {
        QAction* marker = Add(menu, tr("Marker &%1").arg(k + 1), QKeySequence(Qt::CTRL | (Qt::Key_1 + k)),
                              tr("Switch marker %1 on or off").arg(k + 1), [this, k] {
                                  Control& control = chart->Plot().Instance();
                                  MarkerSet* markers = FamilyMarkers(control);
                                  if (markers == nullptr)
                                      return;
                                  markers->SelectedMarker = k;
                                  SetMarkerState(control, k, !markers->MarkerOn[static_cast<std::size_t>(k)]);
                              });
        traceActions += marker;
    }
    const auto step = [this](int keyCode) {
        return [this, keyCode] {
            Control& control = chart->Plot().Instance();
            if (MarkerSet* markers = FamilyMarkers(control))
                StepMarker(control, *markers, keyCode);
        };
    };
    traceActions += Add(menu, tr("Marker to the &left"), QKeySequence(tr("Ctrl+Left")),
                        tr("Move the marker that was switched or grabbed last"), step(KeyCodes::Left));
    traceActions += Add(menu, tr("Marker to the &right"), QKeySequence(tr("Ctrl+Right")),
                        tr("Move the marker that was switched or grabbed last"), step(KeyCodes::Right));
    traceActions += Add(menu, tr("&Clear markers"), QKeySequence(tr("Ctrl+Shift+M")),
                        tr("Switch all markers off"), [this] { chart->Plot().ClearMarkers(); });
    menu->addSeparator();
    summary = menu->addAction(tr("&Summary"));
    summary->setCheckable(true);
    summary->setShortcut(QKeySequence(tr("Ctrl+M")));
    summary->setToolTip(tr("Show the summary beside the chart (Ctrl+M)"));
    summary->setStatusTip(tr("Show the summary beside the chart"));
    connect(summary, &QAction::toggled, this, &MainWindow::ShowSummary);
    bar->addAction(summary);
}

void MainWindow::MakeFolderList()
{
    files->setObjectName(QStringLiteral("files"));
    files->setAccessibleName(tr("Traces of the folder"));
    files->setUniformItemSizes(true);
    connect(files, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0 && row != folder.Place())
            ShowPlace(row);
    });
    auto* dock = new QDockWidget(tr("Folder"), this);
    dock->setObjectName(QStringLiteral("folder"));
    dock->setWidget(files);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    QAction* shown = dock->toggleViewAction();
    shown->setShortcut(QKeySequence(tr("Ctrl+D")));
    shown->setToolTip(tr("Show the list of the folder's traces (Ctrl+D)"));
    shown->setStatusTip(tr("Show the list of the folder's traces"));
    menuBar()->findChild<QMenu*>(QStringLiteral("view"))->addAction(shown);
}

void MainWindow::MakeHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    Add(menu, tr("&About Traces"), QKeySequence::HelpContents, tr("What this program is"),
        [this] { About(); });
}

bool MainWindow::OpenFile(const QString& path)
{
    if (QFileInfo(path).isDir())
        return OpenFolder(path);
    const Trial trial(path);
    if (!trial.Problem.isEmpty()) {
        Complain(path, trial.Problem);
        return false;
    }
    Control& control = chart->Plot().Instance();
    chart->Plot().Clear(); // what was laid over the trace before goes with it
    control.ZoomActive = false;
    overlays = 0;
    ShowContent(control, trial.Content, AnsiFromUtf8(QFileInfo(path).completeBaseName().toStdString()));
    ListFolderOf(path);
    Remember(path);
    ShowState(path);
    return true;
}

bool MainWindow::OpenFolder(const QString& path)
{
    const QStringList traces = TracesIn(path);
    if (traces.isEmpty()) {
        Complain(QDir(path).absolutePath(), tr("holds no traces"));
        return false;
    }
    ListFolderOf(QDir(path).filePath(traces.first()));
    return ShowPlace(0);
}

bool MainWindow::OverlayFile(const QString& path)
{
    Trial trial(path);
    QString problem = trial.Problem;
    Control& other = trial.Control.Instance();
    const TraceSlot& curve = other.TraceSlots[0];
    if (problem.isEmpty() && other.CurrentMode != chart->Plot().Instance().CurrentMode)
        problem = tr("is another kind of measurement");
    if (problem.isEmpty())
        Guarded([&] { ShowViewOf(other, chart->Plot().Instance()); });
    if (problem.isEmpty() && curve.Length < 1)
        problem = tr("has no curve to lay over this one");
    if (!problem.isEmpty()) {
        Complain(path, problem);
        return false;
    }
    Plot& plot = chart->Plot();
    overlays = overlays % static_cast<int>(LiveSlots - 1) + 1;
    plot.SetIndex(static_cast<std::int16_t>(overlays));
    const bool told = Guarded([&] { plot.PlotCurve(curve.Length, curve.X, curve.Y); });
    plot.SetIndex(0);
    if (told)
        statusBar()->showMessage(tr("%1 laid over").arg(QFileInfo(path).fileName()));
    return told;
}

bool MainWindow::ExportPicture(const QString& path)
{
    const Control& control = chart->Plot().Instance();
    const QString form = QFileInfo(path).suffix().toLower();
    QtPictures pictures;
    std::string bytes;
    QString problem;
    if (form == QLatin1String("svg"))
        bytes = SvgPicture(control);
    else if (form == QLatin1String("pdf"))
        bytes = pictures.Pdf(control);
    else if (form == QLatin1String("png"))
        bytes = pictures.Png(control, chart->devicePixelRatioF());
    else
        problem = tr("has no extension that tells a picture's form: .png, .svg or .pdf");
    if (problem.isEmpty() && bytes.empty())
        problem = tr("can't be drawn at this size");
    if (!problem.isEmpty()) {
        Complain(path, problem);
        return false;
    }
    const bool written = ReplaceFile(FileName(path), bytes, [](const std::string&) {});
    if (written)
        statusBar()->showMessage(tr("Written to %1").arg(path));
    else
        Complain(path, tr("can't be written"));
    return written;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    bool first = true;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (!url.isLocalFile())
            continue;
        // The first is shown, the others of its kind are laid over it.
        first ? OpenFile(url.toLocalFile()) : OverlayFile(url.toLocalFile());
        first = false;
    }
    event->acceptProposedAction();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QSettings settings;
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("state"), saveState());
    settings.setValue(QStringLiteral("summary"), summary->isChecked());
    settings.setValue(QStringLiteral("recent"), recent);
    event->accept();
}

QString MainWindow::StartFolder() const
{
    return recent.isEmpty() ? QString() : QFileInfo(recent.first()).absolutePath();
}

void MainWindow::AskForFile()
{
    const QString filter =
        tr("Traces (%1)").arg(TracePatterns().join(QLatin1Char(' '))) + tr(";;All files (*)");
    const QString path = QFileDialog::getOpenFileName(this, tr("Open a trace"), StartFolder(), filter);
    if (!path.isEmpty())
        OpenFile(path);
}

void MainWindow::AskForOverlay()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Lay a trace over this one"), StartFolder());
    if (!path.isEmpty())
        OverlayFile(path);
}

void MainWindow::AskForPicture()
{
    const QString proposal = ScreenText(chart->Plot().TraceName()) + QStringLiteral(".png");
    const QString path = QFileDialog::getSaveFileName(this, tr("Export the picture"), proposal,
                                                      tr("Pictures (*.png *.svg *.pdf)"));
    if (!path.isEmpty())
        ExportPicture(path);
}

void MainWindow::Save()
{
    std::string name;
    if (chart->Plot().SaveTrace(name))
        statusBar()->showMessage(tr("Saved to %1").arg(QFile::decodeName(name.c_str())));
}

bool MainWindow::ShowPlace(int place)
{
    const QString path = folder.File(place);
    if (path.isEmpty())
        return false;
    const bool shown = OpenFile(path);
    // The next step goes on from a trace that couldn't be shown.
    ListFolderOf(path);
    ShowSteps();
    return shown;
}

void MainWindow::ListFolderOf(const QString& path)
{
    const QSignalBlocker quiet(files);
    if (folder.ShowFile(path)) {
        files->clear();
        files->addItems(folder.Files());
    }
    files->setCurrentRow(folder.Place());
}

bool MainWindow::Guarded(const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const HostFault& fault) {
        statusBar()->showMessage(QString::fromUtf8(fault.what()));
        return false;
    }
}

void MainWindow::ShowSteps()
{
    previous->setEnabled(folder.Place() > 0);
    next->setEnabled(folder.Place() + 1 < folder.Count());
    counts->setText(tr("%1 of %2").arg(folder.Place() + 1).arg(folder.Count()));
}

void MainWindow::ShowSummary(bool shown)
{
    chart->setShowParams(shown);
    chart->Relayout();
}

void MainWindow::About()
{
    QMessageBox::about(this, tr("About Traces"),
                       tr("<h3>Traces %1</h3><p>Shows the measurements of handheld RF and line test "
                          "instruments: antenna and cable sweeps, spectra, power, code domains.</p>"
                          "<p>Drag a marker by its line. Double click the chart, then drag, to zoom. A "
                          "right click opens the chart's menu.</p>")
                           .arg(QApplication::applicationVersion()));
}

void MainWindow::Remember(const QString& path)
{
    const QString whole = QFileInfo(path).absoluteFilePath();
    recent.removeAll(whole);
    recent.prepend(whole);
    recent = recent.mid(0, MostRecent);
    ListRecent();
}

void MainWindow::ListRecent()
{
    recentMenu->clear();
    recentMenu->setToolTipsVisible(true);
    recentMenu->setEnabled(!recent.isEmpty());
    for (const QString& path : recent) {
        QAction* action = recentMenu->addAction(QFileInfo(path).fileName());
        action->setToolTip(path);
        connect(action, &QAction::triggered, this, [this, path] { OpenFile(path); });
    }
}

void MainWindow::ShowState(const QString& path)
{
    const Control& control = chart->Plot().Instance();
    for (QAction* action : traceActions)
        action->setEnabled(true);
    ShowSteps();
    setWindowTitle(tr("%1 - Traces").arg(QFileInfo(path).fileName()));
    setWindowFilePath(path);
    const TraceHeader& header = control.Header;
    const auto length = control.TraceSlots[0].Length;
    const std::string points = length > 0 ? ", " + std::to_string(length) + " points" : std::string();
    trace->setText(ScreenText(ModeName(header.Mode) + ", " + std::string(TrimBlanks(header.Date)) + " " +
                              std::string(TrimBlanks(header.Time)) + points));
    statusBar()->clearMessage();
}

void MainWindow::Complain(const QString& path, const QString& problem)
{
    QMessageBox::warning(this, tr("Traces"), Sentence(path, problem));
}

} // namespace Traces::Viewer
