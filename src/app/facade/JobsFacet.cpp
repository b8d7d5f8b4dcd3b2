#include "app/facade/JobsFacet.h"

#include "app/AppControllers.h"

JobsFacet::JobsFacet(std::unique_ptr<AppControllers> controllers) : SettingsFacet(std::move(controllers))
{
    const RobotSupervisor &robot = this->controllers().robot;
    connect(&robot, &RobotSupervisor::currentRobotJobChanged, this, &JobsFacet::currentRobotJobChanged);
    connect(&robot, &RobotSupervisor::morvaRobotThreadStartedChanged, this,
            &JobsFacet::morvaRobotThreadStartedChanged);
    connect(&robot, &RobotSupervisor::stopRobot, this, &JobsFacet::stopRobot);
    connect(&robot, &RobotSupervisor::robotRenderThumbs, this, &JobsFacet::robotRenderThumbs);
    connect(&robot, &RobotSupervisor::robotUpdFromRAWs, this, &JobsFacet::robotUpdFromRAWs);
    connect(&robot, &RobotSupervisor::robotRenderVideo, this, &JobsFacet::robotRenderVideo);
    connect(&robot, &RobotSupervisor::robotImportVideo, this, &JobsFacet::robotImportVideo);
    connect(&robot, &RobotSupervisor::robotExportFrames, this, &JobsFacet::robotExportFrames);
}

int JobsFacet::currentRobotJob() const
{
    return controllers().robot.currentRobotJob();
}

bool JobsFacet::morvaRobotThreadStarted() const
{
    return controllers().robot.morvaRobotThreadStarted();
}

bool JobsFacet::runMorvaRobot(int jobtype, const QStringList &list, int importTarget)
{
    return controllers().robot.runMorvaRobot(jobtype, list, importTarget);
}

bool JobsFacet::runMorvaRobot(int jobtype, const QStringList &list)
{
    return controllers().robot.runMorvaRobot(jobtype, list);
}

bool JobsFacet::runMorvaRobot(int jobtype)
{
    return controllers().robot.runMorvaRobot(jobtype);
}

void JobsFacet::stopMorvaRobot(const QString &retval, const QStringList &sl)
{
    controllers().robot.stopMorvaRobot(retval, sl);
}

void JobsFacet::stopMorvaRobot(const QString &retval)
{
    controllers().robot.stopMorvaRobot(retval);
}

void JobsFacet::stopMorvaRobot()
{
    controllers().robot.stopMorvaRobot();
}

void JobsFacet::stop_MorvaRobot()
{
    controllers().robot.stop_MorvaRobot();
}

void JobsFacet::beginRobotJob(int jobtype, int importTarget)
{
    controllers().robot.beginRobotJob(jobtype, importTarget);
}

void JobsFacet::breakMorvaRobot(const QString &retval)
{
    controllers().robot.breakMorvaRobot(retval);
}
