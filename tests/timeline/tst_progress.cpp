#include "timeline/Progress.h"

#include <QSignalSpy>
#include <QTest>

class tst_Progress : public QObject
{
    Q_OBJECT

private slots:
    void computesPixelPositions();
    void hasNoPixelsWithoutATotal();
    void writesTheFrameUnderAPixel();
    void stopsAtTheRange_data();
    void stopsAtTheRange();
    void endsAtTheTotal();
    void tellsTheStart();
    void signalsOnlyWhenSomethingChanged();
    void splitsMilliseconds();
    void roundsToWholeFrames();
    void snapsWhenDiscrete();
    void rewindsToTheStartWhereTheListEnds();
    void keepsARangeOfOneFrame();
    void comesBackToTheSamePixelOfEveryFrame();
};

void tst_Progress::computesPixelPositions()
{
    Progress progress;
    QCOMPARE(progress.currentPositionName(), int(Zum::UndefinedPosition));
    progress.setTotal(100);
    progress.setWidth(500);
    progress.setRangeStart(10);
    progress.setRangeEnd(90);
    progress.setCurrent(50);
    QCOMPARE(progress.currentX(), 250.0);
    QCOMPARE(progress.rangeStartX(), 50.0);
    QCOMPARE(progress.rangeEndX(), 450.0);
    progress.setWidth(1000);
    QCOMPARE(progress.currentX(), 500.0);
    progress.setTotal(200);
    QCOMPARE(progress.rangeEndX(), 450.0);
}

void tst_Progress::hasNoPixelsWithoutATotal()
{
    Progress progress;
    progress.setWidth(500);
    progress.setCurrent(5);
    QCOMPARE(progress.currentX(), 0.0);
    progress.setTotal(-3);
    QCOMPARE(progress.currentX(), 0.0);
}

void tst_Progress::writesTheFrameUnderAPixel()
{
    Progress progress;
    progress.setTotal(100);
    progress.setCurrentX(30);
    QCOMPARE(progress.current(), 0.0);
    progress.setWidth(333);
    progress.setRangeEndX(332);
    progress.setRangeStartX(7);
    progress.setCurrentX(100);
    QCOMPARE(progress.current(), 30.0);
    QCOMPARE(progress.rangeEnd(), 99.0);
    QCOMPARE(progress.rangeStart(), 2.0);
}

void tst_Progress::stopsAtTheRange_data()
{
    QTest::addColumn<qreal>("written");
    QTest::addColumn<bool>("rewinds");
    QTest::addColumn<qreal>("kept");
    QTest::addColumn<int>("name");
    QTest::newRow("inside") << 15.0 << false << 15.0 << int(Zum::UndefinedPosition);
    QTest::newRow("at the start") << 10.0 << false << 10.0 << int(Zum::ReachedRangeStart);
    QTest::newRow("before the start") << 3.0 << true << 10.0 << int(Zum::ReachedRangeStart);
    QTest::newRow("at the end") << 20.0 << false << 20.0 << int(Zum::ReachedRangeEnd);
    QTest::newRow("behind the end") << 30.0 << false << 20.0 << int(Zum::ReachedRangeEnd);
    QTest::newRow("rewinds at the end") << 20.0 << true << 10.0 << int(Zum::ReachedRangeEnd);
}

void tst_Progress::stopsAtTheRange()
{
    QFETCH(qreal, written);
    QFETCH(bool, rewinds);
    Progress progress;
    progress.setTotal(100);
    progress.setRangeStart(10);
    progress.setRangeEnd(20);
    progress.setLockInRange(true);
    progress.setAutoRewind(rewinds);
    QSignalSpy start(&progress, &Progress::reachedRangeStart);
    QSignalSpy end(&progress, &Progress::reachedRangeEnd);
    progress.setCurrent(written);
    QTEST(progress.current(), "kept");
    QTEST(progress.currentPositionName(), "name");
    QCOMPARE(start.count(), progress.currentPositionName() == Zum::ReachedRangeStart ? 1 : 0);
    QCOMPARE(end.count(), progress.currentPositionName() == Zum::ReachedRangeEnd ? 1 : 0);
}

void tst_Progress::endsAtTheTotal()
{
    Progress progress;
    progress.setTotal(100);
    QSignalSpy end(&progress, &Progress::reachedEnd);
    progress.setCurrent(100);
    QCOMPARE(progress.current(), 100.0);
    QCOMPARE(end.count(), 1);
    progress.setAutoRewind(true);
    progress.setCurrent(100);
    QCOMPARE(progress.current(), 0.0);
    QCOMPARE(end.count(), 2);
}

void tst_Progress::tellsTheStart()
{
    Progress progress;
    progress.setTotal(100);
    progress.setCurrent(5);
    QSignalSpy start(&progress, &Progress::reachedStart);
    progress.setCurrent(0);
    QCOMPARE(start.count(), 1);
    QCOMPARE(progress.currentPositionName(), int(Zum::ReachedStart));
}

void tst_Progress::signalsOnlyWhenSomethingChanged()
{
    Progress progress;
    progress.setTotal(100);
    progress.setWidth(200);
    QSignalSpy value(&progress, &Progress::currentChanged);
    QSignalSpy x(&progress, &Progress::currentXChanged);
    progress.setCurrent(40);
    progress.setCurrent(40);
    QCOMPARE(value.count(), 1);
    QCOMPARE(x.count(), 1);
}

void tst_Progress::splitsMilliseconds()
{
    Progress progress;
    progress.setMilliseconds(((3 * 60 + 25) * 60 + 45) * 1000 + 678);
    QCOMPARE(progress.hours(), 3);
    QCOMPARE(progress.minutes(), 25);
    QCOMPARE(progress.seconds(), 45);
    QCOMPARE(progress.mSeconds(), 678);
}

void tst_Progress::roundsToWholeFrames()
{
    Progress progress;
    progress.setTotal(100);
    progress.setCurrent(4.6);
    progress.setRangeStart(2.4);
    progress.setRangeEnd(7.5);
    progress.discretize(Progress::HandlerCurrent);
    progress.discretize(Progress::HandlerRangeStart);
    progress.discretize(Progress::HandlerRangeEnd);
    progress.discretize(9);
    QCOMPARE(progress.current(), 5.0);
    QCOMPARE(progress.rangeStart(), 2.0);
    QCOMPARE(progress.rangeEnd(), 8.0);
}

void tst_Progress::snapsWhenDiscrete()
{
    Progress progress;
    progress.setTotal(100);
    progress.setDiscrete(true);
    progress.setCurrent(4.6);
    progress.setRangeEnd(9.3);
    QCOMPARE(progress.current(), 5.0);
    QCOMPARE(progress.rangeEnd(), 9.0);
}

void tst_Progress::rewindsToTheStartWhereTheListEnds()
{
    Progress progress;
    progress.setTotal(10);
    progress.setAutoRewind(true);
    progress.setCurrent(4);
    QSignalSpy moved(&progress, &Progress::currentChanged);
    progress.setCurrent(10);
    QCOMPARE(progress.current(), 0.0);
    QCOMPARE(moved.count(), 1);
    // Without a total there is no end to reach.
    Progress empty;
    QSignalSpy ended(&empty, &Progress::reachedEnd);
    empty.setCurrent(3);
    QCOMPARE(ended.count(), 0);
    QCOMPARE(empty.current(), 3.0);
}

void tst_Progress::keepsARangeOfOneFrame()
{
    Progress progress;
    progress.setTotal(10);
    progress.setRangeStart(5);
    progress.setRangeEnd(5);
    progress.setLockInRange(true);
    for (const qreal value : {0.0, 5.0, 9.0}) {
        progress.setCurrent(value);
        QCOMPARE(progress.current(), 5.0);
    }
}

void tst_Progress::comesBackToTheSamePixelOfEveryFrame()
{
    Progress progress;
    progress.setTotal(50);
    progress.setWidth(1000);
    for (int frame = 0; frame <= 50; ++frame) {
        progress.setCurrentX(frame * 20 + 7);
        QCOMPARE(progress.current(), qreal(frame));
        QCOMPARE(progress.currentX(), frame * 20.0);
    }
}

QTEST_MAIN(tst_Progress)
#include "tst_progress.moc"
