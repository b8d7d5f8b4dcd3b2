#include "project/ProjectCleanup.h"

#include "project/PoolProgress.h"
#include "shared/Names.h"
#include "shared/TimeText.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

bool removeFile(const QString &path)
{
    QFile file(path);
    if (file.remove())
        return true;
    qDebug().noquote() << "Failed to remove file" << path << file.errorString();
    return false;
}

void cleanFolder(PoolProgress &progress, const QString &path, const QString &label, const QSet<QString> &keep,
                 const QDateTime &asOf, ProjectCleanup::Outcome &outcome)
{
    const QDir folder(path);
    if (path.isEmpty() || !folder.exists())
        return;
    QElapsedTimer time;
    time.start();
    const QFileInfoList files = folder.entryInfoList({u"*.*"_s}, QDir::Files);
    progress.begin(label.arg(folder.dirName()), int(files.size()));
    int removed = 0;
    for (const QFileInfo &file : files) {
        if (progress.isCancelled())
            break;
        progress.step();
        if (keep.contains(file.fileName()) || file.lastModified() > asOf)
            continue;
        if (removeFile(file.filePath()))
            ++removed;
        else
            ++outcome.failed;
    }
    outcome.removed += removed;
    qDebug("Removed %d files at '%s' dir in %s", removed, qUtf8Printable(folder.dirName()),
           qUtf8Printable(morvane::millisecondsToHHMMSS(int(time.elapsed()))));
}

} // namespace

ProjectCleanup::Keep ProjectCleanup::Keep::of(const QList<ProjectFrame> &frames,
                                              const QString &backgroundImage, const QDateTime &now)
{
    Keep keep;
    for (const ProjectFrame &frame : frames) {
        keep.captured.insert(frame.capFull);
        keep.reference.insert(frame.refFull);
    }
    keep.background.insert(backgroundImage);
    keep.asOf = now;
    return keep;
}

ProjectCleanup::Outcome ProjectCleanup::run(PoolProgress &progress, Folders folders, const Keep &keep,
                                            const ProjectTree &tree)
{
    const QString label = tr("Cleanup project dir '%1'");
    Outcome outcome;
    const auto clean = [&](Folder folder, const QString &path, const QSet<QString> &names) {
        if (folders.testFlag(folder) && !progress.isCancelled())
            cleanFolder(progress, path, label, names, keep.asOf, outcome);
    };
    clean(Captured, tree.capFullDirPath, keep.captured);
    clean(Reference, tree.refFullDirPath, keep.reference);
    clean(Extracted, tree.extractedDirPath, {});
    clean(Cache, tree.cacheDirPath, {});
    clean(Background, tree.backgroundDirPath, keep.background);
    return outcome;
}

bool ProjectCleanup::sharesContentFolder(const ProjectTree &tree)
{
    if (tree.projPath.isEmpty())
        return false;
    const QFileInfo own(tree.projPath);
    const QStringList patterns{u"*."_s + morvane::projectExtension,
                               u"*."_s + morvane::legacyProjectExtension};
    const QFileInfoList projects = own.absoluteDir().entryInfoList(patterns, QDir::Files);
    for (const QFileInfo &project : projects) {
        if (project.baseName() == own.baseName() && project.fileName() != own.fileName())
            return true;
    }
    return false;
}
