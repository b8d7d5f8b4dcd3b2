#include "app/facade/JobsFacet.h"

#include "app/AppControllers.h"

JobsFacet::JobsFacet(std::unique_ptr<AppControllers> controllers) : SettingsFacet(std::move(controllers))
{
    const RobotSupervisor &robot = this->controllers().robot;
    connect(&robot, &RobotSupervisor::currentRobotJobChanged, this, &JobsFacet::currentRobotJobChanged);
    connect(&robot, &RobotSupervisor::morvaRobotThreadStartedChanged, this,
            &JobsFacet::morvaRobotThreadStartedChanged);
    connect(&robot, &RobotSupervisor::stopRobot, this, &JobsFacet::stopRobot);
}

int JobsFacet::currentRobotJob() const
{
    return controllers().robot.currentRobotJob();
}

bool JobsFacet::morvaRobotThreadStarted() const
{
    return controllers().robot.morvaRobotThreadStarted();
}

void JobsFacet::breakMorvaRobot(const QString &retval)
{
    controllers().robot.breakMorvaRobot(retval);
}
