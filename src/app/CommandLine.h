#pragma once

#include <QString>
#include <QStringList>

/// What the program was started with.
namespace commandline {

/// Text to print and end with, for "--help" and "--version"; empty when the program shall run.
QString informationText(const QStringList &arguments);

/// The project file that the second argument names, as a path or a URL. Empty when there is none; an argument
/// that is no path or names no file is told in the log.
QString projectPath(const QStringList &arguments);

} // namespace commandline
