#include "timeline/Ticker.h"

#include <QSignalSpy>
#include <QTest>

class tst_Ticker : public QObject
{
    Q_OBJECT

private slots:
    void doesNotDriftWhenTicksComeLate();
    void catchesUpWithTicksThatWereMissed();
    void doesNotCatchUpWithALongSleep();
    void waitsForTheNextTickOnly();
    void ticksUntilStopped();
    void startsAnew();
    void ticksOnceForEachMissedInterval();
    void survivesBeingStoppedByATick();
};

void tst_Ticker::doesNotDriftWhenTicksComeLate()
{
    TickSchedule schedule;
    schedule.start(1000, 40);
    int ticks = 0;
    // Every wake-up comes 9 ms late.
    qint64 now = 1000;
    for (int i = 0; i < 1000; ++i) {
        now += schedule.msToNext(now) + 9;
        ticks += schedule.takeDue(now);
    }
    QCOMPARE(ticks, 1000);
    QCOMPARE(now, qint64(1000 + 1000 * 40 + 9));
}

void tst_Ticker::catchesUpWithTicksThatWereMissed()
{
    TickSchedule schedule;
    schedule.start(0, 10);
    QCOMPARE(schedule.takeDue(9), 0);
    QCOMPARE(schedule.takeDue(35), 3);
    QCOMPARE(schedule.takeDue(35), 0);
    QCOMPARE(schedule.msToNext(35), 5);
    QCOMPARE(schedule.takeDue(40), 1);
}

void tst_Ticker::doesNotCatchUpWithALongSleep()
{
    TickSchedule schedule;
    schedule.start(0, 10);
    QCOMPARE(schedule.takeDue(10 * TickSchedule::mostTicksAtOnce), int(TickSchedule::mostTicksAtOnce));
    QCOMPARE(schedule.takeDue(100000), 1);
    QCOMPARE(schedule.msToNext(100004), 6);
}

void tst_Ticker::waitsForTheNextTickOnly()
{
    TickSchedule schedule;
    schedule.start(0, 10);
    QCOMPARE(schedule.msToNext(3), 7);
    QCOMPARE(schedule.msToNext(25), 0);
    schedule.start(0, 0);
    QCOMPARE(schedule.msToNext(0), 1);
}

void tst_Ticker::ticksUntilStopped()
{
    SteadyTicker ticker;
    QSignalSpy ticks(&ticker, &Ticker::ticked);
    QVERIFY(!ticker.isActive());
    ticker.start(1);
    QVERIFY(ticker.isActive());
    QTRY_VERIFY(ticks.count() >= 3);
    ticker.stop();
    QVERIFY(!ticker.isActive());
    const auto count = ticks.count();
    QTest::qWait(5);
    QCOMPARE(ticks.count(), count);
}

void tst_Ticker::startsAnew()
{
    qint64 now = 0;
    SteadyTicker ticker(nullptr, [&now] { return now; });
    QSignalSpy ticks(&ticker, &Ticker::ticked);
    ticker.start(1000000);
    now = 5;
    ticker.start(1);
    now = 6;
    QTRY_COMPARE(ticks.count(), 1);
}

void tst_Ticker::ticksOnceForEachMissedInterval()
{
    qint64 now = 0;
    SteadyTicker ticker(nullptr, [&now] { return now; });
    QSignalSpy ticks(&ticker, &Ticker::ticked);
    ticker.start(2);
    now = 7;
    QTRY_VERIFY(ticks.count() > 0);
    QCOMPARE(ticks.count(), 3);
}

void tst_Ticker::survivesBeingStoppedByATick()
{
    qint64 now = 0;
    SteadyTicker ticker(nullptr, [&now] { return now; });
    int ticks = 0;
    connect(&ticker, &Ticker::ticked, this, [&] {
        ++ticks;
        ticker.stop();
    });
    ticker.start(2);
    now = 9;
    QTRY_COMPARE(ticks, 1);
    QTest::qWait(5);
    QCOMPARE(ticks, 1);
}

QTEST_GUILESS_MAIN(tst_Ticker)
#include "tst_ticker.moc"
