#include "timeline/PlaybackRun.h"

#include <QTest>

namespace {

/// The rows shown in so many steps, "." where the run stopped.
QString walk(int steps, int direction, bool loop, bool pendulum, int from = -1)
{
    PlaybackRun run;
    run.setRows({2, 3, 5});
    run.start(from, direction);
    QString shown;
    for (int i = 0; i < steps; ++i) {
        shown += QString::number(run.row());
        const PlaybackRun::Advance advance = run.advance(direction, loop, pendulum);
        if (advance.stops)
            return shown + '.';
        direction = advance.direction;
    }
    return shown;
}

} // namespace

class tst_PlaybackRun : public QObject
{
    Q_OBJECT

private slots:
    void walks_data();
    void walks();
    void startsAtTheCurrentRowWhenItIsPlayed();
    void startsAtAnEndOtherwise();
    void hasNoRowOutsideTheList();
};

void tst_PlaybackRun::walks_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("loop");
    QTest::addColumn<bool>("pendulum");
    QTest::addColumn<QString>("shown");
    QTest::newRow("forward once") << int(Zum::Forward) << false << false << "235.";
    QTest::newRow("backward once") << int(Zum::Backward) << false << false << "532.";
    QTest::newRow("forward in a loop") << int(Zum::Forward) << true << false << "23523523";
    QTest::newRow("backward in a loop comes back forward")
        << int(Zum::Backward) << true << false << "53223523";
    QTest::newRow("pendulum shows its ends twice") << int(Zum::Forward) << true << true << "23553223";
    QTest::newRow("pendulum backward") << int(Zum::Backward) << true << true << "53223553";
    QTest::newRow("pendulum without a loop stops at the first end")
        << int(Zum::Forward) << false << true << "235.";
}

void tst_PlaybackRun::walks()
{
    QFETCH(int, direction);
    QFETCH(bool, loop);
    QFETCH(bool, pendulum);
    QTEST(walk(8, direction, loop, pendulum), "shown");
}

void tst_PlaybackRun::startsAtTheCurrentRowWhenItIsPlayed()
{
    QCOMPARE(walk(3, Zum::Forward, true, false, 3), QString("352"));
    QCOMPARE(walk(3, Zum::Backward, true, false, 3), QString("322"));
}

void tst_PlaybackRun::startsAtAnEndOtherwise()
{
    QCOMPARE(walk(1, Zum::Forward, true, false, 4), QString("2"));
    QCOMPARE(walk(1, Zum::Backward, true, false, 4), QString("5"));
}

void tst_PlaybackRun::hasNoRowOutsideTheList()
{
    PlaybackRun run;
    QCOMPARE(run.row(), -1);
    run.start(0, Zum::Backward);
    QCOMPARE(run.cursor(), 0);
    run.setRows({4});
    QCOMPARE(run.row(), 4);
    run.advance(Zum::Forward, false, false);
    QCOMPARE(run.row(), -1);
    run.rewind();
    QCOMPARE(run.row(), 4);
    QVERIFY(PlaybackRun(run).advance(Zum::NoDirection, true, true).stops == false);
}

QTEST_GUILESS_MAIN(tst_PlaybackRun)
#include "tst_playbackrun.moc"
