#include "app/CommandLine.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noArgument();
    void existingProject();
    void existingProjectAsUrl();
    void relativePathBecomesAbsolute();
    void missingFileIsLogged();
    void unknownOptionIsTakenForAFileThatIsNotThere();
    void noPathIsLogged();
    void folderIsNoProject();
    void helpAndVersionAreAnsweredInWords();
    void cameraIsTheFileBehindItsOption();
    void projectIsFoundBesideTheCamera();
    void cameraWithoutAFileIsLogged();

private:
    QTemporaryDir folder;
    QString path;
};

void TestCommandLine::initTestCase()
{
    path = folder.filePath("film.kzfx");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void TestCommandLine::cameraIsTheFileBehindItsOption()
{
    QCOMPARE(commandline::cameraFile({"morvane"}), QString());
    QCOMPARE(commandline::cameraFile({"morvane", path}), QString());
    QCOMPARE(commandline::cameraFile({"morvane", "--camera", "/a/film.avi"}), "/a/film.avi");
    QCOMPARE(commandline::cameraFile({"morvane", path, "--camera", "film.avi"}),
             QDir::current().absoluteFilePath("film.avi"));
    QCOMPARE(commandline::cameraFile({"morvane", "--camera", "file:///a/film.avi"}), "/a/film.avi");
    QVERIFY(commandline::informationText({"morvane", "--help"}).contains("--camera FILE"));
}

void TestCommandLine::projectIsFoundBesideTheCamera()
{
    QCOMPARE(commandline::projectPath({"morvane", "--camera", "/a/film.avi"}), QString());
    QCOMPARE(commandline::projectPath({"morvane", "--camera", "/a/film.avi", path}), path);
    QCOMPARE(commandline::projectPath({"morvane", path, "--camera", "/a/film.avi"}), path);
}

void TestCommandLine::cameraWithoutAFileIsLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "The option --camera needs a file");
    QCOMPARE(commandline::cameraFile({"morvane", "--camera"}), QString());
}

void TestCommandLine::noArgument()
{
    QCOMPARE(commandline::projectPath({"morvane"}), QString());
    QCOMPARE(commandline::projectPath({}), QString());
}

void TestCommandLine::existingProject()
{
    QCOMPARE(commandline::projectPath({"morvane", path}), path);
}

void TestCommandLine::existingProjectAsUrl()
{
    QCOMPARE(commandline::projectPath({"morvane", QUrl::fromLocalFile(path).toString()}), path);
}

void TestCommandLine::relativePathBecomesAbsolute()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    QCOMPARE(commandline::projectPath({"morvane", "film.kzfx"}),
             QDir::current().absoluteFilePath("film.kzfx"));
    QDir::setCurrent(before);
}

void TestCommandLine::missingFileIsLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "Cannot find project file at /nowhere/film.kzfx");
    QCOMPARE(commandline::projectPath({"morvane", "/nowhere/film.kzfx"}), QString());
}

void TestCommandLine::unknownOptionIsTakenForAFileThatIsNotThere()
{
    QTest::ignoreMessage(QtWarningMsg, "Cannot find project file at --colour");
    QCOMPARE(commandline::projectPath({"morvane", "--colour"}), QString());
}

void TestCommandLine::noPathIsLogged()
{
    QTest::ignoreMessage(QtWarningMsg, "Given commandline parameter is not a path");
    QCOMPARE(commandline::projectPath({"morvane", "http://[bad"}), QString());
}

void TestCommandLine::folderIsNoProject()
{
    QTest::ignoreMessage(QtWarningMsg, qPrintable("Cannot find project file at " + folder.path()));
    QCOMPARE(commandline::projectPath({"morvane", folder.path()}), QString());
}

void TestCommandLine::helpAndVersionAreAnsweredInWords()
{
    QVERIFY(commandline::informationText({"morvane", "--help"}).startsWith("Usage: morvane"));
    QVERIFY(commandline::informationText({"morvane", "-h"}).startsWith("Usage: morvane"));
    QVERIFY(commandline::informationText({"morvane", "--version"}).startsWith("Morvane Capture 3.9.7."));
    QVERIFY(commandline::informationText({"morvane", path}).isEmpty());
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
