#include "CurvesSupport.h"

#include <QTest>

#include <cmath>
#include <memory>

using namespace curvestest;

/// Strokes drawn by hand, and their fits.
class TestCurvesStrokes : public QObject
{
    Q_OBJECT

private slots:
    void everyFourthPositionBecomesANode();
    void strokeOverTheOriginSkipsTheNodeThere();
    void restOfAStrokeDoesNotBeginTheNext();
    void lockedModelTakesNoStroke();
    void strokeOfUpToFiveNodesStaysAPolyline();
    void strokeOfSixNodesIsFitted();
    void fitRunsApartAndIsPutInPlace();
    void earlierSubpathsStayAsTheyAre();
    void clickedNodesAreNotPartOfTheNextStroke();
    void nodesOfAFitAreNotFittedAgain();
    void fittedStrokeMovesByHalfAUnit();
    void secondRequestIsRefusedWhileBusy();
    void fitOfAChangedStrokeIsDropped();
    void fitOfAClearedPathIsDropped();
    void fitDoesNotReachTheNextProject();
    void fitIsDroppedWhenTheModelIsLocked();
    void strokeThatFollowsAFitIsNotTouched();
    void fittedCurveIsOneUndoStep();
    void fitIsNotRecordedWhenUndoIsOff();
    void fitAtOnce();
    void fitAtOnceOfTooManyOrTooFewNodes();
    void completionWithoutAFitDoesNothing();
    void modelThatGoesStopsItsFit();
};

namespace {

/// Draws as the overlay does: a press, moves, a release without the fit.
void draw(Curves &curves, int moves, QPointF from = {10, 10})
{
    curves.newPoint(MPathPoint::Move, from.x(), from.y());
    curves.setHandDrawnPointType(1);
    for (int at = 1; at <= moves; ++at)
        curves.appendToBuffer(from.x() + at * 3.0, from.y() + 40.0 * std::sin(at * 0.05));
}

void fitAndWait(Curves &curves)
{
    curves.smoothOut();
    QTRY_VERIFY(!curves.busy());
}

} // namespace

void TestCurvesStrokes::everyFourthPositionBecomesANode()
{
    Curves curves;
    draw(curves, 11);
    QCOMPARE(types(curves), (QList<int>{0, 1, 1}));
    QCOMPARE(curves.get(1).IX, 22.0);
    QCOMPARE(curves.get(2).IX, 34.0);
}

void TestCurvesStrokes::strokeOverTheOriginSkipsTheNodeThere()
{
    Curves curves;
    curves.setHandDrawnPointType(1);
    for (const double x : {6.0, 4.0, 2.0, 0.0})
        curves.appendToBuffer(x, 0);
    QCOMPARE(curves.count(), 0);
    curves.appendToBuffer(-2, 0);
    QCOMPARE(ends(curves), (QList<QPointF>{{-2, 0}}));
}

void TestCurvesStrokes::restOfAStrokeDoesNotBeginTheNext()
{
    Curves curves;
    draw(curves, 7);
    QCOMPARE(curves.count(), 2);
    curves.setHandDrawnPointType(0);
    draw(curves, 3, {100, 100});
    QCOMPARE(curves.count(), 3);
    curves.appendToBuffer(1, 1);
    QCOMPARE(curves.count(), 4);
}

void TestCurvesStrokes::lockedModelTakesNoStroke()
{
    Curves curves;
    curves.setLocked(true);
    QSignalSpy refused(&curves, &Curves::layoutIsLocked);
    draw(curves, 40);
    QCOMPARE(curves.count(), 0);
    QCOMPARE(refused.size(), 1);
}

void TestCurvesStrokes::strokeOfUpToFiveNodesStaysAPolyline()
{
    for (int length = 1; length <= 5; ++length) {
        Curves curves;
        addStroke(curves, length);
        curves.smoothOut();
        QVERIFY(!curves.busy());
        QVERIFY(!types(curves).contains(MPathPoint::Cubic));
        QCOMPARE(curves.count(), length);
    }
}

void TestCurvesStrokes::strokeOfSixNodesIsFitted()
{
    Curves curves;
    addStroke(curves, 6);
    curves.smoothOut(123);
    QVERIFY(curves.busy());
    QTRY_VERIFY(!curves.busy());
    QVERIFY(types(curves).contains(MPathPoint::Cubic));
}

void TestCurvesStrokes::fitRunsApartAndIsPutInPlace()
{
    Curves curves;
    draw(curves, 200);
    const int drawn = curves.count();
    QSignalSpy busy(&curves, &Curves::busyChanged);
    QSignalSpy saved(&curves, &Curves::needSave);
    curves.smoothOut();
    QCOMPARE(curves.busy(), true);
    QCOMPARE(curves.count(), drawn);
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(busy.size(), 2);
    QVERIFY(saved.size() > 0);
    QVERIFY(curves.count() < drawn / 2);
    QCOMPARE(curves.get(0).type, int(MPathPoint::Move));
    for (int row = 1; row < curves.count(); ++row) {
        QCOMPARE(curves.get(row).type, int(MPathPoint::Cubic));
        QCOMPARE(QPointF(curves.get(row).IX, curves.get(row).IY),
                 QPointF(curves.get(row).V5, curves.get(row).V6));
    }
    QCOMPARE(curves.dots().size(), curves.count());
}

void TestCurvesStrokes::earlierSubpathsStayAsTheyAre()
{
    Curves curves;
    addLine(curves, 4);
    const QList<QPointF> before = ends(curves);
    addStroke(curves, 20, {100, 0});
    fitAndWait(curves);
    QCOMPARE(ends(curves).mid(0, 4), before);
    QCOMPARE(types(curves).mid(0, 5), (QList<int>{0, 1, 1, 1, 0}));
    QVERIFY(curves.count() < 24);
}

void TestCurvesStrokes::clickedNodesAreNotPartOfTheNextStroke()
{
    Curves curves;
    addLine(curves, 5);
    curves.newRect(0, 0, 30, 30);
    addStroke(curves, 3, {100, 0});
    curves.smoothOut();
    QVERIFY(!curves.busy());
    QCOMPARE(curves.count(), 13);
}

void TestCurvesStrokes::nodesOfAFitAreNotFittedAgain()
{
    Curves curves;
    addStroke(curves, 60);
    fitAndWait(curves);
    const QString fitted = curves.storedPath().data;
    curves.smoothOut();
    QVERIFY(!curves.busy());
    QCOMPARE(curves.storedPath().data, fitted);
}

void TestCurvesStrokes::fittedStrokeMovesByHalfAUnit()
{
    Curves curves;
    addStroke(curves, 20, {50, 50});
    const QPointF start = curves.get(0).end();
    const QPointF end = curves.get(19).end();
    fitAndWait(curves);
    const double angle = 4.0 * M_PI / 180.0;
    const QPointF offset(std::sin(angle) * 0.5, std::cos(angle) * 0.5);
    QCOMPARE(curves.get(0).end(), start - offset);
    QCOMPARE(curves.get(curves.count() - 1).end(), end - offset);
    QVERIFY(std::abs(std::hypot(offset.x(), offset.y()) - 0.5) < 1e-9);
}

void TestCurvesStrokes::secondRequestIsRefusedWhileBusy()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    addStroke(curves, 20, {300, 0});
    QSignalSpy busy(&curves, &Curves::busyChanged);
    curves.smoothOut();
    QCOMPARE(busy.size(), 0);
    QVERIFY(!curves._optimize(20));
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(busy.size(), 1);
    QCOMPARE(types(curves).last(), int(MPathPoint::Line));
}

void TestCurvesStrokes::fitOfAChangedStrokeIsDropped()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    curves.updatePos(7, 500, 500, Curves::XandY);
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(curves.count(), 20);
    QCOMPARE(curves.get(7).end(), QPointF(500, 500));
}

void TestCurvesStrokes::fitOfAClearedPathIsDropped()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    curves.clearAll();
    QVERIFY(curves.busy());
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(curves.count(), 0);
    curves.undo();
    QCOMPARE(curves.count(), 20);
}

void TestCurvesStrokes::fitDoesNotReachTheNextProject()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    StoredPath stored;
    stored.pathData = QStringLiteral("0,1,2,0,0,0,0;");
    QVERIFY(curves.restorePath(stored).ok());
    QSignalSpy saved(&curves, &Curves::needSave);
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(ends(curves), (QList<QPointF>{{1, 2}}));
    QCOMPARE(saved.size(), 0);
    addStroke(curves, 20, {100, 0});
    fitAndWait(curves);
    QVERIFY(types(curves).contains(MPathPoint::Cubic));
}

void TestCurvesStrokes::fitIsDroppedWhenTheModelIsLocked()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    curves.setLocked(true);
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(curves.count(), 20);
}

void TestCurvesStrokes::strokeThatFollowsAFitIsNotTouched()
{
    Curves curves;
    addStroke(curves, 20);
    curves.smoothOut();
    addStroke(curves, 8, {300, 0});
    QTRY_VERIFY(!curves.busy());
    const QList<int> commands = types(curves);
    QVERIFY(curves.count() < 28);
    QCOMPARE(commands.mid(commands.size() - 8), (QList<int>{0, 1, 1, 1, 1, 1, 1, 1}));
    fitAndWait(curves);
    QCOMPARE(types(curves).last(), int(MPathPoint::Cubic));
    QVERIFY(!types(curves).contains(MPathPoint::Line));
}

void TestCurvesStrokes::fittedCurveIsOneUndoStep()
{
    Curves curves;
    addLine(curves, 2);
    addStroke(curves, 20, {100, 0});
    fitAndWait(curves);
    const QString fitted = curves.storedPath().data;
    curves.undo();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {10, 10}}));
    curves.redo();
    QCOMPARE(curves.storedPath().data, fitted);
    curves.undo();
    curves.undo();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}}));
}

void TestCurvesStrokes::fitIsNotRecordedWhenUndoIsOff()
{
    Curves curves;
    addLine(curves, 2);
    curves.setStoreForUndo(false);
    addStroke(curves, 20, {100, 0});
    fitAndWait(curves);
    const int count = curves.count();
    curves.setStoreForUndo(true);
    curves.undo();
    QCOMPARE(curves.count(), count - 1);
    QCOMPARE(curves.get(0).end(), QPointF(0, 0));
    QCOMPARE(curves.get(1).type, int(MPathPoint::Move));
}

void TestCurvesStrokes::fitAtOnce()
{
    Curves curves;
    addStroke(curves, 20);
    Curves other;
    addStroke(other, 20);
    QVERIFY(curves._optimize(20));
    QVERIFY(!curves.busy());
    fitAndWait(other);
    QCOMPARE(curves.storedPath().data, other.storedPath().data);
    QVERIFY(curves.count() < 20);
}

void TestCurvesStrokes::fitAtOnceOfTooManyOrTooFewNodes()
{
    Curves curves;
    addStroke(curves, 20);
    for (const int length : {0, -1, 1, 2, 21})
        QVERIFY(!curves._optimize(length));
    QVERIFY(!curves._optimize());
    QCOMPARE(curves.count(), 20);
    // Asking counts as done: the stroke is not fitted later.
    curves.smoothOut();
    QVERIFY(!curves.busy());
}

void TestCurvesStrokes::completionWithoutAFitDoesNothing()
{
    Curves curves;
    addStroke(curves, 20);
    QSignalSpy busy(&curves, &Curves::busyChanged);
    curves.completed();
    QCOMPARE(busy.size(), 0);
    curves.smoothOut();
    QTRY_VERIFY(!curves.busy());
    QCOMPARE(busy.size(), 2);
    curves.completed();
    QCOMPARE(busy.size(), 2);
}

void TestCurvesStrokes::modelThatGoesStopsItsFit()
{
    auto curves = std::make_unique<Curves>();
    addStroke(*curves, 300);
    curves->smoothOut();
    QVERIFY(curves->busy());
    curves.reset();
    QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(TestCurvesStrokes)
#include "tst_curvesstrokes.moc"
