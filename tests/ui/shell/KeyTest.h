#pragma once

#include "CommandRecorder.h"
#include "support/ShellWindow.h"

#include <QSignalSpy>
#include <QTest>

/// What tests of the window's keys share: a fresh window for each, and the commands that a key gives.
class KeyTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

protected:
    void showTab(Zum::AppTabs tab);
    /// The commands given by pressing a key; it is released afterwards.
    QStringList pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// One key event, as a held key repeats them.
    void send(QEvent::Type type, int key, bool autoRepeat, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    WebcamGlobal &global()
    {
        return shell->global();
    }
    QString dialog() const
    {
        return shell->window().qmlDialogUrl();
    }

    std::unique_ptr<ShellWindow> shell;
    std::unique_ptr<CommandRecorder> recorder;
};
