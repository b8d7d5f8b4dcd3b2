#include "CurvesSupport.h"
#include "support/RowsOnly.h"

#include <QAbstractItemModelTester>
#include <QMetaEnum>
#include <QTest>

#include <cmath>

using namespace curvestest;

/// The path model as the scene sees it: names, defaults, roles, rows, drawing, canvas and selection.
class TestCurves : public QObject
{
    Q_OBJECT

private slots:
    void offersEveryName_data();
    void offersEveryName();
    void startsWithItsDefaults();
    void rolesHaveTheirNumbersAndNames();
    void rowsGiveTheirValuesByRole();
    void newNodeComesWithItsSignals();
    void nodeListIsASoundModel();
    void halfOfThePointSizeFollows();
    void drawsWhatItHolds();
    void refreshAnnouncesEveryRow();
    void changedDataIsDrawnAndReported();
    void markerIsTheLengthToTheNearestPoint();
    void lockAndFitTellWhetherEditsAreTaken();
    void canvasOfAnotherSizeStretchesThePath();
    void vanishedCanvasLeavesThePath();
    void impossibleCanvasIsNone();
    void selectsTheNodeUnderTheMouse();
    void selectsInARectangleFromAnyCorner();
    void selectsALine();
    void selectsTheClickedSubpath();
    void clearsTheSelection();
    void boundsOfTheSelection();
    void selectionIsAllowedWhileLocked();
};

void TestCurves::offersEveryName_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("name");
    const auto add = [](const char *kind, std::initializer_list<const char *> names) {
        for (const char *name : names)
            QTest::addRow("%s %s", kind, name) << QByteArray(kind) << QByteArray(name);
    };
    add("property", {"currentIndex",
                     "count",
                     "selectedCount",
                     "pointSize",
                     "pointSizeHalf",
                     "pointsVisible",
                     "path",
                     "handlers",
                     "dots",
                     "loaded",
                     "locked",
                     "canvasWidth",
                     "canvasHeight",
                     "scaleFactorH",
                     "busy",
                     "active",
                     "addrectmode",
                     "addNewNodeMode",
                     "handDrawnPointType",
                     "smoothValue",
                     "selectedRect",
                     "storeForUndo"});
    add("method", {"get(int)",
                   "updateData(int,double,int,bool)",
                   "updateData(int,double,int)",
                   "updatePos(int,double,double,int)",
                   "undo()",
                   "redo()",
                   "removePoint()",
                   "updateRenderPaths()",
                   "duplicatePoint(int)",
                   "newPoint(int,double,double,bool,int,double,double,double,double,double,double)",
                   "newPoint(int,double,double,bool,int,double,double,double,double)",
                   "newPoint(int,double,double,bool,int)",
                   "newPoint(int,double,double,bool)",
                   "newPoint(int,double,double)",
                   "addCurrentToSeleted()",
                   "clearSelected()",
                   "removeCurrentFromSeleted()",
                   "lineupVertical()",
                   "lineupHorizontal()",
                   "selectInRect(int,int,int,int)",
                   "count()",
                   "newRect(double,double,double,double)",
                   "clearAll()",
                   "dragMarker(double,double)",
                   "selectLine(int)",
                   "guessClicked(double,double)",
                   "deformSelectdPoints(double,double)",
                   "moveSelectdPoints(double,double)",
                   "saveSelected()",
                   "refresh()",
                   "completed()",
                   "dataHasChanged(QModelIndex,QModelIndex)",
                   "appendToBuffer(double,double)",
                   "smoothOut()",
                   "smoothOut(int)",
                   "_optimize(int)",
                   "_optimize()",
                   "curveToLine()",
                   "layoutIsLocked()",
                   "unableToLoadSvg()",
                   "connectModel()",
                   "disconnectModel()",
                   "interactiveChanged()",
                   "markersChanged()",
                   "needSave()",
                   "pathHasChanged()",
                   "countChanged(QModelIndex,int,int)"});
}

void TestCurves::offersEveryName()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, name);
    const QMetaObject &meta = Curves::staticMetaObject;
    if (kind == "method") {
        QVERIFY(meta.indexOfMethod(name.constData()) >= 0);
        return;
    }
    const int at = meta.indexOfProperty(name.constData());
    QVERIFY(at >= 0);
    QVERIFY(meta.property(at).hasNotifySignal());
    QCOMPARE(meta.property(at).notifySignal().name(), name + "Changed");
}

void TestCurves::startsWithItsDefaults()
{
    const Curves curves;
    QCOMPARE(curves.currentIndex(), -1);
    QCOMPARE(curves.count(), 0);
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(curves.pointSize(), 10.0);
    QCOMPARE(curves.pointSizeHalf(), 5.0);
    QCOMPARE(curves.pointsVisible(), true);
    QVERIFY(curves.path().isEmpty() && curves.handlers().isEmpty() && curves.dots().isEmpty());
    QCOMPARE(curves.loaded(), false);
    QCOMPARE(curves.locked(), false);
    QCOMPARE(curves.canvasWidth(), 0.0);
    QCOMPARE(curves.canvasHeight(), 0.0);
    QCOMPARE(curves.scaleFactorH(), 1.0);
    QCOMPARE(curves.busy(), false);
    QCOMPARE(curves.active(), false);
    QCOMPARE(curves.addrectmode(), false);
    QCOMPARE(curves.addNewNodeMode(), 0);
    QCOMPARE(curves.handDrawnPointType(), 0);
    QCOMPARE(curves.smoothValue(), 300);
    QCOMPARE(curves.storeForUndo(), true);
    QCOMPARE(curves.selectedRect(), (QVariantMap{{"x", 0.0}, {"y", 0.0}, {"width", 0.0}, {"height", 0.0}}));
}

void TestCurves::rolesHaveTheirNumbersAndNames()
{
    const QMetaEnum roles = QMetaEnum::fromType<Curves::MorvaPointRoles>();
    const QList<QByteArray> keys{"Ingroup", "V1",      "V2",      "V3",      "V4",        "V5",
                                 "V6",      "IX",      "IY",      "Store",   "GUID",      "Id",
                                 "XandY",   "V1andV2", "V3andV4", "V5andV6", "ParentGuid"};
    const Curves curves;
    QCOMPARE(curves.roleNames().size(), keys.size());
    for (int number = 0; number < keys.size(); ++number) {
        QCOMPARE(roles.keyToValue(keys[number].constData()), number);
        const QByteArray name = keys[number] == "Ingroup" ? "ingroup"
                                : keys[number] == "GUID"  ? "guid"
                                                          : keys[number];
        QCOMPARE(curves.roleNames().value(number), name);
    }
}

void TestCurves::rowsGiveTheirValuesByRole()
{
    Curves curves;
    addLine(curves, 2);
    curves.newPoint(MPathPoint::Cubic, 5, 6, true, -1, 1, 2, 3, 4, 5, 6);
    curves.updateData(2, 17.9, Curves::Store);
    const QModelIndex node = curves.index(2);
    QCOMPARE(node.data(Curves::Id), 2);
    for (int number = 1; number <= 6; ++number)
        QCOMPARE(node.data(Curves::V1 + number - 1).toDouble(), double(number));
    QCOMPARE(node.data(Curves::IX).toDouble(), 5.0);
    QCOMPARE(node.data(Curves::IY).toDouble(), 6.0);
    QCOMPARE(node.data(Curves::Store), 17);
    QCOMPARE(node.data(Curves::Ingroup), false);
    QCOMPARE(node.data(Curves::XandY).toPointF(), QPointF(5, 6));
    QCOMPARE(node.data(Curves::V1andV2).toPointF(), QPointF(1, 2));
    QCOMPARE(node.data(Curves::V3andV4).toPointF(), QPointF(3, 4));
    QCOMPARE(node.data(Curves::V5andV6).toPointF(), QPointF(5, 6));
    QCOMPARE(node.data(Curves::GUID), curves.get(2).GUID);
    QCOMPARE(node.data(Curves::ParentGuid), curves.get(0).GUID);
    QCOMPARE(node.data(200), QVariant());
    QCOMPARE(curves.get(3).GUID, 0);
    QCOMPARE(curves.get(-1).GUID, 0);
}

void TestCurves::newNodeComesWithItsSignals()
{
    Curves curves;
    QStringList order;
    connect(&curves, &Curves::layoutAboutToBeChanged, this, [&] { order << "layoutAboutToBeChanged"; });
    connect(&curves, &Curves::rowsAboutToBeInserted, this, [&] { order << "rowsAboutToBeInserted"; });
    connect(&curves, &Curves::rowsInserted, this, [&] { order << "rowsInserted"; });
    connect(&curves, &Curves::dataChanged, this, [&] { order << "dataChanged"; });
    connect(&curves, &Curves::layoutChanged, this, [&] { order << "layoutChanged"; });
    connect(&curves, &Curves::pathChanged, this, [&] { order << "pathChanged"; });
    connect(&curves, &Curves::handlersChanged, this, [&] { order << "handlersChanged"; });
    connect(&curves, &Curves::dotsChanged, this, [&] { order << "dotsChanged"; });
    connect(&curves, &Curves::needSave, this, [&] { order << "needSave"; });
    connect(&curves, &Curves::pathHasChanged, this, [&] { order << "pathHasChanged"; });
    QSignalSpy counted(&curves, &Curves::countChanged);
    curves.newPoint(MPathPoint::Move, 1, 2);
    QCOMPARE(order.join(' '),
             "rowsAboutToBeInserted rowsInserted dataChanged layoutAboutToBeChanged "
             "layoutChanged pathChanged handlersChanged dotsChanged needSave "
             "pathHasChanged");
    QCOMPARE(counted.size(), 1);
    QCOMPARE(counted[0][1].toInt(), 0);

    order.clear();
    curves.newPoint(MPathPoint::Line, 1, 2, false);
    QVERIFY(!order.contains("pathChanged"));
    QVERIFY(order.contains("needSave"));
}

void TestCurves::nodeListIsASoundModel()
{
    Curves curves;
    RowsOnly rows;
    rows.setSourceModel(&curves);
    QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
    addLine(curves, 6);
    curves.newPoint(MPathPoint::Line, 5, 5, true, 1);
    curves.newRect(0, 0, 50, 50);
    select(curves, {0, 3, 8});
    curves.moveSelectdPoints(40, 40);
    curves.removePoint();
    curves.undo();
    curves.redo();
    curves.duplicatePoint(2);
    curves.clearAll();
    curves.undo();
    curves.setCanvasWidth(100);
    curves.setCanvasWidth(200);
    curves.refresh();
    addStroke(curves, 30);
    QVERIFY(curves._optimize(30));
    curves.restorePath(curves.storedPath());
    curves.resetPath();
    QCOMPARE(curves.rowCount(), 0);
}

void TestCurves::halfOfThePointSizeFollows()
{
    Curves curves;
    QSignalSpy changed(&curves, &Curves::pointSizeHalfChanged);
    curves.setPointSize(16);
    QCOMPARE(curves.pointSizeHalf(), 8.0);
    QCOMPARE(changed.size(), 1);
}

void TestCurves::drawsWhatItHolds()
{
    Curves curves;
    curves.newPoint(MPathPoint::Move, 10, 10);
    curves.newPoint(MPathPoint::Quadratic, 0, 0, true, -1, 20, 0, 30, 10);
    QPainterPath expected({10, 10});
    expected.quadTo(20, 0, 30, 10);
    QCOMPARE(curves.path(), expected);
    QPainterPath handles({30, 10});
    handles.lineTo(20, 0);
    QCOMPARE(curves.handlers(), handles);
    QCOMPARE(curves.dots(), QPolygonF(QList<QPointF>{{10, 10}, {30, 10}}));
}

void TestCurves::refreshAnnouncesEveryRow()
{
    Curves curves;
    addLine(curves, 4);
    QSignalSpy changed(&curves, &Curves::dataChanged);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    QSignalSpy saved(&curves, &Curves::needSave);
    curves.refresh();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][1].toModelIndex().row(), 3);
    QCOMPARE(drawn.size(), 1);
    QCOMPARE(saved.size(), 0);
}

void TestCurves::changedDataIsDrawnAndReported()
{
    Curves curves;
    addLine(curves, 2);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    QSignalSpy reported(&curves, &Curves::pathHasChanged);
    QVERIFY(curves.setData(curves.index(1), 44.0, Curves::V1));
    QCOMPARE(curves.get(1).IX, 44.0);
    QVERIFY(curves.setData(curves.index(1), QPointF(7, 8), Curves::XandY));
    QCOMPARE(curves.get(1).end(), QPointF(7, 8));
    QVERIFY(curves.setData(curves.index(1), true, Curves::Ingroup));
    QCOMPARE(curves.selectedCount(), 1);
    QCOMPARE(drawn.size(), 2);
    QCOMPARE(reported.size(), 2);
    QVERIFY(!curves.setData(curves.index(1), "far away", Curves::V1));
    QVERIFY(!curves.setData(curves.index(1), std::nan(""), Curves::V1));
    QVERIFY(!curves.setData(curves.index(1), QPointF(std::nan(""), 1), Curves::XandY));
    QVERIFY(!curves.setData(curves.index(1), QPointF(1, 1), Curves::V1));
    QVERIFY(!curves.setData(curves.index(1), 5, Curves::GUID));
    QVERIFY(!curves.setData(curves.index(9), 5, Curves::V1));
    QCOMPARE(curves.get(1).end(), QPointF(7, 8));
    curves.dataHasChanged(curves.index(0), curves.index(1));
    QCOMPARE(drawn.size(), 3);
    QCOMPARE(reported.size(), 3);
}

void TestCurves::markerIsTheLengthToTheNearestPoint()
{
    Curves curves;
    QCOMPARE(curves.dragMarker(5, 5), 0.0);
    curves.newPoint(MPathPoint::Move, 0, 0);
    curves.newPoint(MPathPoint::Line, 200, 0);
    QVERIFY(std::abs(curves.dragMarker(50, 20) - 50.0) <= 0.5);
    QVERIFY(std::abs(curves.dragMarker(500, 20) - 200.0) <= 0.5);
    QCOMPARE(curves.dragMarker(std::nan(""), 0), 0.0);
}

void TestCurves::lockAndFitTellWhetherEditsAreTaken()
{
    Curves curves;
    QSignalSpy interactive(&curves, &Curves::interactiveChanged);
    curves.setLocked(true);
    QCOMPARE(interactive.size(), 1);
    curves.setLocked(false);
    addStroke(curves, 20);
    curves.smoothOut();
    QCOMPARE(interactive.size(), 3);
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(interactive.size(), 4);
}

void TestCurves::canvasOfAnotherSizeStretchesThePath()
{
    Curves curves;
    curves.setCanvasWidth(100);
    curves.setCanvasHeight(50);
    addLine(curves, 3);
    QSignalSpy saved(&curves, &Curves::needSave);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    curves.setCanvasWidth(200);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {20, 10}, {40, 20}}));
    curves.setCanvasHeight(25);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {20, 5}, {40, 10}}));
    QCOMPARE(drawn.size(), 2);
    QCOMPARE(saved.size(), 0);
    curves.undo();
    curves.redo();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {20, 5}, {40, 10}}));
}

void TestCurves::vanishedCanvasLeavesThePath()
{
    Curves curves;
    curves.setCanvasWidth(100);
    addLine(curves, 2);
    QSignalSpy changed(&curves, &Curves::canvasWidthChanged);
    curves.setCanvasWidth(0);
    QCOMPARE(curves.canvasWidth(), 0.0);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {10, 10}}));
    curves.setCanvasWidth(300);
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {30, 10}}));
    QCOMPARE(changed.size(), 2);
}

void TestCurves::impossibleCanvasIsNone()
{
    Curves curves;
    curves.setCanvasWidth(100);
    addLine(curves, 2);
    for (const double width : {-5.0, double(INFINITY), std::nan(""), 1e12, 1e-9}) {
        curves.setCanvasWidth(width);
        QCOMPARE(curves.canvasWidth(), 0.0);
    }
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {10, 10}}));
}

void TestCurves::selectsTheNodeUnderTheMouse()
{
    Curves curves;
    addLine(curves, 3);
    curves.addCurrentToSeleted();
    QCOMPARE(curves.selectedCount(), 0);
    QSignalSpy counted(&curves, &Curves::selectedCountChanged);
    curves.setCurrentIndex(1);
    curves.addCurrentToSeleted();
    curves.addCurrentToSeleted();
    QCOMPARE(selection(curves), (QList<int>{1}));
    QCOMPARE(curves.selectedCount(), 1);
    QCOMPARE(counted.size(), 1);
    curves.removeCurrentFromSeleted();
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(selection(curves), QList<int>());
}

void TestCurves::selectsInARectangleFromAnyCorner()
{
    for (const QRect &rect : {QRect(QPoint(10, 10), QPoint(20, 20)), QRect(QPoint(20, 10), QPoint(10, 20)),
                              QRect(QPoint(20, 20), QPoint(10, 10))}) {
        Curves curves;
        addLine(curves, 4);
        curves.selectInRect(rect.left(), rect.top(), rect.right(), rect.bottom());
        QCOMPARE(selection(curves), (QList<int>{1, 2}));
    }
}

void TestCurves::selectsALine()
{
    Curves curves;
    addLine(curves, 3);
    addLine(curves, 3, {100, 0});
    curves.selectLine(4);
    QCOMPARE(selection(curves), (QList<int>{3, 4, 5}));
    curves.selectLine(-1);
    curves.selectLine(6);
    QCOMPARE(curves.selectedCount(), 3);
    curves.selectLine(0);
    QCOMPARE(curves.selectedCount(), 6);
}

void TestCurves::selectsTheClickedSubpath()
{
    Curves curves;
    addLine(curves, 3);
    addLine(curves, 3, {100, 0});
    curves.guessClicked(60, 10);
    QCOMPARE(curves.selectedCount(), 0);
    curves.guessClicked(110, 10);
    QCOMPARE(selection(curves), (QList<int>{3, 4, 5}));
    Curves empty;
    empty.guessClicked(1, 1);
    QCOMPARE(empty.selectedCount(), 0);
}

void TestCurves::clearsTheSelection()
{
    Curves curves;
    addLine(curves, 3);
    select(curves, {0, 2});
    QSignalSpy saved(&curves, &Curves::needSave);
    curves.clearSelected();
    QCOMPARE(selection(curves), QList<int>());
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(saved.size(), 0);
}

void TestCurves::boundsOfTheSelection()
{
    Curves curves;
    addLine(curves, 4);
    QSignalSpy changed(&curves, &Curves::selectedRectChanged);
    select(curves, {1, 3});
    QCOMPARE(curves.selectedRect(),
             (QVariantMap{{"x", 10.0}, {"y", 10.0}, {"width", 20.0}, {"height", 20.0}}));
    QCOMPARE(changed.size(), 2);
    curves.updatePos(3, 50, 60, Curves::XandY);
    QCOMPARE(changed.size(), 3);
    QCOMPARE(curves.selectedRect().value("height").toDouble(), 50.0);
    curves.updatePos(2, 500, 600, Curves::XandY);
    QCOMPARE(changed.size(), 3);
}

void TestCurves::selectionIsAllowedWhileLocked()
{
    Curves curves;
    addLine(curves, 3);
    curves.setLocked(true);
    QSignalSpy refused(&curves, &Curves::layoutIsLocked);
    curves.selectLine(0);
    QCOMPARE(curves.selectedCount(), 3);
    QVERIFY(curves.setData(curves.index(0), false, Curves::Ingroup));
    curves.clearSelected();
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(refused.size(), 0);
}

QTEST_GUILESS_MAIN(TestCurves)
#include "tst_curves.moc"
