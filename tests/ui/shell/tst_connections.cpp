#include "support/ShellWindow.h"

#include <algorithm>
#include <QFile>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

/// How the scene ties the window, the shared state, the frames and the path together.
class TestConnections : public QObject
{
    Q_OBJECT

private slots:
    void capturedFrameIsSavedAndShown();
    void capturedFrameIsShownOnlyIfTheUserWantsIt_data();
    void capturedFrameIsShownOnlyIfTheUserWantsIt();
    void endOfABatchDismisses();
    void rateOfTheTimelineIsCopied();
    void changedPathMakesAProjectDirty();
    void releasedLiveViewIsScaledAnew_data();
    void releasedLiveViewIsScaledAnew();
    void closingDialogResetsWhatItHadChanged();
    void dismissalResetsWhatWasGoingOn();
    void tabDecidesOnTheMontageMode();

    void savingSignals_data();
    void savingSignals();
    void autosaveTicks();
    void autosaveKeepsItsInterval();

    void fileOperationRestsTheLiveView_data();
    void fileOperationRestsTheLiveView();
    void dialogRestsADevice();
    void dialogStopsTheTimingTab();
    void loadedProjectIsWelcomed();
    void questionStopsThePlayback();

    void redrawBlinksAPixelTwice();

private:
    static void startPlayback(ShellWindow &shell)
    {
        shell.addFrames(5);
        shell.frames().setTimelineFps(12);
        shell.frames().setTimelineRangeEnd(4);
        shell.frames().play();
        QTRY_VERIFY(shell.frames().playing());
    }
};

void TestConnections::capturedFrameIsSavedAndShown()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.addFrames(3);
    shell.frames().setCurrentIndex(0);
    QSignalSpy jumps(&shell.global(), &WebcamGlobal::timelineGotoEnd);
    shell.frames().appendFrame({{"capFull", "frame_norm_000003_260314150926.jpg"}}, true);
    QTRY_VERIFY(shell.projectFileText().contains("frame_norm_000003_260314150926.jpg"));
    QVERIFY(!shell.global().projectChanged());
    QCOMPARE(jumps.count(), 1);
    QVERIFY(shell.frames().last() > 2);
    QCOMPARE(shell.frames().currentIndex(), shell.frames().last());
}

void TestConnections::capturedFrameIsShownOnlyIfTheUserWantsIt_data()
{
    QTest::addColumn<bool>("jump");
    QTest::newRow("jumps after a pause") << true;
    QTest::newRow("stays") << false;
}

void TestConnections::capturedFrameIsShownOnlyIfTheUserWantsIt()
{
    QFETCH(bool, jump);
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.addFrames(3);
    shell.global().setJumpToLastFrame(jump);
    QObject *pause = shell.timer(500);
    QVERIFY(pause != nullptr);
    shell.frames().appendFrame({{"capFull", "x.jpg"}}, true);
    QVERIFY(pause->property("running").toBool());
    shell.frames().setCurrentIndex(0);
    pause->setProperty("interval", 1);
    QTRY_VERIFY(!pause->property("running").toBool());
    QCOMPARE(shell.frames().currentIndex(), jump ? shell.frames().last() : 0);
}

void TestConnections::endOfABatchDismisses()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.addFrames(4);
    shell.frames().setCurrentIndex(0);
    shell.frames().selectAll();
    QSignalSpy dismissals(&shell.global(), &WebcamGlobal::globalDismiss);
    shell.frames().actionOnSelectedFrames(Zum::ActDelete);
    QTRY_COMPARE(shell.frames().framesCount(), 0);
    QTRY_COMPARE(shell.frames().progressTotal(), 0);
    QTRY_VERIFY(dismissals.count() > 0);
}

void TestConnections::rateOfTheTimelineIsCopied()
{
    ShellWindow shell;
    shell.frames().setTimelineFps(12.5);
    QCOMPARE(shell.global().timelineFps(), 12.5);
    shell.frames().setTimelineFps(25);
    QCOMPARE(shell.global().timelineFps(), 25.0);
}

void TestConnections::changedPathMakesAProjectDirty()
{
    ShellWindow shell;
    QSignalSpy changes(&shell.global(), &WebcamGlobal::changed);
    emit shell.controllers().curves.pathHasChanged();
    QCOMPARE(changes.count(), 0);
    QVERIFY(shell.createProject());
    changes.clear();
    emit shell.controllers().curves.pathHasChanged();
    QCOMPARE(changes.count(), 1);
    QVERIFY(shell.global().projectChanged());
}

void TestConnections::releasedLiveViewIsScaledAnew_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<bool>("scaled");
    QTest::newRow("on the capture tab") << "captureUIisOn" << true;
    QTest::newRow("not on the timing tab") << "timingUIisOn" << false;
}

void TestConnections::releasedLiveViewIsScaledAnew()
{
    QFETCH(QString, tab);
    QFETCH(bool, scaled);
    ShellWindow shell;
    WebcamGlobal &global = shell.global();
    global.setScaleDelay(0ms);
    global.setMainTabsState(tab);
    QVERIFY(shell.settle());
    QCoreApplication::processEvents();
    global.setPaused(true);
    global.setWidth(100);
    global.setHeight(100);
    const double before = global.displayScale();
    global.setPaused(false);
    QCoreApplication::processEvents();
    const QQuickItem *area = shell.item("screenArea");
    QCOMPARE(global.displayScale(),
             scaled ? std::min(int(area->width()) / 100.0, int(area->height()) / 100.0) : before);
}

void TestConnections::closingDialogResetsWhatItHadChanged()
{
    ShellWindow shell;
    shell.evaluate("propertiesBox()");
    shell.press(Qt::Key_Tab);
    shell.window().setSpecialColor(Qt::red);
    shell.global().setPlayerPaused(false);
    QMimeData clipboard;
    clipboard.setUrls({QUrl::fromLocalFile(shell.folder() + "/a.jpg")});
    shell.controllers().clipboard.clipboardChanged(&clipboard, true);
    QCOMPARE(shell.window().countClipboardFrames(), 1);

    emit shell.global().dialogClosing();
    QCOMPARE(shell.evaluate("specialColor").value<QColor>(), QColor(Qt::transparent));
    QVERIFY(shell.global().playerPaused());
    QCOMPARE(shell.window().qmlDialogUrl(), QString());
    QVERIFY(shell.hasKeyboard());
    QCOMPARE(shell.window().countClipboardFrames(), 0);
}

void TestConnections::dismissalResetsWhatWasGoingOn()
{
    ShellWindow shell;
    Curves &curves = shell.controllers().curves;
    curves.newPoint(0, 10, 10);
    curves.newPoint(1, 20, 20);
    curves.selectInRect(0, 0, 50, 50);
    QVERIFY(curves.selectedCount() > 0);
    shell.global().setFrameWrapper(Zum::FileInfoFrameWrapper);
    shell.global().setTimelineInteractive(false);
    shell.findItem("toolTip", "Main menu")->forceActiveFocus();
    QVERIFY(!shell.hasKeyboard());

    emit shell.global().globalDismiss();
    QVERIFY(shell.hasKeyboard());
    QCOMPARE(shell.global().frameWrapper(), int(Zum::NoFrameWrapper));
    QVERIFY(shell.global().timelineInteractive());
    QCOMPARE(curves.selectedCount(), 0);
}

void TestConnections::tabDecidesOnTheMontageMode()
{
    ShellWindow shell;
    for (const int tab : {Zum::TimingTab, Zum::VideoTab, Zum::TimingTab, Zum::DocsTab, Zum::CaptureTab}) {
        shell.global().setLayersSettingsOn(true);
        shell.global().setCurrentActiveTab(tab);
        QCOMPARE(shell.global().montageMode(), tab == Zum::TimingTab);
        QVERIFY(!shell.global().layersSettingsOn());
    }
}

void TestConnections::savingSignals_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("cleans");
    QTest::newRow("autosave") << QByteArray("autosave") << false;
    QTest::newRow("save") << QByteArray("saveProject") << false;
    QTest::newRow("save and clean up") << QByteArray("saveAndCleanup") << true;
}

void TestConnections::savingSignals()
{
    QFETCH(QByteArray, signal);
    QFETCH(bool, cleans);
    ShellWindow shell;
    QVERIFY(shell.createProject());
    const QString stray = shell.window().capFullDirPath() + "nobody_names_me.jpg";
    QFile file(stray);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    shell.global().setMovieTitle("The Hare");
    QVERIFY(shell.global().projectChanged());

    QVERIFY(QMetaObject::invokeMethod(&shell.global(), signal.data()));
    QTRY_VERIFY(!shell.global().projectChanged());
    QTRY_VERIFY(shell.projectFileText().contains("The Hare"));
    QTRY_COMPARE(QFile::exists(stray), !cleans);
}

void TestConnections::autosaveTicks()
{
    ShellWindow shell;
    QObject *timer = shell.timer(3 * 60000);
    QVERIFY(timer != nullptr);
    QVERIFY(timer->property("running").toBool());
    QVERIFY(timer->property("repeat").toBool());
    QVERIFY(!timer->property("triggeredOnStart").toBool());
    QSignalSpy autosaves(&shell.global(), &WebcamGlobal::autosave);
    const auto tick = [timer] {
        QMetaObject::invokeMethod(timer, "triggered");
    };

    tick();
    QCOMPARE(autosaves.count(), 0);
    QVERIFY(!shell.window().pauseAutosave());

    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("The Hare");
    tick();
    QCOMPARE(autosaves.count(), 1);
    QTRY_VERIFY(shell.projectFileText().contains("The Hare"));
    QVERIFY(!shell.window().pauseAutosave());

    // With nothing to save it rests until the next change.
    tick();
    QCOMPARE(autosaves.count(), 1);
    QVERIFY(shell.window().pauseAutosave());
    QVERIFY(!timer->property("running").toBool());
    shell.global().setMovieTitle("The Tortoise");
    QVERIFY(timer->property("running").toBool());
}

void TestConnections::autosaveKeepsItsInterval()
{
    ShellWindow shell;
    QObject *timer = shell.timer(3 * 60000);
    QVERIFY(timer != nullptr);
    shell.window().setAutosaveDelay(7);
    QCOMPARE(timer->property("interval").toInt(), 7 * 60000);
    shell.window().setPerformAutosave(false);
    QVERIFY(!timer->property("running").toBool());
    shell.window().setPerformAutosave(true);
    QVERIFY(timer->property("running").toBool());
}

void TestConnections::fileOperationRestsTheLiveView_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<bool>("rests");
    QTest::newRow("on the capture tab") << "captureUIisOn" << true;
    QTest::newRow("not on the video tab") << "playbackUIisOn" << false;
}

void TestConnections::fileOperationRestsTheLiveView()
{
    QFETCH(QString, tab);
    QFETCH(bool, rests);
    ShellWindow shell;
    shell.global().setMainTabsState(tab);
    ThreadOperation &operation = shell.controllers().operation;
    shell.global().setPaused(false);
    QVERIFY(operation.begin(Zum::OCopyFrames));
    QCOMPARE(shell.global().paused(), rests);
    // The end of an operation is a change as well, and rests the live view like its start.
    shell.global().setPaused(false);
    operation.end();
    QCOMPARE(shell.global().paused(), rests);
}

void TestConnections::dialogRestsADevice()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setConnected(true);
    startPlayback(shell);
    shell.evaluate("aboutBox()");
    QVERIFY(shell.global().paused());
    QVERIFY(!shell.frames().playing());
    shell.window().setQmlDialogUrl({});
    QVERIFY(!shell.global().paused());
}

void TestConnections::dialogStopsTheTimingTab()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMainTabsState("timingUIisOn");
    startPlayback(shell);
    shell.global().setFlipFlop(Zum::FlashFlipFlop);
    shell.evaluate("aboutBox()");
    QCOMPARE(shell.global().flipFlop(), int(Zum::NoFlipFlop));
    QVERIFY(!shell.frames().playing());
}

void TestConnections::loadedProjectIsWelcomed()
{
    ShellWindow shell;
    QVERIFY(shell.createProject("film"));
    QVERIFY(shell.window().getGroupSetting("lastprojects").contains("film"));
    QVERIFY(!shell.global().projectChanged());
    QVERIFY(!shell.global().paused());

    // A project that is filtered says so when it comes in.
    const QString path = shell.window().projPath();
    shell.global().setPostProcessing(Zum::NonRealtimeProcessing);
    shell.global().setMovieTitle("The Hare");
    QVERIFY(shell.window().saveProjectXmlFile(Zum::SaveProject));
    shell.window().closeProject();
    shell.window().clearGroupSetting("lastprojects");
    shell.global().setPaused(true);
    int announced = 0;
    connect(&shell.global(), &WebcamGlobal::postProcessingChanged, &shell.global(), [&] {
        if (shell.window().projectLoaded())
            ++announced;
    });
    QCOMPARE(shell.window().projectFileOpen(path), int(Zum::FileIsOk));
    QTRY_VERIFY(shell.window().projectLoaded());
    QVERIFY(shell.window().getGroupSetting("lastprojects").contains("film"));
    QVERIFY(!shell.global().projectChanged());
    QVERIFY(shell.window().allowQuietExit());
    QVERIFY(!shell.global().paused());
    QCOMPARE(shell.global().postProcessing(), int(Zum::NonRealtimeProcessing));
    QCOMPARE(announced, 1);
}

void TestConnections::questionStopsThePlayback()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    startPlayback(shell);
    shell.findItem("toolTip", "Main menu")->forceActiveFocus();
    emit shell.controllers().lifecycle.confirmClose();
    QVERIFY(!shell.frames().playing());
    QCOMPARE(shell.window().qmlDialogUrl(), "SaveConfirmDialog.qml");
    QVERIFY(shell.hasKeyboard());
}

void TestConnections::redrawBlinksAPixelTwice()
{
    ShellWindow shell;
    const QObjectList parts = shell.item("repainting")->children();
    const auto timer = std::find_if(parts.begin(), parts.end(),
                                    [](const QObject *part) { return part->inherits("QQmlTimer"); });
    QVERIFY(timer != parts.end());
    QObject *steps = *timer;
    QTRY_VERIFY(!steps->property("running").toBool());
    QSignalSpy changes(&shell.root(), SIGNAL(addingChanged()));
    steps->setProperty("interval", 1);
    shell.window().redrawing();
    QTRY_COMPARE(changes.count(), 4);
    QTRY_VERIFY(!steps->property("running").toBool());
    QCOMPARE(shell.evaluate("adding").toInt(), 0);
}

QTEST_MAIN(TestConnections)
#include "tst_connections.moc"
