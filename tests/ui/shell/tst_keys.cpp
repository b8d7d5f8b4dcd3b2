#include "KeyTest.h"

/// The commands that keys give, in the order of the tables.
class TestKeys : public KeyTest
{
    Q_OBJECT

private slots:
    void commands_data();
    void commands();
    void dialogCommands_data();
    void dialogCommands();
    void keysThatDoNothing_data();
    void keysThatDoNothing();
    void everyReleaseIsTold();
    void spaceShowsTheCapturedFrameWhileHeld();
    void pressingReturnWithNoProjectDoesNothingButResetCopyMode();
    void returnDeletesWhenArmed();
    void returnCapturesWhenConnected();
    void keypadEnterCapturesToo();
    void aHeldLeftKeyMovesOneFrameOnly();
    void aHeldTabInADialogSwitchesOnce();
};

void TestKeys::commands_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QStringList>("expected");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const int capture = Zum::CaptureTab;
    const int timing = Zum::TimingTab;
    const int video = Zum::VideoTab;
    const auto row = [](const char *name, int tab, int key, Qt::KeyboardModifiers modifiers,
                        QStringList expected) {
        QTest::newRow(name) << tab << key << modifiers << expected;
    };

    row("keypad minus", timing, Qt::Key_Minus, keypad,
        {"timelineHideAddBox", "globalDismiss", "timelineDismiss"});
    row("keypad plus", timing, Qt::Key_Plus, keypad, {"timelineShowAddBox"});
    for (const int key : {Qt::Key_Home, Qt::Key_9, Qt::Key_7, Qt::Key_PageUp})
        row(qPrintable(QString("keypad to the start %1").arg(key)), capture, key, keypad,
            {"timelineGotoStart"});
    for (const int key : {Qt::Key_3, Qt::Key_1, Qt::Key_End, Qt::Key_PageDown})
        row(qPrintable(QString("keypad to the end %1").arg(key)), capture, key, keypad, {"timelineGotoEnd"});
    row("keypad left", capture, Qt::Key_Left, keypad, {"timelinePrevFrame"});
    row("keypad right", capture, Qt::Key_Right, keypad, {"timelineNextFrame"});
    row("keypad left on the video tab is a frame too", video, Qt::Key_Left, keypad, {"timelinePrevFrame"});
    row("keypad tab", timing, Qt::Key_Tab, keypad, {"switchDisplayTab"});
    row("keypad 0 on the video tab", video, Qt::Key_0, keypad, {"togglePlayerPlayPause"});
    row("keypad 0 on the capture tab", capture, Qt::Key_0, keypad, {});
    row("keypad delete", capture, Qt::Key_Delete, keypad, {"timelineDeleteFrames"});

    row("shift", capture, Qt::Key_Shift, none, {"key_Shift"});
    row("alt", capture, Qt::Key_Alt, none, {"key_Alt"});
    row("enter", capture, Qt::Key_Enter, none, {"dialogClosing"});
    row("ctrl d", capture, Qt::Key_D, ctrl, {"timelineFrameDuplicate"});
    row("ctrl s", capture, Qt::Key_S, ctrl, {"saveProject"});
    row("ctrl n", capture, Qt::Key_N, ctrl, {"projectCreateNew"});
    row("ctrl equal", capture, Qt::Key_Equal, ctrl, {"focusNear2"});
    row("ctrl minus", capture, Qt::Key_Minus, ctrl, {"focusFar2"});
    row("insert", capture, Qt::Key_Insert, none, {"timelineSelectFrame"});
    row("delete", capture, Qt::Key_Delete, none, {"timelineDeleteFrames"});
    row("end", capture, Qt::Key_End, none, {"timelineGotoEnd"});
    row("home", capture, Qt::Key_Home, none, {"timelineGotoStart"});
    row("left", capture, Qt::Key_Left, none, {"timelinePrevFrame"});
    row("right", timing, Qt::Key_Right, none, {"timelineNextFrame"});
    row("left on the video tab", video, Qt::Key_Left, none, {"videoPlayerStepLeft"});
    row("right on the video tab", video, Qt::Key_Right, none, {"videoPlayerStepRight"});
    row("minus", capture, Qt::Key_Minus, none, {"timelineHideAddBox"});
    row("equal", capture, Qt::Key_Equal, none, {"timelineShowAddBox"});
    row("space on the video tab", video, Qt::Key_Space, none, {"togglePlayerPlayPause"});
    row("space on the capture tab", capture, Qt::Key_Space, none, {"displayTabShowCaptiured"});
    row("tab on the capture tab", capture, Qt::Key_Tab, none, {"switchDisplayTab"});
    row("control", capture, Qt::Key_Control, none, {"key_Control"});
    row("backspace", capture, Qt::Key_Backspace, none, {"key_Backspace"});
    row("f5 on the docs tab", Zum::DocsTab, Qt::Key_F5, none, {"webPaneReload"});
    row("f6 on the docs tab", Zum::DocsTab, Qt::Key_F6, none, {"webPaneExpand"});
    row("escape", capture, Qt::Key_Escape, none, {"globalDismiss", "timelineDismiss"});
}

void TestKeys::commands()
{
    QFETCH(int, tab);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QStringList, expected);
    showTab(static_cast<Zum::AppTabs>(tab));
    QCOMPARE(pressed(key, modifiers), expected);
}

void TestKeys::dialogCommands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QStringList>("expected");
    const Qt::KeyboardModifiers none;
    QTest::newRow("tab") << int(Qt::Key_Tab) << none << QStringList{"tab"};
    QTest::newRow("left") << int(Qt::Key_Left) << none << QStringList{"tab"};
    QTest::newRow("right") << int(Qt::Key_Right) << none << QStringList{"tab"};
    QTest::newRow("ctrl s") << int(Qt::Key_S) << Qt::KeyboardModifiers(Qt::ControlModifier)
                            << QStringList{"saveProject"};
    QTest::newRow("space without extractor") << int(Qt::Key_Space) << none << QStringList{};
    QTest::newRow("home") << int(Qt::Key_Home) << none << QStringList{};
    QTest::newRow("insert") << int(Qt::Key_Insert) << none << QStringList{};
    QTest::newRow("keypad plus") << int(Qt::Key_Plus) << Qt::KeyboardModifiers(Qt::KeypadModifier)
                                 << QStringList{};
}

void TestKeys::dialogCommands()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QStringList, expected);
    shell->window().setQmlDialogUrl("Empty.qml");
    QVERIFY(shell->window().qmlDialogVisible());
    QCOMPARE(pressed(key, modifiers), expected);
    global().setVideoExtractorOn(true);
    QCOMPARE(pressed(Qt::Key_Space), QStringList{"togglePlayerPlayPause"});
}

void TestKeys::keysThatDoNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    const Qt::KeyboardModifiers keypad = Qt::KeypadModifier;
    for (const int key :
         {Qt::Key_NumLock, Qt::Key_Asterisk, Qt::Key_Slash, Qt::Key_Backspace, Qt::Key_multiply, Qt::Key_8,
          Qt::Key_Up, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_2, Qt::Key_Down})
        QTest::newRow(qPrintable(QString("keypad %1").arg(key))) << key << keypad;
    for (const int key : {Qt::Key_F4, Qt::Key_F7, Qt::Key_F8})
        QTest::newRow(qPrintable(QString("key %1").arg(key))) << key << Qt::KeyboardModifiers();
}

void TestKeys::keysThatDoNothing()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    const QString before = global().mainTabsState();
    QCOMPARE(pressed(key, modifiers), QStringList());
    QCOMPARE(global().mainTabsState(), before);
    QCOMPARE(dialog(), QString());
}

void TestKeys::everyReleaseIsTold()
{
    QTest::keyPress(&shell->window(), Qt::Key_J);
    recorder->take();
    QTest::keyRelease(&shell->window(), Qt::Key_J);
    QCOMPARE(recorder->take(), QStringList{"keysReleased"});
}

void TestKeys::spaceShowsTheCapturedFrameWhileHeld()
{
    QCOMPARE(global().camboxState(), QString("liveViewPreviewIsOn"));
    QTest::keyPress(&shell->window(), Qt::Key_Space);
    QCOMPARE(recorder->take(), QStringList{"displayTabShowCaptiured"});
    // The display answers the command by its state; without one here the test does.
    global().setCamboxState("capturePreviewIsOn");
    send(QEvent::KeyPress, Qt::Key_Space, true);
    send(QEvent::KeyRelease, Qt::Key_Space, true);
    QVERIFY(!recorder->take().contains("displayTabShowLiveView"));
    QTest::keyRelease(&shell->window(), Qt::Key_Space);
    QCOMPARE(recorder->take(), (QStringList{"displayTabShowLiveView", "keysReleased"}));
}

void TestKeys::pressingReturnWithNoProjectDoesNothingButResetCopyMode()
{
    shell->frames().setCopyModeOn(true);
    global().setConnected(true);
    recorder->take();
    QCOMPARE(pressed(Qt::Key_Return), QStringList());
    QVERIFY(!shell->frames().copyModeOn());
}

void TestKeys::returnDeletesWhenArmed()
{
    QVERIFY(shell->createProject());
    shell->addFrames(5);
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    shell->frames().switchSelectionOnSingleFrame(1);
    shell->frames().setDeletionConfirmed(true);
    global().setConnected(true);
    const QStringList commands = pressed(Qt::Key_Return);
    QVERIFY(commands.contains("globalDismiss"));
    QVERIFY(!commands.contains("doCaptureFrame"));
    QTRY_COMPARE(shell->frames().framesCount(), 4);
}

void TestKeys::returnCapturesWhenConnected()
{
    QVERIFY(shell->createProject());
    QCOMPARE(pressed(Qt::Key_Return), QStringList{"accessToUnavailFeature"});
    global().setConnected(true);
    QVERIFY(pressed(Qt::Key_Return).contains("doCaptureFrame"));
    global().setCapturingInprogress(3);
    QCOMPARE(pressed(Qt::Key_Return), QStringList{"accessToUnavailFeature"});
}

void TestKeys::keypadEnterCapturesToo()
{
    QVERIFY(shell->createProject());
    global().setConnected(true);
    QVERIFY(pressed(Qt::Key_Enter, Qt::KeypadModifier).contains("doCaptureFrame"));
    QVERIFY(pressed(Qt::Key_Return, Qt::KeypadModifier).contains("doCaptureFrame"));
}

void TestKeys::aHeldLeftKeyMovesOneFrameOnly()
{
    QVERIFY(shell->createProject());
    shell->addFrames(6);
    shell->frames().setCurrentIndex(4);
    send(QEvent::KeyPress, Qt::Key_Left, false);
    for (int i = 0; i < 5; ++i)
        send(QEvent::KeyPress, Qt::Key_Left, true);
    QCOMPARE(shell->frames().currentIndex(), 3);
    send(QEvent::KeyRelease, Qt::Key_Left, false);
    send(QEvent::KeyPress, Qt::Key_Right, false);
    send(QEvent::KeyPress, Qt::Key_Right, true);
    QCOMPARE(shell->frames().currentIndex(), 4);
}

void TestKeys::aHeldTabInADialogSwitchesOnce()
{
    shell->window().setQmlDialogUrl("Empty.qml");
    recorder->take();
    send(QEvent::KeyPress, Qt::Key_Tab, false);
    send(QEvent::KeyPress, Qt::Key_Tab, true);
    QCOMPARE(recorder->take(), QStringList{"tab"});
}

QTEST_MAIN(TestKeys)
#include "tst_keys.moc"
