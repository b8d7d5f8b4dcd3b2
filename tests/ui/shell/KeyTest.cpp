#include "KeyTest.h"

void KeyTest::init()
{
    shell = std::make_unique<ShellWindow>();
    QVERIFY(QTest::qWaitForWindowActive(&shell->window()));
    recorder = std::make_unique<CommandRecorder>(global());
}

void KeyTest::cleanup()
{
    QCOMPARE(shell->sceneWarnings(), QStringList());
    recorder.reset();
    shell.reset();
}

void KeyTest::showTab(Zum::AppTabs tab)
{
    static const QStringList states{"captureUIisOn", "timingUIisOn", "playbackUIisOn", "docsUIisOn"};
    global().setMainTabsState(states.at(tab));
    QCOMPARE(global().currentActiveTab(), int(tab));
    recorder->take();
}

QStringList KeyTest::pressed(int key, Qt::KeyboardModifiers modifiers)
{
    recorder->take();
    QTest::keyPress(&shell->window(), static_cast<Qt::Key>(key), modifiers);
    QStringList commands = recorder->take();
    // The keyboard presses the modifier's own key first.
    if (modifiers.testFlag(Qt::ControlModifier) && key != Qt::Key_Control && !commands.isEmpty())
        commands.removeOne(QStringLiteral("key_Control"));
    if (modifiers.testFlag(Qt::ShiftModifier) && key != Qt::Key_Shift && !commands.isEmpty())
        commands.removeOne(QStringLiteral("key_Shift"));
    QTest::keyRelease(&shell->window(), static_cast<Qt::Key>(key), modifiers);
    return commands;
}

void KeyTest::send(QEvent::Type type, int key, bool autoRepeat, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, key, modifiers, QString(), autoRepeat);
    QCoreApplication::sendEvent(&shell->window(), &event);
}
