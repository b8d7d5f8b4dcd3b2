#include "CurvesSupport.h"

#include <QSet>
#include <QTest>

#include <cmath>
#include <functional>
#include <limits>

using namespace curvestest;

/// Editing of the path: each operation, its refusals and its limits.
class TestCurvesEditing : public QObject
{
    Q_OBJECT

private slots:
    void nodesAreAppendedOrInsertedBehindARow();
    void curvesTakeTheirHandlesFromTheArguments();
    void everyNodeHasAGuidOfItsOwn();
    void badNodesAreRefused_data();
    void badNodesAreRefused();
    void nodeLimitIsKept();
    void coordinatesAreKeptWithinLimits();
    void rectangleIsANewSubpath();
    void rectangleWithoutExtentIsIgnored();
    void writesSingleValues();
    void endFollowsEveryWrite();
    void commandChangeKeepsTheEnd();
    void writesWithoutRedrawing();
    void unwritableRolesAreIgnored();
    void movesPoints();
    void duplicateKeepsThePicture();
    void removesTheNodeUnderTheMouse();
    void removesTheSelection();
    void removesTheSelectionThatHoldsTheMouse();
    void removedStartMovesToTheNextNode();
    void clearsEverything();
    void linesUpWithTheFirstSelected();
    void movesTheSelection();
    void deformsTheSelection();
    void dragThroughNothingKeepsTheShape();
    void straightensSelectedCurves();
    void straightensOnlyTheSubpathUnderTheMouse();
    void lockedModelRefusesEveryEdit_data();
    void lockedModelRefusesEveryEdit();
};

void TestCurvesEditing::nodesAreAppendedOrInsertedBehindARow()
{
    Curves curves;
    addLine(curves, 3);
    curves.newPoint(MPathPoint::Line, 5, 6, true, 0);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {5, 6}, {10, 10}, {20, 20}}));
    curves.newPoint(MPathPoint::Line, 7, 8, true, 3);
    QCOMPARE(curves.get(4).end(), QPointF(7, 8));
}

void TestCurvesEditing::curvesTakeTheirHandlesFromTheArguments()
{
    Curves curves;
    curves.newPoint(MPathPoint::Cubic, 5, 6, true, -1, 1, 2, 3, 4, 5, 6);
    QVERIFY(curves.get(0).sameGeometry(MPathPoint::cubic({1, 2}, {3, 4}, {5, 6})));
    curves.newPoint(MPathPoint::Cubic, 50, 60, true, -1, 1, 2, 3, 4);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({1, 2}, {3, 4}, {50, 60})));
    curves.newPoint(MPathPoint::Quadratic, 9, 9, true, -1, 1, 2, 3, 4);
    QVERIFY(curves.get(2).sameGeometry(MPathPoint::quadratic({1, 2}, {3, 4})));
    curves.newPoint(MPathPoint::Quadratic, 9, 8, true, -1, 1, 2);
    QVERIFY(curves.get(3).sameGeometry(MPathPoint::quadratic({1, 2}, {9, 8})));
    QCOMPARE(QPointF(curves.get(3).IX, curves.get(3).IY), QPointF(9, 8));
}

void TestCurvesEditing::everyNodeHasAGuidOfItsOwn()
{
    Curves curves;
    addLine(curves, 3);
    curves.duplicatePoint(0);
    curves.newRect(0, 0, 5, 5);
    curves.setCurrentIndex(1);
    curves.removePoint();
    curves.newPoint(MPathPoint::Line, 1, 1);
    QSet<int> guids;
    for (int row = 0; row < curves.count(); ++row)
        guids.insert(curves.get(row).GUID);
    QCOMPARE(guids.size(), curves.count());
    QVERIFY(!guids.contains(0));
}

void TestCurvesEditing::badNodesAreRefused_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("insertAfter");
    QTest::addColumn<QString>("message");
    const QString notANumber = QStringLiteral("newPoint: a coordinate is not a number");
    QTest::newRow("not a number") << 1 << std::nan("") << -1 << notANumber;
    QTest::newRow("infinite") << 1 << std::numeric_limits<double>::infinity() << -1 << notANumber;
    QTest::newRow("unknown type") << 4 << 1.0 << -1 << "newPoint: unknown type 4";
    QTest::newRow("negative type") << -1 << 1.0 << -1 << "newPoint: unknown type -1";
    QTest::newRow("behind no row") << 1 << 1.0 << 5 << "newPoint: no node to insert after at 5";
    QTest::newRow("before all") << 1 << 1.0 << -2 << "newPoint: no node to insert after at -2";
}

void TestCurvesEditing::badNodesAreRefused()
{
    QFETCH(int, type);
    QFETCH(double, x);
    QFETCH(int, insertAfter);
    QFETCH(QString, message);
    Curves curves;
    addLine(curves, 2);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(message));
    curves.newPoint(type, x, 1, true, insertAfter);
    QCOMPARE(curves.count(), 2);
}

void TestCurvesEditing::nodeLimitIsKept()
{
    Curves curves;
    StoredPath stored;
    stored.pathData = QStringLiteral("1,1,2,0,0,0,0;").repeated(morvane::maxPathNodes - 4);
    QVERIFY(curves.restorePath(stored).ok());
    QTest::ignoreMessage(QtWarningMsg, "Too many path nodes, limit is 100000");
    curves.newRect(0, 0, 10, 10);
    QCOMPARE(curves.count(), morvane::maxPathNodes - 4);
    for (int more = 0; more < 4; ++more)
        curves.newPoint(MPathPoint::Line, more, more);
    QCOMPARE(curves.count(), morvane::maxPathNodes);
    QTest::ignoreMessage(QtWarningMsg, "Too many path nodes, limit is 100000");
    curves.newPoint(MPathPoint::Line, 1, 1);
    QTest::ignoreMessage(QtWarningMsg, "Too many path nodes, limit is 100000");
    curves.duplicatePoint(0);
    QCOMPARE(curves.count(), morvane::maxPathNodes);
}

void TestCurvesEditing::coordinatesAreKeptWithinLimits()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 1e30, -1e30);
    QCOMPARE(curves.get(0).end(), QPointF(morvane::maxPathCoordinate, -morvane::maxPathCoordinate));
    curves.updateData(0, 1e30, Curves::V2);
    QCOMPARE(curves.get(0).IY, morvane::maxPathCoordinate);
    curves.updatePos(0, -1e30, 5, Curves::XandY);
    QCOMPARE(curves.get(0).end(), QPointF(-morvane::maxPathCoordinate, 5));
    QTest::ignoreMessage(QtWarningMsg, "updateData: a coordinate is not a number");
    curves.updateData(0, std::nan(""), Curves::V1);
    QTest::ignoreMessage(QtWarningMsg, "updatePos: a coordinate is not a number");
    curves.updatePos(0, std::nan(""), 5, Curves::XandY);
    QTest::ignoreMessage(QtWarningMsg, "newRect: a coordinate is not a number");
    curves.newRect(0, 0, std::nan(""), 5);
    select(curves, {0});
    QTest::ignoreMessage(QtWarningMsg, "moveSelectdPoints: a coordinate is not a number");
    curves.moveSelectdPoints(std::nan(""), 5);
    QTest::ignoreMessage(QtWarningMsg, "deformSelectdPoints: a coordinate is not a number");
    curves.deformSelectdPoints(5, std::nan(""));
    QCOMPARE(curves.get(0).end(), QPointF(-morvane::maxPathCoordinate, 5));
    QCOMPARE(curves.count(), 1);
}

void TestCurvesEditing::rectangleIsANewSubpath()
{
    Curves curves;
    addLine(curves, 2);
    curves.newRect(30, 40, 10, 20);
    QCOMPARE(types(curves), (QList<int>{0, 1, 0, 1, 1, 1, 1}));
    QCOMPARE(ends(curves).mid(2), (QList<QPointF>{{30, 40}, {10, 40}, {10, 20}, {30, 20}, {30, 40}}));
    QCOMPARE(curves.index(5).data(Curves::ParentGuid), curves.get(2).GUID);
}

void TestCurvesEditing::rectangleWithoutExtentIsIgnored()
{
    Curves curves;
    curves.newRect(30, 40, 30, 40);
    QCOMPARE(curves.count(), 0);
}

void TestCurvesEditing::writesSingleValues()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 1, 1);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1, 2, 3, 4, 5, 6);
    for (int role = Curves::V1; role <= Curves::V6; ++role)
        curves.updateData(1, role * 10.0, role);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 20}, {30, 40}, {50, 60})));
    curves.updateData(1, 7.99, Curves::Store);
    QCOMPARE(curves.get(1).Store, 7);
    curves.updateData(1, 1, Curves::Ingroup);
    QCOMPARE(curves.selectedCount(), 1);
    curves.updateData(1, 0, Curves::Ingroup);
    QCOMPARE(curves.selectedCount(), 0);
    curves.updateData(-1, 5, Curves::V1);
    curves.updateData(2, 5, Curves::V1);
    QCOMPARE(curves.count(), 2);
}

void TestCurvesEditing::endFollowsEveryWrite()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 1, 1);
    curves.newPoint(MPathPoint::Quadratic, 0, 0, true, -1, 1, 2, 3, 4);
    curves.updateData(1, 33, Curves::V3);
    QCOMPARE(curves.get(1).IX, 33.0);
    curves.updateData(1, 44, Curves::IY);
    QCOMPARE(curves.get(1).V4, 44.0);
    QCOMPARE(curves.get(1).IY, 44.0);
    curves.updateData(1, 55, Curves::IX);
    QCOMPARE(curves.get(1).V3, 55.0);
    curves.updateData(1, 9, Curves::V1);
    QCOMPARE(curves.get(1).IX, 55.0);
}

void TestCurvesEditing::commandChangeKeepsTheEnd()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 0, 0);
    curves.newPoint(MPathPoint::Line, 30, 60);
    curves.updateData(1, MPathPoint::Cubic, Curves::Id);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 20}, {20, 40}, {30, 60})));
    curves.updateData(1, MPathPoint::Cubic, Curves::Id);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 20}, {20, 40}, {30, 60})));
    curves.updateData(1, MPathPoint::Line, Curves::Id);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::plain(MPathPoint::Line, {30, 60})));
    curves.updateData(1, 9, Curves::Id);
    QCOMPARE(curves.get(1).type, int(MPathPoint::Line));
}

void TestCurvesEditing::writesWithoutRedrawing()
{
    Curves curves;
    addLine(curves, 2);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    curves.updateData(1, 90, Curves::V1, false);
    QCOMPARE(drawn.size(), 0);
    QCOMPARE(curves.get(1).IX, 90.0);
    curves.updateRenderPaths();
    QCOMPARE(curves.dots()[1], QPointF(90, 10));
}

void TestCurvesEditing::unwritableRolesAreIgnored()
{
    Curves curves;
    addLine(curves, 2);
    const int guid = curves.get(1).GUID;
    QSignalSpy reported(&curves, &Curves::pathHasChanged);
    for (const int role : {int(Curves::GUID), int(Curves::ParentGuid), int(Curves::XandY), 99, -1})
        curves.updateData(1, 5, role);
    for (const int role : {int(Curves::GUID), int(Curves::V1), 99})
        curves.updatePos(1, 5, 5, role);
    QCOMPARE(curves.get(1).GUID, guid);
    QCOMPARE(curves.get(1).end(), QPointF(10, 10));
    QCOMPARE(reported.size(), 0);
}

void TestCurvesEditing::movesPoints()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 0, 0);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1, 2, 3, 4, 5, 6);
    curves.updatePos(1, 10, 20, Curves::V1andV2);
    curves.updatePos(1, 30, 40, Curves::V3andV4);
    curves.updatePos(1, 50, 60, Curves::V5andV6);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 20}, {30, 40}, {50, 60})));
    QCOMPARE(curves.get(1).IX, 50.0);
    curves.updatePos(1, 70, 80, Curves::XandY);
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 20}, {30, 40}, {70, 80})));
    curves.updatePos(0, 7, 8, Curves::XandY);
    QCOMPARE(curves.get(0).V1, 7.0);
    curves.updatePos(5, 7, 8, Curves::XandY);
}

void TestCurvesEditing::duplicateKeepsThePicture()
{
    Curves curves;
    addLine(curves, 2);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 12, 2, 13, 4, 50, 60);
    const double length = curves.path().length();
    for (const int row : {2, 1, 0})
        curves.duplicatePoint(row);
    QCOMPARE(types(curves), (QList<int>{0, 1, 1, 1, 2, 2}));
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {0, 0}, {10, 10}, {10, 10}, {50, 60}, {50, 60}}));
    QVERIFY(std::abs(curves.path().length() - length) < 1e-6);
    curves.duplicatePoint(6);
    curves.duplicatePoint(-1);
    QCOMPARE(curves.count(), 6);
}

void TestCurvesEditing::removesTheNodeUnderTheMouse()
{
    Curves curves;
    addLine(curves, 4);
    select(curves, {3});
    curves.setCurrentIndex(1);
    curves.removePoint();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {20, 20}, {30, 30}}));
    QCOMPARE(curves.currentIndex(), -1);
    QCOMPARE(selection(curves), (QList<int>{2}));
}

void TestCurvesEditing::removesTheSelection()
{
    Curves curves;
    addLine(curves, 4);
    curves.removePoint();
    QCOMPARE(curves.count(), 4);
    select(curves, {1, 3});
    curves.removePoint();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {20, 20}}));
    QCOMPARE(curves.selectedCount(), 0);
}

void TestCurvesEditing::removesTheSelectionThatHoldsTheMouse()
{
    Curves curves;
    addLine(curves, 4);
    select(curves, {1, 3});
    curves.setCurrentIndex(3);
    curves.removePoint();
    QCOMPARE(curves.count(), 2);
    QCOMPARE(curves.currentIndex(), -1);
}

void TestCurvesEditing::removedStartMovesToTheNextNode()
{
    Curves curves;
    addLine(curves, 3);
    addLine(curves, 3, {100, 0});
    curves.setCurrentIndex(3);
    curves.removePoint();
    QCOMPARE(types(curves), (QList<int>{0, 1, 1, 0, 1}));
    QCOMPARE(curves.get(3).end(), QPointF(110, 10));
    curves.undo();
    QCOMPARE(types(curves), (QList<int>{0, 1, 1, 0, 1, 1}));
    QCOMPARE(curves.get(3).end(), QPointF(100, 0));
}

void TestCurvesEditing::clearsEverything()
{
    Curves curves;
    addLine(curves, 4);
    select(curves, {1});
    curves.setCurrentIndex(2);
    QSignalSpy reset(&curves, &Curves::modelReset);
    QSignalSpy let(&curves, &Curves::disconnectModel);
    QSignalSpy taken(&curves, &Curves::connectModel);
    QSignalSpy counted(&curves, &Curves::countChanged);
    QSignalSpy saved(&curves, &Curves::needSave);
    curves.clearAll();
    QCOMPARE(curves.count(), 0);
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(curves.currentIndex(), -1);
    QVERIFY(curves.path().isEmpty());
    for (const QSignalSpy *spy : {&reset, &let, &taken, &counted, &saved})
        QCOMPARE(spy->size(), 1);
    curves.clearAll();
    QCOMPARE(saved.size(), 1);
}

void TestCurvesEditing::linesUpWithTheFirstSelected()
{
    Curves curves;
    addLine(curves, 4);
    curves.lineupVertical();
    select(curves, {2, 0, 3});
    curves.lineupVertical();
    QCOMPARE(ends(curves), (QList<QPointF>{{20, 0}, {10, 10}, {20, 20}, {20, 30}}));
    curves.lineupHorizontal();
    QCOMPARE(ends(curves), (QList<QPointF>{{20, 20}, {10, 10}, {20, 20}, {20, 20}}));
}

void TestCurvesEditing::movesTheSelection()
{
    Curves curves;
    addLine(curves, 3);
    curves.moveSelectdPoints(500, 500);
    select(curves, {1, 2});
    curves.moveSelectdPoints(100, 200);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {100, 200}, {110, 210}}));
    QCOMPARE(curves.selectedRect().value("x").toDouble(), 100.0);
    QCOMPARE(selection(curves), (QList<int>{1, 2}));
}

void TestCurvesEditing::deformsTheSelection()
{
    Curves curves;
    addLine(curves, 3);
    curves.deformSelectdPoints(500, 500);
    select(curves, {1, 2});
    curves.deformSelectdPoints(40, 5);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {10, 10}, {50, 15}}));
    QCOMPARE(curves.selectedRect(),
             (QVariantMap{{"x", 10.0}, {"y", 10.0}, {"width", 40.0}, {"height", 5.0}}));
    curves.deformSelectdPoints(-3, 0);
    QCOMPARE(curves.get(2).end(), QPointF(11, 11));
}

void TestCurvesEditing::dragThroughNothingKeepsTheShape()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 0, 0);
    curves.newPoint(MPathPoint::Line, 50, 0);
    curves.newPoint(MPathPoint::Line, 100, 100);
    curves.selectLine(0);
    curves.saveSelected();
    for (const double size : {60.0, 10.0, 0.0, -20.0, 10.0, 200.0})
        curves.deformSelectdPoints(size, size);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {100, 0}, {200, 200}}));
    curves.moveSelectdPoints(10, 10);
    curves.deformSelectdPoints(100, 100);
    QCOMPARE(ends(curves), (QList<QPointF>{{10, 10}, {60, 10}, {110, 110}}));
}

void TestCurvesEditing::straightensSelectedCurves()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 0, 0);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1, 2, 3, 4, 5, 6);
    curves.newPoint(MPathPoint::Quadratic, 0, 0, true, -1, 7, 8, 9, 10);
    select(curves, {0, 1});
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    curves.curveToLine();
    QCOMPARE(types(curves), (QList<int>{0, 1, 3}));
    QCOMPARE(curves.get(1).end(), QPointF(5, 6));
    QCOMPARE(curves.selectedCount(), 0);
    QVERIFY(drawn.size() > 0);
    curves.curveToLine();
    QCOMPARE(types(curves), (QList<int>{0, 1, 3}));
}

void TestCurvesEditing::straightensOnlyTheSubpathUnderTheMouse()
{
    Curves curves;
    for (int subpath = 0; subpath < 2; ++subpath) {
        curves.newPoint(MPathPoint::Move, 0, 0);
        curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1, 2, 3, 4, 5, 6);
    }
    curves.selectLine(0);
    curves.selectLine(2);
    curves.setCurrentIndex(2);
    curves.curveToLine();
    QCOMPARE(types(curves), (QList<int>{0, 2, 0, 1}));
}

void TestCurvesEditing::lockedModelRefusesEveryEdit_data()
{
    QTest::addColumn<std::function<void(Curves &)>>("edit");
    const auto row = [](const char *name, std::function<void(Curves &)> edit) {
        QTest::newRow(name) << edit;
    };
    row("newPoint", [](Curves &curves) { curves.newPoint(1, 5, 5); });
    row("newRect", [](Curves &curves) { curves.newRect(1, 2, 3, 4); });
    row("updateData", [](Curves &curves) { curves.updateData(0, 5, Curves::V1); });
    row("updatePos", [](Curves &curves) { curves.updatePos(0, 5, 5, Curves::XandY); });
    row("setData", [](Curves &curves) { curves.setData(curves.index(0), 5, Curves::V1); });
    row("duplicatePoint", [](Curves &curves) { curves.duplicatePoint(0); });
    row("removePoint", [](Curves &curves) { curves.removePoint(); });
    row("clearAll", [](Curves &curves) { curves.clearAll(); });
    row("lineupVertical", [](Curves &curves) { curves.lineupVertical(); });
    row("lineupHorizontal", [](Curves &curves) { curves.lineupHorizontal(); });
    row("moveSelectdPoints", [](Curves &curves) { curves.moveSelectdPoints(90, 90); });
    row("deformSelectdPoints", [](Curves &curves) { curves.deformSelectdPoints(90, 90); });
    row("undo", [](Curves &curves) { curves.undo(); });
    row("redo", [](Curves &curves) { curves.redo(); });
    row("curveToLine", [](Curves &curves) { curves.curveToLine(); });
    row("smoothOut", [](Curves &curves) { curves.smoothOut(); });
    row("_optimize", [](Curves &curves) { curves._optimize(8); });
}

void TestCurvesEditing::lockedModelRefusesEveryEdit()
{
    QFETCH(std::function<void(Curves &)>, edit);
    Curves curves;
    addLine(curves, 8);
    select(curves, {1, 2});
    const QString before = curves.storedPath().data;
    curves.setLocked(true);
    QSignalSpy refused(&curves, &Curves::layoutIsLocked);
    QSignalSpy saved(&curves, &Curves::needSave);
    edit(curves);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(saved.size(), 0);
    QVERIFY(!curves.busy());
    QCOMPARE(curves.storedPath().data, before);
    curves.setLocked(false);
    edit(curves);
    QCOMPARE(refused.size(), 1);
}

QTEST_GUILESS_MAIN(TestCurvesEditing)
#include "tst_curvesediting.moc"
