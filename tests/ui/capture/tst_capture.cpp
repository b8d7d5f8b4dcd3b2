#include "CaptureWindow.h"

#include <QImage>
#include <QSignalSpy>
#include <QTest>

/// Shooting with the whole program: from the key to the picture on the disk, the row and the project file.
class TestCapture : public QObject
{
    Q_OBJECT

private slots:
    void connectingShowsTheLivePicture();
    void everyPressOfReturnMakesOneFrame();
    void everyFrameIsInTheProjectFileAtOnce();
    void twoQuickPressesMakeOneShot();
    void aRequestDuringAShotIsAnsweredWithAWarning();
    void replacingPutsTheShotInPlaceOfTheCurrentFrame();
    void replacingWithoutFramesAppends();
    void shootingOnTwosFillsTwoRowsWithOnePicture();
    void replacingThreeFramesMovesTheCurrentFrameBackTwo();
    void choosingAnAmountWhileReplacingMakesRoomAtOnce();
    void aTakenNameGivesWayToTheNextSecond();
    void ownPrefixNamesTheFiles();
    void aShotGoesToTheLastFrameUnlessUnwanted_data();
    void aShotGoesToTheLastFrameUnlessUnwanted();
    void aShotOpensNoDialog();
    void returnWithoutACameraDrawsTheEye();
    void nothingIsShotWithoutAProject();
    void aFailedSaveTellsWhyAndTheNextShotWorks();
    void disconnectingWhileSavingKeepsWhatIsSaved();
    void quittingWhileConnectedDisconnectsFirst();
    void aLostCameraIsToldOfAndShootingGoesOnAfterwards();
    void reconnectingAConnectedCameraLetsItGoFirst();
    void theCameraStaysWhileTabsAndProjectsChange();
    void projectOperationsLeaveTheCameraAwake();
};

void TestCapture::connectingShowsTheLivePicture()
{
    CaptureWindow shell;
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "web camera");
    QTRY_COMPARE(shell.global().cameraName(), "Demo Webcam #301");
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.global().ready());
    QCOMPARE(shell.global().connectedCamIndex(), CaptureEnvironment::demoIndex);
    QCOMPARE(shell.global().coordSystemWidth(), 320);
    QCOMPARE(shell.global().coordSystemHeight(), 180);
    QCOMPARE(shell.global().width(), 320);
    QCOMPARE(shell.told("Camera: Connecting..."), 1);
    QCOMPARE(shell.told("Camera: Connected"), 1);
    // As large as the room allows, at once.
    QVERIFY(shell.global().displayScale() > 1.5);
    QVERIFY(shell.settle());
    const QImage screen = shell.window().grabWindow();
    auto *device = shell.window().capturingDeviceObject().value<QQuickItem *>();
    QVERIFY(device != nullptr);
    const QPointF corner = device->mapToScene(QPointF(3, 3));
    QTRY_VERIFY(shell.window().grabWindow().pixelColor(corner.toPoint()).red() > 60);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapture::everyPressOfReturnMakesOneFrame()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    for (int i = 1; i <= 24; ++i) {
        QVERIFY(shell.shoot());
        QCOMPARE(shell.framesNow(), i);
    }
    QCOMPARE(shell.capturedFiles().size(), 24);
    QCOMPARE(shell.frames().shotsTaken(), 24);
    for (int row = 0; row < 24; ++row)
        QVERIFY(!QImage(shell.pictureOf(row)).isNull());
    // The puppet moves between the shots.
    QVERIFY(QImage(shell.pictureOf(0)) != QImage(shell.pictureOf(23)));
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapture::everyFrameIsInTheProjectFileAtOnce()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(shell.shoot());
        QTRY_COMPARE(shell.framesInProjectFile(), i);
    }
    QVERIFY(!shell.global().projectChanged());
}

void TestCapture::twoQuickPressesMakeOneShot()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QSignalSpy asked(&shell.global(), &WebcamGlobal::captureFrame);
    // The second comes before the first could have ended.
    shell.evaluate("keyHandler.onReturn(); keyHandler.onReturn()");
    QCOMPARE(asked.count(), 1);
    QTRY_COMPARE(shell.framesNow(), 1);
    QTest::qWait(150);
    QCOMPARE(shell.framesNow(), 1);
    QCOMPARE(shell.capturedFiles().size(), 1);
}

void TestCapture::aRequestDuringAShotIsAnsweredWithAWarning()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.global().setCapturingInprogress(0);
    emit shell.global().captureFrame("jpg", shell.capturedFolder() + "x.jpg",
                                     shell.capturedFolder() + "t.jpg");
    QCOMPARE(shell.told("Camera: Taking a picture. Please wait"), 1);
    QCOMPARE(shell.global().capturingInprogress(), 0);
    QTest::qWait(100);
    QCOMPARE(shell.capturedFiles(), QStringList());
}

void TestCapture::replacingPutsTheShotInPlaceOfTheCurrentFrame()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    for (int i = 0; i < 3; ++i)
        QVERIFY(shell.shoot());
    const QString before = shell.pictureOf(1);
    // The last shot would go to the last frame a moment later.
    shell.global().setJumpToLastFrame(false);
    shell.frames().setCaptureMode(Zum::CaptureModeReplace);
    shell.frames().setCurrentIndex(1);
    shell.press(Qt::Key_Return);
    QTRY_VERIFY(shell.pictureOf(1) != before);
    QCOMPARE(shell.framesNow(), 3);
    QVERIFY(shell.pictureOf(1).contains("frame_norm_000001_"));
    // The old picture stays, and the new one is in the project file already.
    QVERIFY(QFile::exists(before));
    QTRY_VERIFY(shell.projectFileText().contains(QFileInfo(shell.pictureOf(1)).fileName().toUtf8()));
    QCOMPARE(shell.global().capturingInprogress(), -1);
}

void TestCapture::replacingWithoutFramesAppends()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.frames().setCaptureMode(Zum::CaptureModeReplace);
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 1);
    QCOMPARE(shell.frames().captureMode(), int(Zum::CaptureModeReplace));
}

void TestCapture::shootingOnTwosFillsTwoRowsWithOnePicture()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.frames().setShootMultipleFrames(1);
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 2);
    QCOMPARE(shell.pictureOf(0), shell.pictureOf(1));
    QCOMPARE(shell.capturedFiles().size(), 1);
    QTRY_COMPARE(shell.framesInProjectFile(), 2);
}

void TestCapture::replacingThreeFramesMovesTheCurrentFrameBackTwo()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    for (int i = 0; i < 5; ++i)
        QVERIFY(shell.shoot());
    shell.frames().setCaptureMode(Zum::CaptureModeReplace);
    shell.frames().setShootMultipleFrames(2);
    shell.frames().setCurrentIndex(4);
    const QString kept = shell.pictureOf(1);
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(shell.pictureOf(2), shell.pictureOf(4));
    QCOMPARE(shell.frames().currentIndex(), 2);
    QCOMPARE(shell.pictureOf(1), kept);
    QCOMPARE(shell.framesNow(), 5);
}

void TestCapture::choosingAnAmountWhileReplacingMakesRoomAtOnce()
{
    CaptureWindow shell;
    shell.addFrames(6);
    shell.frames().setCurrentIndex(5);
    shell.frames().setShootMultipleFrames(2);
    QCOMPARE(shell.frames().currentIndex(), 5);
    shell.frames().setCaptureMode(Zum::CaptureModeReplace);
    QCOMPARE(shell.frames().currentIndex(), 3);
    shell.frames().setShootMultipleFrames(4);
    QCOMPARE(shell.frames().currentIndex(), 1);
}

void TestCapture::aTakenNameGivesWayToTheNextSecond()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    const QString taken = shell.capturedFolder() + "frame_norm_000000_260314150926.jpg";
    QFile file(taken);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    QVERIFY(shell.shoot());
    QVERIFY(shell.pictureOf(0).endsWith("frame_norm_000000_260314150927.jpg"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "mine");
}

void TestCapture::ownPrefixNamesTheFiles()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.global().setUseFrameNameMask(true);
    shell.global().setFrameNameMask("cat");
    QVERIFY(shell.shoot());
    QVERIFY(shell.pictureOf(0).endsWith("/cat_000000_260314150926.jpg"));
    QCOMPARE(shell.frames().get(0, false).value("capTumb").toString(), "cat_mini_000000_260314150926.jpg");
}

void TestCapture::aShotGoesToTheLastFrameUnlessUnwanted_data()
{
    QTest::addColumn<bool>("jumps");
    QTest::newRow("wanted") << true;
    QTest::newRow("unwanted") << false;
}

void TestCapture::aShotGoesToTheLastFrameUnlessUnwanted()
{
    QFETCH(bool, jumps);
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.global().setJumpToLastFrame(jumps);
    QSignalSpy gone(&shell.global(), &WebcamGlobal::timelineGotoEnd);
    for (int i = 0; i < 3; ++i)
        QVERIFY(shell.shoot());
    QCOMPARE(gone.count(), 3);
    QCOMPARE(shell.frames().currentIndex(), 2);
    // Whoever looks at another frame right after the shot is brought back a moment later, or not.
    shell.frames().setCurrentIndex(0);
    QTest::qWait(700);
    QCOMPARE(shell.frames().currentIndex(), jumps ? 2 : 0);
}

void TestCapture::aShotOpensNoDialog()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QSignalSpy dialogs(&shell.window(), &MainWindow::qmlDialogUrlChanged);
    QSignalSpy progress(&shell.window(), &MainWindow::progressTotalChanged);
    QSignalSpy rests(&shell.global(), &WebcamGlobal::pausedChanged);
    QVERIFY(shell.shoot());
    QTRY_COMPARE(shell.window().progressTotal(), 0);
    QVERIFY(progress.count() >= 2);
    QCOMPARE(dialogs.count(), 0);
    QCOMPARE(rests.count(), 0);
}

void TestCapture::returnWithoutACameraDrawsTheEye()
{
    CaptureWindow shell;
    QSignalSpy unavailable(&shell.global(), &WebcamGlobal::accessToUnavailFeature);
    QQuickItem *label = shell.control("deviceLabel");
    QVERIFY(label != nullptr);
    shell.press(Qt::Key_Return);
    QCOMPARE(unavailable.count(), 1);
    QCOMPARE(unavailable.takeFirst().constFirst().toInt(), int(Zum::CameraCapture));
    QVERIFY(label->opacity() < 1);
    QTRY_COMPARE(label->opacity(), 1);
    QCOMPARE(shell.framesNow(), 0);
}

void TestCapture::nothingIsShotWithoutAProject()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.window().closeProject();
    QTRY_VERIFY(!shell.window().projectLoaded());
    QVERIFY(shell.global().connected());
    const QStringList before = shell.messages();
    emit shell.global().doCaptureFrame();
    QTest::qWait(100);
    QCOMPARE(shell.global().capturingInprogress(), -1);
    QCOMPARE(shell.messages(), before);
}

void TestCapture::aFailedSaveTellsWhyAndTheNextShotWorks()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    const QString folder = shell.capturedFolder();
    QVERIFY(QDir().rename(folder, shell.folder() + "/elsewhere"));
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(shell.told("The picture could not be saved"), 1);
    QTRY_COMPARE(shell.global().capturingInprogress(), -1);
    QCOMPARE(shell.framesNow(), 0);
    QVERIFY(QDir().rename(shell.folder() + "/elsewhere", folder));
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 1);
}

void TestCapture::disconnectingWhileSavingKeepsWhatIsSaved()
{
    CaptureWindow shell;
    shell.demo().setForcedSize({1920, 1080});
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    shell.press(Qt::Key_Return);
    emit shell.global().capturingDeviceDisconnect();
    QTRY_VERIFY(!shell.global().connected());
    QCOMPARE(shell.global().capturingInprogress(), -1);
    // Either the shot came to its end and has its row, or nothing of it is left.
    QTRY_COMPARE(shell.capturedFiles().size(), shell.framesNow());
    QVERIFY(shell.framesNow() >= 1);
    for (int row = 0; row < shell.framesNow(); ++row)
        QVERIFY(!QImage(shell.pictureOf(row)).isNull());
    QTRY_COMPARE(shell.framesInProjectFile(), shell.framesNow());
}

void TestCapture::quittingWhileConnectedDisconnectsFirst()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    QTest::ignoreMessage(QtDebugMsg, "Camera disconnected while having Quit request");
    shell.press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_COMPARE(shell.quits(), 1);
    QVERIFY(!shell.global().connected());
    QCOMPARE(shell.framesInProjectFile(), 1);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapture::aLostCameraIsToldOfAndShootingGoesOnAfterwards()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    shell.demo().setPresent(false);
    QTRY_VERIFY(!shell.global().connected());
    QCOMPARE(shell.told("Camera not present, not connected or not supported. Check hardware connection"), 1);
    QCOMPARE(shell.told("The camera is gone"), 1);
    QTRY_COMPARE(shell.framesInProjectFile(), 1);
    // It is still the one that is meant.
    QCOMPARE(shell.global().cameraName(), "Demo Webcam #301");
    shell.demo().setPresent(true);
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 2);
}

void TestCapture::reconnectingAConnectedCameraLetsItGoFirst()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QSignalSpy connected(&shell.global(), &WebcamGlobal::connectedChanged);
    shell.press(Qt::Key_F5);
    QCOMPARE(shell.window().qmlDialogUrl(), "CamReconnectConfirmDialog.qml");
    QVERIFY(shell.findItem("text", "Camera Demo Webcam #301 is already connected. Reconnect camera?")
            != nullptr);
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(connected.count(), 2);
    QVERIFY(shell.global().connected());
    QCOMPARE(shell.told("The camera is gone"), 0);
    QVERIFY(shell.shoot());
}

void TestCapture::theCameraStaysWhileTabsAndProjectsChange()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    QSignalSpy connected(&shell.global(), &WebcamGlobal::connectedChanged);
    for (const char *tab :
         {"timingUIisOn", "playbackUIisOn", "docsUIisOn", "captureUIisOn_maximized", "captureUIisOn"})
        shell.global().setMainTabsState(QString::fromLatin1(tab));
    QVERIFY(shell.createProject("second"));
    QCOMPARE(connected.count(), 0);
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 1);
    QCOMPARE(shell.capturedFiles().size(), 1);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapture::projectOperationsLeaveTheCameraAwake()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    emit shell.global().saveAndCleanup();
    QTRY_COMPARE(shell.window().currentThreadOperation(), int(Zum::ONoOperation));
    QTRY_VERIFY(!shell.global().paused());
    QVERIFY(shell.shoot());
}

QTEST_MAIN(TestCapture)
#include "tst_capture.moc"
