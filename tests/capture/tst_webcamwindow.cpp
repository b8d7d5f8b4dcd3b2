#include "capture/LiveViewItem.h"
#include "capture/OsSpecific.h"
#include "capture/webcam/WebCamEvent.h"
#include "support/DeviceContract.h"
#include "WebcamBench.h"

#include <algorithm>
#include <QMetaProperty>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <vector>

/// What the device tells the scene and takes from it: rate, pause, pace, properties, sizes, histogram, names.
class TestWebCamWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void startsWithTheDefaults();

    void theRateIsMeasuredEveryFourSeconds();
    void aRateWithoutValueIsTold();
    void aPauseKeepsTheConnectionAndStopsTheCamera();
    void aChangeOfPaceWhilePausedWaitsForTheEnd();
    void pausingWithoutThreadDoesNothing();
    void powerFactorsAndWhatTheyDo_data();
    void powerFactorsAndWhatTheyDo();
    void powerFactorFiveHundredChangesNothing();

    void propertiesGoByTheirNumbers_data();
    void propertiesGoByTheirNumbers();
    void aNegativeValueReadsTheProperty();
    void aPropertyThatIsNotTakenComesBackAsMinusOne();
    void automaticPropertiesAreReadBack();
    void propertiesOutOfRangeDoNothing();
    void propertiesAreIgnoredWhilePaused();
    void theSettingsDialogIsTheDriversOwn();

    void aFrameSizeThatIsNotOfferedComesBackAsTheRealOne();
    void theSizeGoesToTheGlobalStateAndTheItem();
    void aNewSizeAppliesTurnGrayAndSmoothAgain();
    void theHistogramComesAboutOnceASecond();
    void noHistogramUnlessWanted();
    void eventsOfTheSharedVocabulary();
    void messagesArePrintedInQuotes();
    void theSceneGivesItsEnvironmentByName();
    void theSceneKnowsTheseNames();

private:
    void send(int number, const QVariant &value = {})
    {
        WebCamEvent event(number, value);
        QCoreApplication::sendEvent(bench->window.get(), &event);
    }
    std::unique_ptr<WebcamBench> bench;
};

void TestWebCamWindow::init()
{
    bench = std::make_unique<WebcamBench>();
}

void TestWebCamWindow::cleanup()
{
    bench.reset();
}

void TestWebCamWindow::startsWithTheDefaults()
{
    WebCamWindow window;
    QCOMPARE(window.size(), QSizeF(540, 360));
    QCOMPARE(window.coordSystemWidth(), 99.0);
    QCOMPARE(window.coordSystemHeight(), 99.0);
    QCOMPARE(window.availWidth(), 10);
    QCOMPARE(window.availHeight(), 10);
    QCOMPARE(window.fps(), 0);
    QCOMPARE(window.powerFactor(), 0);
    QCOMPARE(window.zoomFactor(), 1);
    QVERIFY(window.renderSmooth() && window.histogramOn() && window.focusFrameOn());
    QVERIFY(!window.connected() && !window.busy() && !window.paused() && !window.rotate());
    QVERIFY(!window.grayscale() && !window.eyedropperOn() && !window.threadIsRunning());
    QVERIFY(window.firmWareVer().isEmpty() && window.histogramDataY().isEmpty());
}

void TestWebCamWindow::theRateIsMeasuredEveryFourSeconds()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy fps(bench->window.get(), &WebCamWindow::fpsChanged);
    QTRY_VERIFY(fps.size() >= 2);
    // One pass in 33 ms, so 121 or 122 in four seconds.
    QVERIFY(bench->window->fps() == 30 || bench->window->fps() == 31);
}

void TestWebCamWindow::aRateWithoutValueIsTold()
{
    QSignalSpy fps(bench->window.get(), &WebCamWindow::fpsChanged);
    QTest::ignoreMessage(QtDebugMsg, "Failed to get FPS");
    send(WebCamEvent::Rate);
    QCOMPARE(fps.size(), 0);
    send(WebCamEvent::Rate, 12);
    QCOMPARE(fps.size(), 1);
    QCOMPARE(bench->window->fps(), 0);
}

void TestWebCamWindow::aPauseKeepsTheConnectionAndStopsTheCamera()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy powerFactor(bench->window.get(), &WebCamWindow::powerFactorChanged);
    bench->window->setPowerFactor(90);
    bench->window->setPaused(true);
    QCOMPARE(powerFactor.last().first().toInt(), 1000);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 400);
    const int readings = bench->machine.camera->readings;
    const qint64 before = bench->machine.clock->nowMs();
    QTRY_VERIFY(bench->machine.clock->nowMs() > before + 4000);
    QCOMPARE(bench->machine.camera->readings.load(), readings);
    QVERIFY(bench->window->connected() && bench->window->paused());
    bench->window->setPaused(false);
    QCOMPARE(powerFactor.last().first().toInt(), 90);
    QCOMPARE(bench->window->powerFactor(), 90);
    QTRY_VERIFY(bench->machine.camera->readings > readings);
}

void TestWebCamWindow::aChangeOfPaceWhilePausedWaitsForTheEnd()
{
    QVERIFY(bench->connectCamera());
    bench->window->setPaused(true);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 400);
    bench->window->setPowerFactor(20);
    const qint64 before = bench->machine.clock->nowMs();
    QTRY_VERIFY(bench->machine.clock->nowMs() > before + 2000);
    QCOMPARE(bench->machine.clock->lastDelayMs(), 400);
    QSignalSpy powerFactor(bench->window.get(), &WebCamWindow::powerFactorChanged);
    bench->window->setPaused(false);
    QCOMPARE(powerFactor.last().first().toInt(), 20);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 33);
}

void TestWebCamWindow::pausingWithoutThreadDoesNothing()
{
    QSignalSpy changes(bench->window.get(), &WebCamWindow::pausedChanged);
    bench->window->setPaused(true);
    QVERIFY(!bench->window->paused());
    QCOMPARE(changes.size(), 0);
}

void TestWebCamWindow::powerFactorsAndWhatTheyDo_data()
{
    QTest::addColumn<int>("powerFactor");
    QTest::addColumn<int>("intervalMs");
    QTest::newRow("max is limited") << 20 << 33;
    QTest::newRow("just below") << 33 << 33;
    QTest::newRow("first that counts") << 34 << 34;
    QTest::newRow("middle") << 90 << 90;
    QTest::newRow("min") << 300 << 300;
    QTest::newRow("last that counts") << 400 << 400;
    QTest::newRow("pause") << 1000 << 400;
}

void TestWebCamWindow::powerFactorsAndWhatTheyDo()
{
    QFETCH(int, powerFactor);
    QFETCH(int, intervalMs);
    QVERIFY(bench->connectCamera());
    bench->window->setPowerFactor(50);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 50);
    bench->window->setPowerFactor(powerFactor);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), intervalMs);
    const int readings = bench->machine.camera->readings;
    if (powerFactor < 1000)
        QTRY_VERIFY(bench->machine.camera->readings > readings);
}

void TestWebCamWindow::powerFactorFiveHundredChangesNothing()
{
    QVERIFY(bench->connectCamera());
    bench->window->setPowerFactor(90);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 90);
    for (const int powerFactor : {401, 500, 999}) {
        bench->window->setPowerFactor(powerFactor);
        const int readings = bench->machine.camera->readings;
        QTRY_VERIFY(bench->machine.camera->readings > readings + 5);
        QCOMPARE(bench->machine.clock->lastDelayMs(), 90);
    }
}

void TestWebCamWindow::propertiesGoByTheirNumbers_data()
{
    QTest::addColumn<int>("property");
    QTest::addColumn<int>("number");
    QTest::newRow("brightness") << int(Zum::WebcamBrightness) << 10;
    QTest::newRow("contrast") << int(Zum::WebcamContrast) << 11;
    QTest::newRow("saturation") << int(Zum::WebcamSaturation) << 12;
    QTest::newRow("hue") << int(Zum::WebcamHue) << 13;
    QTest::newRow("gain") << int(Zum::WebcamGain) << 14;
    QTest::newRow("exposure") << int(Zum::WebcamExposure) << 15;
    QTest::newRow("auto exposure") << int(Zum::WebcamAutoExposure) << 21;
    QTest::newRow("sharpness") << int(Zum::WebcamSharpness) << 20;
    QTest::newRow("zoom") << int(Zum::WebcamZoom) << 27;
    QTest::newRow("focus") << int(Zum::WebcamFocus) << 28;
    QTest::newRow("autofocus") << int(Zum::WebcamAutofocus) << 39;
}

void TestWebCamWindow::propertiesGoByTheirNumbers()
{
    QFETCH(int, property);
    QFETCH(int, number);
    QVERIFY(bench->connectCamera());
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    emit bench->global.webCameraProperty(property, 255);
    QTRY_VERIFY([&] {
        const auto sets = bench->machine.camera->sets();
        return std::count(sets.begin(), sets.end(), std::pair(number, 255.0)) == 1;
    }());
    const bool readsBack = property == Zum::WebcamAutoExposure || property == Zum::WebcamAutofocus;
    const int readings = bench->machine.camera->readings;
    QTRY_VERIFY(bench->machine.camera->readings > readings + 2);
    QCOMPARE(answers.size(), readsBack ? 1 : 0);
}

void TestWebCamWindow::aNegativeValueReadsTheProperty()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    emit bench->global.webCameraProperty(Zum::WebcamGain, -1);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.first(), (QVariantList{int(Zum::WebcamGain), 77.0}));
}

void TestWebCamWindow::aPropertyThatIsNotTakenComesBackAsMinusOne()
{
    QVERIFY(bench->connectCamera());
    bench->machine.camera->takesProperties = false;
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    emit bench->global.webCameraProperty(Zum::WebcamFocus, 10);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.first(), (QVariantList{int(Zum::WebcamFocus), -1.0}));
}

void TestWebCamWindow::automaticPropertiesAreReadBack()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    emit bench->global.webCameraProperty(Zum::WebcamAutofocus, 1);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(answers.first(), (QVariantList{int(Zum::WebcamAutofocus), 77.0}));
    bench->machine.camera->takesProperties = false;
    emit bench->global.webCameraProperty(Zum::WebcamAutoExposure, 1);
    QTRY_COMPARE(answers.size(), 3);
    QCOMPARE(answers.at(1), (QVariantList{int(Zum::WebcamAutoExposure), -1.0}));
    QCOMPARE(answers.at(2), (QVariantList{int(Zum::WebcamAutoExposure), 77.0}));
}

void TestWebCamWindow::propertiesOutOfRangeDoNothing()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    const auto before = bench->machine.camera->sets().size();
    emit bench->global.webCameraProperty(11, 5);
    emit bench->global.webCameraProperty(-1, 5);
    emit bench->global.webCameraProperty(Zum::WebcamZoom, 256);
    emit bench->global.webCameraProperty(Zum::WebcamZoom, -1);
    QTRY_COMPARE(answers.size(), 1);
    QCOMPARE(bench->machine.camera->sets().size(), before);
}

void TestWebCamWindow::propertiesAreIgnoredWhilePaused()
{
    QVERIFY(bench->connectCamera());
    bench->window->setPaused(true);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 400);
    QSignalSpy answers(&bench->global, &WebcamGlobal::webCameraPropChanged);
    emit bench->global.webCameraProperty(Zum::WebcamZoom, -1);
    bench->window->setPaused(false);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 33);
    QCOMPARE(answers.size(), 0);
    QVERIFY(bench->window->connected());
}

void TestWebCamWindow::theSettingsDialogIsTheDriversOwn()
{
    bench->window->showSettingsDialog(1);
    QVERIFY(bench->connectCamera());
    bench->window->showSettingsDialog(1);
    QTRY_VERIFY([&] {
        const auto sets = bench->machine.camera->sets();
        return std::count(sets.begin(), sets.end(), std::pair(37, 1.0)) == 1;
    }());
}

void TestWebCamWindow::aFrameSizeThatIsNotOfferedComesBackAsTheRealOne()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy sizes(bench->window.get(), &WebCamWindow::coordSystemChanged);
    bench->window->setFrameSize(800, 600);
    QTRY_VERIFY(sizes.size() >= 1);
    QCOMPARE(bench->window->coordSystemWidth(), 64.0);
    const auto asked = [&](int number, double value) {
        const auto sets = bench->machine.camera->sets();
        return std::count(sets.begin(), sets.end(), std::pair(number, value));
    };
    QCOMPARE(asked(3, 800), 1);
    QCOMPARE(asked(4, 600), 1);
    // The first grab asks with -1, before anybody has asked for a size.
    QCOMPARE(asked(3, -1), 1);
    const int readings = bench->machine.camera->readings;
    QTRY_VERIFY(bench->machine.camera->readings > readings + 5);
    QCOMPARE(asked(3, 800), 1);
}

void TestWebCamWindow::theSizeGoesToTheGlobalStateAndTheItem()
{
    bench->window->setAvailWidth(32);
    QVERIFY(bench->connectCamera());
    QCOMPARE(bench->window->coordSystemWidth(), 64.0);
    QCOMPARE(bench->window->coordSystemHeight(), 48.0);
    QCOMPARE(bench->global.coordSystemWidth(), 64.0);
    QCOMPARE(bench->global.coordSystemHeight(), 48.0);
    QTRY_COMPARE(bench->window->size(), QSizeF(32, 24));
    QTRY_COMPARE(bench->window->liveView()->size(), QSizeF(32, 24));
    bench->window->setAvailWidth(1000);
    QTRY_COMPARE(bench->window->liveView()->size(), QSizeF(64, 48));
    QTRY_COMPARE(bench->window->size(), QSizeF(64, 48));
    bench->machine.camera->onRead(ScriptedCamera::plain(80, 60));
    QTRY_COMPARE(bench->window->coordSystemWidth(), 80.0);
}

void TestWebCamWindow::aNewSizeAppliesTurnGrayAndSmoothAgain()
{
    bench->window->setGrayscale(true);
    bench->window->setRotate(true);
    QVERIFY(bench->connectCamera());
    auto *view = qobject_cast<LiveViewItem *>(bench->window->liveView());
    QTRY_VERIFY(view->rotated());
    QVERIFY(view->grayscale());
    bench->window->setGrayscale(false);
    bench->window->setRotate(false);
    QTRY_VERIFY(!view->rotated() && !view->grayscale());
}

void TestWebCamWindow::theHistogramComesAboutOnceASecond()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy rate(bench->window.get(), &WebCamWindow::fpsChanged);
    QTRY_VERIFY(rate.size() >= 1);
    QCOMPARE(bench->window->histogramDataY().size(), 257);
    QCOMPARE(bench->window->histogramDataR().size(), 257);
    QSignalSpy histograms(bench->window.get(), &WebCamWindow::histogramDataBChanged);
    const qint64 before = bench->machine.clock->nowMs();
    QTRY_VERIFY(bench->machine.clock->nowMs() > before + 8000);
    const qint64 seconds = (bench->machine.clock->nowMs() - before) / 1000;
    QVERIFY2(histograms.size() >= seconds - 3 && histograms.size() <= seconds + 2,
             qPrintable(QString("%1 in %2 s").arg(histograms.size()).arg(seconds)));
}

void TestWebCamWindow::noHistogramUnlessWanted()
{
    bench->window->setHistogramOn(false);
    QVERIFY(bench->connectCamera());
    const int readings = bench->machine.camera->readings;
    QTRY_VERIFY(bench->machine.camera->readings > readings + 50);
    QVERIFY(bench->window->histogramDataY().isEmpty());
    bench->window->setHistogramOn(true);
    QTRY_COMPARE(bench->window->histogramDataY().size(), 257);
}

void TestWebCamWindow::eventsOfTheSharedVocabulary()
{
    send(1302);
    QVERIFY(bench->told(Zum::Info,
                        "Failed to initialize LiveView. Probably your camera does not support this feature"));
    QVERIFY(bench->told(Zum::Error, WebcamBench::notPresent()));
    // What to do comes first: the newest message stands on top.
    QCOMPARE(bench->messages.last().second, WebcamBench::notPresent());
    QVERIFY(bench->messages.at(bench->messages.size() - 2).second.startsWith("Close other programs"));
    send(1312);
    QVERIFY(bench->told(Zum::Error, "No connection with camera"));
    send(1342);
    QVERIFY(bench->window->busy() && bench->global.busy());
    send(1343);
    QVERIFY(!bench->window->busy() && !bench->global.busy());
    send(1311, "text");
    QVERIFY(bench->told(Zum::Warning, "text"));
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    send(1342);
    send(1340);
    QCOMPARE(saved.size(), 1);
    QVERIFY(!bench->window->busy());
    send(1336, 100);
    send(1335, 25);
    send(1337, "Transfer image...");
    QCOMPARE(bench->window->progressTotal(), 100);
    QCOMPARE(bench->window->progressCurrent(), 25);
    QCOMPARE(bench->window->progressAction(), QString("Transfer image..."));
}

void TestWebCamWindow::messagesArePrintedInQuotes()
{
    QTest::ignoreMessage(QtDebugMsg, "\"hello\"");
    bench->window->printMessage(1, "hello");
}

void TestWebCamWindow::theSceneGivesItsEnvironmentByName()
{
    qmlRegisterType<WebCamWindow>("WebCamera", 1, 0, "WebCamera");
    qmlRegisterType<OsSpecific>("OsSpecific", 1, 0, "OsSpecific");
    QQmlEngine engine;
    engine.rootContext()->setContextProperty(CaptureEnvironment::contextName, &bench->environment);
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick; import WebCamera 1.0; import OsSpecific 1.0\n"
        "WebCamera {\n"
        "    id: cam\n"
        "    property var devices: os.usbCapturingDevicesList\n"
        "    property OsSpecific os: OsSpecific {}\n"
        "    function look() { os.getDevices(); cam.connects(); return devices[0].name; }\n"
        "}",
        QUrl());
    const std::unique_ptr<QObject> object(component.create());
    QVERIFY2(object, qPrintable(component.errorString()));
    QVariant name;
    QVERIFY(QMetaObject::invokeMethod(object.get(), "look", Q_RETURN_ARG(QVariant, name)));
    QCOMPARE(name.toString(), QString("Demo Webcam"));
    QTRY_VERIFY(object->property("connected").toBool());
}

void TestWebCamWindow::theSceneKnowsTheseNames()
{
    const QMetaObject &meta = WebCamWindow::staticMetaObject;
    std::vector<const char *> names(deviceProperties.cbegin(), deviceProperties.cend());
    names.insert(names.end(), {"availWidth", "availHeight"});
    for (const char *name : names) {
        const int index = meta.indexOfProperty(name);
        QVERIFY2(index >= 0, name);
        QCOMPARE(meta.property(index).notifySignal().name(), QByteArray(name) + "Changed");
    }
    for (const char *signature :
         {"frameSaved()", "frameSaveError()", "message(int,QString)", "enableEyedropper(bool)",
          "setEyedropper(QPoint,QColor)", "mousePressed(QPoint)", "rightClick(QPoint)", "avListChanged()",
          "coordSystemChanged()", "powerFactorChanged(int)", "availWidthChanged(int)"})
        QVERIFY2(meta.indexOfSignal(signature) >= 0, signature);
    for (const char *signature :
         {"printMessage(int,QString)", "loadCameraSettings()", "updateScreen()", "disconnectsContinued()",
          "setZoomRectPos()", "setFrameSize(int,int)", "connects(bool)", "connects()", "disconnects()",
          "calcHistogramData()", "captureFrame(QString,QString,QString,int,int,bool,bool,bool)",
          "showSettingsDialog(int)"})
        QVERIFY2(meta.indexOfSlot(signature) >= 0, signature);
    for (const char *name : {"connected", "threadIsRunning", "fps", "busy", "histogramDataY",
                             "coordSystemWidth", "progressTotal"})
        QVERIFY2(!meta.property(meta.indexOfProperty(name)).isWritable(), name);
}

QTEST_MAIN(TestWebCamWindow)
#include "tst_webcamwindow.moc"
