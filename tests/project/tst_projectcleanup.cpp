#include "ProjectWorld.h"

#include "project/PoolProgress.h"
#include "support/OrdinaryUser.h"

/// Which files a cleanup removes.
class TestProjectCleanup : public QObject
{
    Q_OBJECT

private slots:
    void eachFlagStandsForOneFolder_data();
    void eachFlagStandsForOneFolder();
    void aPictureWrittenSinceThenStays();
    void subfoldersAndNamesWithoutADotStay();
    void withoutAProjectNothingIsRemoved();
    void aFileThatStaysIsLoggedAndCounted();
    void cancelStopsBetweenTwoFiles();
    void projectsWithOneBaseNameShareAFolder();

private:
    static ProjectCleanup::Outcome clean(ProjectWorld &world, ProjectCleanup::Folders folders,
                                         const ProjectTree &tree, const ProjectCleanup::Keep &keep)
    {
        const auto progress = std::make_shared<PoolProgress>(world.progress);
        return ProjectCleanup::run(*progress, folders, keep, tree);
    }
    static ProjectCleanup::Keep keepNothing()
    {
        return ProjectCleanup::Keep::of({}, {}, QDateTime::currentDateTime().addSecs(60));
    }
};

void TestProjectCleanup::eachFlagStandsForOneFolder_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<QString>("folder");
    QTest::newRow("captured") << int(ProjectCleanup::Captured) << "cap";
    QTest::newRow("reference") << int(ProjectCleanup::Reference) << "ref";
    QTest::newRow("extracted") << int(ProjectCleanup::Extracted) << "tmp/extracted";
    QTest::newRow("cache") << int(ProjectCleanup::Cache) << "tmp/cache";
    QTest::newRow("background") << int(ProjectCleanup::Background) << "bg";
}

void TestProjectCleanup::eachFlagStandsForOneFolder()
{
    QFETCH(const int, flag);
    QFETCH(const QString, folder);
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    const QStringList folders{"cap", "ref", "tmp/extracted", "tmp/cache", "bg", "video", "tmp", "cap/tmb"};
    for (const QString &name : folders)
        ProjectWorld::writeFile(tree.projContntDirPath + name + "/a.jpg");
    QCOMPARE(clean(world, ProjectCleanup::Folders::fromInt(flag), tree, keepNothing()).removed, 1);
    for (const QString &name : folders)
        QCOMPARE(QFile::exists(tree.projContntDirPath + name + "/a.jpg"), name != folder);
}

void TestProjectCleanup::aPictureWrittenSinceThenStays()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 0);
    const auto keep = ProjectCleanup::Keep::of({}, {}, QDateTime::currentDateTime().addSecs(-60));
    QCOMPARE(clean(world, ProjectCleanup::Captured, tree, keep).removed, 0);
    QVERIFY(QFile::exists(tree.capFullDirPath + ProjectWorld::frameName(0)));
}

void TestProjectCleanup::subfoldersAndNamesWithoutADotStay()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writeFile(tree.capFullDirPath + "nodot");
    ProjectWorld::writeFile(tree.capFullDirPath + "folder.jpg/inside.jpg");
    QCOMPARE(clean(world, ProjectCleanup::allFolders, tree, keepNothing()).removed, 0);
    QVERIFY(QFile::exists(tree.capFullDirPath + "nodot"));
    QVERIFY(QFile::exists(tree.capFullDirPath + "folder.jpg/inside.jpg"));
}

void TestProjectCleanup::withoutAProjectNothingIsRemoved()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a.jpg"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(world.dir.path()));
    QCOMPARE(clean(world, ProjectCleanup::allFolders, {}, keepNothing()).removed, 0);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QFile::exists(world.path("a.jpg")));
}

void TestProjectCleanup::aFileThatStaysIsLoggedAndCounted()
{
#ifdef Q_OS_UNIX
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    const QString kept = tree.cacheDirPath + "a.jpg";
    ProjectWorld::writeFile(kept);
    QVERIFY(QFile::setPermissions(tree.cacheDirPath, QFile::Permissions(0x5555)));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression("^Failed to remove file " + kept + " ."));
    const ProjectCleanup::Outcome outcome = [&] {
        const OrdinaryUser user(world.dir.path());
        return clean(world, ProjectCleanup::Cache, tree, keepNothing());
    }();
    QVERIFY(QFile::setPermissions(tree.cacheDirPath, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(outcome.removed, 0);
    QCOMPARE(outcome.failed, 1);
#endif
}

void TestProjectCleanup::cancelStopsBetweenTwoFiles()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 0);
    const auto progress = std::make_shared<PoolProgress>(world.progress);
    progress->cancel();
    QCOMPARE(ProjectCleanup::run(*progress, ProjectCleanup::allFolders, keepNothing(), tree).removed, 0);
    QVERIFY(QFile::exists(tree.capFullDirPath + ProjectWorld::frameName(0)));
}

void TestProjectCleanup::projectsWithOneBaseNameShareAFolder()
{
    ProjectWorld world;
    ProjectWorld::writeFile(world.path("a.b.kzfx"));
    ProjectWorld::writeFile(world.path("b.kzfx"));
    QVERIFY(!ProjectCleanup::sharesContentFolder(world.treeOf("a.b.kzfx")));
    ProjectWorld::writeFile(world.path("a.c.kzf"));
    QVERIFY(ProjectCleanup::sharesContentFolder(world.treeOf("a.b.kzfx")));
    QVERIFY(!ProjectCleanup::sharesContentFolder(world.treeOf("b.kzfx")));
    QVERIFY(!ProjectCleanup::sharesContentFolder({}));
}

QTEST_GUILESS_MAIN(TestProjectCleanup)
#include "tst_projectcleanup.moc"
