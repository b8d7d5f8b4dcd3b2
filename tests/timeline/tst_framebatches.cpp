#include "timeline/ModelSupport.h"

#include <QFile>
#include <QTemporaryDir>

class tst_FrameBatches : public QObject
{
    Q_OBJECT

private slots:
    void selectsTheNewestFirst();
    void deselectsASelectedFrame();
    void logsAFrameThatIsSelectedTwice();
    void switchesARangeEitherWay();
    void deselectsWhatWasSelectedWhenSelectingAll();
    void knowsWhenAllAreSelected();
    void doesNothingUnderTheEntryRule_data();
    void doesNothingUnderTheEntryRule();
    void makesTheTopmostSelectedRowCurrent();

    void labelsEachChain_data();
    void labelsEachChain();
    void deletesTheSelectionAStepAtATime();
    void deletesTheCurrentFrameWithNothingSelected();
    void repairsTheCurrentIndexWhenAllFramesAreDeleted();
    void keepsTheSelectionWhenADeleteIsStopped();
    void deletesWhatWasSelectedWhenDismissedMeanwhile();
    void movesTheSelectionBehindThePointedFrame();
    void leavesTheFramesWhereNothingIsPointedAt();
    void duplicatesTheSelectionBehindThePointedFrame();
    void duplicatesTheSelectionInPlaceUnderAReset();
    void labelsActionsThatAreNoChain_data();
    void labelsActionsThatAreNoChain();

    void clearsTheSelectedFrames_data();
    void clearsTheSelectedFrames();
    void switchesTheMirroringOfEachFrame();
    void hidesTheSelectedFramesAndDismisses();
    void passesOverASelectedFrameThatHasGone();
    void dismissesAtOnce();
    void dismissesTheListOnlyWhileUnready();
    void disarmsTheDeletionWhenDismissed();

    void marksHoldsAndDismisses();
    void marksOnlyTheRange();
    void marksMissingFiles();
    void staysSilentWhereNothingChanged();
    void scansAgainWhatAShotChangedMeanwhile();
    void keepsTheModelForALoneCheckOfMissingFiles();
    void dropsAPendingAction();
    void dropsAPendingDuplication();

    void logsARefusedStart();
    void logsAnActionUnknownToTheSelection();
    void logsAStartWithoutFrames();
    void doesNothingForNoFrames();

    void pastesACopyOnce();
    void refusesToCopyOrPasteWhileBusy();
    void forgetsACopyThatHasGone();
};

void tst_FrameBatches::selectsTheNewestFirst()
{
    TestModel model(5);
    QSignalSpy counted(&model, &FramesModel::selectedCountChanged);
    model.switchSelectionOnSingleFrame(3);
    model.switchSelectionOnSingleFrame(0);
    QCOMPARE(model.selectedGuids(), QList<int>({10000000, 10000003}));
    QVERIFY(model.frameAt(0).ingroup && model.frameAt(3).ingroup);
    QCOMPARE(model.selectedCount(), 2);
    QCOMPARE(counted.count(), 2);
    QCOMPARE(model.lastAccessedIndex(), 0);
    model.switchSelectionOnSingleFrame(9);
    QCOMPARE(counted.count(), 2);
}

void tst_FrameBatches::deselectsASelectedFrame()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(3);
    model.switchSelectionOnSingleFrame(3);
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.frameAt(3).ingroup);
}

void tst_FrameBatches::logsAFrameThatIsSelectedTwice()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(3, true);
    LogLines log;
    model.switchSelectionOnSingleFrame(3, true);
    QCOMPARE(log.take(), QStringList{"Dublicate 10000003. Removed dublicate guids 1"});
    QCOMPARE(model.selectedCount(), 1);
    QVERIFY(model.frameAt(3).ingroup);
}

void tst_FrameBatches::switchesARangeEitherWay()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(2);
    model.addRangeToGroup(3, 1);
    QCOMPARE(model.selectedGuids(), QList<int>({10000003, 10000001}));
    model.addRangeToGroup(0, 5);
    model.addRangeToGroup(-1, 2);
    QCOMPARE(model.selectedCount(), 2);
}

void tst_FrameBatches::deselectsWhatWasSelectedWhenSelectingAll()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(1);
    model.switchSelectionOnSingleFrame(3);
    model.selectAll();
    QCOMPARE(model.selectedGuids(), QList<int>({10000004, 10000002, 10000000}));
    QVERIFY(!model.frameAt(1).ingroup && !model.frameAt(3).ingroup);
    QVERIFY(model.frameAt(0).ingroup);
    QVERIFY(!model.allSelected());
}

void tst_FrameBatches::knowsWhenAllAreSelected()
{
    TestModel model(3);
    QSignalSpy all(&model, &FramesModel::allSelectedChanged);
    model.selectAll();
    QVERIFY(model.allSelected());
    model.switchSelectionOnSingleFrame(1);
    QVERIFY(!model.allSelected());
    model.switchSelectionOnSingleFrame(1);
    QVERIFY(model.allSelected());
    QCOMPARE(all.count(), 3);
}

void tst_FrameBatches::doesNothingUnderTheEntryRule_data()
{
    QTest::addColumn<QString>("reason");
    for (const char *reason : {"busy", "playing", "not loaded", "no frames"})
        QTest::newRow(reason) << QString::fromLatin1(reason);
}

void tst_FrameBatches::doesNothingUnderTheEntryRule()
{
    QFETCH(QString, reason);
    TestModel model(reason == "no frames" ? 0 : 4);
    if (reason == "busy") {
        model.searchStaticness(0, 0);
    } else if (reason == "playing") {
        model.setTimelineRangeEnd(3);
        model.play();
        QVERIFY(model.settle());
        QVERIFY(model.playing());
    } else if (reason == "not loaded") {
        model.setLoaded(false);
    }
    const int action = model.currentAction();
    const QStringList names = model.names();
    LogLines log;
    model.switchSelectionOnSingleFrame(0);
    model.addRangeToGroup(0, 2);
    model.selectAll();
    model.firstIndexInSelected();
    model.searchStaticness(0, 0);
    model.checkImagesMissing(0, 0);
    model.cleanSelectedCapFrames();
    model.cleanSelectedRefFrames();
    model.cleanSelectedFrames();
    model.duplicateSelected();
    model.setSelectedMirrored();
    model.setSelectedVisibility();
    model.actionOnSelectedFrames(Zum::ActDelete);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(model.selectedCount(), 0);
    QCOMPARE(model.currentAction(), action);
    QVERIFY(model.settle());
    QCOMPARE(model.names(), names);
}

void tst_FrameBatches::makesTheTopmostSelectedRowCurrent()
{
    TestModel model(5);
    model.setCurrentIndex(0);
    model.firstIndexInSelected();
    QCOMPARE(model.currentIndex(), 4);
    model.switchSelectionOnSingleFrame(3);
    model.switchSelectionOnSingleFrame(1);
    model.switchSelectionOnSingleFrame(2);
    model.firstIndexInSelected();
    QCOMPARE(model.currentIndex(), 1);
}

void tst_FrameBatches::labelsEachChain_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("label");
    QTest::newRow("delete") << int(Zum::ActDelete) << "Delete";
    QTest::newRow("move") << int(Zum::ActMoveFrames) << "Move";
    QTest::newRow("duplicate") << int(Zum::ActDuplicateFrames) << "Duplicate";
    QTest::newRow("both") << int(Zum::ActDuplicateAndMoveFrames) << "Duplicate and move";
}

void tst_FrameBatches::labelsEachChain()
{
    QFETCH(int, action);
    QFETCH(QString, label);
    TestModel model(5);
    model.addRangeToGroup(1, 3);
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    QSignalSpy progress(&model, &FramesModel::progressCurrentChanged);
    model.actionOnSelectedFrames(action);
    QCOMPARE(model.currentAction(), action);
    QVERIFY(model.threading());
    QCOMPARE(model.progressAction(), label);
    QCOMPARE(model.progressTotal(), 3);
    QVERIFY(model.settle());
    QCOMPARE(model.progressAction(), QString());
    QCOMPARE(model.progressTotal(), 0);
    QVERIFY(!model.threading());
    QCOMPARE(timeline.count(), 1);
    QCOMPARE(timeline.first().first().toInt(), action);
    QCOMPARE(progress.at(0).first().toInt(), 1);
    QCOMPARE(progress.at(1).first().toInt(), 2);
}

void tst_FrameBatches::deletesTheSelectionAStepAtATime()
{
    TestModel model(6);
    model.switchSelectionOnSingleFrame(4);
    model.switchSelectionOnSingleFrame(0);
    model.switchSelectionOnSingleFrame(2);
    model.setDeletionConfirmed(true);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy counted(&model, &FramesModel::countChanged);
    model.actionOnSelectedFrames(Zum::ActDelete);
    QVERIFY(model.settle());
    QCOMPARE(model.names(), QStringList({"c1", "c3", "c5"}));
    QCOMPARE(removed.at(0).at(1).toInt(), 2);
    QCOMPARE(removed.at(1).at(1).toInt(), 0);
    QCOMPARE(removed.at(2).at(1).toInt(), 2);
    QCOMPARE(counted.last().mid(1), QVariantList({0, 0}));
    QCOMPARE(model.undoCount(), 3);
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.deletionConfirmed());
    model.undo();
    QCOMPARE(model.names(), QStringList({"c1", "c3", "c4", "c5"}));
}

void tst_FrameBatches::deletesTheCurrentFrameWithNothingSelected()
{
    TestModel model(4);
    model.setCurrentIndex(1);
    model.actionOnSelectedFrames(Zum::ActDelete);
    QVERIFY(model.settle());
    QCOMPARE(model.names(), QStringList({"c0", "c2", "c3"}));
}

void tst_FrameBatches::repairsTheCurrentIndexWhenAllFramesAreDeleted()
{
    TestModel model(6);
    model.setTimelineRangeStart(2);
    model.setTimelineRangeEnd(5);
    model.selectAll();
    model.actionOnSelectedFrames(Zum::ActDelete);
    QVERIFY(model.settle());
    QCOMPARE(model.framesCount(), 0);
    QCOMPARE(model.currentIndex(), 0);
    QCOMPARE(model.timelineRangeStart(), 0);
    QCOMPARE(model.timelineRangeEnd(), 0);
    for (int i = 0; i < 6; ++i)
        model.undo();
    QCOMPARE(model.framesCount(), 6);
}

void tst_FrameBatches::keepsTheSelectionWhenADeleteIsStopped()
{
    TestModel model(10);
    model.selectAll();
    model.actionOnSelectedFrames(Zum::ActDelete);
    connect(&model, &FramesModel::progressCurrentChanged, &model, [&model](int current) {
        if (current == 3)
            model.stopThreadAction();
    });
    LogLines log;
    QVERIFY(model.settle());
    QCOMPARE(log.take(), QStringList{"We were interrupted but we still have items"});
    QCOMPARE(model.framesCount(), 6);
    QCOMPARE(model.selectedCount(), 10);
    QCOMPARE(model.undoCount(), 4);
}

void tst_FrameBatches::deletesWhatWasSelectedWhenDismissedMeanwhile()
{
    TestModel model(10);
    model.setCurrentIndex(9);
    model.addRangeToGroup(1, 3);
    model.actionOnSelectedFrames(Zum::ActDelete);
    LogLines log;
    model.dismiss();
    QCOMPARE(log.take(), QStringList{"Unready to Dismiss: 1"});
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(model.settle());
    QCOMPARE(model.names(), QStringList({"c0", "c4", "c5", "c6", "c7", "c8", "c9"}));
}

void tst_FrameBatches::movesTheSelectionBehindThePointedFrame()
{
    TestModel model(6);
    model.addRangeToGroup(0, 1);
    model.setCurrentIndex(4);
    model.actionOnSelectedFrames(Zum::ActMoveFrames);
    QVERIFY(model.settle());
    // The newest selected frame goes first, the next one right behind the pointed frame.
    QCOMPARE(model.names(), QStringList({"c2", "c3", "c4", "c0", "c1", "c5"}));
    QCOMPARE(model.undoCount(), 2);
}

void tst_FrameBatches::leavesTheFramesWhereNothingIsPointedAt()
{
    TestModel model(0);
    model.fill(3);
    QCOMPARE(model.pointedGuid(), -1);
    model.switchSelectionOnSingleFrame(0);
    model.actionOnSelectedFrames(Zum::ActMoveFrames);
    LogLines log;
    QVERIFY(model.settle());
    QCOMPARE(log.take(), QStringList{"Have no good m_pointedGuid toIndex will be = fromIndex"});
    QCOMPARE(model.names(), QStringList({"c0", "c1", "c2"}));
}

void tst_FrameBatches::duplicatesTheSelectionBehindThePointedFrame()
{
    TestModel model(5);
    model.addRangeToGroup(0, 1);
    model.setCurrentIndex(3);
    model.actionOnSelectedFrames(Zum::ActDuplicateAndMoveFrames);
    QVERIFY(model.settle());
    QCOMPARE(model.names(), QStringList({"c0", "c1", "c2", "c3", "c0", "c1", "c4"}));
}

void tst_FrameBatches::duplicatesTheSelectionInPlaceUnderAReset()
{
    TestModel model(4);
    model.switchSelectionOnSingleFrame(0);
    model.switchSelectionOnSingleFrame(2);
    model.setDuplicateQuantity(2);
    SignalOrder order;
    order.watch(&model, &FramesModel::disconnectModel, "disconnect");
    order.watch(&model, &QAbstractItemModel::modelAboutToBeReset, "begin");
    order.watch(&model, &QAbstractItemModel::modelReset, "end");
    order.watch(&model, &FramesModel::connectModel, "connect");
    order.watch(&model, &FramesModel::timelineChanged, "timeline");
    model.duplicateSelected();
    QVERIFY(model.settle());
    QCOMPARE(order.take(), QStringList({"disconnect", "begin", "disconnect", "end", "connect", "timeline"}));
    QCOMPARE(model.names(), QStringList({"c0", "c0", "c0", "c1", "c2", "c2", "c2", "c3"}));
    QCOMPARE(model.undoCount(), 4);
}

void tst_FrameBatches::labelsActionsThatAreNoChain_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("label");
    QTest::newRow("none") << int(Zum::ActNoAction) << "";
    QTest::newRow("select") << int(Zum::ActSelect) << "Select";
    QTest::newRow("dismiss") << int(Zum::ActDismiss) << "Dismiss";
    QTest::newRow("holds") << int(Zum::ActSearchStaticness) << "Search for staticness";
    QTest::newRow("playback") << int(Zum::ActSearchHiddenFrames) << "Preparing playback";
    QTest::newRow("mirror") << int(Zum::ActSetMirrored) << "";
}

void tst_FrameBatches::labelsActionsThatAreNoChain()
{
    QFETCH(int, action);
    TestModel model(4);
    model.addRangeToGroup(1, 2);
    model.actionOnSelectedFrames(action);
    QCOMPARE(model.currentAction(), action);
    QTEST(model.progressAction(), "label");
    QVERIFY(model.settle());
    QCOMPARE(model.names(), QStringList({"c0", "c1", "c2", "c3"}));
    QCOMPARE(model.frameAt(1).mirrored, action == Zum::ActSetMirrored);
    QCOMPARE(model.frameAt(1).ingroup,
             action != Zum::ActSelect && action != Zum::ActDismiss && action != Zum::ActSearchStaticness);
}

void tst_FrameBatches::clearsTheSelectedFrames_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("left");
    QTest::newRow("captured") << int(Zum::ActClearCaptured) << ",,rf,rt";
    QTest::newRow("reference") << int(Zum::ActClearReference) << "c1,t1,,";
    QTest::newRow("both") << int(Zum::ActClearFrameContents) << ",,,";
}

void tst_FrameBatches::clearsTheSelectedFrames()
{
    QFETCH(int, action);
    QFETCH(QString, left);
    TestModel model(3);
    model.modifyFrame({{"refFull", "rf"}, {"refTumb", "rt"}}, 1, false);
    model.setCurrentIndex(1);
    model.switchSelectionOnSingleFrame(1);
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    if (action == Zum::ActClearCaptured)
        model.cleanSelectedCapFrames();
    else if (action == Zum::ActClearReference)
        model.cleanSelectedRefFrames();
    else
        model.cleanSelectedFrames();
    QCOMPARE(model.currentAction(), action);
    QVERIFY(model.settle());
    const Frame &frame = model.frameAt(1);
    QCOMPARE(QStringList({frame.capFull, frame.capTumb, frame.refFull, frame.refTumb}).join(','), left);
    QVERIFY(!frame.ingroup);
    QCOMPARE(model.currentCaptured(), frame.capFull);
    QCOMPARE(model.frameAt(0).capFull, QString("c0"));
    QCOMPARE(timeline.first().first().toInt(), action);
    model.undo();
    QCOMPARE(model.frameAt(1).capFull, QString("c1"));
    QCOMPARE(model.frameAt(1).refTumb, QString("rt"));
}

void tst_FrameBatches::switchesTheMirroringOfEachFrame()
{
    TestModel model(3);
    model.switchMirroredOnSingleFrame(0);
    model.addRangeToGroup(0, 1);
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    model.setSelectedMirrored();
    QVERIFY(model.settle());
    QVERIFY(!model.frameAt(0).mirrored);
    QVERIFY(model.frameAt(1).mirrored);
    QVERIFY(!model.frameAt(2).mirrored);
    QCOMPARE(timeline.count(), 1);
    QCOMPARE(timeline.first().first().toInt(), int(Zum::ActSetMirrored));
    QCOMPARE(model.selectedCount(), 2);
}

void tst_FrameBatches::hidesTheSelectedFramesAndDismisses()
{
    TestModel model(3);
    model.addRangeToGroup(0, 1);
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    QSignalSpy dirty(&model, &FramesModel::changed);
    model.setSelectedVisibility();
    QVERIFY(model.settle());
    QVERIFY(model.frameAt(0).hidden && model.frameAt(1).hidden && !model.frameAt(2).hidden);
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.frameAt(0).ingroup);
    QCOMPARE(timeline.count(), 0);
    QCOMPARE(dirty.count(), 1);
    QCOMPARE(model.undoCount(), 0);
}

void tst_FrameBatches::passesOverASelectedFrameThatHasGone()
{
    TestModel model(4);
    model.addRangeToGroup(0, 2);
    model.removeSingleFrame(1);
    model.setSelectedMirrored();
    QVERIFY(model.settle());
    QVERIFY(model.frameAt(0).mirrored && model.frameAt(1).mirrored && !model.frameAt(2).mirrored);
}

void tst_FrameBatches::dismissesAtOnce()
{
    TestModel model(4);
    model.addRangeToGroup(0, 2);
    QSignalSpy actions(&model, &FramesModel::currentActionChanged);
    QSignalSpy data(&model, &QAbstractItemModel::dataChanged);
    model.dismiss();
    QCOMPARE(actions.count(), 2);
    QCOMPARE(data.count(), 1);
    QCOMPARE(model.currentAction(), 0);
    QCOMPARE(model.selectedCount(), 0);
    for (int row = 0; row < 4; ++row)
        QVERIFY(!model.frameAt(row).ingroup);
}

void tst_FrameBatches::dismissesTheListOnlyWhileUnready()
{
    TestModel model(4);
    model.switchSelectionOnSingleFrame(1);
    model.searchStaticness(0, 0);
    LogLines log;
    model.dismiss();
    QCOMPARE(log.take(), QStringList{"Unready to Dismiss: 14"});
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(model.frameAt(1).ingroup);
    QVERIFY(model.settle());
}

void tst_FrameBatches::disarmsTheDeletionWhenDismissed()
{
    TestModel model(4);
    model.setDeletionConfirmed(true);
    model.dismiss();
    QVERIFY(!model.deletionConfirmed());
    QVERIFY(!model.goingToDeleteCurrentFrame());
}

void tst_FrameBatches::marksHoldsAndDismisses()
{
    TestModel model(0);
    for (const char *name : {"a", "a", "a", "b", "", "", "c"})
        model.appendFrame({{"capFull", name}});
    model.switchSelectionOnSingleFrame(1);
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    model.searchStaticness(0, 0);
    QCOMPARE(model.currentAction(), int(Zum::ActSearchStaticness));
    QCOMPARE(model.progressAction(), QString());
    QVERIFY(model.settle());
    QCOMPARE(model.holds(), QList<int>({0, 1, 2, -1, -1, -1, -1}));
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.frameAt(1).ingroup);
    QCOMPARE(timeline.count(), 0);
    model.switchMirroredOnSingleFrame(1);
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QCOMPARE(model.holds(), QList<int>({-1, -1, -1, -1, -1, -1, -1}));
}

void tst_FrameBatches::marksOnlyTheRange()
{
    TestModel model(0);
    for (int i = 0; i < 6; ++i)
        model.appendFrame({{"capFull", "a"}});
    model.searchStaticness(2, 4);
    QVERIFY(model.settle());
    QCOMPARE(model.holds(), QList<int>({-1, -1, 1, 1, 1, -1}));
}

void tst_FrameBatches::marksMissingFiles()
{
    const QTemporaryDir dir;
    QFile file(dir.filePath("c0"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    TestModel model(2);
    model.modifyFrame({{"capfullmiss", true}, {"refFull", "r0"}}, 0, false);
    model.setFolders({{"capFull", dir.path() + '/'}, {"refFull", dir.path() + '/'}});
    LogLines log;
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QCOMPARE(log.take(), QStringList({"Missing Reference: r0", "Missing Captured: c1"}));
    QVERIFY(!model.frameAt(0).capfullmiss && model.frameAt(0).reffullmiss);
    QVERIFY(model.frameAt(1).capfullmiss && model.frameAt(1).reffullmiss);
}

void tst_FrameBatches::staysSilentWhereNothingChanged()
{
    TestModel model(0);
    for (const char *name : {"a", "a", "b"})
        model.appendFrame({{"capFull", name}});
    QSignalSpy data(&model, &QAbstractItemModel::dataChanged);
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QCOMPARE(data.count(), 2);
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QCOMPARE(data.count(), 2);
}

void tst_FrameBatches::scansAgainWhatAShotChangedMeanwhile()
{
    TestModel model(8);
    model.setShootMultipleFrames(0);
    int applied = 0;
    connect(&model, &FramesModel::dataChanged, &model, [&](const QModelIndex &index) {
        if (index.row() == 0 && applied++ == 0)
            model.appendFrame({{"capFull", "c7"}}, true);
    });
    model.modifyFrame({{"static", 2}}, 0, false);
    applied = 0;
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QCOMPARE(model.framesCount(), 9 + 1);
    QCOMPARE(model.holds().mid(7), QList<int>({0, 1, 2}));
}

void tst_FrameBatches::keepsTheModelForALoneCheckOfMissingFiles()
{
    TestModel model(3);
    model.checkImagesMissing(0, 0);
    QCOMPARE(model.currentAction(), int(Zum::ActCheckImageMissing));
    QTest::qWait(5);
    QCOMPARE(model.currentAction(), int(Zum::ActCheckImageMissing));
    model.clearPendingAction();
    QCOMPARE(model.currentAction(), 0);
}

void tst_FrameBatches::dropsAPendingAction()
{
    TestModel model(10);
    model.selectAll();
    model.actionOnSelectedFrames(Zum::ActDelete);
    model.clearPendingAction();
    QCOMPARE(model.currentAction(), 0);
    QTest::qWait(5);
    QCOMPARE(model.framesCount(), 10);
}

void tst_FrameBatches::dropsAPendingDuplication()
{
    TestModel model(10);
    model.selectAll();
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy connected(&model, &FramesModel::connectModel);
    connect(&model, &FramesModel::progressCurrentChanged, &model, [&model](int current) {
        if (current == 3 && model.isResetting())
            model.clearPendingAction();
    });
    model.actionOnSelectedFrames(Zum::ActDuplicateFrames);
    QVERIFY(model.settle());
    QCOMPARE(reset.count(), 1);
    QCOMPARE(model.framesCount(), 13);
    QCOMPARE(connected.count(), 1);
    const int frames = model.framesCount();
    QTest::qWait(5);
    QCOMPARE(model.framesCount(), frames);
}

void tst_FrameBatches::logsARefusedStart()
{
    TestModel model(3);
    model.searchStaticness(0, 0);
    LogLines log;
    QVERIFY(!model.startAction(Zum::ActSetMirrored, FramesModel::SelectedFrames));
    const QStringList lines = log.take();
    QCOMPARE(lines.size(), 1);
    QVERIFY(lines.first().startsWith("One action still running: 14 or thread is busy: "));
    QVERIFY(lines.first().endsWith(". Cannot start action: 12"));
    QVERIFY(model.settle());
}

void tst_FrameBatches::logsAnActionUnknownToTheSelection()
{
    TestModel model(3);
    model.addRangeToGroup(0, 1);
    LogLines log;
    QVERIFY(model.startAction(Zum::ActInsert, FramesModel::SelectedFrames));
    QVERIFY(model.settle());
    const QString line = "iterateFrames/SelectedFrames: Unknown 'actionType' 17";
    QCOMPARE(log.take(), QStringList({line, line}));
    QVERIFY(!model.startAction(Zum::ActSetMirrored, FramesModel::SelectionMode(7)));
    QCOMPARE(log.take(), QStringList{"Unknown 'selOnly' type 7"});
    QCOMPARE(model.currentAction(), 0);
}

void tst_FrameBatches::logsAStartWithoutFrames()
{
    TestModel model;
    LogLines log;
    QVERIFY(!model.startAction(Zum::ActSearchStaticness, FramesModel::RangeOfFrames));
    QCOMPARE(log.take(), QStringList{"No frames"});
}

void tst_FrameBatches::doesNothingForNoFrames()
{
    TestModel model(3);
    QVERIFY(!model.startAction(Zum::ActSetMirrored, FramesModel::NoFrames));
    QCOMPARE(model.currentAction(), 0);
    model.addRangeToGroup(0, 1);
    QVERIFY(model.startAction(Zum::ActSelect, FramesModel::SelectedFrames));
    QVERIFY(model.settle());
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.frameAt(0).ingroup);
}

void tst_FrameBatches::pastesACopyOnce()
{
    TestModel model(5);
    model.setCurrentIndex(2);
    LogLines log;
    model.copyFrame();
    QCOMPARE(log.take(), QStringList{"Copy frame to fuffer: 10000002"});
    model.moveSingleFrame(2, -1);
    QCOMPARE(model.pasteFrame(), 0);
    QCOMPARE(model.pasteFrame(), -1);
    QCOMPARE(log.take(), QStringList{"pasteFrame: Bad guid: -1 or busy or m_frames is empty"});
    QCOMPARE(model.framesCount(), 5);
}

void tst_FrameBatches::refusesToCopyOrPasteWhileBusy()
{
    TestModel model(5);
    model.setCurrentIndex(2);
    model.searchStaticness(0, 0);
    LogLines log;
    model.copyFrame();
    QCOMPARE(model.pasteFrame(), -1);
    QCOMPARE(log.take(), QStringList({"\"copyFrame: Bad guid: 10000002 or busy\"",
                                      "pasteFrame: Bad guid: -1 or busy or m_frames is empty"}));
    QVERIFY(model.settle());
}

void tst_FrameBatches::forgetsACopyThatHasGone()
{
    TestModel model(5);
    model.setCurrentIndex(2);
    model.copyFrame();
    model.removeSingleFrame(2);
    QCOMPARE(model.pasteFrame(), -1);
    LogLines log;
    QCOMPARE(model.pasteFrame(), -1);
    QCOMPARE(log.take().size(), 1);
}

QTEST_GUILESS_MAIN(tst_FrameBatches)
#include "tst_framebatches.moc"
