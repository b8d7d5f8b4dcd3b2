#include "capture/LiveViewItem.h"
#include "capture/ScopeFeed.h"
#include "capture/webcam/FrameGrabber.h"
#include "WebcamBench.h"

#include <QFileInfo>
#include <QImage>
#include <thread>

/// Shots, from the request to the files, through the camera's thread.
class TestWebCamCapture : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theNextPictureGoesIntoTwoFiles();
    void theSavedPictureIsNotShown();
    void scopesGetEveryFourthPictureBesideTheFirst();
    void thePictureIsCutDownToTheRoomThereIs();
    void progressGoesThroughItsStations();
    void aShotBeforeTheLoopIsDroppedWithoutAWord();
    void aShotDuringAShotWarnsAndReplacesItsValues();
    void aShotRightAfterTheOneBeforeIsTaken();
    void otherThanThreeChannelsAreNeitherShownNorSavedNorFailures();
    void aTakenNameGoesToTheNextSecond();
    void aTakenThumbnailNameMovesBoth();
    void aFailedImageTellsWhatFailedAndTheNextShotWorks();
    void aFailedThumbnailLeavesTheImage();
    void anotherExtensionWritesNothingAndLeavesTheShotRunning();
    void aShotOfALostCameraIsForgotten();
    void theDemoWebcamMovesAfterEachShot();
    void aPausedDeviceShootsWhenItGoesOn();

private:
    QString full(const QString &second = "00") const
    {
        return bench->path("frame_norm_000000_2601011200" + second + ".png");
    }
    QString thumb(const QString &second = "00") const
    {
        return bench->path("frame_mini_000000_2601011200" + second + ".jpg");
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    std::unique_ptr<WebcamBench> bench;
};

void TestWebCamCapture::init()
{
    bench = std::make_unique<WebcamBench>();
}

void TestWebCamCapture::cleanup()
{
    bench.reset();
}

void TestWebCamCapture::theNextPictureGoesIntoTwoFiles()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot();
    QTRY_COMPARE(saved.size(), 1);
    const QImage image(full());
    QCOMPARE(image.size(), QSize(64, 48));
    QCOMPARE(image.pixelColor(5, 5).red(), 200);
    QCOMPARE(image.pixelColor(5, 5).green(), 60);
    QCOMPARE(QImage(thumb()).size(), QSize(80, 60));
    QCOMPARE(bench->machine.camera->taken.load(), 1);
    QCOMPARE(bench->global.unsavedCapturedFull(), QFileInfo(full()).fileName());
    QCOMPARE(bench->global.unsavedCapturedTumb(), QFileInfo(thumb()).fileName());
    QCOMPARE(QDir(bench->folder.path()).entryList(QDir::Files | QDir::Hidden).filter(".part").size(), 0);
}

void TestWebCamCapture::theSavedPictureIsNotShown()
{
    auto camera = std::make_shared<ScriptedCamera>();
    ScriptedSource source(camera);
    QVERIFY(source.open());
    LivePicture live;
    CaptureRequests requests;
    QList<int> savedBlues;
    FrameGrabber grabber(source, live, nullptr, requests,
                         {[] {}, [](const auto &) {},
                          [&](const QImage &image, const CaptureRequest &) {
                              savedBlues.append(image.pixelColor(0, 0).blue());
                          }});
    grabber.setAvailableWidth(64);
    grabber.setAvailableHeight(48);
    const auto shown = [&] {
        return live.take()->picture.pixelColor(0, 0).blue();
    };
    QVERIFY(grabber.grab());
    QCOMPARE(shown(), 0);
    QVERIFY(requests.ask({}));
    QVERIFY(grabber.grab());
    QCOMPARE(savedBlues, QList<int>{1});
    QCOMPARE(shown(), 0);
    QVERIFY(grabber.grab());
    QCOMPARE(shown(), 2);
    QCOMPARE(savedBlues.size(), 1);
}

void TestWebCamCapture::scopesGetEveryFourthPictureBesideTheFirst()
{
    struct Scopes : ScopeFeed
    {
        QList<int> blues;
        void feed(const QImage &shown) override
        {
            blues.append(shown.pixelColor(0, 0).blue());
        }
    } scopes;
    auto camera = std::make_shared<ScriptedCamera>();
    ScriptedSource source(camera);
    QVERIFY(source.open());
    LivePicture live;
    CaptureRequests requests;
    FrameGrabber grabber(source, live, &scopes, requests, {[] {}, [](const auto &) {}, {}});
    for (int i = 0; i < 13; ++i)
        QVERIFY(grabber.grab());
    QCOMPARE(scopes.blues, (QList<int>{4, 8, 12}));
}

void TestWebCamCapture::thePictureIsCutDownToTheRoomThereIs()
{
    auto camera = std::make_shared<ScriptedCamera>();
    camera->onRead(ScriptedCamera::plain(1280, 720));
    ScriptedSource source(camera);
    QVERIFY(source.open());
    LivePicture live;
    CaptureRequests requests;
    FrameGrabber grabber(source, live, nullptr, requests, {[] {}, [](const auto &) {}, {}});
    for (const bool smooth : {true, false}) {
        grabber.setSmooth(smooth);
        for (const auto &[room, size] :
             {std::pair(QSize(640, 640), QSize(640, 360)), std::pair(QSize(5000, 72), QSize(128, 72)),
              std::pair(QSize(1280, 720), QSize(1280, 720)), std::pair(QSize(0, 0), QSize(1, 1))}) {
            grabber.setAvailableWidth(room.width());
            grabber.setAvailableHeight(room.height());
            QVERIFY(grabber.grab());
            const auto taken = live.take();
            QCOMPARE(taken->picture.size(), size);
            QCOMPARE(taken->picture.format(), QImage::Format_ARGB32);
            QCOMPARE(taken->nativeSize, QSize(1280, 720));
            QCOMPARE(grabber.sizes().scaled, size);
        }
    }
}

void TestWebCamCapture::progressGoesThroughItsStations()
{
    QStringList heard;
    WebCamWindow *window = bench->window.get();
    connect(window, &WebCamWindow::progressCurrentChanged, this,
            [&] { heard.append(QString::number(window->progressCurrent())); });
    connect(window, &WebCamWindow::progressActionChanged, this,
            [&] { heard.append(window->progressAction()); });
    connect(window, &WebCamWindow::progressTotalChanged, this,
            [&] { heard.append("of " + QString::number(window->progressTotal())); });
    QVERIFY(bench->connectCamera());
    window->captureFrame("png", full(), thumb(), 10, 10, true, true, true);
    QTRY_COMPARE(heard.size(), 15);
    QCOMPARE(heard,
             (QStringList{"of 100", "Transfer image...", "3", "25", "40", "50", "Applying grayscale...", "60",
                          "70", "Saving PNG file...", "80", "100", "", "0", "of 0"}));
}

void TestWebCamCapture::aShotBeforeTheLoopIsDroppedWithoutAWord()
{
    bench->shoot();
    bench->machine.camera->onRead([](int, cv::Mat &) { return false; });
    bench->window->connects();
    const auto told = bench->messages.size();
    bench->shoot();
    QCOMPARE(bench->messages.size(), told);
    QVERIFY(bench->waitForEnd());
    QVERIFY(!QFileInfo::exists(full()));
}

void TestWebCamCapture::aShotDuringAShotWarnsAndReplacesItsValues()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    std::atomic<bool> letGo = false;
    bench->machine.camera->onRead([&, plain = ScriptedCamera::plain(64, 48)](int reading, cv::Mat &picture) {
        while (!letGo)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return plain(reading, picture);
    });
    bench->shoot();
    bench->shoot("frame_norm_000001_260101120001.png", "frame_mini_000001_260101120001.jpg");
    letGo = true;
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(bench->told(Zum::Warning, "Taking a picture. Please wait"));
    QVERIFY(!QFileInfo::exists(full()));
    QVERIFY(QFileInfo::exists(bench->path("frame_norm_000001_260101120001.png")));
}

void TestWebCamCapture::aShotRightAfterTheOneBeforeIsTaken()
{
    QVERIFY(bench->connectCamera());
    int shots = 0;
    connect(bench->window.get(), &WebCamWindow::frameSaved, this, [&] {
        if (++shots < 20)
            bench->shoot(QString("frame_norm_%1_260101120000.png").arg(shots, 6, 10, QChar('0')),
                         QString("frame_mini_%1_260101120000.jpg").arg(shots, 6, 10, QChar('0')));
    });
    bench->shoot();
    QTRY_COMPARE(shots, 20);
    QVERIFY(!bench->told(Zum::Warning, "Taking a picture. Please wait"));
}

void TestWebCamCapture::otherThanThreeChannelsAreNeitherShownNorSavedNorFailures()
{
    QVERIFY(bench->connectCamera());
    auto *view = qobject_cast<LiveViewItem *>(bench->window->liveView());
    for (const int type : {CV_8UC1, CV_8UC4}) {
        bench->machine.camera->onRead(ScriptedCamera::plain(32, 32, type));
        const int readings = bench->machine.camera->readings;
        bench->shoot();
        QTRY_VERIFY(bench->machine.camera->readings > readings + 20);
        QVERIFY(bench->window->connected());
        QCOMPARE(view->picture().size(), QSize(64, 48));
        QVERIFY(!QFileInfo::exists(full()));
        bench->machine.camera->onRead(ScriptedCamera::plain(64, 48));
        QTRY_VERIFY(QFileInfo::exists(thumb()));
        QVERIFY(QFile::remove(full()) && QFile::remove(thumb()));
    }
}

void TestWebCamCapture::aTakenNameGoesToTheNextSecond()
{
    write(full("58"), "old");
    write(full("59"), "older");
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot(QFileInfo(full("58")).fileName(), QFileInfo(thumb("58")).fileName());
    QTRY_COMPARE(saved.size(), 1);
    QCOMPARE(bench->global.unsavedCapturedFull(), QString("frame_norm_000000_260101120100.png"));
    QCOMPARE(bench->global.unsavedCapturedTumb(), QString("frame_mini_000000_260101120100.jpg"));
    QVERIFY(!QImage(bench->path("frame_norm_000000_260101120100.png")).isNull());
    QFile old(full("58"));
    QVERIFY(old.open(QIODevice::ReadOnly));
    QCOMPARE(old.readAll(), QByteArray("old"));
}

void TestWebCamCapture::aTakenThumbnailNameMovesBoth()
{
    write(thumb(), "old");
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(!QFileInfo::exists(full()));
    QVERIFY(QFileInfo::exists(full("01")) && QFileInfo::exists(thumb("01")));
    QCOMPARE(QFileInfo(thumb()).size(), 3);
}

void TestWebCamCapture::aFailedImageTellsWhatFailedAndTheNextShotWorks()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    QSignalSpy error(bench->window.get(), &WebCamWindow::frameSaveError);
    QSignalSpy notSaved(bench->window.get(), &WebCamWindow::frameNotSaved);
    bench->shoot("no such folder/frame_norm_000000_260101120000.png");
    QTRY_COMPARE(notSaved.size(), 1);
    QTRY_VERIFY(bench->actions.contains("Error: Failed to save processed image"));
    QVERIFY(bench->told(
        Zum::Error,
        "The picture could not be saved: No such file or directory. Make room on the disk, or check that the "
        "project's folder can be written, and capture the frame again"));
    QVERIFY(saved.isEmpty() && error.isEmpty());
    bench->shoot();
    QTRY_COMPARE(saved.size(), 1);
    QVERIFY(!bench->told(Zum::Warning, "Taking a picture. Please wait"));
}

void TestWebCamCapture::aFailedThumbnailLeavesTheImage()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    QSignalSpy error(bench->window.get(), &WebCamWindow::frameSaveError);
    bench->shoot(QFileInfo(full()).fileName(), "no such folder/frame_mini_000000_260101120000.jpg");
    QTRY_COMPARE(error.size(), 1);
    QVERIFY(bench->told(Zum::Warning, "Failed to receive image from camera"));
    QTRY_VERIFY(bench->actions.contains("Error: Failed to save thumb"));
    QTRY_VERIFY(bench->told(Zum::Warning,
                            "The thumbnail could not be saved: No such file or directory. Make room on the "
                            "disk, or check that the "
                            "project's folder can be written, and capture the frame again"));
    QVERIFY(!QImage(full()).isNull());
    QVERIFY(saved.isEmpty());
    bench->shoot(QFileInfo(full("10")).fileName(), QFileInfo(thumb("10")).fileName());
    QTRY_COMPARE(saved.size(), 1);
}

void TestWebCamCapture::anotherExtensionWritesNothingAndLeavesTheShotRunning()
{
    QVERIFY(bench->connectCamera());
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    QSignalSpy error(bench->window.get(), &WebCamWindow::frameSaveError);
    QSignalSpy notSaved(bench->window.get(), &WebCamWindow::frameNotSaved);
    QTest::ignoreMessage(QtDebugMsg, "Something went wrong");
    bench->shoot("frame_norm_000000_260101120000.bmp");
    QTRY_VERIFY(bench->actions.contains("Error: Failed to save processed image"));
    QVERIFY(bench->actions.contains("Saving BMP file..."));
    QVERIFY(bench->actions.contains("Error saving file..."));
    QTRY_COMPARE(bench->window->progressTotal(), 0);
    QVERIFY(saved.isEmpty() && error.isEmpty() && notSaved.isEmpty());
    QVERIFY(!QFileInfo::exists(bench->path("frame_norm_000000_260101120000.bmp")));
    QVERIFY(!QFileInfo::exists(thumb()));
}

void TestWebCamCapture::aShotOfALostCameraIsForgotten()
{
    QVERIFY(bench->connectCamera());
    bench->machine.camera->onRead([](int, cv::Mat &) { return false; });
    bench->shoot();
    QVERIFY(bench->waitForEnd());
    bench->machine.camera->onRead(ScriptedCamera::plain(64, 48));
    QVERIFY(bench->connectCamera());
    const int readings = bench->machine.camera->readings;
    QTRY_VERIFY(bench->machine.camera->readings > readings + 10);
    QVERIFY(!QFileInfo::exists(full()));
}

void TestWebCamCapture::theDemoWebcamMovesAfterEachShot()
{
    QVERIFY(bench->connectCamera(CaptureEnvironment::demoIndex));
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot();
    QTRY_COMPARE(saved.size(), 1);
    bench->shoot(QFileInfo(full("01")).fileName(), QFileInfo(thumb("01")).fileName());
    QTRY_COMPARE(saved.size(), 2);
    const QImage first(full());
    const QImage second(full("01"));
    QCOMPARE(first.size(), QSize(1280, 720));
    QVERIFY(first != second);
    QCOMPARE(bench->environment.demo().taken(), 2);
    bench->environment.demo().setPresent(false);
    QVERIFY(bench->waitForEnd());
    QVERIFY(bench->told(Zum::Error, WebcamBench::notPresent()));
    bench->environment.demo().setPresent(true);
    QVERIFY(bench->connectCamera(CaptureEnvironment::demoIndex));
}

void TestWebCamCapture::aPausedDeviceShootsWhenItGoesOn()
{
    QVERIFY(bench->connectCamera());
    bench->window->setPaused(true);
    QTRY_COMPARE(bench->machine.clock->lastDelayMs(), 400);
    QSignalSpy saved(bench->window.get(), &WebCamWindow::frameSaved);
    bench->shoot();
    const qint64 now = bench->machine.clock->nowMs();
    QTRY_VERIFY(bench->machine.clock->nowMs() > now + 2000);
    QVERIFY(saved.isEmpty());
    bench->window->setPaused(false);
    QTRY_COMPARE(saved.size(), 1);
}

QTEST_MAIN(TestWebCamCapture)
#include "tst_webcamcapture.moc"
