#include "preview/PreviewWorld.h"

#include <thread>

using World = PreviewWorld;

namespace {

const QString failed = "RamPreview: Failed to load image %1";
/// Of a picture of the series, shown at 100 by 50.
constexpr qint64 pictureCost = 100 * 50 * 3;

} // namespace

/// Loading, keeping and delivering, without an event loop.
class TestPictureStore : public QObject
{
    Q_OBJECT

private slots:
    void pictureIsFittedAndDelivered();
    void secondShowingComesFromMemory();
    void pictureCarriesItsStoredText();
    void requestWhileBusyIsDropped();
    void emptyNameMakesNoWorkAndNoCaching();
    void missingFileIsLoggedAndTheLastPictureStays();
    void folderFollowsTheSource_data();
    void folderFollowsTheSource();
    void sameNameInTwoFoldersIsTwoPictures();
    void nearlyFullCacheIsClearedForOneMore();
    void firstPictureOfAHugeBudgetShowsSomething();
    void pictureAboveTheBudgetIsRefused();
    void cropIsCentredAndTellsTheProportion();
    void byWidthAndByHeightNothingIsCroppedOrTold_data();
    void byWidthAndByHeightNothingIsCroppedOrTold();
    void scaleGivesTheTargetAndTellsIt();
    void enlargedPictureMakesOnlyWhatIsKept();
    void filteredPictureHasAKeyOfItsOwn();
    void transparencyStays();
    void clearByKeyTakesTheFilteredOnesToo();
    void clearEverythingReportsNothingUsed();
    void limitDropsTheLeastRecentlyUsed();
    void otherSizesMakeThePicturesAnew();
    void withoutACacheEverythingIsLoggedAndEnds();
    void whileBusyNeitherClearsNorTakesALimit();
    void stoppedStoreEndsRequestsWithoutALogLine();
};

void TestPictureStore::pictureIsFittedAndDelivered()
{
    const World world;
    World::add(world.captured() + "a.jpg", World::halves({200, 100}));
    StoreUnderTest test(world);
    const QImage image = test.show(World::request("a.jpg"));
    QCOMPARE(image.size(), QSize(100, 50));
    QVERIFY(World::isNear(image.pixelColor(10, 25), Qt::red));
    QVERIFY(World::isNear(image.pixelColor(90, 25), Qt::blue));
    QCOMPARE(test.told, QStringList({"caching", "proportion 0.5", "finished", "not caching"}));
}

void TestPictureStore::secondShowingComesFromMemory()
{
    const World world;
    world.addCaptured("a.jpg", {200, 100});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    QVERIFY(QFile::remove(world.captured() + "a.jpg"));
    test.told.clear();
    QCOMPARE(test.show(World::request("a.jpg")).size(), QSize(100, 50));
    QCOMPARE(test.told, QStringList({"finished", "not caching"}));
}

void TestPictureStore::pictureCarriesItsStoredText()
{
    const World world;
    world.addCaptured("a.png", {1000, 300});
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png", {400, 400});
    request.cropLimit = {300, 400};
    const QImage image = test.show(request);
    // Scale and coefficient, size of the file, size aimed at.
    QCOMPARE(image.text("store"), QString("0.3;0.75;1000;300;400;400"));
}

void TestPictureStore::requestWhileBusyIsDropped()
{
    const World world;
    world.addCaptured("a.png", {20, 10});
    world.addCaptured("b.png", {20, 10});
    const LogLines log;
    PictureStore *store = nullptr;
    PictureStore::Surroundings surroundings = world.surroundings();
    // Comes while the first one is being served.
    surroundings.filter = [&store](const QImage &image, const QVariantMap &, double) {
        store->request(World::request("b.png"));
        return image;
    };
    StoreUnderTest test(surroundings);
    store = &test.store;
    PictureRequest request = World::request("a.png");
    request.filtered = true;
    request.settings = {{"contrast", 1}};
    test.store.request(request);
    QCOMPARE(log.lines(), QStringList("-Cache is busy"));
    QCOMPARE(test.told, QStringList({"caching", "proportion 0.5", "ended", "finished", "not caching"}));
    // It was not done later either; the next one is served.
    test.told.clear();
    test.store.request(World::request("b.png"));
    QVERIFY(test.told.contains("caching"));
}

void TestPictureStore::emptyNameMakesNoWorkAndNoCaching()
{
    const World world;
    const LogLines log;
    StoreUnderTest test(world);
    test.store.request(World::request({}));
    QCOMPARE(test.told, QStringList("ended"));
    QVERIFY(log.lines().isEmpty());
}

void TestPictureStore::missingFileIsLoggedAndTheLastPictureStays()
{
    const World world;
    world.addCaptured("a.png", {20, 10});
    StoreUnderTest test(world);
    const QImage last = test.show(World::request("a.png"));
    const LogLines log;
    test.told.clear();
    QCOMPARE(test.show(World::request("gone.png")), last);
    QCOMPARE(log.lines(), QStringList(failed.arg(world.captured() + "gone.png")));
    QCOMPARE(test.told, QStringList({"caching", "ended"}));
    // It goes on.
    QVERIFY(!test.show(World::request("a.png")).isNull());
}

void TestPictureStore::folderFollowsTheSource_data()
{
    QTest::addColumn<int>("source");
    QTest::addColumn<QColor>("color");
    QTest::newRow("backgrounds") << -1 << QColor(Qt::green);
    QTest::newRow("reference") << 0 << QColor(Qt::blue);
    QTest::newRow("captured") << 1 << QColor(Qt::red);
}

void TestPictureStore::folderFollowsTheSource()
{
    QFETCH(int, source);
    QFETCH(QColor, color);
    const World world;
    World::add(world.root() + "bg/a.png", World::plain({20, 10}, Qt::green));
    World::add(world.reference() + "a.png", World::plain({20, 10}, Qt::blue));
    world.addCaptured("a.png", {20, 10}, Qt::red);
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png");
    request.source = source;
    QCOMPARE(World::middleOf(test.show(request)), color);
}

void TestPictureStore::sameNameInTwoFoldersIsTwoPictures()
{
    const World world;
    World::add(world.reference() + "a.png", World::plain({20, 10}, Qt::blue));
    world.addCaptured("a.png", {20, 10}, Qt::red);
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png");
    QCOMPARE(World::middleOf(test.show(request)), QColor(Qt::red));
    request.source = PictureRequest::fromReference;
    QCOMPARE(World::middleOf(test.show(request)), QColor(Qt::blue));
}

void TestPictureStore::nearlyFullCacheIsClearedForOneMore()
{
    const World world;
    const QStringList names = world.addSeries(4);
    StoreUnderTest test(world);
    test.store.setMaxBytes(pictureCost * 3 + 15, false);
    for (int i = 0; i < 3; ++i)
        test.show(World::request(names.at(i)));
    QVERIFY(test.used.last() > 99.9);
    test.used.clear();
    test.show(World::request(names.at(3)));
    QCOMPARE(test.used.size(), 2);
    QCOMPARE(test.used.first(), 0.0);
    QVERIFY(test.used.last() > 33 && test.used.last() < 34);
    // The new one is the only entry.
    test.told.clear();
    test.show(World::request(names.at(3)));
    QVERIFY(!test.told.contains("caching"));
    test.show(World::request(names.at(0)));
    QVERIFY(test.told.contains("caching"));
}

void TestPictureStore::firstPictureOfAHugeBudgetShowsSomething()
{
    const MemoryCache empty;
    QCOMPARE(empty.usedPercent(), 0.2);
}

void TestPictureStore::pictureAboveTheBudgetIsRefused()
{
    const World world;
    world.addCaptured("a.png", {200, 100});
    world.addCaptured("small.png", {10, 10});
    StoreUnderTest test(world);
    test.store.setMaxBytes(pictureCost - 1, false);
    PictureRequest small = World::request("small.png");
    small.policy = Zum::ScaleByWidth;
    small.target = {10, 10};
    test.show(small);
    PictureRequest large = small;
    large.name = "a.png";
    large.target = {100, 50};
    const LogLines log;
    test.told.clear();
    test.store.request(large);
    QCOMPARE(log.lines(), QStringList("Failed to store \"a.png\""));
    QCOMPARE(test.told, QStringList({"caching", "ended"}));
    QCOMPARE(test.used.last(), 0.0);
}

void TestPictureStore::cropIsCentredAndTellsTheProportion()
{
    const World world;
    QImage source = World::plain({200, 100}, Qt::red);
    source.setPixelColor(85, 45, Qt::green);
    World::add(world.captured() + "a.png", source);
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png", {200, 100});
    request.cropLimit = {31, 11};
    const QImage image = test.show(request);
    QCOMPARE(image.size(), QSize(31, 11));
    // Half of what is left over, cut to whole pixels: 84 and 44.
    QCOMPARE(image.pixelColor(1, 1), QColor(Qt::green));
    QCOMPARE(test.told.value(1), QString("proportion %1").arg(11.0 / 31));
    QCOMPARE(test.text().coefficient, 0.155);
}

void TestPictureStore::byWidthAndByHeightNothingIsCroppedOrTold_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QSize>("size");
    QTest::newRow("by width") << int(Zum::ScaleByWidth) << QSize(60, 30);
    QTest::newRow("by height") << int(Zum::ScaleByHeight) << QSize(80, 40);
}

void TestPictureStore::byWidthAndByHeightNothingIsCroppedOrTold()
{
    QFETCH(int, policy);
    QFETCH(QSize, size);
    const World world;
    world.addCaptured("a.png", {200, 100});
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png", {60, 40});
    request.cropLimit = {20, 20};
    request.policy = policy;
    QCOMPARE(test.show(request).size(), size);
    QCOMPARE(test.told, QStringList({"caching", "finished", "not caching"}));
    QCOMPARE(test.delivered().text("store").section(';', 1, 1), QString::number(20.0 / size.width(), 'g', 6));
}

void TestPictureStore::scaleGivesTheTargetAndTellsIt()
{
    const World world;
    world.addCaptured("a.png", {200, 100});
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png", {7, 7});
    request.scale = 0.25;
    QCOMPARE(test.show(request).size(), QSize(50, 25));
    QVERIFY(test.told.contains("size 50x25"));
    QCOMPARE(test.delivered().text("store"), QString("0.25;1;200;100;50;25"));
}

void TestPictureStore::enlargedPictureMakesOnlyWhatIsKept()
{
    const World world;
    World::add(world.captured() + "a.png", World::halves({400, 200}));
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png");
    // The whole would take 2.4 gigabytes.
    request.scale = 100;
    request.cropLimit = {300, 100};
    const QImage image = test.show(request);
    QCOMPARE(image.size(), QSize(300, 100));
    QCOMPARE(image.pixelColor(0, 50), QColor(Qt::red));
    QCOMPARE(image.pixelColor(299, 50), QColor(Qt::blue));
    request.cropLimit = {120000, 120000};
    const LogLines log;
    test.store.request(request);
    QCOMPARE(log.lines(), QStringList("Failed to store \"a.png\""));
}

void TestPictureStore::filteredPictureHasAKeyOfItsOwn()
{
    const World world;
    world.addCaptured("a.png", {20, 10}, Qt::red);
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png");
    test.show(request);
    request.filtered = true;
    QCOMPARE(request.key(), QString("a.png"));
    request.settings = {{"contrast", 1}};
    QCOMPARE(request.key(), QString("filter_a.png"));
    // Red inverted.
    QCOMPARE(World::middleOf(test.show(request)), QColor(Qt::cyan));
    // Both stay.
    test.told.clear();
    test.show(request);
    request.filtered = false;
    QCOMPARE(World::middleOf(test.show(request)), QColor(Qt::red));
    QVERIFY(!test.told.contains("caching"));
}

void TestPictureStore::transparencyStays()
{
    const World world;
    QImage image(40, 20, QImage::Format_ARGB32);
    image.fill(QColor(255, 0, 0, 0));
    World::add(world.captured() + "a.png", image);
    StoreUnderTest test(world);
    QCOMPARE(World::middleOf(test.show(World::request("a.png"))).alpha(), 0);
}

void TestPictureStore::clearByKeyTakesTheFilteredOnesToo()
{
    const World world;
    const QStringList names = world.addSeries(2);
    StoreUnderTest test(world);
    for (const QString &name : names) {
        PictureRequest request = World::request(name);
        test.show(request);
        request.filtered = true;
        request.settings = {{"contrast", 1}};
        test.show(request);
    }
    const double all = test.used.last();
    test.store.clear("0.jpg");
    QCOMPARE(test.used.last(), all / 4);
    test.told.clear();
    test.show(World::request("1.jpg"));
    QVERIFY(!test.told.contains("caching"));
    test.store.clear("filter_");
    QCOMPARE(test.used.last(), all / 4);
}

void TestPictureStore::clearEverythingReportsNothingUsed()
{
    const World world;
    world.addSeries(1);
    StoreUnderTest test(world);
    // Nothing to do on an empty cache.
    test.store.clear({});
    QVERIFY(test.used.isEmpty());
    test.show(World::request("0.jpg"));
    test.store.clear({});
    QCOMPARE(test.used.last(), 0.0);
}

void TestPictureStore::limitDropsTheLeastRecentlyUsed()
{
    const World world;
    const QStringList names = world.addSeries(3);
    StoreUnderTest test(world);
    for (const QString &name : names)
        test.show(World::request(name));
    // A delivery makes it the most recently used one.
    test.show(World::request("0.jpg"));
    test.store.setMaxBytes(int(pictureCost) * 2, true);
    QCOMPARE(test.told.last(), QString("max %1").arg(pictureCost * 2));
    test.told.clear();
    test.show(World::request("2.jpg"));
    test.show(World::request("0.jpg"));
    QVERIFY(!test.told.contains("caching"));
    test.show(World::request("1.jpg"));
    QVERIFY(test.told.contains("caching"));
}

void TestPictureStore::otherSizesMakeThePicturesAnew()
{
    const World world;
    world.addCaptured("a.png", {200, 100});
    StoreUnderTest test(world);
    QCOMPARE(test.show(World::request("a.png", {100, 100})).size(), QSize(100, 50));
    QCOMPARE(test.show(World::request("a.png", {50, 50})).size(), QSize(50, 25));
}

void TestPictureStore::withoutACacheEverythingIsLoggedAndEnds()
{
    const World world;
    const LogLines log;
    StoreUnderTest test(world);
    test.store.release();
    test.store.request(World::request("a.png"));
    test.store.clear("a.png");
    test.store.setMaxBytes(1000, true);
    QCOMPARE(log.lines(),
             QStringList({"-Cache is null", "_Cache is null", "setCacheMaxInBytes: cache is null"}));
    QCOMPARE(test.told, QStringList("ended"));
    QVERIFY(!test.store.workWhileIdle());
}

void TestPictureStore::whileBusyNeitherClearsNorTakesALimit()
{
    const World world;
    world.addCaptured("a.png", {200, 100});
    const LogLines log;
    PictureStore *store = nullptr;
    PictureStore::Surroundings surroundings = world.surroundings();
    surroundings.filter = [&store](const QImage &image, const QVariantMap &, double) {
        store->clear({});
        store->setMaxBytes(10, true);
        return image;
    };
    StoreUnderTest test(surroundings);
    store = &test.store;
    PictureRequest request = World::request("a.png");
    request.filtered = true;
    request.settings = {{"contrast", 1}};
    QCOMPARE(test.show(request).size(), QSize(100, 50));
    QCOMPARE(log.lines(), QStringList({"_Cache is busy", "Cannot set Cache Max, cache is busy"}));
    QVERIFY(!test.told.contains("max 10"));
}

void TestPictureStore::stoppedStoreEndsRequestsWithoutALogLine()
{
    const World world;
    world.addCaptured("a.png", {20, 10});
    const LogLines log;
    StoreUnderTest test(world);
    std::thread other([&test] { test.store.stop(); });
    other.join();
    QVERIFY(test.show(World::request("a.png")).isNull());
    QCOMPARE(test.told.last(), QString("ended"));
    QVERIFY(log.lines().isEmpty());
}

QTEST_GUILESS_MAIN(TestPictureStore)
#include "tst_picturestore.moc"
