#include "jobs/render/AheadQueue.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <QTest>
#include <random>

class TestAheadQueue : public QObject
{
    Q_OBJECT

private slots:
    void resultsComeInOrder_data();
    void resultsComeInOrder();
    void nothingToDo();
    void neverMoreThanTheLookAhead();
    void resultsNobodyTookAreDropped();
    void destroyedAtAnyMoment();
    void threadsShareNoWork();
    void worksAheadOfItsUser();
};

void TestAheadQueue::resultsComeInOrder_data()
{
    QTest::addColumn<int>("lookAhead");
    for (const int lookAhead : {1, 2, 3, 8, 100})
        QTest::addRow("%d", lookAhead) << lookAhead;
}

void TestAheadQueue::resultsComeInOrder()
{
    QFETCH(int, lookAhead);
    AheadQueue<int> queue(300, lookAhead, [] {
        return [random = std::make_shared<std::mt19937>(1)](int position) {
            if ((*random)() % 4 == 0)
                std::this_thread::sleep_for(std::chrono::microseconds((*random)() % 200));
            return position * 3;
        };
    });
    for (int i = 0; i < 300; ++i)
        QCOMPARE(queue.next().value(), i * 3);
    QVERIFY(!queue.next());
    QVERIFY(!queue.next());
}

void TestAheadQueue::nothingToDo()
{
    const auto work = [] {
        return [](int position) {
            return position;
        };
    };
    AheadQueue<int> none(0, 4, work);
    QVERIFY(!none.next());
    AheadQueue<int> fewer(-3, 0, work);
    QVERIFY(!fewer.next());
}

void TestAheadQueue::neverMoreThanTheLookAhead()
{
    std::atomic<int> begun = 0;
    std::atomic<int> taken = 0;
    std::atomic<int> most = 0;
    AheadQueue<int> queue(200, 3, [&] {
        return [&](int position) {
            // Taken is counted after the queue has, so that it may lag by the one on its way.
            const int outstanding = ++begun - taken;
            int seen = most;
            while (outstanding > seen && !most.compare_exchange_weak(seen, outstanding)) {
            }
            return position;
        };
    });
    while (queue.next())
        ++taken;
    QCOMPARE(begun.load(), 200);
    QVERIFY2(most <= 4, qPrintable(QString::number(most)));
}

void TestAheadQueue::resultsNobodyTookAreDropped()
{
    const auto counter = std::make_shared<int>(0);
    {
        AheadQueue<std::shared_ptr<int>> queue(50, 4, [&counter] {
            return [counter](int) {
                return counter;
            };
        });
        QVERIFY(queue.next().value() == counter);
    }
    QCOMPARE(counter.use_count(), 1L);
}

void TestAheadQueue::destroyedAtAnyMoment()
{
    for (int takes = 0; takes < 40; ++takes) {
        AheadQueue<int> queue(30, 3, [] {
            return [](int position) {
                return position;
            };
        });
        for (int i = 0; i < takes; ++i)
            queue.next();
    }
}

void TestAheadQueue::threadsShareNoWork()
{
    int made = 0;
    AheadQueue<int> queue(100, 4, [&made] {
        ++made;
        // Not atomic: two threads in it at once would be seen by the thread sanitizer.
        return [uses = std::make_shared<int>(0)](int) {
            return ++*uses;
        };
    });
    int sum = 0;
    while (const std::optional<int> result = queue.next())
        sum += result.value() > 0 ? 1 : 0;
    QCOMPARE(sum, 100);
    QCOMPARE(made, 4);
}

void TestAheadQueue::worksAheadOfItsUser()
{
    std::atomic<int> done = 0;
    AheadQueue<int> queue(10, 3, [&done] {
        return [&done](int position) {
            ++done;
            return position;
        };
    });
    // Without anyone taking, the look-ahead is filled and no more.
    QTRY_COMPARE(done.load(), 3);
    QCOMPARE(queue.next().value(), 0);
    QTRY_COMPARE(done.load(), 4);
}

QTEST_GUILESS_MAIN(TestAheadQueue)
#include "tst_aheadqueue.moc"
