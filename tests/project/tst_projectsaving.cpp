#include "ProjectWorld.h"

#include <QSignalSpy>

/// The five save modes, new projects and cleaning up.
class TestProjectSaving : public QObject
{
    Q_OBJECT

private slots:
    void aNewProjectIsOnTheDiskAtOnce();
    void aNewProjectWritesNoneOfTheFrames();
    void aNewProjectWithUnsavedWorkAsksFirst();
    void cancelingTheNewProjectDialogLeavesTheOldProjectUntouched();
    void aNewProjectThatCannotBeWrittenLeavesTheOldOneOpen();
    void theSuffixIsAlwaysTheProjectsOwn();
    void anotherFileThanTheOneTypedIsReplacedOnlyAfterAQuestion();
    void dialogsStartInTheProjectsFolder();
    void savingWithNoProjectLogsAndFails();
    void savingWritesTheFrames();
    void savingWhileFramesAreCopiedWritesTheFileAndStaysDirty();
    void xmlOnlyLooksAtNoOperation();
    void xmlOnlyWritesInTheBackground();
    void aFailedWriteInTheBackgroundHasTheProjectChangedAgain();
    void aSaveComesAfterTheOneInTheBackground();
    void closingWaitsForTheSaveInTheBackground();
    void anotherProjectIsNotOpenedOverAFailedSaveInTheBackground();
    void aFailedSaveTellsTheUserAndKeepsTheOldFile();
    void aFailedSaveForgetsWhatWaited();
    void aProjectThatIsNotCompletelyLoadedIsNeverWritten();
    void saveAsCopiesTheProjectAndMovesThere();
    void saveAsWhileBusyWritesTheFileAndCopiesNothing();
    void saveAsIntoTheSameFolderCopiesNothing();
    void saveAsIntoTheProjectsOwnFolderEnds();
    void aFailedSaveAsStaysWithTheOldFile();
    void cancelDuringSaveAsTellsAndStaysDirty();
    void changesDuringSaveAsStayUnsaved();
    void aLegacyProjectIsAlwaysSavedAs();
    void saveAndCleanupRemovesWhatNothingNames();
    void saveAndCleanupWhileBusyOnlySaves();
    void cleanupKeepsThePicturesOfAProjectThatSharesTheFolder();
    void cleaningTheExtractedPictures();
    void cleaningTheCacheNeedsAProject();
    void quittingAfterSaveAsWaitsForTheCopy();
};

void TestProjectSaving::aNewProjectIsOnTheDiskAtOnce()
{
    ProjectWorld world;
    QSignalSpy paths(&world.life, &ProjectLifecycle::projPathChanged);
    QVERIFY(world.createProject("p.kzfx"));
    QVERIFY(ProjectWorld::fileBytes(world.path("p.kzfx")).contains("frameWidth=\"1280\""));
    QVERIFY(ProjectWorld::fileBytes(world.path("p.kzfx")).contains("frameHeight=\"720\""));
    QCOMPARE(world.global.cropAreaW(), 1280);
    QCOMPARE(world.global.cropAreaH(), 720);
    QVERIFY(world.global.cropAreaOn());
    QCOMPARE(paths.count(), 1);
    QCOMPARE(paths.first().first().toBool(), true);
    QVERIFY(world.life.projectLoaded());
    QVERIFY(world.model.loaded());
    QVERIFY(world.life.allowQuietExit());
    QVERIFY(QFile::exists(world.path("p_files/cap/tmb")));
    QCOMPARE(world.dialogs.asked.first().caption, QStringLiteral("Create New Project..."));
}

void TestProjectSaving::aNewProjectWritesNoneOfTheFrames()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(world.createProject("q.kzfx"));
    QVERIFY(!ProjectWorld::fileBytes(world.path("q.kzfx")).contains("<Frame "));
    QCOMPARE(world.model.framesCount(), 0);
}

void TestProjectSaving::aNewProjectWithUnsavedWorkAsksFirst()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QSignalSpy question(&world.life, &ProjectLifecycle::confirmClose);
    QVERIFY(!world.life.saveProjectXmlFile(Zum::NewProject));
    QCOMPARE(question.count(), 1);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::CreateProjectAfterConfirm));
    QCOMPARE(world.timesAsked("save"), 1);
}

void TestProjectSaving::cancelingTheNewProjectDialogLeavesTheOldProjectUntouched()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(!world.life.saveProjectXmlFile(Zum::NewProject));
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.model.framesCount(), 1);
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
}

void TestProjectSaving::aNewProjectThatCannotBeWrittenLeavesTheOldOneOpen()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(!world.createProject("nowhere/q.kzfx"));
    QVERIFY(world.hasSaid("could not be saved", Zum::Error));
    QVERIFY(world.life.projectLoaded());
    QCOMPARE(world.model.framesCount(), 1);
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
}

void TestProjectSaving::theSuffixIsAlwaysTheProjectsOwn()
{
    ProjectWorld world;
    QVERIFY(world.createProject("scene.one.txt"));
    QCOMPARE(world.paths.projPath(), world.path("scene.kzfx"));
    QVERIFY(QFile::exists(world.path("scene.kzfx")));
    QVERIFY(!QFile::exists(world.path("scene.one.txt")));
}

void TestProjectSaving::anotherFileThanTheOneTypedIsReplacedOnlyAfterAQuestion()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("scene.kzfx"), "precious");
    QVERIFY(!world.createProject("scene.txt"));
    QCOMPARE(world.timesAsked("ask"), 1);
    QCOMPARE(ProjectWorld::fileBytes(world.path("scene.kzfx")), QByteArray("precious"));
    world.dialogs.askAnswers.append(morvane::Dialogs::Answer::Yes);
    QVERIFY(world.createProject("scene.txt"));
}

void TestProjectSaving::dialogsStartInTheProjectsFolder()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QCOMPARE(world.dialogs.asked.last().caption, QStringLiteral("Save Project..."));
    QCOMPARE(world.dialogs.asked.last().start, world.paths.projDirPath());
    QVERIFY(world.dialogs.asked.last().filter.contains("*.kzfx"));
}

void TestProjectSaving::savingWithNoProjectLogsAndFails()
{
    ProjectWorld world;
    QTest::ignoreMessage(QtDebugMsg, "Project path is empty. Cannot save");
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProject));
}

void TestProjectSaving::savingWritesTheFrames()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.addFrame(1);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), 2);
}

void TestProjectSaving::savingWhileFramesAreCopiedWritesTheFileAndStaysDirty()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.operation.begin(Zum::OCopyFrames));
    QTest::ignoreMessage(QtDebugMsg, "saveProjectXmlFile: Zum::SaveProject. Thread is busy!");
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(ProjectWorld::fileBytes(world.path("p.kzfx")).contains("<Frame "));
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
    world.operation.end();
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(!world.global.projectChanged());
}

void TestProjectSaving::xmlOnlyLooksAtNoOperation()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.operation.begin(Zum::OCopyFrames));
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QVERIFY(!world.global.projectChanged());
    QVERIFY(world.life.allowQuietExit());
}

void TestProjectSaving::xmlOnlyWritesInTheBackground()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QVERIFY(!world.global.projectChanged());
    // What comes after it is not in it.
    world.addFrame(1);
    world.life.finishSaves();
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), 1);
    QVERIFY(world.global.projectChanged());
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QTRY_COMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), 2);
    QVERIFY(!world.global.projectChanged());
}

void TestProjectSaving::aFailedWriteInTheBackgroundHasTheProjectChangedAgain()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(QFile::remove(world.path("p.kzfx")));
    QVERIFY(ProjectWorld::writeFile(world.path("p.kzfx/old"), "kept"));
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QTRY_VERIFY(world.hasSaid("could not be saved", Zum::Error));
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx/old")), QByteArray("kept"));
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
}

void TestProjectSaving::aSaveComesAfterTheOneInTheBackground()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    for (int frames = 1; frames <= 20; ++frames) {
        world.addFrame(frames);
        QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
        QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
        QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
        QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), frames);
    }
    world.life.finishSaves();
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), 20);
}

void TestProjectSaving::closingWaitsForTheSaveInTheBackground()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    world.life.closeProject();
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")).count("<Frame "), 1);
    QVERIFY(world.life.allowQuietExit());
}

void TestProjectSaving::anotherProjectIsNotOpenedOverAFailedSaveInTheBackground()
{
    ProjectWorld world;
    const QString other = world.writeProject("q.kzfx", 1);
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(QFile::remove(world.path("p.kzfx")));
    QVERIFY(ProjectWorld::writeFile(world.path("p.kzfx/old"), "kept"));
    QSignalSpy confirm(&world.life, &ProjectLifecycle::confirmClose);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QCOMPARE(world.life.projectFileOpen(other), int(Zum::FileSelectionCanceled));
    QCOMPARE(confirm.count(), 1);
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
}

void TestProjectSaving::aFailedSaveTellsTheUserAndKeepsTheOldFile()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(QFile::remove(world.path("p.kzfx")));
    QVERIFY(ProjectWorld::writeFile(world.path("p.kzfx/old"), "kept"));
    const QString line = "Failed to open file '" + world.path("p.kzfx") + "' for writing";
    QTest::ignoreMessage(QtDebugMsg, qPrintable(line));
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(world.hasSaid("could not be saved", Zum::Error));
    QCOMPARE(world.messages.robotErrorCount(), 1);
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx/old")), QByteArray("kept"));
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
}

void TestProjectSaving::aFailedSaveForgetsWhatWaited()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(QFile::remove(world.path("p.kzfx")));
    QVERIFY(QDir().mkpath(world.path("p.kzfx/x")));
    world.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    QSignalSpy quit(&world.life, &ProjectLifecycle::quitRequested);
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(QDir(world.path("p.kzfx")).removeRecursively());
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(quit.count(), 0);
}

void TestProjectSaving::aProjectThatIsNotCompletelyLoadedIsNeverWritten()
{
    ProjectWorld world;
    const QString path = world.writeProject("p.kzfx", 3);
    const QByteArray before = ProjectWorld::fileBytes(path);
    QCOMPARE(world.life.projectFileOpen(path), int(Zum::FileIsOk));
    world.life.stopLoadingProject();
    QVERIFY(world.waitFree());
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProjectXMLonly));
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(ProjectWorld::fileBytes(path), before);
    QVERIFY(world.hasSaid("not loaded completely", Zum::Warning));
}

void TestProjectSaving::saveAsCopiesTheProjectAndMovesThere()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    const ProjectTree old = world.paths.tree();
    ProjectWorld::writeFile(old.refFullDirPath + "ref.jpg");
    ProjectWorld::writeFile(old.videoDirPath + "movie.avi");
    ProjectWorld::writeFile(old.backgroundDirPath + "bg.png");
    ProjectWorld::writeFile(old.tempDirPath + "cache/a_@90x60.jpg");
    ProjectWorld::writeFile(old.capRawDirPath + "frame.cr2");
    QSignalSpy operation(&world.operation, &ThreadOperation::currentThreadOperationChanged);
    QSignalSpy paths(&world.life, &ProjectLifecycle::projPathChanged);
    QStringList actions;
    connect(&world.progress, &ProgressState::progressActionChanged, this,
            [&] { actions.append(world.progress.progressAction()); });
    world.dialogs.pathAnswers.append(world.path("q.kzfx"));
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QCOMPARE(world.operation.currentThreadOperation(), int(Zum::OCopyFramesOnSaveAs));
    QCOMPARE(paths.last().first().toBool(), false);
    QVERIFY(world.waitFree());
    QCOMPARE(operation.count(), 2);
    QVERIFY(actions.contains("Save project as... [cap]"));
    QVERIFY(actions.contains("Save project as... [bg]"));
    const ProjectTree now = world.treeOf("q.kzfx");
    QCOMPARE(world.paths.projPath(), world.path("q.kzfx"));
    QVERIFY(QFile::exists(now.capFullDirPath + ProjectWorld::frameName(0)));
    QVERIFY(QFile::exists(now.capTumbDirPath + ProjectWorld::frameName(0, "mini")));
    QVERIFY(QFile::exists(now.capRawDirPath + "frame.cr2"));
    QVERIFY(QFile::exists(now.refFullDirPath + "ref.jpg"));
    QVERIFY(QFile::exists(now.videoDirPath + "movie.avi"));
    QVERIFY(QFile::exists(now.backgroundDirPath + "bg.png"));
    QVERIFY(QFile::exists(now.cacheDirPath + "a_@90x60.jpg"));
    QVERIFY(QFile::exists(old.capFullDirPath + ProjectWorld::frameName(0)));
    QVERIFY(world.life.allowQuietExit());
    QVERIFY(!world.global.projectChanged());
    QCOMPARE(world.progress.progressTotal(), 0);
    QVERIFY(!QFile::exists(ProjectLock::lockPath(world.path("p.kzfx"))));
    QVERIFY(QFile::exists(ProjectLock::lockPath(world.path("q.kzfx"))));
}

void TestProjectSaving::saveAsWhileBusyWritesTheFileAndCopiesNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(world.operation.begin(Zum::OMakeExpolist));
    world.dialogs.pathAnswers.append(world.path("q.kzfx"));
    QTest::ignoreMessage(QtDebugMsg,
                         "saveProjectXmlFile: Cannot copy frames on Save As project. Thread is busy");
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QVERIFY(ProjectWorld::fileBytes(world.path("q.kzfx")).contains("<Frame "));
    QVERIFY(!QFile::exists(world.treeOf("q.kzfx").capFullDirPath + ProjectWorld::frameName(0)));
    QVERIFY(world.global.projectChanged());
}

void TestProjectSaving::saveAsIntoTheSameFolderCopiesNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    const QString picture = world.paths.capFullDirPath() + ProjectWorld::frameName(0);
    const QDateTime before = QFileInfo(picture).lastModified();
    world.dialogs.pathAnswers.append(world.path("p.kzfx"));
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QVERIFY(world.waitFree());
    QCOMPARE(ProjectWorld::fileBytes(picture), QByteArray("picture"));
    QCOMPARE(QFileInfo(picture).lastModified(), before);
    QVERIFY(world.life.allowQuietExit());
}

void TestProjectSaving::saveAsIntoTheProjectsOwnFolderEnds()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    const QString inside = world.paths.capFullDirPath() + "q.kzfx";
    world.dialogs.pathAnswers.append(inside);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QVERIFY(world.waitFree());
    const ProjectTree now = ProjectTree::of(inside, {});
    QVERIFY(QFile::exists(now.capFullDirPath + ProjectWorld::frameName(0)));
    QVERIFY(!QFile::exists(now.capFullDirPath + "q_files"));
}

void TestProjectSaving::aFailedSaveAsStaysWithTheOldFile()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.dialogs.pathAnswers.append(world.path("nowhere/q.kzfx"));
    QVERIFY(!world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    QCOMPARE(world.paths.projPath(), world.path("p.kzfx"));
    QVERIFY(world.hasSaid("could not be saved", Zum::Error));
    QVERIFY(world.operation.isFree());
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
}

void TestProjectSaving::cancelDuringSaveAsTellsAndStaysDirty()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    for (int number = 0; number < 50; ++number)
        world.addFrame(number);
    world.dialogs.pathAnswers.append(world.path("q.kzfx"));
    connect(&world.operation, &ThreadOperation::currentThreadOperationChanged, &world.life, [&world] {
        if (!world.operation.isFree())
            QMetaObject::invokeMethod(&world.life, &ProjectLifecycle::stopLoadingProject,
                                      Qt::QueuedConnection);
    });
    ProjectTree old = world.paths.tree();
    // The copy is asked to stop before it can end: the folder is a thousand files deep.
    for (int number = 0; number < 1000; ++number)
        ProjectWorld::writeFile(old.videoDirPath + QString::number(number) + ".avi");
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    world.life.stopLoadingProject();
    QVERIFY(world.waitFree());
    QVERIFY(world.hasSaid("Copying was stopped", Zum::Warning));
    QVERIFY(world.global.projectChanged());
    QVERIFY(QFile::exists(old.capFullDirPath + ProjectWorld::frameName(0)));
}

void TestProjectSaving::changesDuringSaveAsStayUnsaved()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.dialogs.pathAnswers.append(world.path("q.kzfx"));
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAs));
    world.global.setGuidesOn(true);
    QVERIFY(world.waitFree());
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
}

void TestProjectSaving::aLegacyProjectIsAlwaysSavedAs()
{
    for (const int mode : {Zum::SaveProject, Zum::SaveProjectXMLonly, Zum::SaveProjectAndCleanup,
                           Zum::NewProject, Zum::SaveProjectAs}) {
        ProjectWorld world;
        QVERIFY(world.createProject("p.kzfx"));
        world.life.setLegacyProject(true);
        world.dialogs.pathAnswers.append(world.path("q.kzfx"));
        QVERIFY(world.life.saveProjectXmlFile(mode));
        QCOMPARE(world.dialogs.asked.last().caption, QStringLiteral("Save Project..."));
        QVERIFY(world.waitFree());
        QVERIFY(!world.life.legacyProject());
        QCOMPARE(world.paths.projPath(), world.path("q.kzfx"));
    }
}

void TestProjectSaving::saveAndCleanupRemovesWhatNothingNames()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.global.setBackgroundImage("used.png");
    const ProjectTree tree = world.paths.tree();
    ProjectWorld::writePictures(tree, 1);
    const QStringList removed{tree.capFullDirPath + ProjectWorld::frameName(1),
                              tree.refFullDirPath + "old.jpg", tree.extractedDirPath + "video.jpg",
                              tree.cacheDirPath + "a_@90x60.jpg", tree.backgroundDirPath + "old.png"};
    const QStringList kept{tree.capFullDirPath + ProjectWorld::frameName(0),
                           tree.capTumbDirPath + ProjectWorld::frameName(1, "mini"),
                           tree.backgroundDirPath + "used.png",
                           tree.videoDirPath + "movie.avi",
                           tree.capRawDirPath + "a.cr2",
                           tree.capFullDirPath + "nodot"};
    for (const QString &path : removed + kept)
        ProjectWorld::writeFile(path);
    QTest::qWait(10);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression("^Removed 1 files at 'cap' dir in \\d\\d\\.\\d\\d\\.\\d\\d$"));
    for (const char *folder : {"ref", "extracted", "cache", "bg"})
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(QString("^Removed 1 files at '%1' dir in ").arg(folder)));
    QStringList actions;
    connect(&world.progress, &ProgressState::progressActionChanged, this,
            [&] { actions.append(world.progress.progressAction()); });
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAndCleanup));
    QCOMPARE(world.operation.currentThreadOperation(), int(Zum::OCleanupProject));
    QVERIFY(world.waitFree());
    QVERIFY(actions.contains("Cleanup project dir 'cap'"));
    for (const QString &path : removed)
        QVERIFY2(!QFile::exists(path), qPrintable(path));
    for (const QString &path : kept)
        QVERIFY2(QFile::exists(path), qPrintable(path));
    QVERIFY(world.life.allowQuietExit());
    QVERIFY(!world.global.projectChanged());
}

void TestProjectSaving::saveAndCleanupWhileBusyOnlySaves()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    ProjectWorld::writePictures(world.paths.tree(), 1);
    QVERIFY(world.operation.begin(Zum::OCopyFrames));
    QTest::ignoreMessage(QtDebugMsg, "saveProjectXmlFile: Cannot cleanup on Save project. Thread is busy");
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAndCleanup));
    QVERIFY(QFile::exists(world.paths.capFullDirPath() + ProjectWorld::frameName(1)));
    QVERIFY(world.global.projectChanged());
}

void TestProjectSaving::cleanupKeepsThePicturesOfAProjectThatSharesTheFolder()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    ProjectWorld::writeFile(world.path("p.second.kzfx"));
    ProjectWorld::writePictures(world.paths.tree(), 1);
    const QString cached = world.paths.tree().cacheDirPath + "a.jpg";
    ProjectWorld::writeFile(cached);
    QTest::qWait(10);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProjectAndCleanup));
    QVERIFY(world.waitFree());
    QVERIFY(QFile::exists(world.paths.capFullDirPath() + ProjectWorld::frameName(1)));
    QVERIFY(!QFile::exists(cached));
    QVERIFY(world.hasSaid("uses the same folder", Zum::Warning));
}

void TestProjectSaving::cleaningTheExtractedPictures()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    const ProjectTree tree = world.paths.tree();
    ProjectWorld::writeFile(tree.extractedDirPath + "video.jpg");
    ProjectWorld::writeFile(tree.cacheDirPath + "a.jpg");
    QTest::qWait(10);
    world.global.setGuidesOn(true);
    QSignalSpy operation(&world.operation, &ThreadOperation::currentThreadOperationChanged);
    world.life.cleanExtractedDir();
    QVERIFY(world.waitFree());
    QCOMPARE(operation.count(), 3);
    QVERIFY(!QFile::exists(tree.extractedDirPath + "video.jpg"));
    QVERIFY(QFile::exists(tree.cacheDirPath + "a.jpg"));
    QVERIFY2(world.global.projectChanged(), "cleaning a folder saves nothing");
}

void TestProjectSaving::cleaningTheCacheNeedsAProject()
{
    ProjectWorld world;
    QSignalSpy operation(&world.operation, &ThreadOperation::currentThreadOperationChanged);
    world.life.cleanCacheDirs();
    QCOMPARE(operation.count(), 1);
    QVERIFY(world.operation.isFree());
    QVERIFY(world.createProject("p.kzfx"));
    const QString cached = world.paths.tree().cacheDirPath + "a.jpg";
    ProjectWorld::writeFile(cached);
    QTest::qWait(10);
    world.life.cleanCacheDirs();
    QCOMPARE(world.operation.currentThreadOperation(), int(Zum::OCleanupProject));
    QVERIFY(world.waitFree());
    QVERIFY(!QFile::exists(cached));
}

void TestProjectSaving::quittingAfterSaveAsWaitsForTheCopy()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.life.setLegacyProject(true);
    world.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    world.dialogs.pathAnswers.append(world.path("q.kzfx"));
    bool free = false;
    QSignalSpy quit(&world.life, &ProjectLifecycle::quitRequested);
    connect(&world.life, &ProjectLifecycle::quitRequested, this, [&] { free = world.operation.isFree(); });
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(quit.count(), 0);
    QVERIFY(world.waitFree());
    QTRY_COMPARE(quit.count(), 1);
    QVERIFY(free);
    QVERIFY(QFile::exists(world.treeOf("q.kzfx").capFullDirPath + ProjectWorld::frameName(0)));
}

QTEST_GUILESS_MAIN(TestProjectSaving)
#include "tst_projectsaving.moc"
