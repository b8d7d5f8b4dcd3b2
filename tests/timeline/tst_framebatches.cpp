#include "timeline/ModelSupport.h"

class tst_FrameBatches : public QObject
{
    Q_OBJECT

private slots:
    void doesNothingUnderTheEntryRule_data();
    void doesNothingUnderTheEntryRule();

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

    void keepsTheModelForALoneCheckOfMissingFiles();
    void dropsAPendingAction();
    void dropsAPendingDuplication();

    void logsARefusedStart();
    void logsAnActionUnknownToTheSelection();
    void logsAStartWithoutFrames();
    void doesNothingForNoFrames();
};

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

QTEST_GUILESS_MAIN(tst_FrameBatches)
#include "tst_framebatches.moc"
