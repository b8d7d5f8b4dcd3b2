#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QCoreApplication>
#include <QStringList>

/// Captured pictures in a project's folder that no frame names, as a crash between the picture and the save
/// leaves them. Works on values; safe on any thread.
class OrphanImages
{
    Q_DECLARE_TR_FUNCTIONS(OrphanImages)

public:
    /// Bare names of the pictures that neither a frame names nor the user has chosen to leave, in order of
    /// their number and time stamp; names that carry neither come last, by name.
    static QStringList find(const ProjectTree &tree, const QList<ProjectFrame> &frames);

    /// A picture as a row: with its thumbnail's name where one is there.
    static ProjectFrame asFrame(const QString &name, const ProjectTree &tree);

    /// Moves the pictures and their thumbnails to the recycle folder; never over a file that is there.
    /// Returns how many pictures could not be moved.
    static int moveToRecycleFolder(const QStringList &names, const ProjectTree &tree);

    /// Remembers in the project that these are not to be offered again.
    static bool leave(const QStringList &names, const ProjectTree &tree);
};
