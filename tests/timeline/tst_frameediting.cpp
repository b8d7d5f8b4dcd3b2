#include "timeline/LetterFilm.h"

class tst_FrameEditing : public QObject
{
    Q_OBJECT

private slots:
    void modifiesWhatTheMapHolds();
    void letsTheMapDecideTheMissingFlag();
    void keepsTheGuidUnderModification();
    void logsAModificationOfAMissingRow();
    void logsTheValuesOfARowThatWentWhileBeingModified();
    void refreshesTheCurrentStringsWhenTheCurrentFrameIsModified();
    void writesNoRecordWhileNotLoaded();
    void overwritesTheRowsBehindForAShotThatReplaces();

    void movesBehindTheRow_data();
    void movesBehindTheRow();
    void tellsTheViewsTheRowOfAMove();
    void swapsNeighboursWithoutAMove();
    void keepsPersistentRowsRightWhenMoving();
    void ignoresAMoveOutsideTheList();
    void showsTheFrameThatMovedToTheCurrentRow();

    void removesTheCurrentFrame();
    void removesTheNewestOfTheSelection();
    void leavesTheLastAccessedRowInTheList();
    void disarmsTheDeletionAfterADirectRemoval();
    void armsTheDeletionForTheCurrentFrameOrTheSelection();

    void duplicatesInAppendMode();
    void duplicatesInReplaceMode();
    void copiesNeitherPhaseNorSelectionNorHold();
    void duplicatesBehindTheSourceForABadRow();
    void duplicatesNothingInAnyOtherMode();
    void tellsViewsOfDuplicatesByLayout();
    void logsABadSourceOfADuplicate();

    void switchesMirroring();
    void hidesWithoutAnUndoRecord();
    void cleansUpTheCurrentFrame();

    void refusesDuringAnAction();
};

void tst_FrameEditing::modifiesWhatTheMapHolds()
{
    const auto model = modelOf("abc");
    QSignalSpy dirty(model.get(), &FramesModel::changed);
    model->modifyFrame({{"capFull", "x"},
                        {"refTumb", "rt"},
                        {"mirrored", true},
                        {"phase", 5},
                        {"static", 1},
                        {"hidden", true},
                        {"ingroup", true}},
                       1);
    const Frame &frame = model->frameAt(1);
    QCOMPARE(frame.capFull, QString("x"));
    QCOMPARE(frame.capTumb, QString("bt"));
    QCOMPARE(frame.refTumb, QString("rt"));
    QVERIFY(frame.mirrored && frame.hidden && frame.ingroup);
    QCOMPARE(frame.phase, 5);
    QCOMPARE(frame.staticState, 1);
    QCOMPARE(model->lastAccessedIndex(), 1);
    QCOMPARE(dirty.count(), 1);
    QCOMPARE(model->undoCount(), 1);
}

void tst_FrameEditing::letsTheMapDecideTheMissingFlag()
{
    const auto model = modelOf("a");
    model->modifyFrame({{"capFull", "x"}, {"capfullmiss", true}}, 0);
    QVERIFY(model->frameAt(0).capfullmiss);
    QVERIFY(model->frameAt(0).gotCapImg);
}

void tst_FrameEditing::keepsTheGuidUnderModification()
{
    const auto model = modelOf("a");
    model->modifyFrame({{"guid", 50000000}}, 0);
    QCOMPARE(model->guidAt(0), 10000000);
}

void tst_FrameEditing::logsAModificationOfAMissingRow()
{
    const auto model = modelOf("a");
    LogLines log;
    model->modifyFrame({{"capFull", "x"}}, 1);
    QCOMPARE(log.take(), QStringList{"Tried to modify frame #1, but there is no such frame index"});
    QCOMPARE(model->undoCount(), 0);
}

void tst_FrameEditing::logsTheValuesOfARowThatWentWhileBeingModified()
{
    const auto model = modelOf("a");
    connect(model.get(), &QAbstractItemModel::dataChanged, model.get(), [&model] {
        if (model->framesCount() > 0)
            model->clear();
    });
    LogLines log;
    model->modifyFrame({{"capFull", "x"}, {"hidden", true}}, 0);
    QCOMPARE(log.take(), QStringList{"Tried to modify frame #0, but there is no such farme index"});
}

void tst_FrameEditing::refreshesTheCurrentStringsWhenTheCurrentFrameIsModified()
{
    const auto model = modelOf("abc");
    model->setCurrentIndex(1);
    model->modifyFrame({{"capFull", "x"}}, 0);
    QCOMPARE(model->currentCaptured(), QString("b"));
    model->modifyFrame({{"capFull", "y"}}, 1);
    QCOMPARE(model->currentCaptured(), QString("y"));
}

void tst_FrameEditing::writesNoRecordWhileNotLoaded()
{
    TestModel model(2, false);
    model.modifyFrame({{"capFull", "x"}}, 0);
    model.appendFrame({});
    QCOMPARE(model.undoCount(), 0);
    QCOMPARE(model.names(), QStringList({"x", "c1", ""}));
}

void tst_FrameEditing::overwritesTheRowsBehindForAShotThatReplaces()
{
    const auto model = modelOf("abcd");
    model->setShootMultipleFrames(2);
    model->modifyFrame({{"capFull", "S"}}, 1, false, true);
    QCOMPARE(lettersOf(*model), QString("aSSS"));
}

void tst_FrameEditing::movesBehindTheRow_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QString>("after");
    QTest::newRow("up") << 4 << 1 << "abecd";
    QTest::newRow("to the top") << 3 << -1 << "dabce";
    QTest::newRow("down") << 1 << 3 << "acdbe";
    QTest::newRow("to the end") << 0 << 4 << "bcdea";
    QTest::newRow("neighbour up") << 2 << 0 << "acbde";
    QTest::newRow("neighbour down") << 2 << 3 << "abdce";
    QTest::newRow("behind the one before it") << 2 << 1 << "abcde";
    QTest::newRow("behind itself") << 2 << 2 << "abcde";
}

void tst_FrameEditing::movesBehindTheRow()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QString, after);
    const auto model = modelOf("abcde");
    QSignalSpy timeline(model.get(), &FramesModel::timelineChanged);
    model->moveSingleFrame(from, to, true);
    QCOMPARE(lettersOf(*model), after);
    QCOMPARE(model->currentIndex(), 4);
    QCOMPARE(model->lastAccessedIndex(), to < from ? to + 1 : to);
    const bool moved = after != "abcde";
    QCOMPARE(model->undoCount(), moved ? 1 : 0);
    QCOMPARE(timeline.count(), moved ? 1 : 0);
    if (moved)
        QCOMPARE(timeline.first().first().toInt(), int(Zum::ActMoveFrames));
}

void tst_FrameEditing::tellsTheViewsTheRowOfAMove()
{
    const auto model = modelOf("abcde");
    QSignalSpy moved(model.get(), &QAbstractItemModel::rowsMoved);
    model->moveSingleFrame(0, 3);
    model->moveSingleFrame(4, 0);
    QCOMPARE(moved.count(), 2);
    QCOMPARE(moved.at(0).at(4).toInt(), 3);
    QCOMPARE(moved.at(1).at(4).toInt(), 1);
}

void tst_FrameEditing::swapsNeighboursWithoutAMove()
{
    const auto model = modelOf("abcde");
    SignalOrder order;
    order.watch(model.get(), &QAbstractItemModel::rowsMoved, "moved");
    order.watch(model.get(), &QAbstractItemModel::dataChanged, "data");
    order.watch(model.get(), &QAbstractItemModel::layoutChanged, "layout");
    model->moveSingleFrame(1, 2);
    QCOMPARE(order.take(), QStringList({"data", "layout"}));
}

void tst_FrameEditing::keepsPersistentRowsRightWhenMoving()
{
    for (const auto &[from, to] : {std::pair{0, 3}, {4, 0}, {1, 2}, {2, 0}, {0, 4}}) {
        const auto model = modelOf("abcde");
        QHash<QString, QPersistentModelIndex> held;
        for (int row = 0; row < 5; ++row)
            held.insert(model->frameAt(row).capFull, model->index(row));
        model->moveSingleFrame(from, to);
        for (auto entry = held.cbegin(); entry != held.cend(); ++entry)
            QCOMPARE(model->frameAt(entry->row()).capFull, entry.key());
    }
}

void tst_FrameEditing::ignoresAMoveOutsideTheList()
{
    const auto model = modelOf("abc");
    LogLines log;
    model->moveSingleFrame(3, 0, true);
    model->moveSingleFrame(-1, 2, true);
    model->moveSingleFrame(0, 3, true);
    QCOMPARE(model->lastAccessedIndex(), 3);
    QCOMPARE(lettersOf(*model), QString("abc"));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(model->undoCount(), 0);
}

void tst_FrameEditing::showsTheFrameThatMovedToTheCurrentRow()
{
    const auto model = modelOf("abcde");
    model->setCurrentIndex(2);
    model->moveSingleFrame(0, 4, true);
    QCOMPARE(model->currentIndex(), 2);
    QCOMPARE(model->currentCaptured(), QString("d"));
}

void tst_FrameEditing::removesTheCurrentFrame()
{
    const auto model = modelOf("abc");
    model->setCurrentIndex(1);
    QSignalSpy dirty(model.get(), &FramesModel::changed);
    QVERIFY(model->removeSingleFrame(-1, true, true));
    QCOMPARE(lettersOf(*model), QString("ac"));
    QCOMPARE(model->currentCaptured(), QString("c"));
    QCOMPARE(dirty.count(), 1);
}

void tst_FrameEditing::removesTheNewestOfTheSelection()
{
    const auto model = modelOf("abcde");
    model->switchSelectionOnSingleFrame(3);
    model->switchSelectionOnSingleFrame(1);
    QVERIFY(model->removeSingleFrame());
    QCOMPARE(lettersOf(*model), QString("acde"));
    // The list still begins with the frame that has gone.
    QVERIFY(model->removeSingleFrame());
    QCOMPARE(lettersOf(*model), QString("acde"));
}

void tst_FrameEditing::leavesTheLastAccessedRowInTheList()
{
    const auto model = modelOf("abc");
    model->removeSingleFrame(0);
    QCOMPARE(model->lastAccessedIndex(), 1);
    model->removeSingleFrame(1);
    QCOMPARE(model->lastAccessedIndex(), 0);
    model->removeSingleFrame(0);
    QCOMPARE(model->lastAccessedIndex(), -1);
}

void tst_FrameEditing::disarmsTheDeletionAfterADirectRemoval()
{
    const auto model = modelOf("abc");
    model->setDeletionConfirmed(true);
    QVERIFY(model->goingToDeleteCurrentFrame());
    model->removeSingleFrame(-1, true, false);
    QVERIFY(model->deletionConfirmed());
    QVERIFY(!model->goingToDeleteCurrentFrame());
    model->removeSingleFrame(-1, true, true);
    QVERIFY(!model->deletionConfirmed());
}

void tst_FrameEditing::armsTheDeletionForTheCurrentFrameOrTheSelection()
{
    const auto model = modelOf("abc");
    QSignalSpy armed(model.get(), &FramesModel::deletionConfirmedChanged);
    model->setDeletionConfirmed(true);
    model->setDeletionConfirmed(true);
    QCOMPARE(armed.count(), 1);
    QVERIFY(model->goingToDeleteCurrentFrame());
    model->setDeletionConfirmed(false);
    QVERIFY(!model->goingToDeleteCurrentFrame());
    model->switchSelectionOnSingleFrame(1);
    model->setDeletionConfirmed(true);
    QVERIFY(!model->goingToDeleteCurrentFrame());
}

void tst_FrameEditing::duplicatesInAppendMode()
{
    const auto model = modelOf("abcd");
    QSignalSpy timeline(model.get(), &FramesModel::timelineChanged);
    model->duplicateSingleFrame(1, Zum::CaptureModeAppend, 2, true, 3);
    QCOMPARE(lettersOf(*model), QString("abcbbbd"));
    // Each copy lands right behind the row: the last one made stands first.
    QCOMPARE(model->guidsInOrder().mid(3, 3), QList<int>({10000006, 10000005, 10000004}));
    QCOMPARE(timeline.count(), 1);
    QCOMPARE(timeline.first().first().toInt(), int(Zum::ActDuplicateFrames));
    model->setDuplicateQuantity(2);
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend);
    QCOMPARE(lettersOf(*model), QString("aaabcbbbd"));
}

void tst_FrameEditing::duplicatesInReplaceMode()
{
    const auto model = modelOf("abcd");
    model->duplicateSingleFrame(0, Zum::CaptureModeReplace, 1, false, 2);
    QCOMPARE(lettersOf(*model), QString("abaa"));
    QCOMPARE(model->undoCount(), 2);
    QCOMPARE(model->guidAt(2), 10000002);
}

void tst_FrameEditing::copiesNeitherPhaseNorSelectionNorHold()
{
    const auto model = modelOf("ab");
    model->modifyFrame({{"phase", 4}, {"static", 2}, {"ingroup", true}, {"mirrored", true}}, 0);
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend, -1, false, 1);
    const Frame &copy = model->frameAt(1);
    QCOMPARE(copy.phase, 0);
    QCOMPARE(copy.staticState, -1);
    QVERIFY(!copy.ingroup && copy.mirrored);
}

void tst_FrameEditing::duplicatesBehindTheSourceForABadRow()
{
    const auto model = modelOf("abc");
    model->duplicateSingleFrame(1, Zum::CaptureModeAppend, 77, false, 1);
    QCOMPARE(lettersOf(*model), QString("abbc"));
}

void tst_FrameEditing::duplicatesNothingInAnyOtherMode()
{
    const auto model = modelOf("abc");
    model->duplicateSingleFrame(1, Zum::CaptureModeNone, 1, false, 2);
    model->duplicateSingleFrame(1, Zum::CaptureModeAppend, 1, false, 0);
    QCOMPARE(lettersOf(*model), QString("abc"));
}

void tst_FrameEditing::tellsViewsOfDuplicatesByLayout()
{
    const auto model = modelOf("abc");
    QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
    QSignalSpy layout(model.get(), &QAbstractItemModel::layoutChanged);
    const QPersistentModelIndex third = model->index(2);
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend, 0, true, 3);
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(layout.count(), 1);
    QCOMPARE(third.row(), 5);
}

void tst_FrameEditing::logsABadSourceOfADuplicate()
{
    const auto model = modelOf("abc");
    LogLines log;
    model->duplicateSingleFrame(3, Zum::CaptureModeAppend, 7);
    QCOMPARE(log.take(), QStringList{"duplicateSingleFrame: bad 'from' index 3 or bad 'to' index 7"});
}

void tst_FrameEditing::switchesMirroring()
{
    const auto model = modelOf("abc");
    QSignalSpy timeline(model.get(), &FramesModel::timelineChanged);
    model->switchMirroredOnSingleFrame(2);
    QVERIFY(model->frameAt(2).mirrored);
    QVERIFY(model->currentMirrored());
    QCOMPARE(timeline.takeFirst().first().toInt(), int(Zum::ActSetMirrored));
    model->switchMirroredOnSingleFrame(2, false);
    QVERIFY(!model->currentMirrored());
    QCOMPARE(timeline.count(), 0);
    model->switchMirroredOnSingleFrame(9);
    QCOMPARE(model->undoCount(), 2);
    model->undo();
    QVERIFY(model->frameAt(2).mirrored);
}

void tst_FrameEditing::hidesWithoutAnUndoRecord()
{
    const auto model = modelOf("abc");
    QSignalSpy timeline(model.get(), &FramesModel::timelineChanged);
    model->hideCurrentFrame();
    QVERIFY(model->frameAt(2).hidden);
    QCOMPARE(model->lastAccessedIndex(), 2);
    QCOMPARE(timeline.takeFirst().first().toInt(), int(Zum::ActHideFrames));
    QCOMPARE(model->undoCount(), 0);
    model->hideCurrentFrame();
    QVERIFY(!model->frameAt(2).hidden);
}

void tst_FrameEditing::cleansUpTheCurrentFrame()
{
    const auto model = modelOf("abc");
    model->modifyFrame({{"refFull", "r"}, {"refTumb", "rt"}}, 2);
    QSignalSpy dirty(model.get(), &FramesModel::changed);
    model->cleanupCurrentFrame();
    const Frame &frame = model->frameAt(2);
    QVERIFY(frame.capFull.isEmpty() && frame.capTumb.isEmpty());
    QVERIFY(frame.refFull.isEmpty() && frame.refTumb.isEmpty());
    QVERIFY(!frame.gotCapImg && !frame.gotRefImg && frame.capfullmiss && frame.reffullmiss);
    QCOMPARE(model->currentCaptured(), QString());
    QCOMPARE(dirty.count(), 1);
    model->undo();
    QCOMPARE(model->frameAt(2).capFull, QString("c"));
    QCOMPARE(model->frameAt(2).refTumb, QString("rt"));
}

void tst_FrameEditing::refusesDuringAnAction()
{
    const auto model = modelOf("abcd");
    model->modifyFrame({{"phase", 1}}, 0);
    model->searchStaticness(0, 0);
    QVERIFY(model->threading());
    LogLines log;
    model->undo();
    model->redo();
    model->moveSingleFrame(0, 2, true);
    QVERIFY(!model->removeSingleFrame(0, true, true));
    model->duplicateSingleFrame(0, Zum::CaptureModeAppend, 0, true);
    model->switchMirroredOnSingleFrame(0);
    QCOMPARE(log.take(), QStringList({"Unable to perform Undo action - model is being used by the Thread",
                                      "Unable to perform Undo action - model is being used by the Thread",
                                      "duplicateSingleFrame: cannot run. Current action=14"}));
    QCOMPARE(lettersOf(*model), QString("abcd"));
    QCOMPARE(model->lastAccessedIndex(), 2);
    QVERIFY(!model->frameAt(0).mirrored);
    QCOMPARE(model->undoCurrent(), 0);
    QVERIFY(model->settle());
}

QTEST_GUILESS_MAIN(tst_FrameEditing)
#include "tst_frameediting.moc"
