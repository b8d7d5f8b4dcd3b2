#include "app/RenderCommand.h"

#include "app/LightboxChoice.h"
#include "app/ProjectAdapters.h"
#include "jobs/MorvaRobot.h"
#include "paths/Curves.h"
#include "project/ProjectMapping.h"
#include "project/ProjectReader.h"
#include "project/ProjectTree.h"
#include "project/TimelineFrames.h"
#include "shared/MessageCentre.h"
#include "shared/Names.h"
#include "shared/PathText.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <csignal>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTextStream>

namespace rendercommand {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void noteInterrupt(int)
{
    interrupted = 1;
}

const QStringList &formats()
{
    static const QStringList names{morvane::formatAvi, morvane::formatMjpg, morvane::formatWebm,
                                   morvane::formatOgv, morvane::formatMkv,  morvane::formatApng,
                                   morvane::formatRaw};
    return names;
}

std::optional<std::pair<int, int>> rangeOf(const QString &text)
{
    const QStringList ends = text.split(QLatin1Char(':'));
    bool firstIsGood = false;
    bool lastIsGood = false;
    const int first = ends.first().toInt(&firstIsGood);
    const int last = ends.last().toInt(&lastIsGood);
    if (ends.size() != 2 || !firstIsGood || !lastIsGood || first < 0 || last < first)
        return {};
    return std::pair(first, last);
}

// Takes one option with its value; an empty text when it is fine.
QString takeOption(Request &request, const QString &name, const QString &value)
{
    if (name == QLatin1String("--render")) {
        request.format = value.toLower();
        if (!formats().contains(request.format))
            return QStringLiteral("Unknown format \"%1\": use one of %2")
                .arg(value, formats().join(QStringLiteral(", ")));
    } else if (name == QLatin1String("--output")) {
        request.outputFolder = QDir(value).absolutePath();
    } else if (name == QLatin1String("--range")) {
        request.range = rangeOf(value);
        if (!request.range)
            return QStringLiteral("\"%1\" is no range: give the first and the last frame, as in 0:99")
                .arg(value);
    } else if (name == QLatin1String("--quality")) {
        bool isNumber = false;
        request.quality = value.toInt(&isNumber);
        if (!isNumber || request.quality < 0 || request.quality > 3)
            return QStringLiteral("\"%1\" is no quality: use 0 (low) to 3 (maximum)").arg(value);
    } else {
        return QStringLiteral("Unknown option %1").arg(name);
    }
    return {};
}

QString whatIsWrong(const ProjectReadResult &result)
{
    switch (result.status) {
        case ProjectReadResult::Status::CannotOpen:
            return QStringLiteral("it cannot be opened");
        case ProjectReadResult::Status::NotParsable:
            return QStringLiteral("it is damaged: %1").arg(result.error);
        case ProjectReadResult::Status::Legacy:
            return QStringLiteral("it is of an older kind; open and save it with the program first");
        default:
            return result.error.isEmpty() ? QStringLiteral("it is no project") : result.error;
    }
}

QList<RenderFrame> framesOf(const ProjectDocument &document, const QString &folder, int first, int last)
{
    QList<RenderFrame> frames;
    for (int row = first; row <= last; ++row) {
        const ProjectFrame &frame = document.frames.at(row);
        const QString path = frame.capFull.isEmpty() ? QString() : folder + frame.capFull;
        frames.append({path, frame.mirrored, frame.hidden});
    }
    return frames;
}

// The rows to render; empty, with the reason, when the film does not have them.
std::optional<std::pair<int, int>> rowsOf(const Request &request, const ProjectDocument &document,
                                          QString &error)
{
    const int count = static_cast<int>(document.frames.size());
    if (count == 0) {
        error = QStringLiteral("The project has no frames");
        return {};
    }
    const ProjectDocument::Frames settings = document.frameSettings.value_or(ProjectDocument::Frames());
    if (!request.range) {
        const int first = settings.timelineRangeStart.value_or(0);
        const int last = settings.timelineRangeEnd.value_or(count - 1);
        // What the timeline does with a range that its frames do not fill.
        const int repairedLast = last >= 0 && last < count ? last : count - 1;
        const int repairedFirst = first >= 0 && first < count ? first : 0;
        return std::pair(qMin(repairedFirst, repairedLast), repairedLast);
    }
    const int start = settings.startIndex.value_or(0);
    const int first = request.range->first - start;
    const int last = request.range->second - start;
    if (first < 0 || last >= count) {
        error = QStringLiteral("The project has the frames %1:%2, not all of %3:%4")
                    .arg(start)
                    .arg(start + count - 1)
                    .arg(request.range->first)
                    .arg(request.range->second);
        return {};
    }
    return std::pair(first, last);
}

QString movieName(const Request &request, const QString &name)
{
    if (!request.range)
        return name;
    // Parts that several machines render into one folder stand side by side, in order.
    const auto number = [](int frame) {
        return QString::number(frame).rightJustified(6, QLatin1Char('0'));
    };
    return QStringLiteral("%1_%2-%3").arg(name, number(request.range->first), number(request.range->second));
}

/// Shows whole percents as they come.
class ProgressLines
{
public:
    ProgressLines(QTextStream &out, int total) : m_out(out), m_total(qMax(total, 1))
    {
    }
    void show(int current)
    {
        const int percent = static_cast<int>(100LL * current / m_total);
        if (percent == m_shown)
            return;
        m_shown = percent;
        m_out << QStringLiteral("%1% %2/%3").arg(percent, 3).arg(current).arg(m_total) << Qt::endl;
    }

private:
    QTextStream &m_out;
    int m_total;
    int m_shown = -1;
};

} // namespace

bool isAsked(const QStringList &arguments)
{
    return arguments.contains(QStringLiteral("--render"));
}

std::optional<Request> parse(const QStringList &arguments, QString &error)
{
    Request request;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (!argument.startsWith(QLatin1String("--"))) {
            if (!request.projectPath.isEmpty()) {
                error = QStringLiteral("One project at a time, not also %1").arg(argument);
                return {};
            }
            request.projectPath = argument;
            continue;
        }
        if (i + 1 == arguments.size()) {
            error = QStringLiteral("%1 needs a value").arg(argument);
            return {};
        }
        error = takeOption(request, argument, arguments.at(++i));
        if (!error.isEmpty())
            return {};
    }
    if (request.outputFolder.isEmpty())
        error = QStringLiteral("Say with --output which folder the movie goes to");
    else if (request.projectPath.isEmpty())
        error = QStringLiteral("Say which project to render");
    if (!error.isEmpty())
        return {};
    return request;
}

std::optional<RenderInput> readProject(const Request &request, QString &error)
{
    const QString path = QFileInfo(request.projectPath).absoluteFilePath();
    const ProjectReadResult result = ProjectReader::readFile(path);
    if (result.status != ProjectReadResult::Status::Ok) {
        error = QStringLiteral("Cannot read the project %1: %2").arg(path, whatIsWrong(result));
        return {};
    }
    const auto rows = rowsOf(request, result.document, error);
    if (!rows)
        return {};

    // The live objects apply the rules of the window's own load.
    WebcamGlobal global;
    FramesModel frames;
    Curves curves;
    MessageCentre messages;
    LightboxChoice lightbox;
    TimelineFrames timeline(frames);
    CurvesPath curvesPath(curves);
    KeptCameraSettings camera;
    WindowScreen screen(lightbox);
    ProjectMapping(global, {timeline, curvesPath, camera, screen}, messages).apply(result.document);
    const ProjectTree tree = ProjectTree::of(path, QDir::homePath());
    frames.setFolders({{QString::number(Zum::BackgroundFull), tree.backgroundDirPath}});
    global.setRenderFormatNameStr(request.format);
    global.setRenderQmax(request.quality);

    RenderInput input = RenderInput::take(global, frames, tree.projContntDirPath);
    input.rangeStart = rows->first;
    input.rangeEnd = rows->second;
    input.frameCount = static_cast<int>(result.document.frames.size());
    input.frames = framesOf(result.document, tree.capFullDirPath, rows->first, rows->second);
    input.videoFolder = morvane::ensureDirSeparator(request.outputFolder);
    input.fileName = movieName(request, input.fileName);
    return input;
}

int run(const Request &request, const RobotTools &tools, QTextStream &out, QTextStream &err)
{
    QString error;
    const std::optional<RenderInput> input = readProject(request, error);
    if (!input) {
        err << error << Qt::endl;
        return Failed;
    }
    const auto wanted = std::count_if(input->frames.begin(), input->frames.end(),
                                      [](const RenderFrame &frame) { return !frame.isLeftOut(); });
    if (wanted == 0) {
        err << "There is no visible frame to render" << Qt::endl;
        return Failed;
    }

    const ProjectTree tree = ProjectTree::of(QFileInfo(request.projectPath).absoluteFilePath(), {});
    MorvaRobot robot(Zum::RenderVideo, Zum::NoTarget, tree.projContntDirPath, tree.projName, tools);
    QString movie;
    ProgressLines progress(out, static_cast<int>(wanted));
    QObject::connect(&robot, &MorvaRobot::errorStringChanged, &robot,
                     [&err](const QString &text, int) { err << text << Qt::endl; });
    QObject::connect(&robot, &MorvaRobot::progressCurrentChanged, &robot, [&](int current) {
        progress.show(current);
        if (interrupted != 0)
            robot.stop();
    });
    QObject::connect(&robot, &MorvaRobot::complete, &robot,
                     [&movie](const QString &result, const QStringList &) { movie = result; });
    robot.setRenderInput(*input);
    robot.renderVideo(nullptr, nullptr);

    const bool whole = robot.finished() && robot.writtenCount() == wanted && !movie.isEmpty();
    if (!movie.isEmpty())
        (whole ? out : err) << (whole ? QString() : QStringLiteral("Not whole: ")) << movie << Qt::endl;
    return whole ? WholeMovie : Failed;
}

int execute(const QStringList &arguments)
{
    QTextStream out(stdout);
    QTextStream err(stderr);
    QString error;
    const std::optional<Request> request = parse(arguments, error);
    if (!request) {
        err << error << Qt::endl;
        return WrongUsage;
    }
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    std::signal(SIGINT, noteInterrupt);
    std::signal(SIGTERM, noteInterrupt);
    return run(*request, RobotTools::standard(), out, err);
}

} // namespace rendercommand
