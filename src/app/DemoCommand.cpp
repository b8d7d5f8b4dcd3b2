#include "app/DemoCommand.h"

#include "app/AppEnvironment.h"
#include "app/MainWindow.h"
#include "capture/CaptureEnvironment.h"
#include "project/ProjectReader.h"
#include "project/ProjectTree.h"
#include "shared/Dialogs.h"
#include "shared/Names.h"
#include "shared/RecentProjects.h"
#include "shared/Zum.h"

#include <csignal>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QStandardPaths>

namespace {

const QString option = QStringLiteral("--demo");
constexpr int mostFolders = 10000;
constexpr int interruptCheckMs = 100;
// For those who watch, in ticks of the shoot.
constexpr int watchedStepRest = 8;
constexpr int watchedShotRest = 3;

volatile std::sig_atomic_t interrupted = 0;

void noteInterrupt(int number)
{
    interrupted = 1;
    std::signal(number, SIG_DFL);
}

bool hasWindow()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

QString forShell(QString path)
{
    return u'\'' + path.replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

} // namespace

/// Names the new project, and takes whatever else would wait for a person as given up.
class DemoCommand::Answers : public morvane::Dialogs
{
public:
    explicit Answers(QString projectPath, QTextStream &err)
        : m_projectPath(std::move(projectPath)), m_err(err)
    {
    }

    QString openFile(const QString &, const QString &, const QString &) override
    {
        return {};
    }
    QStringList openFiles(const QString &, const QString &, const QString &) override
    {
        return {};
    }
    QString saveFile(const QString &, const QString &, const QString &, const QString &) override
    {
        return m_projectPath;
    }
    QString selectFolder(const QString &, const QString &) override
    {
        return {};
    }
    void warn(const QString &title, const QString &text) override
    {
        m_err << title << ": " << text << Qt::endl;
    }
    Answer ask(const QString &title, const QString &text, const QString &, const QString &) override
    {
        warn(title, text);
        return Answer::Cancel;
    }

private:
    QString m_projectPath;
    QTextStream &m_err;
};

bool DemoCommand::isAsked(const QStringList &arguments)
{
    return arguments.contains(option);
}

std::optional<QString> DemoCommand::parentFolder(const QStringList &arguments, QString &error)
{
    const QStringList given = arguments.mid(1);
    if (given.first() != option || given.size() > 2 || given.last().isEmpty()
        || (given.size() == 2 && given.last().startsWith(u'-'))) {
        error = QStringLiteral("Use --demo alone, or with the folder that its project's folder goes into");
        return {};
    }
    if (given.size() == 2)
        return QDir(given.last()).absolutePath();
    return QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
}

void DemoCommand::choosePlatform()
{
    constexpr auto platform = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsSet(platform))
        return;
    QByteArrayList tried;
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        tried.append("xcb");
    if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        tried.append("wayland");
    tried.append("offscreen");
    qputenv(platform, tried.join(';'));
}

DemoCommand::DemoCommand(QTextStream &out, QTextStream &err) : m_out(out), m_err(err)
{
    std::signal(SIGINT, noteInterrupt);
    std::signal(SIGTERM, noteInterrupt);
}

DemoCommand::~DemoCommand() = default;

bool DemoCommand::makeFolder(const QString &parent)
{
    const QDir folder(parent);
    bool mayBeMade = QDir().mkpath(parent);
    for (int number = 1; mayBeMade && number <= mostFolders; ++number) {
        const QString name = number == 1 ? projectName : projectName + u'-' + QString::number(number);
        // Of two programs that ask for one name at a time, one gets it.
        if (folder.mkdir(name)) {
            m_folder = folder.absoluteFilePath(name);
            return true;
        }
        mayBeMade = QFileInfo::exists(folder.absoluteFilePath(name));
    }
    m_err << "No folder for the project can be made in " << parent << ". Name another one: --demo FOLDER"
          << Qt::endl;
    return false;
}

QString DemoCommand::projectPath() const
{
    return m_folder + u'/' + projectName + u'.' + morvane::projectExtension;
}

void DemoCommand::adapt(AppEnvironment &environment)
{
    m_usersSettings = std::move(environment.settings);
    environment.settings = std::make_unique<Settings>(m_ownFolder.filePath(QStringLiteral("settings.ini")));
    // What the user sees is in the user's language and size.
    for (const QString &key : {morvane::localeKey, QStringLiteral("fontsize")}) {
        if (m_usersSettings->contains(key))
            environment.settings->setValue(key, m_usersSettings->value(key));
    }
    environment.settings->setValue(QStringLiteral("currentCapturingDevice"), int(Zum::CapturingDeviceWebcam));
    environment.dialogs = std::make_unique<Answers>(projectPath(), m_err);
    // The built-in camera alone: nobody has agreed to being filmed.
    environment.cameras = {std::make_shared<SystemCaptureClock>(), {}, {}, {}, true};
}

void DemoCommand::start(MainWindow &window)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    DemoShoot::Pace pace;
    if (hasWindow()) {
        pace.betweenSteps = watchedStepRest;
        pace.betweenShots = watchedShotRest;
    }
    m_out << "A demo of " << DemoShoot::filmFrames << " frames on twos, "
          << (hasWindow() ? "in the window" : "without a window") << Qt::endl;
    m_shoot = std::make_unique<DemoShoot>(window, pace, std::make_unique<SteadyTicker>(), m_out);
    QObject::connect(&m_interruptCheck, &QTimer::timeout, m_shoot.get(), [this] {
        if (interrupted != 0)
            m_shoot->giveUp(QStringLiteral("interrupted"));
    });
    m_interruptCheck.start(interruptCheckMs);
    QMetaObject::invokeMethod(m_shoot.get(), &DemoShoot::start, Qt::QueuedConnection);
}

// The shoot has seen each step end well in the program; this is about what remains of it.
QString DemoCommand::whatIsMissing() const
{
    const ProjectReadResult read = ProjectReader::readFile(projectPath());
    if (read.status != ProjectReadResult::Status::Ok)
        return QStringLiteral("The project cannot be read again: %1").arg(read.error);
    const ProjectTree tree = ProjectTree::of(projectPath(), {});
    for (const ProjectFrame &frame : read.document.frames) {
        if (!QFileInfo(tree.capFullDirPath + frame.capFull).isFile())
            return QStringLiteral("The picture %1 is missing").arg(tree.capFullDirPath + frame.capFull);
    }
    if (read.document.frames.size() != DemoShoot::filmFrames)
        return QStringLiteral("The project has %1 frames").arg(read.document.frames.size());
    for (const QString &movie : m_shoot->outcome().movies) {
        if (QFileInfo(movie).size() == 0)
            return QStringLiteral("The movie %1 is missing").arg(movie);
    }
    return {};
}

int DemoCommand::finish()
{
    QString failure = m_shoot->failure();
    if (failure.isEmpty())
        failure = m_shoot->isDone() ? whatIsMissing() : QStringLiteral("The program was ended");
    if (!failure.isEmpty()) {
        reportFailure(failure);
        return Failed;
    }
    rememberProject();
    reportSuccess();
    return AllDone;
}

void DemoCommand::reportFailure(const QString &failure)
{
    m_err << failure << Qt::endl;
    // Nothing in it: not worth keeping.
    if (QDir().rmdir(m_folder)) {
        m_err << "Nothing is left of it" << Qt::endl;
        return;
    }
    m_err << "Left in " << m_folder << Qt::endl;
    const ProjectReadResult read = ProjectReader::readFile(projectPath());
    if (read.status == ProjectReadResult::Status::Ok)
        m_err << "  project with " << read.document.frames.size() << " frames: " << projectPath() << Qt::endl;
    const QDir videos(ProjectTree::of(projectPath(), {}).videoDirPath);
    const QStringList names = videos.entryList(QDir::Files);
    for (const QString &name : names) {
        const QString movie = videos.absoluteFilePath(name);
        const bool isWhole = m_shoot->outcome().movies.contains(movie);
        m_err << (isWhole ? "  movie: " : "  movie, not whole: ") << movie << Qt::endl;
    }
}

void DemoCommand::reportSuccess()
{
    const DemoShoot::Outcome &outcome = m_shoot->outcome();
    m_out << "Project: " << outcome.projectPath << Qt::endl;
    m_out << "WebM:    " << outcome.movies.value(0) << Qt::endl;
    m_out << "AVI:     " << outcome.movies.value(1) << Qt::endl;
    m_out << "Open it: " << forShell(QCoreApplication::applicationFilePath()) << ' '
          << forShell(outcome.projectPath) << Qt::endl;
}

// All demos bear one name, so the list of recent projects holds the newest alone.
void DemoCommand::rememberProject()
{
    const DemoShoot::Outcome &outcome = m_shoot->outcome();
    RecentProjects(*m_usersSettings)
        .add({.name = projectName,
              .path = outcome.projectPath,
              .frames = outcome.frames,
              .frameSize = outcome.frameSize,
              .thumbnailUrl = outcome.thumbnailUrl});
    m_usersSettings->sync();
}
