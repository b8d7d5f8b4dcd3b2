#pragma once

#include <QString>
#include <QVariantMap>

/// Who the program is: name, version, and the facts that the about screen and the window title show.
namespace appinfo {

/// The four fields of the version; the last is the build.
struct Version
{
    int major;
    int minor;
    int bugfix;
    int build;
};
Version version();

/// "3.9.7.1".
QString versionText();
/// Name, type and version: what leads the window title.
QString fullName();
/// " BETA", " RC" or nothing, by the state that the build was made in.
QString buildSuffix();

/// Keys: "buildDate", "vendorName", "appName", "appType", "vendorWebsite", "appWebsite", "appVersion",
/// "qtVersion", "openCV", "runningOS".
QVariantMap about();

/// The window's title, with "[*]" where the mark of unsaved work stands. An empty device word or project path
/// and a negative number of threads are left out.
QString windowTitle(const QString &deviceWord, int idealThreads, const QString &projectPath);

} // namespace appinfo
