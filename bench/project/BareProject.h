#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

/// The least that opening and saving a project can cost: the same bytes through Qt's stream reader and
/// writer, with nothing checked and nothing kept.
namespace bare {

/// Parses the file and asks the disk once per named file. Returns the number of files found.
int open(const QString &path, const ProjectTree &tree);

/// Writes the frames straight into the file and syncs it.
bool save(const QString &path, const QList<ProjectFrame> &frames);

} // namespace bare
