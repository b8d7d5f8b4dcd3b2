#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFlags>
#include <QSet>

class PoolProgress;

/// Removes the files of a project's folders that nothing names any more. Works on values, on any thread.
///
/// Each folder is cleaned of plain files whose name has a dot; its subfolders are left alone, so thumbnails,
/// RAW and TIFF versions and the recycle folder stay.
class ProjectCleanup
{
    Q_DECLARE_TR_FUNCTIONS(ProjectCleanup)

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
    };
    Q_DECLARE_FLAGS(Folders, Folder)
    static constexpr Folders allFolders = Folders::fromInt(0x1f);

    /// What must stay.
    struct Keep
    {
        /// Bare file names by folder.
        QSet<QString> captured;
        QSet<QString> reference;
        QSet<QString> background;
        /// A file written after this moment stays: it may be a picture whose row is still to come.
        QDateTime asOf;

        static Keep of(const QList<ProjectFrame> &frames, const QString &backgroundImage,
                       const QDateTime &now = QDateTime::currentDateTime());
    };

    struct Outcome
    {
        int removed = 0;
        int failed = 0;
    };

    /// Stops between two files when cancelled.
    static Outcome run(PoolProgress &progress, Folders folders, const Keep &keep, const ProjectTree &tree);

    /// Whether another project file beside this one uses the same content folder. Pictures that this project
    /// does not name may then be the other's.
    static bool sharesContentFolder(const ProjectTree &tree);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ProjectCleanup::Folders)
