#pragma once

#include "jobs/RobotTools.h"
#include "shared/PropertyMacros.h"
#include "shared/Zum.h"

#include <functional>
#include <QString>
#include <QStringList>
#include <QThread>

class FramesModel;
class MessageCentre;
class MorvaRobot;
class ProgressState;
class WebcamGlobal;

/// The project as the worker needs it.
struct RobotProject
{
    bool loaded = false;
    /// The folder of what belongs to the project, with a trailing "/".
    QString dirPath;
    QString name;
};

/// What the supervisor uses of the program. The references outlive it.
struct RobotServices
{
    WebcamGlobal &global;
    FramesModel &frames;
    ProgressState &progress;
    MessageCentre &messages;
    std::function<RobotProject()> project;
    RobotTools tools = RobotTools::standard();
};

/// The background worker as the scene sees it: starts one job at a time on a thread of its own, shows its
/// progress and its errors, stops it, and winds it up. Main thread only.
///
/// States: idle; starting (morvaRobotThreadStarted, no job yet); running (currentRobotJob set); idle again.
class RobotSupervisor : public QObject
{
    Q_OBJECT

    /// One of Zum::RobotJobTypes; NoJob at rest.
    MORVANE_PROPERTY(int, currentRobotJob, CurrentRobotJob, Zum::NoJob)
    /// The worker's thread has been started and not yet wound up.
    MORVANE_PROPERTY(bool, morvaRobotThreadStarted, MorvaRobotThreadStarted, false)

public:
    explicit RobotSupervisor(RobotServices services, QObject *parent = nullptr);
    /// Stops a running job between two items and waits for it.
    ~RobotSupervisor() override;

    /// Starts a job; false, with a line in the log, when there is no project or another job is not over.
    /// `importTarget` is one of Zum::ImportTargets, for UpdateFromRAWs one of Zum::UpdateRAWJobTypes.
    bool runMorvaRobot(int jobtype, const QStringList &list = {}, int importTarget = Zum::NoTarget);
    /// Asks the running job to stop between two items; nothing happens without one. The tag names the caller.
    void breakMorvaRobot(const QString &);
    /// Sends the job off, once its robot is there.
    void beginRobotJob(int jobtype, int importTarget);
    /// Winds a job up: `retval` is the file that it made, `list` the pictures that it found.
    void stopMorvaRobot(const QString &retval = {}, const QStringList &list = {});
    /// Winds up a job whose thread ended without a word.
    void stop_MorvaRobot();

    /// The paths of the job, or those that a finished video import left for the import of its pictures.
    QStringList inputList() const
    {
        return m_inputList;
    }

signals:
    void stopRobot();
    void robotRenderThumbs(const QStringList &list, WebcamGlobal *global, FramesModel *kadry,
                           int importTarget, int actionType);
    void robotUpdFromRAWs(const QStringList &list, WebcamGlobal *global, FramesModel *kadry, int importTarget,
                          int actionType);
    void robotRenderVideo(WebcamGlobal *global, FramesModel *kadry);
    void robotImportVideo(WebcamGlobal *global, FramesModel *kadry);
    void robotExportFrames(WebcamGlobal *global, FramesModel *kadry);
    /// The views of the timeline let go of the model, and take it again.
    void disconnectModel();
    void connectModel();
    /// The dialog has nothing left to say.
    void dialogIsOver();

private:
    void connectRobot(MorvaRobot &robot);
    void endThread();
    void letPlayerGo();
    void beginImport(int importTarget);
    void endImport();
    void endRender(const QString &path);
    void endVideoImport(const QStringList &list);

    RobotServices m_services;
    QStringList m_inputList;
    /// The robot of the current run until its thread is told to end; it goes with the thread.
    MorvaRobot *m_robot = nullptr;
    QThread m_thread;
    int m_run = 0;
};
