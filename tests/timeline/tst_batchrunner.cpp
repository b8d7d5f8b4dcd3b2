#include "timeline/BatchRunner.h"

#include "shared/Zum.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>

class tst_BatchRunner : public QObject
{
    Q_OBJECT

private slots:
    void takesTheModelAtOnceAndGivesItBackOnReset();
    void refusesASecondAction();
    void refusesAChainWhileBusy();
    void stepsInOrderFromTheEventLoop();
    void letsEventsInBetweenSlices();
    void endsAtOnceWithNothingToDo();
    void countsTheProgressOfAChain();
    void stopsAChainAfterTheRunningStep();
    void doesNotStopASweep();
    void endsASweepWhenAStepSaysSo();
    void computesInAnotherThreadAndEndsInThisOne();
    void dropsWhatIsAbandoned();
    void isBusyUntilAbandonedWorkHasEnded();
    void survivesBeingAbandonedByAStep();
    void resetsWithSignalsOnRealChangesOnly();
};

void tst_BatchRunner::takesTheModelAtOnceAndGivesItBackOnReset()
{
    BatchRunner runner;
    QVERIFY(runner.isIdle());
    QSignalSpy changed(&runner, &BatchRunner::currentActionChanged);
    QVERIFY(runner.begin(Zum::ActSetMirrored));
    QCOMPARE(runner.currentAction(), int(Zum::ActSetMirrored));
    runner.reset();
    QVERIFY(runner.isIdle());
    QCOMPARE(changed.count(), 2);
}

void tst_BatchRunner::refusesASecondAction()
{
    BatchRunner runner;
    runner.begin(Zum::ActSetMirrored);
    QTest::ignoreMessage(QtDebugMsg,
                         "One action still running: 12 or thread is busy: 0. Cannot start action: 14");
    QVERIFY(!runner.begin(Zum::ActSearchStaticness));
    QCOMPARE(runner.currentAction(), int(Zum::ActSetMirrored));
}

void tst_BatchRunner::refusesAChainWhileBusy()
{
    BatchRunner runner;
    runner.begin(Zum::ActSetMirrored);
    QTest::ignoreMessage(QtDebugMsg, "doRemoveFrames: thread is busy '12'");
    QVERIFY(!runner.beginSteps(Zum::ActDelete, "Delete", 3));
    QCOMPARE(runner.progressTotal(), 0);
}

void tst_BatchRunner::stepsInOrderFromTheEventLoop()
{
    BatchRunner runner;
    QList<int> seen;
    bool done = false;
    runner.begin(Zum::ActHideFrames);
    runner.runSliced(
        4,
        [&seen](int position) {
            seen.append(position);
            return true;
        },
        [&done] { done = true; });
    QVERIFY(seen.isEmpty());
    QTRY_VERIFY(done);
    QCOMPARE(seen, QList<int>({0, 1, 2, 3}));
}

void tst_BatchRunner::letsEventsInBetweenSlices()
{
    BatchRunner runner;
    runner.setSliceMs(0);
    int events = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&events] { ++events; });
    timer.start(0);
    bool done = false;
    runner.begin(Zum::ActHideFrames);
    runner.runSliced(
        20, [](int) { return true; }, [&done] { done = true; });
    QTRY_VERIFY(done);
    QVERIFY(events >= 10);
}

void tst_BatchRunner::endsAtOnceWithNothingToDo()
{
    BatchRunner runner;
    bool done = false;
    runner.runSliced(
        0, [](int) { return true; }, [&done] { done = true; });
    QTRY_VERIFY(done);
}

void tst_BatchRunner::countsTheProgressOfAChain()
{
    BatchRunner runner;
    QSignalSpy label(&runner, &BatchRunner::progressActionChanged);
    QSignalSpy total(&runner, &BatchRunner::progressTotalChanged);
    QSignalSpy current(&runner, &BatchRunner::progressCurrentChanged);
    QVERIFY(runner.beginSteps(Zum::ActDelete, "Delete", 3));
    QCOMPARE(runner.progressAction(), QString("Delete"));
    QCOMPARE(runner.progressTotal(), 3);
    bool done = false;
    runner.runSteps([](int) { return true; }, [&done] { done = true; });
    QTRY_VERIFY(done);
    QCOMPARE(runner.progressCurrent(), 3);
    // The last step is the end, not progress.
    QCOMPARE(current.count(), 2);
    QCOMPARE(current.at(1).first().toInt(), 2);
    runner.reset();
    QCOMPARE(label.last().first().toString(), QString());
    QCOMPARE(total.last().first().toInt(), 0);
    QCOMPARE(current.last().first().toInt(), 0);
}

void tst_BatchRunner::stopsAChainAfterTheRunningStep()
{
    BatchRunner runner;
    runner.beginSteps(Zum::ActDelete, "Delete", 10);
    int steps = 0;
    bool done = false;
    runner.runSteps(
        [&steps, &runner](int) {
            if (++steps == 4)
                runner.stop();
            return true;
        },
        [&done] { done = true; });
    QTRY_VERIFY(done);
    QCOMPARE(steps, 4);
    QVERIFY(!runner.keepGoing());
    runner.reset();
    runner.begin(Zum::ActDelete);
    QVERIFY(runner.keepGoing());
}

void tst_BatchRunner::doesNotStopASweep()
{
    BatchRunner runner;
    runner.begin(Zum::ActHideFrames);
    int steps = 0;
    bool done = false;
    runner.runSliced(
        10,
        [&steps, &runner](int) {
            ++steps;
            runner.stop();
            return true;
        },
        [&done] { done = true; });
    QTRY_VERIFY(done);
    QCOMPARE(steps, 10);
}

void tst_BatchRunner::endsASweepWhenAStepSaysSo()
{
    BatchRunner runner;
    int steps = 0;
    bool done = false;
    runner.runSliced(
        10, [&steps](int position) { return ++steps, position < 2; }, [&done] { done = true; });
    QTRY_VERIFY(done);
    QCOMPARE(steps, 3);
}

void tst_BatchRunner::computesInAnotherThreadAndEndsInThisOne()
{
    BatchRunner runner;
    runner.begin(Zum::ActSearchStaticness);
    QThread *worker = nullptr;
    QThread *end = nullptr;
    runner.runInPool([&worker] { worker = QThread::currentThread(); },
                     [&end] { end = QThread::currentThread(); });
    QTRY_VERIFY(end);
    QCOMPARE(end, QThread::currentThread());
    QVERIFY(worker != end);
}

void tst_BatchRunner::dropsWhatIsAbandoned()
{
    BatchRunner runner;
    runner.beginSteps(Zum::ActDelete, "Delete", 3);
    bool called = false;
    runner.runSteps([&called](int) { return called = true; }, [&called] { called = true; });
    runner.abandon();
    QVERIFY(runner.isIdle());
    QCOMPARE(runner.progressTotal(), 0);
    QTest::qWait(5);
    QVERIFY(!called);
}

void tst_BatchRunner::isBusyUntilAbandonedWorkHasEnded()
{
    BatchRunner runner;
    std::atomic<bool> goOn = false;
    bool ended = false;
    runner.begin(Zum::ActSearchStaticness);
    runner.runInPool(
        [&goOn] {
            while (!goOn)
                QThread::yieldCurrentThread();
        },
        [&ended] { ended = true; });
    runner.abandon();
    QTest::ignoreMessage(QtDebugMsg,
                         "One action still running: 0 or thread is busy: 1. Cannot start action: 14");
    QVERIFY(!runner.begin(Zum::ActSearchStaticness));
    goOn = true;
    QTRY_VERIFY(!runner.isPoolBusy());
    QVERIFY(runner.begin(Zum::ActSearchStaticness));
    QVERIFY(!ended);
}

void tst_BatchRunner::survivesBeingAbandonedByAStep()
{
    BatchRunner runner;
    runner.beginSteps(Zum::ActDelete, "Delete", 3);
    int steps = 0;
    runner.runSteps(
        [&steps, &runner](int) {
            ++steps;
            runner.abandon();
            return true;
        },
        [&steps] { steps = 100; });
    QTRY_COMPARE(steps, 1);
    QTest::qWait(5);
    QCOMPARE(steps, 1);
}

void tst_BatchRunner::resetsWithSignalsOnRealChangesOnly()
{
    BatchRunner runner;
    runner.begin(Zum::ActSearchStaticness);
    QSignalSpy total(&runner, &BatchRunner::progressTotalChanged);
    runner.reset();
    runner.reset();
    // Whoever dismisses when the total returns to 0 must not be called by an action that had none.
    QCOMPARE(total.count(), 0);
}

QTEST_GUILESS_MAIN(tst_BatchRunner)
#include "tst_batchrunner.moc"
