#include "CaptureWindow.h"
#include "support/DeviceContract.h"
#include "support/FakeCapture.h"

#include <QSignalSpy>
#include <QTest>
#include <vector>

/// Choosing, connecting and losing devices.
class TestCaptureDevices : public QObject
{
    Q_OBJECT

private slots:
    void listShowsWhatIsThere();
    void theMachinesOwnCameraComesBeforeTheBuiltInOne();
    void aClickChoosesTheDeviceAndIsRemembered();
    void anIndexCanBeTyped();
    void index300IsFireWire();
    void emptyListSaysSo();
    void aFileBecomesACamera();
    void aFileOfNoUseIsRefused();
    void aFileCanBeGivenOnTheCommandLine();
    void hardwareThatComesIsListedAtOnce();
    void dialogIsNamedByTheKind();
    void deviceTypeAndIconFollowTheName();
    void connectButtonConnectsAndAsksBeforeItDisconnects();
    void rightClickOnConnectReloadsTheDevices();
    void messagesStandInPlaceOfTheNameForAWhile();
    void aCameraThatIsNotThereIsToldOf();
    void dslrKindSaysThatNoCameraIsThere();
    void dslrKindLeadsToWebCameras();
    void anotherKindWhileConnectedWaits();
    void smallDslrPicturesAreWarnedOf();
    void dummyStandsInWithoutADevice();

private:
    static ShellWindow::Options withMachine(FakeMachine &machine)
    {
        ShellWindow::Options options = CaptureWindow::options();
        options.cameras = [&machine] {
            return machine.parts();
        };
        return options;
    }
    static QStringList deviceNames(CaptureWindow &shell)
    {
        return shell
            .evaluate(
                "(l => Array.from({length: l.count}, (_, i) => l.get(i).name))"
                "(MainWindow.capturingDeviceObject.listOfCameras)")
            .toStringList();
    }
};

void TestCaptureDevices::listShowsWhatIsThere()
{
    FakeMachine machine;
    *machine.nodes = {{"Big Camera", 0}, {"HDMI Grabber", 2}};
    CaptureWindow shell(withMachine(machine));
    emit shell.global().getCapturingDevicesList();
    QCOMPARE(deviceNames(shell), (QStringList{"Big Camera #0", "HDMI Grabber #2", "Demo Webcam #301"}));
    QCOMPARE(shell.evaluate("MainWindow.capturingDeviceObject.listOfCameras.get(1).value").toInt(), 2);
    QCOMPARE(shell.evaluate("MainWindow.capturingDeviceObject.listOfCameras.get(1).battery").toInt(), -1);
    shell.trigger("deviceListButton");
    QTRY_VERIFY(shell.findItem("name", "HDMI Grabber #2") != nullptr);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCaptureDevices::theMachinesOwnCameraComesBeforeTheBuiltInOne()
{
    FakeMachine machine;
    *machine.nodes = {{"Logitech One", 0}, {"Logitech Two", 1}};
    CaptureWindow shell(withMachine(machine));
    QTRY_COMPARE(shell.global().cameraName(), "Logitech Two #1");
    QCOMPARE(shell.global().camindex(), 1);
}

void TestCaptureDevices::aClickChoosesTheDeviceAndIsRemembered()
{
    FakeMachine machine;
    *machine.nodes = {{"Logitech One", 0}, {"Logitech Two", 1}};
    ShellWindow::Options options = withMachine(machine);
    QTemporaryDir folder;
    options.settingsPath = folder.filePath("settings.ini");
    {
        CaptureWindow shell(options);
        shell.trigger("deviceListButton");
        QQuickItem *row = nullptr;
        QTRY_VERIFY((row = shell.findItem("name", "Logitech One #0")) != nullptr);
        QMetaObject::invokeMethod(row, "chosen");
        QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
        QCOMPARE(shell.global().cameraName(), "Logitech One #0");
        QCOMPARE(shell.global().camindex(), 0);
        // A look at the list changes nothing.
        emit shell.global().getCapturingDevicesList();
        QCOMPARE(shell.global().camindex(), 0);
        shell.controllers().settings().sync();
    }
    CaptureWindow next(options);
    QTRY_COMPARE(next.global().cameraName(), "Logitech One #0");
}

void TestCaptureDevices::anIndexCanBeTyped()
{
    CaptureWindow shell;
    shell.trigger("deviceListButton");
    QQuickItem *input = nullptr;
    QTRY_VERIFY((input = shell.control("deviceIndex")) != nullptr);
    QCOMPARE(input->property("minimum").toInt(), 0);
    QCOMPARE(input->property("maximum").toInt(), 300);
    QCOMPARE(input->property("toolTip").toString(), "Try to set device index manually");
    QMetaObject::invokeMethod(input, "edited", Q_ARG(int, 7));
    QCOMPARE(shell.global().camindex(), 7);
    QCOMPARE(shell.global().cameraName(), "Device #7");
    QCOMPARE(shell.controllers().settings().value("lastWebcamIndex").toInt(), 7);
}

void TestCaptureDevices::index300IsFireWire()
{
    ShellWindow::Options options = CaptureWindow::options();
    options.settings.insert("lastWebcamIndex", 300);
    options.cameras = [] {
        CaptureEnvironment::Parts parts;
        parts.clock = std::make_shared<SystemCaptureClock>();
        parts.demo = false;
        return parts;
    };
    CaptureWindow shell(options);
    QTRY_COMPARE(shell.global().cameraName(), "FireWire Device");
}

void TestCaptureDevices::emptyListSaysSo()
{
    ShellWindow::Options options = CaptureWindow::options(Zum::CapturingDeviceCanonEOS);
    CaptureWindow shell(options);
    shell.trigger("deviceListButton");
    QTRY_VERIFY(shell.findItem("title", "No Devices") != nullptr);
}

void TestCaptureDevices::aFileBecomesACamera()
{
    CaptureWindow shell;
    for (int i = 0; i < 3; ++i) {
        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(QColor::fromHsv(i * 100, 200, 200));
        QVERIFY(
            picture.save(shell.folder() + QStringLiteral("/still_%1.png").arg(i, 4, 10, QLatin1Char('0'))));
    }
    shell.trigger("deviceListButton");
    QTRY_VERIFY(shell.control("addFileCamera") != nullptr);
    QCOMPARE(shell.control("addFileCamera")->property("text").toString(), "Add file as camera...");
    shell.dialogs().pathAnswers.append(shell.folder() + "/still_0000.png");
    shell.trigger("addFileCamera");
    QTRY_COMPARE(shell.global().cameraName(), "still_0000.png #302");
    QQuickItem *row = nullptr;
    QTRY_VERIFY((row = shell.findItem("name", "still_0000.png #302")) != nullptr);
    QVERIFY(row->property("removable").toBool());
    shell.press(Qt::Key_Escape);
    QVERIFY(shell.connectCamera());
    QCOMPARE(shell.global().coordSystemWidth(), 64);
    QVERIFY(shell.shoot());
    QCOMPARE(QImage(shell.pictureOf(0)).size(), QSize(64, 48));
    QVERIFY(shell.disconnectCamera());
    shell.trigger("deviceListButton");
    QTRY_VERIFY((row = shell.findItem("name", "still_0000.png #302")) != nullptr);
    QMetaObject::invokeMethod(row, "removed");
    QTRY_VERIFY(shell.findItem("name", "still_0000.png #302") == nullptr);
    QVERIFY(QFile::exists(shell.folder() + "/still_0000.png"));
}

void TestCaptureDevices::aFileOfNoUseIsRefused()
{
    CaptureWindow shell;
    shell.trigger("deviceListButton");
    QTRY_VERIFY(shell.control("addFileCamera") != nullptr);
    // Given up.
    shell.trigger("addFileCamera");
    QCOMPARE(shell.global().camindex(), 301);
    QCOMPARE(shell.messages(), QStringList());
    shell.dialogs().pathAnswers.append(shell.window().projPath());
    shell.trigger("addFileCamera");
    QCOMPARE(shell.global().camindex(), 301);
    QCOMPARE(shell.told("is neither a movie nor an image"), 1);
}

void TestCaptureDevices::aFileCanBeGivenOnTheCommandLine()
{
    QTemporaryDir folder;
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(folder.filePath("one_1.png")));
    // The kind that is set cannot open files.
    ShellWindow::Options options = CaptureWindow::options(Zum::CapturingDeviceCanonEOS);
    options.arguments = QStringList{"morvane", "--camera", folder.filePath("one_1.png")};
    CaptureWindow shell(options);
    QTRY_COMPARE(shell.global().cameraName(), "one_1.png #302");
    QVERIFY(shell.connectCamera());
    QCOMPARE(shell.global().coordSystemWidth(), 64);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCaptureDevices::hardwareThatComesIsListedAtOnce()
{
    FakeMachine machine;
    CaptureWindow shell(withMachine(machine));
    QTRY_COMPARE(deviceNames(shell), QStringList{"Demo Webcam #301"});
    *machine.nodes = {{"Logitech", 0}};
    emit machine.monitor->changed();
    QTRY_COMPARE(deviceNames(shell), (QStringList{"Logitech #0", "Demo Webcam #301"}));
    QCOMPARE(shell.global().cameraName(), "Logitech #0");
}

void TestCaptureDevices::dialogIsNamedByTheKind()
{
    {
        CaptureWindow shell;
        shell.trigger("deviceListButton");
        QTRY_VERIFY(shell.findItem("heading", "Available Web Cameras and USB Video Capture Devices")
                    != nullptr);
    }
    CaptureWindow canon(CaptureWindow::options(Zum::CapturingDeviceCanonEOS));
    canon.trigger("deviceListButton");
    QTRY_VERIFY(canon.findItem("heading", "Available Cameras") != nullptr);
    QVERIFY(canon.control("addFileCamera") == nullptr);
}

void TestCaptureDevices::deviceTypeAndIconFollowTheName()
{
    CaptureWindow shell;
    QTRY_COMPARE(shell.window().currentDeviceType(), int(Zum::CapturingDeviceWebcam));
    QCOMPARE(shell.control("deviceIcon")->property("icon").toString(), "images/webcam.svg");
    shell.global().setCameraName("AverMedia Live");
    QCOMPARE(shell.window().currentDeviceType(), int(Zum::CapturingDeviceHDMITethering));
    QCOMPARE(shell.control("deviceIcon")->property("icon").toString(), "images/dongle.svg");
    shell.trigger("deviceIcon");
    QCOMPARE(shell.window().qmlDialogUrl(), "PropertiesDialog.qml");
}

void TestCaptureDevices::connectButtonConnectsAndAsksBeforeItDisconnects()
{
    CaptureWindow shell;
    QQuickItem *button = shell.control("connectButton");
    QVERIFY(button != nullptr);
    QCOMPARE(button->property("text").toString(), "Connect");
    QVERIFY(button->property("toolTip").toString().startsWith("Connect device"));
    shell.click(button);
    QTRY_VERIFY(shell.global().connected());
    QCOMPARE(button->property("text").toString(), "Disconnect");
    QVERIFY(button->property("toolTip").toString().startsWith("Disconnect device"));
    shell.click(button);
    QCOMPARE(shell.window().qmlDialogUrl(), "CamDisconnectConfirmDialog.qml");
    QTRY_VERIFY(shell.findItem("text", "Disconnect Demo Webcam #301 camera?") != nullptr);
    shell.press(Qt::Key_Escape);
    QVERIFY(shell.global().connected());
    shell.click(button);
    shell.press(Qt::Key_Return);
    QTRY_VERIFY(!shell.global().connected());
    QCOMPARE(shell.told("Camera: Disconnected"), 1);
    QCOMPARE(shell.told("The camera is gone"), 0);
}

void TestCaptureDevices::rightClickOnConnectReloadsTheDevices()
{
    CaptureWindow shell;
    QQuickItem *button = shell.control("connectButton");
    QVERIFY(QMetaObject::invokeMethod(button, "rightClicked"));
    QCOMPARE(shell.window().qmlDialogUrl(), "CamReloadDeviceConfirmDialog.qml");
    QTRY_VERIFY(shell.findItem("text", "Reload device connection subsystem?") != nullptr);
    QObject *pause = shell.timer(1200);
    QVERIFY(pause != nullptr);
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Undefined");
    QVERIFY(shell.evaluate("MainWindow.capturingDeviceObject === deviceDummy").toBool());
    QVERIFY(shell.control("resolution") == nullptr);
    pause->setProperty("interval", 1);
    QTRY_COMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "web camera");
    QTRY_VERIFY(shell.control("resolution") != nullptr);
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCaptureDevices::messagesStandInPlaceOfTheNameForAWhile()
{
    CaptureWindow shell;
    QQuickItem *label = shell.control("deviceLabel");
    QTRY_COMPARE(label->property("text").toString(), "Demo Webcam #301");
    QObject *time = shell.window().rootObject()->findChild<QObject *>("cameraMessageTime");
    QVERIFY(time != nullptr);
    QCOMPARE(time->property("interval").toInt(), 3500);
    emit shell.global().appendMessage(Zum::CameraMessage, Zum::Info, "Hello");
    QCOMPARE(label->property("text").toString(), "Hello");
    emit shell.global().appendMessage(Zum::FileMessage, Zum::Info, "Not of the camera");
    QCOMPARE(label->property("text").toString(), "Hello");
    time->setProperty("interval", 1);
    QTRY_COMPARE(label->property("text").toString(), "Demo Webcam #301");
}

void TestCaptureDevices::aCameraThatIsNotThereIsToldOf()
{
    CaptureWindow shell;
    shell.demo().setPresent(false);
    shell.press(Qt::Key_F5);
    QTRY_COMPARE(
        shell.told("Camera: Camera not present, not connected or not supported. Check hardware connection"),
        1);
    QTRY_VERIFY(!shell.global().busy());
    QVERIFY(!shell.global().connected());
    QCOMPARE(shell.told("Camera: Disconnected"), 0);
    QTRY_VERIFY(shell.global().ready());
}

void TestCaptureDevices::dslrKindSaysThatNoCameraIsThere()
{
    CaptureWindow shell(CaptureWindow::options(Zum::CapturingDeviceCanonEOS));
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "Canon EOS camera");
    QVERIFY(shell.control("noDriver") != nullptr);
    shell.press(Qt::Key_F5);
    QCOMPARE(shell.told("Camera: Connecting..."), 1);
    QCOMPARE(
        shell.told("Camera: Camera not present, not connected or not supported. Check hardware connection"),
        1);
    QCOMPARE(shell.told("no driver for DSLR cameras. Choose web cameras as the device type in the settings"),
             1);
    QVERIFY(!shell.global().connected());
    QVERIFY(!shell.control("captureButton")->property("active").toBool());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCaptureDevices::dslrKindLeadsToWebCameras()
{
    CaptureWindow shell(CaptureWindow::options(Zum::CapturingDeviceCanonEOS));
    QObject *pause = shell.timer(1200);
    pause->setProperty("interval", 1);
    shell.trigger("useWebCameras");
    QTRY_COMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "web camera");
    QTRY_VERIFY(shell.control("resolution") != nullptr);
    QTRY_COMPARE(shell.global().cameraName(), "Demo Webcam #301");
    QVERIFY(shell.connectCamera());
}

void TestCaptureDevices::anotherKindWhileConnectedWaits()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.evaluate("propertiesBox()");
    QQuickItem *kinds = nullptr;
    QTRY_VERIFY((kinds = shell.control("deviceType")) != nullptr);
    QMetaObject::invokeMethod(kinds, "chosen", Q_ARG(int, 2));
    QCOMPARE(shell.controllers().settings().value("currentCapturingDevice").toInt(),
             int(Zum::CapturingDeviceHDMITethering));
    QVERIFY(shell.global().connected());
    QCOMPARE(shell.evaluate("MainWindow.cameraQML.name").toString(), "web camera");
    QCOMPARE(shell.window().currentCapturingDevice(), int(Zum::CapturingDeviceWebcam));
}

void TestCaptureDevices::smallDslrPicturesAreWarnedOf()
{
    CaptureWindow shell;
    emit shell.global().imageQualityError();
    QCOMPARE(shell.window().qmlDialogUrl(), "ImageQualityDialog.qml");
    shell.press(Qt::Key_Return);
    QTRY_COMPARE(shell.window().qmlDialogUrl(), QString());
}

void TestCaptureDevices::dummyStandsInWithoutADevice()
{
    CaptureWindow shell;
    // Whatever common panels bind to is there.
    std::vector<const char *> names(deviceProperties.cbegin(), deviceProperties.cend());
    names.insert(names.end(), {"useIcc", "iccPath", "photoSaveTIFF", "photoSaveRAW", "dofEnabled",
                               "imageQualityCurrent", "imageSizeCurrent", "listOfCameras", "lensFocusInfo",
                               "wbTempValueEnabled", "wbTempValue", "zoomRectPosX", "zoomRectPosY",
                               "manualFocusEnabled", "floatingPanelVisible", "batteryLevel"});
    for (const char *name : names) {
        QVERIFY2(shell.item("deviceDummy")->metaObject()->indexOfProperty(name) >= 0, name);
        auto *device = shell.window().capturingDeviceObject().value<QObject *>();
        QVERIFY2(device->metaObject()->indexOfProperty(name) >= 0, name);
    }
    QCOMPARE(shell.evaluate("deviceDummy.wbTempValue").toInt(), 2800);
    QCOMPARE(shell.evaluate("deviceDummy.imageQualityCurrent").toString(), "JPEG");
    QCOMPARE(shell.evaluate("deviceDummy.histogramDataY.length").toInt(), 2);
    QVERIFY(shell.evaluate("deviceDummy.listOfCameras === deviceDummy.isoModel").toBool());
}

QTEST_MAIN(TestCaptureDevices)
#include "tst_capturedevices.moc"
