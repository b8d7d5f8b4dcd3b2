#include "app/CommandLine.h"

#include "app/AppInfo.h"

#include <QFileInfo>
#include <QtDebug>
#include <QUrl>

namespace commandline {

QString informationText(const QStringList &arguments)
{
    if (arguments.contains(QStringLiteral("--version")) || arguments.contains(QStringLiteral("-v")))
        return appinfo::fullName();
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h")))
        return QStringLiteral(
            "Usage: morvane [PROJECT.kzfx]\n"
            "Shoots stop-motion animation. Opens the project, if one is given.\n\n"
            "  -h, --help     this text\n"
            "  -v, --version  the version");
    return QString();
}

QString projectPath(const QStringList &arguments)
{
    if (arguments.size() < 2)
        return QString();
    const QString argument = arguments.at(1);
    const QUrl url(argument);
    if (!url.isValid()) {
        qWarning("Given commandline parameter is not a path");
        return QString();
    }
    const QString path = url.isLocalFile() ? url.toLocalFile() : argument;
    if (!QFileInfo(path).isFile()) {
        qWarning().noquote() << QStringLiteral("Cannot find project file at %1").arg(argument);
        return QString();
    }
    return QFileInfo(path).absoluteFilePath();
}

} // namespace commandline
