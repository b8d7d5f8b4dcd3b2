#include "CurvesSupport.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <functional>

using namespace curvestest;

/// Undo and redo of path edits through the model.
class TestCurvesUndo : public QObject
{
    Q_OBJECT

private slots:
    void undoOnAnEmptyStackDoesNothing();
    void redoAtTheEndDoesNothing();
    void everyOperationIsOneStep_data();
    void everyOperationIsOneStep();
    void undoReportsTheChange();
    void dragOfANodeIsOneStep();
    void dragOfTheSelectionIsOneStep();
    void selectionSurvivesUndo();
    void unrecordedEditsAreNotUndone();
    void badIndexIsReported();
    void vanishedNodeIsReported();
    void writeOfTheSameValueIsNoStep();
    void randomEditsUndoToTheStartAndRedoToTheEnd();
};

namespace {

/// Everything about the nodes but the selection.
QString picture(const Curves &curves)
{
    QString text = morvane::encodePath(curves.nodes());
    for (int row = 0; row < curves.count(); ++row)
        text += QString::number(curves.get(row).GUID) + u' ';
    return text;
}

using Edit = std::function<void(Curves &)>;

} // namespace

void TestCurvesUndo::undoOnAnEmptyStackDoesNothing()
{
    Curves curves;
    QSignalSpy saved(&curves, &Curves::needSave);
    QSignalSpy changed(&curves, &Curves::pathHasChanged);
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    curves.undo();
    curves.redo();
    QCOMPARE(curves.count(), 0);
    QCOMPARE(saved.size(), 0);
    QCOMPARE(changed.size(), 0);
}

void TestCurvesUndo::redoAtTheEndDoesNothing()
{
    Curves curves;
    addLine(curves, 2);
    const QString before = picture(curves);
    curves.redo();
    QCOMPARE(picture(curves), before);
}

void TestCurvesUndo::everyOperationIsOneStep_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, Edit edit) {
        QTest::newRow(name) << edit;
    };
    row("newPoint", [](Curves &curves) { curves.newPoint(1, 5, 5, true, 1); });
    row("newRect", [](Curves &curves) { curves.newRect(1, 2, 3, 4); });
    row("updateData", [](Curves &curves) { curves.updateData(0, 5, Curves::V1); });
    row("command", [](Curves &curves) { curves.updateData(1, MPathPoint::Cubic, Curves::Id); });
    row("updatePos", [](Curves &curves) { curves.updatePos(0, 5, 5, Curves::XandY); });
    row("duplicatePoint", [](Curves &curves) { curves.duplicatePoint(0); });
    row("removePoint", [](Curves &curves) { curves.removePoint(); });
    row("removed start", [](Curves &curves) {
        curves.setCurrentIndex(0);
        curves.removePoint();
    });
    row("clearAll", [](Curves &curves) { curves.clearAll(); });
    row("lineupVertical", [](Curves &curves) { curves.lineupVertical(); });
    row("lineupHorizontal", [](Curves &curves) { curves.lineupHorizontal(); });
    row("moveSelectdPoints", [](Curves &curves) { curves.moveSelectdPoints(90, 90); });
    row("deformSelectdPoints", [](Curves &curves) { curves.deformSelectdPoints(90, 90); });
    row("curveToLine", [](Curves &curves) { curves.curveToLine(); });
}

void TestCurvesUndo::everyOperationIsOneStep()
{
    QFETCH(Edit, edit);
    Curves curves;
    addLine(curves, 4);
    curves.newPoint(MPathPoint::Cubic, 0, 0, true, -1, 1, 2, 3, 4, 60, 70);
    select(curves, {1, 2, 4});
    const QString before = picture(curves);
    edit(curves);
    const QString after = picture(curves);
    QVERIFY(after != before);
    curves.undo();
    QCOMPARE(picture(curves), before);
    QCOMPARE(curves.dots().size(), curves.count());
    curves.redo();
    QCOMPARE(picture(curves), after);
    curves.undo();
    QCOMPARE(picture(curves), before);
}

void TestCurvesUndo::undoReportsTheChange()
{
    Curves curves;
    addLine(curves, 2);
    QSignalSpy saved(&curves, &Curves::needSave);
    QSignalSpy changed(&curves, &Curves::pathHasChanged);
    QSignalSpy drawn(&curves, &Curves::pathChanged);
    curves.undo();
    for (const QSignalSpy *spy : {&saved, &changed, &drawn})
        QCOMPARE(spy->size(), 1);
}

void TestCurvesUndo::dragOfANodeIsOneStep()
{
    Curves curves;
    addLine(curves, 3);
    curves.setCurrentIndex(1);
    for (int step = 1; step <= 20; ++step)
        curves.updatePos(1, step, step * 2, Curves::XandY);
    curves.setCurrentIndex(-1);
    curves.setCurrentIndex(1);
    curves.updatePos(1, 100, 100, Curves::XandY);
    curves.undo();
    QCOMPARE(curves.get(1).end(), QPointF(20, 40));
    curves.undo();
    QCOMPARE(curves.get(1).end(), QPointF(10, 10));
    curves.redo();
    QCOMPARE(curves.get(1).end(), QPointF(20, 40));
}

void TestCurvesUndo::dragOfTheSelectionIsOneStep()
{
    Curves curves;
    addLine(curves, 3);
    const QString before = picture(curves);
    select(curves, {0, 1, 2});
    curves.saveSelected();
    for (int step = 1; step <= 20; ++step)
        curves.moveSelectdPoints(step, step);
    curves.deformSelectdPoints(50, 50);
    const QString dragged = picture(curves);
    curves.saveSelected();
    curves.moveSelectdPoints(300, 300);
    curves.undo();
    QCOMPARE(picture(curves), dragged);
    curves.undo();
    QCOMPARE(picture(curves), before);

    // Without the start of a drag each call stands by itself.
    curves.clearSelected();
    select(curves, {0});
    curves.moveSelectdPoints(5, 5);
    curves.moveSelectdPoints(6, 6);
    curves.undo();
    QCOMPARE(curves.get(0).end(), QPointF(5, 5));
}

void TestCurvesUndo::selectionSurvivesUndo()
{
    Curves curves;
    addLine(curves, 4);
    select(curves, {1, 3});
    curves.moveSelectdPoints(50, 50);
    curves.clearSelected();
    select(curves, {2, 3});
    curves.undo();
    QCOMPARE(selection(curves), (QList<int>{2, 3}));
    curves.removePoint();
    curves.undo();
    QCOMPARE(selection(curves), QList<int>());
    QCOMPARE(curves.selectedCount(), 0);
}

void TestCurvesUndo::unrecordedEditsAreNotUndone()
{
    Curves curves;
    addLine(curves, 2);
    curves.setStoreForUndo(false);
    curves.newPoint(MPathPoint::Line, 77, 77);
    curves.setStoreForUndo(true);
    curves.undo();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {77, 77}}));
}

void TestCurvesUndo::badIndexIsReported()
{
    Curves curves;
    addLine(curves, 3);
    curves.setCurrentIndex(2);
    curves.removePoint();
    curves.setStoreForUndo(false);
    curves.clearAll();
    QTest::ignoreMessage(QtWarningMsg, "Und/Redo node: index is not okay");
    curves.undo();
    QCOMPARE(curves.count(), 0);
}

void TestCurvesUndo::vanishedNodeIsReported()
{
    Curves curves;
    addLine(curves, 3);
    curves.updatePos(2, 90, 90, Curves::XandY);
    curves.setStoreForUndo(false);
    curves.setCurrentIndex(2);
    curves.removePoint();
    QTest::ignoreMessage(QtWarningMsg, "Und/Redo node: index is not okay");
    curves.undo();
    QCOMPARE(ends(curves), (QList<QPointF>{{0, 0}, {10, 10}}));
}

void TestCurvesUndo::writeOfTheSameValueIsNoStep()
{
    Curves curves;
    addLine(curves, 2);
    QSignalSpy saved(&curves, &Curves::needSave);
    curves.updatePos(1, 10, 10, Curves::XandY);
    curves.updateData(1, 10, Curves::V1);
    QCOMPARE(saved.size(), 0);
    curves.undo();
    QCOMPARE(curves.count(), 1);
}

/// Edits at random, the same in every run.
void TestCurvesUndo::randomEditsUndoToTheStartAndRedoToTheEnd()
{
    QRandomGenerator random(1234);
    for (int round = 0; round < 20; ++round) {
        Curves curves;
        QStringList pictures{picture(curves)};
        const auto anyRow = [&] {
            return random.bounded(curves.count() + 1) - 1;
        };
        while (pictures.size() < 120) {
            const int number = random.bounded(400);
            curves.setCurrentIndex(-1);
            switch (random.bounded(12)) {
                case 0:
                case 1:
                case 2:
                    curves.newPoint(random.bounded(4), number, number / 3, true, anyRow(), 1, 2, 3, 4, number,
                                    5);
                    break;
                case 3:
                    curves.newRect(number, 0, number + 20, number);
                    break;
                case 4:
                    curves.updatePos(anyRow(), number, number + 1, Curves::XandY);
                    break;
                case 5:
                    curves.updateData(anyRow(), random.bounded(4), Curves::Id);
                    break;
                case 6:
                    curves.setCurrentIndex(anyRow());
                    curves.removePoint();
                    break;
                case 7:
                    curves.duplicatePoint(anyRow());
                    break;
                case 8:
                    curves.selectInRect(0, 0, number, number);
                    curves.moveSelectdPoints(number, 7);
                    curves.clearSelected();
                    break;
                case 9:
                    curves.selectLine(anyRow());
                    curves.deformSelectdPoints(number, 90);
                    break;
                case 10:
                    curves.lineupHorizontal();
                    break;
                default:
                    if (number < 20)
                        curves.clearAll();
                    else
                        curves.curveToLine();
                    break;
            }
            if (picture(curves) != pictures.last())
                pictures.append(picture(curves));
        }
        for (qsizetype at = pictures.size() - 2; at >= 0; --at) {
            curves.undo();
            QCOMPARE(picture(curves), pictures[at]);
        }
        QCOMPARE(curves.count(), 0);
        for (qsizetype at = 1; at < pictures.size(); ++at) {
            curves.redo();
            QCOMPARE(picture(curves), pictures[at]);
        }
    }
}

QTEST_GUILESS_MAIN(TestCurvesUndo)
#include "tst_curvesundo.moc"
