#pragma once

#include "app/facade/SettingsFacet.h"

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
    void breakMorvaRobot(const QString &retval);

signals:
    void currentRobotJobChanged();
    void morvaRobotThreadStartedChanged();
    void stopRobot();
};
