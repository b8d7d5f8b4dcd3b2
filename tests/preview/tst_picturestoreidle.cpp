#include "preview/PreviewWorld.h"
#include "support/FullDisk.h"

using World = PreviewWorld;

namespace {

/// Of a picture of the series, shown at 100 by 50.
constexpr qint64 pictureCost = 100 * 50 * 3;

} // namespace

/// What a store does while nobody waits, and what that brings later: copies on the disk, and pictures read
/// ahead.
class TestPictureStoreIdle : public QObject
{
    Q_OBJECT

private slots:
    void largePictureGetsADiskCopyAfterTheDelivery();
    void pictureThatFitsNeverGetsADiskCopy();
    void diskCopyServesTheNextLoadWithTheRealSourceSize();
    void damagedDiskCopyGivesWayToTheFramesOwnFile();
    void clearedFlagMakesOneLoadGoToTheOwnFileAndRewritesTheCopy();
    void forcedRequestGoesAroundBothCachesAndReplacesTheEntry();
    void unwritableCacheFolderIsNotNoticed_data();
    void unwritableCacheFolderIsNotNoticed();
    void fullDiskLeavesNoHalfCopy();
    void readingAheadFillsInPlayOrderAndTellsWhatIsReady();
    void requestMovesTheReadingAhead();
    void readingAheadStopsAtTheBudgetAndClearsNothing();
    void secondPassOfARangeThatFitsLoadsNothing();
    void readingAheadPassesOverUnreadableFiles();
    void readingAheadLeavesAClearedFlagAlone();
    void emptyPlanEndsTheReadingAhead();
    void diskUseIsMeasuredWhenIdle();
};

void TestPictureStoreIdle::largePictureGetsADiskCopyAfterTheDelivery()
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

void TestPictureStoreIdle::pictureThatFitsNeverGetsADiskCopy()
{
    const World world;
    world.addCaptured("a.jpg", {1536, 864});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    QVERIFY(world.copyNames().isEmpty());
}

void TestPictureStoreIdle::diskCopyServesTheNextLoadWithTheRealSourceSize()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    World::add(world.copies() + "a.jpg_@3000x1000.jpg", World::plain({1536, 512}, Qt::green));
    StoreUnderTest test(world);
    const QImage image = test.show(World::request("a.jpg", {300, 300}));
    QVERIFY(World::isNear(World::middleOf(image), Qt::green));
    QCOMPARE(test.text().sourceWidth, 3000.0);
    QCOMPARE(test.text().sourceHeight, 1000.0);
    QCOMPARE(test.text().scale, 0.1);
}

void TestPictureStoreIdle::damagedDiskCopyGivesWayToTheFramesOwnFile()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    QFile copy(world.copies() + "a.jpg_@3000x1000.jpg");
    QVERIFY(copy.open(QIODevice::WriteOnly));
    copy.write("cut off");
    copy.close();
    const LogLines log;
    StoreUnderTest test(world);
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::red));
    test.workToTheEnd();
    QCOMPARE(QImage(copy.fileName()).size(), QSize(1536, 512));
    QVERIFY2(!log.lines().join('\n').contains("Failed"), qPrintable(log.lines().join('\n')));
}

void TestPictureStoreIdle::clearedFlagMakesOneLoadGoToTheOwnFileAndRewritesTheCopy()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    // Another size, so that the copy gets another name.
    world.addCaptured("a.jpg", {2000, 1000}, Qt::blue);

    const LogLines log;
    PictureStore::passDiskCopiesOnce();
    test.store.clear("a.jpg");
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    QCOMPARE(log.count("Will use disk cache next time"), 1);
    test.workToTheEnd();
    QCOMPARE(world.copyNames(), QStringList("a.jpg_@2000x1000.jpg"));
    // Only that one load: the next one takes the copy.
    QVERIFY(QFile::remove(world.captured() + "a.jpg"));
    test.store.clear("a.jpg");
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    QCOMPARE(log.lines().size(), 1);
}

void TestPictureStoreIdle::forcedRequestGoesAroundBothCachesAndReplacesTheEntry()
{
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    test.workToTheEnd();
    world.addCaptured("a.jpg", {3000, 1000}, Qt::blue);
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::red));
    PictureRequest forced = World::request("a.jpg");
    forced.forced = true;
    QVERIFY(World::isNear(World::middleOf(test.show(forced)), Qt::blue));
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::blue));
    test.workToTheEnd();
    QVERIFY(World::isNear(World::middleOf(QImage(world.copies() + "a.jpg_@3000x1000.jpg")), Qt::blue));
}

void TestPictureStoreIdle::unwritableCacheFolderIsNotNoticed_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("none") << QString();
    QTest::newRow("missing") << QStringLiteral("/nowhere/at/all/");
    QTest::newRow("read only") << QStringLiteral("/proc/");
}

void TestPictureStoreIdle::unwritableCacheFolderIsNotNoticed()
{
    QFETCH(QString, folder);
    const World world;
    world.addCaptured("a.jpg", {3000, 1000}, Qt::red);
    PictureStore::Surroundings surroundings = world.surroundings();
    surroundings.folders = [&] {
        return PictureStore::Folders{world.captured(), {}, {}, folder};
    };
    const LogLines log;
    StoreUnderTest test(surroundings);
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::red));
    test.workToTheEnd();
    test.store.clear({});
    QVERIFY(World::isNear(World::middleOf(test.show(World::request("a.jpg"))), Qt::red));
    QVERIFY2(log.lines().isEmpty(), qPrintable(log.lines().join('\n')));
}

void TestPictureStoreIdle::fullDiskLeavesNoHalfCopy()
{
#ifdef Q_OS_UNIX
    const World world;
    world.addCaptured("a.jpg", {3000, 1000});
    StoreUnderTest test(world);
    test.show(World::request("a.jpg"));
    {
        const FullDisk disk(1000);
        test.workToTheEnd();
    }
    QVERIFY2(world.copyNames().isEmpty(), qPrintable(world.copyNames().join(' ')));
    test.store.clear({});
    QVERIFY(!test.show(World::request("a.jpg")).isNull());
#endif
}

void TestPictureStoreIdle::readingAheadFillsInPlayOrderAndTellsWhatIsReady()
{
    const World world;
    const QStringList names = world.addSeries(4);
    StoreUnderTest test(world);
    test.store.setReadAhead(World::readAheadPlan(names, 2));
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

void TestPictureStoreIdle::requestMovesTheReadingAhead()
{
    const World world;
    const QStringList names = world.addSeries(6);
    StoreUnderTest test(world);
    test.store.setReadAhead(World::readAheadPlan(names));
    QVERIFY(test.store.workWhileIdle());
    test.show(World::request("4.jpg"));
    QVERIFY(test.store.workWhileIdle());
    QVERIFY(test.ready.testBit(5));
    QVERIFY(!test.ready.testBit(1));
}

void TestPictureStoreIdle::readingAheadStopsAtTheBudgetAndClearsNothing()
{
    const World world;
    const QStringList names = world.addSeries(5);
    StoreUnderTest test(world);
    test.store.setMaxBytes(int(pictureCost) * 3 + 1, false);
    test.show(World::request("4.jpg"));
    test.store.setReadAhead(World::readAheadPlan(names));
    test.workToTheEnd();
    QVERIFY(!test.used.contains(0.0));
    QCOMPARE(test.ready.count(true), 3);
    QVERIFY(test.ready.testBit(0) && test.ready.testBit(1) && test.ready.testBit(4));
    // Room again, and it goes on.
    test.store.clear("4.jpg");
    test.workToTheEnd();
    QVERIFY(test.ready.testBit(2));
}

void TestPictureStoreIdle::secondPassOfARangeThatFitsLoadsNothing()
{
    const World world;
    const QStringList names = world.addSeries(8);
    StoreUnderTest test(world);
    test.store.setReadAhead(World::readAheadPlan(names));
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

void TestPictureStoreIdle::readingAheadPassesOverUnreadableFiles()
{
    const World world;
    const QStringList names = world.addSeries(3);
    QVERIFY(QFile::remove(world.captured() + "1.jpg"));
    const LogLines log;
    StoreUnderTest test(world);
    test.store.setReadAhead(World::readAheadPlan(names));
    test.workToTheEnd();
    QVERIFY(test.ready.testBit(0) && !test.ready.testBit(1) && test.ready.testBit(2));
    // Only one who wants to see it hears of it.
    QVERIFY(log.lines().isEmpty());
}

void TestPictureStoreIdle::readingAheadLeavesAClearedFlagAlone()
{
    const World world;
    const QStringList names = world.addSeries(2);
    StoreUnderTest test(world);
    const LogLines log;
    PictureStore::passDiskCopiesOnce();
    test.store.setReadAhead(World::readAheadPlan(names));
    test.workToTheEnd();
    QCOMPARE(test.ready.count(true), 0);
    test.show(World::request("0.jpg"));
    QCOMPARE(log.lines(), QStringList("Will use disk cache next time"));
    test.workToTheEnd();
    QCOMPARE(test.ready.count(true), 2);
}

void TestPictureStoreIdle::emptyPlanEndsTheReadingAhead()
{
    const World world;
    StoreUnderTest test(world);
    test.store.setReadAhead(World::readAheadPlan(world.addSeries(3)));
    test.store.workWhileIdle();
    test.store.setReadAhead(World::readAheadPlan({}));
    test.workToTheEnd();
    QCOMPARE(test.ready.size(), 0);
    QCOMPARE(test.used.size(), 1);
}

void TestPictureStoreIdle::diskUseIsMeasuredWhenIdle()
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

QTEST_GUILESS_MAIN(TestPictureStoreIdle)
#include "tst_picturestoreidle.moc"
