#include "timeline/ModelSupport.h"

#include "timeline/CurrentImageNames.h"

class tst_CurrentFrame : public QObject
{
    Q_OBJECT

private slots:
    void takesACurrentIndexOnlyOfALoadedRow();
    void ignoresABadPointedGuid();
    void refreshesTheCurrentStringsInOrder();
    void sharesTheCurrentNamesWithTheCaptureSide();
    void showsNoImageWithoutFrames();
    void leavesTheCurrentRowWhereItIsWhenAFrameComesBeforeIt();
    void makesTheLastRowCurrentWhenLoaded();
    void emitsAllThreeWhenItChecksTheRange();
    void repairsTheRangeAfterEachRowChange();
};

void tst_CurrentFrame::takesACurrentIndexOnlyOfALoadedRow()
{
    TestModel model(3);
    model.setCurrentIndex(1);
    QCOMPARE(model.currentIndex(), 1);
    QCOMPARE(model.pointedGuid(), 10000001);
    QSignalSpy moved(&model, &FramesModel::currentIndexChanged);
    LogLines log;
    model.setCurrentIndex(3);
    model.setCurrentIndex(-1);
    model.setLoaded(false);
    model.setCurrentIndex(2);
    QCOMPARE(model.currentIndex(), 1);
    QCOMPARE(moved.count(), 0);
    QCOMPARE(log.take(), QStringList());
}

void tst_CurrentFrame::ignoresABadPointedGuid()
{
    TestModel model(3);
    QSignalSpy pointed(&model, &FramesModel::currentGuidChanged);
    LogLines log;
    model.setPointedGuid(-1);
    QCOMPARE(log.take(), QStringList{"setPointedGuid: bad guid -1"});
    QCOMPARE(model.pointedGuid(), 10000002);
    model.setPointedGuid(77777777);
    model.setPointedGuid(77777777);
    QCOMPARE(model.pointedGuid(), 77777777);
    QCOMPARE(pointed.count(), 1);
}

void tst_CurrentFrame::refreshesTheCurrentStringsInOrder()
{
    TestModel model;
    model.appendFrame(
        {{"capFull", "cf"}, {"capTumb", "ct"}, {"refFull", "rf"}, {"refTumb", "rt"}, {"mirrored", true}});
    SignalOrder order;
    order.watch(&model, &FramesModel::aboutToGoToNetFrame, "about");
    order.watch(&model, &FramesModel::currentCapturedThumbChanged, model.currentCapturedThumb());
    order.watch(&model, &FramesModel::currentReferenceThumbChanged, model.currentReferenceThumb());
    order.watch(&model, &FramesModel::hasCapturedChanged, "hasCaptured");
    order.watch(&model, &FramesModel::currentCapturedChanged, model.currentCaptured());
    order.watch(&model, &FramesModel::hasReferenceChanged, "hasReference");
    order.watch(&model, &FramesModel::currentReferenceChanged, model.currentReference());
    order.watch(&model, &FramesModel::currentMirroredChanged, "mirrored");
    model.setCurrentImages();
    QCOMPARE(order.take(),
             QStringList({"about", "ct", "rt", "hasCaptured", "cf", "hasReference", "rf", "mirrored"}));
    QVERIFY(model.hasCaptured() && model.hasReference() && model.currentMirrored());
    model.setLoaded(false);
    order.take();
    model.setCurrentImages();
    QCOMPARE(order.take(), QStringList());
}

void tst_CurrentFrame::sharesTheCurrentNamesWithTheCaptureSide()
{
    TestModel model(3);
    model.setCurrentIndex(1);
    QCOMPARE(CurrentImageNames::captured(), QString("c1"));
    QCOMPARE(CurrentImageNames::reference(), QString());
    model.setData(model.index(1), "r1", Zum::RefFull);
    model.setCurrentIndex(1);
    QCOMPARE(CurrentImageNames::reference(), QString("r1"));
}

void tst_CurrentFrame::showsNoImageWithoutFrames()
{
    TestModel model(1);
    QCOMPARE(model.currentCaptured(), QString("c0"));
    model.removeSingleFrame(0);
    QCOMPARE(model.currentCaptured(), QString());
    QVERIFY(!model.hasCaptured());
    QCOMPARE(CurrentImageNames::captured(), QString());
}

void tst_CurrentFrame::leavesTheCurrentRowWhereItIsWhenAFrameComesBeforeIt()
{
    TestModel model(3);
    model.setCurrentIndex(1);
    QCOMPARE(model.currentCaptured(), QString("c1"));
    model.appendFrame({{"capFull", "new"}}, false, 0);
    QCOMPARE(model.currentIndex(), 1);
    QCOMPARE(model.currentCaptured(), QString("new"));
}

void tst_CurrentFrame::makesTheLastRowCurrentWhenLoaded()
{
    TestModel model(4, false);
    QCOMPARE(model.undoCount(), 0);
    QCOMPARE(model.currentCaptured(), QString());
    SignalOrder order;
    order.watch(&model, &FramesModel::currentIndexChanged, "current");
    order.watch(&model, &FramesModel::loadedChanged, "loaded");
    model.setLoaded(true);
    QCOMPARE(model.currentIndex(), 3);
    QCOMPARE(model.pointedGuid(), 10000003);
    QCOMPARE(model.currentCaptured(), QString("c3"));
    QCOMPARE(order.take().first(), QString("current"));
    model.setLoaded(false);
    QCOMPARE(order.take(), QStringList{"loaded"});
}

void tst_CurrentFrame::emitsAllThreeWhenItChecksTheRange()
{
    TestModel model(3);
    SignalOrder order;
    order.watch(&model, &FramesModel::currentIndexChanged, "current");
    order.watch(&model, &FramesModel::timelineRangeStartChanged, "start");
    order.watch(&model, &FramesModel::timelineRangeEndChanged, "end");
    QSignalSpy dirty(&model, &FramesModel::changed);
    model.calculateRange({}, 0, 0);
    QCOMPARE(order.take(), QStringList({"current", "start", "end"}));
    QCOMPARE(dirty.count(), 0);
    model.setLoaded(false);
    order.take();
    model.calculateRange({}, 0, 0);
    QCOMPARE(order.take(), QStringList());
}

void tst_CurrentFrame::repairsTheRangeAfterEachRowChange()
{
    TestModel model(10);
    model.setTimelineRangeStart(8);
    model.setTimelineRangeEnd(9);
    for (int i = 0; i < 5; ++i)
        model.removeSingleFrame(model.last());
    QCOMPARE(model.timelineRangeStart(), 0);
    QCOMPARE(model.timelineRangeEnd(), 4);
    QCOMPARE(model.currentIndex(), 4);
    model.setTimelineRangeStart(3);
    model.setTimelineRangeEnd(1);
    model.appendFrame({});
    QCOMPARE(model.timelineRangeStart(), 1);
    QCOMPARE(model.timelineRangeEnd(), 1);
}

QTEST_GUILESS_MAIN(tst_CurrentFrame)
#include "tst_currentframe.moc"
