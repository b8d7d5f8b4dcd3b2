#include "CommandRecorder.h"
#include "support/ShellWindow.h"

#include <QSignalSpy>
#include <QTest>

/// Every key of the window, pressed in the window.
class TestKeys : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void undoAndRedoReachTheModel();
    void selectAllReachesTheModel();
    void copyCutAndPasteReachTheTimeline();
    void escapeWithADialogClosesIt();
    void pressingEscapeDuringARunningRenderLeavesTheDialogUp();
    void escapeWithoutADialogDismissesEverything();
    void returnConfirmsADialog();
    void timeLapseWarningOnlyWhileFlipFlopRuns();
    void controlReturnIsReturn();
    void shiftWithControlIsShift();
    void openSaveAndNewProject();
    void quitAsksTheWindow();
    void propertiesByPWithAnyModifier();
    void recentProjectsButNotOnDocs();
    void f12OpensPropertiesAndRefreshesTheModel();
    void f1ShowsTheDocs();
    void f5ByTabAndConnection();
    void f6AndF9SwitchTheLayout();
    void f11TogglesFullScreen();
    void controlF2TogglesPrintScreenMode();
    void shiftWithArrowsSelects();
    void playKeysOnTheTimingTab();
    void altRestsTheTimelineUntilReleased();
    void mediaKeysMatchNothing();
    void clipboardImagesNeedAProject();

private:
    void showTab(Zum::AppTabs tab);
    QStringList pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
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

void TestKeys::init()
{
    shell = std::make_unique<ShellWindow>();
    QVERIFY(QTest::qWaitForWindowActive(&shell->window()));
    recorder = std::make_unique<CommandRecorder>(global());
}

void TestKeys::cleanup()
{
    QCOMPARE(shell->sceneWarnings(), QStringList());
    recorder.reset();
    shell.reset();
}

void TestKeys::showTab(Zum::AppTabs tab)
{
    static const QStringList states{"captureUIisOn", "timingUIisOn", "playbackUIisOn", "docsUIisOn"};
    global().setMainTabsState(states.at(tab));
    QCOMPARE(global().currentActiveTab(), int(tab));
    recorder->take();
}

QStringList TestKeys::pressed(int key, Qt::KeyboardModifiers modifiers)
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

void TestKeys::send(QEvent::Type type, int key, bool autoRepeat, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent event(type, key, modifiers, QString(), autoRepeat);
    QCoreApplication::sendEvent(&shell->window(), &event);
}

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
    QCOMPARE(pressed(Qt::Key_Return), QStringList());
    global().setConnected(true);
    QCOMPARE(pressed(Qt::Key_Return), QStringList{"doCaptureFrame"});
    global().setCapturingInprogress(3);
    QCOMPARE(pressed(Qt::Key_Return), QStringList());
}

void TestKeys::keypadEnterCapturesToo()
{
    QVERIFY(shell->createProject());
    global().setConnected(true);
    QCOMPARE(pressed(Qt::Key_Enter, Qt::KeypadModifier), QStringList{"doCaptureFrame"});
    QCOMPARE(pressed(Qt::Key_Return, Qt::KeypadModifier), QStringList{"doCaptureFrame"});
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

void TestKeys::undoAndRedoReachTheModel()
{
    QVERIFY(shell->createProject());
    shell->addFrames(3);
    for (const int left : {2, 1, 0}) {
        // Each step is followed by a look for holds, during which the model takes no other.
        QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
        pressed(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shell->frames().framesCount(), left);
    }
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    pressed(Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(shell->frames().framesCount(), 1);
}

void TestKeys::selectAllReachesTheModel()
{
    QVERIFY(shell->createProject());
    shell->addFrames(4);
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    pressed(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shell->frames().selectedCount(), 4);
}

void TestKeys::copyCutAndPasteReachTheTimeline()
{
    QVERIFY(shell->createProject());
    shell->addFrames(3);
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    shell->frames().setCurrentIndex(0);
    pressed(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(shell->frames().copyModeOn());
    shell->frames().setCurrentIndex(2);
    pressed(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(shell->frames().framesCount(), 4);
    QVERIFY(!shell->frames().copyModeOn());
    QCOMPARE(shell->frames().get(3).value("capFull").toString(), QString("frame_0.jpg"));
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    shell->frames().setCurrentIndex(0);
    pressed(Qt::Key_X, Qt::ControlModifier);
    QVERIFY(shell->frames().cutModeOn());
    shell->frames().setCurrentIndex(2);
    pressed(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(!shell->frames().cutModeOn());
    QCOMPARE(shell->frames().framesCount(), 4);
    QCOMPARE(shell->frames().get(0).value("capFull").toString(), QString("frame_1.jpg"));
}

void TestKeys::escapeWithADialogClosesIt()
{
    shell->window().setQmlDialogUrl("About.qml");
    shell->frames().setCopyModeOn(true);
    global().setPrintScreenModeOn(true);
    global().setLayersSettingsOn(true);
    const QStringList commands = pressed(Qt::Key_Escape);
    QCOMPARE(commands.mid(0, 2), (QStringList{"globalDismiss", "dialogClosing"}));
    QCOMPARE(dialog(), QString());
    QVERIFY(!shell->window().qmlDialogVisible());
    QVERIFY(!shell->frames().copyModeOn());
    QVERIFY(!global().printScreenModeOn());
    QVERIFY(!global().layersSettingsOn());
}

void TestKeys::pressingEscapeDuringARunningRenderLeavesTheDialogUp()
{
    shell->controllers().robot.setCurrentRobotJob(Zum::RenderVideo);
    shell->window().setProgressTotal(100);
    QCOMPARE(dialog(), QString("LoadDialog.qml"));
    global().setPrintScreenModeOn(true);
    QSignalSpy messages(&global(), &WebcamGlobal::appendMessage);
    const QStringList commands = pressed(Qt::Key_Escape);
    QCOMPARE(commands, QStringList{"appendMessage"});
    QCOMPARE(messages.constFirst(), (QVariantList{int(Zum::FileMessage), int(Zum::Warning),
                                                  "MorvaRobot is running. Cannot close dialog"}));
    QCOMPARE(dialog(), QString("LoadDialog.qml"));
    QVERIFY(!global().printScreenModeOn());
    QCOMPARE(pressed(Qt::Key_Return), QStringList());
    QCOMPARE(dialog(), QString("LoadDialog.qml"));
}

void TestKeys::escapeWithoutADialogDismissesEverything()
{
    shell->frames().setCopyModeOn(true);
    shell->frames().setCutModeOn(true);
    global().setPrintScreenModeOn(true);
    global().setLayersSettingsOn(true);
    QCOMPARE(pressed(Qt::Key_Escape), (QStringList{"globalDismiss", "timelineDismiss"}));
    QVERIFY(!shell->frames().copyModeOn());
    QVERIFY(!shell->frames().cutModeOn());
    QVERIFY(!global().printScreenModeOn());
    QVERIFY(!global().layersSettingsOn());
}

void TestKeys::returnConfirmsADialog()
{
    shell->window().setQmlDialogUrl("About.qml");
    global().setLayersSettingsOn(true);
    const QStringList commands = pressed(Qt::Key_Return);
    QCOMPARE(commands.mid(0, 2), (QStringList{"globalConfirm", "dialogClosing"}));
    QCOMPARE(dialog(), QString());
    QVERIFY(!global().layersSettingsOn());
}

void TestKeys::timeLapseWarningOnlyWhileFlipFlopRuns()
{
    QCOMPARE(pressed(Qt::Key_Enter, Qt::ControlModifier), QStringList{"dialogClosing"});
    global().setFlipFlopRunning(true);
    QSignalSpy messages(&global(), &WebcamGlobal::appendMessage);
    QCOMPARE(pressed(Qt::Key_Enter, Qt::ControlModifier), QStringList{"appendMessage"});
    QCOMPARE(messages.constFirst(),
             (QVariantList{int(Zum::ZeitRafferMessage), int(Zum::Warning),
                           "Cannot enable Time-lapse photography tool. Flip-Flop is running"}));
}

void TestKeys::controlReturnIsReturn()
{
    global().setFlipFlopRunning(true);
    shell->frames().setCopyModeOn(true);
    QCOMPARE(pressed(Qt::Key_Return, Qt::ControlModifier), QStringList());
    QVERIFY(!shell->frames().copyModeOn());
}

void TestKeys::shiftWithControlIsShift()
{
    QCOMPARE(pressed(Qt::Key_Shift, Qt::ControlModifier), QStringList{"key_Shift"});
}

void TestKeys::openSaveAndNewProject()
{
    pressed(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(shell->dialogs().asked.size(), 1);
    QCOMPARE(shell->dialogs().asked.constLast().kind, QString("open"));
    shell->dialogs().pathAnswers.append(shell->folder() + "/made.kzfx");
    pressed(Qt::Key_N, Qt::ControlModifier);
    QTRY_VERIFY(shell->window().projectLoaded());
    QCOMPARE(shell->window().projName(), QString("made"));
    global().setGridOn(true);
    QVERIFY(global().projectChanged());
    pressed(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!global().projectChanged());
}

void TestKeys::quitAsksTheWindow()
{
    pressed(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(shell->quits(), 1);
}

void TestKeys::propertiesByPWithAnyModifier()
{
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier),
          Qt::KeyboardModifiers(Qt::ShiftModifier)}) {
        pressed(Qt::Key_P, modifiers);
        QCOMPARE(dialog(), QString("PropertiesDialog.qml"));
        pressed(Qt::Key_Escape);
        QCOMPARE(dialog(), QString());
    }
}

void TestKeys::recentProjectsButNotOnDocs()
{
    pressed(Qt::Key_F3);
    QCOMPARE(dialog(), QString("LastProjects.qml"));
    pressed(Qt::Key_Escape);
    showTab(Zum::DocsTab);
    pressed(Qt::Key_F3);
    QCOMPARE(dialog(), QString());
}

void TestKeys::f12OpensPropertiesAndRefreshesTheModel()
{
    QSignalSpy refreshed(&shell->frames(), &FramesModel::layoutChanged);
    pressed(Qt::Key_F12);
    QCOMPARE(dialog(), QString("PropertiesDialog.qml"));
    QCOMPARE(refreshed.size(), 1);
}

void TestKeys::f1ShowsTheDocs()
{
    pressed(Qt::Key_F1);
    QCOMPARE(global().mainTabsState(), QString("docsUIisOn"));
}

void TestKeys::f5ByTabAndConnection()
{
    QCOMPARE(pressed(Qt::Key_F5), QStringList{"capturingDeviceConnect"});
    global().setConnected(true);
    pressed(Qt::Key_F5);
    QCOMPARE(dialog(), QString("CamReconnectConfirmDialog.qml"));
    pressed(Qt::Key_Escape);
    showTab(Zum::TimingTab);
    QCOMPARE(pressed(Qt::Key_F5), QStringList());
    QCOMPARE(dialog(), QString());
}

void TestKeys::f6AndF9SwitchTheLayout()
{
    for (const Zum::AppTabs tab : {Zum::CaptureTab, Zum::TimingTab, Zum::VideoTab}) {
        showTab(tab);
        const QString plain = global().mainTabsState();
        pressed(Qt::Key_F6);
        QCOMPARE(global().mainTabsState(), plain + "_maximized");
        pressed(Qt::Key_F6);
        QCOMPARE(global().mainTabsState(), plain);
        pressed(Qt::Key_F9);
        QCOMPARE(global().mainTabsState(), plain + "_compacted");
        pressed(Qt::Key_F6);
        QCOMPARE(global().mainTabsState(), plain + "_maximized");
        pressed(Qt::Key_F9);
        pressed(Qt::Key_F9);
        QCOMPARE(global().mainTabsState(), plain);
    }
}

void TestKeys::f11TogglesFullScreen()
{
    QVERIFY(!shell->window().isFullscreen());
    pressed(Qt::Key_F11);
    QTRY_VERIFY(shell->window().isFullscreen());
    pressed(Qt::Key_Escape);
    QTRY_VERIFY(!shell->window().isFullscreen());
    pressed(Qt::Key_F11);
    QTRY_VERIFY(shell->window().isFullscreen());
    pressed(Qt::Key_F11);
    QTRY_VERIFY(!shell->window().isFullscreen());
}

void TestKeys::controlF2TogglesPrintScreenMode()
{
    pressed(Qt::Key_F2);
    QVERIFY(!global().printScreenModeOn());
    pressed(Qt::Key_F2, Qt::ControlModifier);
    QVERIFY(global().printScreenModeOn());
    pressed(Qt::Key_F2, Qt::ControlModifier);
    QVERIFY(!global().printScreenModeOn());
}

void TestKeys::shiftWithArrowsSelects()
{
    QCOMPARE(pressed(Qt::Key_Left, Qt::ShiftModifier),
             (QStringList{"timelineSelectFrame", "timelinePrevFrame"}));
    QCOMPARE(pressed(Qt::Key_Right, Qt::ShiftModifier),
             (QStringList{"timelineSelectFrame", "timelineNextFrame"}));
}

void TestKeys::playKeysOnTheTimingTab()
{
    QVERIFY(shell->createProject());
    shell->addFrames(6);
    showTab(Zum::TimingTab);
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    shell->frames().setTimelineRangeStart(0);
    shell->frames().setTimelineRangeEnd(5);
    pressed(Qt::Key_Space);
    QTRY_VERIFY(shell->frames().playing());
    pressed(Qt::Key_Space);
    QTRY_VERIFY(!shell->frames().playing());
    pressed(Qt::Key_0, Qt::KeypadModifier);
    QTRY_VERIFY(shell->frames().playing());
    pressed(Qt::Key_0, Qt::KeypadModifier);
    QTRY_VERIFY(!shell->frames().playing());
}

void TestKeys::altRestsTheTimelineUntilReleased()
{
    QVERIFY(global().timelineInteractive());
    QTest::keyPress(&shell->window(), Qt::Key_Alt);
    QVERIFY(!global().timelineInteractive());
    QTest::keyRelease(&shell->window(), Qt::Key_Alt);
    QVERIFY(global().timelineInteractive());
}

void TestKeys::mediaKeysMatchNothing()
{
    for (const int key : {Qt::Key_MediaPlay, Qt::Key_MediaPause, Qt::Key_MediaTogglePlayPause,
                          Qt::Key_MediaStop, Qt::Key_MediaRecord, Qt::Key_MediaNext, Qt::Key_MediaPrevious}) {
        recorder->take();
        send(QEvent::KeyPress, key, false);
        QCOMPARE(recorder->take(), QStringList());
    }
}

void TestKeys::clipboardImagesNeedAProject()
{
    QSignalSpy messages(&global(), &WebcamGlobal::appendMessage);
    pressed(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(messages.size(), 0);
    QVERIFY(shell->createProject());
    messages.clear();
    pressed(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(messages.size(), 1);
}

QTEST_MAIN(TestKeys)
#include "tst_keys.moc"
