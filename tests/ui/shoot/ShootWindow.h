#pragma once

#include "support/ShellWindow.h"

#include <functional>
#include <memory>
#include <QDialog>
#include <QImage>
#include <QTest>

/// Does something of which a part may fail, and leaves the test function when it has.
#define SHOOT_DO(action)                \
    do {                                \
        action;                         \
        if (QTest::currentTestFailed()) \
            return;                     \
    } while (false)

/// Waits for what takes its own time.
#define SHOOT_WAIT(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, ShootWindow::patienceMs)
#define SHOOT_WAIT_FOR(found, wanted) QTRY_COMPARE_WITH_TIMEOUT(found, wanted, ShootWindow::patienceMs)

/// The program as one person has it: with the dialogs of the toolkit, the built-in camera and a settings
/// file, started and ended as often as wanted. Everything is done with the mouse and the keys, on what shows;
/// every search waits until the control is there and can be used. What fails, fails the running test.
class ShootWindow
{
public:
    /// How long anything may take that has no time of its own.
    static constexpr int patienceMs = 60000;

    /// `home` is the person's folder; settings are kept there.
    explicit ShootWindow(const QString &home);
    ~ShootWindow();

    /// Starts the program in the language that the settings name.
    void start();
    /// Lets go of the program after it has asked to end.
    void end();
    bool runs() const
    {
        return m_shell != nullptr;
    }
    ShellWindow &shell()
    {
        return *m_shell;
    }
    MainWindow &window()
    {
        return m_shell->window();
    }
    FramesModel &frames()
    {
        return m_shell->frames();
    }
    QString settingsPath() const
    {
        return m_home + QStringLiteral("/settings.ini");
    }

    /// The first usable item that shows and for which the property has this value or, for a tool tip, begins
    /// with it. Waits for it; null when none comes.
    QQuickItem *find(const char *property, const QString &value, int patience = patienceMs);
    /// The same without waiting.
    QQuickItem *shown(const char *property, const QString &value) const;
    /// The item that shows and that assistive programs know by this name; null without one.
    QQuickItem *named(const QString &accessibleName) const;
    /// The frame of that row on the strip, as far as it is in sight; null when it is not.
    QQuickItem *frame(int row) const;

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Clicks into the middle of an item, once it lies still; the wheel brings it into sight.
    void click(QQuickItem *item, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
               Qt::MouseButton button = Qt::LeftButton);
    void clickTip(const QString &toolTip);
    void clickText(const QString &text);
    void clickName(const QString &objectName);
    void clickFrame(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                    Qt::MouseButton button = Qt::LeftButton);
    /// Goes to a row with the keys for the first and the next frame.
    void goTo(int row);
    /// Pulls an item by its middle, a pixel at a time to the right, until the condition holds.
    void pullRight(QQuickItem *item, const std::function<bool()> &done);
    /// Puts a text into the field with that tool tip and leaves it with Return.
    void typeInto(const QString &toolTip, const QString &text);
    /// Answers the dialog of the toolkit that comes while `action` goes on.
    void answerDialog(const std::function<void()> &action, const std::function<void(QDialog &)> &answer);

    /// Waits until nothing runs behind the scene that would refuse a command or move the current frame.
    void rest();
    /// What the screen shows in an item's place.
    QImage look(QQuickItem *item);
    /// Takes the pointer to a place where it has nothing to say.
    void putPointerAway();
    /// Keeps the screen, and an open dialog of the toolkit, as pictures in a folder.
    void keepScreen(const QString &folder, const QString &name) const;

private:
    void bringIntoSight(QQuickItem *item);
    /// The middle of the item in the window, once two frames agree on it.
    QPoint restingMiddle(QQuickItem *item);

    QString m_home;
    std::unique_ptr<QObject> m_translators;
    std::unique_ptr<ShellWindow> m_shell;
};
