#pragma once

#include "app/facade/SettingsFacet.h"

class FramesModel;
class WebcamGlobal;

/// The background worker as the scene sees it.
class JobsFacet : public SettingsFacet
{
    Q_OBJECT
    Q_PROPERTY(int currentRobotJob READ currentRobotJob NOTIFY currentRobotJobChanged)
    Q_PROPERTY(
        bool morvaRobotThreadStarted READ morvaRobotThreadStarted NOTIFY morvaRobotThreadStartedChanged)

public:
    explicit JobsFacet(std::unique_ptr<AppControllers> controllers);

    int currentRobotJob() const;
    bool morvaRobotThreadStarted() const;

public slots:
    bool runMorvaRobot(int jobtype, const QStringList &list, int importTarget);
    bool runMorvaRobot(int jobtype, const QStringList &list);
    bool runMorvaRobot(int jobtype);
    void breakMorvaRobot(const QString &retval);
    void stopMorvaRobot(const QString &retval, const QStringList &sl);
    void stopMorvaRobot(const QString &retval);
    void stopMorvaRobot();
    void stop_MorvaRobot();
    void beginRobotJob(int jobtype, int importTarget);

signals:
    void currentRobotJobChanged();
    void morvaRobotThreadStartedChanged();
    void stopRobot();
    void robotRenderThumbs(const QStringList &list, WebcamGlobal *global, FramesModel *kadry,
                           int importTarget, int actionType);
    void robotUpdFromRAWs(const QStringList &list, WebcamGlobal *global, FramesModel *kadry, int importTarget,
                          int actionType);
    void robotRenderVideo(WebcamGlobal *global, FramesModel *kadry);
    void robotImportVideo(WebcamGlobal *global, FramesModel *kadry);
    void robotExportFrames(WebcamGlobal *global, FramesModel *kadry);
};
