#pragma once

#include "jobs/render/RenderInput.h"

#include <optional>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QTextStream;
struct RobotTools;

/// Rendering a project from the command line, without a window.
namespace rendercommand {

/// The end of the program.
enum ExitCode {
    WholeMovie = 0,
    /// No movie, or one that is not whole.
    Failed = 1,
    /// The command line makes no sense; nothing was touched.
    WrongUsage = 2,
};

struct Request
{
    QString format;
    /// Folder of the movie, made if need be.
    QString outputFolder;
    /// First and last frame, as the timeline numbers them; empty for the range that the project keeps.
    std::optional<std::pair<int, int>> range;
    /// 0 to 3.
    int quality = 2;
    QString projectPath;
};

/// Whether the program was started to render.
bool isAsked(const QStringList &arguments);

/// What is asked for; empty, with `error` saying why, when that cannot be understood.
std::optional<Request> parse(const QStringList &arguments, QString &error);

/// The project as a render sees it. Empty, with `error` saying why, when it cannot be read or has no such
/// range.
std::optional<RenderInput> readProject(const Request &request, QString &error);

/// Renders, with the progress and at last the movie's path going to `out` and every complaint to `err`.
/// Interrupting the program ends the movie between two frames.
int run(const Request &request, const RobotTools &tools, QTextStream &out, QTextStream &err);

/// From the arguments to the exit code; needs a QGuiApplication.
int execute(const QStringList &arguments);

} // namespace rendercommand
