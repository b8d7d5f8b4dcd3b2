#include "timeline/LetterFilm.h"

class tst_FrameUndo : public QObject
{
    Q_OBJECT

private slots:
    void undoesAndRedoesAModification();
    void undoesAMove();
    void leavesAMovedFrameWhenItsNeighbourIsLastNow();
    void leavesAMovedFrameThatStoodFirst();
    void redoesAMove();
    void redoesAMoveDownBehindTheFrameBeforeItsTarget();
    void redoesAMoveToTheTopWhenThatFrameIsLastNow();
    void restoresTheFirstFrameToRowZero();
    void restoresAFrameWhoseNeighbourWentToRowZero();
    void restoresAFrameWithItsGuid();
    void undoesDuplicatesOneAtATime();
    void logsAnUndoOfNothing();
    void keepsThreeHundredRecords();
    void discardsUndoneRecordsWithTheNextEdit();
    void walksToBothEndsOfTheStack();
    void redoesTheRecordBelowAfterAPartialUndo();
    void undoesAnInsertionAndRedoesItWithItsGuid();
    void removesNothingWhenTheInsertedFrameHasGone();
    void announcesUndoThatAddsOrRemovesARow();
};

void tst_FrameUndo::undoesAndRedoesAModification()
{
    const auto model = modelOf("ab");
    model->modifyFrame({{"capFull", "x"}, {"mirrored", true}}, 0);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("ab"));
    QVERIFY(!model->frameAt(0).mirrored);
    QCOMPARE(model->undoCurrent(), -1);
    model->redo();
    QCOMPARE(lettersOf(*model), QString("xb"));
    QVERIFY(model->frameAt(0).mirrored);
}

void tst_FrameUndo::undoesAMove()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(3, 0);
    QCOMPARE(lettersOf(*model), QString("adbce"));
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abcde"));
    QCOMPARE(model->undoCurrent(), -1);
}

void tst_FrameUndo::leavesAMovedFrameWhenItsNeighbourIsLastNow()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(4, 0);
    QCOMPARE(lettersOf(*model), QString("aebcd"));
    model->undo();
    QCOMPARE(lettersOf(*model), QString("aebcd"));
    QCOMPARE(model->undoCurrent(), -1);
}

void tst_FrameUndo::leavesAMovedFrameThatStoodFirst()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(0, 2);
    QCOMPARE(lettersOf(*model), QString("bcade"));
    model->undo();
    QCOMPARE(lettersOf(*model), QString("bcade"));
    QCOMPARE(model->undoCurrent(), -1);
}

void tst_FrameUndo::redoesAMove()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(3, 0);
    model->undo();
    model->redo();
    QCOMPARE(lettersOf(*model), QString("adbce"));
    QCOMPARE(model->undoCurrent(), 1);
}

void tst_FrameUndo::redoesAMoveDownBehindTheFrameBeforeItsTarget()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(1, 3);
    QCOMPARE(lettersOf(*model), QString("acdbe"));
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abcde"));
    model->redo();
    QCOMPARE(lettersOf(*model), QString("acbde"));
}

void tst_FrameUndo::redoesAMoveToTheTopWhenThatFrameIsLastNow()
{
    const auto model = modelOf("abcde");
    model->moveSingleFrame(1, 3);
    model->undo();
    model->removeSingleFrame(4, false);
    model->removeSingleFrame(3, false);
    QCOMPARE(lettersOf(*model), QString("abc"));
    model->redo();
    QCOMPARE(lettersOf(*model), QString("bac"));
}

void tst_FrameUndo::restoresTheFirstFrameToRowZero()
{
    const auto model = modelOf("abc");
    model->removeSingleFrame(0);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abc"));
    QCOMPARE(model->guidAt(0), 10000000);
}

void tst_FrameUndo::restoresAFrameWhoseNeighbourWentToRowZero()
{
    const auto model = modelOf("abcd");
    model->removeSingleFrame(2);
    model->removeSingleFrame(1, false);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("cad"));
}

void tst_FrameUndo::restoresAFrameWithItsGuid()
{
    const auto model = modelOf("abcd");
    model->setValue(2, Zum::PhaseNumber, 9);
    model->removeSingleFrame(2);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abcd"));
    QCOMPARE(model->guidAt(2), 10000002);
    QCOMPARE(model->frameAt(2).phase, 9);
    model->redo();
    QCOMPARE(lettersOf(*model), QString("abd"));
}

void tst_FrameUndo::undoesDuplicatesOneAtATime()
{
    const auto model = modelOf("ab");
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend, 0, true, 3);
    QCOMPARE(model->undoCount(), 3);
    for (const int left : {4, 3, 2}) {
        model->undo();
        QCOMPARE(model->framesCount(), left);
    }
    QCOMPARE(lettersOf(*model), QString("ab"));
}

void tst_FrameUndo::logsAnUndoOfNothing()
{
    const auto model = modelOf("abc");
    LogLines log;
    model->undo();
    model->redo();
    QCOMPARE(log.take(), QStringList({"Undo not allowed", "Undo not allowed"}));
}

void tst_FrameUndo::keepsThreeHundredRecords()
{
    const auto model = modelOf("a");
    for (int i = 0; i < 301; ++i)
        model->modifyFrame({{"phase", i + 1}}, 0);
    QCOMPARE(model->undoCount(), 300);
    QCOMPARE(model->undoCurrent(), 299);
    for (int i = 0; i < 300; ++i)
        model->undo();
    // The edit from 0 to 1 can no longer be undone.
    QCOMPARE(model->frameAt(0).phase, 1);
}

void tst_FrameUndo::discardsUndoneRecordsWithTheNextEdit()
{
    const auto model = modelOf("a");
    for (int i = 1; i <= 4; ++i)
        model->modifyFrame({{"phase", i}}, 0);
    model->undo();
    model->undo();
    model->modifyFrame({{"phase", 9}}, 0);
    QCOMPARE(model->undoCount(), 3);
    QCOMPARE(model->undoCurrent(), 2);
    model->undo();
    QCOMPARE(model->frameAt(0).phase, 2);
}

void tst_FrameUndo::walksToBothEndsOfTheStack()
{
    const auto model = modelOf("abcdef");
    model->removeSingleFrame(1);
    model->moveSingleFrame(3, 0);
    model->modifyFrame({{"capFull", "X"}}, 2);
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend, 0, false, 1);
    const QString after = lettersOf(*model);
    for (int i = 0; i < 4; ++i)
        model->undo();
    QCOMPARE(lettersOf(*model), QString("abcdef"));
    QCOMPARE(model->undoCurrent(), -1);
    for (int i = 0; i < 4; ++i)
        model->redo();
    QCOMPARE(lettersOf(*model), after);
    QCOMPARE(model->undoCurrent(), 4);
    model->undo();
    QCOMPARE(model->undoCurrent(), 2);
}

void tst_FrameUndo::redoesTheRecordBelowAfterAPartialUndo()
{
    const auto model = modelOf("a");
    model->modifyFrame({{"phase", 1}}, 0);
    model->modifyFrame({{"phase", 2}}, 0);
    model->undo();
    QCOMPARE(model->frameAt(0).phase, 1);
    QCOMPARE(model->undoCurrent(), 0);
    model->modifyFrame({{"phase", 7}}, 0, false);
    model->redo();
    QCOMPARE(model->frameAt(0).phase, 1);
    QCOMPARE(model->undoCurrent(), 1);
}

void tst_FrameUndo::undoesAnInsertionAndRedoesItWithItsGuid()
{
    const auto model = modelOf("abc");
    model->appendFrame({{"capFull", "N"}}, false, 0);
    const int guid = model->guidAt(1);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abc"));
    model->redo();
    QCOMPARE(lettersOf(*model), QString("aNbc"));
    QCOMPARE(model->guidAt(1), guid);
}

void tst_FrameUndo::removesNothingWhenTheInsertedFrameHasGone()
{
    const auto model = modelOf("abc");
    model->appendFrame({{"capFull", "N"}}, false, 0);
    model->removeSingleFrame(1, false);
    model->undo();
    QCOMPARE(lettersOf(*model), QString("abc"));
    QCOMPARE(model->undoCurrent(), -1);
}

void tst_FrameUndo::announcesUndoThatAddsOrRemovesARow()
{
    const auto model = modelOf("abc");
    model->appendFrame({{"capFull", "N"}}, false, 0);
    QSignalSpy timeline(model.get(), &FramesModel::timelineChanged);
    model->undo();
    model->redo();
    QCOMPARE(timeline.count(), 2);
    QCOMPARE(timeline.last().first().toInt(), int(Zum::ActInsert));
    model->modifyFrame({{"phase", 1}}, 0);
    model->undo();
    QCOMPARE(timeline.count(), 2);
    model->moveSingleFrame(2, 0);
    QSignalSpy dirty(model.get(), &FramesModel::changed);
    model->undo();
    QCOMPARE(dirty.count(), 1);
}

QTEST_GUILESS_MAIN(tst_FrameUndo)
#include "tst_frameundo.moc"
