#include "timeline/ModelSupport.h"

class tst_SelectionState : public QObject
{
    Q_OBJECT

private slots:
    void selectsTheNewestFirst();
    void deselectsASelectedFrame();
    void logsAFrameThatIsSelectedTwice();
    void switchesARangeEitherWay();
    void deselectsWhatWasSelectedWhenSelectingAll();
    void forgetsSelectedFramesThatWentWhenSelectingAll();
    void knowsWhenAllAreSelected();
    void makesTheTopmostSelectedRowCurrent();
    void pastesACopyOnce();
    void refusesToCopyOrPasteWhileBusy();
    void forgetsACopyThatHasGone();
    void dismissesAtOnce();
    void dismissesTheListOnlyWhileUnready();
    void disarmsTheDeletionWhenDismissed();
};

void tst_SelectionState::selectsTheNewestFirst()
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

void tst_SelectionState::deselectsASelectedFrame()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(3);
    model.switchSelectionOnSingleFrame(3);
    QCOMPARE(model.selectedCount(), 0);
    QVERIFY(!model.frameAt(3).ingroup);
}

void tst_SelectionState::logsAFrameThatIsSelectedTwice()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(3, true);
    LogLines log;
    model.switchSelectionOnSingleFrame(3, true);
    QCOMPARE(log.take(), QStringList{"Dublicate 10000003. Removed dublicate guids 1"});
    QCOMPARE(model.selectedCount(), 1);
    QVERIFY(model.frameAt(3).ingroup);
}

void tst_SelectionState::switchesARangeEitherWay()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(2);
    model.addRangeToGroup(3, 1);
    QCOMPARE(model.selectedGuids(), QList<int>({10000003, 10000001}));
    model.addRangeToGroup(0, 5);
    model.addRangeToGroup(-1, 2);
    QCOMPARE(model.selectedCount(), 2);
}

void tst_SelectionState::deselectsWhatWasSelectedWhenSelectingAll()
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

void tst_SelectionState::forgetsSelectedFramesThatWentWhenSelectingAll()
{
    TestModel model(5);
    model.switchSelectionOnSingleFrame(1);
    model.removeSingleFrame(1);
    QCOMPARE(model.selectedCount(), 1);
    model.selectAll();
    QCOMPARE(model.selectedCount(), 4);
    QVERIFY(model.allSelected());
}

void tst_SelectionState::knowsWhenAllAreSelected()
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

void tst_SelectionState::makesTheTopmostSelectedRowCurrent()
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

void tst_SelectionState::pastesACopyOnce()
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

void tst_SelectionState::refusesToCopyOrPasteWhileBusy()
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

void tst_SelectionState::forgetsACopyThatHasGone()
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

void tst_SelectionState::dismissesAtOnce()
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

void tst_SelectionState::dismissesTheListOnlyWhileUnready()
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

void tst_SelectionState::disarmsTheDeletionWhenDismissed()
{
    TestModel model(4);
    model.setDeletionConfirmed(true);
    model.dismiss();
    QVERIFY(!model.deletionConfirmed());
    QVERIFY(!model.goingToDeleteCurrentFrame());
}

QTEST_GUILESS_MAIN(tst_SelectionState)
#include "tst_selectionstate.moc"
