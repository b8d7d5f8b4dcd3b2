#pragma once

#include "app/AppEnvironment.h"
#include "app/ClipboardFrames.h"
#include "app/EventSounds.h"
#include "app/LightboxChoice.h"
#include "app/ProjectAdapters.h"
#include "app/QuitSequence.h"
#include "app/StartupSettings.h"
#include "app/UserDocs.h"
#include "capture/CameraList.h"
#include "capture/CaptureEnvironment.h"
#include "capture/CaptureWorkflow.h"
#include "capture/DeviceSelection.h"
#include "capture/TimeLapse.h"
#include "jobs/RobotSupervisor.h"
#include "paths/Curves.h"
#include "project/FrameFileOperations.h"
#include "project/ProjectLifecycle.h"
#include "project/ProjectLock.h"
#include "project/ProjectPaths.h"
#include "project/ThreadOperation.h"
#include "project/TimelineFrames.h"
#include "shared/ExternalEditor.h"
#include "shared/FileSelection.h"
#include "shared/LocaleChoice.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/RecentProjects.h"
#include "shared/SessionLog.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

class MainWindow;

/// Every controller of the program, made in the order in which they need each other and owned here. They live
/// as long as the window, on the main thread.
struct AppControllers
{
    explicit AppControllers(AppEnvironment environment);
    ~AppControllers();

    Settings &settings() const
    {
        return *environment.settings;
    }
    /// Makes what needs the window: the way out, and the place of the timeline's height.
    void attachWindow(MainWindow &window);

    AppEnvironment environment;
    WebcamGlobal global;
    FramesModel frames;
    Curves curves;
    MessageCentre messages;
    ProgressState progress;
    startup::WindowFlags windowFlags;
    LocaleChoice locale;
    DeviceSelection devices;
    CaptureEnvironment capture;
    CameraList cameras;
    CaptureWorkflow shots;
    TimeLapse timeLapse;
    RobotSupervisor robot;
    LightboxChoice lightbox;
    EventSounds sounds;
    ClipboardFrames clipboard;
    SessionLog sessionLog;
    RecentProjects recent;
    ProjectPaths paths;
    FileSelection files;
    ExternalEditor editor;
    UserDocs docs;

    ThreadOperation operation;
    TimelineFrames timeline;
    FrameFileOperations fileOperations;
    ProjectLock lock;
    CurvesPath curvesPath;
    KeptCameraSettings cameraSettings;
    WindowScreen screen;
    ProjectLifecycle lifecycle;

    std::unique_ptr<QuitSequence::Host> quitHost;
    std::unique_ptr<QuitSequence> quitSequence;

private:
    QString timeStamp() const;
    ProjectPaths::Hooks pathHooks();
    ProjectServices projectServices();
    RobotServices robotServices();
};
