#include "preview/PreviewWindow.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

QColor colorOf(const RamPreview &item)
{
    return PreviewWorld::middleOf(item.image());
}

} // namespace

/// The preview item: when it asks, what it shows, and what it tells.
class TestRamPreview : public QObject
{
    Q_OBJECT

private slots:
    void startsAsPublished();
    void isMadeByTheScene();
    void showsTheNamedPictureAtItsSize();
    void tellsOfThePictureWhenItIsPainted();
    void emptyNamePaintsAnEmptyItem();
    void answerForANameTakenAwayIsNotShown();
    void rapidNamesBuildNoQueueAndComeToRestOnTheLast();
    void thousandQuickNamesEndOnTheLast();
    void sourceChangedMeanwhileIsCaughtUp();
    void withoutPermissionNothingIsAskedFor();
    void unreadableFileKeepsThePictureAndTheItemGoesOn();
    void storeRefusalKeepsTheItemGoing();
    void cachingIsToldAtOnceAndItsEndLater();
    void processingAboveTwoIsRefused();
    void changeOfProcessingWaits();
    void settingsDropTheFilteredPictures();
    void scaleHasARelativeTolerance();
    void cropLimitOfNineIsIgnored();
    void changedCropLimitClearsAndAsks();
    void changedTargetResetsTheItemsScaleAndShowsTheNewSize();
    void cacheLimitIsForwarded();
    void clearCurrentForgetsThePictureAndPassesTheCopy();
    void forcedUpdateReadsTheFileAgain();
    void cleanCacheSignalClears();
    void histogramIsCountedForANewPicture();
    void destructionWhileLoading();
    void timelineIsReadAheadWhileRunning();
    void diskUseIsTold();
};

void TestRamPreview::startsAsPublished()
{
    const RamPreview item;
    const QList<QPair<const char *, QVariant>> values{
        {"imageName", QString()},
        {"imageWidth", 12000},
        {"imageHeight", 12000},
        {"cameraViewWidth", 100},
        {"cameraViewHeight", 100},
        {"scaleFactor", 1.0},
        {"imageScale", 1.0},
        {"paintedScale", 1.0},
        {"sourceImageWidth", 1},
        {"sourceImageHeight", 1},
        {"proportion", 1.0},
        {"currentCroppedCoefX", 1.0},
        {"scalePolicy", int(Zum::ScaleToFit)},
        {"mirrored", false},
        {"postProcessing", int(Zum::NoProcessing)},
        {"settings", QVariantMap()},
        {"hasSettings", false},
        {"forceUpdateHisogram", false},
        {"histogramOn", true},
        {"histogramDataY", QVariantList()},
        {"histogramDataR", QVariantList()},
        {"histogramDataG", QVariantList()},
        {"histogramDataB", QVariantList()},
        {"renderAllowed", true},
        {"running", false},
        {"sourceConnected", false},
        {"playingCaptured", false},
        {"playingBackgrounds", false},
        {"caching", false},
        {"cacheMaxInBytes", 155520000},
        {"cacheUsedPercent", 0.0},
        {"color", QColor("#aa00ff")},
        {"maskColor", QColor(0, 255, 0, 100)},
        {"blend", int(Zum::NoBlend)},
        {"eyedropperOn", false},
        {"maskingOn", false},
        {"drawablePointSize", 50},
        {"pathNodes", QVariantList()},
        {"diskCacheUsedPercent", 0.0},
        {"readyRuns", QVariantList()},
        {"readyPercent", 0.0},
    };
    for (const auto &[name, value] : values)
        QVERIFY2(item.property(name).metaType() == value.metaType() && item.property(name) == value, name);
}

void TestRamPreview::isMadeByTheScene()
{
    qmlRegisterType<RamPreview>("CRamPreview", 1, 0, "CRamPreview");
    const PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10});
    FramesModel frames;
    QQmlEngine engine;
    engine.rootContext()->setContextProperty("FramesModel", &frames);
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import CRamPreview 1.0
        CRamPreview {
            property int forwarded: 0
            cacheMaxInBytes: 1000000
            scaleFactor: 0
            playingCaptured: true
            imageName: "a.png"
            timeline: FramesModel
            onCacheMaxInBytesChanged: forwarded = cacheMaxInBytes
            function ask() { requestImage(); requestImage(5); clearCache(); clearCache("a.png"); reload(); }
        })",
                      {});
    QVERIFY2(component.isReady(), qPrintable(component.errorString()));
    const std::unique_ptr<QObject> object(component.create());
    auto *item = qobject_cast<RamPreview *>(object.get());
    QVERIFY(item);
    QCOMPARE(item->cacheMaxInBytes(), 1000000);
    QCOMPARE(item->timeline(), &frames);
    item->setProperty("cacheMaxInBytes", 2000000);
    QCOMPARE(item->property("forwarded").toInt(), 2000000);
    QVERIFY(QMetaObject::invokeMethod(item, "ask"));
    QTRY_VERIFY(!item->image().isNull());
}

void TestRamPreview::showsTheNamedPictureAtItsSize()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100}, Qt::red);
    shown.item->setPosition({30, 40});
    shown.show("a.png");
    QCOMPARE(colorOf(*shown.item), QColor(Qt::red));
    QCOMPARE(shown.item->position(), QPointF(0, 0));
    QCOMPARE(shown.item->size(), QSizeF(100, 50));
}

void TestRamPreview::tellsOfThePictureWhenItIsPainted()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100});
    shown.item->setImageWidth(80);
    const QSignalSpy source(shown.item, &RamPreview::sourceImageInfoChanged);
    shown.show("a.png");
    QCOMPARE(shown.item->sourceImageWidth(), 200);
    QCOMPARE(shown.item->sourceImageHeight(), 100);
    QCOMPARE(shown.item->imageScale(), 0.4);
    QCOMPARE(shown.item->currentCroppedCoefX(), 0.8);
    QCOMPARE(shown.item->proportion(), 50.0 / 80);
    QCOMPARE(source.size(), 1);
    QVERIFY(shown.item->cacheUsedPercent() > 0);
}

void TestRamPreview::emptyNamePaintsAnEmptyItem()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {400, 300}, Qt::red);
    shown.item->setCameraViewWidth(400);
    shown.item->setCameraViewHeight(300);
    shown.show("a.png");
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(200, 150), QColor(Qt::red));
    shown.item->setImageName({});
    QVERIFY(shown.item->image().isNull());
    QTRY_COMPARE(shown.window.grabWindow().pixelColor(200, 150), QColor(Qt::white));
}

void TestRamPreview::answerForANameTakenAwayIsNotShown()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10});
    shown.item->setImageName("a.png");
    shown.item->actuallyRequestImage();
    shown.item->setImageName({});
    const QSignalSpy used(shown.item, &RamPreview::cacheUsedPercentChanged);
    QTRY_COMPARE(used.size(), 1);
    QCoreApplication::processEvents();
    QVERIFY(shown.item->image().isNull());
}

void TestRamPreview::rapidNamesBuildNoQueueAndComeToRestOnTheLast()
{
    PreviewWindow shown;
    const QList<QColor> colors{Qt::red, Qt::green, Qt::blue, Qt::yellow};
    for (int i = 0; i < 4; ++i)
        shown.world.addCaptured(QString("%1.png").arg(i), {20, 10}, colors.at(i));
    const LogLines log;
    shown.item->setImageName("0.png");
    shown.item->actuallyRequestImage();
    for (int i = 1; i < 4; ++i) {
        shown.item->setImageName(QString("%1.png").arg(i));
        shown.item->actuallyRequestImage();
    }
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::yellow));
    // The two between were never asked for.
    shown.item->setCacheMaxInBytes(100 * 50 * 3 * 3);
    const QSignalSpy used(shown.item, &RamPreview::cacheUsedPercentChanged);
    shown.item->setImageName("0.png");
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::red));
    QCOMPARE(used.size(), 0);
    QVERIFY(!log.lines().contains("-Cache is busy"));
}

void TestRamPreview::thousandQuickNamesEndOnTheLast()
{
    PreviewWindow shown;
    const QList<QColor> colors{Qt::red, Qt::green, Qt::blue};
    for (int i = 0; i < 3; ++i)
        shown.world.addCaptured(QString("%1.png").arg(i), {20, 10}, colors.at(i));
    for (int i = 0; i < 1000; ++i) {
        shown.item->setImageName(QString("%1.png").arg(i % 3));
        if (i % 7 == 0)
            QCoreApplication::processEvents();
    }
    // Name 999 is 0.
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::red));
    QTest::qWait(30);
    QCOMPARE(colorOf(*shown.item), QColor(Qt::red));
}

void TestRamPreview::sourceChangedMeanwhileIsCaughtUp()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::red);
    PreviewWorld::add(shown.world.reference() + "a.png", PreviewWorld::plain({20, 10}, Qt::blue));
    PreviewWorld::add(shown.world.root() + "bg/a.png", PreviewWorld::plain({20, 10}, Qt::green));
    shown.item->setImageName("a.png");
    shown.item->actuallyRequestImage();
    shown.item->setPlayingCaptured(false);
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::blue));
    shown.item->setPlayingBackgrounds(true);
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::green));
}

void TestRamPreview::withoutPermissionNothingIsAskedFor()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10});
    shown.item->setRenderAllowed(false);
    const QSignalSpy caching(shown.item, &RamPreview::cachingChanged);
    shown.item->setImageName("a.png");
    shown.item->reload();
    shown.item->actuallyRequestImage();
    QTest::qWait(30);
    QVERIFY(caching.isEmpty());
    QVERIFY(shown.item->image().isNull());
    shown.item->setRenderAllowed(true);
    QTRY_VERIFY(!shown.item->image().isNull());
}

void TestRamPreview::unreadableFileKeepsThePictureAndTheItemGoesOn()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::red);
    shown.world.addCaptured("b.png", {20, 10}, Qt::blue);
    shown.show("a.png");
    {
        const LogLines log;
        shown.item->setImageName("gone.png");
        const QString line = "RamPreview: Failed to load image " + shown.world.captured() + "gone.png";
        QTRY_COMPARE(log.count(line), 1);
        // Nothing asks again by itself.
        QTest::qWait(30);
        QCOMPARE(log.count(line), 1);
    }
    QCOMPARE(colorOf(*shown.item), QColor(Qt::red));
    QTRY_VERIFY(!shown.item->caching());
    shown.show("b.png");
    QCOMPARE(colorOf(*shown.item), QColor(Qt::blue));
}

void TestRamPreview::storeRefusalKeepsTheItemGoing()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::red);
    shown.item->setCacheMaxInBytes(10);
    const QSignalSpy told(shown.item, &RamPreview::cachingChanged);
    {
        const LogLines log;
        shown.item->setImageName("a.png");
        QTRY_COMPARE(log.count("Failed to store \"a.png\""), 1);
    }
    // What is asked for before the worker's end has come would be the same request.
    QTRY_VERIFY(!told.isEmpty() && !shown.item->caching());
    shown.item->setCacheMaxInBytes(1000000);
    shown.item->reload();
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::red));
}

void TestRamPreview::cachingIsToldAtOnceAndItsEndLater()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10});
    QList<bool> told;
    connect(shown.item, &RamPreview::cachingChanged, shown.item, [&] { told.append(shown.item->caching()); });
    shown.show("a.png");
    // By now it has ended, but nobody has been told.
    QCOMPARE(told, QList<bool>({true}));
    QTRY_VERIFY(!shown.item->caching());
    QCOMPARE(told.size(), 1);
    QTRY_COMPARE(told, QList<bool>({true, false}));
}

void TestRamPreview::processingAboveTwoIsRefused()
{
    RamPreview item;
    const QSignalSpy changed(&item, &RamPreview::postProcessingChanged);
    item.setPostProcessing(3);
    item.setPostProcessing(-1);
    QCOMPARE(item.postProcessing(), int(Zum::NoProcessing));
    QVERIFY(changed.isEmpty());
    for (const int type : {1, 2, 0}) {
        item.setPostProcessing(type);
        QCOMPARE(item.postProcessing(), type);
    }
}

void TestRamPreview::changeOfProcessingWaits()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, QColor(200, 100, 100));
    shown.item->setSettings({{"saturation", 0}});
    shown.show("a.png");
    QElapsedTimer waited;
    waited.start();
    shown.item->setPostProcessing(Zum::NonRealtimeProcessing);
    QTRY_COMPARE(colorOf(*shown.item).hsvSaturation(), 0);
    QVERIFY(waited.elapsed() >= 790);
}

void TestRamPreview::settingsDropTheFilteredPictures()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, QColor(200, 100, 100));
    shown.item->setPostProcessing(Zum::NonRealtimeProcessing);
    shown.item->setSettings({{"saturation", 0}});
    QVERIFY(shown.item->hasSettings());
    shown.show("a.png");
    QCOMPARE(colorOf(*shown.item).hsvSaturation(), 0);
    shown.item->setSettings({{"saturation", 100}});
    QTRY_VERIFY(colorOf(*shown.item).hsvSaturation() > 150);
    shown.item->setSettings({});
    QTRY_COMPARE(colorOf(*shown.item), QColor(200, 100, 100));
}

void TestRamPreview::scaleHasARelativeTolerance()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100});
    shown.item->setScaleFactor(0.5);
    shown.show("a.png");
    const QSignalSpy changed(shown.item, &RamPreview::scaleFactorChanged);
    shown.item->setScaleFactor(0.5 * (1 + 1e-13));
    QVERIFY(changed.isEmpty());
    shown.item->setScaleFactor(0.25);
    QCOMPARE(changed.size(), 1);
    QTRY_COMPARE(shown.item->image().size(), QSize(50, 25));
    QTRY_COMPARE(shown.item->imageScale(), 0.25);
}

void TestRamPreview::cropLimitOfNineIsIgnored()
{
    RamPreview item;
    item.setImageWidth(9);
    item.setImageHeight(-1);
    QCOMPARE(item.imageWidth(), 12000);
    QCOMPARE(item.imageHeight(), 12000);
    item.setImageWidth(10);
    item.setImageHeight(10);
    QCOMPARE(item.imageWidth(), 10);
    QCOMPARE(item.imageHeight(), 10);
}

void TestRamPreview::changedCropLimitClearsAndAsks()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100});
    shown.show("a.png");
    shown.item->setImageWidth(30);
    QTRY_COMPARE(shown.item->image().size(), QSize(30, 50));
    // Under way is one request only; its end asks for what has changed meanwhile.
    shown.item->reload();
    shown.item->actuallyRequestImage();
    shown.item->setImageHeight(20);
    QTRY_COMPARE(shown.item->image().size(), QSize(30, 20));
}

void TestRamPreview::changedTargetResetsTheItemsScaleAndShowsTheNewSize()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100});
    shown.show("a.png");
    shown.item->setScale(3);
    shown.item->setCameraViewWidth(60);
    QCOMPARE(shown.item->scale(), 1.0);
    QTRY_COMPARE(shown.item->image().size(), QSize(60, 30));
}

void TestRamPreview::cacheLimitIsForwarded()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {200, 100});
    const QSignalSpy forwarded(shown.item, qOverload<int, bool>(&RamPreview::cacheMaxInBytes));
    shown.item->setCacheMaxInBytes(30000);
    QCOMPARE(forwarded.size(), 1);
    QCOMPARE(forwarded.first(), QVariantList({30000, false}));
    shown.show("a.png");
    QTRY_COMPARE(shown.item->cacheUsedPercent(), 50.0);
}

void TestRamPreview::clearCurrentForgetsThePictureAndPassesTheCopy()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {2000, 100}, Qt::red);
    shown.item->clearCurrentInCache();
    shown.show("a.png");
    QTRY_COMPARE(shown.world.copyNames().size(), 1);
    shown.world.addCaptured("a.png", {2000, 100}, Qt::blue);
    const LogLines log;
    shown.item->clearCurrentInCache();
    shown.item->reload();
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::blue));
    // Without a name it did nothing.
    QCOMPARE(log.count("Clear cache on clearCurrentInCache"), 1);
    QCOMPARE(log.count("Will use disk cache next time"), 1);
}

void TestRamPreview::forcedUpdateReadsTheFileAgain()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::red);
    shown.show("a.png");
    shown.world.addCaptured("a.png", {20, 10}, Qt::blue);
    shown.item->forceUpdateCurrentImage();
    shown.item->reload();
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::blue));
    // A new colour of the mask forces the next request, and asks for nothing itself.
    shown.world.addCaptured("a.png", {20, 10}, Qt::green);
    shown.item->setMaskColor(Qt::black);
    QTest::qWait(20);
    QCOMPARE(colorOf(*shown.item), QColor(Qt::blue));
    shown.item->reload();
    QTRY_COMPARE(colorOf(*shown.item), QColor(Qt::green));
}

void TestRamPreview::cleanCacheSignalClears()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::red);
    shown.show("a.png");
    QTRY_VERIFY(shown.item->cacheUsedPercent() > 0);
    emit shown.item->cleanCache();
    QTRY_COMPARE(shown.item->cacheUsedPercent(), 0.0);
}

void TestRamPreview::histogramIsCountedForANewPicture()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {20, 10}, Qt::black);
    shown.world.addCaptured("b.png", {20, 10}, Qt::white);
    const QSignalSpy counted(shown.item, &RamPreview::histogramDataChanged);
    shown.show("a.png");
    QTRY_COMPARE(counted.size(), 1);
    QCOMPARE(shown.item->histogramDataY().size(), 257);
    QCOMPARE(shown.item->histogramDataR().first().toDouble(), 1.0);
    // Not again for the same picture, unless told to.
    shown.item->updateRendered();
    QTest::qWait(30);
    QCOMPARE(counted.size(), 1);
    shown.item->setForceUpdateHisogram(true);
    shown.item->updateRendered();
    QTRY_COMPARE(counted.size(), 2);
    shown.item->setForceUpdateHisogram(false);
    shown.item->setHistogramOn(false);
    shown.show("b.png");
    QCOMPARE(shown.item->histogramDataR().first().toDouble(), 1.0);
}

void TestRamPreview::destructionWhileLoading()
{
    for (int turn = 0; turn < 5; ++turn) {
        PreviewWindow shown({400, 300}, false);
        shown.world.addCaptured("a.jpg", {2000, 1500});
        shown.item->setImageName("a.jpg");
        if (turn > 1)
            shown.item->actuallyRequestImage();
        if (turn > 2)
            QCoreApplication::processEvents();
    }
}

void TestRamPreview::timelineIsReadAheadWhileRunning()
{
    PreviewWindow shown;
    FramesModel frames;
    for (int i = 0; i < 4; ++i) {
        shown.world.addCaptured(QString("%1.png").arg(i), {20, 10});
        frames.appendFrame({{"capFull", QString("%1.png").arg(i)}});
    }
    frames.setLoaded(true);
    frames.setTimelineRangeEnd(3);
    shown.item->setTimeline(&frames);
    QTest::qWait(80);
    QCOMPARE(shown.item->readyPercent(), 0.0);
    shown.item->setRunning(true);
    QTRY_COMPARE(shown.item->readyPercent(), 100.0);
    QCOMPARE(shown.item->readyRuns(), QVariantList({QVariant(QVariantList{0, 3})}));
    // Nothing needs loading any more.
    const QSignalSpy caching(shown.item, &RamPreview::cachingChanged);
    shown.show("3.png");
    QCOMPARE(caching.size(), 0);
    shown.item->setTimeline(nullptr);
    QCOMPARE(shown.item->readyPercent(), 0.0);
}

void TestRamPreview::diskUseIsTold()
{
    PreviewWindow shown;
    shown.world.addCaptured("a.png", {2000, 1000});
    shown.show("a.png");
    QTRY_VERIFY(shown.item->diskCacheUsedPercent() > 0);
}

QTEST_MAIN(TestRamPreview)
#include "tst_rampreview.moc"
