#include "project/ProjectPathCheck.h"

#include "shared/Names.h"

#include <QFileInfo>

QString ProjectPathCheck::contentFolder(const QString &projPath)
{
    const QFileInfo file(projPath);
    return file.absolutePath() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral("_files");
}

ProjectPathCheck::Fault ProjectPathCheck::fault(const QString &projPath)
{
    const QFileInfo file(projPath);
    if (!file.exists())
        return Fault::NoFile;
    if (!file.isFile())
        return Fault::NotAFile;
    if (!file.isReadable())
        return Fault::NotReadable;
    const QString suffix = file.suffix();
    if (suffix != morvane::projectExtension && suffix != morvane::legacyProjectExtension)
        return Fault::Suffix;
    const QFileInfo folder(contentFolder(projPath));
    if (!folder.isDir())
        return Fault::NoFolder;
    return Fault::None;
}

QString ProjectPathCheck::problem(const QString &projPath)
{
    switch (fault(projPath)) {
        case Fault::NoFile:
            return tr("Project file '%1' does not exists").arg(projPath);
        case Fault::NotAFile:
            return tr("Project '%1' is not a file").arg(projPath);
        case Fault::NotReadable:
            return tr("Project file '%1' is not readable").arg(projPath);
        case Fault::Suffix:
            return tr("Project file '%1' has unrecognized suffix '%2'")
                .arg(projPath, QFileInfo(projPath).suffix());
        case Fault::NoFolder:
            return tr("Cannot find project folder '%1'").arg(contentFolder(projPath));
        case Fault::None:
            break;
    }
    return {};
}

QString ProjectPathCheck::advice(const QString &projPath)
{
    switch (fault(projPath)) {
        case Fault::NoFile:
            return adviceForMissing();
        case Fault::NotAFile:
        case Fault::Suffix:
            return tr("Choose a file whose name ends with .%1").arg(morvane::projectExtension);
        case Fault::NotReadable:
            return tr("Allow yourself to read the file, or copy it and its folder to a place of your own");
        case Fault::NoFolder:
            return tr(
                "The pictures lie in that folder. Put it back beside the project file and open the project "
                "again");
        case Fault::None:
            break;
    }
    return {};
}

QString ProjectPathCheck::adviceForMissing()
{
    return tr("Look whether its disk is connected and whether it was moved, and open the project again");
}

bool ProjectPathCheck::isOpenableFile(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() && file.isFile() && file.isReadable() && !file.isSymLink();
}
