#include "ProjectWorld.h"

#include <QSignalSpy>

/// Dirty tracking, autosave, the save question, closing and renaming.
class TestProjectDirty : public QObject
{
    Q_OBJECT

private slots:
    void aChangeWithoutAProjectDoesNothing();
    void aChangeMakesTheProjectDirtyAndWakesAutosave();
    void everySourceOfChangeCounts();
    void aSaveMakesTheProjectClean();
    void savedWithoutAProjectDoesNothing();
    void aSaveThenQuitsWithoutForce();
    void aSaveThenOpensTheWaitingProject();
    void aSaveThenCreatesTheNewProject();
    void anyOtherWaitingActionIsForgotten();
    void autosaveWithNoChangePausesItself();
    void autosaveWithAChangeSaves();
    void autosaveWithoutAProjectDoesNothing();
    void autosaveSettingsAreLimitedAndStored();
    void aFirstRunSavesEveryThreeMinutes();
    void closingAsksNothingAndForgetsTheProject();
    void closingKeepsWhatBelongsToTheScreen();
    void renamingLogsAndRenamesNothing();
    void renamingRefusesAnExistingFile();
    void renamingRefusesAnExistingFolder();
    void recentProjectsTakeTheOpenOne();
};

void TestProjectDirty::aChangeWithoutAProjectDoesNothing()
{
    ProjectWorld world;
    emit world.global.changed();
    QVERIFY(!world.global.projectChanged());
    QVERIFY(world.life.allowQuietExit());
}

void TestProjectDirty::aChangeMakesTheProjectDirtyAndWakesAutosave()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.life.setPauseAutosave(true);
    QSignalSpy quiet(&world.life, &ProjectLifecycle::allowQuietExitChanged);
    QSignalSpy modified(&world.life, &ProjectLifecycle::windowModifiedChanged);
    world.global.setGridOn(true);
    QVERIFY(world.global.projectChanged());
    QVERIFY(!world.life.allowQuietExit());
    QCOMPARE(quiet.count(), 1);
    QCOMPARE(modified.last().first().toBool(), true);
    QVERIFY(!world.life.pauseAutosave());
}

void TestProjectDirty::everySourceOfChangeCounts()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    const auto becomesDirty = [&world](const std::function<void()> &change) {
        world.global.setProjectChanged(false);
        change();
        return world.global.projectChanged();
    };
    QVERIFY(becomesDirty([&world] { emit world.global.changed(); }));
    QVERIFY(becomesDirty([&world] { emit world.global.globalSave(); }));
    QVERIFY(becomesDirty([&world] { emit world.model.changed(); }));
}

void TestProjectDirty::aSaveMakesTheProjectClean()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QVERIFY(!world.life.allowQuietExit());
    QSignalSpy modified(&world.life, &ProjectLifecycle::windowModifiedChanged);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QVERIFY(world.life.allowQuietExit());
    QVERIFY(!world.global.projectChanged());
    QCOMPARE(modified.last().first().toBool(), false);
}

void TestProjectDirty::savedWithoutAProjectDoesNothing()
{
    ProjectWorld world;
    world.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    QSignalSpy quit(&world.life, &ProjectLifecycle::quitRequested);
    emit world.global.saved();
    QCOMPARE(quit.count(), 0);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::QuitAfterConfirm));
}

void TestProjectDirty::aSaveThenQuitsWithoutForce()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.global.setAfterConfirmAction(Zum::QuitAfterConfirm);
    QSignalSpy quit(&world.life, &ProjectLifecycle::quitRequested);
    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(quit.count(), 1);
    QCOMPARE(quit.first().first().toBool(), false);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestProjectDirty::aSaveThenOpensTheWaitingProject()
{
    ProjectWorld world;
    const QString other = world.writeProject("other.kzfx", 2);
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(7);
    QSignalSpy question(&world.life, &ProjectLifecycle::confirmClose);
    QCOMPARE(world.life.projectFileOpen(other), int(Zum::FileSelectionCanceled));
    QCOMPARE(question.count(), 1);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::OpenProjectAfterConfirm));
    QCOMPARE(world.global.openProjectAfterConfirmPath(), other);
    QCOMPARE(world.rowNames(), QStringList{ProjectWorld::frameName(7)});

    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QTRY_COMPARE(world.model.framesCount(), 2);
    QTRY_VERIFY(world.life.projectLoaded());
    QCOMPARE(world.paths.projPath(), other);
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestProjectDirty::aSaveThenCreatesTheNewProject()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    QSignalSpy question(&world.life, &ProjectLifecycle::confirmClose);
    QVERIFY(!world.createProject("second.kzfx"));
    QCOMPARE(question.count(), 1);
    QCOMPARE(world.timesAsked("save"), 1);
    QCOMPARE(world.paths.projName(), QStringLiteral("p"));

    QVERIFY(world.life.saveProjectXmlFile(Zum::SaveProject));
    QCOMPARE(world.timesAsked("save"), 2);
    QCOMPARE(world.paths.projName(), QStringLiteral("second"));
    QCOMPARE(world.model.framesCount(), 0);
    QVERIFY(world.life.projectLoaded());
    QVERIFY(ProjectWorld::fileBytes(world.path("p.kzfx")).contains("frame_norm_000000"));
}

void TestProjectDirty::anyOtherWaitingActionIsForgotten()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.global.setAfterConfirmAction(4711);
    emit world.global.saved();
    QCOMPARE(world.global.afterConfirmAction(), int(Zum::NoAfterConfirmAction));
}

void TestProjectDirty::autosaveWithNoChangePausesItself()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QSignalSpy autosave(&world.global, &WebcamGlobal::autosave);
    world.life.autosaveTick();
    QVERIFY(world.life.pauseAutosave());
    QCOMPARE(autosave.count(), 0);
    world.global.setGridOn(true);
    QVERIFY(!world.life.pauseAutosave());
}

void TestProjectDirty::autosaveWithAChangeSaves()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.global.setGridOn(true);
    QSignalSpy autosave(&world.global, &WebcamGlobal::autosave);
    world.life.autosaveTick();
    QCOMPARE(autosave.count(), 1);
    QVERIFY(!world.life.pauseAutosave());
}

void TestProjectDirty::autosaveWithoutAProjectDoesNothing()
{
    ProjectWorld world;
    QSignalSpy autosave(&world.global, &WebcamGlobal::autosave);
    world.life.autosaveTick();
    QCOMPARE(autosave.count(), 0);
    QVERIFY(!world.life.pauseAutosave());
}

void TestProjectDirty::autosaveSettingsAreLimitedAndStored()
{
    ProjectWorld world;
    QSignalSpy delay(&world.life, &ProjectLifecycle::autosaveDelayChanged);
    world.life.setAutosaveDelay(61);
    QCOMPARE(world.life.autosaveDelay(), 60);
    QCOMPARE(world.settings.value("autosaveDelay").toInt(), 60);
    world.life.setAutosaveDelay(2);
    QCOMPARE(world.life.autosaveDelay(), 3);
    QCOMPARE(delay.count(), 2);
    world.life.setPerformAutosave(false);
    QCOMPARE(world.settings.value("performAutosave").toBool(), false);
    QVERIFY(!world.life.performAutosave());
}

void TestProjectDirty::aFirstRunSavesEveryThreeMinutes()
{
    ProjectWorld world;
    QVERIFY(world.life.performAutosave());
    QCOMPARE(world.life.autosaveDelay(), 3);
}

void TestProjectDirty::closingAsksNothingAndForgetsTheProject()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    const QByteArray before = ProjectWorld::fileBytes(world.path("p.kzfx"));
    QSignalSpy question(&world.life, &ProjectLifecycle::confirmClose);
    QSignalSpy disconnected(&world.life, &ProjectLifecycle::disconnectModel);
    QSignalSpy title(&world.life, &ProjectLifecycle::titleChanged);
    QSignalSpy loaded(&world.life, &ProjectLifecycle::projLoadedChanged);
    world.life.closeProject();
    QCOMPARE(question.count(), 0);
    QCOMPARE(disconnected.count(), 1);
    QCOMPARE(title.count(), 1);
    QCOMPARE(loaded.count(), 1);
    QVERIFY(world.life.allowQuietExit());
    QVERIFY(!world.life.projectLoaded());
    QVERIFY(!world.model.loaded());
    QCOMPARE(world.model.framesCount(), 0);
    QCOMPARE(world.paths.projPath(), QString());
    QCOMPARE(world.paths.videoDirPath(), QString());
    QCOMPARE(ProjectWorld::fileBytes(world.path("p.kzfx")), before);
    QVERIFY(!QFile::exists(ProjectLock::lockPath(world.path("p.kzfx"))));
}

void TestProjectDirty::closingKeepsWhatBelongsToTheScreen()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.global.setGrayscale(true);
    world.global.setCrossOn(true);
    world.global.setMarginsOpacity(0.3);
    world.global.setFlipFlopDuration(2000);
    world.global.setCamindex(3);
    world.global.setGuidesOn(true);
    world.global.setMovieTitle("Title");
    world.global.setPostProcessSettings({{"contrast", "5"}});
    world.global.setChromakeyColorValue({{"hue", 1}});
    world.neighbours.bytes = "path";
    QSignalSpy grayscale(&world.global, &WebcamGlobal::grayscaleChanged);
    world.life.closeProject();
    QVERIFY(world.global.grayscale());
    QCOMPARE(grayscale.count(), 0);
    QVERIFY(world.global.crossOn());
    QCOMPARE(world.global.marginsOpacity(), 0.3);
    QCOMPARE(world.global.flipFlopDuration(), 2000);
    QCOMPARE(world.global.camindex(), 3);
    QVERIFY(!world.global.guidesOn());
    QCOMPARE(world.global.movieTitle(), QString());
    QVERIFY(world.global.postProcessSettings().isEmpty());
    QVERIFY(world.global.chromakeyColorValue().isEmpty());
    QVERIFY(world.neighbours.bytes.isEmpty());
}

void TestProjectDirty::renamingLogsAndRenamesNothing()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    const QString from = world.path("p.kzfx");
    const QString to = world.path("new.kzfx");
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QString("will rename project file %1 to %2").arg(from, to)));
    QTest::ignoreMessage(QtDebugMsg, qPrintable(QString("will rename project dir %1 to %2")
                                                    .arg(world.path("p_files/"), world.path("new_files"))));
    world.life.renameProject("n:e*w");
    QVERIFY(QFile::exists(from));
    QVERIFY(!QFile::exists(to));
    QCOMPARE(world.timesAsked("warn"), 0);
}

void TestProjectDirty::renamingRefusesAnExistingFile()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    ProjectWorld::writeFile(world.path("new.kzfx"));
    world.life.renameProject("new");
    QCOMPARE(world.dialogs.asked.last().caption, QStringLiteral("File Already Exists"));
    QCOMPARE(world.dialogs.asked.last().start,
             QStringLiteral("Cannot create a file when file already exists"));
}

void TestProjectDirty::renamingRefusesAnExistingFolder()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    QVERIFY(QDir().mkpath(world.path("new_files")));
    world.life.renameProject("new");
    QCOMPARE(world.dialogs.asked.last().caption, QStringLiteral("Folder Already Exists"));
    QCOMPARE(world.dialogs.asked.last().start,
             "Cannot create a folder when folder already exists: " + world.path("new_files"));
}

void TestProjectDirty::recentProjectsTakeTheOpenOne()
{
    ProjectWorld world;
    QVERIFY(world.createProject("p.kzfx"));
    world.addFrame(0);
    world.model.setCurrentIndex(0);
    world.life.addLastProject();
    const QVariantMap entry = world.settings.groupValues("lastprojects").value("p").toMap();
    QCOMPARE(entry.value("path").toString(), world.path("p.kzfx"));
    QCOMPARE(entry.value("frames").toInt(), 1);
    QCOMPARE(entry.value("framesize").toString(), QStringLiteral("1280 x 720"));
    QVERIFY(entry.value("tmb").toString().endsWith(ProjectWorld::frameName(0, "mini")));
}

QTEST_GUILESS_MAIN(TestProjectDirty)
#include "tst_projectdirty.moc"
