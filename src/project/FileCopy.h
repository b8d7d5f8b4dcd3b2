#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QCoreApplication>

class PoolProgress;

/// Copies the files of a project. Works on values, on any thread; failures are logged and counted, and the
/// run goes on with the next file.
class FileCopy
{
    Q_DECLARE_TR_FUNCTIONS(FileCopy)

public:
    /// Copies a file over whatever has the target's name. A file is never copied over itself: that is done
    /// already.
    static bool replace(const QString &from, const QString &to);

    /// The folders of captured and reference pictures, videos, temporary files and backgrounds, with all
    /// below them. Returns the number of files that could not be copied.
    static int projectFolders(PoolProgress &progress, const ProjectTree &from, const ProjectTree &to);

    struct FramesResult
    {
        /// The frames with their files' names in the new place.
        QList<ProjectFrame> frames;
        int failures = 0;
    };
    /// The files that frames name, from one project into another. Where a file of that name and another
    /// content is there, it stays and the copy gets a free name.
    static FramesResult frames(PoolProgress &progress, const QList<ProjectFrame> &frames,
                               const ProjectTree &from, const ProjectTree &to);
};
