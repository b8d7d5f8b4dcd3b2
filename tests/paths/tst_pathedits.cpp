#include "paths/PathEdits.h"

#include <QTest>

using morvane::PathEdit;
using morvane::PathEdits;

class TestPathEdits : public QObject
{
    Q_OBJECT

private slots:
    void inverseTakesAnEditBack();
    void removesFromTheLastRowOn();
    void subpathThatLosesItsStartBeginsAtTheNextNode();
    void removedSubpathLeavesItsNeighboursAlone();
    void linesUpWithTheFirstRow();
    void movesHandlesToo();
    void deformsToTheTarget();
    void flatShapeKeepsItsFlatness();
    void straightensCurvesOnly();
    void rectangleIsClosed();
    void boundsOfEndPoints();
};

namespace {

QList<MPathPoint> twoLines()
{
    QList<MPathPoint> nodes{
        MPathPoint::plain(MPathPoint::Move, {0, 0}),     MPathPoint::plain(MPathPoint::Line, {10, 5}),
        MPathPoint::plain(MPathPoint::Line, {20, 15}),   MPathPoint::plain(MPathPoint::Move, {100, 0}),
        MPathPoint::cubic({101, 1}, {108, 2}, {110, 5}), MPathPoint::plain(MPathPoint::Line, {120, 0}),
    };
    for (qsizetype row = 0; row < nodes.size(); ++row)
        nodes[row].GUID = int(row) + 1;
    return nodes;
}

} // namespace

void TestPathEdits::inverseTakesAnEditBack()
{
    const MPathPoint before = twoLines()[0];
    const MPathPoint after = twoLines()[1];
    const PathEdit insertion = PathEdit::insertion(3, after);
    QCOMPARE(insertion.guid(), after.GUID);
    QCOMPARE(insertion.inverse().action, Zum::ActionRemove);
    QCOMPARE(insertion.inverse().guid(), after.GUID);
    const PathEdit removal = PathEdit::removal(3, before);
    QCOMPARE(removal.inverse().action, Zum::ActionInsert);
    QCOMPARE(removal.inverse().index, 3);
    QVERIFY(removal.inverse().after.sameGeometry(before));
    const PathEdit change = PathEdit::change(3, before, after);
    QCOMPARE(change.inverse().action, Zum::ActionModify);
    QVERIFY(change.inverse().after.sameGeometry(before));
    QVERIFY(change.inverse().before.sameGeometry(after));
}

void TestPathEdits::removesFromTheLastRowOn()
{
    const PathEdits edits = morvane::planRemoval(twoLines(), {1, 5, 2, 1});
    QCOMPARE(edits.size(), 3);
    QCOMPARE(edits[0].index, 5);
    QCOMPARE(edits[1].index, 2);
    QCOMPARE(edits[2].index, 1);
    QVERIFY(morvane::planRemoval(twoLines(), {}).isEmpty());
}

void TestPathEdits::subpathThatLosesItsStartBeginsAtTheNextNode()
{
    const PathEdits edits = morvane::planRemoval(twoLines(), {3});
    QCOMPARE(edits.size(), 2);
    QCOMPARE(edits[0].action, Zum::ActionModify);
    QCOMPARE(edits[0].index, 4);
    QCOMPARE(edits[0].after.type, int(MPathPoint::Move));
    QCOMPARE(edits[0].after.end(), QPointF(110, 5));
    QCOMPARE(edits[1].action, Zum::ActionRemove);

    const PathEdits both = morvane::planRemoval(twoLines(), {0, 1});
    QCOMPARE(both.size(), 3);
    QCOMPARE(both[0].index, 2);
    QCOMPARE(both[0].after.type, int(MPathPoint::Move));
}

void TestPathEdits::removedSubpathLeavesItsNeighboursAlone()
{
    const PathEdits edits = morvane::planRemoval(twoLines(), {0, 1, 2});
    QCOMPARE(edits.size(), 3);
    for (const PathEdit &edit : edits)
        QCOMPARE(edit.action, Zum::ActionRemove);
}

void TestPathEdits::linesUpWithTheFirstRow()
{
    const PathEdits vertical = morvane::planLineUp(twoLines(), {2, 0, 4}, Zum::Vertical);
    QCOMPARE(vertical.size(), 2);
    QCOMPARE(vertical[0].after.end(), QPointF(20, 0));
    QCOMPARE(vertical[1].after.end(), QPointF(20, 5));
    const PathEdits horizontal = morvane::planLineUp(twoLines(), {2, 0}, Zum::Horizontal);
    QCOMPARE(horizontal.size(), 1);
    QCOMPARE(horizontal[0].after.end(), QPointF(0, 15));
    QVERIFY(morvane::planLineUp(twoLines(), {}, Zum::Vertical).isEmpty());
}

void TestPathEdits::movesHandlesToo()
{
    const PathEdits edits = morvane::planMove(twoLines(), {4}, {1, -1});
    QCOMPARE(edits.size(), 1);
    QVERIFY(edits[0].after.sameGeometry(MPathPoint::cubic({102, 0}, {109, 1}, {111, 4})));
    QVERIFY(morvane::planMove(twoLines(), {0, 4}, {0, 0}).isEmpty());
}

void TestPathEdits::deformsToTheTarget()
{
    const QList<MPathPoint> nodes = twoLines();
    const QList<int> rows{0, 1, 2};
    const PathEdits edits = morvane::planDeformation(nodes, rows, nodes.mid(0, 3), QRectF(5, 5, 40, 30));
    QCOMPARE(edits.size(), 3);
    QCOMPARE(edits[0].after.end(), QPointF(5, 5));
    QCOMPARE(edits[1].after.end(), QPointF(25, 15));
    QCOMPARE(edits[2].after.end(), QPointF(45, 35));
}

void TestPathEdits::flatShapeKeepsItsFlatness()
{
    const QList<MPathPoint> nodes{MPathPoint::plain(MPathPoint::Move, {0, 7}),
                                  MPathPoint::plain(MPathPoint::Line, {10, 7})};
    const PathEdits edits = morvane::planDeformation(nodes, {0, 1}, nodes, QRectF(0, 7, 20, 50));
    QCOMPARE(edits.size(), 1);
    QCOMPARE(edits[0].after.end(), QPointF(20, 7));
}

void TestPathEdits::straightensCurvesOnly()
{
    const PathEdits edits = morvane::planStraightening(twoLines(), {3, 4, 5});
    QCOMPARE(edits.size(), 1);
    QCOMPARE(edits[0].index, 4);
    QVERIFY(edits[0].after.sameGeometry(MPathPoint::plain(MPathPoint::Line, {110, 5})));
}

void TestPathEdits::rectangleIsClosed()
{
    const QList<MPathPoint> nodes = morvane::rectangleNodes({10, 20}, {30, 50});
    QCOMPARE(nodes.size(), 5);
    QCOMPARE(nodes[0].type, int(MPathPoint::Move));
    const QList<QPointF> corners{{10, 20}, {30, 20}, {30, 50}, {10, 50}, {10, 20}};
    for (int row = 0; row < 5; ++row) {
        QCOMPARE(nodes[row].end(), corners[row]);
        QCOMPARE(nodes[row].type, row == 0 ? int(MPathPoint::Move) : int(MPathPoint::Line));
    }
}

void TestPathEdits::boundsOfEndPoints()
{
    QCOMPARE(morvane::endPointBounds(twoLines(), {0, 2, 4}), QRectF(0, 0, 110, 15));
    QCOMPARE(morvane::endPointBounds(twoLines(), {1}), QRectF(10, 5, 0, 0));
    QCOMPARE(morvane::endPointBounds(QList<MPathPoint>()), QRectF());
}

QTEST_GUILESS_MAIN(TestPathEdits)
#include "tst_pathedits.moc"
