#include "app/AppControllers.h"

#include "app/MainWindow.h"
#include "app/WindowQuitHost.h"
#include "project/BackgroundImage.h"
#include "shared/TimeText.h"

#include <QCoreApplication>
#include <QDir>

AppControllers::AppControllers(AppEnvironment given)
    : environment(std::move(given)), windowFlags(startup::windowFlags(settings())),
      locale(settings(), [this] { return environment.systemLocale; }), devices(global),
      capture(std::move(environment.cameras), settings()), cameras(global, devices, settings()),
      shots(global, frames, [this] { return timeStamp(); }),
      timeLapse(global, frames, std::move(environment.timeLapseTicker)), robot(robotServices()),
      recent(settings(), environment.now), paths(settings(), pathHooks(), QDir::homePath()),
      files(*environment.dialogs, settings(), global,
            [this] { return paths.projPath().isEmpty() ? QString() : paths.projDirPath(); }),
      editor(files, settings(), *environment.desktop, messages),
      docs(QStringLiteral("capture"), locale.localeName(),
           UserDocs::standardFolders(QCoreApplication::applicationDirPath())),
      timeline(frames), fileOperations(operation, timeline, progress, messages), curvesPath(curves),
      screen(lightbox), lifecycle(projectServices(), paths, timeline,
                                  ProjectNeighbours{timeline, curvesPath, cameraSettings, screen}, operation,
                                  fileOperations, lock)
{
    // A picture that the user has chosen comes with its path; the project keeps a copy and the bare name.
    QObject::connect(&global, &WebcamGlobal::backgroundImageChanged, &global, [this] {
        const QString path = global.backgroundImage();
        if (QDir::isAbsolutePath(path))
            global.setBackgroundImage(morvane::adoptBackgroundImage(path, paths.tree().backgroundDirPath));
    });
}

AppControllers::~AppControllers() = default;

QString AppControllers::timeStamp() const
{
    return morvane::timeStamp(environment.now());
}

ProjectPaths::Hooks AppControllers::pathHooks()
{
    ProjectPaths::Hooks hooks;
    hooks.closeSessionLog = [this] {
        sessionLog.close();
    };
    hooks.openSessionLog = [this](const QString &path) {
        sessionLog.open(path);
    };
    hooks.setFrameFolders = [this](const QVariantMap &folders) {
        frames.setFolders(folders);
    };
    hooks.resetTitle = [this] {
        emit lifecycle.titleChanged();
    };
    return hooks;
}

ProjectServices AppControllers::projectServices()
{
    ProjectServices services{settings(), global, messages, progress, *environment.dialogs, files, recent};
    services.clearRobotJob = [this] {
        robot.setCurrentRobotJob(Zum::NoJob);
    };
    return services;
}

RobotServices AppControllers::robotServices()
{
    return {global, frames, progress, messages, [this] {
                return RobotProject{lifecycle.projectLoaded(), paths.projContntDirPath(), paths.projName()};
            }};
}

void AppControllers::attachWindow(MainWindow &window)
{
    screen.attach({[&window] { return window.timelineH(); },
                   [&window](int height) {
                       window.setTimelineH(height);
                   }});
    quitHost = std::make_unique<WindowQuitHost>(*this, window);
    quitSequence = std::make_unique<QuitSequence>(*quitHost);
}
