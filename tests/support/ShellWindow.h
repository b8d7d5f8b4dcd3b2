#pragma once

#include "app/AppControllers.h"
#include "app/MainWindow.h"
#include "support/FakeDesktopServices.h"
#include "support/FakeDialogs.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QStringList>
#include <QTemporaryDir>

/// The whole program in a window of its own, with settings in a folder that goes with it, and dialogs,
/// desktop, clock and the way out that a test controls.
class ShellWindow
{
public:
    struct Options
    {
        QStringList arguments{QStringLiteral("morvane")};
        QString locale = QStringLiteral("en_US");
        /// Written to the settings before the window is made.
        QVariantMap settings;
        /// Invalid to leave the window as the program makes it.
        QSize size{1280, 760};
        int logicalDpi = 96;
        bool shown = true;
        /// A settings file to use instead of a fresh one.
        QString settingsPath;
        /// The cameras that there are; the built-in one alone when empty.
        std::function<CaptureEnvironment::Parts()> cameras;
        /// Dialogs to use instead of the ones that are answered beforehand; dialogs() is not there then.
        std::function<std::unique_ptr<morvane::Dialogs>()> dialogs;
        /// The clock of the time-lapse tool.
        std::function<std::unique_ptr<Ticker>()> timeLapseTicker;
        /// What the calendar and the clock on the wall show; one moment for ever when empty.
        std::function<QDateTime()> now;
    };

    ShellWindow();
    explicit ShellWindow(const Options &options);
    ~ShellWindow();

    MainWindow &window()
    {
        return *m_window;
    }
    AppControllers &controllers()
    {
        return m_window->controllers();
    }
    WebcamGlobal &global()
    {
        return controllers().global;
    }
    FramesModel &frames()
    {
        return controllers().frames;
    }
    FakeDialogs &dialogs()
    {
        return *m_dialogs;
    }
    FakeDesktopServices &desktop()
    {
        return *m_desktop;
    }
    QQuickItem &root() const
    {
        return *m_window->rootObject();
    }
    /// How often the program has asked to end.
    int quits() const
    {
        return m_quits;
    }
    QString folder() const
    {
        return m_folder.path();
    }
    /// What the scene's engine has warned of so far.
    QStringList sceneWarnings() const
    {
        return m_warnings;
    }

    /// Creates a project of that name in the folder, as the menu would, and waits until it is loaded.
    bool createProject(const QString &name = QStringLiteral("film"));
    /// Adds that many frames to the open project; their picture files need not exist.
    void addFrames(int count);
    /// The first item of the scene, in depth-first order, for which the property has the value; null for
    /// none.
    QQuickItem *findItem(const char *property, const QVariant &value, QQuickItem *from = nullptr) const;
    /// What an expression of the scene gives, with the names that the scene's root file knows.
    QVariant evaluate(const QString &expression) const;
    /// The same with the names that the file of this item's own children knows.
    QVariant evaluateInside(QQuickItem *item, const QString &expression) const;
    /// The item of that id in the scene's root file.
    QQuickItem *item(const QString &id) const;
    /// The scene's one timer of that interval; null for none or several.
    QObject *timer(int intervalMs) const;
    /// The texts of the message list, the newest first.
    QStringList messages() const;
    /// Whether keys go to the scene itself, and to no field or list.
    bool hasKeyboard() const;
    /// The project file as it lies on the disk; empty without one.
    QByteArray projectFileText() const;
    /// Waits for the next frame: only then do things stand where they belong after a change.
    bool settle() const;
    /// Clicks into the middle of a visible item, once it stands where it belongs.
    void click(QQuickItem *item, Qt::MouseButton button = Qt::LeftButton);
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

private:
    void build(const Options &options);

    QTemporaryDir m_folder;
    QQmlEngine m_engine;
    FakeDialogs *m_dialogs = nullptr;
    FakeDesktopServices *m_desktop = nullptr;
    std::unique_ptr<MainWindow> m_window;
    QStringList m_warnings;
    int m_quits = 0;
};
