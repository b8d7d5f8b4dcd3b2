#include "ProjectWorld.h"

#include "project/OrphanImages.h"

#include <QImage>

/// Pictures that no frame names.
class TestOrphanImages : public QObject
{
    Q_OBJECT

private slots:
    void picturesThatNoFrameNamesAreFound();
    void theyComeByNumberThenTimeStampThenName();
    void otherFilesAreNoPictures();
    void leftPicturesAreNotFoundAgain();
    void withoutATemporaryFolderNothingIsRemembered();
    void aThumbnailIsFoundByNumberAndTimeStamp();
    void aMissingThumbnailIsMade();
    void aPictureThatCannotBeReadHasNoThumbnail();
    void theRecycleFolderKeepsBothPicturesOfOneName();
    void withoutAProjectThereAreNone();
};

void TestOrphanImages::picturesThatNoFrameNamesAreFound()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    for (int number = 0; number < 3; ++number)
        ProjectWorld::writePictures(tree, number);
    QCOMPARE(OrphanImages::find(tree, {ProjectWorld::frame(1)}),
             QStringList({ProjectWorld::frameName(0), ProjectWorld::frameName(2)}));
}

void TestOrphanImages::theyComeByNumberThenTimeStampThenName()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    const QStringList expected{"b_norm_000002_240101120001.jpg", "a_norm_000002_240101120002.jpg",
                               "mask_000010_230101120000.png", "a.jpg", "b.jpg"};
    for (const char *name : {"b.jpg", "mask_000010_230101120000.png", "a.jpg",
                             "a_norm_000002_240101120002.jpg", "b_norm_000002_240101120001.jpg"})
        ProjectWorld::writeFile(tree.capFullDirPath + name);
    QCOMPARE(OrphanImages::find(tree, {}), expected);
}

void TestOrphanImages::otherFilesAreNoPictures()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writeFile(tree.capFullDirPath + "notes.txt");
    ProjectWorld::writeFile(tree.capTumbDirPath + "small.jpg");
    ProjectWorld::writeFile(world.path("outside.jpg"));
    QVERIFY(QFile::link(world.path("outside.jpg"), tree.capFullDirPath + "link.jpg"));
    QCOMPARE(OrphanImages::find(tree, {}), QStringList());
}

void TestOrphanImages::leftPicturesAreNotFoundAgain()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 0);
    ProjectWorld::writePictures(tree, 1);
    QVERIFY(QDir().mkpath(tree.tempDirPath));
    QVERIFY(OrphanImages::leave({ProjectWorld::frameName(0)}, tree));
    QCOMPARE(OrphanImages::find(tree, {}), QStringList{ProjectWorld::frameName(1)});
    QVERIFY(OrphanImages::leave({ProjectWorld::frameName(1)}, tree));
    QCOMPARE(OrphanImages::find(tree, {}), QStringList());
}

void TestOrphanImages::withoutATemporaryFolderNothingIsRemembered()
{
    ProjectWorld world;
    ProjectTree tree = world.treeOf("p.kzfx");
    QVERIFY(!OrphanImages::leave({"a.jpg"}, tree));
    tree.tempDirPath.clear();
    QVERIFY(!OrphanImages::leave({"a.jpg"}, tree));
}

void TestOrphanImages::aThumbnailIsFoundByNumberAndTimeStamp()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writeFile(tree.capFullDirPath + "mask_000003_240101120000.png");
    ProjectWorld::writeFile(tree.capTumbDirPath + "mask_mini_000003_240101120000.jpg");
    ProjectWorld::writeFile(tree.capTumbDirPath + "mask_mini_000003_240101120001.jpg");
    const QList<ProjectFrame> frames =
        OrphanImages::asFrames({"mask_000003_240101120000.png"}, tree, {90, 60});
    QCOMPARE(frames.size(), 1);
    QCOMPARE(frames.first().capFull, QStringLiteral("mask_000003_240101120000.png"));
    QCOMPARE(frames.first().capTumb, QStringLiteral("mask_mini_000003_240101120000.jpg"));
}

void TestOrphanImages::aMissingThumbnailIsMade()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    QVERIFY(QDir().mkpath(tree.capTumbDirPath));
    QImage picture(1920, 1080, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(tree.capFullDirPath + ProjectWorld::frameName(3)));
    const QList<ProjectFrame> frames = OrphanImages::asFrames({ProjectWorld::frameName(3)}, tree, {90, 60});
    QCOMPARE(frames.first().capTumb, ProjectWorld::frameName(3, "mini"));
    QCOMPARE(QImage(tree.capTumbDirPath + frames.first().capTumb).size(), QSize(90, 50));
}

void TestOrphanImages::aPictureThatCannotBeReadHasNoThumbnail()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writeFile(tree.capFullDirPath + "broken.jpg", "no picture");
    const QList<ProjectFrame> frames = OrphanImages::asFrames({"broken.jpg"}, tree, {90, 60});
    QCOMPARE(frames.first().capTumb, QString());
    QCOMPARE(frames.first().capFull, QStringLiteral("broken.jpg"));
}

void TestOrphanImages::theRecycleFolderKeepsBothPicturesOfOneName()
{
    ProjectWorld world;
    const ProjectTree tree = world.treeOf("p.kzfx");
    ProjectWorld::writePictures(tree, 3, "first");
    QCOMPARE(OrphanImages::moveToRecycleFolder({ProjectWorld::frameName(3)}, tree), 0);
    ProjectWorld::writePictures(tree, 3, "second");
    QCOMPARE(OrphanImages::moveToRecycleFolder({ProjectWorld::frameName(3)}, tree), 0);
    QCOMPARE(ProjectWorld::fileBytes(tree.recycleBinDirPath + ProjectWorld::frameName(3)),
             QByteArray("first"));
    QCOMPARE(QDir(tree.recycleBinDirPath).entryList(QDir::Files).size(), 4);
    QCOMPARE(OrphanImages::moveToRecycleFolder({"gone.jpg"}, tree), 1);
}

void TestOrphanImages::withoutAProjectThereAreNone()
{
    QCOMPARE(OrphanImages::find({}, {}), QStringList());
}

QTEST_GUILESS_MAIN(TestOrphanImages)
#include "tst_orphanimages.moc"
