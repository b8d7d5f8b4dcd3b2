#include "CurvesSupport.h"

#include <QTest>

using namespace curvestest;
using morvane::PathLoadResult;

/// What goes into project files and files of its own, and what comes back.
class TestCurvesStorage : public QObject
{
    Q_OBJECT

private slots:
    void roundTripThroughAProject();
    void emptyPathIsStoredEmpty();
    void olderFormIsRead();
    void newerFormWinsOverTheOlder();
    void restoringIsNoEdit();
    void restoringForgetsTheHistory();
    void restoringTellsTheViews();
    void restoringWorksWhileLocked();
    void refusedPathLeavesEverythingButSmoothing();
    void damagedPathIsRepaired();
    void viewportCountsWhenBothAreAboveZero_data();
    void viewportCountsWhenBothAreAboveZero();
    void pathIsStretchedToTheCanvas();
    void canvasThatComesLaterStretchesThePath();
    void secondProjectBringsItsOwnViewport();
    void smoothingIsPartOfTheProject();
    void changedSmoothingIsReported();
    void recordsRoundTrip();
    void refusedRecordsLeaveThePath();
    void resetIsTheStart();
};

namespace {

StoredPath older(const QString &text, qreal viewportX = 0.0, qreal viewportY = 0.0)
{
    StoredPath stored;
    stored.pathData = text;
    stored.viewportX = viewportX;
    stored.viewportY = viewportY;
    return stored;
}

} // namespace

void TestCurvesStorage::roundTripThroughAProject()
{
    Curves curves;
    curves.setCanvasWidth(640);
    curves.setCanvasHeight(480);
    curves.setSmoothValue(120);
    addLine(curves, 3);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1.5, 2, 3, 4, 5, 6);
    const StoredPath stored = curves.storedPath();
    QCOMPARE(stored.viewportX, 640.0);
    QCOMPARE(stored.viewportY, 480.0);
    QCOMPARE(stored.smooth, 120);
    QVERIFY(stored.pathData.isEmpty());
    QCOMPARE(QByteArray::fromBase64(stored.data.toLatin1()),
             "0,0,0,0,0,0,0;1,10,10,0,0,0,0;1,20,20,0,0,0,0;2,1.5,2,3,4,5,6;");

    Curves other;
    const PathLoadResult result = other.restorePath(stored);
    QCOMPARE(result.status, PathLoadResult::Loaded);
    QCOMPARE(result.nodeCount, 4);
    QVERIFY(other.loaded());
    QCOMPARE(other.smoothValue(), 120);
    QCOMPARE(other.canvasWidth(), 640.0);
    QCOMPARE(other.canvasHeight(), 480.0);
    QCOMPARE(other.path(), curves.path());
    QCOMPARE(other.storedPath().data, stored.data);
}

void TestCurvesStorage::emptyPathIsStoredEmpty()
{
    Curves curves;
    QCOMPARE(curves.storedPath().data, QString());
    addLine(curves, 2);
    QVERIFY(curves.restorePath(StoredPath()).ok());
    QCOMPARE(curves.count(), 0);
    QVERIFY(curves.loaded());
}

void TestCurvesStorage::olderFormIsRead()
{
    Curves curves;
    QVERIFY(curves.restorePath(older("0,1,2,0,0,0,0;3,1,2,3,4,0,0")).ok());
    QCOMPARE(ends(curves), (QList<QPointF>{{1, 2}, {3, 4}}));
}

void TestCurvesStorage::newerFormWinsOverTheOlder()
{
    Curves curves;
    StoredPath stored = older("0,1,2,0,0,0,0;");
    stored.data = QString::fromLatin1(QByteArray("0,7,8,0,0,0,0;").toBase64());
    QVERIFY(curves.restorePath(stored).ok());
    QCOMPARE(ends(curves), (QList<QPointF>{{7, 8}}));
}

void TestCurvesStorage::restoringIsNoEdit()
{
    Curves curves;
    QSignalSpy saved(&curves, &Curves::needSave);
    QSignalSpy changed(&curves, &Curves::pathHasChanged);
    StoredPath stored = older("0,1,2,0,0,0,0;", 100, 100);
    stored.smooth = 77;
    curves.restorePath(stored);
    curves.restoreRecords(curves.pathRecords());
    curves.resetPath();
    QCOMPARE(saved.size(), 0);
    QCOMPARE(changed.size(), 0);
}

void TestCurvesStorage::restoringForgetsTheHistory()
{
    Curves curves;
    addLine(curves, 3);
    curves.restorePath(older("0,1,2,0,0,0,0;"));
    curves.undo();
    QCOMPARE(ends(curves), (QList<QPointF>{{1, 2}}));
}

void TestCurvesStorage::restoringTellsTheViews()
{
    Curves curves;
    addLine(curves, 3);
    select(curves, {1});
    QSignalSpy let(&curves, &Curves::disconnectModel);
    QSignalSpy reset(&curves, &Curves::modelReset);
    QSignalSpy taken(&curves, &Curves::connectModel);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    curves.restorePath(older("0,1,2,0,0,0,0;"));
    for (const QSignalSpy *spy : {&let, &reset, &taken, &drawn})
        QCOMPARE(spy->size(), 1);
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(curves.dots().size(), 1);
}

void TestCurvesStorage::restoringWorksWhileLocked()
{
    Curves curves;
    curves.setLocked(true);
    QVERIFY(curves.restorePath(older("0,1,2,0,0,0,0;")).ok());
    QCOMPARE(curves.count(), 1);
}

void TestCurvesStorage::refusedPathLeavesEverythingButSmoothing()
{
    Curves curves;
    addLine(curves, 3);
    StoredPath stored = older("rubbish", 100, 100);
    stored.smooth = 60;
    QTest::ignoreMessage(QtWarningMsg, "Wrong data passed to parsePathNode");
    const PathLoadResult result = curves.restorePath(stored);
    QVERIFY(!result.ok());
    QCOMPARE(result.message, "The vector path is damaged and was not read");
    QCOMPARE(curves.count(), 3);
    QCOMPARE(curves.canvasWidth(), 0.0);
    QVERIFY(!curves.loaded());
    QCOMPARE(curves.smoothValue(), 60);
    curves.undo();
    QCOMPARE(curves.count(), 2);
}

void TestCurvesStorage::damagedPathIsRepaired()
{
    Curves curves;
    QTest::ignoreMessage(QtWarningMsg, "Fail to read int");
    const PathLoadResult result = curves.restorePath(older("0,1,2,0,0,0,0;x,1,2,0,0,0,0;1,5,6,0,0,0,0;"));
    QCOMPARE(result.status, PathLoadResult::Repaired);
    QCOMPARE(result.message, "The vector path is damaged: nodes left out: 1");
    QCOMPARE(ends(curves), (QList<QPointF>{{1, 2}, {5, 6}}));
}

void TestCurvesStorage::viewportCountsWhenBothAreAboveZero_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("counts");
    QTest::newRow("both") << 200.0 << 300.0 << true;
    QTest::newRow("no width") << 0.0 << 300.0 << false;
    QTest::newRow("no height") << 200.0 << 0.0 << false;
    QTest::newRow("negative") << -200.0 << 300.0 << false;
    QTest::newRow("not a number") << qQNaN() << 300.0 << false;
    QTest::newRow("endless") << 200.0 << qInf() << false;
    QTest::newRow("absurd") << 1e-300 << 300.0 << false;
}

void TestCurvesStorage::viewportCountsWhenBothAreAboveZero()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(bool, counts);
    Curves curves;
    QVERIFY(curves.restorePath(older("0,10,10,0,0,0,0;", x, y)).ok());
    QCOMPARE(curves.canvasWidth(), counts ? x : 0.0);
    QCOMPARE(curves.canvasHeight(), counts ? y : 0.0);
    QCOMPARE(ends(curves), (QList<QPointF>{{10, 10}}));

    Curves withCanvas;
    withCanvas.setCanvasWidth(100);
    withCanvas.setCanvasHeight(100);
    QVERIFY(withCanvas.restorePath(older("0,10,30,0,0,0,0;", x, y)).ok());
    QCOMPARE(withCanvas.canvasWidth(), 100.0);
    QCOMPARE(ends(withCanvas).first(), counts ? QPointF(5, 10) : QPointF(10, 30));
}

void TestCurvesStorage::pathIsStretchedToTheCanvas()
{
    Curves curves;
    curves.setCanvasWidth(1000);
    curves.setCanvasHeight(500);
    QVERIFY(curves.restorePath(older("0,10,10,0,0,0,0;2,1,2,3,4,5,6;", 100, 100)).ok());
    QVERIFY(curves.get(1).sameGeometry(MPathPoint::cubic({10, 10}, {30, 20}, {50, 30})));
    QCOMPARE(curves.storedPath().viewportX, 1000.0);
    QCOMPARE(curves.storedPath().viewportY, 500.0);
}

void TestCurvesStorage::canvasThatComesLaterStretchesThePath()
{
    Curves curves;
    QVERIFY(curves.restorePath(older("0,10,10,0,0,0,0;", 100, 100)).ok());
    curves.setCanvasWidth(1000);
    curves.setCanvasHeight(500);
    QCOMPARE(ends(curves), (QList<QPointF>{{100, 50}}));
}

void TestCurvesStorage::secondProjectBringsItsOwnViewport()
{
    Curves curves;
    curves.restorePath(older("0,10,10,0,0,0,0;", 100, 100));
    curves.restorePath(older("0,10,10,0,0,0,0;", 300, 200));
    QCOMPARE(ends(curves), (QList<QPointF>{{10, 10}}));
    QCOMPARE(curves.storedPath().viewportX, 300.0);
    QCOMPARE(curves.storedPath().viewportY, 200.0);
}

void TestCurvesStorage::smoothingIsPartOfTheProject()
{
    QCOMPARE(StoredPath().smooth, 300);
    Curves curves;
    curves.setSmoothValue(450);
    curves.restorePath(StoredPath());
    QCOMPARE(curves.smoothValue(), 300);
}

void TestCurvesStorage::changedSmoothingIsReported()
{
    Curves curves;
    QSignalSpy changed(&curves, &Curves::pathHasChanged);
    curves.setSmoothValue(450);
    QCOMPARE(changed.size(), 1);
    curves.setSmoothValue(450);
    QCOMPARE(changed.size(), 1);
}

void TestCurvesStorage::recordsRoundTrip()
{
    Curves curves;
    addLine(curves, 3);
    curves.newPoint(MPathPoint::Quadratic, 0, 0, true, -1, 1, 2, 3, 4);
    select(curves, {2});
    Curves other;
    const PathLoadResult result = other.restoreRecords(curves.pathRecords());
    QCOMPARE(result.status, PathLoadResult::Loaded);
    QCOMPARE(other.path(), curves.path());
    QCOMPARE(selection(other), (QList<int>{2}));
    QCOMPARE(other.selectedCount(), 1);
    other.clearSelected();
    QCOMPARE(other.selectedCount(), 0);
    QCOMPARE(selection(other), QList<int>());
}

void TestCurvesStorage::refusedRecordsLeaveThePath()
{
    Curves curves;
    addLine(curves, 3);
    QTest::ignoreMessage(QtWarningMsg, "Wrong type MorvaPointRoles::IX");
    const PathLoadResult result = curves.restoreRecords({QVariant("nothing")});
    QVERIFY(!result.ok());
    QVERIFY(!result.message.isEmpty());
    QCOMPARE(curves.count(), 3);
}

void TestCurvesStorage::resetIsTheStart()
{
    Curves curves;
    curves.restorePath(older("0,10,10,0,0,0,0;", 100, 100));
    addLine(curves, 3);
    select(curves, {1});
    curves.setSmoothValue(90);
    curves.setLocked(true);
    curves.setAddrectmode(true);
    curves.setAddNewNodeMode(1);
    curves.setHandDrawnPointType(1);
    curves.resetPath();
    QCOMPARE(curves.count(), 0);
    QCOMPARE(curves.selectedCount(), 0);
    QCOMPARE(curves.smoothValue(), 300);
    QCOMPARE(curves.canvasWidth(), 0.0);
    QVERIFY(!curves.locked() && !curves.loaded() && !curves.addrectmode());
    QCOMPARE(curves.addNewNodeMode(), 0);
    QCOMPARE(curves.handDrawnPointType(), 0);
    curves.undo();
    QCOMPARE(curves.count(), 0);
    curves.setCanvasWidth(70);
    curves.resetPath();
    QCOMPARE(curves.canvasWidth(), 70.0);
}

QTEST_GUILESS_MAIN(TestCurvesStorage)
#include "tst_curvesstorage.moc"
