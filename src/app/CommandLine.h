#pragma once

#include <QString>
#include <QStringList>

/// What the program was started with.
namespace commandline {

/// Text to print and end with, for "--help" and "--version"; empty when the program shall run.
QString informationText(const QStringList &arguments);

/// The project file that the second argument names, options aside, as a path or a URL. Empty when there is
/// none; an argument that is no path or names no file is told in the log.
QString projectPath(const QStringList &arguments);

/// The movie or image that "--camera FILE" names, as an absolute path; empty without that option.
QString cameraFile(const QStringList &arguments);

} // namespace commandline
