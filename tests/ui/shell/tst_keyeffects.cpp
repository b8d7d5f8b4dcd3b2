#include "KeyTest.h"

/// What keys do to the frames, the dialogs and the window.
class TestKeyEffects : public KeyTest
{
    Q_OBJECT

private slots:
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
};

void TestKeyEffects::undoAndRedoReachTheModel()
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

void TestKeyEffects::selectAllReachesTheModel()
{
    QVERIFY(shell->createProject());
    shell->addFrames(4);
    QTRY_COMPARE(shell->frames().currentAction(), int(Zum::ActNoAction));
    pressed(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(shell->frames().selectedCount(), 4);
}

void TestKeyEffects::copyCutAndPasteReachTheTimeline()
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

void TestKeyEffects::escapeWithADialogClosesIt()
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

void TestKeyEffects::pressingEscapeDuringARunningRenderLeavesTheDialogUp()
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

void TestKeyEffects::escapeWithoutADialogDismissesEverything()
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

void TestKeyEffects::returnConfirmsADialog()
{
    shell->window().setQmlDialogUrl("About.qml");
    global().setLayersSettingsOn(true);
    const QStringList commands = pressed(Qt::Key_Return);
    QCOMPARE(commands.mid(0, 2), (QStringList{"globalConfirm", "dialogClosing"}));
    QCOMPARE(dialog(), QString());
    QVERIFY(!global().layersSettingsOn());
}

void TestKeyEffects::timeLapseWarningOnlyWhileFlipFlopRuns()
{
    QCOMPARE(pressed(Qt::Key_Enter, Qt::ControlModifier), QStringList{"dialogClosing"});
    global().setFlipFlopRunning(true);
    QSignalSpy messages(&global(), &WebcamGlobal::appendMessage);
    QCOMPARE(pressed(Qt::Key_Enter, Qt::ControlModifier), QStringList{"appendMessage"});
    QCOMPARE(messages.constFirst(),
             (QVariantList{int(Zum::ZeitRafferMessage), int(Zum::Warning),
                           "Cannot enable Time-lapse photography tool. Flip-Flop is running"}));
}

void TestKeyEffects::controlReturnIsReturn()
{
    global().setFlipFlopRunning(true);
    shell->frames().setCopyModeOn(true);
    QCOMPARE(pressed(Qt::Key_Return, Qt::ControlModifier), QStringList());
    QVERIFY(!shell->frames().copyModeOn());
}

void TestKeyEffects::shiftWithControlIsShift()
{
    QCOMPARE(pressed(Qt::Key_Shift, Qt::ControlModifier), QStringList{"key_Shift"});
}

void TestKeyEffects::openSaveAndNewProject()
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

void TestKeyEffects::quitAsksTheWindow()
{
    pressed(Qt::Key_Q, Qt::ControlModifier);
    QCOMPARE(shell->quits(), 1);
}

void TestKeyEffects::propertiesByPWithAnyModifier()
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

void TestKeyEffects::recentProjectsButNotOnDocs()
{
    pressed(Qt::Key_F3);
    QCOMPARE(dialog(), QString("LastProjects.qml"));
    pressed(Qt::Key_Escape);
    showTab(Zum::DocsTab);
    pressed(Qt::Key_F3);
    QCOMPARE(dialog(), QString());
}

void TestKeyEffects::f12OpensPropertiesAndRefreshesTheModel()
{
    QSignalSpy refreshed(&shell->frames(), &FramesModel::layoutChanged);
    pressed(Qt::Key_F12);
    QCOMPARE(dialog(), QString("PropertiesDialog.qml"));
    QCOMPARE(refreshed.size(), 1);
}

void TestKeyEffects::f1ShowsTheDocs()
{
    pressed(Qt::Key_F1);
    QCOMPARE(global().mainTabsState(), QString("docsUIisOn"));
}

void TestKeyEffects::f5ByTabAndConnection()
{
    QVERIFY(pressed(Qt::Key_F5).contains("capturingDeviceConnect"));
    global().setConnected(true);
    pressed(Qt::Key_F5);
    QCOMPARE(dialog(), QString("CamReconnectConfirmDialog.qml"));
    pressed(Qt::Key_Escape);
    showTab(Zum::TimingTab);
    QCOMPARE(pressed(Qt::Key_F5), QStringList());
    QCOMPARE(dialog(), QString());
}

void TestKeyEffects::f6AndF9SwitchTheLayout()
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

void TestKeyEffects::f11TogglesFullScreen()
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

void TestKeyEffects::controlF2TogglesPrintScreenMode()
{
    pressed(Qt::Key_F2);
    QVERIFY(!global().printScreenModeOn());
    pressed(Qt::Key_F2, Qt::ControlModifier);
    QVERIFY(global().printScreenModeOn());
    pressed(Qt::Key_F2, Qt::ControlModifier);
    QVERIFY(!global().printScreenModeOn());
}

void TestKeyEffects::shiftWithArrowsSelects()
{
    QCOMPARE(pressed(Qt::Key_Left, Qt::ShiftModifier),
             (QStringList{"timelineSelectFrame", "timelinePrevFrame"}));
    QCOMPARE(pressed(Qt::Key_Right, Qt::ShiftModifier),
             (QStringList{"timelineSelectFrame", "timelineNextFrame"}));
}

void TestKeyEffects::playKeysOnTheTimingTab()
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

void TestKeyEffects::altRestsTheTimelineUntilReleased()
{
    QVERIFY(global().timelineInteractive());
    QTest::keyPress(&shell->window(), Qt::Key_Alt);
    QVERIFY(!global().timelineInteractive());
    QTest::keyRelease(&shell->window(), Qt::Key_Alt);
    QVERIFY(global().timelineInteractive());
}

void TestKeyEffects::mediaKeysMatchNothing()
{
    for (const int key : {Qt::Key_MediaPlay, Qt::Key_MediaPause, Qt::Key_MediaTogglePlayPause,
                          Qt::Key_MediaStop, Qt::Key_MediaRecord, Qt::Key_MediaNext, Qt::Key_MediaPrevious}) {
        recorder->take();
        send(QEvent::KeyPress, key, false);
        QCOMPARE(recorder->take(), QStringList());
    }
}

void TestKeyEffects::clipboardImagesNeedAProject()
{
    QSignalSpy messages(&global(), &WebcamGlobal::appendMessage);
    pressed(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(messages.size(), 0);
    QVERIFY(shell->createProject());
    messages.clear();
    pressed(Qt::Key_I, Qt::ControlModifier);
    QCOMPARE(messages.size(), 1);
}

QTEST_MAIN(TestKeyEffects)
#include "tst_keyeffects.moc"
