#include "DemoRun.h"

#include "app/DemoCommand.h"
#include "shared/Names.h"
#include "shared/RecentProjects.h"
#include "support/ShellWindow.h"

#include <csignal>
#include <QDir>
#include <QStandardPaths>
#include <QTest>

/// The program with "--demo" and without a screen.
class TestDemoCommand : public QObject
{
    Q_OBJECT

private slots:
    void isAskedForByItsOption();
    void folderIsTheOneNamedOrTheOneOfMovies();
    void whatMakesNoSenseIsRefused_data();
    void whatMakesNoSenseIsRefused();
    void eachRunMakesAFolder();
    void platformIsWhatThereIs_data();
    void platformIsWhatThereIs();
    void wholeDemoWithoutAScreen();
    void folderThatCannotBeMade();
    void fullDiskEndsTheShooting();
    void fullDiskEndsTheRender();
    void interruptLeavesAWholeProject_data();
    void interruptLeavesAWholeProject();

private:
    static void openAgain(const QString &path);
};

void TestDemoCommand::isAskedForByItsOption()
{
    QVERIFY(DemoCommand::isAsked({"morvane", "--demo"}));
    QVERIFY(DemoCommand::isAsked({"morvane", "--demo", "/tmp"}));
    QVERIFY(!DemoCommand::isAsked({"morvane", "demo.kzfx"}));
}

void TestDemoCommand::folderIsTheOneNamedOrTheOneOfMovies()
{
    QString error;
    QCOMPARE(DemoCommand::parentFolder({"morvane", "--demo", "/a/b"}, error), "/a/b");
    QCOMPARE(DemoCommand::parentFolder({"morvane", "--demo", "b"}, error),
             QDir::current().absoluteFilePath("b"));
    QCOMPARE(DemoCommand::parentFolder({"morvane", "--demo"}, error),
             QStandardPaths::writableLocation(QStandardPaths::MoviesLocation));
    QCOMPARE(error, QString());
}

void TestDemoCommand::whatMakesNoSenseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("two folders") << QStringList{"--demo", "a", "b"};
    QTest::newRow("folder first") << QStringList{"a", "--demo"};
    QTest::newRow("another option") << QStringList{"--demo", "--fast"};
    QTest::newRow("no name") << QStringList{"--demo", ""};
}

void TestDemoCommand::whatMakesNoSenseIsRefused()
{
    QFETCH(QStringList, arguments);
    DemoRun run;
    run.start(arguments);
    QCOMPARE(run.end(), int(DemoCommand::WrongUsage));
    QVERIFY(run.complaints().startsWith("Use --demo alone, or with the folder"));
    QCOMPARE(run.said(), QString());
}

void TestDemoCommand::eachRunMakesAFolder()
{
    QTemporaryDir folder;
    QString text;
    QTextStream stream(&text);
    for (const char *name : {"morvane-demo", "morvane-demo-2", "morvane-demo-3"}) {
        DemoCommand command(stream, stream);
        QVERIFY(command.makeFolder(folder.filePath("new/one")));
        QVERIFY(QDir(folder.filePath("new/one/") + name).exists());
    }
    QCOMPARE(QDir(folder.filePath("new/one")).count(), 5u);
    QCOMPARE(text, QString());
}

void TestDemoCommand::platformIsWhatThereIs_data()
{
    QTest::addColumn<QByteArray>("display");
    QTest::addColumn<QByteArray>("wayland");
    QTest::addColumn<QByteArray>("named");
    QTest::addColumn<QByteArray>("chosen");
    QTest::newRow("nothing") << QByteArray() << QByteArray() << QByteArray() << QByteArray("offscreen");
    QTest::newRow("screen") << QByteArray(":0") << QByteArray() << QByteArray()
                            << QByteArray("xcb;offscreen");
    QTest::newRow("wayland") << QByteArray() << QByteArray("w") << QByteArray()
                             << QByteArray("wayland;offscreen");
    QTest::newRow("both") << QByteArray(":0") << QByteArray("w") << QByteArray()
                          << QByteArray("xcb;wayland;offscreen");
    QTest::newRow("named") << QByteArray(":0") << QByteArray() << QByteArray("vnc") << QByteArray("vnc");
}

void TestDemoCommand::platformIsWhatThereIs()
{
    QFETCH(QByteArray, display);
    QFETCH(QByteArray, wayland);
    QFETCH(QByteArray, named);
    QFETCH(QByteArray, chosen);
    const auto set = [](const char *name, const QByteArray &value) {
        const QByteArray before = qgetenv(name);
        value.isEmpty() ? qunsetenv(name) : qputenv(name, value);
        return before;
    };
    const QByteArray displayBefore = set("DISPLAY", display);
    const QByteArray waylandBefore = set("WAYLAND_DISPLAY", wayland);
    const QByteArray platformBefore = set("QT_QPA_PLATFORM", named);
    DemoCommand::choosePlatform();
    const QByteArray found = set("QT_QPA_PLATFORM", platformBefore);
    set("DISPLAY", displayBefore);
    set("WAYLAND_DISPLAY", waylandBefore);
    QCOMPARE(found, chosen);
}

void TestDemoCommand::wholeDemoWithoutAScreen()
{
    DemoRun run;
    run.environment.remove("DISPLAY");
    run.environment.remove("WAYLAND_DISPLAY");
    {
        Settings settings(run.settingsPath());
        settings.setValue("currentCapturingDevice", 0);
        settings.setValue("lastWebcamIndex", 7);
        settings.setValue("framestocapture", 5);
        settings.setValue("renderVideoFormat", "mkv");
        RecentProjects(settings).add({.name = "mine",
                                      .path = "/films/mine.kzfx",
                                      .frames = 3,
                                      .frameSize = {8, 8},
                                      .thumbnailUrl = {}});
    }
    const auto kept = [&run] {
        const Settings settings(run.settingsPath());
        return QVariantList{settings.value("currentCapturingDevice"),
                            settings.value("lastWebcamIndex"),
                            settings.value("framestocapture"),
                            settings.value("renderVideoFormat"),
                            settings.contains("lastprojdirpath"),
                            settings.contains("mainwindow/geometry"),
                            settings.groupValues(morvane::lastProjectsKey).value("mine")};
    };
    const QVariantList before = kept();
    QVERIFY(QDir().mkpath(run.path("films it's/morvane-demo")));

    run.start({"--demo", run.path("films it's")});
    const int code = run.end();
    QCOMPARE(run.complaints(), QString());
    QCOMPARE(code, int(DemoCommand::AllDone));
    const QString folder = run.path("films it's/morvane-demo-2");
    QVERIFY(QDir(run.path("films it's/morvane-demo")).isEmpty());
    const QStringList lines = run.said().split('\n');
    QCOMPARE(lines.size(), 13);
    QCOMPARE(lines.first(), "A demo of 24 frames on twos, without a window");
    QCOMPARE(lines.at(8), "Project: " + folder + "/morvane-demo.kzfx");
    QCOMPARE(lines.at(9), "WebM:    " + folder + "/morvane-demo_files/video/demo.webm");
    QCOMPARE(lines.at(10), "AVI:     " + folder + "/morvane-demo_files/video/demo.avi");
    QCOMPARE(lines.at(11).section(" '", 2),
             run.path("films it'\\''s/morvane-demo-2/morvane-demo.kzfx") + '\'');
    DemoRun::checkWhole(folder);
    if (QTest::currentTestFailed())
        return;

    QCOMPARE(kept(), before);
    const QVariantMap recent =
        Settings(run.settingsPath()).groupValues(morvane::lastProjectsKey).value("morvane-demo").toMap();
    QCOMPARE(recent.value("path").toString(), folder + "/morvane-demo.kzfx");
    QCOMPARE(recent.value("frames").toInt(), 24);
    QCOMPARE(recent.value("framesize").toString(), "1280 x 720");
    QVERIFY(QFile::exists(QUrl(recent.value("tmb").toString()).toLocalFile()));
    openAgain(folder + "/morvane-demo.kzfx");
}

void TestDemoCommand::openAgain(const QString &path)
{
    ShellWindow shell;
    QCOMPARE(shell.window().openProject(path), int(Zum::FileIsOk));
    QTRY_VERIFY(shell.window().projectLoaded());
    QCOMPARE(shell.frames().framesCount(), 24);
    QCOMPARE(shell.frames().timelineRangeStart(), 0);
    QCOMPARE(shell.frames().timelineRangeEnd(), 23);
    // No mark of another program, and no picture without a frame.
    QCOMPARE(shell.dialogs().asked.size(), 0);
}

void TestDemoCommand::folderThatCannotBeMade()
{
    DemoRun run;
    QFile file(run.path("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    run.start({"--demo", run.path("file/inside")});
    QCOMPARE(run.end(), int(DemoCommand::Failed));
    QCOMPARE(run.complaints(), "No folder for the project can be made in " + run.path("file/inside")
                                   + ". Name another one: --demo FOLDER\n");
    QCOMPARE(run.said(), QString());
}

// A limit to the size of files, in units of 1024 bytes, is what a full disk is to the program.
void TestDemoCommand::fullDiskEndsTheShooting()
{
    DemoRun run;
    run.start("bash", {"-c", "trap '' XFSZ; ulimit -f 100; exec \"$@\"", "bash", MORVANE_PROGRAM, "--demo",
                       run.path("films")});
    QCOMPARE(run.end(), int(DemoCommand::Failed));
    QVERIFY2(
        run.complaints().startsWith("Step 3 of 7 (Shoot on twos) failed: The picture could not be saved: "),
        qPrintable(run.complaints()));
    QVERIFY(run.complaints().contains("Left in " + run.path("films/morvane-demo") + "\n"));
    QVERIFY(run.complaints().endsWith(
        "  project with 0 frames: " + run.path("films/morvane-demo/morvane-demo.kzfx") + "\n"));
    QVERIFY(!run.said().contains("4/7"));
    QVERIFY(!QFile::exists(run.settingsPath()));
}

void TestDemoCommand::fullDiskEndsTheRender()
{
    DemoRun run;
    run.start("bash", {"-c", "trap '' XFSZ; ulimit -f 500; exec \"$@\"", "bash", MORVANE_PROGRAM, "--demo",
                       run.path("films")});
    QCOMPARE(run.end(), int(DemoCommand::Failed));
    QVERIFY2(run.complaints().contains("Step 6 of 7 (Render AVI) failed: "), qPrintable(run.complaints()));
    QVERIFY(run.complaints().contains("  project with 24 frames: "));
    const QString videos = run.path("films/morvane-demo/morvane-demo_files/video/");
    QVERIFY(run.complaints().contains("  movie: " + videos + "demo.webm\n"));
    QVERIFY(run.complaints().contains("  movie, not whole: " + videos + "demo.avi"));
    openAgain(run.path("films/morvane-demo/morvane-demo.kzfx"));
}

void TestDemoCommand::interruptLeavesAWholeProject_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("moment");
    QTest::addColumn<QString>("step");
    QTest::newRow("while shooting") << SIGINT << ": 2 4 6"
                                    << "3 of 7 (Shoot on twos)";
    QTest::newRow("while playing") << SIGTERM << "4/7 Play: 6"
                                   << "4 of 7 (Play)";
}

void TestDemoCommand::interruptLeavesAWholeProject()
{
    QFETCH(int, number);
    QFETCH(QString, moment);
    QFETCH(QString, step);
    DemoRun run;
    // A screen that does not answer is as good as none.
    run.environment.insert("DISPLAY", ":4077");
    run.start({"--demo", run.path("films")});
    QVERIFY2(run.waitFor(moment), qPrintable(run.said() + run.complaints()));
    QCOMPARE(::kill(pid_t(run.process().processId()), number), 0);
    QCOMPARE(run.end(), int(DemoCommand::Failed));
    QVERIFY(run.said().startsWith("A demo of 24 frames on twos, without a window\n"));
    QVERIFY2(run.complaints().contains("Stopped in step " + step + ": interrupted\n"),
             qPrintable(run.complaints()));
    const QString folder = run.path("films/morvane-demo");
    const ProjectReadResult read = ProjectReader::readFile(folder + "/morvane-demo.kzfx");
    QCOMPARE(read.status, ProjectReadResult::Status::Ok);
    QVERIFY(read.document.frames.size() >= 6);
    for (const ProjectFrame &frame : read.document.frames)
        QVERIFY(!QImage(folder + "/morvane-demo_files/cap/" + frame.capFull).isNull());
    QVERIFY(!QFile::exists(folder + "/.morvane-demo.kzfx.lock"));
    QVERIFY(!QFile::exists(run.settingsPath()));
}

QTEST_MAIN(TestDemoCommand)
#include "tst_democommand.moc"
