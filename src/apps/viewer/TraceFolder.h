// The traces of a folder in the order of their names, and which of them is on show: what the arrow keys step
// through.
#pragma once

#include <QString>
#include <QStringList>

namespace Traces::Viewer {

/// Name patterns of raw traces and of all text trace files, "*.raw" first.
QStringList TracePatterns();

/// The names of a folder's traces, as their extensions tell, in order.
QStringList TracesIn(const QString& folder);

class TraceFolder {
public:
    /// Makes a file the one on show. True when its folder was listed for that: the same one is listed again
    /// only when the file isn't in the list.
    bool ShowFile(const QString& path);

    /// Names without the folder.
    const QStringList& Files() const { return files; }

    /// The whole name of one; empty beyond both ends.
    QString File(int wanted) const;

    int Place() const { return place; }
    int Count() const { return static_cast<int>(files.size()); }

private:
    QString folder;
    QStringList files;
    int place = -1;
};

} // namespace Traces::Viewer
