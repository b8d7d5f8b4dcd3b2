#include "RobotRun.h"

RobotRun RobotRun::render(const RenderInput &input, const RobotTools &tools, int stopAfter,
                          const QString &projectName)
{
    MorvaRobot robot(Zum::RenderVideo, Zum::NoTarget, input.videoFolder + "../", projectName, tools);
    RobotRun run;
    QObject::connect(&robot, &MorvaRobot::errorStringChanged, &robot, [&run](const QString &text, int level) {
        run.errors.append(level == Zum::Error ? text : QStringLiteral("%1 %2").arg(level).arg(text));
    });
    QObject::connect(&robot, &MorvaRobot::advised, &robot,
                     [&run](const QString &text) { run.advice.append(text); });
    QObject::connect(&robot, &MorvaRobot::progressActionChanged, &robot,
                     [&run](const QString &action) { run.actions.append(action); });
    QObject::connect(&robot, &MorvaRobot::progressTotalChanged, &robot,
                     [&run](int total) { run.totals.append(total); });
    QObject::connect(&robot, &MorvaRobot::progressCurrentChanged, &robot, [&](int current) {
        run.progress.append(current);
        if (run.progress.size() == stopAfter)
            robot.stop();
    });
    QObject::connect(&robot, &MorvaRobot::complete, &robot,
                     [&run](const QString &result, const QStringList &) {
                         run.result = result;
                         ++run.completed;
                     });
    QObject::connect(&robot, &MorvaRobot::done, &robot, [&run] { ++run.done; });
    robot.setRenderInput(input);
    if (stopAfter == 0)
        robot.stop();
    robot.renderVideo(nullptr, nullptr);
    run.finished = robot.finished();
    run.written = robot.writtenCount();
    return run;
}
