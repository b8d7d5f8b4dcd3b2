#include "preview/ReadAheadPlan.h"
#include "preview/TimelineReadAhead.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <QSignalSpy>
#include <QtTest>

namespace {

/// Frames with the pictures of those names; "" for a frame without one.
void fill(FramesModel &model, const QStringList &names)
{
    for (const QString &name : names)
        model.appendFrame({{"capFull", name}, {"refFull", name.isEmpty() ? QString() : "r" + name}});
    model.setLoaded(true);
    model.setTimelineRangeStart(0);
    model.setTimelineRangeEnd(model.last());
    model.setCurrentIndex(0);
}

PictureRequest captured()
{
    PictureRequest request;
    request.source = PictureRequest::fromCaptured;
    return request;
}

/// The plans that were told, the newest last.
struct Plans
{
    explicit Plans(TimelineReadAhead &readAhead)
    {
        QObject::connect(&readAhead, &TimelineReadAhead::planned, &readAhead,
                         [this](const ReadAheadPlan &plan) { all.append(plan); });
    }
    QList<ReadAheadPlan> all;
};

QBitArray bits(const QString &text)
{
    QBitArray result(text.size());
    for (int i = 0; i < text.size(); ++i)
        result.setBit(i, text.at(i) == '1');
    return result;
}

QString runsOf(const TimelineReadAhead &readAhead)
{
    QStringList runs;
    for (const QVariant &run : readAhead.readyRuns())
        runs.append(QString("%1-%2").arg(run.toList().at(0).toInt()).arg(run.toList().at(1).toInt()));
    return runs.join(' ');
}

} // namespace

/// Which pictures are read ahead, in which order, and what of the range is ready.
class TestReadAhead : public QObject
{
    Q_OBJECT

private slots:
    void orderOfTheWalk_data();
    void orderOfTheWalk();
    void everyWalkVisitsEachOnce();
    void planHoldsTheRangeFromTheCursor();
    void heldFramesAndEmptyOnesAreNoPicturesOfTheirOwn();
    void hiddenFramesAreLeftOut();
    void referenceFramesWhenTheyArePlayed();
    void planFollowsEditsAndSettings_data();
    void planFollowsEditsAndSettings();
    void stepsOfTheCursorMakeNoPlan();
    void turningRoundMakesAPlan();
    void inactiveGivesAnEmptyPlan();
    void readyRunsAndPercent();
    void readyOfAnEarlierPlanIsDropped();
    void readyIsToldAFewTimesASecondAtMost();
};

void TestReadAhead::orderOfTheWalk_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("loop");
    QTest::addColumn<bool>("pendulum");
    QTest::addColumn<QList<int>>("order");
    QTest::newRow("forward") << int(Zum::Forward) << false << false << QList<int>{2, 3, 4, 0, 1};
    QTest::newRow("forward, loop") << int(Zum::Forward) << true << false << QList<int>{2, 3, 4, 0, 1};
    QTest::newRow("forward, pendulum") << int(Zum::Forward) << true << true << QList<int>{2, 3, 4, 1, 0};
    QTest::newRow("pendulum without loop") << int(Zum::Forward) << false << true << QList<int>{2, 3, 4, 0, 1};
    QTest::newRow("backward") << int(Zum::Backward) << false << false << QList<int>{2, 1, 0, 4, 3};
    QTest::newRow("backward, loop comes back forward")
        << int(Zum::Backward) << true << false << QList<int>{2, 1, 0, 3, 4};
    QTest::newRow("backward, pendulum") << int(Zum::Backward) << true << true << QList<int>{2, 1, 0, 3, 4};
    QTest::newRow("no direction") << int(Zum::NoDirection) << true << false << QList<int>{2, 3, 4, 0, 1};
}

void TestReadAhead::orderOfTheWalk()
{
    QFETCH(int, direction);
    QFETCH(bool, loop);
    QFETCH(bool, pendulum);
    QFETCH(QList<int>, order);
    ReadAheadPlan plan;
    plan.names = {"0", "1", "2", "3", "4"};
    plan.cursor = 2;
    plan.direction = direction;
    plan.loop = loop;
    plan.pendulum = pendulum;
    QList<int> walked;
    for (int step = 0; step < 5; ++step)
        walked.append(plan.position(step));
    QCOMPARE(walked, order);
}

void TestReadAhead::everyWalkVisitsEachOnce()
{
    ReadAheadPlan plan;
    plan.names = {"0", "1", "2", "3", "4", "5", "6"};
    for (plan.cursor = 0; plan.cursor < 7; ++plan.cursor)
        for (const int direction : {Zum::Forward, Zum::Backward})
            for (const bool loop : {false, true})
                for (const bool pendulum : {false, true}) {
                    plan.direction = direction;
                    plan.loop = loop;
                    plan.pendulum = pendulum;
                    QSet<int> visited;
                    for (int step = 0; step < 7; ++step)
                        visited.insert(plan.position(step));
                    QCOMPARE(visited, QSet<int>({0, 1, 2, 3, 4, 5, 6}));
                }
}

void TestReadAhead::planHoldsTheRangeFromTheCursor()
{
    FramesModel model;
    fill(model, {"a", "b", "c", "d", "e", "f"});
    model.setTimelineRangeStart(1);
    model.setTimelineRangeEnd(4);
    model.setCurrentIndex(3);
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    QCOMPARE(plans.all.last().names, QStringList({"b", "c", "d", "e"}));
    QCOMPARE(plans.all.last().cursor, 2);
    QCOMPARE(plans.all.last().loop, model.loop());
    QVERIFY(plans.all.last().like.wantsSameAs(captured()));
}

void TestReadAhead::heldFramesAndEmptyOnesAreNoPicturesOfTheirOwn()
{
    FramesModel model;
    fill(model, {"a", "a", "", "b", "a"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    QCOMPARE(plans.all.last().names, QStringList({"a", "b"}));
}

void TestReadAhead::hiddenFramesAreLeftOut()
{
    FramesModel model;
    fill(model, {"a", "b", "c"});
    model.setValue(1, Zum::Hidden, true);
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    QCOMPARE(plans.all.last().names, QStringList({"a", "c"}));
}

void TestReadAhead::referenceFramesWhenTheyArePlayed()
{
    FramesModel model;
    fill(model, {"a", "b"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(PictureRequest(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    QCOMPARE(plans.all.last().names, QStringList({"ra", "rb"}));
}

void TestReadAhead::planFollowsEditsAndSettings_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"append", "remove", "hide", "range", "loop", "pendulum", "direction", "sizes"})
        QTest::newRow(what) << what;
}

void TestReadAhead::planFollowsEditsAndSettings()
{
    QFETCH(QString, what);
    FramesModel model;
    fill(model, {"a", "b", "c"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    PictureRequest other = captured();
    other.target = {1, 1};
    if (what == "append")
        model.appendFrame({{"capFull", "d"}});
    else if (what == "remove")
        model.removeSingleFrame(0);
    else if (what == "hide")
        model.setValue(0, Zum::Hidden, true);
    else if (what == "range")
        model.setTimelineRangeEnd(1);
    else if (what == "loop")
        model.setLoop(!model.loop());
    else if (what == "pendulum")
        model.setPendulum(!model.pendulum());
    else if (what == "direction")
        model.setPlayDirection(Zum::Backward);
    else
        readAhead.setWish(other, true);
    QTRY_COMPARE(plans.all.size(), 2);
    QVERIFY(plans.all.last().number > plans.all.first().number);
}

void TestReadAhead::stepsOfTheCursorMakeNoPlan()
{
    FramesModel model;
    fill(model, {"a", "b", "c"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    model.setCurrentIndex(1);
    model.setCurrentIndex(2);
    readAhead.setWish(captured(), true);
    QTest::qWait(80);
    QCOMPARE(plans.all.size(), 1);
}

void TestReadAhead::turningRoundMakesAPlan()
{
    FramesModel model;
    fill(model, {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
    model.setLoop(true);
    model.setPendulum(true);
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    model.setTimelineFps(60);
    model.play();
    QTRY_COMPARE(model.playDirection(), int(Zum::Backward));
    const auto isBackward = [](const ReadAheadPlan &plan) {
        return plan.direction == Zum::Backward;
    };
    QTRY_VERIFY(std::any_of(plans.all.cbegin(), plans.all.cend(), isBackward));
    model.stop();
}

void TestReadAhead::inactiveGivesAnEmptyPlan()
{
    FramesModel model;
    fill(model, {"a", "b", "c"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    readAhead.setWish(captured(), false);
    QTRY_COMPARE(plans.all.size(), 2);
    QVERIFY(plans.all.last().names.isEmpty());
}

void TestReadAhead::readyRunsAndPercent()
{
    FramesModel model;
    // Row 2 is hidden, row 4 has no picture, row 5 holds the picture of row 0.
    fill(model, {"a", "b", "x", "c", "", "a", "d"});
    model.setValue(2, Zum::Hidden, true);
    TimelineReadAhead readAhead(model);
    QCOMPARE(readAhead.readyPercent(), 0.0);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    QCOMPARE(plans.all.last().names, QStringList({"a", "b", "c", "d"}));
    const int plan = plans.all.last().number;
    QCOMPARE(runsOf(readAhead), QString("4-4"));
    readAhead.setReady(plan, bits("1000"));
    QCOMPARE(runsOf(readAhead), QString("0-0 4-5"));
    QCOMPARE(readAhead.readyPercent(), 50.0);
    readAhead.setReady(plan, bits("1110"));
    QCOMPARE(runsOf(readAhead), QString("0-5"));
    readAhead.setReady(plan, bits("1111"));
    QCOMPARE(runsOf(readAhead), QString("0-6"));
    QCOMPARE(readAhead.readyPercent(), 100.0);
}

void TestReadAhead::readyOfAnEarlierPlanIsDropped()
{
    FramesModel model;
    fill(model, {"a", "b"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    readAhead.setReady(plans.all.last().number - 1, bits("11"));
    readAhead.setReady(plans.all.last().number, bits("111"));
    QCOMPARE(readAhead.readyPercent(), 0.0);
}

void TestReadAhead::readyIsToldAFewTimesASecondAtMost()
{
    FramesModel model;
    fill(model, {"a", "b"});
    TimelineReadAhead readAhead(model);
    const Plans plans(readAhead);
    readAhead.setWish(captured(), true);
    QTRY_COMPARE(plans.all.size(), 1);
    const QSignalSpy told(&readAhead, &TimelineReadAhead::readyChanged);
    for (int i = 0; i < 100; ++i)
        readAhead.setReady(plans.all.last().number, bits(i % 2 ? "11" : "10"));
    QCOMPARE(told.size(), 0);
    QTRY_COMPARE(told.size(), 1);
}

QTEST_GUILESS_MAIN(TestReadAhead)
#include "tst_readahead.moc"
