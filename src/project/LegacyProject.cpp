#include "project/LegacyProject.h"

#include "shared/Names.h"

#include <QDir>
#include <QFileInfo>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace morvane {

namespace {

bool isReadableFolder(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() && info.isReadable();
}

} // namespace

std::optional<QStringList> legacyProjectImages(const QString &projPath, const QString &projContntDirPath)
{
    if (projPath.isEmpty() || projContntDirPath.isEmpty()) {
        qDebug("Project path or project content path is empty: '%s' - '%s'", qUtf8Printable(projPath),
               qUtf8Printable(projContntDirPath));
        return {};
    }
    QString source = projContntDirPath + "camera/"_L1;
    if (!isReadableFolder(source))
        source = projContntDirPath + "web/"_L1;
    if (!isReadableFolder(source)) {
        qDebug("Convert legacy project file: Cannot find 'camera' or 'web' dirs at '%s'",
               qUtf8Printable(projContntDirPath));
        return {};
    }
    QStringList paths;
    const QStringList patterns = importImageFilters.split(u' ', Qt::SkipEmptyParts);
    const QStringList names = QDir(source).entryList(patterns, QDir::Files, QDir::Name);
    for (const QString &name : names)
        paths.append(source + name);
    return paths;
}

} // namespace morvane
