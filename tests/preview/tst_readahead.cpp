#include "preview/ReadAheadPlan.h"
#include "preview/TimelineReadAhead.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <QSignalSpy>
#include <QtTest>

namespace {

PictureRequest captured()
{
    PictureRequest request;
    request.source = PictureRequest::fromCaptured;
    return request;
}

/// A film with the pictures of those names, "" for a frame without one, and what is planned for it.
struct Film
{
    explicit Film(const QStringList &names) : readAhead(filled(model, names))
    {
        QObject::connect(&readAhead, &TimelineReadAhead::planned, &readAhead,
                         [this](const ReadAheadPlan &plan) { plans.append(plan); });
    }
    /// Wishes for its pictures for the first time, and waits for the plan.
    bool wish(const PictureRequest &request = captured())
    {
        readAhead.setWish(request, true);
        return QTest::qWaitFor([this] { return plans.size() == 1; });
    }
    const ReadAheadPlan &plan() const
    {
        return plans.last();
    }

    FramesModel model;
    TimelineReadAhead readAhead;
    QList<ReadAheadPlan> plans;

private:
    static FramesModel &filled(FramesModel &model, const QStringList &names)
    {
        for (const QString &name : names)
            model.appendFrame({{"capFull", name}, {"refFull", name.isEmpty() ? QString() : "r" + name}});
        model.setLoaded(true);
        model.setTimelineRangeStart(0);
        model.setTimelineRangeEnd(model.last());
        model.setCurrentIndex(0);
        return model;
    }
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
    Film film({"a", "b", "c", "d", "e", "f"});
    film.model.setTimelineRangeStart(1);
    film.model.setTimelineRangeEnd(4);
    film.model.setCurrentIndex(3);
    QVERIFY(film.wish());
    QCOMPARE(film.plan().names, QStringList({"b", "c", "d", "e"}));
    QCOMPARE(film.plan().cursor, 2);
    QCOMPARE(film.plan().loop, film.model.loop());
    QVERIFY(film.plan().like.wantsSameAs(captured()));
}

void TestReadAhead::heldFramesAndEmptyOnesAreNoPicturesOfTheirOwn()
{
    Film film({"a", "a", "", "b", "a"});
    QVERIFY(film.wish());
    QCOMPARE(film.plan().names, QStringList({"a", "b"}));
}

void TestReadAhead::hiddenFramesAreLeftOut()
{
    Film film({"a", "b", "c"});
    film.model.setValue(1, Zum::Hidden, true);
    QVERIFY(film.wish());
    QCOMPARE(film.plan().names, QStringList({"a", "c"}));
}

void TestReadAhead::referenceFramesWhenTheyArePlayed()
{
    Film film({"a", "b"});
    QVERIFY(film.wish(PictureRequest()));
    QCOMPARE(film.plan().names, QStringList({"ra", "rb"}));
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
    Film film({"a", "b", "c"});
    QVERIFY(film.wish());
    PictureRequest other = captured();
    other.target = {1, 1};
    if (what == "append")
        film.model.appendFrame({{"capFull", "d"}});
    else if (what == "remove")
        film.model.removeSingleFrame(0);
    else if (what == "hide")
        film.model.setValue(0, Zum::Hidden, true);
    else if (what == "range")
        film.model.setTimelineRangeEnd(1);
    else if (what == "loop")
        film.model.setLoop(!film.model.loop());
    else if (what == "pendulum")
        film.model.setPendulum(!film.model.pendulum());
    else if (what == "direction")
        film.model.setPlayDirection(Zum::Backward);
    else
        film.readAhead.setWish(other, true);
    QTRY_COMPARE(film.plans.size(), 2);
    QVERIFY(film.plan().number > film.plans.first().number);
}

void TestReadAhead::stepsOfTheCursorMakeNoPlan()
{
    Film film({"a", "b", "c"});
    QVERIFY(film.wish());
    film.model.setCurrentIndex(1);
    film.model.setCurrentIndex(2);
    film.readAhead.setWish(captured(), true);
    QTest::qWait(80);
    QCOMPARE(film.plans.size(), 1);
}

void TestReadAhead::turningRoundMakesAPlan()
{
    Film film({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"});
    film.model.setLoop(true);
    film.model.setPendulum(true);
    QVERIFY(film.wish());
    film.model.setTimelineFps(60);
    film.model.play();
    QTRY_COMPARE(film.model.playDirection(), int(Zum::Backward));
    const auto isBackward = [](const ReadAheadPlan &plan) {
        return plan.direction == Zum::Backward;
    };
    QTRY_VERIFY(std::any_of(film.plans.cbegin(), film.plans.cend(), isBackward));
    film.model.stop();
}

void TestReadAhead::inactiveGivesAnEmptyPlan()
{
    Film film({"a", "b", "c"});
    QVERIFY(film.wish());
    film.readAhead.setWish(captured(), false);
    QTRY_COMPARE(film.plans.size(), 2);
    QVERIFY(film.plan().names.isEmpty());
}

void TestReadAhead::readyRunsAndPercent()
{
    // Row 2 is hidden, row 4 has no picture, row 5 holds the picture of row 0.
    Film film({"a", "b", "x", "c", "", "a", "d"});
    film.model.setValue(2, Zum::Hidden, true);
    QCOMPARE(film.readAhead.readyPercent(), 0.0);
    QVERIFY(film.wish());
    QCOMPARE(film.plan().names, QStringList({"a", "b", "c", "d"}));
    const int plan = film.plan().number;
    QCOMPARE(runsOf(film.readAhead), QString("4-4"));
    film.readAhead.setReady(plan, bits("1000"));
    QCOMPARE(runsOf(film.readAhead), QString("0-0 4-5"));
    QCOMPARE(film.readAhead.readyPercent(), 50.0);
    film.readAhead.setReady(plan, bits("1110"));
    QCOMPARE(runsOf(film.readAhead), QString("0-5"));
    film.readAhead.setReady(plan, bits("1111"));
    QCOMPARE(runsOf(film.readAhead), QString("0-6"));
    QCOMPARE(film.readAhead.readyPercent(), 100.0);
}

void TestReadAhead::readyOfAnEarlierPlanIsDropped()
{
    Film film({"a", "b"});
    QVERIFY(film.wish());
    film.readAhead.setReady(film.plan().number - 1, bits("11"));
    film.readAhead.setReady(film.plan().number, bits("111"));
    QCOMPARE(film.readAhead.readyPercent(), 0.0);
}

void TestReadAhead::readyIsToldAFewTimesASecondAtMost()
{
    Film film({"a", "b"});
    QVERIFY(film.wish());
    const QSignalSpy told(&film.readAhead, &TimelineReadAhead::readyChanged);
    for (int i = 0; i < 100; ++i)
        film.readAhead.setReady(film.plan().number, bits(i % 2 ? "11" : "10"));
    QCOMPARE(told.size(), 0);
    QTRY_COMPARE(told.size(), 1);
}

QTEST_GUILESS_MAIN(TestReadAhead)
#include "tst_readahead.moc"
