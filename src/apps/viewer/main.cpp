// traces-viewer [FILE...]: shows the first trace, or that of a folder, and lays the others over it.
#include "apps/viewer/MainWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("traces-viewer"));
    QApplication::setOrganizationName(QStringLiteral("Traces"));
    QApplication::setApplicationVersion(QStringLiteral(TRACES_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/traces-viewer.svg")));
    QGuiApplication::setDesktopFileName(QStringLiteral("traces-viewer"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows measurement traces."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("files"),
        QStringLiteral("The first trace, or a folder's first, is shown; the others are laid "
                       "over it."),
        QStringLiteral("[FILE...]"));
    parser.process(application);

    Traces::Viewer::MainWindow window;
    window.show();
    bool first = true;
    for (const QString& path : parser.positionalArguments()) {
        first ? window.OpenFile(path) : window.OverlayFile(path);
        first = false;
    }
    return QApplication::exec();
}
