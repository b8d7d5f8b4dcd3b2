#include "shared/ProgressState.h"

#include <QSignalSpy>
#include <QTest>

class TestProgressState : public QObject
{
    Q_OBJECT

private slots:
    void startsAtRest();
    void increaseAddsOne();
    void signalsOnlyChanges();
    void stopGoesBackToRest();
    void totalGoesToZeroLast();
};

void TestProgressState::startsAtRest()
{
    const ProgressState progress;
    QCOMPARE(progress.progressTotal(), 0);
    QCOMPARE(progress.progressCurrent(), 0);
    QCOMPARE(progress.progressAction(), QString());
}

void TestProgressState::increaseAddsOne()
{
    ProgressState progress;
    QSignalSpy changes(&progress, &ProgressState::progressCurrentChanged);
    progress.setProgressCurrent(4);
    progress.increaseProgressCurrent();
    QCOMPARE(progress.progressCurrent(), 5);
    QCOMPARE(changes.count(), 2);
}

void TestProgressState::signalsOnlyChanges()
{
    ProgressState progress;
    QSignalSpy total(&progress, &ProgressState::progressTotalChanged);
    QSignalSpy action(&progress, &ProgressState::progressActionChanged);
    progress.setProgressTotal(10);
    progress.setProgressTotal(10);
    progress.setProgressAction(QStringLiteral("Loading Project"));
    progress.setProgressAction(QStringLiteral("Loading Project"));
    QCOMPARE(total.count(), 1);
    QCOMPARE(action.count(), 1);
}

void TestProgressState::stopGoesBackToRest()
{
    ProgressState progress;
    progress.setProgressTotal(10);
    progress.setProgressCurrent(3);
    progress.setProgressAction(QStringLiteral("Loading Project"));
    progress.stopProgress();
    QCOMPARE(progress.progressTotal(), 0);
    QCOMPARE(progress.progressCurrent(), 0);
    QCOMPARE(progress.progressAction(), QString());
}

void TestProgressState::totalGoesToZeroLast()
{
    ProgressState progress;
    progress.setProgressTotal(10);
    progress.setProgressCurrent(3);
    progress.setProgressAction(QStringLiteral("Loading Project"));
    bool atRest = false;
    connect(&progress, &ProgressState::progressTotalChanged, this,
            [&] { atRest = progress.progressCurrent() == 0 && progress.progressAction().isEmpty(); });
    progress.stopProgress();
    QVERIFY(atRest);
}

QTEST_APPLESS_MAIN(TestProgressState)

#include "tst_progressstate.moc"
