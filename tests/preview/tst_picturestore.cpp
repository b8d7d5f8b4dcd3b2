#include "preview/PreviewWorld.h"

#include <thread>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <csignal>
#endif

using World = PreviewWorld;

namespace {

const QString failed = "RamPreview: Failed to load image %1";
constexpr qint64 pictureCost = 100 * 50 * 3;

bool isNear(QColor a, QColor b)
{
    return qAbs(a.red() - b.red()) < 6 && qAbs(a.green() - b.green()) < 6 && qAbs(a.blue() - b.blue()) < 6;
}

QColor middleOf(const QImage &image)
{
    return image.pixelColor(image.rect().center());
}

/// So many pictures "0.jpg", "1.jpg" ... of 200 by 100, each shown at 100 by 50.
QStringList addSeries(const World &world, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names.append(QString::number(i) + ".jpg");
        world.addCaptured(names.last(), {200, 100});
    }
    return names;
}

ReadAheadPlan planFor(const QStringList &names, int cursor = 0)
{
    ReadAheadPlan plan;
    plan.number = 7;
    plan.names = names;
    plan.cursor = cursor;
    plan.like = World::request({});
    return plan;
}

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
    void largePictureGetsADiskCopyAfterTheDelivery();
    void pictureThatFitsNeverGetsADiskCopy();
    void diskCopyServesTheNextLoadWithTheRealSourceSize();
    void damagedDiskCopyGivesWayToTheFramesOwnFile();
    void clearedFlagMakesOneLoadGoToTheOwnFileAndRewritesTheCopy();
    void forcedRequestGoesAroundBothCachesAndReplacesTheEntry();
    void unwritableCacheFolderIsNotNoticed_data();
    void unwritableCacheFolderIsNotNoticed();
    void fullDiskLeavesNoHalfCopy();
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
    void readingAheadFillsInPlayOrderAndTellsWhatIsReady();
    void requestMovesTheReadingAhead();
    void readingAheadStopsAtTheBudgetAndClearsNothing();
    void secondPassOfARangeThatFitsLoadsNothing();
    void readingAheadPassesOverUnreadableFiles();
    void readingAheadLeavesAClearedFlagAlone();
    void emptyPlanEndsTheReadingAhead();
    void stoppedStoreEndsRequestsWithoutALogLine();
    void diskUseIsMeasuredWhenIdle();
};

void TestPictureStore::pictureIsFittedAndDelivered()
{
    const World world;
    World::add(world.captured() + "a.jpg", World::halves({200, 100}));
    StoreUnderTest test(world);
    const QImage image = test.show(World::request("a.jpg"));
    QCOMPARE(image.size(), QSize(100, 50));
    QVERIFY(isNear(image.pixelColor(10, 25), Qt::red));
    QVERIFY(isNear(image.pixelColor(90, 25), Qt::blue));
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
    const LogCatcher log;
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
    const LogCatcher log;
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
    const LogCatcher log;
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
    QCOMPARE(middleOf(test.show(request)), color);
}

void TestPictureStore::sameNameInTwoFoldersIsTwoPictures()
{
    const World world;
    World::add(world.reference() + "a.png", World::plain({20, 10}, Qt::blue));
    world.addCaptured("a.png", {20, 10}, Qt::red);
    StoreUnderTest test(world);
    PictureRequest request = World::request("a.png");
    QCOMPARE(middleOf(test.show(request)), QColor(Qt::red));
    request.source = PictureRequest::fromReference;
    QCOMPARE(middleOf(test.show(request)), QColor(Qt::blue));
}

void TestPictureStore::largePictureGetsADiskCopyAfterTheDelivery()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    QCOMPARE(test.told.last(), QString("not caching"));
    QVERIFY(world.copyNames().isEmpty());
    test.workToTheEnd();
    QCOMPARE(world.copyNames(), QStringList("a.jpg_@3000x1000.jpg"));
    QCOMPARE(QImage(world.copies() + "a.jpg_@3000x1000.jpg").size(), QSize(1536, 512));
}

void TestPictureStore::pictureThatFitsNeverGetsADiskCopy()
{
    const World world;
    world.addCaptured("a.jpg", {1536, 864});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    QVERIFY(world.copyNames().isEmpty());
}

void TestPictureStore::diskCopyServesTheNextLoadWithTheRealSourceSize()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    World::add(world.copies() + "a.jpg_@3000x1000.jpg", World::plain({1536, 512}, Qt::green));
    StoreUnderTest test(world);
    const QImage image = test.show(World::request("a.jpg", {300, 300}));
    QVERIFY(isNear(middleOf(image), Qt::green));
    QCOMPARE(test.text().sourceWidth, 3000.0);
    QCOMPARE(test.text().sourceHeight, 1000.0);
    QCOMPARE(test.text().scale, 0.1);
}

void TestPictureStore::damagedDiskCopyGivesWayToTheFramesOwnFile()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    QFile copy(world.copies() + "a.jpg_@3000x1000.jpg");
    QVERIFY(copy.open(QIODevice::WriteOnly));
    copy.write("cut off");
    copy.close();
    const LogCatcher log;
    StoreUnderTest test(world);
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::red));
    test.workToTheEnd();
    QCOMPARE(QImage(copy.fileName()).size(), QSize(1536, 512));
    QVERIFY2(!log.lines().join('\n').contains("Failed"), qPrintable(log.lines().join('\n')));
}

void TestPictureStore::clearedFlagMakesOneLoadGoToTheOwnFileAndRewritesTheCopy()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    // Another size, so that the copy gets another name.
    world.addCaptured("a.jpg", {2000, 1000}, Qt::blue);

    const LogCatcher log;
    PictureStore::passDiskCopiesOnce();
    test.store.clear("a.jpg");
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    QCOMPARE(log.count("Will use disk cache next time"), 1);
    test.workToTheEnd();
    QCOMPARE(world.copyNames(), QStringList("a.jpg_@2000x1000.jpg"));
    // Only that one load: the next one takes the copy.
    QVERIFY(QFile::remove(world.captured() + "a.jpg"));
    test.store.clear("a.jpg");
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    QCOMPARE(log.lines().size(), 1);
}

void TestPictureStore::forcedRequestGoesAroundBothCachesAndReplacesTheEntry()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    world.addCaptured("a.jpg", {3000, 1000}, Qt::blue);
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::red));
    PictureRequest forced = World::request("a.jpg");
    forced.forced = true;
    QVERIFY(isNear(middleOf(test.show(forced)), Qt::blue));
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    test.workToTheEnd();
    QVERIFY(isNear(middleOf(QImage(world.copies() + "a.jpg_@3000x1000.jpg")), Qt::blue));
}

void TestPictureStore::unwritableCacheFolderIsNotNoticed_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("missing") << QStringLiteral("/nowhere/at/all/");
    QTest::newRow("read only") << QStringLiteral("/proc/");
}

void TestPictureStore::unwritableCacheFolderIsNotNoticed()
{
    QFETCH(QString, folder);
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    PictureStore::Surroundings surroundings = world.surroundings();
    surroundings.folders = [&] {
        return PictureStore::Folders{world.captured(), {}, {}, folder};
    };
    const LogCatcher log;
    StoreUnderTest test(surroundings);
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::red));
    test.workToTheEnd();
    test.store.clear({});
    QVERIFY(isNear(middleOf(test.show(World::request("a.jpg"))), Qt::red));
    QVERIFY2(log.lines().isEmpty(), qPrintable(log.lines().join('\n')));
}

void TestPictureStore::fullDiskLeavesNoHalfCopy()
{
#ifndef Q_OS_UNIX
    QSKIP("There is no limit for files to stand in for a full disk");
#else
    const World world;
    world.addCaptured("a.jpg", {3000, 1000});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    rlimit former{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &former), 0);
    const auto formerHandler = signal(SIGXFSZ, SIG_IGN);
    rlimit tiny = former;
    tiny.rlim_cur = 1000;
    setrlimit(RLIMIT_FSIZE, &tiny);
    test.workToTheEnd();
    setrlimit(RLIMIT_FSIZE, &former);
    signal(SIGXFSZ, formerHandler);
    QVERIFY2(world.copyNames().isEmpty(), qPrintable(world.copyNames().join(' ')));
    test.store.clear({});
    QVERIFY(!test.show(World::request("a.jpg")).isNull());
#endif
}

void TestPictureStore::nearlyFullCacheIsClearedForOneMore()
{
    const World world;
    const QStringList names = addSeries(world, 4);
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
    const LogCatcher log;
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
    const LogCatcher log;
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
    QCOMPARE(middleOf(test.show(request)), QColor(Qt::cyan));
    // Both stay.
    test.told.clear();
    test.show(request);
    request.filtered = false;
    QCOMPARE(middleOf(test.show(request)), QColor(Qt::red));
    QVERIFY(!test.told.contains("caching"));
}

void TestPictureStore::transparencyStays()
{
    const World world;
    QImage image(40, 20, QImage::Format_ARGB32);
    image.fill(QColor(255, 0, 0, 0));
    World::add(world.captured() + "a.png", image);
    StoreUnderTest test(world);
    QCOMPARE(middleOf(test.show(World::request("a.png"))).alpha(), 0);
}

void TestPictureStore::clearByKeyTakesTheFilteredOnesToo()
{
    const World world;
    const QStringList names = addSeries(world, 2);
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
    addSeries(world, 1);
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
    const QStringList names = addSeries(world, 3);
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
    const LogCatcher log;
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
    const LogCatcher log;
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

void TestPictureStore::readingAheadFillsInPlayOrderAndTellsWhatIsReady()
{
    const World world;
    const QStringList names = addSeries(world, 4);
    StoreUnderTest test(world);
    test.store.setReadAhead(planFor(names, 2));
    QCOMPARE(test.readyPlan, 7);
    QCOMPARE(test.ready, QBitArray(4));
    QStringList order;
    while (test.store.workWhileIdle()) {
        for (int i = 0; i < 4; ++i)
            if (test.ready.testBit(i) && !order.contains(names.at(i)))
                order.append(names.at(i));
    }
    QCOMPARE(order, QStringList({"2.jpg", "3.jpg", "0.jpg", "1.jpg"}));
    // It says nothing of it to the one who asks for pictures.
    QVERIFY(test.told.isEmpty());
    QVERIFY(!test.used.isEmpty());
    test.show(World::request("1.jpg"));
    QVERIFY(!test.told.contains("caching"));
}

void TestPictureStore::requestMovesTheReadingAhead()
{
    const World world;
    const QStringList names = addSeries(world, 6);
    StoreUnderTest test(world);
    test.store.setReadAhead(planFor(names));
    QVERIFY(test.store.workWhileIdle());
    test.show(World::request("4.jpg"));
    QVERIFY(test.store.workWhileIdle());
    QVERIFY(test.ready.testBit(5));
    QVERIFY(!test.ready.testBit(1));
}

void TestPictureStore::readingAheadStopsAtTheBudgetAndClearsNothing()
{
    const World world;
    const QStringList names = addSeries(world, 5);
    StoreUnderTest test(world);
    test.store.setMaxBytes(int(pictureCost) * 3 + 1, false);
    test.show(World::request("4.jpg"));
    test.store.setReadAhead(planFor(names));
    test.workToTheEnd();
    QVERIFY(!test.used.contains(0.0));
    QCOMPARE(test.ready.count(true), 3);
    QVERIFY(test.ready.testBit(0) && test.ready.testBit(1) && test.ready.testBit(4));
    // Room again, and it goes on.
    test.store.clear("4.jpg");
    test.workToTheEnd();
    QVERIFY(test.ready.testBit(2));
}

void TestPictureStore::secondPassOfARangeThatFitsLoadsNothing()
{
    const World world;
    const QStringList names = addSeries(world, 8);
    StoreUnderTest test(world);
    test.store.setReadAhead(planFor(names));
    // The player is faster than the reading for half of the range.
    for (const QString &name : names) {
        test.show(World::request(name));
        test.store.workWhileIdle();
    }
    test.told.clear();
    for (const QString &name : names)
        test.show(World::request(name));
    QVERIFY(!test.told.contains("caching"));
    QCOMPARE(test.told.count("finished"), 8);
}

void TestPictureStore::readingAheadPassesOverUnreadableFiles()
{
    const World world;
    const QStringList names = addSeries(world, 3);
    QVERIFY(QFile::remove(world.captured() + "1.jpg"));
    const LogCatcher log;
    StoreUnderTest test(world);
    test.store.setReadAhead(planFor(names));
    test.workToTheEnd();
    QVERIFY(test.ready.testBit(0) && !test.ready.testBit(1) && test.ready.testBit(2));
    // Only one who wants to see it hears of it.
    QVERIFY(log.lines().isEmpty());
}

void TestPictureStore::readingAheadLeavesAClearedFlagAlone()
{
    const World world;
    const QStringList names = addSeries(world, 2);
    StoreUnderTest test(world);
    const LogCatcher log;
    PictureStore::passDiskCopiesOnce();
    test.store.setReadAhead(planFor(names));
    test.workToTheEnd();
    QCOMPARE(test.ready.count(true), 0);
    test.show(World::request("0.jpg"));
    QCOMPARE(log.lines(), QStringList("Will use disk cache next time"));
    test.workToTheEnd();
    QCOMPARE(test.ready.count(true), 2);
}

void TestPictureStore::emptyPlanEndsTheReadingAhead()
{
    const World world;
    StoreUnderTest test(world);
    test.store.setReadAhead(planFor(addSeries(world, 3)));
    test.store.workWhileIdle();
    test.store.setReadAhead(planFor({}));
    test.workToTheEnd();
    QCOMPARE(test.ready.size(), 0);
    QCOMPARE(test.used.size(), 1);
}

void TestPictureStore::stoppedStoreEndsRequestsWithoutALogLine()
{
    const World world;
    world.addCaptured("a.png", {20, 10});
    const LogCatcher log;
    StoreUnderTest test(world);
    std::thread other([&test] { test.store.stop(); });
    other.join();
    QVERIFY(test.show(World::request("a.png")).isNull());
    QCOMPARE(test.told.last(), QString("ended"));
    QVERIFY(log.lines().isEmpty());
}

void TestPictureStore::diskUseIsMeasuredWhenIdle()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000});
    StoreUnderTest test(world);
    test.workToTheEnd();
    QCOMPARE(test.diskUsed, QList<double>({0.0}));
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    QCOMPARE(test.diskUsed.size(), 2);
    QVERIFY(test.diskUsed.last() > 0);
}

QTEST_GUILESS_MAIN(TestPictureStore)
#include "tst_picturestore.moc"
