#include "capture/LivePicture.h"
#include "capture/webcam/WebCamCaptureWnd.h"
#include "capture/webcam/WebCamEvent.h"
#include "shared/Zum.h"

#include <atomic>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <thread>

namespace {

/// Four quarters: red, green over blue, white.
QImage quarters(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool right = x >= width / 2;
            const bool low = y >= height / 2;
            image.setPixel(x, y, low ? (right ? 0xffffffff : 0xff0000ff) : (right ? 0xff00ff00 : 0xffff0000));
        }
    }
    return image;
}

} // namespace

class TestLiveView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thePictureIsTheNewestOne();
    void aPictureThatCannotBeHadIsDropped();
    void atMostOneNoticeIsUnderWay();
    void readerAndWriterRunTogether();
    void theWriterSeesThePictureBefore();

    void startsAsTold();
    void blackUntilTheFirstPicture();
    void showsThePictureOverItsWholeArea();
    void letsThroughWhatLiesBelowByItsOpacity();
    void blackAfterTheThreadEnds();
    void anotherThirteenTwelveHidesToo();
    void turnedBy180DegreesWhilePainting();
    void takesTheSizeOfThePictureAndGivesItToItsParent();
    void takesNoPictureWhilePaused();
    void dropsAPictureThatIsHeldFor100Milliseconds();
    void anEventMoreShowsTheLastPictureUnchanged();
    void blendAndGrayscaleForTheEffect();
    void theEyedropperReadsThePictureShown();
    void theEyedropperReadsATurnedPicture();
    void theEyedropperIsSilentOutsideAndWhenOff();
    void pressesOfBothButtons();
    void smoothOrNot();

private:
    void send(int number, const QVariant &value = {})
    {
        WebCamEvent event(number, value);
        QCoreApplication::sendEvent(item, &event);
    }
    void show(const QImage &image)
    {
        QVERIFY(live.publish(image, image.size()));
        send(WebCamEvent::NewPicture);
    }
    QColor at(int x, int y)
    {
        return window->grabWindow().pixelColor(x, y);
    }

    LivePicture live;
    std::unique_ptr<QQuickWindow> window;
    QQuickItem *parentItem = nullptr;
    WebCamCaptureWnd *item = nullptr;
};

void TestLiveView::init()
{
    live.clear();
    window = std::make_unique<QQuickWindow>();
    window->setColor(Qt::magenta);
    window->resize(100, 80);
    parentItem = new QQuickItem(window->contentItem());
    item = new WebCamCaptureWnd(parentItem);
    item->setLivePicture(live);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void TestLiveView::cleanup()
{
    window.reset();
}

void TestLiveView::thePictureIsTheNewestOne()
{
    for (int i = 1; i <= 5; ++i)
        QVERIFY(live.publish(quarters(i * 2, 2), {i, i}));
    const auto taken = live.take();
    QVERIFY(taken);
    QCOMPARE(taken->picture.width(), 10);
    QCOMPARE(taken->nativeSize, QSize(5, 5));
    live.clear();
    QVERIFY(live.take()->picture.isNull());
}

void TestLiveView::aPictureThatCannotBeHadIsDropped()
{
    QVERIFY(live.publish(quarters(2, 2), {2, 2}));
    bool published = true;
    bool taken = true;
    qint64 elapsed = 0;
    {
        const auto held = live.hold();
        std::thread writer([&] {
            QElapsedTimer timer;
            timer.start();
            published = live.publish(quarters(4, 4), {4, 4});
            elapsed = timer.elapsed();
        });
        std::thread reader([&] { taken = live.take().has_value(); });
        writer.join();
        reader.join();
    }
    QVERIFY(!published && !taken);
    QVERIFY(elapsed >= 99);
    QCOMPARE(live.take()->picture.width(), 2);
}

void TestLiveView::atMostOneNoticeIsUnderWay()
{
    QVERIFY(live.announce());
    QVERIFY(!live.announce());
    live.take();
    QVERIFY(live.announce());
    live.dropAnnouncement();
    QVERIFY(live.announce());
}

void TestLiveView::readerAndWriterRunTogether()
{
    std::atomic<bool> stop = false;
    std::atomic<int> published = 0;
    std::thread writer([&] {
        for (int i = 1; i <= 500; ++i) {
            QImage picture(16, 16, QImage::Format_ARGB32);
            picture.fill(qRgb(i % 256, i % 256, i % 256));
            published += live.publish(picture, {i, i});
        }
        stop = true;
    });
    int last = 0;
    while (!stop) {
        const auto taken = live.take();
        if (!taken || taken->picture.isNull())
            continue;
        QVERIFY(taken->nativeSize.width() >= last);
        last = taken->nativeSize.width();
        QCOMPARE(qRed(taken->picture.pixel(15, 15)), last % 256);
    }
    writer.join();
    QVERIFY(published > 0);
}

void TestLiveView::theWriterSeesThePictureBefore()
{
    QList<int> before;
    for (int i = 1; i <= 2; ++i)
        live.publish(quarters(i * 2, 2), {i, i}, [&](const QImage &image) { before.append(image.width()); });
    QCOMPARE(before, (QList<int>{0, 2}));
}

void TestLiveView::startsAsTold()
{
    QCOMPARE(item->size(), QSizeF(360, 250));
    QVERIFY(item->clip() && item->acceptHoverEvents() && item->accepting());
    QCOMPARE(item->acceptedMouseButtons(), Qt::LeftButton | Qt::RightButton);
    QVERIFY(!item->showing() && !item->rotated() && !item->effectEnabled());
}

void TestLiveView::blackUntilTheFirstPicture()
{
    QCOMPARE(at(50, 40), QColor(Qt::black));
    send(WebCamEvent::ShowingOn);
    QVERIFY(item->showing());
    QCOMPARE(at(50, 40), QColor(Qt::black));
    send(WebCamEvent::NewPicture);
    QCOMPARE(at(50, 40), QColor(Qt::black));
}

void TestLiveView::showsThePictureOverItsWholeArea()
{
    show(quarters(40, 20));
    QVERIFY(item->showing());
    QCOMPARE(at(5, 5), QColor(Qt::red));
    QCOMPARE(at(35, 5), QColor(Qt::green));
    QCOMPARE(at(5, 15), QColor(Qt::blue));
    QCOMPARE(at(35, 15), QColor(Qt::white));
    QCOMPARE(at(60, 5), QColor(Qt::magenta));
    item->setSize({80, 40});
    QCOMPARE(at(75, 35), QColor(Qt::white));
    QImage other(40, 20, QImage::Format_ARGB32);
    other.fill(Qt::yellow);
    show(other);
    QCOMPARE(at(5, 5), QColor(Qt::yellow));
}

void TestLiveView::letsThroughWhatLiesBelowByItsOpacity()
{
    show(quarters(40, 20));
    QCOMPARE(at(35, 5), QColor(Qt::green));
    item->setOpacity(0.5);
    const QColor green = at(35, 5);
    const bool half =
        qAbs(green.red() - 127) < 4 && qAbs(green.green() - 128) < 4 && qAbs(green.blue() - 127) < 4;
    QVERIFY2(half, qPrintable(green.name()));
    send(WebCamEvent::LoopEnded);
    QVERIFY(qAbs(at(35, 5).red() - 127) < 4);
    QCOMPARE(at(35, 5).green(), 0);
}

void TestLiveView::blackAfterTheThreadEnds()
{
    show(quarters(40, 20));
    QCOMPARE(at(5, 5), QColor(Qt::red));
    send(WebCamEvent::LoopEnded);
    QVERIFY(!item->showing());
    QCOMPARE(at(5, 5), QColor(Qt::black));
    show(quarters(40, 20));
    QCOMPARE(at(5, 5), QColor(Qt::red));
}

void TestLiveView::anotherThirteenTwelveHidesToo()
{
    show(quarters(40, 20));
    send(1312);
    QCOMPARE(at(5, 5), QColor(Qt::black));
}

void TestLiveView::turnedBy180DegreesWhilePainting()
{
    show(quarters(40, 20));
    send(1315);
    QVERIFY(item->rotated());
    QCOMPARE(at(5, 5), QColor(Qt::white));
    QCOMPARE(at(35, 5), QColor(Qt::blue));
    // What was grabbed stays as it was.
    QCOMPARE(item->picture().pixelColor(0, 0), QColor(Qt::red));
    send(1316);
    QCOMPARE(at(5, 5), QColor(Qt::red));
}

void TestLiveView::takesTheSizeOfThePictureAndGivesItToItsParent()
{
    show(quarters(40, 20));
    QCOMPARE(item->size(), QSizeF(40, 20));
    QCOMPARE(parentItem->size(), QSizeF(40, 20));
    // Only another size of the picture counts.
    parentItem->setSize({50, 50});
    show(quarters(40, 20));
    QCOMPARE(parentItem->size(), QSizeF(50, 50));
    QVERIFY(live.publish(quarters(60, 30), {1920, 960}));
    send(WebCamEvent::NewPicture);
    QCOMPARE(parentItem->size(), QSizeF(60, 30));
    QCOMPARE(item->nativeSize(), QSize(1920, 960));
}

void TestLiveView::takesNoPictureWhilePaused()
{
    show(quarters(40, 20));
    send(1313);
    QVERIFY(live.announce());
    show(quarters(60, 30));
    QCOMPARE(item->picture().width(), 40);
    QVERIFY(live.announce());
    send(1314);
    show(quarters(60, 30));
    QCOMPARE(item->picture().width(), 60);
}

void TestLiveView::dropsAPictureThatIsHeldFor100Milliseconds()
{
    show(quarters(40, 20));
    QVERIFY(live.publish(quarters(60, 30), {60, 30}));
    std::atomic<bool> held = false;
    std::atomic<bool> letGo = false;
    std::thread holder([&] {
        const auto lock = live.hold();
        held = true;
        while (!letGo)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });
    while (!held)
        std::this_thread::yield();
    QElapsedTimer timer;
    timer.start();
    send(WebCamEvent::NewPicture);
    const qint64 elapsed = timer.elapsed();
    letGo = true;
    holder.join();
    QVERIFY(elapsed >= 99);
    QCOMPARE(item->picture().width(), 40);
}

void TestLiveView::anEventMoreShowsTheLastPictureUnchanged()
{
    show(quarters(40, 20));
    const QImage before = item->picture();
    QSignalSpy refreshed(item, &WebCamCaptureWnd::refreshme);
    send(WebCamEvent::NewPicture);
    QCOMPARE(refreshed.size(), 1);
    QCOMPARE(item->picture(), before);
    QCOMPARE(at(5, 5), QColor(Qt::red));
}

void TestLiveView::blendAndGrayscaleForTheEffect()
{
    QSignalSpy enabled(item, &WebCamCaptureWnd::effectEnabledChanged);
    item->setBlend(Zum::BlendScreen);
    QVERIFY(item->effectEnabled());
    QCOMPARE(item->blend(), int(Zum::BlendScreen));
    item->setBlend(0);
    QVERIFY(!item->effectEnabled());
    send(1333);
    QVERIFY(item->grayscale() && item->effectEnabled());
    send(1334);
    QVERIFY(!item->grayscale() && !item->effectEnabled());
    send(1349, int(Zum::BlendDarken));
    QCOMPARE(item->blend(), int(Zum::BlendDarken));
    QCOMPARE(enabled.size(), 5);
}

void TestLiveView::theEyedropperReadsThePictureShown()
{
    parentItem->setPosition({10, 20});
    show(quarters(40, 20));
    item->setEyedropperOn(true);
    QSignalSpy colours(item, &WebCamCaptureWnd::setEyedropper);
    // The mouse comes in and stops, and nothing else calls for a frame.
    window->grabWindow();
    QTest::qWait(100);
    QTest::mouseMove(window.get(), {15, 25});
    QTRY_VERIFY(!colours.isEmpty());
    QCOMPARE(colours.last().at(0).toPoint(), QPoint(15, 25));
    QCOMPARE(colours.last().at(1).value<QColor>(), QColor(Qt::red));
    QTest::mouseMove(window.get(), {45, 35});
    QTRY_COMPARE(colours.last().at(0).toPoint(), QPoint(45, 35));
    QCOMPARE(colours.last().at(1).value<QColor>(), QColor(Qt::white));
}

void TestLiveView::theEyedropperReadsATurnedPicture()
{
    show(quarters(40, 20));
    send(1315);
    item->setEyedropperOn(true);
    QSignalSpy colours(item, &WebCamCaptureWnd::setEyedropper);
    QTest::mouseMove(window.get(), {1, 1});
    QTRY_VERIFY(!colours.isEmpty());
    QCOMPARE(colours.last().at(1).value<QColor>(), QColor(Qt::white));
}

void TestLiveView::theEyedropperIsSilentOutsideAndWhenOff()
{
    show(quarters(40, 20));
    QSignalSpy colours(item, &WebCamCaptureWnd::setEyedropper);
    QTest::mouseMove(window.get(), {5, 5});
    item->setEyedropperOn(true);
    item->setSize({80, 60});
    // Inside the item, outside the picture.
    QTest::mouseMove(window.get(), {60, 50});
    window->grabWindow();
    QCOMPARE(colours.size(), 0);
    QTest::mouseMove(window.get(), {6, 6});
    QTRY_VERIFY(!colours.isEmpty());
}

void TestLiveView::pressesOfBothButtons()
{
    show(quarters(40, 20));
    QSignalSpy left(item, &WebCamCaptureWnd::mousePressed);
    QSignalSpy right(item, &WebCamCaptureWnd::rightClick);
    QTest::mousePress(window.get(), Qt::LeftButton, {}, {12, 7});
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, {12, 7});
    QTest::mousePress(window.get(), Qt::RightButton, {}, {3, 4});
    QTest::mouseRelease(window.get(), Qt::RightButton, {}, {3, 4});
    QCOMPARE(left.size(), 1);
    QCOMPARE(left.first().first().toPoint(), QPoint(12, 7));
    QCOMPARE(right.size(), 1);
    QCOMPARE(right.first().first().toPoint(), QPoint(3, 4));
}

void TestLiveView::smoothOrNot()
{
    show(quarters(4, 4));
    item->setSize({80, 80});
    QCOMPARE(at(39, 5), QColor(Qt::red));
    send(1321);
    QVERIFY(at(39, 5) != QColor(Qt::red));
    send(1322);
    QCOMPARE(at(39, 5), QColor(Qt::red));
}

QTEST_MAIN(TestLiveView)
#include "tst_liveview.moc"
