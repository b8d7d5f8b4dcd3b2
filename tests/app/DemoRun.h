#pragma once

#include "project/ProjectReader.h"

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The program run with "--demo" as a user would, with a home folder of its own.
class DemoRun
{
public:
    DemoRun();

    QProcessEnvironment environment;

    /// Starts `program`, which is the built one unless a script is to come before it.
    void start(const QStringList &arguments);
    void start(const QString &program, const QStringList &arguments);
    /// Waits until standard output has the words.
    bool waitFor(const QString &words);
    /// Waits for the end; the exit code, or -1 for a crash or no end.
    int end();

    QString said();
    QString complaints();
    QProcess &process()
    {
        return m_process;
    }
    /// A path in the home folder.
    QString path(const QString &name) const
    {
        return m_home.filePath(name);
    }
    QString settingsPath() const;
    /// Checks a finished demo in `folder`: the project, its pictures and the two movies. Fails the test.
    static void checkWhole(const QString &folder);

private:
    QTemporaryDir m_home;
    QProcess m_process;
    QString m_said;
    QString m_complaints;
};
