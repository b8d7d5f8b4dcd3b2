#include "ProjectWorld.h"

#include "project/FileCopy.h"
#include "project/PoolProgress.h"

#include <QSignalSpy>

/// The lock, the four long operations by themselves, and the copy helper.
class TestFrameFileOperations : public QObject
{
    Q_OBJECT

private slots:
    void oneOperationAtATime();
    void goingBackToNoOperationProcessesEventsOnce();
    void addingStartsOnlyAtRestOrInItsOperation();
    void copyingStartsOnlyAtRestOrInItsOperation();
    void copyingFoldersStartsOnlyAtRestOrInItsOperation();
    void cleaningStartsOnlyAtRestOrInItsOperation();
    void aSecondOperationOfTheSameKindIsDropped();
    void leavingWaitsForACopyAndSaysNothing();
    void anExistingTargetIsReplaced();
    void aTargetThatCannotBeRemovedIsLogged();
    void aCopyThatFailsIsLogged();
    void aFileIsNeverCopiedOverItself();
    void aMissingFolderIsLoggedAndTheRestIsCopied();
    void theFoldersMadeAreLogged();
    void aLinkedFolderIsNotFollowed();
};

void TestFrameFileOperations::oneOperationAtATime()
{
    ThreadOperation operation([] {});
    QSignalSpy changed(&operation, &ThreadOperation::currentThreadOperationChanged);
    QVERIFY(operation.begin(Zum::OCopyFrames));
    QVERIFY(!operation.begin(Zum::OCleanupProject));
    QCOMPARE(operation.currentThreadOperation(), int(Zum::OCopyFrames));
    operation.continueWith(Zum::OAddFrames);
    operation.end();
    operation.end();
    QCOMPARE(changed.count(), 3);
    QVERIFY(operation.isFree());
}

void TestFrameFileOperations::goingBackToNoOperationProcessesEventsOnce()
{
    int times = 0;
    QList<int> seen;
    ThreadOperation *seeing = nullptr;
    ThreadOperation operation([&] {
        ++times;
        seen.append(seeing->currentThreadOperation());
    });
    seeing = &operation;
    QVERIFY(operation.begin(Zum::OAddFrames));
    QCOMPARE(times, 0);
    operation.end();
    QCOMPARE(times, 1);
    QCOMPARE(seen, QList<int>{Zum::ONoOperation});
}

void TestFrameFileOperations::addingStartsOnlyAtRestOrInItsOperation()
{
    ProjectWorld world;
    QVERIFY(world.operation.begin(Zum::OCopyFrames));
    QTest::ignoreMessage(QtDebugMsg, "doAddFrames: Thread is busy");
    QVERIFY(!world.operations.addFrames({ProjectWorld::frame(0)}, world.treeOf("p.kzfx")));
    world.operation.end();
    QVERIFY(world.operation.begin(Zum::OAddFrames));
    QSignalSpy added(&world.operations, &FrameFileOperations::framesAdded);
    QVERIFY(world.operations.addFrames({ProjectWorld::frame(0)}, world.treeOf("p.kzfx")));
    QTRY_COMPARE(added.count(), 1);
    QCOMPARE(world.model.framesCount(), 1);
}

void TestFrameFileOperations::copyingStartsOnlyAtRestOrInItsOperation()
{
    ProjectWorld world;
    QVERIFY(world.operation.begin(Zum::OAddFrames));
    QTest::ignoreMessage(QtDebugMsg, "doCopyFrames: Thread is busy");
    QVERIFY(!world.operations.copyFrames({}, world.treeOf("p.kzfx"), world.treeOf("q.kzfx")));
}

void TestFrameFileOperations::copyingFoldersStartsOnlyAtRestOrInItsOperation()
{
    ProjectWorld world;
    QVERIFY(world.operation.begin(Zum::OAddFrames));
    QTest::ignoreMessage(QtDebugMsg, "do CopyToDir: thread is busy");
    QVERIFY(!world.operations.copyProjectFolders(world.treeOf("p.kzfx"), world.treeOf("q.kzfx")));
}

void TestFrameFileOperations::cleaningStartsOnlyAtRestOrInItsOperation()
{
    ProjectWorld world;
    QVERIFY(world.operation.begin(Zum::OAddFrames));
    QTest::ignoreMessage(QtDebugMsg, "Do Cleanup Current Project: thread is busy");
    QVERIFY(!world.operations.cleanup(ProjectCleanup::allFolders, {}, world.treeOf("p.kzfx")));
}

void TestFrameFileOperations::aSecondOperationOfTheSameKindIsDropped()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    QVERIFY(world.operations.cleanup(ProjectCleanup::Cache, {}, tree));
    QTest::ignoreMessage(QtDebugMsg, "Do Cleanup Current Project: thread is busy");
    QVERIFY(!world.operations.cleanup(ProjectCleanup::Cache, {}, tree));
    QVERIFY(world.waitFree());
}

void TestFrameFileOperations::leavingWaitsForACopyAndSaysNothing()
{
    ProjectWorld world;
    world.writeProject("p.kzfx", 200);
    const ProjectTree from = world.treeOf("p.kzfx");
    const ProjectTree to = world.treeOf("q.kzfx");
    QVERIFY(QDir().mkpath(to.capFullDirPath));
    QSignalSpy copied(&world.operations, &FrameFileOperations::projectCopied);
    QVERIFY(world.operations.copyProjectFolders(from, to));
    world.operations.finish();
    QVERIFY(world.operation.isFree());
    QVERIFY(QFile::exists(to.capTumbDirPath + ProjectWorld::frameName(199, "mini")));
    QTest::qWait(20);
    QCOMPARE(copied.count(), 0);
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestFrameFileOperations::anExistingTargetIsReplaced()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a"), "new");
    ProjectWorld::writeFile(world.path("b"), "old");
    QVERIFY(FileCopy::replace(world.path("a"), world.path("b")));
    QCOMPARE(ProjectWorld::fileBytes(world.path("b")), QByteArray("new"));
}

void TestFrameFileOperations::aTargetThatCannotBeRemovedIsLogged()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a"), "new");
    QVERIFY(QDir().mkpath(world.path("b/full")));
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Error removing existing file '" + world.path("b") + "'"));
    QVERIFY(!FileCopy::replace(world.path("a"), world.path("b")));
}

void TestFrameFileOperations::aCopyThatFailsIsLogged()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a"), "new");
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Error copyng to '" + world.path("nowhere/b") + "'"));
    QVERIFY(!FileCopy::replace(world.path("a"), world.path("nowhere/b")));
}

void TestFrameFileOperations::aFileIsNeverCopiedOverItself()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a"), "kept");
    QVERIFY(QFile::link(world.path("a"), world.path("link")));
    QVERIFY(FileCopy::replace(world.path("a"), world.path("./a")));
    QVERIFY(FileCopy::replace(world.path("a"), world.path("link")));
    QCOMPARE(ProjectWorld::fileBytes(world.path("a")), QByteArray("kept"));
}

void TestFrameFileOperations::aMissingFolderIsLoggedAndTheRestIsCopied()
{
    ProjectWorld world;
    const ProjectTree from = world.treeOf("p.kzfx");
    const ProjectTree to = world.treeOf("q.kzfx");
    ProjectWorld::writeFile(from.videoDirPath + "movie.avi");
    QVERIFY(QDir().mkpath(to.projContntDirPath));
    const auto progress = std::make_shared<PoolProgress>(world.progress);
    QTest::ignoreMessage(QtDebugMsg,
                         qPrintable(from.capFullDirPath + " dir does not exists or is not a dir"));
    QCOMPARE(FileCopy::projectFolders(*progress, from, to), 0);
    QVERIFY(QFile::exists(to.videoDirPath + "movie.avi"));
}

void TestFrameFileOperations::theFoldersMadeAreLogged()
{
    ProjectWorld world;
    const ProjectTree from = world.treeOf("p.kzfx");
    const ProjectTree to = world.treeOf("q.kzfx");
    QVERIFY(QDir().mkpath(from.videoDirPath) && QDir().mkpath(from.backgroundDirPath));
    QVERIFY(QDir().mkpath(to.videoDirPath));
    const auto progress = std::make_shared<PoolProgress>(world.progress);
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Dir exists: " + to.videoDirPath));
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Make dir: " + to.backgroundDirPath));
    FileCopy::projectFolders(*progress, from, to);
    QVERIFY(QFileInfo(to.backgroundDirPath).isDir());
}

void TestFrameFileOperations::aLinkedFolderIsNotFollowed()
{
    ProjectWorld world;
    const ProjectTree from = world.treeOf("p.kzfx");
    const ProjectTree to = world.treeOf("q.kzfx");
    ProjectWorld::writeFile(from.videoDirPath + "movie.avi");
    QVERIFY(QFile::link(from.videoDirPath.chopped(1), from.videoDirPath + "loop"));
    QVERIFY(QDir().mkpath(to.projContntDirPath));
    const auto progress = std::make_shared<PoolProgress>(world.progress);
    FileCopy::projectFolders(*progress, from, to);
    QVERIFY(QFile::exists(to.videoDirPath + "movie.avi"));
    QVERIFY(!QFile::exists(to.videoDirPath + "loop"));
}

QTEST_GUILESS_MAIN(TestFrameFileOperations)
#include "tst_framefileoperations.moc"
