#pragma once

#include <QDateTime>
#include <QString>

namespace morvane {

/// The path with a trailing "/". An empty one stays empty; a trailing "\" is replaced.
QString ensureDirSeparator(const QString &path);

/// The path without a leading "file:///".
QString withoutFilePrefix(const QString &path);

/// Whether a file is there, its path given with or without the "file:///" prefix.
bool fileExists(const QString &path);

/// Makes the folder with its parents unless it is there; the result tells whether it is there now.
bool ensureFolder(const QString &path);

/// `wanted`, or, when a writable file of that name exists, the same with the time put before the suffix.
QString uniqueFilePath(const QString &wanted, const QTime &now = QTime::currentTime());

} // namespace morvane
