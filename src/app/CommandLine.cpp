#include "app/CommandLine.h"

#include "app/AppInfo.h"

#include <QFileInfo>
#include <QtDebug>
#include <QUrl>

namespace commandline {

namespace {

const QString cameraOption = QStringLiteral("--camera");

/// The option and its file, which the rest must not be confused with.
QStringList withoutCamera(QStringList arguments)
{
    if (const qsizetype at = arguments.indexOf(cameraOption); at >= 0)
        arguments.remove(at, qMin<qsizetype>(2, arguments.size() - at));
    return arguments;
}

} // namespace

QString informationText(const QStringList &arguments)
{
    if (arguments.contains(QStringLiteral("--version")) || arguments.contains(QStringLiteral("-v")))
        return appinfo::fullName();
    if (arguments.contains(QStringLiteral("--help")) || arguments.contains(QStringLiteral("-h")))
        return QStringLiteral(
            "Usage: morvane [--camera FILE] [PROJECT.kzfx]\n"
            "       morvane --demo [FOLDER]\n"
            "       morvane --render FORMAT --output FOLDER [--range A:B] [--quality 0..3] PROJECT.kzfx\n"
            "Shoots stop-motion animation. Opens the project, if one is given.\n\n"
            "      --camera FILE   a movie, or the first of numbered images, to shoot from as from a camera\n"
            "  -h, --help          this text\n"
            "  -v, --version       the version\n\n"
            "Without a person, in the window where there is a screen:\n"
            "      --demo [FOLDER] show the program at work: a project in a new folder inside FOLDER (the\n"
            "                      folder of movies when none is named), 24 frames shot on twos with the "
            "Demo\n"
            "                      Webcam, that is 12 poses held for two frames each, the range played "
            "once,\n"
            "                      and rendered as WebM and AVI. Settings stay as they are\n"
            "Prints each step and at last the paths. Ends with 0 when all went well, 1 when a step failed or "
            "the\n"
            "demo was stopped, 2 for a command line that makes no sense.\n\n"
            "Without a window, for scripts and render farms:\n"
            "      --render FORMAT render a movie: avi, mjpg, webm, ogv, mkv, apng or raw\n"
            "      --output FOLDER where the movie goes; made if need be\n"
            "      --range A:B     frames A to B, as the timeline numbers them, instead of the project's\n"
            "                      own range; the movie's name then ends with the two numbers\n"
            "      --quality N     0 low, 1 medium, 2 high (the default), 3 maximum\n"
            "Prints the progress and at last the movie's path. Ends with 0 for a whole movie, 1 for none or\n"
            "one that is not whole, 2 for a command line that makes no sense.");
    return QString();
}

QString projectPath(const QStringList &arguments)
{
    const QStringList named = withoutCamera(arguments);
    if (named.size() < 2)
        return QString();
    const QString argument = named.at(1);
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

QString cameraFile(const QStringList &arguments)
{
    const qsizetype at = arguments.indexOf(cameraOption);
    if (at < 0)
        return QString();
    if (at + 1 >= arguments.size()) {
        qWarning("The option --camera needs a file");
        return QString();
    }
    const QString given = arguments.at(at + 1);
    const QUrl url(given);
    return QFileInfo(url.isLocalFile() ? url.toLocalFile() : given).absoluteFilePath();
}

} // namespace commandline
