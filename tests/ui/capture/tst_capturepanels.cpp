#include "CaptureWindow.h"
#include "support/ShownItems.h"

#include <QSignalSpy>
#include <QTest>

/// The panels of the camera: what each control does, and when it can be used.
class TestCapturePanels : public QObject
{
    Q_OBJECT

private slots:
    void panelTellsHowToConnectWhileThereIsNoCamera();
    void captureButtonNeedsCameraProjectAndRest();
    void resolutionAsksTheCameraAndShowsItsAnswer();
    void everyResolutionIsOffered();
    void checkBoxesSwitchTheirFlags_data();
    void checkBoxesSwitchTheirFlags();
    void powerFactorOffersThreePauses_data();
    void powerFactorOffersThreePauses();
    void readSettingsTurnsItsIconAndAsksTheCamera();
    void autoFocusFollowsTheCamera();
    void autoFocusIsOffWhereTheCameraHasNone();
    void slidersHaveTheirRanges_data();
    void slidersHaveTheirRanges();
    void slidersSendAndFollow();
    void slidersAskForTheirValues();
    void zoomKeysMoveTheZoomByFive();
    void slidersFoldAway();
    void captureModeIsChosenInTheTab();
    void framesPerShotAreRememberedAsTheExtraFrames();
    void plainShotMakesOneFrameOnAFreshStart();
    void prefixIsCleanedAndRemembered();
    void flipFlopOffersItsKindsAndDurations();
    void histogramFollowsTheLivePicture();
    void histogramChannelsAreRemembered();
    void frameIsDrawnAroundTheMiddle();
    void escapeLeavesTheFrameAsItWas();
    void eyedropperShowsTheColourUnderThePointer();
    void rightClickBringsTheBarAndTakesItAway();
    void wakeButtonGoesOnWithTheLiveView();
    void everyControlHasAToolTipAndAName();
    void panelScrollsAtEveryFontSize_data();
    void panelScrollsAtEveryFontSize();

private:
    static void choose(CaptureWindow &shell, const char *name, int index)
    {
        QQuickItem *item = shell.control(QString::fromLatin1(name));
        QVERIFY2(item != nullptr, name);
        QVERIFY(QMetaObject::invokeMethod(item, "chosen", Q_ARG(int, index)));
    }
};

void TestCapturePanels::panelTellsHowToConnectWhileThereIsNoCamera()
{
    CaptureWindow shell;
    QQuickItem *hint = shell.control("notConnectedHint");
    QVERIFY(hint != nullptr);
    QTRY_COMPARE(hint->property("text").toString(),
                 "Camera is not connected. Click 'Connect' to enable Demo Webcam #301");
    QVERIFY(shell.connectCamera());
    QTRY_VERIFY(shell.control("notConnectedHint") == nullptr);
}

void TestCapturePanels::captureButtonNeedsCameraProjectAndRest()
{
    CaptureWindow shell;
    QQuickItem *button = shell.control("captureButton");
    QVERIFY(button != nullptr);
    QCOMPARE(button->property("active").toBool(), false);
    QVERIFY(shell.connectCamera());
    QCOMPARE(button->property("active").toBool(), true);
    shell.global().setCapturingInprogress(0);
    QCOMPARE(button->property("active").toBool(), false);
    shell.global().setCapturingInprogress(-1);
    shell.click(button);
    QTRY_COMPARE(shell.framesNow(), 1);
}

void TestCapturePanels::resolutionAsksTheCameraAndShowsItsAnswer()
{
    CaptureWindow shell;
    QQuickItem *box = shell.control("resolution");
    QVERIFY(box != nullptr);
    QCOMPARE(box->property("active").toBool(), false);
    QVERIFY(shell.connectCamera());
    QCOMPARE(box->property("text").toString(), "320x180");
    shell.demo().setForcedSize({});
    QMetaObject::invokeMethod(box, "open");
    QTRY_VERIFY(shell.control("size 1920x1080") != nullptr);
    shell.trigger("size 1920x1080");
    QTRY_COMPARE(box->property("text").toString(), "1920x1080");
    QVERIFY(!box->property("opened").toBool());
    QVERIFY(shell.shoot());
    QCOMPARE(QImage(shell.pictureOf(0)).size(), QSize(1920, 1080));
}

void TestCapturePanels::everyResolutionIsOffered()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QMetaObject::invokeMethod(shell.control("resolution"), "open");
    const QStringList texts{"VGA  640x480  (4:3)",
                            "SVGA  800x600  (4:3)",
                            "XGA  1024x768  (4:3)",
                            "HD 720p  1280x720  (16:9)",
                            "SXGA  1280x1024  (5:4)",
                            "HD+  1600x900  (16:9)",
                            "Full HD 1080p  1920x1080  (16:9)",
                            "WUXGA  1920x1200  (16:10)",
                            "QWXGA  2048x1152  (16:9)",
                            "QXGA  2048x1536  (4:3)",
                            "WQXGA  2560x1600  (8:5)",
                            "WQXGA+  3200x1800  (16:9)",
                            "Ultra HD  3840x2160  (16:9)",
                            "WQUXGA  3840x2400  (16:10)",
                            "DCI 4K  3996x2160  (1.85:1)",
                            "4K Ultra HD  4096x2160  (1.90:1)"};
    for (const QString &text : texts)
        QVERIFY2(shell.findItem("text", text) != nullptr, qPrintable(text));
}

void TestCapturePanels::checkBoxesSwitchTheirFlags_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("rotate") << "Rotate 180°";
    QTest::newRow("grayscale") << "B/W";
    QTest::newRow("smoothRender") << "Anti-Alias";
    QTest::newRow("crop") << "Save Cropped";
}

void TestCapturePanels::checkBoxesSwitchTheirFlags()
{
    QFETCH(QString, text);
    const char *flag = QTest::currentDataTag();
    CaptureWindow shell;
    QQuickItem *box = shell.control(QString::fromLatin1(flag));
    QVERIFY(box != nullptr);
    QCOMPARE(box->property("text").toString(), text);
    QVERIFY(!box->property("active").toBool());
    QVERIFY(shell.connectCamera());
    QVERIFY(box->property("active").toBool());
    const bool before = shell.global().property(flag).toBool();
    shell.click(box);
    QCOMPARE(shell.global().property(flag).toBool(), !before);
    QCOMPARE(box->property("checked").toBool(), !before);
    if (text == "Save Cropped")
        QCOMPARE(box->property("toolTip").toString(), "Crop captured image to specified frame size 1280x720");
}

void TestCapturePanels::powerFactorOffersThreePauses_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("pause");
    QTest::newRow("Min") << 0 << 300;
    QTest::newRow("Middle") << 1 << 90;
    QTest::newRow("Max") << 2 << 20;
}

void TestCapturePanels::powerFactorOffersThreePauses()
{
    QFETCH(int, index);
    QFETCH(int, pause);
    CaptureWindow shell;
    QQuickItem *row = shell.control("powerFactor");
    QVERIFY(row != nullptr);
    QCOMPARE(row->property("toolTip").toString(), "Set FPS to Min to reduce CPU usage");
    // Any other value lights the last.
    QCOMPARE(shell.global().powerFactor(), 40);
    QCOMPARE(row->property("currentIndex").toInt(), 2);
    choose(shell, "powerFactor", index);
    QCOMPARE(shell.global().powerFactor(), pause);
    QCOMPARE(row->property("currentIndex").toInt(), index);
    auto *device = shell.window().capturingDeviceObject().value<QObject *>();
    QCOMPARE(device->property("powerFactor").toInt(), pause);
}

void TestCapturePanels::readSettingsTurnsItsIconAndAsksTheCamera()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QSignalSpy asked(&shell.global(), &WebcamGlobal::updateWebcamSettings);
    shell.trigger("readSettings");
    QCOMPARE(asked.count(), 1);
    QTRY_COMPARE(shell.control("turningIcon")->rotation(), 180);
    QVERIFY(shell.control("cameraSettings") == nullptr);
}

void TestCapturePanels::autoFocusFollowsTheCamera()
{
    CaptureWindow shell;
    QSignalSpy asked(&shell.global(), &WebcamGlobal::webCameraProperty);
    QVERIFY(shell.connectCamera());
    QVERIFY(asked.contains({int(Zum::WebcamAutofocus), -1}));
    QQuickItem *button = shell.control("autoFocus");
    emit shell.global().webCameraPropChanged(Zum::WebcamAutofocus, 1);
    QCOMPARE(button->property("text").toString(), "Auto Focus ON");
    asked.clear();
    shell.click(button);
    QCOMPARE(asked.takeFirst(), (QVariantList{int(Zum::WebcamAutofocus), 0}));
    QTRY_COMPARE(button->property("text").toString(), "Auto Focus OFF");
    shell.click(button);
    QCOMPARE(asked.takeFirst(), (QVariantList{int(Zum::WebcamAutofocus), 1}));
}

void TestCapturePanels::autoFocusIsOffWhereTheCameraHasNone()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QQuickItem *button = shell.control("autoFocus");
    QTRY_VERIFY(button->property("active").toBool());
    emit shell.global().webCameraPropChanged(Zum::WebcamAutofocus, -1);
    QVERIFY(!button->property("active").toBool());
}

void TestCapturePanels::slidersHaveTheirRanges_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<int>("normal");
    QTest::addColumn<int>("step");
    QTest::newRow("Focus") << int(Zum::WebcamFocus) << 0 << 40 << 0 << 5;
    QTest::newRow("Zoom") << int(Zum::WebcamZoom) << 1 << 100 << 1 << 1;
    QTest::newRow("Brightness") << int(Zum::WebcamBrightness) << 0 << 255 << 128 << 1;
    QTest::newRow("Contrast") << int(Zum::WebcamContrast) << 0 << 255 << 32 << 1;
    QTest::newRow("Saturation") << int(Zum::WebcamSaturation) << 0 << 255 << 32 << 1;
    QTest::newRow("Gain") << int(Zum::WebcamGain) << 0 << 127 << 26 << 1;
    QTest::newRow("Sharpness") << int(Zum::WebcamSharpness) << 0 << 255 << 72 << 1;
}

void TestCapturePanels::slidersHaveTheirRanges()
{
    QFETCH(int, id);
    static CaptureWindow *shell = nullptr;
    static std::unique_ptr<CaptureWindow> kept;
    if (shell == nullptr) {
        kept = std::make_unique<CaptureWindow>();
        shell = kept.get();
        shell->trigger("cameraControls");
    }
    QQuickItem *slider = shell->control(QStringLiteral("webcamSlider%1").arg(id));
    QVERIFY(slider != nullptr);
    QCOMPARE(slider->property("label").toString(), QString::fromLatin1(QTest::currentDataTag()));
    QTEST(slider->property("minimum").toInt(), "from");
    QTEST(slider->property("maximum").toInt(), "to");
    QTEST(slider->property("defaultValue").toInt(), "normal");
    QTEST(slider->property("step").toInt(), "step");
    if (id == Zum::WebcamSharpness)
        kept.reset();
}

void TestCapturePanels::slidersSendAndFollow()
{
    CaptureWindow shell;
    shell.trigger("cameraControls");
    QVERIFY(shell.connectCamera());
    QQuickItem *slider = shell.control(QStringLiteral("webcamSlider%1").arg(int(Zum::WebcamBrightness)));
    QSignalSpy sent(&shell.global(), &WebcamGlobal::webCameraProperty);
    QMetaObject::invokeMethod(slider, "moved", Q_ARG(double, 200.0));
    QCOMPARE(sent.takeFirst(), (QVariantList{int(Zum::WebcamBrightness), 200}));
    QCOMPARE(slider->property("value").toInt(), 200);
    for (const double answer : {-1.0, 256.0})
        emit shell.global().webCameraPropChanged(Zum::WebcamBrightness, answer);
    QCOMPARE(slider->property("value").toInt(), 200);
    emit shell.global().webCameraPropChanged(Zum::WebcamBrightness, 17);
    QCOMPARE(slider->property("value").toInt(), 17);
    emit shell.global().webCameraPropChanged(Zum::WebcamContrast, 99);
    QCOMPARE(slider->property("value").toInt(), 17);
}

void TestCapturePanels::slidersAskForTheirValues()
{
    CaptureWindow shell;
    QSignalSpy asked(&shell.global(), &WebcamGlobal::webCameraProperty);
    emit shell.global().updateWebcamSettings();
    for (const int id : {Zum::WebcamFocus, Zum::WebcamZoom, Zum::WebcamBrightness, Zum::WebcamContrast,
                         Zum::WebcamSaturation, Zum::WebcamGain, Zum::WebcamSharpness})
        QVERIFY(asked.contains({id, -1}));
}

void TestCapturePanels::zoomKeysMoveTheZoomByFive()
{
    CaptureWindow shell;
    QSignalSpy answered(&shell.global(), &WebcamGlobal::webCameraPropChanged);
    QVERIFY(shell.connectCamera());
    QTRY_VERIFY(answered.count() >= 8);
    QSignalSpy sent(&shell.global(), &WebcamGlobal::webCameraProperty);
    emit shell.global().webCameraPropChanged(Zum::WebcamZoom, 10);
    shell.press(Qt::Key_Equal, Qt::ControlModifier);
    QCOMPARE(sent.takeLast(), (QVariantList{int(Zum::WebcamZoom), 15}));
    shell.press(Qt::Key_Minus, Qt::ControlModifier);
    shell.press(Qt::Key_Minus, Qt::ControlModifier);
    shell.press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(sent.takeLast(), (QVariantList{int(Zum::WebcamZoom), 1}));
}

void TestCapturePanels::slidersFoldAway()
{
    CaptureWindow shell;
    const QString name = QStringLiteral("webcamSlider%1").arg(int(Zum::WebcamFocus));
    QVERIFY(shell.control(name) == nullptr);
    shell.trigger("cameraControls");
    QVERIFY(shell.control(name) != nullptr);
    shell.trigger("cameraControls");
    QVERIFY(shell.control(name) == nullptr);
}

void TestCapturePanels::captureModeIsChosenInTheTab()
{
    CaptureWindow shell;
    choose(shell, "captureMode", 1);
    QCOMPARE(shell.frames().captureMode(), int(Zum::CaptureModeReplace));
    QCOMPARE(shell.control("captureButton")->property("text").toString(), "Replace Frame");
    choose(shell, "captureMode", 0);
    QCOMPARE(shell.frames().captureMode(), int(Zum::CaptureModeAppend));
}

void TestCapturePanels::framesPerShotAreRememberedAsTheExtraFrames()
{
    CaptureWindow shell;
    QQuickItem *input = shell.control("framesPerShot");
    QVERIFY(input != nullptr);
    QCOMPARE(input->property("minimum").toInt(), 1);
    QCOMPARE(input->property("maximum").toInt(), 8);
    QMetaObject::invokeMethod(input, "edited", Q_ARG(int, 3));
    QCOMPARE(shell.frames().shootMultipleFrames(), 2);
    QCOMPARE(shell.controllers().settings().value("framestocapture").toInt(), 2);

    ShellWindow::Options options = CaptureWindow::options();
    options.settings.insert("framestocapture", 7);
    CaptureWindow next(options);
    QCOMPARE(next.frames().shootMultipleFrames(), 7);
    QCOMPARE(next.control("framesPerShot")->property("value").toInt(), 8);
}

void TestCapturePanels::plainShotMakesOneFrameOnAFreshStart()
{
    CaptureWindow shell;
    QCOMPARE(shell.frames().shootMultipleFrames(), 0);
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.shoot());
    QCOMPARE(shell.framesNow(), 1);
    QTRY_COMPARE(shell.control("shotsTaken")->property("text").toString(), "1");
}

void TestCapturePanels::prefixIsCleanedAndRemembered()
{
    CaptureWindow shell;
    shell.trigger("cameraTab1");
    shell.click(shell.control("useMask"));
    QVERIFY(shell.global().useFrameNameMask());
    QCOMPARE(shell.controllers().settings().value("useFrameNameMask").toString(), "true");
    QMetaObject::invokeMethod(shell.control("mask"), "edited", Q_ARG(QString, "a/b:cat"));
    QVERIFY(!shell.global().frameNameMask().contains('/'));
    QVERIFY(!shell.global().frameNameMask().contains(':'));
    QVERIFY(shell.global().frameNameMask().endsWith("cat"));
    QVERIFY(shell.control("nameExample")
                ->property("text")
                .toString()
                .startsWith(shell.global().frameNameMask() + "_000000_"));
}

void TestCapturePanels::flipFlopOffersItsKindsAndDurations()
{
    CaptureWindow shell;
    QQuickItem *tool = shell.findItem("title", "Flip-flop");
    QVERIFY(tool != nullptr);
    shell.click(tool);
    QQuickItem *kinds = shell.control("flipFlopKind");
    QVERIFY(kinds != nullptr);
    QCOMPARE(kinds->property("model").toStringList(), (QStringList{"Off", "Flash", "Fade"}));
    choose(shell, "flipFlopKind", 1);
    QCOMPARE(shell.global().flipFlop(), int(Zum::FlashFlipFlop));
    choose(shell, "flipFlopKind", 2);
    QCOMPARE(shell.global().flipFlop(), int(Zum::FadeFlipFlop));
    choose(shell, "flipFlopKind", 0);
    QCOMPARE(shell.global().flipFlop(), int(Zum::NoFlipFlop));
    QQuickItem *duration = shell.control("flipFlopDuration");
    QCOMPARE(duration->property("minimum").toDouble(), 0.5);
    QCOMPARE(duration->property("maximum").toDouble(), 5.0);
    QCOMPARE(duration->property("suffix").toString(), " sec.");
    QMetaObject::invokeMethod(duration, "moved", Q_ARG(double, 2.6));
    QCOMPARE(shell.global().flipFlopDuration(), 2500);
}

void TestCapturePanels::histogramFollowsTheLivePicture()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QQuickItem *bars = shell.control("histogramY");
    QVERIFY(bars != nullptr);
    QTRY_COMPARE(bars->property("histogramData").toList().size(), 257);
    shell.trigger("histogramOn");
    QVERIFY(!shell.global().histogramOn());
    QVERIFY(!bars->property("running").toBool());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestCapturePanels::histogramChannelsAreRemembered()
{
    CaptureWindow shell;
    shell.trigger("channelR");
    QCOMPARE(shell.controllers().settings().value("histogramRChannelOn").toString(), "false");
    QVERIFY(shell.control("histogramR") == nullptr);
    QVERIFY(shell.control("histogramG") != nullptr);
}

void TestCapturePanels::frameIsDrawnAroundTheMiddle()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.trigger("drawFrame");
    QTRY_VERIFY(shell.control("cropAreaMouse") != nullptr);
    QVERIFY(shell.settle());
    auto *device = shell.window().capturingDeviceObject().value<QQuickItem *>();
    // A quarter of the picture right of its middle, and a quarter below.
    const QPoint from = device->mapToScene(QPointF(200, 100)).toPoint();
    const QPoint to = device->mapToScene(QPointF(160 + 80, 90 + 45)).toPoint();
    QTest::mousePress(&shell.window(), Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(&shell.window(), (from + to) / 2);
    QTest::mouseMove(&shell.window(), to);
    QTRY_COMPARE(shell.control("drawnSize")->property("text").toString(), "160x88");
    QTest::mouseRelease(&shell.window(), Qt::LeftButton, Qt::NoModifier, to);
    QTRY_COMPARE(shell.global().cropAreaW(), 160);
    QCOMPARE(shell.global().cropAreaH(), 88);
    QVERIFY(!shell.evaluate("choosingCropArea").toBool());
    // And the shots are cut to it.
    shell.global().setCrop(true);
    QVERIFY(shell.shoot());
    QCOMPARE(QImage(shell.pictureOf(0)).size(), QSize(160, 88));
}

void TestCapturePanels::escapeLeavesTheFrameAsItWas()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.trigger("drawFrame");
    QVERIFY(shell.evaluate("choosingCropArea").toBool());
    shell.press(Qt::Key_Escape);
    QVERIFY(!shell.evaluate("choosingCropArea").toBool());
    QCOMPARE(shell.global().cropAreaW(), 1280);
}

void TestCapturePanels::eyedropperShowsTheColourUnderThePointer()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    shell.trigger("eyedropper");
    QVERIFY(shell.global().eyedropperOn());
    auto *device = shell.window().capturingDeviceObject().value<QQuickItem *>();
    // The curtain is red.
    const QPoint curtain = device->mapToScene(QPointF(10, 60)).toPoint();
    QTest::mouseMove(&shell.window(), curtain - QPoint(4, 4));
    QTest::mouseMove(&shell.window(), curtain);
    QTRY_VERIFY(shell.global().eyedropperVisible());
    QTRY_VERIFY(shell.global().eyedropperColor().red() > 2 * shell.global().eyedropperColor().green());
    QQuickItem *text = shell.control("eyedropperText");
    QVERIFY(text != nullptr);
    QVERIFY(text->property("text").toString().startsWith(
        QStringLiteral("R %1  G ").arg(shell.global().eyedropperColor().red())));
    QCOMPARE(shell.global().eyedropperColorValue().value("r").toInt(),
             shell.global().eyedropperColor().red());
}

void TestCapturePanels::rightClickBringsTheBarAndTakesItAway()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.control("disconnectCamera") == nullptr);
    auto *device = shell.window().capturingDeviceObject().value<QQuickItem *>();
    QVERIFY(shell.settle());
    const QPoint place = device->mapToScene(QPointF(160, 20)).toPoint();
    QTest::mouseClick(&shell.window(), Qt::RightButton, Qt::NoModifier, place);
    QTRY_VERIFY(shell.control("disconnectCamera") != nullptr);
    shell.click(shell.control("zoomIn"));
    QVERIFY(shell.global().camScaleFactor() > 1);
    shell.click(shell.control("zoomFit"));
    QCOMPARE(shell.global().camScaleFactor(), 1);
    QTest::mouseClick(&shell.window(), Qt::RightButton, Qt::NoModifier, place);
    QTRY_VERIFY(shell.control("disconnectCamera") == nullptr);
    QTest::mouseClick(&shell.window(), Qt::RightButton, Qt::NoModifier, place);
    QTRY_VERIFY(shell.control("disconnectCamera") != nullptr);
    shell.click(shell.control("disconnectCamera"));
    QCOMPARE(shell.window().qmlDialogUrl(), "CamDisconnectConfirmDialog.qml");
    shell.press(Qt::Key_Return);
    QTRY_VERIFY(!shell.global().connected());
}

void TestCapturePanels::wakeButtonGoesOnWithTheLiveView()
{
    CaptureWindow shell;
    QVERIFY(shell.connectCamera());
    QVERIFY(shell.control("wakeButton") == nullptr);
    shell.global().setPaused(true);
    QVERIFY(shell.control("wakeButton") == nullptr);
    shell.global().setUserIsInactive(true);
    shell.global().setInactivityElapsed(90);
    QTRY_VERIFY(shell.control("wakeButton") != nullptr);
    shell.click(shell.control("wakeButton"));
    QVERIFY(!shell.global().paused());
    QCOMPARE(shell.global().inactivityElapsed(), 0);
    QVERIFY(shell.shoot());
}

void TestCapturePanels::everyControlHasAToolTipAndAName()
{
    CaptureWindow shell;
    shell.trigger("cameraControls");
    QVERIFY(shell.connectCamera());
    for (int tab = 0; tab < 3; ++tab) {
        shell.trigger(qPrintable(QStringLiteral("cameraTab%1").arg(tab)));
        int controls = 0;
        shownItems::visit(shell.item("controlsPanesBox"), [&](QQuickItem *item) {
            const QByteArray type = item->metaObject()->className();
            const bool isControl = type.startsWith("CheckButton") || type.startsWith("IconButton")
                                   || type.startsWith("SliderNew") || type.startsWith("WebcamSlider_")
                                   || type.startsWith("NumberInput4") || type.startsWith("ChoiceRow");
            if (!isControl)
                return;
            ++controls;
            const QString what = QString::fromLatin1(type) + item->objectName();
            QVERIFY2(!item->property("toolTip").toString().isEmpty(), qPrintable(what));
        });
        QVERIFY(controls > 8);
    }
}

void TestCapturePanels::panelScrollsAtEveryFontSize_data()
{
    QTest::addColumn<int>("font");
    for (const int font : {0, 3, 5, 8})
        QTest::addRow("%d", font) << font;
}

void TestCapturePanels::panelScrollsAtEveryFontSize()
{
    QFETCH(int, font);
    ShellWindow::Options options = CaptureWindow::options();
    options.size = {1024, 600};
    options.settings.insert("fontsize", font);
    CaptureWindow shell(options);
    shell.trigger("cameraControls");
    QVERIFY(shell.settle());
    QQuickItem *box = shell.item("controlsPanesBox");
    QVERIFY(box->width() <= 0.36 * 1024 + 1);
    QQuickItem *flick = nullptr;
    for (QQuickItem *child : box->childItems())
        flick = child->inherits("QQuickFlickable") ? child : flick;
    QVERIFY(flick != nullptr);
    // Nothing reaches over the side, where it could not be scrolled to.
    shownItems::visit(flick, [flick](QQuickItem *item) {
        if (item->width() < 1 || item->inherits("QQuickText"))
            return;
        const qreal right = item->mapToItem(flick, QPointF(item->width(), 0)).x();
        QVERIFY2(right <= flick->width() + 1,
                 qPrintable(QString::fromLatin1(item->metaObject()->className()) + item->objectName()));
    });
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

QTEST_MAIN(TestCapturePanels)
#include "tst_capturepanels.moc"
