#pragma once

#include "jobs/MorvaRobot.h"

/// What one render told and left, run on the caller's thread.
struct RobotRun
{
    bool finished = false;
    int written = 0;
    QStringList errors;
    QStringList advice;
    QStringList actions;
    QList<int> totals;
    QList<int> progress;
    QString result;
    int completed = 0;
    int done = 0;

    /// Stops the job when that many pictures are counted; before it begins for 0, never for -1.
    static RobotRun render(const RenderInput &input, const RobotTools &tools, int stopAfter = -1,
                           const QString &projectName = QStringLiteral("project"));
};
