#include "jobs/RobotSupervisor.h"

#include "jobs/MorvaRobot.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/WebcamGlobal.h"
#include "shared/WindowText.h"
#include "timeline/FramesModel.h"

#include <QFileInfo>
#include <QtDebug>

namespace {

bool staysAfterItsEnd(int job)
{
    return job == Zum::RenderVideo || job == Zum::ExportFrames || job == Zum::SplitVideo;
}

} // namespace

RobotSupervisor::RobotSupervisor(RobotServices services, QObject *parent)
    : QObject(parent), m_services(std::move(services))
{
    m_thread.setObjectName(QStringLiteral("robot"));
    qRegisterMetaType<WebcamGlobal *>();
    qRegisterMetaType<FramesModel *>();
    // Whatever comes next decides for itself whether its dialog stays.
    connect(&m_services.global, &WebcamGlobal::dialogClosing, this, [this] {
        if (currentRobotJob() == Zum::NoJob)
            m_services.global.setDialogRemainsVisible(false);
    });
}

RobotSupervisor::~RobotSupervisor()
{
    // Not by the signal: those who listen may be gone already.
    if (m_robot != nullptr)
        m_robot->stop();
    endThread();
    m_thread.wait();
}

// Only after this may the robot go, so nobody calls it from here any more.
void RobotSupervisor::endThread()
{
    if (m_robot != nullptr)
        disconnect(this, &RobotSupervisor::stopRobot, m_robot, nullptr);
    m_robot = nullptr;
    m_thread.quit();
}

bool RobotSupervisor::runMorvaRobot(int jobtype, const QStringList &list, int importTarget)
{
    const RobotProject project = m_services.project();
    if (!project.loaded || project.dirPath.isEmpty()) {
        qWarning("No project, cannot run robot");
        return false;
    }
    if (currentRobotJob() != Zum::NoJob) {
        qWarning("One Robot is already running");
        return false;
    }
    m_inputList = list;
    ProgressState &progress = m_services.progress;
    if (morvaRobotThreadStarted()) {
        qWarning("MainWindow::runMorvaRobot Error: Thread is still running");
        return false;
    }
    // The robot of the job before has said that it is done; its thread is on the way out.
    endThread();
    m_thread.wait();

    m_services.global.setDialogRemainsVisible(staysAfterItsEnd(jobtype));
    progress.setProgressTotal(100);
    progress.setProgressCurrent(0);
    progress.setProgressAction(
        morvane::windowText(QT_TRANSLATE_NOOP("MainWindow", "Initializing. Please wait...")));
    m_robot = new MorvaRobot(jobtype, importTarget, project.dirPath, project.name, m_services.tools);
    m_robot->moveToThread(&m_thread);
    connectRobot(*m_robot);
    m_thread.start();
    m_thread.setPriority(QThread::NormalPriority);
    m_services.global.setLastRenderedPath(QString());
    setMorvaRobotThreadStarted(true);
    return true;
}

void RobotSupervisor::connectRobot(MorvaRobot &robot)
{
    // The end of a job and of its thread may be heard when the next job has begun already.
    const int run = ++m_run;
    connect(&m_thread, &QThread::finished, &robot, &QObject::deleteLater);
    connect(
        &m_thread, &QThread::finished, this,
        [this, run] {
            if (run == m_run)
                stop_MorvaRobot();
        },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    // The robot's thread is inside a job: the flag must be set from here.
    connect(this, &RobotSupervisor::stopRobot, &robot, &MorvaRobot::stop, Qt::DirectConnection);
    connect(&robot, &MorvaRobot::done, this, [this, run] {
        if (run == m_run)
            endThread();
    });
    connect(this, &RobotSupervisor::robotExportFrames, &robot, &MorvaRobot::exportFrames);
    connect(this, &RobotSupervisor::robotRenderVideo, &robot, &MorvaRobot::renderVideo);
    connect(this, &RobotSupervisor::robotImportVideo, &robot, &MorvaRobot::importVideo);
    connect(this, &RobotSupervisor::robotUpdFromRAWs, &robot, &MorvaRobot::renderThumbs);
    connect(this, &RobotSupervisor::robotRenderThumbs, &robot, &MorvaRobot::renderThumbs);
    connect(&m_thread, &QThread::started, &robot, &MorvaRobot::sendBeginSignal);
    connect(&robot, &MorvaRobot::robotStarted, this, &RobotSupervisor::beginRobotJob);
    ProgressState &progress = m_services.progress;
    connect(&robot, &MorvaRobot::progressTotalChanged, &progress, &ProgressState::setProgressTotal);
    connect(&robot, &MorvaRobot::progressCurrentChanged, &progress, &ProgressState::setProgressCurrent);
    connect(&robot, &MorvaRobot::progressActionChanged, &progress, &ProgressState::setProgressAction);
    connect(&robot, &MorvaRobot::errorStringChanged, &m_services.messages, &MessageCentre::reportError);
    connect(&robot, &MorvaRobot::advised, &m_services.messages,
            [this](const QString &text) { m_services.messages.advise(Zum::RobotMessage, text); });
    connect(&robot, &MorvaRobot::complete, this, &RobotSupervisor::stopMorvaRobot);
}

void RobotSupervisor::breakMorvaRobot(const QString &)
{
    emit stopRobot();
}

void RobotSupervisor::beginRobotJob(int jobtype, int importTarget)
{
    WebcamGlobal *global = &m_services.global;
    FramesModel *frames = &m_services.frames;
    setCurrentRobotJob(jobtype);
    switch (jobtype) {
        case Zum::RenderVideo:
            letPlayerGo();
            if (m_robot != nullptr)
                m_robot->setRenderInput(RenderInput::take(*global, *frames, m_services.project().dirPath));
            emit robotRenderVideo(global, frames);
            break;
        case Zum::SplitVideo:
            global->setPlayerPaused(true);
            emit robotImportVideo(global, frames);
            break;
        case Zum::GenThumbnails:
            beginImport(importTarget);
            break;
        case Zum::ExportFrames:
            emit robotExportFrames(global, frames);
            break;
        case Zum::UpdateFromRAWs:
            emit robotUpdFromRAWs({}, global, frames, importTarget, Zum::UpdateFromRAWs);
            break;
        default:
            endThread();
            break;
    }
}

// The player must not hold the file open that is about to be replaced.
void RobotSupervisor::letPlayerGo()
{
    WebcamGlobal &global = m_services.global;
    const QString movie =
        m_services.project().dirPath + QStringLiteral("video/%1.avi").arg(global.renderFileName());
    if (global.playerSource() != movie)
        return;
    global.setPlayerPlaying(false);
    global.setPlayerPaused(false);
    global.setPlayerSource(QString());
}

void RobotSupervisor::beginImport(int importTarget)
{
    if (importTarget != Zum::CapturedImages && importTarget != Zum::ReferenceImages) {
        qWarning("runMorvaRobot: Unknown target");
        endThread();
        return;
    }
    emit disconnectModel();
    FramesModel &frames = m_services.frames;
    frames.beginFramesReset();
    if (importTarget == Zum::ReferenceImages)
        frames.setPlayingCaptured(false);
    emit robotRenderThumbs(m_inputList, &m_services.global, &frames, importTarget, Zum::GenThumbnails);
}

void RobotSupervisor::endImport()
{
    m_inputList.clear();
    if (!m_services.frames.isResetting())
        return;
    m_services.frames.endFramesReset();
    emit connectModel();
}

void RobotSupervisor::endRender(const QString &path)
{
    const QFileInfo movie(path);
    if (path.isEmpty())
        m_services.global.setLastRenderedPath(QString());
    else if (movie.isFile() && movie.isReadable())
        m_services.global.setLastRenderedPath(path);
    else
        qWarning().noquote()
            << QStringLiteral("Tried to gen video, but no generated file was found: %1<--").arg(path);
}

void RobotSupervisor::endVideoImport(const QStringList &list)
{
    m_services.global.setVideoImportTarget(Zum::NoTarget);
    if (m_services.messages.robotErrorCount() == 0)
        emit dialogIsOver();
    if (m_services.frames.framesCount() > 0)
        m_services.frames.refresh(0, m_services.frames.last());
    if (!list.isEmpty())
        m_inputList = list;
}

void RobotSupervisor::stopMorvaRobot(const QString &retval, const QStringList &list)
{
    if (!morvaRobotThreadStarted())
        return;
    if (currentRobotJob() == Zum::NoJob) {
        qWarning("MorvaRobot is not running, cannot stop it again");
        return;
    }
    m_inputList.clear();
    switch (currentRobotJob()) {
        case Zum::GenThumbnails:
            endImport();
            break;
        case Zum::RenderVideo:
            endRender(retval);
            break;
        case Zum::SplitVideo:
            endVideoImport(list);
            break;
        default:
            break;
    }
    m_services.progress.stopProgress();
    setCurrentRobotJob(Zum::NoJob);
    setMorvaRobotThreadStarted(false);
}

void RobotSupervisor::stop_MorvaRobot()
{
    stopMorvaRobot();
}
