#pragma once

#include <QString>

/// A small film to look at: a ball that hops over a table, with a hold, a hidden frame and references.
namespace samplefilm {

/// Rows of the film, those that are held counted each.
inline constexpr int rows = 20;

/// Writes "film.kzfx" and its pictures into the folder. Returns the project file's path; empty when something
/// could not be written.
QString make(const QString &folder);

} // namespace samplefilm
