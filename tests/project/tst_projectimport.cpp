#include "ProjectWorld.h"

#include <QSignalSpy>

/// Taking over the frames of another project.
class TestProjectImport : public QObject
{
    Q_OBJECT

private slots:
    void importAddsTheFramesAndTheirPictures();
    void importOfTheOpenProjectIsRefusedBeforeAnyFileIsRead();
    void importWithNoProjectDoesNothing();
    void givingUpTheDialogDoesNothing();
    void importOfABrokenProjectLeavesTheOpenOne();
    void importOfALegacyProjectIsRefused();
    void importWhileBusyLogsAndDropsIt();
    void importNeverReplacesAPictureOfThisProject();
    void importReusesAPictureThatIsThereAlready();
    void aMissingPictureDoesNotStopTheImport();
    void cancelDuringTheCopyAddsNothing();
    void aProjectWithoutFramesImportsNothing();
};

namespace {

ProjectFrame ninth()
{
    ProjectFrame frame = ProjectWorld::frame(9);
    frame.refFull = "ref.jpg";
    frame.mirrored = true;
    frame.phase = 3;
    return frame;
}

QString writeOther(ProjectWorld &world)
{
    const QString path = world.path("other.kzfx");
    const ProjectTree tree = world.treeOf("other.kzfx");
    ProjectWorld::writePictures(tree, 8, "eight");
    ProjectWorld::writePictures(tree, 9, "nine");
    ProjectWorld::writeFile(tree.refFullDirPath + "ref.jpg", "reference");
    ProjectDocument document;
    document.frames = {ProjectWorld::frame(8), ninth(), ninth()};
    return ProjectWriter::save(path, document).ok ? path : QString();
}

} // namespace

void TestProjectImport::importAddsTheFramesAndTheirPictures()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.dialogs.pathAnswers.append(writeOther(world));
    QList<int> operations;
    QStringList actions;
    connect(&world.operation, &ThreadOperation::currentThreadOperationChanged, this,
            [&] { operations.append(world.operation.currentThreadOperation()); });
    connect(&world.progress, &ProgressState::progressActionChanged, this,
            [&] { actions.append(world.progress.progressAction()); });
    const QString source = world.treeOf("other.kzfx").capFullDirPath + ProjectWorld::frameName(8);
    const QString target = world.paths.capFullDirPath() + ProjectWorld::frameName(8);
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Copy " + source + " to : " + target));
    QTest::ignoreMessage(QtDebugMsg, "Finished coping frames on import");
    QTest::ignoreMessage(QtDebugMsg, "Import farmes");
    QVERIFY(world.life.importFrames());
    QVERIFY(world.waitFree());
    QCOMPARE(operations, QList<int>({Zum::OCopyFrames, Zum::OAddFrames, Zum::ONoOperation}));
    QCOMPARE(actions, QStringList({"Copy frames...", "Import frames...", ""}));
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.rowNames(), QStringList({ProjectWorld::frameName(0), ProjectWorld::frameName(8),
                                            ProjectWorld::frameName(9), ProjectWorld::frameName(9)}));
    QCOMPARE(world.timeline.projectFrames().at(2).phase, 3);
    QVERIFY(world.timeline.projectFrames().at(2).mirrored);
    QCOMPARE(ProjectWorld::fileBytes(target), QByteArray("eight"));
    QCOMPARE(ProjectWorld::fileBytes(world.paths.refFullDirPath() + "ref.jpg"), QByteArray("reference"));
    QVERIFY(QFile::exists(world.paths.capTumbDirPath() + ProjectWorld::frameName(9, "mini")));
    QVERIFY2(!world.life.allowQuietExit(), "imported frames are unsaved work");
    QVERIFY(world.global.projectChanged());
    QVERIFY(world.model.loaded());
}

void TestProjectImport::importOfTheOpenProjectIsRefusedBeforeAnyFileIsRead()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.dialogs.pathAnswers.append(world.path("p.kzfx"));
    QVERIFY(!world.life.importFrames());
    QCOMPARE(world.dialogs.asked.last().kind, QStringLiteral("warn"));
    QCOMPARE(world.dialogs.asked.last().start, QStringLiteral("Cannot import project to itself"));
    QCOMPARE(world.clearedRobotJobs, 0);
    QVERIFY(world.operation.isFree());
}

void TestProjectImport::importWithNoProjectDoesNothing()
{
    ProjectWorld world;
    world.dialogs.pathAnswers.append(writeOther(world));
    QVERIFY(!world.life.importFrames());
    QCOMPARE(world.timesAsked("open"), 1);
    QVERIFY(world.operation.isFree());
}

void TestProjectImport::givingUpTheDialogDoesNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QVERIFY(!world.life.importFrames());
    QVERIFY(!world.dialogs.asked.last().filter.contains("*.kzf "));
    QVERIFY(world.said.isEmpty());
}

void TestProjectImport::importOfABrokenProjectLeavesTheOpenOne()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    ProjectWorld::writeFile(world.path("bad.kzfx"), "<Other><Version major=\"3\"/></Other>");
    world.dialogs.pathAnswers.append(world.path("bad.kzfx"));
    QVERIFY(!world.life.importFrames());
    QCOMPARE(world.messages.errorString(), "Cannot find project folder '" + world.path("bad_files") + "'");
    QVERIFY(QDir().mkpath(world.path("bad_files")));
    world.dialogs.pathAnswers.append(world.path("bad.kzfx"));
    QVERIFY(!world.life.importFrames());
    QVERIFY(world.hasSaid("Unrecognized root tag name", Zum::Error));
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.model.framesCount(), 1);
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestProjectImport::importOfALegacyProjectIsRefused()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    ProjectWorld::writeFile(world.path("old.kzfx"), "<Project><Version ver=\"2.5\"/></Project>");
    QVERIFY(QDir().mkpath(world.path("old_files")));
    world.dialogs.pathAnswers.append(world.path("old.kzfx"));
    QVERIFY(!world.life.importFrames());
    QVERIFY(world.hasSaid("older format cannot be imported. Open it, save it", Zum::Error));
    QVERIFY(!world.life.legacyProject());
}

void TestProjectImport::importWhileBusyLogsAndDropsIt()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QVERIFY(world.operation.begin(Zum::OCleanupProject));
    world.dialogs.pathAnswers.append(writeOther(world));
    QTest::ignoreMessage(QtDebugMsg, "doCopyFrames: Thread is busy");
    QVERIFY(!world.life.importFrames());
    QVERIFY(!QFile::exists(world.paths.capFullDirPath() + ProjectWorld::frameName(8)));
}

void TestProjectImport::importNeverReplacesAPictureOfThisProject()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(8);
    world.dialogs.pathAnswers.append(writeOther(world));
    QVERIFY(world.life.importFrames());
    QVERIFY(world.waitFree());
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(ProjectWorld::fileBytes(world.paths.capFullDirPath() + ProjectWorld::frameName(8)),
             QByteArray("picture"));
    const QString renamed = "frame_norm_000008_240101120000_1.jpg";
    QCOMPARE(world.rowNames().at(1), renamed);
    QCOMPARE(ProjectWorld::fileBytes(world.paths.capFullDirPath() + renamed), QByteArray("eight"));
}

void TestProjectImport::importReusesAPictureThatIsThereAlready()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    ProjectWorld::writePictures(world.paths.tree(), 8, "eight");
    world.dialogs.pathAnswers.append(writeOther(world));
    QVERIFY(world.life.importFrames());
    QVERIFY(world.waitFree());
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.rowNames().first(), ProjectWorld::frameName(8));
    QCOMPARE(QDir(world.paths.capFullDirPath()).entryList(QDir::Files).size(), 2);
}

void TestProjectImport::aMissingPictureDoesNotStopTheImport()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.dialogs.pathAnswers.append(writeOther(world));
    QVERIFY(QFile::remove(world.treeOf("other.kzfx").capFullDirPath + ProjectWorld::frameName(8)));
    QVERIFY(world.life.importFrames());
    QVERIFY(world.waitFree());
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.model.framesCount(), 3);
    QVERIFY(world.model.frameAt(0).capfullmiss);
    QVERIFY(world.hasSaid("could not be copied or removed. Make room on the disk", Zum::Warning));
}

void TestProjectImport::cancelDuringTheCopyAddsNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.dialogs.pathAnswers.append(world.writeProject("many.kzfx", 2000));
    QSignalSpy connected(&world.life, &ProjectLifecycle::connectModel);
    QVERIFY(world.life.importFrames());
    world.life.stopLoadingProject();
    QVERIFY(world.waitFree());
    QCOMPARE(world.model.framesCount(), 1);
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.progress.progressTotal(), 0);
    QCOMPARE(connected.count(), 1);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
}

void TestProjectImport::aProjectWithoutFramesImportsNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.dialogs.pathAnswers.append(world.writeProject("empty.kzfx", 0));
    QVERIFY(world.life.importFrames());
    QVERIFY(world.waitFree());
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.model.framesCount(), 1);
}

QTEST_GUILESS_MAIN(TestProjectImport)
#include "tst_projectimport.moc"
