#include "project/ProjectPathCheck.h"

#include "shared/Names.h"

#include <QFileInfo>

QString ProjectPathCheck::contentFolder(const QString &projPath)
{
    const QFileInfo file(projPath);
    return file.absolutePath() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral("_files");
}

QString ProjectPathCheck::problem(const QString &projPath)
{
    const QFileInfo file(projPath);
    if (!file.exists())
        return tr("Project file '%1' does not exists").arg(projPath);
    if (!file.isFile())
        return tr("Project '%1' is not a file").arg(projPath);
    if (!file.isReadable())
        return tr("Project file '%1' is not readable").arg(projPath);
    const QString suffix = file.suffix();
    if (suffix != morvane::projectExtension && suffix != morvane::legacyProjectExtension)
        return tr("Project file '%1' has unrecognized suffix '%2'").arg(projPath, suffix);
    const QFileInfo folder(contentFolder(projPath));
    if (!folder.isDir())
        return tr("Cannot find project folder '%1'").arg(folder.filePath());
    if (!folder.exists())
        return tr("Project folder '%1' does not exist").arg(folder.filePath());
    return {};
}

bool ProjectPathCheck::isOpenableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && file.isFile() && file.isReadable() && !file.isSymLink();
}
