#include "support/ShellWindow.h"

#include <QSignalSpy>
#include <QTest>

/// How the scene treats its capturing device: swapping it, losing it, and resting it.
class TestDeviceConnections : public QObject
{
    Q_OBJECT

private slots:
    void reloadSwapsTheDevice();
    void reloadIsRefused_data();
    void reloadIsRefused();
    void connectionUpdatesTheCameraSettings();
    void lostConnectionEndsTheProgramThatWaitedForIt();
    void lostConnectionAloneEndsNothing();
    void loadingAProjectRestsADevice_data();
    void loadingAProjectRestsADevice();
    void jobRestsADevice_data();
    void jobRestsADevice();
    void inactivityIsWatchedOnlyForADslr_data();
    void inactivityIsWatchedOnlyForADslr();
    void userAtWorkIsNotInactive_data();
    void userAtWorkIsNotInactive();
};

void TestDeviceConnections::reloadSwapsTheDevice()
{
    ShellWindow shell;
    MainWindow &window = shell.window();
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Canon EOS camera");
    window.addSetting("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    QObject *pause = shell.timer(1200);
    QVERIFY(pause != nullptr);

    emit shell.global().reloadCapturingDevice();
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Undefined");
    QVERIFY(shell.evaluate("MainWindow.capturingDeviceObject === deviceDummy").toBool());
    QVERIFY(pause->property("running").toBool());

    // A second one while the first goes on changes nothing.
    emit shell.global().reloadCapturingDevice();
    pause->setProperty("interval", 1);
    QTRY_COMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "web camera");
    QCOMPARE(window.currentCapturingDevice(), int(Zum::CapturingDeviceWebcam));
    QVERIFY(window.title().contains("[Webcam]"));
}

void TestDeviceConnections::reloadIsRefused_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("threadRuns");
    QTest::newRow("while connected") << true << false;
    QTest::newRow("while the device's thread runs") << false << true;
}

void TestDeviceConnections::reloadIsRefused()
{
    QFETCH(bool, connected);
    QFETCH(bool, threadRuns);
    ShellWindow shell;
    shell.item("deviceDummy")->setProperty("threadIsRunning", threadRuns);
    shell.evaluate("MainWindow.capturingDeviceObject = deviceDummy");
    shell.global().setConnected(connected);
    emit shell.global().reloadCapturingDevice();
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Canon EOS camera");

    // And is not made up for later.
    shell.global().setConnected(false);
    const QObject *pause = shell.timer(1200);
    QVERIFY(pause != nullptr);
    QVERIFY(!pause->property("running").toBool());
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Canon EOS camera");
}

void TestDeviceConnections::connectionUpdatesTheCameraSettings()
{
    ShellWindow shell;
    QSignalSpy updates(&shell.global(), &WebcamGlobal::updateWebcamSettings);
    shell.global().setConnected(true);
    QCOMPARE(updates.count(), 1);
    shell.global().setConnected(false);
    QCOMPARE(updates.count(), 2);
}

void TestDeviceConnections::lostConnectionEndsTheProgramThatWaitedForIt()
{
    ShellWindow shell;
    QVERIFY(shell.createProject());
    shell.global().setMovieTitle("not saved");
    shell.global().setConnected(true);
    shell.global().setCloseWhenDisconnected(true);
    QCOMPARE(shell.quits(), 0);
    QTest::ignoreMessage(QtDebugMsg, "Camera disconnected while having Quit request");
    shell.global().setConnected(false);
    QCOMPARE(shell.quits(), 1);
}

void TestDeviceConnections::lostConnectionAloneEndsNothing()
{
    ShellWindow shell;
    shell.global().setConnected(true);
    shell.global().setConnected(false);
    QCOMPARE(shell.quits(), 0);
    QVERIFY(!shell.window().closing());
}

void TestDeviceConnections::loadingAProjectRestsADevice_data()
{
    QTest::addColumn<bool>("connected");
    QTest::newRow("connected") << true;
    QTest::newRow("not connected") << false;
}

void TestDeviceConnections::loadingAProjectRestsADevice()
{
    QFETCH(bool, connected);
    ShellWindow shell;
    shell.global().setConnected(connected);
    shell.global().setPaused(false);
    emit shell.window().startProjectLoad();
    QCOMPARE(shell.global().paused(), connected);
}

void TestDeviceConnections::jobRestsADevice_data()
{
    QTest::addColumn<QString>("tab");
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("rests");
    QTest::newRow("on the capture tab with a device") << "captureUIisOn" << true << true;
    QTest::newRow("not without a device") << "captureUIisOn" << false << false;
    QTest::newRow("not on the timing tab") << "timingUIisOn" << true << false;
}

void TestDeviceConnections::jobRestsADevice()
{
    QFETCH(QString, tab);
    QFETCH(bool, connected);
    QFETCH(bool, rests);
    ShellWindow shell;
    shell.global().setMainTabsState(tab);
    shell.global().setConnected(connected);
    shell.global().setPaused(false);
    shell.controllers().robot.setCurrentRobotJob(Zum::GenThumbnails);
    QCOMPARE(shell.global().paused(), rests);
    shell.global().setPaused(true);
    shell.controllers().robot.setCurrentRobotJob(Zum::NoJob);
    QCOMPARE(shell.global().paused(), !rests);
}

void TestDeviceConnections::inactivityIsWatchedOnlyForADslr_data()
{
    QTest::addColumn<bool>("connected");
    QTest::addColumn<bool>("watched");
    QTest::addColumn<int>("device");
    QTest::addColumn<bool>("runs");
    QTest::newRow("connected DSLR") << true << true << int(Zum::CapturingDeviceCanonEOS) << true;
    QTest::newRow("not connected") << false << true << int(Zum::CapturingDeviceCanonEOS) << false;
    QTest::newRow("switched off") << true << false << int(Zum::CapturingDeviceCanonEOS) << false;
    QTest::newRow("webcam") << true << true << int(Zum::CapturingDeviceWebcam) << false;
}

void TestDeviceConnections::inactivityIsWatchedOnlyForADslr()
{
    QFETCH(bool, connected);
    QFETCH(bool, watched);
    QFETCH(int, device);
    QFETCH(bool, runs);
    ShellWindow shell;
    QObject *minute = shell.timer(60000);
    QVERIFY(minute != nullptr);
    shell.global().setInactivityWatchOn(watched);
    shell.window().setCurrentCapturingDevice(device);
    shell.global().setConnected(connected);
    QCOMPARE(minute->property("running").toBool(), runs);
    QVERIFY(minute->property("repeat").toBool());
    QMetaObject::invokeMethod(minute, "triggered");
    QCOMPARE(shell.global().inactivityElapsed(), 1);
}

void TestDeviceConnections::userAtWorkIsNotInactive_data()
{
    QTest::addColumn<QString>("work");
    for (const char *work : {"key", "move", "click", "wheel"})
        QTest::newRow(work) << work;
}

void TestDeviceConnections::userAtWorkIsNotInactive()
{
    QFETCH(QString, work);
    ShellWindow shell;
    QSignalSpy active(&shell.window(), &MainWindow::userIsActive);
    shell.global().setInactivityElapsed(5);
    const QPoint place(400, 300);
    if (work == "key")
        shell.press(Qt::Key_F4);
    else if (work == "move")
        QTest::mouseMove(&shell.window(), place);
    else if (work == "click")
        QTest::mousePress(&shell.window(), Qt::RightButton, Qt::NoModifier, place);
    else {
        QWheelEvent wheel(place, place, QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&shell.window(), &wheel);
    }
    QTRY_VERIFY(active.count() > 0);
    QCOMPARE(shell.global().inactivityElapsed(), 0);
}

QTEST_MAIN(TestDeviceConnections)
#include "tst_deviceconnections.moc"
