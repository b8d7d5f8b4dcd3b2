#include "capture/source/OpenCvSource.h"
#include "WebcamBench.h"

#include <algorithm>
#include <thread>

/// From the wish for a camera to its first picture, and every way in which the connection ends.
class TestWebCamConnection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void connectingTellsSoAndIsBusyUntilTheFirstPicture();
    void aSecondConnectionIsRefused();
    void anIndexWithoutDeviceSaysSoAtOnce();
    void aCameraWithoutItsModuleSaysWhatIsWrong();
    void aDeviceThatDeliversNothingIsGivenUpAfterElevenAndAHalfSeconds();
    void aDeviceThatDeliversLateConnects();
    void fiveFailedPassesEndTheConnection();
    void fourFailedPassesDoNot();
    void aLostCameraSaysWhatIsSafeAndConnectsAgain();
    void withoutGlobalTheConnectionGoesOn();
    void disconnectingClearsEverything();
    void disconnectingWhileConnectingGivesUpSoon();
    void aThreadThatTakesItsTimeIsWaitedFor();
    void destroyingWhileConnectedEndsTheThread();
    void aConnectionWithoutEnvironmentFindsNoCamera();

private:
    std::unique_ptr<WebcamBench> bench;
};

void TestWebCamConnection::init()
{
    bench = std::make_unique<WebcamBench>();
}

void TestWebCamConnection::cleanup()
{
    bench.reset();
}

void TestWebCamConnection::connectingTellsSoAndIsBusyUntilTheFirstPicture()
{
    bench->machine.camera->onRead([](int, cv::Mat &) { return false; });
    bench->window->connects();
    QVERIFY(bench->told(Zum::Info, "Connecting..."));
    QVERIFY(bench->window->busy() && bench->global.busy() && bench->window->threadIsRunning());
    bench->machine.camera->onRead(ScriptedCamera::plain(64, 48));
    QTRY_VERIFY(bench->window->connected() || !bench->window->threadIsRunning());
    QTRY_VERIFY(!bench->window->busy() && !bench->global.busy());
}

void TestWebCamConnection::aSecondConnectionIsRefused()
{
    QVERIFY(bench->connectCamera());
    const auto told = bench->messages.size();
    QTest::ignoreMessage(QtDebugMsg, "Cannot start - thread is already running");
    bench->window->connects(true);
    QCOMPARE(bench->messages.size(), told);
}

void TestWebCamConnection::anIndexWithoutDeviceSaysSoAtOnce()
{
    bench->machine.camera->opens = false;
    bench->window->connects();
    QVERIFY(bench->waitForEnd());
    QVERIFY(bench->told(Zum::Error, WebcamBench::notPresent()));
    QCOMPARE(bench->machine.clock->waitedMs(), 0);
    QCOMPARE(bench->machine.camera->closed.load(), 1);
    QVERIFY(!bench->window->busy() && !bench->global.busy());
}

void TestWebCamConnection::aCameraWithoutItsModuleSaysWhatIsWrong()
{
    CaptureEnvironment::Parts parts = bench->machine.parts();
    parts.openHardware = [this](int index) {
        return std::make_unique<OpenCvSource>(index, bench->folder.path());
    };
    CaptureEnvironment environment(std::move(parts), bench->settings);
    environment.setLivePicture(bench->picture);
    bench->window->setEnvironment(&environment);
    bench->window->connects();
    QVERIFY(bench->waitForEnd());
    QVERIFY(!bench->told(Zum::Error, WebcamBench::notPresent()));
    const auto &[type, text] = bench->messages.last();
    QCOMPARE(type, int(Zum::Error));
    QVERIFY2(text.startsWith("The part of the program that reads cameras and movies is missing or damaged. "
                             "Install the program again. "),
             qPrintable(text));
    QVERIFY2(text.contains(bench->path("videoinput")), qPrintable(text));
    QVERIFY(!bench->window->busy() && !bench->global.busy());
    QVERIFY(bench->connectCamera(CaptureEnvironment::demoIndex));
    QVERIFY(bench->disconnectCamera());
    bench->window->setEnvironment(&bench->environment);
}

void TestWebCamConnection::aDeviceThatDeliversNothingIsGivenUpAfterElevenAndAHalfSeconds()
{
    bench->machine.camera->onRead([](int, cv::Mat &) { return false; });
    bench->window->connects();
    QVERIFY(bench->waitForEnd());
    QCOMPARE(bench->machine.clock->waitedMs(), 20 * 500 + 1500);
    QCOMPARE(bench->machine.camera->readings.load(), 22);
    QVERIFY(bench->told(Zum::Error, WebcamBench::notPresent()));
    QVERIFY(!bench->window->connected());
}

void TestWebCamConnection::aDeviceThatDeliversLateConnects()
{
    const auto late = [plain = ScriptedCamera::plain(64, 48)](int reading, cv::Mat &picture) {
        return reading >= 20 && plain(reading, picture);
    };
    bench->machine.camera->onRead(late);
    QVERIFY(bench->connectCamera());
    QCOMPARE(bench->machine.clock->waitedMs(), 20 * 500);
}

void TestWebCamConnection::fiveFailedPassesEndTheConnection()
{
    QVERIFY(bench->connectCamera());
    std::atomic<int> failed = 0;
    bench->machine.camera->onRead([&](int, cv::Mat &) {
        ++failed;
        return false;
    });
    QVERIFY(bench->waitForEnd());
    QCOMPARE(failed.load(), 5);
    QVERIFY(bench->told(Zum::Error, WebcamBench::notPresent()));
    QVERIFY(!bench->window->connected());
    QCOMPARE(bench->window->fps(), 0);
}

void TestWebCamConnection::fourFailedPassesDoNot()
{
    QVERIFY(bench->connectCamera());
    std::atomic<int> readings = 0;
    bench->machine.camera->onRead([&readings, plain = ScriptedCamera::plain(64, 48)](int, cv::Mat &picture) {
        return ++readings % 5 == 0 && plain(readings, picture);
    });
    QTRY_VERIFY(readings > 30);
    QVERIFY(bench->window->connected());
    QVERIFY(!bench->told(Zum::Error, WebcamBench::notPresent()));
}

void TestWebCamConnection::aLostCameraSaysWhatIsSafeAndConnectsAgain()
{
    QSignalSpy lost(bench->window.get(), &WebCamWindow::cameraLost);
    QVERIFY(bench->connectCamera());
    bench->machine.camera->onRead([](int, cv::Mat &) { return false; });
    QTRY_COMPARE(lost.size(), 1);
    QVERIFY(bench->told(Zum::Info,
                        "The camera is gone. Everything shot so far is in the project. Connect again "
                        "to go on where it stopped"));
    QVERIFY(bench->waitForEnd());
    bench->machine.camera->onRead(ScriptedCamera::plain(64, 48));
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(bench->disconnectCamera());
    QCOMPARE(lost.size(), 1);
}

void TestWebCamConnection::withoutGlobalTheConnectionGoesOn()
{
    bench->window->setGlobal(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "WebCamWindow::init failed to conect to global");
    QVERIFY(bench->connectCamera());
    emit bench->global.webCameraProperty(Zum::WebcamZoom, 5);
    bench->shoot();
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    QVERIFY(saved.wait());
    const auto sets = bench->machine.camera->sets();
    QVERIFY(std::none_of(sets.begin(), sets.end(), [](const auto &set) { return set.first == 27; }));
}

void TestWebCamConnection::disconnectingClearsEverything()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy firmWare(bench->window.get(), &WebCamWindow::firmWareVerChanged);
    QSignalSpy fps(bench->window.get(), &WebCamWindow::fpsChanged);
    QSignalSpy connection(bench->window.get(), &WebCamWindow::connectedChanged);
    QTest::ignoreMessage(QtDebugMsg, "Closed web camera thread");
    QVERIFY(bench->disconnectCamera());
    QVERIFY(!bench->window->connected() && !bench->picturesCome());
    QCOMPARE(firmWare.size(), 1);
    QVERIFY(fps.size() >= 1);
    QCOMPARE(connection.size(), 1);
    QCOMPARE(bench->window->fps(), 0);
    QVERIFY(!bench->told(Zum::Error, WebcamBench::notPresent()));
    QVERIFY(bench->connectCamera());
}

void TestWebCamConnection::disconnectingWhileConnectingGivesUpSoon()
{
    std::atomic<bool> reading = false;
    std::atomic<bool> letGo = false;
    bench->machine.camera->onRead([&](int, cv::Mat &) {
        reading = true;
        while (!letGo)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return false;
    });
    bench->window->connects();
    QTRY_VERIFY(reading);
    bench->window->disconnects();
    letGo = true;
    QVERIFY(bench->waitForEnd());
    QCOMPARE(bench->machine.clock->waitedMs(), 0);
    QVERIFY(!bench->told(Zum::Error, WebcamBench::notPresent()));
    QVERIFY(!bench->global.busy());
}

void TestWebCamConnection::aThreadThatTakesItsTimeIsWaitedFor()
{
    QVERIFY(bench->connectCamera());
    std::atomic<bool> inside = false;
    std::atomic<bool> letGo = false;
    bench->machine.camera->onRead([&](int, cv::Mat &) {
        inside = true;
        while (!letGo)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return false;
    });
    QTRY_VERIFY(inside);
    bench->window->disconnects();
    std::thread release([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        letGo = true;
    });
    QTest::ignoreMessage(QtDebugMsg, "Waiting for Thread to finish...");
    bench->window->disconnectsContinued();
    release.join();
    QVERIFY(!bench->window->threadIsRunning());
}

void TestWebCamConnection::destroyingWhileConnectedEndsTheThread()
{
    QVERIFY(bench->connectCamera());
    bench->window.reset();
    QCOMPARE(bench->machine.camera->closed.load(), 1);
}

void TestWebCamConnection::aConnectionWithoutEnvironmentFindsNoCamera()
{
    WebCamWindow window;
    QSignalSpy told(&window, &WebCamWindow::message);
    window.connects();
    QCOMPARE(told.size(), 3);
    QCOMPARE(told.at(1).first().toInt(), int(Zum::Info));
    QVERIFY(told.at(1).last().toString().startsWith("Close other programs that use the camera"));
    QCOMPARE(told.last().first().toInt(), int(Zum::Error));
    QVERIFY(!window.busy() && !window.threadIsRunning());
}

QTEST_MAIN(TestWebCamConnection)
#include "tst_webcamconnection.moc"
