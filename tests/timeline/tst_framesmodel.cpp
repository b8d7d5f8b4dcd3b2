#include "timeline/ModelSupport.h"

class tst_FramesModel : public QObject
{
    Q_OBJECT

private slots:
    void startsWithItsDefaults();
    void namesItsRoles();
    void givesTheEmptyMapForNoRowAndWhileNotLoaded();
    void tellsWhatStoodBefore();
    void appendsBehindTheRowOrBeforeItForUndo();
    void appendsAtTheEndForAnyOtherRow();
    void givesANewGuidForOneInUseAndCountsEachAppend();
    void keepsAGuidThatIsFree();
    void ignoresTheFlagsOfTheMapThatFollowFromNames();
    void announcesARowOnceWithTheViewsAwareAndOnceItself();
    void letsTheViewsOutOfAnUnannouncedAppend();
    void takesAShotWithItsCopies();
    void takesAShotWhileAnActionRuns();
    void leavesTheRangeAloneWhenAShotMayNotExtendIt();

    void clearsTheImageFlagWithTheName();
    void signalsAWriteOfTheWrongType();
    void refusesToWriteOtherRoles();
    void logsAGuidThatDoesNotFit();
    void setsAValueAndBecomesDirty();
    void refreshesRows();

    void readsFalseForAddingWhileThereAreNoFrames();
    void keepsTheNumberOfCopiesInItsLimits();

    void forgetsSelectionAndUndoWithLoading();
    void clearsAllRowsAtOnce();
    void refusesToClearDuringAnAction();
    void leavesUndoAloneWhenCleared();
};

void tst_FramesModel::startsWithItsDefaults()
{
    const TestModel model(0, false);
    const struct
    {
        const char *name;
        QVariant value;
    } defaults[] = {
        {"startIndex", 0},
        {"currentAction", 0},
        {"currentIndex", 0},
        {"pointedGuid", -1},
        {"currentCapturedThumb", ""},
        {"currentCaptured", ""},
        {"currentReferenceThumb", ""},
        {"currentReference", ""},
        {"currentMirrored", false},
        {"hasCaptured", false},
        {"hasReference", false},
        {"selectedCount", 0},
        {"doubleDecker", false},
        {"allSelected", false},
        {"progressAction", ""},
        {"progressTotal", 0},
        {"progressCurrent", 0},
        {"timelineRangeStart", 0},
        {"timelineRangeEnd", 0},
        {"timelineRangeSize", 0},
        {"timelineFps", 25.0},
        {"actualFps", 0},
        {"duration", 0.0},
        {"interval", 0.0},
        {"playing", false},
        {"playingCaptured", true},
        {"paused", false},
        {"playDirection", 0},
        {"pendulum", false},
        {"framesCount", 0},
        {"flipFlopRunning", false},
        {"loaded", false},
        {"loop", true},
        {"undoCount", 0},
        {"undoCurrent", 0},
        {"deletionConfirmed", false},
        {"duplicateQuantity", 1},
        {"autoMaximizeRange", true},
        {"threading", false},
        {"addInsteadOfReplace", false},
        {"lastAccessedIndex", -1},
        {"goingToDeleteCurrentFrame", false},
        {"shootMultipleFrames", 1},
        {"shotsTaken", 0},
        {"captureMode", Zum::CaptureModeAppend},
        {"copyModeOn", false},
        {"cutModeOn", false},
    };
    const QStringList writable{"startIndex",
                               "currentIndex",
                               "pointedGuid",
                               "doubleDecker",
                               "timelineRangeStart",
                               "timelineRangeEnd",
                               "timelineFps",
                               "playingCaptured",
                               "playDirection",
                               "pendulum",
                               "flipFlopRunning",
                               "loop",
                               "deletionConfirmed",
                               "duplicateQuantity",
                               "autoMaximizeRange",
                               "addInsteadOfReplace",
                               "goingToDeleteCurrentFrame",
                               "shootMultipleFrames",
                               "captureMode",
                               "copyModeOn",
                               "cutModeOn"};
    const QHash<QString, QByteArray> oddNotifiers{
        {"pointedGuid", "currentGuidChanged()"},
        {"addInsteadOfReplace", "addInstaedOfReplaceChanged()"},
        {"framesCount", "countChanged(QModelIndex,int,int)"},
        {"loaded", "loadedChanged(QModelIndex,int,int)"},
        {"progressTotal", "progressTotalChanged(int)"},
        {"progressCurrent", "progressCurrentChanged(int)"},
        {"progressAction", "progressActionChanged(QString)"},
    };
    for (const auto &expected : defaults) {
        QCOMPARE(model.property(expected.name), expected.value);
        const QMetaProperty property =
            model.metaObject()->property(model.metaObject()->indexOfProperty(expected.name));
        const QString name = QString::fromLatin1(expected.name);
        QVERIFY2(property.isWritable() == writable.contains(name), expected.name);
        QCOMPARE(property.notifySignal().methodSignature(),
                 oddNotifiers.value(name, (name + "Changed()").toLatin1()));
    }
}

void tst_FramesModel::namesItsRoles()
{
    const TestModel model;
    QCOMPARE(model.roleNames().value(Zum::StaticState), QByteArray("static"));
    QCOMPARE(model.roleNames().size(), 21);
    QCOMPARE(model.role(Zum::KudaGUID), QString("cudaGuid"));
    QCOMPARE(model.role(Zum::CapTIFF), QString());
    QCOMPARE(model.role(1000), QString());
}

void tst_FramesModel::givesTheEmptyMapForNoRowAndWhileNotLoaded()
{
    TestModel model(2);
    QCOMPARE(model.get(-1).value("guid"), QVariant(-1));
    QVERIFY(!model.get(-1).contains("gotCapImg"));
    QCOMPARE(model.get(2), Frame::emptyMap());
    QCOMPARE(model.get(0).value("guid"), QVariant(10000000));
    model.setLoaded(false);
    QCOMPARE(model.get(0), Frame::emptyMap());
}

void tst_FramesModel::tellsWhatStoodBefore()
{
    TestModel model(3);
    QCOMPARE(model.get(0).value("prevGuid"), QVariant(-1));
    QCOMPARE(model.get(2).value("prevGuid"), QVariant(10000001));
    QVERIFY(!model.get(2).contains("phase"));
    QVERIFY(model.get(2, false).contains("phase"));
    QVERIFY(!model.data(model.index(0), Zum::PrevGUID).isValid());
}

void tst_FramesModel::appendsBehindTheRowOrBeforeItForUndo()
{
    TestModel model(10);
    model.appendFrame({}, false, 5);
    QCOMPARE(model.frameAt(6).capFull, QString());
    QCOMPARE(model.frameAt(5).capFull, QString("c5"));
    TestModel undoing(10);
    undoing.appendFrame({}, false, 5, false);
    QCOMPARE(undoing.frameAt(5).capFull, QString());
    QCOMPARE(undoing.frameAt(6).capFull, QString("c5"));
    QCOMPARE(undoing.lastAccessedIndex(), 5);
}

void tst_FramesModel::appendsAtTheEndForAnyOtherRow()
{
    for (const int row : {-1, -7, 9, 100}) {
        TestModel model(10);
        model.appendFrame({}, false, row);
        QCOMPARE(model.frameAt(10).capFull, QString());
        QCOMPARE(model.lastAccessedIndex(), 10);
    }
    TestModel empty;
    empty.appendFrame({{"capFull", "first"}}, false, 7);
    QCOMPARE(empty.names(), QStringList{"first"});
}

void tst_FramesModel::givesANewGuidForOneInUseAndCountsEachAppend()
{
    TestModel model(3);
    model.appendFrame({{"guid", 10000001}});
    QCOMPARE(model.guidAt(3), 10000003);
    model.appendFrame({{"guid", 50000000}});
    QCOMPARE(model.guidAt(4), 50000000);
    model.appendFrame({});
    QCOMPARE(model.guidAt(5), 10000005);
}

void tst_FramesModel::keepsAGuidThatIsFree()
{
    TestModel model;
    model.appendFrame({{"guid", 99999999}});
    QCOMPARE(model.guidAt(0), 99999999);
    model.appendFrame({{"guid", 9999999}});
    QCOMPARE(model.guidAt(1), 10000001);
    model.appendFrame({{"guid", "20000000"}});
    QCOMPARE(model.guidAt(2), 10000002);
}

void tst_FramesModel::ignoresTheFlagsOfTheMapThatFollowFromNames()
{
    TestModel model;
    model.appendFrame({{"gotCapImg", true},
                       {"capfullmiss", false},
                       {"refFull", "r"},
                       {"reffullmiss", true},
                       {"hidden", true},
                       {"mirrored", true},
                       {"ingroup", true},
                       {"phase", 4},
                       {"static", 2}});
    const Frame &frame = model.frameAt(0);
    QVERIFY(!frame.gotCapImg && frame.capfullmiss);
    QVERIFY(frame.gotRefImg && !frame.reffullmiss);
    QVERIFY(frame.hidden && frame.mirrored && frame.ingroup);
    QCOMPARE(frame.phase, 4);
    QCOMPARE(frame.staticState, 2);
    model.appendFrame({});
    QCOMPARE(model.frameAt(1).staticState, -1);
}

void tst_FramesModel::announcesARowOnceWithTheViewsAwareAndOnceItself()
{
    TestModel model(2);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy counted(&model, &FramesModel::countChanged);
    model.appendFrame({}, false, 0);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(counted.count(), 2);
    QCOMPARE(counted.last().mid(1), QVariantList({1, 1}));
}

void tst_FramesModel::letsTheViewsOutOfAnUnannouncedAppend()
{
    TestModel model(2);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy counted(&model, &FramesModel::countChanged);
    const QPersistentModelIndex second = model.index(1);
    model.appendFrame({}, false, 0, true, true, false);
    QCOMPARE(inserted.count(), 0);
    QCOMPARE(counted.count(), 1);
    QCOMPARE(second.row(), 2);
    QCOMPARE(model.framesCount(), 3);
}

void tst_FramesModel::takesAShotWithItsCopies()
{
    TestModel model(3);
    model.setShootMultipleFrames(2);
    SignalOrder order;
    order.watch(&model, &FramesModel::shotsTakenChanged, "shots");
    order.watch(&model, &FramesModel::timelineChanged, "timeline");
    order.watch(&model, &FramesModel::addedJustCapturedFrame, "added");
    QSignalSpy timeline(&model, &FramesModel::timelineChanged);
    QSignalSpy added(&model, &FramesModel::addedJustCapturedFrame);
    QSignalSpy counted(&model, &FramesModel::countChanged);
    model.appendFrame({{"capFull", "shot"}}, true, -1, true, false);
    QCOMPARE(model.names(), QStringList({"c0", "c1", "c2", "shot", "shot", "shot"}));
    QCOMPARE(model.shotsTaken(), 3);
    QCOMPARE(order.take(), QStringList({"timeline", "shots", "timeline", "added"}));
    QCOMPARE(timeline.at(0).first().toInt(), int(Zum::ActDuplicateFrames));
    QCOMPARE(timeline.at(1).first().toInt(), int(Zum::ActInsert));
    QCOMPARE(added.first().first().toInt(), 5);
    QCOMPARE(counted.last().mid(1), QVariantList({3, 5}));
    QCOMPARE(model.timelineRangeEnd(), 5);
    // The copies can be undone, the shot itself cannot.
    QCOMPARE(model.undoCount(), 2);
}

void tst_FramesModel::takesAShotWhileAnActionRuns()
{
    TestModel model(3);
    model.searchStaticness(0, 0);
    QVERIFY(model.threading());
    model.appendFrame({{"capFull", "c2"}}, true);
    QCOMPARE(model.names(), QStringList({"c0", "c1", "c2", "c2", "c2"}));
    QVERIFY(model.settle());
    QCOMPARE(model.holds(), QList<int>({-1, -1, 0, 1, 2}));
}

void tst_FramesModel::leavesTheRangeAloneWhenAShotMayNotExtendIt()
{
    TestModel model(3);
    model.setTimelineRangeEnd(1);
    model.setAutoMaximizeRange(false);
    model.appendFrame({}, true);
    QCOMPARE(model.timelineRangeEnd(), 1);
}

void tst_FramesModel::clearsTheImageFlagWithTheName()
{
    TestModel model(1);
    QVERIFY(model.setData(model.index(0), "name", Zum::CapFull));
    QVERIFY(model.frameAt(0).gotCapImg && !model.frameAt(0).capfullmiss);
    QVERIFY(model.setData(model.index(0), QString(), Zum::CapFull));
    QVERIFY(!model.frameAt(0).gotCapImg && model.frameAt(0).capfullmiss);
    QVERIFY(model.setData(model.index(0), "name", Zum::RefFull));
    QVERIFY(model.frameAt(0).gotRefImg && !model.frameAt(0).reffullmiss);
}

void tst_FramesModel::signalsAWriteOfTheWrongType()
{
    TestModel model(1);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(model.setData(model.index(0), 5, Zum::CapFull));
    QCOMPARE(model.frameAt(0).capFull, QString("c0"));
    QVERIFY(model.setData(model.index(0), "x", Zum::GUID));
    QVERIFY(model.setData(model.index(0), 5, Zum::GUID));
    QCOMPARE(model.guidAt(0), 10000000);
    QCOMPARE(changed.count(), 3);
}

void tst_FramesModel::refusesToWriteOtherRoles()
{
    TestModel model(1);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(model.index(0), true, Zum::GotCapImage));
    QVERIFY(!model.setData(model.index(0), 1, Zum::PrevGUID));
    QVERIFY(!model.setData(model.index(5), true, Zum::Hidden));
    QCOMPARE(changed.count(), 0);
}

void tst_FramesModel::logsAGuidThatDoesNotFit()
{
    TestModel model(1);
    LogLines log;
    QVERIFY(model.setData(model.index(0), qlonglong(1) << 40, Zum::GUID));
    QCOMPARE(log.take(), QStringList{"setData: Error decoding GUID"});
    QCOMPARE(model.guidAt(0), 10000000);
    QVERIFY(model.setData(model.index(0), 12345678, Zum::GUID));
    QCOMPARE(model.guidAt(0), 12345678);
}

void tst_FramesModel::setsAValueAndBecomesDirty()
{
    TestModel model(1);
    QSignalSpy dirty(&model, &FramesModel::changed);
    model.setValue(0, Zum::PhaseNumber, 3);
    QCOMPARE(model.frameAt(0).phase, 3);
    QCOMPARE(dirty.count(), 1);
    model.setValue(9, Zum::PhaseNumber, 3);
    QCOMPARE(dirty.count(), 1);
}

void tst_FramesModel::refreshesRows()
{
    TestModel model(5);
    SignalOrder order;
    order.watch(&model, &QAbstractItemModel::dataChanged, "data");
    order.watch(&model, &QAbstractItemModel::layoutChanged, "layout");
    QSignalSpy data(&model, &QAbstractItemModel::dataChanged);
    model.refresh(1, 3);
    QCOMPARE(order.take(), QStringList({"data", "layout"}));
    QCOMPARE(data.first().at(0).toModelIndex().row(), 1);
    QCOMPARE(data.first().at(1).toModelIndex().row(), 3);
    model.refresh(1, 5);
    QCOMPARE(order.take(), QStringList());
}

void tst_FramesModel::readsFalseForAddingWhileThereAreNoFrames()
{
    TestModel model;
    QSignalSpy changed(&model, &FramesModel::addInstaedOfReplaceChanged);
    model.setAddInsteadOfReplace(true);
    QVERIFY(!model.addInsteadOfReplace());
    model.appendFrame({});
    QVERIFY(model.addInsteadOfReplace());
    QCOMPARE(changed.count(), 1);
    model.clear();
    QVERIFY(!model.addInsteadOfReplace());
    QCOMPARE(changed.count(), 2);
}

void tst_FramesModel::keepsTheNumberOfCopiesInItsLimits()
{
    TestModel model;
    for (const int quantity : {9, 0, 10, -1})
        model.setDuplicateQuantity(quantity);
    QCOMPARE(model.duplicateQuantity(), 9);
}

void tst_FramesModel::forgetsSelectionAndUndoWithLoading()
{
    TestModel model(4);
    model.switchSelectionOnSingleFrame(1);
    model.removeSingleFrame(3);
    QCOMPARE(model.undoCount(), 1);
    QCOMPARE(model.selectedCount(), 1);
    model.setLoaded(false);
    QCOMPARE(model.undoCount(), 0);
    QCOMPARE(model.selectedCount(), 0);
}

void tst_FramesModel::clearsAllRowsAtOnce()
{
    TestModel model(4);
    model.switchSelectionOnSingleFrame(1);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy dirty(&model, &FramesModel::changed);
    QSignalSpy selected(&model, &FramesModel::selectedCountChanged);
    QSignalSpy all(&model, &FramesModel::allSelectedChanged);
    model.clear();
    QCOMPARE(model.framesCount(), 0);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(dirty.count(), 1);
    QCOMPARE(model.selectedCount(), 0);
    model.clear();
    QCOMPARE(dirty.count(), 1);
    QCOMPARE(selected.count(), 2);
    QCOMPARE(all.count(), 2);
    model.appendFrame({});
    QCOMPARE(model.guidAt(0), 10000000);
}

void tst_FramesModel::refusesToClearDuringAnAction()
{
    TestModel model(4);
    model.searchStaticness(0, 0);
    LogLines log;
    model.clear();
    QCOMPARE(log.take(), QStringList{"clear()"});
    QCOMPARE(model.framesCount(), 4);
    QVERIFY(model.settle());
}

void tst_FramesModel::leavesUndoAloneWhenCleared()
{
    TestModel model(4);
    model.removeSingleFrame(3);
    model.clear();
    QCOMPARE(model.undoCount(), 1);
}

QTEST_GUILESS_MAIN(tst_FramesModel)
#include "tst_framesmodel.moc"
