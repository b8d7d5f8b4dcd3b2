#include "paths/PathHistory.h"

#include <QTest>

using morvane::PathEdit;
using morvane::PathEdits;
using morvane::PathHistory;

class TestPathHistory : public QObject
{
    Q_OBJECT

private slots:
    void emptyHistoryGivesNothing();
    void undoGivesTheInverseInReverseOrder();
    void redoGivesTheStepAgain();
    void newStepDropsWhatCouldBeRedone();
    void keepsThreeHundredSteps();
    void largeStepsPushOldOnesOut();
    void oneGestureIsOneStep();
    void gestureTakesInFurtherNodes();
    void sealedGestureIsOver();
    void insertionsDoNotJoin();
    void forgetsNodesThatAreGone();
    void scalesItsRecords();
};

namespace {

MPathPoint node(int guid, double x = 0.0)
{
    MPathPoint made = MPathPoint::plain(MPathPoint::Line, {x, x});
    made.GUID = guid;
    return made;
}

PathEdits insertion(int guid)
{
    return {PathEdit::insertion(0, node(guid))};
}

PathEdits change(int guid, double from, double to)
{
    return {PathEdit::change(0, node(guid, from), node(guid, to))};
}

} // namespace

void TestPathHistory::emptyHistoryGivesNothing()
{
    PathHistory history;
    QVERIFY(!history.takeUndo());
    QVERIFY(!history.takeRedo());
    history.push({});
    QCOMPARE(history.stepCount(), 0);
}

void TestPathHistory::undoGivesTheInverseInReverseOrder()
{
    PathHistory history;
    history.push({PathEdit::change(1, node(1, 5), node(1, 6)), PathEdit::removal(0, node(2))});
    const auto edits = history.takeUndo();
    QVERIFY(edits);
    QCOMPARE(edits->size(), 2);
    QCOMPARE(edits->at(0).action, Zum::ActionInsert);
    QCOMPARE(edits->at(0).guid(), 2);
    QCOMPARE(edits->at(1).action, Zum::ActionModify);
    QCOMPARE(edits->at(1).after.V1, 5.0);
    QVERIFY(!history.takeUndo());
}

void TestPathHistory::redoGivesTheStepAgain()
{
    PathHistory history;
    history.push(insertion(1));
    history.push(insertion(2));
    history.takeUndo();
    history.takeUndo();
    QCOMPARE(history.takeRedo()->first().guid(), 1);
    QCOMPARE(history.takeRedo()->first().guid(), 2);
    QVERIFY(!history.takeRedo());
    QCOMPARE(history.position(), 2);
}

void TestPathHistory::newStepDropsWhatCouldBeRedone()
{
    PathHistory history;
    history.push(insertion(1));
    history.push(insertion(2));
    history.takeUndo();
    history.push(insertion(3));
    QVERIFY(!history.takeRedo());
    QCOMPARE(history.stepCount(), 2);
    QCOMPARE(history.takeUndo()->first().guid(), 3);
    QCOMPARE(history.takeUndo()->first().guid(), 1);
}

void TestPathHistory::keepsThreeHundredSteps()
{
    PathHistory history;
    for (int guid = 1; guid <= 310; ++guid)
        history.push(insertion(guid));
    QCOMPARE(history.stepCount(), 300);
    int last = 0;
    while (const auto edits = history.takeUndo())
        last = edits->first().guid();
    QCOMPARE(last, 11);
}

void TestPathHistory::largeStepsPushOldOnesOut()
{
    PathHistory history;
    const PathEdits large(PathHistory::maxEdits / 2, PathEdit::insertion(0, node(1)));
    history.push(large);
    history.push(large);
    QCOMPARE(history.stepCount(), 2);
    history.push(insertion(2));
    QCOMPARE(history.stepCount(), 2);
    history.push(PathEdits(PathHistory::maxEdits + 1, PathEdit::insertion(0, node(1))));
    QCOMPARE(history.stepCount(), 1);
    QVERIFY(history.takeUndo());
}

void TestPathHistory::oneGestureIsOneStep()
{
    PathHistory history;
    history.push(change(7, 0, 1), 7);
    history.push(change(7, 1, 2), 7);
    history.push(change(7, 2, 3), 7);
    QCOMPARE(history.stepCount(), 1);
    QCOMPARE(history.takeUndo()->first().after.V1, 0.0);
    QCOMPARE(history.takeRedo()->first().after.V1, 3.0);
}

void TestPathHistory::gestureTakesInFurtherNodes()
{
    PathHistory history;
    history.push(change(1, 0, 1), -1);
    history.push(change(1, 1, 2) + change(2, 5, 6), -1);
    QCOMPARE(history.stepCount(), 1);
    const auto edits = history.takeUndo();
    QCOMPARE(edits->size(), 2);
    QCOMPARE(edits->at(0).after.V1, 5.0);
    QCOMPARE(edits->at(1).after.V1, 0.0);
}

void TestPathHistory::sealedGestureIsOver()
{
    PathHistory history;
    history.push(change(7, 0, 1), 7);
    history.seal();
    history.push(change(7, 1, 2), 7);
    QCOMPARE(history.stepCount(), 2);
    history.push(change(8, 0, 1), 8);
    QCOMPARE(history.stepCount(), 3);
    history.push(change(8, 1, 2));
    QCOMPARE(history.stepCount(), 4);
}

void TestPathHistory::insertionsDoNotJoin()
{
    PathHistory history;
    history.push(insertion(1), 7);
    history.push(insertion(2), 7);
    history.push(change(2, 0, 1), 7);
    QCOMPARE(history.stepCount(), 3);
}

void TestPathHistory::forgetsNodesThatAreGone()
{
    PathHistory history;
    history.push(insertion(1));
    history.push(insertion(2));
    history.push(insertion(1) + insertion(3));
    history.push(insertion(2));
    history.takeUndo();
    history.forget({2});
    QCOMPARE(history.stepCount(), 2);
    QCOMPARE(history.position(), 2);
    history.forget({1});
    QCOMPARE(history.stepCount(), 1);
    QCOMPARE(history.takeUndo()->size(), 1);
}

void TestPathHistory::scalesItsRecords()
{
    PathHistory history;
    history.push(change(1, 10, 20));
    history.scale(2, 3);
    const auto edits = history.takeUndo();
    QCOMPARE(edits->first().after.end(), QPointF(20, 30));
    QCOMPARE(edits->first().before.end(), QPointF(40, 60));
}

QTEST_GUILESS_MAIN(TestPathHistory)
#include "tst_pathhistory.moc"
