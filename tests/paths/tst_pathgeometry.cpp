#include "paths/PathGeometry.h"

#include <QTest>

class TestPathGeometry : public QObject
{
    Q_OBJECT

private slots:
    void drawsEachCommand();
    void handleLinesGoFromTheNodeToItsControls();
    void dotsAreTheEndPoints();
    void pathWithoutAMoveStartsAtItsFirstNode();
    void findsSubpaths();
    void subpathThatHoldsARow();
    void hitsTheSmallestSubpath();
    void straightLineCanBeHit();
    void listsOfDifferentLengthAreReported();
    void nearestLengthOnALine_data();
    void nearestLengthOnALine();
    void nearestLengthOnACurveAgreesWithThePath();
    void nearestLengthCountsEarlierSubpaths();
    void pathWithoutLengthHasItsMarkerAtZero();
    void endlessPathIsSearchedInBoundedTime();
};

namespace {

QList<MPathPoint> twoSquares()
{
    // The second lies within the first.
    QList<MPathPoint> nodes;
    for (const QRectF &square : {QRectF(0, 0, 100, 100), QRectF(40, 40, 20, 20)}) {
        nodes.append(MPathPoint::plain(MPathPoint::Move, square.topLeft()));
        for (const QPointF &corner : {square.topRight(), square.bottomRight(), square.bottomLeft()})
            nodes.append(MPathPoint::plain(MPathPoint::Line, corner));
    }
    return nodes;
}

} // namespace

void TestPathGeometry::drawsEachCommand()
{
    const morvane::RenderPaths paths = morvane::buildRenderPaths(
        {MPathPoint::plain(MPathPoint::Move, {1, 2}), MPathPoint::plain(MPathPoint::Line, {3, 4}),
         MPathPoint::cubic({5, 6}, {7, 8}, {9, 10}), MPathPoint::quadratic({11, 12}, {13, 14})});
    QPainterPath expected({1, 2});
    expected.lineTo(3, 4);
    expected.cubicTo(5, 6, 7, 8, 9, 10);
    expected.quadTo(11, 12, 13, 14);
    QCOMPARE(paths.path, expected);
}

void TestPathGeometry::handleLinesGoFromTheNodeToItsControls()
{
    const morvane::RenderPaths paths = morvane::buildRenderPaths({MPathPoint::plain(MPathPoint::Move, {1, 2}),
                                                                  MPathPoint::cubic({5, 6}, {7, 8}, {9, 10}),
                                                                  MPathPoint::quadratic({11, 12}, {13, 14})});
    QPainterPath expected({9, 10});
    expected.lineTo(5, 6);
    expected.moveTo(9, 10);
    expected.lineTo(7, 8);
    expected.moveTo(13, 14);
    expected.lineTo(11, 12);
    QCOMPARE(paths.handlers, expected);
}

void TestPathGeometry::dotsAreTheEndPoints()
{
    const morvane::RenderPaths paths = morvane::buildRenderPaths(
        {MPathPoint::plain(MPathPoint::Move, {1, 2}), MPathPoint::quadratic({11, 12}, {13, 14})});
    QCOMPARE(paths.dots, QPolygonF(QList<QPointF>{{1, 2}, {13, 14}}));
}

void TestPathGeometry::pathWithoutAMoveStartsAtItsFirstNode()
{
    const morvane::RenderPaths paths = morvane::buildRenderPaths(
        {MPathPoint::plain(MPathPoint::Line, {100, 100}), MPathPoint::plain(MPathPoint::Line, {200, 100})});
    QPainterPath expected({100, 100});
    expected.lineTo(200, 100);
    QCOMPARE(paths.path, expected);
}

void TestPathGeometry::findsSubpaths()
{
    const morvane::SubpathTable table = morvane::findSubpaths(twoSquares());
    QCOMPARE(table.lineStarts, (QList<int>{0, 4}));
    QCOMPARE(table.boundingRects, (QList<QRectF>{{0, 0, 100, 100}, {40, 40, 20, 20}}));
    QVERIFY(table.isConsistent());
    QVERIFY(morvane::findSubpaths({}).lineStarts.isEmpty());
}

void TestPathGeometry::subpathThatHoldsARow()
{
    const morvane::SubpathTable table = morvane::findSubpaths(twoSquares());
    QCOMPARE(table.holding(0), 0);
    QCOMPARE(table.holding(3), 0);
    QCOMPARE(table.holding(4), 1);
    QCOMPARE(table.holding(7), 1);
    QCOMPARE(table.holding(-1), -1);
    QCOMPARE(table.endRow(0, 8), 4);
    QCOMPARE(table.endRow(1, 8), 8);
    QCOMPARE(morvane::SubpathTable().holding(0), -1);
}

void TestPathGeometry::hitsTheSmallestSubpath()
{
    const morvane::SubpathTable table = morvane::findSubpaths(twoSquares());
    QCOMPARE(table.at({50, 50}, 10), 1);
    QCOMPARE(table.at({10, 10}, 10), 0);
    QCOMPARE(table.at({101, 50}, 10), -1);
}

void TestPathGeometry::straightLineCanBeHit()
{
    const morvane::SubpathTable table = morvane::findSubpaths(
        {MPathPoint::plain(MPathPoint::Move, {0, 50}), MPathPoint::plain(MPathPoint::Line, {100, 50})});
    QCOMPARE(table.at({30, 54}, 10), 0);
    QCOMPARE(table.at({30, 56}, 10), -1);
}

void TestPathGeometry::listsOfDifferentLengthAreReported()
{
    const morvane::SubpathTable table{{QRectF(0, 0, 1, 1)}, {0, 4, 9}};
    QTest::ignoreMessage(QtWarningMsg,
                         "something went wrong. boundingRects.count() = 1, m_lengths.count() = 3");
    QVERIFY(!table.isConsistent());
}

void TestPathGeometry::nearestLengthOnALine_data()
{
    QTest::addColumn<QPointF>("position");
    QTest::addColumn<double>("length");
    QTest::newRow("on it") << QPointF(123, 0) << 123.0;
    QTest::newRow("beside it") << QPointF(250, 80) << 250.0;
    QTest::newRow("before the start") << QPointF(-40, 3) << 0.0;
    QTest::newRow("behind the end") << QPointF(900, -3) << 400.0;
}

void TestPathGeometry::nearestLengthOnALine()
{
    QFETCH(QPointF, position);
    QFETCH(double, length);
    QPainterPath path({0, 0});
    path.lineTo(400, 0);
    const double found = morvane::nearestLength(path, position);
    QVERIFY2(qAbs(found - length) <= 0.5, qPrintable(QString::number(found)));
    QVERIFY(found <= path.length());
}

void TestPathGeometry::nearestLengthOnACurveAgreesWithThePath()
{
    QPainterPath path({0, 0});
    path.cubicTo(300, 0, 0, 300, 300, 300);
    path.lineTo(500, 300);
    for (const double part : {0.1, 0.35, 0.6, 0.9}) {
        const double length = path.length() * part;
        const double found = morvane::nearestLength(path, path.pointAtPercent(path.percentAtLength(length)));
        QVERIFY2(qAbs(found - length) <= 1.0, qPrintable(QString::number(found)));
    }
}

void TestPathGeometry::nearestLengthCountsEarlierSubpaths()
{
    QPainterPath path({0, 0});
    path.lineTo(100, 0);
    path.moveTo(0, 50);
    path.lineTo(100, 50);
    QVERIFY(qAbs(morvane::nearestLength(path, {30, 51}) - 130.0) <= 0.5);
}

void TestPathGeometry::pathWithoutLengthHasItsMarkerAtZero()
{
    QCOMPARE(morvane::nearestLength({}, {5, 5}), 0.0);
    QCOMPARE(morvane::nearestLength(QPainterPath({3, 3}), {5, 5}), 0.0);
}

void TestPathGeometry::endlessPathIsSearchedInBoundedTime()
{
    const double far = morvane::maxPathCoordinate;
    QPainterPath path({-far, -far});
    for (int turn = 0; turn < 50; ++turn)
        path.lineTo(turn % 2 ? -far : far, far - turn);
    const double found = morvane::nearestLength(path, {0, 0});
    QVERIFY(found > 0.0 && found < path.length());
}

QTEST_GUILESS_MAIN(TestPathGeometry)
#include "tst_pathgeometry.moc"
