#pragma once

#include "shared/PropertyMacros.h"
#include "shared/Zum.h"

#include <QString>

/// What the scene sees of the background worker: which job runs, and the way to ask it to stop. Main thread
/// only.
class RobotSupervisor : public QObject
{
    Q_OBJECT

    /// One of Zum::RobotJobTypes; NoJob at rest.
    MORVANE_PROPERTY(int, currentRobotJob, CurrentRobotJob, Zum::NoJob)
    /// The worker's thread has been started and not yet wound up.
    MORVANE_PROPERTY(bool, morvaRobotThreadStarted, MorvaRobotThreadStarted, false)

public:
    using QObject::QObject;

    /// Asks the running job to stop between two items; nothing happens without one. The tag names the caller.
    void breakMorvaRobot(const QString &)
    {
        emit stopRobot();
    }

signals:
    void stopRobot();
};
