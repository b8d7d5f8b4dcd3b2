#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QFlags>
#include <QPromise>
#include <QSet>
#include <QStringList>

/// Removes the files of a project's folders that nothing names any more. Works on values, on any thread.
///
/// Each folder is cleaned of plain files whose name has a dot; its subfolders are left alone, so thumbnails,
/// RAW and TIFF versions and the recycle folder stay.
class ProjectCleanup
{
public:
    enum Folder {
        /// Captured pictures that no row names.
        Captured = 0x01,
        /// Reference pictures that no row names.
        Reference = 0x02,
        /// Pictures taken out of videos; all of them.
        Extracted = 0x04,
        /// Preview copies; all of them.
        Cache = 0x08,
        /// Background pictures but the one in use.
        Background = 0x10,
        AllFolders = 0x1f,
    };
    Q_DECLARE_FLAGS(Folders, Folder)

    /// Names that must stay, by folder; bare file names.
    struct Names
    {
        QSet<QString> captured;
        QSet<QString> reference;
        QSet<QString> background;

        static Names of(const QList<ProjectFrame> &frames, const QString &backgroundImage);
    };

    struct Outcome
    {
        int removed = 0;
        int failed = 0;
    };

    /// Progress goes to the promise: the total is a folder's entries, the text names it. Stops between two
    /// files when the promise is cancelled.
    static void run(QPromise<Outcome> &promise, Folders folders, const Names &names, const ProjectTree &tree);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ProjectCleanup::Folders)
