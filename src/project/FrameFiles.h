#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVariantMap>

class MessageCentre;

/// A frame of a project file after its pictures have been looked for.
struct CheckedFrame
{
    /// The frame, the names of missing files emptied.
    ProjectFrame frame;
    /// Whether the full picture is not there, or was never named.
    bool capFullMissing = true;
    bool refFullMissing = true;
    /// Paths at which a named file was not found.
    QStringList missingPaths;

    /// The frame as the frames model takes it, keyed by role names.
    QVariantMap toMap() const;
};

/// Looks whether the files that a project names are there.
class FrameFiles
{
    Q_DECLARE_TR_FUNCTIONS(FrameFiles)

public:
    /// Asks the disk once per named file. Safe on any thread.
    static CheckedFrame check(const ProjectFrame &frame, const ProjectTree &tree);

    /// Whether a path that is no frame's file (an export folder) is there; an empty one needs no check and
    /// is.
    static bool pathIsThere(const QString &path);

    /// A log line and a warning for each missing path. Main thread.
    static void report(const QStringList &missingPaths, MessageCentre &messages);
    /// What to do about pictures that are not there.
    static QString adviceForMissing();
};
