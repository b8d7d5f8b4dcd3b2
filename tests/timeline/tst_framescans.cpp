#include "timeline/ModelSupport.h"

#include <QFile>
#include <QTemporaryDir>

class tst_FrameScans : public QObject
{
    Q_OBJECT

private slots:
    void marksHoldsAndDismisses();
    void marksOnlyTheRange();
    void marksMissingFiles();
    void staysSilentWhereNothingChanged();
    void scansAgainWhatAShotChangedMeanwhile();
    void scansAgainWhenRowsGoMeanwhile();
};

void tst_FrameScans::marksHoldsAndDismisses()
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

void tst_FrameScans::marksOnlyTheRange()
{
    TestModel model(0);
    for (int i = 0; i < 6; ++i)
        model.appendFrame({{"capFull", "a"}});
    model.searchStaticness(2, 4);
    QVERIFY(model.settle());
    QCOMPARE(model.holds(), QList<int>({-1, -1, 1, 1, 1, -1}));
}

void tst_FrameScans::marksMissingFiles()
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

void tst_FrameScans::staysSilentWhereNothingChanged()
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

void tst_FrameScans::scansAgainWhatAShotChangedMeanwhile()
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

void tst_FrameScans::scansAgainWhenRowsGoMeanwhile()
{
    TestModel model(0);
    for (const char *name : {"a", "b", "b", "c"})
        model.appendFrame({{"capFull", name}, {"static", 1}});
    bool cleared = false;
    connect(&model, &FramesModel::dataChanged, &model, [&] {
        if (model.threading() && !std::exchange(cleared, true))
            model.removeSingleFrame(0, false);
    });
    model.searchStaticness(0, 0);
    QVERIFY(model.settle());
    QVERIFY(cleared);
    QCOMPARE(model.holds(), QList<int>({0, 2, -1}));
    model.clear();
}

QTEST_GUILESS_MAIN(tst_FrameScans)
#include "tst_framescans.moc"
