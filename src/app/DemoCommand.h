#pragma once

#include "app/DemoShoot.h"
#include "shared/Settings.h"

#include <memory>
#include <optional>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

struct AppEnvironment;
class MainWindow;

/// "morvane --demo [FOLDER]": what surrounds the unattended shoot. Its project goes into a new folder, its
/// settings into a file of their own, so that the user's stay as they are but for the finished project at the
/// head of the recent ones. Used once, in the order in which the functions stand here.
class DemoCommand
{
public:
    /// The end of the program.
    enum ExitCode {
        AllDone = 0,
        /// A step failed or the demo was stopped: standard error says which, and what is left.
        Failed = 1,
        /// The command line makes no sense; nothing was touched.
        WrongUsage = 2,
    };

    inline static const QString projectName = QStringLiteral("morvane-demo");

    /// Whether the program was started for it.
    static bool isAsked(const QStringList &arguments);
    /// The folder that the new one goes into, the user's folder of movies when none is named. Empty, with
    /// `error` saying why, when the arguments cannot be understood.
    static std::optional<QString> parentFolder(const QStringList &arguments, QString &error);
    /// Lets the program run without a window where there is no screen, or none that answers. Before the
    /// application is made; a platform that the environment names stays.
    static void choosePlatform();

    /// From here on an interrupt ends the shoot, and a second one the program.
    DemoCommand(QTextStream &out, QTextStream &err);
    ~DemoCommand();

    /// Makes a folder in `parent` that was not there before, and `parent` if need be. False, with the reason
    /// told, when it cannot.
    bool makeFolder(const QString &parent);
    /// Swaps what the program must not share with an unattended run.
    void adapt(AppEnvironment &environment);
    /// Begins when the event loop does.
    void start(MainWindow &window);
    /// Once the window has gone, with the application still there: looks at what is on
    /// the disk, reports, and returns the exit code.
    int finish();

private:
    class Answers;

    QString projectPath() const;
    QString whatIsMissing() const;
    void reportFailure(const QString &failure);
    void reportSuccess();
    void rememberProject();

    QString m_folder;
    QTextStream &m_out;
    QTextStream &m_err;
    QTemporaryDir m_ownFolder;
    std::unique_ptr<Settings> m_usersSettings;
    std::unique_ptr<DemoShoot> m_shoot;
    QTimer m_interruptCheck;
};
