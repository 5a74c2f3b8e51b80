#include "apps/viewer/TraceFolder.h"

#include "control/ModeTable.h"

#include <QDir>
#include <QFileInfo>

namespace Traces::Viewer {

QStringList TracePatterns()
{
    QStringList patterns = {QStringLiteral("*.raw")};
    for (const FileKind& kind : AllFamilies.Files)
        patterns.append(
            QStringLiteral("*.") +
            QString::fromLatin1(kind.Extension.data(), static_cast<int>(kind.Extension.size())).toLower());
    return patterns;
}

QStringList TracesIn(const QString& folder)
{
    return QDir(folder).entryList(TracePatterns(), QDir::Files | QDir::Readable,
                                  QDir::Name | QDir::IgnoreCase);
}

bool TraceFolder::ShowFile(const QString& path)
{
    const QFileInfo file(path);
    const QString name = file.fileName();
    const bool listed = file.absolutePath() != folder || !files.contains(name);
    if (listed) {
        folder = file.absolutePath();
        files = TracesIn(folder);
        // A trace may be called anything.
        if (!files.contains(name))
            files.append(name);
    }
    place = static_cast<int>(files.indexOf(name));
    return listed;
}

QString TraceFolder::File(int wanted) const
{
    return wanted >= 0 && wanted < Count() ? QDir(folder).filePath(files[wanted]) : QString();
}

} // namespace Traces::Viewer
