// The viewer's window: one control, and the actions that a user has on it.
#pragma once

#include "apps/viewer/TraceFolder.h"

#include <QMainWindow>
#include <QStringList>

#include <functional>

class QAction;
class QLabel;
class QListWidget;
class QMenu;

namespace Traces {
class PlotWidget;
}

namespace Traces::Viewer {

class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);

    PlotWidget& Chart() { return *chart; }

    /// Shows a trace, or a folder's first. False, with a message and the trace on show left alone, when it
    /// can't be shown.
    bool OpenFile(const QString& path);

    /// Lays another trace's curve over the one on show, in the next free of five places. False, with a
    /// message, when it has none.
    bool OverlayFile(const QString& path);

    /// Writes the picture in the form that the name's extension tells: PNG, SVG or PDF.
    bool ExportPicture(const QString& path);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// An action of a menu: text, shortcut and tool tip, and on the tool bar where it is to be.
    QAction* Add(QMenu* menu, const QString& text, const QKeySequence& key, const QString& tip,
                 const std::function<void()>& run);

    void MakeFileMenu();
    void MakeTraceMenu();
    void MakeViewMenu();
    void MakeHelpMenu();
    void AskForFile();
    void AskForOverlay();
    void AskForPicture();
    void Save();
    void MakeFolderList();
    bool OpenFolder(const QString& path);

    /// Makes a file the one that the list of its folder stands on.
    void ListFolderOf(const QString& path);
    bool ShowPlace(int place);
    void ShowSteps();

    /// Runs what a user wants of the control. False at a fault of the trace's own numbers, which the status
    /// line tells.
    bool Guarded(const std::function<void()>& action);
    void ShowSummary(bool shown);
    void About();
    void Remember(const QString& path);
    void ListRecent();
    void ShowState(const QString& path);
    void Complain(const QString& path, const QString& problem);
    QString StartFolder() const;

    PlotWidget* chart;
    TraceFolder folder;
    QMenu* recentMenu = nullptr;
    QStringList recent;
    QList<QAction*> traceActions; ///< that need a trace on show
    QAction* previous = nullptr;
    QAction* next = nullptr;
    QAction* summary = nullptr;
    QListWidget* files; ///< of the folder, in a window at the side
    QLabel* trace;      ///< what is on show, in the status line
    QLabel* counts;     ///< which of the folder's traces it is
    int overlays = 0;
};

} // namespace Traces::Viewer
