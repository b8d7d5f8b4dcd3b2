#include "ProjectWorld.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

/// Opening a project: refusals, loading, Cancel, locks and pictures that no frame names.
class TestProjectOpening : public QObject
{
    Q_OBJECT

private slots:
    void openingFillsTheTimelineInOrder();
    void openingSignalsInOrder();
    void openingAProjectWithoutFramesEndsAtOnce();
    void openingWithUnsavedWorkAsksFirst();
    void answeringNotToSaveOpensTheWaitingProjectOnce();
    void anEmptyPathAsksForTheFile();
    void givingUpTheDialogChangesNothing();
    void aMissingFileClosesTheOpenProject();
    void aFolderOrALinkIsRefused();
    void problemsOfThePathChangeNothing_data();
    void problemsOfThePathChangeNothing();
    void openingTellsTheResult();
    void aFileThatIsNoProjectClosesTheOpenOne_data();
    void aFileThatIsNoProjectClosesTheOpenOne();
    void readingNeedsAPath();
    void readingForgetsTheRobotJobAndPausesThePlayer();
    void openingWhileBusyLogsAndAddsNothing();
    void cancelDuringLoadKeepsTheFramesLoadedSoFar();
    void cancelBeforeTheFirstFrameCloses();
    void clearingLoadingProjectBreaksTheLoad();
    void anotherProjectReplacesOneThatIsStillLoading();
    void closingDuringALoadDropsIt();
    void missingPicturesAreReportedOneByOne();
    void loadingShowsItsProgress();
    void loadingKeepsTheWindowResponsive();
    void aLegacyProjectGivesItsPicturesToTheWorker();
    void aLegacyProjectWithoutPicturesLogs();
    void leavingTheProgramBreaksALoad();
    void aProjectOpenElsewhereIsRefused();
    void aProjectWhoseOwnerIsGoneOpensAfterAQuestion();
    void openingAgainInTheSameProgramAsksNothing();
    void unnamedPicturesAreOfferedAndAddedAtTheEnd();
    void unnamedPicturesAreMovedToTheRecycleFolder();
    void unnamedPicturesThatAreLeftAreNotOfferedAgain();
    void picturesOfAProjectThatSharesTheFolderAreNotOffered();
};

namespace {

/// A lock file as another program leaves it.
void writeLock(const QString &projPath, qint64 pid, const QString &host, const QString &mark)
{
    ProjectWorld::writeFile(ProjectLock::lockPath(projPath),
                            QString(R"({"pid":%1,"host":"%2","mark":"%3","since":"2024-05-06T07:08:00"})")
                                .arg(pid)
                                .arg(host, mark)
                                .toUtf8());
}

} // namespace

void TestProjectOpening::openingFillsTheTimelineInOrder()
{
    ProjectWorld world;
    QVERIFY(world.open(world.writeProject("p.kzfx", 600)));
    QStringList expected;
    for (int number = 0; number < 600; ++number)
        expected.append(ProjectWorld::frameName(number));
    QCOMPARE(world.rowNames(), expected);
    QVERIFY(world.model.loaded());
    QVERIFY(world.life.allowQuietExit());
    QCOMPARE(world.model.undoCount(), 0);
    QCOMPARE(world.timesAsked("ask"), 0);
}

void TestProjectOpening::openingSignalsInOrder()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 2);
    QStringList order;
    const auto note = [&order](const char *what) {
        return [&order, what] {
            order.append(what);
        };
    };
    connect(&world.life, &ProjectLifecycle::projPathChanged, this, note("path"));
    connect(&world.life, &ProjectLifecycle::disconnectModel, this, note("disconnect"));
    connect(&world.life, &ProjectLifecycle::startProjectLoad, this, note("start"));
    connect(&world.life, &ProjectLifecycle::beginLoadProject, this, note("begin"));
    connect(&world.life, &ProjectLifecycle::connectModel, this, note("connect"));
    connect(&world.operation, &ThreadOperation::currentThreadOperationChanged, this, note("operation"));
    connect(&world.life, &ProjectLifecycle::projLoadedChanged, this, note("loaded"));
    QVERIFY(world.open(path));
    QCOMPARE(order, QStringList({"path", "disconnect", "start", "operation", "begin", "connect", "operation",
                                 "loaded"}));
}

void TestProjectOpening::openingAProjectWithoutFramesEndsAtOnce()
{
    ProjectWorld world;
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 0)), int(Zum::FileIsOk));
    QVERIFY(world.life.projectLoaded());
    QVERIFY(world.model.loaded());
    QVERIFY(world.operation.isFree());
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestProjectOpening::openingWithUnsavedWorkAsksFirst()
{
    ProjectWorld world;
    const QString other = world.writeProject("other.kzfx", 1);
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QSignalSpy question(&world.life, &ProjectLifecycle::confirmClose);
    QCOMPARE(world.life.projectFileOpen(other), int(Zum::FileSelectionCanceled));
    QCOMPARE(question.count(), 1);
    QCOMPARE(world.global.openProjectAfterConfirmPath(), other);
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
}

void TestProjectOpening::answeringNotToSaveOpensTheWaitingProjectOnce()
{
    ProjectWorld world;
    // The scene puts the save button out when a project has been loaded.
    connect(&world.life, &ProjectLifecycle::projLoadedChanged, this, [&world] {
        if (world.life.projectLoaded())
            world.global.setProjectChanged(false);
    });
    const QString other = world.writeProject("other.kzfx", 1);
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.life.projectFileOpen(other);
    world.life.setAllowQuietExit(true);
    QSignalSpy starts(&world.life, &ProjectLifecycle::startProjectLoad);
    QVERIFY(world.open(world.global.openProjectAfterConfirmPath()));
    QTest::qWait(20);
    QCOMPARE(starts.count(), 1);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestProjectOpening::anEmptyPathAsksForTheFile()
{
    ProjectWorld world;
    world.dialogs.pathAnswers.append(world.writeProject("p.kzfx", 1));
    QVERIFY(world.open({}));
    QCOMPARE(world.dialogs.asked.first().kind, QStringLiteral("open"));
    QVERIFY(world.dialogs.asked.first().filter.contains("*.kzfx *.kzf"));
}

void TestProjectOpening::givingUpTheDialogChangesNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QCOMPARE(world.life.projectFileOpen(), int(Zum::FileSelectionCanceled));
    QVERIFY(world.life.projectLoaded());
    QVERIFY(world.said.isEmpty());
}

void TestProjectOpening::aMissingFileClosesTheOpenProject()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    const QString missing = world.path("missing.kzfx");
    QCOMPARE(world.life.projectFileOpen(missing), int(Zum::FileDoesntExists));
    QCOMPARE(world.dialogs.asked.last().caption, QStringLiteral("Load Project File Problem"));
    QCOMPARE(world.dialogs.asked.last().start, "Couldn't open '" + missing + "'");
    QVERIFY(world.hasSaid("Look whether its disk is connected", Zum::Info));
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(!world.model.loaded());
    QCOMPARE(world.paths.projPath(), QString());
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestProjectOpening::aFolderOrALinkIsRefused()
{
    ProjectWorld world;
    QVERIFY(QDir().mkpath(world.path("folder.kzfx")));
    QCOMPARE(world.life.projectFileOpen(world.path("folder.kzfx")), int(Zum::FileDoesntExists));
    QVERIFY(QFile::link(world.writeProject("p.kzfx", 1), world.path("link.kzfx")));
    QVERIFY(QDir().mkpath(world.path("link_files")));
    QCOMPARE(world.life.projectFileOpen(world.path("link.kzfx")), int(Zum::FileDoesntExists));
    QCOMPARE(world.timesAsked("warn"), 2);
}

void TestProjectOpening::problemsOfThePathChangeNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("advice");
    const QString putBack = QStringLiteral("Put it back beside the project file");
    QTest::newRow("suffix") << "q.txt"
                            << "q_files"
                            << "Project file '%1' has unrecognized suffix 'txt'"
                            << "Choose a file whose name ends with .kzfx";
    QTest::newRow("content folder deleted")
        << "q.kzfx" << QString() << "Cannot find project folder '%2'" << putBack;
    QTest::newRow("folder of the first dot does not count") << "q.a.kzfx"
                                                            << "q_files"
                                                            << "Cannot find project folder '%2'" << putBack;
}

void TestProjectOpening::problemsOfThePathChangeNothing()
{
    QFETCH(const QString, name);
    QFETCH(const QString, folder);
    QFETCH(const QString, text);
    QFETCH(const QString, advice);
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    ProjectWorld::writeFile(world.path(name));
    if (!folder.isEmpty())
        QVERIFY(QDir().mkpath(world.path(folder)));
    QCOMPARE(world.life.projectFileOpen(world.path(name)), int(Zum::FileDoesntExists));
    const QString content = world.path(QFileInfo(name).completeBaseName() + "_files");
    const QString expected = QString(text).replace("%1", world.path(name)).replace("%2", content);
    QCOMPARE(world.messages.errorString(), expected);
    QCOMPARE(world.messages.robotErrorCount(), 1);
    QVERIFY(world.hasSaid("error loading project"));
    QVERIFY(world.hasSaid(advice, Zum::Info));
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestProjectOpening::openingTellsTheResult()
{
    ProjectWorld world;
    world.life.openProject(world.writeProject("p.kzfx", 0));
    QCOMPARE(world.said.last().text, QStringLiteral("Project loaded"));
    QCOMPARE(world.said.last().sender, int(Zum::FileMessage));
    QCOMPARE(world.said.last().type, int(Zum::Info));
    world.life.openProject(world.path("missing.kzfx"));
    QCOMPARE(world.said.last().text, QStringLiteral("Project file not found"));
    QCOMPARE(world.said.last().type, int(Zum::Error));
    world.said.clear();
    world.life.openProject();
    QVERIFY(world.said.isEmpty());
}

void TestProjectOpening::aFileThatIsNoProjectClosesTheOpenOne_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("event");
    QTest::newRow("empty") << QByteArray() << int(Zum::FileXMLunparseble);
    QTest::newRow("garbage") << QByteArray(5000, '\x7f') << int(Zum::FileXMLunparseble);
    QTest::newRow("cut off") << QByteArray("<MorvaneProject><Version major=\"3\"/><Frame capFull=\"a")
                             << int(Zum::FileXMLunparseble);
    QTest::newRow("other root") << QByteArray("<Other><Version major=\"3\"/></Other>")
                                << int(Zum::NotMorvaneFile);
}

void TestProjectOpening::aFileThatIsNoProjectClosesTheOpenOne()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, event);
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    ProjectWorld::writeFile(world.path("bad.kzfx"), bytes);
    QVERIFY(QDir().mkpath(world.path("bad_files")));
    QCOMPARE(world.life.projectFileOpen(world.path("bad.kzfx")), event);
    QVERIFY(world.messages.robotErrorCount() > 0);
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(world.life.allowQuietExit());
    QCOMPARE(world.paths.projPath(), QString());
    QCOMPARE(world.model.framesCount(), 0);
    QCOMPARE(world.progress.progressTotal(), 0);
    QCOMPARE(ProjectWorld::fileBytes(world.path("bad.kzfx")), bytes);
    QVERIFY(QDir(world.path("bad_files")).isEmpty());
    QVERIFY(!QFile::exists(ProjectLock::lockPath(world.path("bad.kzfx"))));
}

void TestProjectOpening::readingNeedsAPath()
{
    ProjectWorld world;
    QCOMPARE(world.life.readProjectXmlFile(), int(Zum::FileDoesntExists));
}

void TestProjectOpening::readingForgetsTheRobotJobAndPausesThePlayer()
{
    ProjectWorld world;
    world.global.setPlayerPlaying(true);
    QVERIFY(world.open(world.writeProject("p.kzfx", 1)));
    QCOMPARE(world.clearedRobotJobs, 1);
    QVERIFY(world.global.playerPaused());
}

void TestProjectOpening::openingWhileBusyLogsAndAddsNothing()
{
    ProjectWorld world;
    QVERIFY(world.operation.begin(Zum::OCleanupProject));
    QTest::ignoreMessage(QtDebugMsg, "Start append frames: Thread is busy");
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 2)), int(Zum::FileIsOk));
    QTest::qWait(20);
    QCOMPARE(world.model.framesCount(), 0);
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(world.hasSaid("Another operation is still running", Zum::Warning));
}

void TestProjectOpening::cancelDuringLoadKeepsTheFramesLoadedSoFar()
{
    ProjectWorld world;
    world.operations.setSliceMs(0);
    world.global.setPaused(true);
    connect(&world.progress, &ProgressState::progressCurrentChanged, this, [&world] {
        if (world.progress.progressCurrent() == 5)
            world.life.stopLoadingProject();
    });
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 40)), int(Zum::FileIsOk));
    QVERIFY(world.waitFree());
    QCOMPARE(world.model.framesCount(), 5);
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(!world.model.loaded());
    QVERIFY(!world.life.loadingProject());
    QVERIFY(!world.global.paused());
    QCOMPARE(world.progress.progressTotal(), 0);
    disconnect(&world.progress, nullptr, this, nullptr);
    QVERIFY(world.open(world.path("p.kzfx")));
    QCOMPARE(world.model.framesCount(), 40);
}

void TestProjectOpening::cancelBeforeTheFirstFrameCloses()
{
    ProjectWorld world;
    connect(&world.life, &ProjectLifecycle::startProjectLoad, &world.life,
            &ProjectLifecycle::stopLoadingProject);
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 3)), int(Zum::FileIsOk));
    QVERIFY(world.operation.isFree());
    QCOMPARE(world.paths.projPath(), QString());
    QCOMPARE(world.model.framesCount(), 0);
}

void TestProjectOpening::clearingLoadingProjectBreaksTheLoad()
{
    ProjectWorld world;
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 3)), int(Zum::FileIsOk));
    world.life.setLoadingProject(false);
    QVERIFY(world.waitFree());
    QVERIFY(!world.life.projectLoaded());
}

void TestProjectOpening::anotherProjectReplacesOneThatIsStillLoading()
{
    ProjectWorld world;
    const QString second = world.writeProject("second.kzfx", 2);
    world.operations.setSliceMs(0);
    QCOMPARE(world.life.projectFileOpen(world.writeProject("first.kzfx", 300)), int(Zum::FileIsOk));
    QVERIFY(world.open(second));
    QTest::qWait(20);
    QCOMPARE(world.model.framesCount(), 2);
    QCOMPARE(world.paths.projPath(), second);
}

void TestProjectOpening::closingDuringALoadDropsIt()
{
    ProjectWorld world;
    world.operations.setSliceMs(0);
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 100)), int(Zum::FileIsOk));
    world.life.closeProject();
    QVERIFY(world.operation.isFree());
    QTest::qWait(20);
    QCOMPARE(world.model.framesCount(), 0);
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(!world.model.isResetting());
    QVERIFY(world.open(world.path("p.kzfx")));
    QCOMPARE(world.model.framesCount(), 100);
}

void TestProjectOpening::missingPicturesAreReportedOneByOne()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 3);
    const QString missing = world.treeOf("p.kzfx").capFullDirPath + ProjectWorld::frameName(1);
    QVERIFY(QFile::remove(missing));
    QTest::ignoreMessage(QtDebugMsg, qPrintable("File doesn't exist at " + missing));
    QVERIFY(world.open(path));
    QCOMPARE(world.said.size(), 2);
    QVERIFY(world.said.last().text.startsWith("Put the missing pictures back"));
    QCOMPARE(world.said.last().type, int(Zum::Info));
    QCOMPARE(world.said.first().sender, int(Zum::FileMessage));
    QCOMPARE(world.said.first().type, int(Zum::Warning));
    QCOMPARE(world.said.first().text, "Image file doesn't exist at " + missing);
    QCOMPARE(world.model.framesCount(), 3);
    QVERIFY(world.model.frameAt(1).capfullmiss);
}

void TestProjectOpening::loadingShowsItsProgress()
{
    ProjectWorld world;
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 3)), int(Zum::FileIsOk));
    QCOMPARE(world.progress.progressAction(), QStringLiteral("Loading Project"));
    QCOMPARE(world.progress.progressTotal(), 3);
    QCOMPARE(world.operation.currentThreadOperation(), int(Zum::OAddFrames));
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.progress.progressAction(), QString());
    QCOMPARE(world.progress.progressTotal(), 0);
    QCOMPARE(world.progress.progressCurrent(), 0);
}

// Other work of the main thread gets its turn many times between the first frame and the last.
void TestProjectOpening::loadingKeepsTheWindowResponsive()
{
    ProjectWorld world;
    world.operations.setSliceMs(1);
    const QString path = world.writeProject("p.kzfx", 10000, false);
    int turns = 0;
    QTimer other;
    connect(&other, &QTimer::timeout, this, [&turns, &world] { turns += !world.operation.isFree(); });
    other.start(0);
    // Twenty thousand lines about missing files would hide the rest of the log.
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const bool opened = world.open(path);
    qInstallMessageHandler(usual);
    QVERIFY(opened);
    QCOMPARE(world.model.framesCount(), 10000);
    QVERIFY2(turns > 20, qPrintable(QString::number(turns)));
}

void TestProjectOpening::aLegacyProjectGivesItsPicturesToTheWorker()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("old.kzf"), "<Project><Version ver=\"2.5\"/></Project>");
    ProjectWorld::writeFile(world.path("old_files/camera/b.jpg"));
    ProjectWorld::writeFile(world.path("old_files/camera/a.jpg"));
    QSignalSpy started(&world.life, &ProjectLifecycle::startProjectLoad);
    QCOMPARE(world.life.projectFileOpen(world.path("old.kzf")), int(Zum::LegacyFile));
    QCOMPARE(world.importedPaths,
             QStringList({world.path("old_files/camera/a.jpg"), world.path("old_files/camera/b.jpg")}));
    QCOMPARE(world.importTarget, int(Zum::CapturedImages));
    QVERIFY(world.life.legacyProject());
    QVERIFY(world.life.projectLoaded());
    QVERIFY(world.model.loaded());
    QVERIFY(!world.life.allowQuietExit());
    QCOMPARE(started.count(), 1);
    QVERIFY(world.hasSaid("Legacy version (2.5). Converting..."));
    world.life.addLastProject();
    QVERIFY(world.settings.groupValues("lastprojects").isEmpty());
}

void TestProjectOpening::aLegacyProjectWithoutPicturesLogs()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("old.kzf"), "<Project><Version ver=\"2.5\"/></Project>");
    QVERIFY(QDir().mkpath(world.path("old_files")));
    const QString line = "Convert legacy project file: Cannot find 'camera' or 'web' dirs at '"
                         + world.path("old_files/") + "'";
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
    QCOMPARE(world.life.projectFileOpen(world.path("old.kzf")), int(Zum::LegacyFile));
    QVERIFY(!world.life.projectLoaded());
}

void TestProjectOpening::leavingTheProgramBreaksALoad()
{
    ProjectWorld world;
    world.operations.setSliceMs(0);
    QCOMPARE(world.life.projectFileOpen(world.writeProject("p.kzfx", 300)), int(Zum::FileIsOk));
    world.life.finishOperations();
    QVERIFY(world.operation.isFree());
    QVERIFY(!world.life.loadingProject());
    const int rows = world.model.framesCount();
    QTest::qWait(20);
    QCOMPARE(world.model.framesCount(), rows);
    QVERIFY(!world.life.projectLoaded());
}

void TestProjectOpening::aProjectOpenElsewhereIsRefused()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    const QString other = world.writeProject("other.kzfx", 1);
    const ProjectLock::Host self = ProjectLock::Host::system();
    // The starter of this test runs, and is another program.
    writeLock(other, 1, self.name, self.processMark(1));
    QCOMPARE(world.life.projectFileOpen(other), int(Zum::FileSelectionCanceled));
    QCOMPARE(world.dialogs.asked.last().kind, QStringLiteral("warn"));
    const QString text = world.dialogs.asked.last().start;
    QVERIFY(text.contains(other) && text.contains("2024-05-06 07:08") && text.contains(self.name));
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));

    world.dialogs.pathAnswers.append(other);
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QVERIFY(ProjectWorld::fileBytes(other).contains("<Frame "));
}

void TestProjectOpening::aProjectWhoseOwnerIsGoneOpensAfterAQuestion()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 1);
    writeLock(path, 1, ProjectLock::Host::system().name, "another boot");
    QCOMPARE(world.life.projectFileOpen(path), int(Zum::FileSelectionCanceled));
    QCOMPARE(world.dialogs.asked.last().kind, QStringLiteral("ask"));
    QVERIFY(world.dialogs.asked.last().start.contains("has ended without closing it"));
    world.dialogs.askAnswers.append(morvane::Dialogs::Answer::Yes);
    QVERIFY(world.open(path));
    QCOMPARE(world.lock.look(path), ProjectLock::State::Free);
}

void TestProjectOpening::openingAgainInTheSameProgramAsksNothing()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 1);
    QVERIFY(world.open(path));
    QVERIFY(world.open(path));
    QCOMPARE(world.dialogs.asked.size(), 0);
    QCOMPARE(world.model.framesCount(), 1);
}

void TestProjectOpening::unnamedPicturesAreOfferedAndAddedAtTheEnd()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 2);
    ProjectWorld::writePictures(world.treeOf("p.kzfx"), 9);
    ProjectWorld::writePictures(world.treeOf("p.kzfx"), 4);
    world.dialogs.askAnswers.append(morvane::Dialogs::Answer::Yes);
    QVERIFY(world.open(path));
    QTRY_COMPARE(world.model.framesCount(), 4);
    QCOMPARE(world.rowNames().mid(2), QStringList({ProjectWorld::frameName(4), ProjectWorld::frameName(9)}));
    QCOMPARE(world.timeline.projectFrames().last().capTumb, ProjectWorld::frameName(9, "mini"));
    QVERIFY(world.dialogs.asked.last().start.startsWith("2 captured picture"));
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
}

void TestProjectOpening::unnamedPicturesAreMovedToTheRecycleFolder()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 1);
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 5);
    world.dialogs.askAnswers.append(morvane::Dialogs::Answer::No);
    QVERIFY(world.open(path));
    QTRY_VERIFY(QFile::exists(tree.recycleBinDirPath + ProjectWorld::frameName(5)));
    QVERIFY(QFile::exists(tree.recycleBinDirPath + ProjectWorld::frameName(5, "mini")));
    QVERIFY(!QFile::exists(tree.capFullDirPath + ProjectWorld::frameName(5)));
    QCOMPARE(world.model.framesCount(), 1);
    QVERIFY(world.life.allowQuietExit());
}

void TestProjectOpening::unnamedPicturesThatAreLeftAreNotOfferedAgain()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 1);
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 5);
    QVERIFY(world.open(path));
    QTRY_COMPARE(world.timesAsked("ask"), 1);
    QVERIFY(QFile::exists(tree.capFullDirPath + ProjectWorld::frameName(5)));
    QVERIFY(world.open(path));
    QTest::qWait(50);
    QCOMPARE(world.timesAsked("ask"), 1);
    ProjectWorld::writePictures(tree, 6);
    QVERIFY(world.open(path));
    QTRY_COMPARE(world.timesAsked("ask"), 2);
    QVERIFY(world.dialogs.asked.last().start.startsWith("1 captured picture"));
}

void TestProjectOpening::picturesOfAProjectThatSharesTheFolderAreNotOffered()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 1);
    ProjectWorld::writePictures(world.treeOf("p.kzfx"), 5);
    ProjectWorld::writeFile(world.path("p.other.kzfx"));
    QVERIFY(world.open(path));
    QTest::qWait(50);
    QCOMPARE(world.timesAsked("ask"), 0);
}

QTEST_GUILESS_MAIN(TestProjectOpening)
#include "tst_projectopening.moc"
