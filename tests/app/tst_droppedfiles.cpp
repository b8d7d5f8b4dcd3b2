#include "app/DroppedFiles.h"
#include "shared/Zum.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using Kind = DroppedFile::Kind;

class TestDroppedFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void singleFile_data();
    void singleFile();
    void droppingTwoFilesAtOnceDoesNothing();
    void noFileDoesNothing();

private:
    QString make(const QString &name, bool executable = false);

    QTemporaryDir folder;
};

void TestDroppedFiles::initTestCase()
{
    QVERIFY(folder.isValid());
    QVERIFY(QDir(folder.path()).mkdir("folder.png"));
}

QString TestDroppedFiles::make(const QString &name, bool executable)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return QString();
    if (executable)
        file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    return file.fileName();
}

void TestDroppedFiles::singleFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("tab");
    QTest::addColumn<Kind>("kind");
    const int capture = Zum::CaptureTab;
    const int video = Zum::VideoTab;
    QTest::newRow("project") << "a.kzfx" << capture << Kind::Project;
    QTest::newRow("project, capitals") << "b.KZFX" << capture << Kind::Project;
    QTest::newRow("project on the video tab") << "c.kzfx" << video << Kind::Project;
    QTest::newRow("legacy project") << "a.kzf" << capture << Kind::Nothing;
    QTest::newRow("video on the video tab") << "a.webm" << video << Kind::Video;
    QTest::newRow("video elsewhere") << "a.webm" << capture << Kind::Nothing;
    QTest::newRow("picture") << "a.png" << capture << Kind::Image;
    QTest::newRow("picture with blanks and letters of the user")
        << "мой кадр 1.JPG" << capture << Kind::Image;
    QTest::newRow("picture with per cent signs") << "50%25.png" << capture << Kind::Image;
    QTest::newRow("text") << "a.txt" << capture << Kind::Nothing;
    QTest::newRow("no suffix") << "picture" << capture << Kind::Nothing;
}

void TestDroppedFiles::singleFile()
{
    QFETCH(QString, name);
    QFETCH(int, tab);
    QFETCH(Kind, kind);
    const QString path = make(name);
    const DroppedFile file = droppedFile({QUrl::fromLocalFile(path)}, tab);
    QCOMPARE(file.kind, kind);
    if (kind != Kind::Nothing)
        QCOMPARE(file.path, path);
}

void TestDroppedFiles::droppingTwoFilesAtOnceDoesNothing()
{
    const QUrl one = QUrl::fromLocalFile(make("one.png"));
    const QUrl two = QUrl::fromLocalFile(make("two.kzfx"));
    QCOMPARE(droppedFile({one, two}, Zum::CaptureTab).kind, Kind::Nothing);
}

void TestDroppedFiles::noFileDoesNothing()
{
    QCOMPARE(droppedFile({}, Zum::CaptureTab).kind, Kind::Nothing);
    QCOMPARE(droppedFile({QUrl::fromLocalFile(folder.filePath("gone.png"))}, Zum::CaptureTab).kind,
             Kind::Nothing);
    QCOMPARE(droppedFile({QUrl::fromLocalFile(folder.filePath("folder.png"))}, Zum::CaptureTab).kind,
             Kind::Nothing);
    QCOMPARE(droppedFile({QUrl::fromLocalFile(make("program.png", true))}, Zum::CaptureTab).kind,
             Kind::Nothing);
}

QTEST_GUILESS_MAIN(TestDroppedFiles)
#include "tst_droppedfiles.moc"
