#include "paths/StrokeFitJob.h"

#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <cmath>

using morvane::StrokeFit;
using morvane::StrokeFitJob;

class TestStrokeFitJob : public QObject
{
    Q_OBJECT

private slots:
    void bringsTheCurveForTheStroke();
    void outcomeIsTakenOnce();
    void abandonedFitBringsNothing();
    void startsAnewAfterAnAbandonedFit();
    void isStoppedAndJoinedWhenItGoes();
};

namespace {

QList<MPathPoint> stroke(int length)
{
    QList<MPathPoint> nodes;
    for (int at = 0; at < length; ++at)
        nodes.append(MPathPoint::plain(at == 0 ? MPathPoint::Move : MPathPoint::Line,
                                       {at * 4.0, 50.0 * std::sin(at * 0.1)}));
    return nodes;
}

} // namespace

void TestStrokeFitJob::bringsTheCurveForTheStroke()
{
    StrokeFitJob job;
    QSignalSpy finished(&job, &StrokeFitJob::finished);
    QVERIFY(!job.isRunning());
    job.start(stroke(40), 300);
    QVERIFY(job.isRunning());
    QVERIFY(finished.wait());
    const auto outcome = job.takeOutcome();
    QVERIFY(outcome);
    QVERIFY(!job.isRunning());
    QCOMPARE(outcome->stroke.size(), 40);
    const StrokeFit direct = morvane::fitStroke(stroke(40), 300);
    QCOMPARE(outcome->curve.size(), direct.curve.size());
    QVERIFY(outcome->curve.size() < 40);
    for (qsizetype row = 0; row < direct.curve.size(); ++row)
        QVERIFY(outcome->curve[row].sameGeometry(direct.curve[row]));
}

void TestStrokeFitJob::outcomeIsTakenOnce()
{
    StrokeFitJob job;
    QVERIFY(!job.takeOutcome());
    QSignalSpy finished(&job, &StrokeFitJob::finished);
    job.start(stroke(20), 300);
    QVERIFY(finished.wait());
    QVERIFY(job.takeOutcome());
    QVERIFY(!job.takeOutcome());
}

void TestStrokeFitJob::abandonedFitBringsNothing()
{
    StrokeFitJob job;
    QSignalSpy finished(&job, &StrokeFitJob::finished);
    job.start(stroke(20), 300);
    job.abandon();
    QVERIFY(finished.wait());
    QVERIFY(job.isRunning());
    QVERIFY(!job.takeOutcome());
    QVERIFY(!job.isRunning());
}

void TestStrokeFitJob::startsAnewAfterAnAbandonedFit()
{
    StrokeFitJob job;
    QSignalSpy finished(&job, &StrokeFitJob::finished);
    job.start(stroke(20), 300);
    job.abandon();
    QVERIFY(finished.wait());
    job.takeOutcome();
    job.start(stroke(30), 300);
    QVERIFY(finished.wait());
    const auto outcome = job.takeOutcome();
    QVERIFY(outcome);
    QCOMPARE(outcome->stroke.size(), 30);
    QVERIFY(!outcome->curve.isEmpty());
}

void TestStrokeFitJob::isStoppedAndJoinedWhenItGoes()
{
    {
        StrokeFitJob job;
        job.start(stroke(20000), 50);
    }
    QTRY_COMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
}

QTEST_GUILESS_MAIN(TestStrokeFitJob)
#include "tst_strokefitjob.moc"
