#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QSize>
#include <QStringList>

/// Captured pictures in a project's folder that no frame names, as a crash between the picture and the save
/// leaves them. Works on values; safe on any thread.
class OrphanImages
{
public:
    /// Bare names of the pictures that neither a frame names nor the user has chosen to leave, in order of
    /// their number and time stamp; names that carry neither come last, by name.
    static QStringList find(const ProjectTree &tree, const QList<ProjectFrame> &frames);

    /// The pictures as rows, in their order, each with its thumbnail; one that is missing is made, to fit
    /// into `thumbnailBounds` pixels. A picture that cannot be read has no thumbnail.
    static QList<ProjectFrame> asFrames(const QStringList &names, const ProjectTree &tree,
                                        const QSize &thumbnailBounds);

    /// Moves the pictures and their thumbnails to the recycle folder; never over a file that is there.
    /// Returns how many pictures could not be moved.
    static int moveToRecycleFolder(const QStringList &names, const ProjectTree &tree);

    /// Remembers in the project that these are not to be offered again. False when that cannot be written.
    static bool leave(const QStringList &names, const ProjectTree &tree);
};
