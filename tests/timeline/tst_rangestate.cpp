#include "timeline/ModelSupport.h"

class tst_RangeState : public QObject
{
    Q_OBJECT

private slots:
    void acceptsAStartIndexUpToThirtyThousand();
    void cutsTheRateToTwoDecimals_data();
    void cutsTheRateToTwoDecimals();
    void hasNoDurationForARangeOfOneFrame();
    void computesDurationAndInterval();
    void hasNoIntervalWithoutARate();
    void marksTheProjectDirtyByTheRightSettings();
};

void tst_RangeState::acceptsAStartIndexUpToThirtyThousand()
{
    TestModel model;
    QSignalSpy dirty(&model, &FramesModel::changed);
    model.setStartIndex(30000);
    QCOMPARE(model.startIndex(), 30000);
    QCOMPARE(dirty.count(), 1);
    LogLines log;
    model.setStartIndex(30001);
    model.setStartIndex(-1);
    QCOMPARE(log.take(), QStringList({"Wrong start index: 30001", "Wrong start index: -1"}));
    QCOMPARE(model.startIndex(), 30000);
    QCOMPARE(dirty.count(), 1);
}

void tst_RangeState::cutsTheRateToTwoDecimals_data()
{
    QTest::addColumn<qreal>("written");
    QTest::addColumn<qreal>("stored");
    QTest::newRow("cut") << 12.999 << 12.99;
    QTest::newRow("stands") << 8.2 << 8.2;
    QTest::newRow("film") << 23.976 << 23.97;
    QTest::newRow("whole") << 24.0 << 24.0;
    QTest::newRow("not a number") << qQNaN() << 25.0;
    QTest::newRow("endless") << qInf() << 25.0;
}

void tst_RangeState::cutsTheRateToTwoDecimals()
{
    QFETCH(qreal, written);
    QFETCH(qreal, stored);
    TestModel model;
    model.setTimelineFps(written);
    QCOMPARE(model.timelineFps(), stored);
    model.setTimelineFps(model.timelineFps());
    QCOMPARE(model.timelineFps(), stored);
}

void tst_RangeState::hasNoDurationForARangeOfOneFrame()
{
    TestModel model(10);
    model.setTimelineRangeEnd(9);
    QCOMPARE(model.interval(), 40.0);
    model.setTimelineRangeStart(4);
    model.setTimelineRangeEnd(4);
    QCOMPARE(model.timelineRangeSize(), 0);
    QCOMPARE(model.duration(), 0.0);
    model.setTimelineFps(10);
    QCOMPARE(model.interval(), 40.0);
}

void tst_RangeState::computesDurationAndInterval()
{
    TestModel model(10);
    model.setTimelineRangeStart(0);
    model.setTimelineRangeEnd(9);
    QCOMPARE(model.timelineRangeSize(), 10);
    QCOMPARE(model.duration(), 400.0);
    model.setTimelineFps(24);
    QCOMPARE(model.interval(), 41.0);
    QCOMPARE(model.duration(), 10 / 24.0 * 1000);
}

void tst_RangeState::hasNoIntervalWithoutARate()
{
    TestModel model(10);
    model.setTimelineRangeEnd(9);
    LogLines log;
    model.setTimelineFps(0);
    QCOMPARE(log.take(), QStringList{"Unable start playing. Timeline Fps = 0"});
    QCOMPARE(model.interval(), 0.0);
    QCOMPARE(model.duration(), 0.0);
}

void tst_RangeState::marksTheProjectDirtyByTheRightSettings()
{
    TestModel model(5);
    QSignalSpy dirty(&model, &FramesModel::changed);
    model.setTimelineRangeEnd(3);
    model.setTimelineRangeStart(1);
    model.setTimelineFps(12);
    model.setLoop(false);
    model.setPendulum(true);
    QCOMPARE(dirty.count(), 5);
    model.setPlayDirection(Zum::Backward);
    model.setPlayingCaptured(false);
    model.setDoubleDecker(true);
    model.setCurrentIndex(2);
    QCOMPARE(dirty.count(), 5);
}

QTEST_GUILESS_MAIN(tst_RangeState)
#include "tst_rangestate.moc"
