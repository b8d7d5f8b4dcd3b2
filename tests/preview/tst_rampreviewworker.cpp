#include "preview/PreviewThread.h"
#include "preview/PreviewWorld.h"

#include <atomic>
#include <thread>

namespace {

/// Has the slots that the worker invokes.
class Owner : public QObject
{
    Q_OBJECT

public:
    QStringList told;
    QStringList threads;
    double used = -1;
    double diskUsed = -1;
    QBitArray ready;
    int readyAtFinish = -1;

public slots:
    void setCaching(bool caching)
    {
        note(caching ? "caching" : "not caching");
    }
    void setProportion(qreal)
    {
        note("proportion");
    }
    void imageSizeChanged(int width, int height)
    {
        note(QString("size %1x%2").arg(width).arg(height));
    }
    void setCacheUsedPercent(qreal percent)
    {
        used = percent;
    }
    void finishedInThread()
    {
        readyAtFinish = int(ready.count(true));
        note("finished");
    }
    void endedInThread()
    {
        note("ended");
    }
    void setCacheMaxInBytes(int bytes)
    {
        note(QString("max %1").arg(bytes));
    }
    void setReadyPictures(int, const QBitArray &bits)
    {
        ready = bits;
    }
    void setDiskCacheUsedPercent(qreal percent)
    {
        diskUsed = percent;
    }

private:
    void note(const QString &what)
    {
        told.append(what);
        if (QThread::currentThread() != thread())
            threads.append(what);
    }
};

void ask(PreviewThread &thread, const PictureRequest &request)
{
    thread.call(&RamPreviewWorker::requestImage, request.name, request.scale, request.parameters(),
                request.settings);
}

ReadAheadPlan filteredPlanFor(const QStringList &names)
{
    ReadAheadPlan plan = PreviewWorld::readAheadPlan(names);
    plan.like.filtered = true;
    plan.like.settings = {{"contrast", 1}};
    return plan;
}

/// A filter that waits, once it has begun, until it may go on.
struct HeldFilter
{
    PictureStore::Surroundings in(const PreviewWorld &world)
    {
        PictureStore::Surroundings surroundings = world.surroundings();
        surroundings.filter = [this](const QImage &image, const QVariantMap &, double) {
            inside = true;
            while (!goOn)
                std::this_thread::yield();
            return image;
        };
        return surroundings;
    }
    void waitUntilInside() const
    {
        while (!inside)
            std::this_thread::yield();
    }

    std::atomic<bool> inside = false;
    std::atomic<bool> goOn = false;
};

} // namespace

/// The worker on its thread, and what it shares with others.
class TestRamPreviewWorker : public QObject
{
    Q_OBJECT

private slots:
    void answersComeQueuedOnTheOwnersThread();
    void requestTravelsAsTenNumbers();
    void limitIsToldWhenAskedFor();
    void twoRequestsAtOnceFromOtherThreads();
    void requestGoesBeforeTheReadingAhead();
    void readingAheadEndsWithThePlan();
    void destructionWhileLoading();
    void destructionWhileReadingAhead();
    void ownerMayBeGone();
    void handoverWaitsNoLongerThanAllowed();
    void handoverUnderLoad();
    void copiesAreSharedByWorkers();
    void copiesOfOthersAreSeenByTheFoldersTime();
    void workersThreadHasAName();
};

void TestRamPreviewWorker::answersComeQueuedOnTheOwnersThread()
{
    const PreviewWorld world;
    world.addCaptured("a.png", {20, 10});
    Owner owner;
    PreviewThread thread(&owner, world.surroundings());
    ask(thread, PreviewWorld::request("a.png"));
    QTRY_COMPARE(owner.told, QStringList({"caching", "proportion", "finished", "not caching"}));
    QVERIFY(owner.threads.isEmpty());
    QVERIFY(owner.used > 0);
    QTRY_COMPARE(owner.diskUsed, 0.0);
    QImage image;
    QVERIFY(thread.worker().handover().take(image, std::chrono::milliseconds(100)));
    QCOMPARE(image.size(), QSize(100, 50));
}

void TestRamPreviewWorker::requestTravelsAsTenNumbers()
{
    PictureRequest request;
    request.name = "a";
    request.scale = 0.5;
    request.cropLimit = {1, 2};
    request.filtered = true;
    request.source = PictureRequest::fromBackgrounds;
    request.target = {3, 4};
    request.forced = true;
    request.policy = Zum::ScaleByHeight;
    request.settings = {{"contrast", 1}};
    QCOMPARE(request.parameters(), QList<int>({0, 1, 2, 0, 1, -1, 3, 4, 1, 2}));
    const PictureRequest arrived =
        PictureRequest::of("a", 0.5, request.parameters(), QVariantMap{{"contrast", 1}});
    QVERIFY(arrived.wantsSameAs(request));
    QVERIFY(arrived.forced);
}

void TestRamPreviewWorker::limitIsToldWhenAskedFor()
{
    const PreviewWorld world;
    Owner owner;
    PreviewThread thread(&owner, world.surroundings());
    thread.call(&RamPreviewWorker::setCacheMax, 1000, true);
    QTRY_COMPARE(owner.told, QStringList("max 1000"));
    thread.call(&RamPreviewWorker::setCacheMaxInBytes, 2000);
    thread.call(&RamPreviewWorker::process);
    thread.call(&RamPreviewWorker::setCacheMax, 3000, true);
    QTRY_COMPARE(owner.told, QStringList({"max 1000", "max 3000"}));
}

/// Only one is served at a time; each gets its answer.
void TestRamPreviewWorker::twoRequestsAtOnceFromOtherThreads()
{
    const PreviewWorld world;
    const QStringList names = world.addSeries(2, {64, 32});
    const LogLines log;
    HeldFilter filter;
    std::atomic<int> ended = 0;
    std::atomic<int> finished = 0;
    PictureStore::Reports reports;
    reports.ended = [&] {
        ++ended;
    };
    reports.finished = [&] {
        ++finished;
    };
    PictureStore store(filter.in(world), reports);
    std::thread first([&] {
        PictureRequest request = PreviewWorld::request(names.first());
        request.filtered = true;
        request.settings = {{"contrast", 1}};
        store.request(request);
    });
    filter.waitUntilInside();
    std::thread second([&] { store.request(PreviewWorld::request(names.last())); });
    second.join();
    QCOMPARE(ended.load(), 1);
    filter.goOn = true;
    first.join();
    QCOMPARE(finished.load(), 1);
    QCOMPARE(log.count("-Cache is busy"), 1);
}

void TestRamPreviewWorker::requestGoesBeforeTheReadingAhead()
{
    const PreviewWorld world;
    const QStringList names = world.addSeries(20, {64, 32});
    HeldFilter filter;
    Owner owner;
    PreviewThread thread(&owner, filter.in(world));
    thread.call(&RamPreviewWorker::setReadAhead, filteredPlanFor(names));
    filter.waitUntilInside();
    ask(thread, PreviewWorld::request("19.jpg"));
    filter.goOn = true;
    QTRY_COMPARE(owner.ready.count(true), 20);
    // What was being read, and nothing more.
    QCOMPARE(owner.readyAtFinish, 1);
}

void TestRamPreviewWorker::readingAheadEndsWithThePlan()
{
    const PreviewWorld world;
    const QStringList names = world.addSeries(5, {64, 32});
    Owner owner;
    PreviewThread thread(&owner, world.surroundings());
    thread.call(&RamPreviewWorker::setReadAhead, PreviewWorld::readAheadPlan(names));
    QTRY_COMPARE(owner.ready.count(true), 5);
    QVERIFY(owner.told.isEmpty());
}

void TestRamPreviewWorker::destructionWhileLoading()
{
    const PreviewWorld world;
    world.addCaptured("a.jpg", {4000, 3000});
    for (int turn = 0; turn < 5; ++turn) {
        Owner owner;
        {
            PreviewThread thread(&owner, world.surroundings());
            PictureRequest request = PreviewWorld::request("a.jpg");
            request.forced = true;
            ask(thread, request);
            if (turn > 0)
                QTRY_VERIFY(owner.told.contains("caching"));
        }
        QCoreApplication::processEvents();
    }
}

void TestRamPreviewWorker::destructionWhileReadingAhead()
{
    const PreviewWorld world;
    const QStringList names = world.addSeries(300, {64, 32});
    std::atomic<int> read = 0;
    PictureStore::Surroundings surroundings = world.surroundings();
    surroundings.filter = [&](const QImage &image, const QVariantMap &, double) {
        ++read;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return image;
    };
    Owner owner;
    {
        PreviewThread thread(&owner, surroundings);
        thread.call(&RamPreviewWorker::setReadAhead, filteredPlanFor(names));
        while (read == 0)
            std::this_thread::yield();
    }
    QVERIFY(read < 300);
}

void TestRamPreviewWorker::ownerMayBeGone()
{
    const PreviewWorld world;
    world.addCaptured("a.png", {20, 10});
    auto owner = std::make_unique<Owner>();
    PreviewThread thread(owner.get(), world.surroundings());
    owner.reset();
    ask(thread, PreviewWorld::request("a.png"));
    QImage image;
    QTRY_VERIFY(thread.worker().handover().take(image, std::chrono::milliseconds(100)) && !image.isNull());
}

void TestRamPreviewWorker::handoverWaitsNoLongerThanAllowed()
{
    PictureHandover handover;
    QVERIFY(handover.put(PreviewWorld::plain({2, 2}, Qt::red), std::chrono::milliseconds(1)));
    std::atomic<bool> held = false;
    std::atomic<bool> letGo = false;
    std::thread holder([&] {
        handover.whileLocked([&] {
            held = true;
            while (!letGo)
                std::this_thread::yield();
        });
    });
    while (!held)
        std::this_thread::yield();
    QImage image = PreviewWorld::plain({1, 1}, Qt::blue);
    QVERIFY(!handover.take(image, std::chrono::milliseconds(5)));
    // What one had stays.
    QCOMPARE(image.size(), QSize(1, 1));
    QVERIFY(!handover.put({}, std::chrono::milliseconds(5)));
    letGo = true;
    holder.join();
    QVERIFY(handover.take(image, std::chrono::milliseconds(5)));
    QCOMPARE(image.size(), QSize(2, 2));
}

void TestRamPreviewWorker::handoverUnderLoad()
{
    PictureHandover handover;
    constexpr int turns = 2000;
    std::atomic<bool> done = false;
    std::thread writer([&] {
        for (int i = 1; i <= turns; ++i)
            handover.put(PreviewWorld::plain({i % 7 + 1, 3}, Qt::red), std::chrono::seconds(1));
        done = true;
    });
    int seen = 0;
    while (!done || seen == 0) {
        QImage image;
        QVERIFY(handover.take(image, std::chrono::seconds(1)));
        if (!image.isNull()) {
            QCOMPARE(image.pixelColor(0, 0), QColor(Qt::red));
            ++seen;
        }
    }
    writer.join();
    QVERIFY(seen > 0);
}

void TestRamPreviewWorker::copiesAreSharedByWorkers()
{
    const PreviewWorld world;
    DiskCopies copies;
    const QImage picture = PreviewWorld::plain({40, 30}, Qt::red);
    std::atomic<int> found = 0;
    std::vector<std::thread> workers;
    for (int worker = 0; worker < 3; ++worker)
        workers.emplace_back([&, worker] {
            for (int i = 0; i < 20; ++i) {
                const QString name = QString("%1_%2.jpg").arg(worker).arg(i);
                copies.write(world.copies(), name, {4000, 3000}, picture);
                found += copies.find(world.copies(), name).isEmpty() ? 0 : 1;
            }
        });
    for (std::thread &worker : workers)
        worker.join();
    QCOMPARE(found.load(), 60);
    QCOMPARE(world.copyNames().size(), 60);
    QCOMPARE(copies.find(world.copies(), "0_7.jpg"), world.copies() + "0_7.jpg_@4000x3000.jpg");
}

void TestRamPreviewWorker::copiesOfOthersAreSeenByTheFoldersTime()
{
    const PreviewWorld world;
    DiskCopies copies;
    QVERIFY(copies.find(world.copies(), "a.jpg").isEmpty());
    // Times of a folder tick in steps of some milliseconds.
    QTest::qWait(20);
    PreviewWorld::add(world.copies() + "a.jpg_@20x10.jpg", PreviewWorld::plain({2, 1}, Qt::red));
    PreviewWorld::add(world.copies() + "a.jpg_@10x10.jpg", PreviewWorld::plain({2, 1}, Qt::red));
    PreviewWorld::add(world.copies() + "a.jpg", PreviewWorld::plain({2, 1}, Qt::red));
    // The first by name.
    QCOMPARE(copies.find(world.copies(), "a.jpg"), world.copies() + "a.jpg_@10x10.jpg");
    QTest::qWait(20);
    QVERIFY(QFile::remove(world.copies() + "a.jpg_@10x10.jpg"));
    QCOMPARE(copies.find(world.copies(), "a.jpg"), world.copies() + "a.jpg_@20x10.jpg");
    QVERIFY(copies.find({}, "a.jpg").isEmpty());
}

void TestRamPreviewWorker::workersThreadHasAName()
{
    const PreviewWorld world;
    Owner owner;
    PreviewThread thread(&owner, world.surroundings());
    QCOMPARE(thread.worker().thread()->objectName(), QString("RamPreviewWorker"));
    QVERIFY(thread.worker().thread() != QThread::currentThread());
}

QTEST_GUILESS_MAIN(TestRamPreviewWorker)
#include "tst_rampreviewworker.moc"
