#include "CaptureWindow.h"

#include <QSignalSpy>
#include <QTest>

/// Shooting with the whole program: from the key to the picture on the disk, the row and the project file.
class TestCapture : public QObject
{
    Q_OBJECT

private slots:
    void connectingShowsTheLivePicture();
    void everyPressOfReturnMakesAFrame();
};

void TestCapture::connectingShowsTheLivePicture()
{
    CaptureWindow shell;
    QCOMPARE(shell.window().cameraQML().value<QObject *>()->property("name").toString(), "web camera");
    QTRY_COMPARE(shell.global().cameraName(), "Demo Webcam #301");
    QVERIFY(shell.connectCamera());
    QCOMPARE(shell.global().coordSystemWidth(), 320);
    QVERIFY(shell.told("Camera: Connecting...") == 1);
    QVERIFY(shell.told("Camera: Connected") == 1);
    shell.settle();
    QTest::qWait(300);
    shell.window().grabWindow().save("/tmp/panels/connected.png");
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapture::everyPressOfReturnMakesAFrame()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    for (int i = 0; i < 24; ++i)
        QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 24);
    QCOMPARE(shell.capturedFiles().size(), 24);
    QTest::qWait(300);
    shell.window().grabWindow().save("/tmp/panels/shot.png");
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

QTEST_MAIN(TestCapture)
#include "tst_capture.moc"
