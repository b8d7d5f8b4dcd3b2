#include "MovieProbe.h"

#include "app/RenderCommand.h"
#include "jobs/RobotTools.h"
#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using rendercommand::Request;

class TestRenderCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void isAskedForByItsOption();
    void everythingIsUnderstood();
    void leftOutMeansTheProjectsRangeAndHighQuality();
    void whatMakesNoSenseIsRefused_data();
    void whatMakesNoSenseIsRefused();
    void rendersTheProjectsRange();
    void rendersAGivenRange();
    void rangeCountsAsTheTimelineDoes();
    void twoRangesJoin();
    void rangeOutsideOfTheFilm();
    void projectsOwnRangeIsRepaired();
    void settingsOfTheProjectCount();
    void projectThatCannotBeRead_data();
    void projectThatCannotBeRead();
    void missingPictureIsNoWholeMovie();
    void onlyHiddenFramesAreNoMovie();
    void folderThatCannotBeMade();
    void programNeedsNoScreen();
    void programTellsWrongUsage();
    void interruptedProgramLeavesAMovieThatPlays();

private:
    QString writeProject(const QList<int> &marks);
    int run(Request request);

    std::unique_ptr<QTemporaryDir> folder;
    ProjectDocument document;
    QString output;
    QString errors;
};

void TestRenderCommand::init()
{
    folder = std::make_unique<QTemporaryDir>();
    document = ProjectDocument();
    document.frameSettings.emplace();
    document.frameSettings->frameWidth = 320;
    document.frameSettings->frameHeight = 280;
    document.render.emplace();
    document.render->fps = 25;
    document.render->exportVideoFileName = "walk";
    output.clear();
    errors.clear();
}

QString TestRenderCommand::writeProject(const QList<int> &marks)
{
    const QString path = folder->filePath("film.kzfx");
    const ProjectTree tree = ProjectTree::of(path, {});
    QDir().mkpath(tree.capFullDirPath);
    for (const int mark : marks) {
        const QString name = QString("%1.png").arg(document.frames.size());
        markedPicture({320, 280}, mark).save(tree.capFullDirPath + name);
        ProjectFrame frame;
        frame.capFull = name;
        document.frames.append(frame);
    }
    return ProjectWriter::save(path, document).ok ? path : QString();
}

int TestRenderCommand::run(Request request)
{
    if (request.format.isEmpty())
        request.format = "avi";
    if (request.outputFolder.isEmpty())
        request.outputFolder = folder->filePath("out");
    if (request.projectPath.isEmpty())
        request.projectPath = folder->filePath("film.kzfx");
    output.clear();
    errors.clear();
    QTextStream out(&output);
    QTextStream err(&errors);
    return rendercommand::run(request, RobotTools::standard(), out, err);
}

void TestRenderCommand::isAskedForByItsOption()
{
    QVERIFY(rendercommand::isAsked({"morvane", "--render", "webm"}));
    QVERIFY(!rendercommand::isAsked({"morvane", "film.kzfx"}));
}

void TestRenderCommand::everythingIsUnderstood()
{
    QString error;
    const auto request = rendercommand::parse({"morvane", "--render", "WebM", "--output", "/some/where",
                                               "--range", "3:17", "--quality", "0", "/a/film.kzfx"},
                                              error);
    QVERIFY2(request, qPrintable(error));
    QCOMPARE(request->format, "webm");
    QCOMPARE(request->outputFolder, "/some/where");
    QCOMPARE(*request->range, std::pair(3, 17));
    QCOMPARE(request->quality, 0);
    QCOMPARE(request->projectPath, "/a/film.kzfx");
}

void TestRenderCommand::leftOutMeansTheProjectsRangeAndHighQuality()
{
    QString error;
    const auto request =
        rendercommand::parse({"morvane", "a.kzfx", "--output", "o", "--render", "avi"}, error);
    QVERIFY2(request, qPrintable(error));
    QVERIFY(!request->range);
    QCOMPARE(request->quality, 2);
    QCOMPARE(request->outputFolder, QDir::current().absoluteFilePath("o"));
}

void TestRenderCommand::whatMakesNoSenseIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("word");
    QTest::newRow("format") << QStringList{"--render", "mp3", "--output", "o", "p"} << "mp3";
    QTest::newRow("no folder") << QStringList{"--render", "avi", "p"} << "--output";
    QTest::newRow("no project") << QStringList{"--render", "avi", "--output", "o"} << "project";
    QTest::newRow("two projects") << QStringList{"--render", "avi", "--output", "o", "p", "q"} << "also q";
    QTest::newRow("no value") << QStringList{"p", "--output", "o", "--render"} << "--render";
    QTest::newRow("range") << QStringList{"--render", "avi", "--output", "o", "--range", "5", "p"} << "range";
    QTest::newRow("range of three") << QStringList{"--render", "avi",   "--output", "o",
                                                   "--range",  "1:2:3", "p"}
                                    << "range";
    QTest::newRow("range backwards") << QStringList{"--render", "avi", "--output", "o", "--range", "9:2", "p"}
                                     << "range";
    QTest::newRow("quality") << QStringList{"--render", "avi", "--output", "o", "--quality", "4", "p"}
                             << "quality";
    QTest::newRow("quality in words")
        << QStringList{"--render", "avi", "--output", "o", "--quality", "best", "p"} << "quality";
    QTest::newRow("unknown") << QStringList{"--render", "avi", "--fast", "1", "p"} << "--fast";
}

void TestRenderCommand::whatMakesNoSenseIsRefused()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, word);
    QString error;
    QVERIFY(!rendercommand::parse(QStringList("morvane") + arguments, error));
    QVERIFY2(error.contains(word), qPrintable(error));
}

void TestRenderCommand::rendersTheProjectsRange()
{
    document.frameSettings->timelineRangeStart = 1;
    document.frameSettings->timelineRangeEnd = 3;
    QVERIFY(!writeProject({0, 1, 2, 3, 4}).isEmpty());
    QCOMPARE(run({}), int(rendercommand::WholeMovie));
    QCOMPARE(errors, QString());
    const QString movie = folder->filePath("out/walk.avi");
    QVERIFY2(output.endsWith("100% 3/3\n" + movie + "\n"), qPrintable(output));
    const QList<QImage> frames = MovieProbe(movie).frames();
    QCOMPARE(frames.size(), 3);
    QCOMPARE(markOf(frames.first()), 1);
    QCOMPARE(markOf(frames.last()), 3);
}

void TestRenderCommand::rendersAGivenRange()
{
    writeProject({0, 1, 2, 3, 4});
    Request request;
    request.format = "webm";
    request.range = std::pair(2, 2);
    QCOMPARE(run(request), int(rendercommand::WholeMovie));
    const MovieProbe probe(folder->filePath("out/walk_000002-000002.webm"));
    QCOMPARE(probe.frames().size(), 1);
    QCOMPARE(markOf(probe.frames().first()), 2);
}

void TestRenderCommand::rangeCountsAsTheTimelineDoes()
{
    document.frameSettings->startIndex = 100;
    writeProject({0, 1, 2, 3, 4});
    Request request;
    request.range = std::pair(101, 102);
    QCOMPARE(run(request), int(rendercommand::WholeMovie));
    QCOMPARE(markOf(MovieProbe(folder->filePath("out/walk_000101-000102.avi")).frames().first()), 1);
}

void TestRenderCommand::twoRangesJoin()
{
    const QList<int> marks{0, 1, 2, 3, 3, 3, 4, 5};
    writeProject(marks);
    for (const char *format : {"avi", "webm"}) {
        QFile list(folder->filePath("list.txt"));
        QVERIFY(list.open(QIODevice::WriteOnly));
        for (const auto &range : {std::pair(0, 4), std::pair(5, 7)}) {
            Request request;
            request.format = format;
            request.range = range;
            QCOMPARE(run(request), int(rendercommand::WholeMovie));
            list.write("file '" + output.trimmed().split('\n').last().toUtf8() + "'\n");
        }
        list.close();
        const QString joined = folder->filePath(QString("joined.%1").arg(format));
        QCOMPARE(QProcess::execute("ffmpeg", {"-v", "error", "-f", "concat", "-safe", "0", "-i",
                                              list.fileName(), "-map", "0:v", "-c", "copy", "-y", joined}),
                 0);
        QList<int> found;
        for (const QImage &frame : MovieProbe(joined).frames())
            found.append(markOf(frame));
        QCOMPARE(found, marks);
    }
}

void TestRenderCommand::rangeOutsideOfTheFilm()
{
    writeProject({0, 1});
    Request request;
    request.range = std::pair(0, 2);
    QCOMPARE(run(request), int(rendercommand::Failed));
    QCOMPARE(errors, "The project has the frames 0:1, not all of 0:2\n");
    QVERIFY(!QDir(folder->filePath("out")).exists());
}

void TestRenderCommand::projectsOwnRangeIsRepaired()
{
    document.frameSettings->timelineRangeStart = 7;
    document.frameSettings->timelineRangeEnd = 9;
    writeProject({0, 1, 2});
    QCOMPARE(run({}), int(rendercommand::WholeMovie));
    QCOMPARE(MovieProbe(folder->filePath("out/walk.avi")).frames().size(), 3);
}

void TestRenderCommand::settingsOfTheProjectCount()
{
    document.render->fps = 12.5;
    document.videoEffectsString = "colorize=hue=120:lightness=0.5:mix=1.0:saturation=0.5";
    document.filters.emplace();
    document.filters->enabled = Zum::NonRealtimeProcessing;
    document.filters->values = {{"saturation", "0"}};
    writeProject({0, 0});
    document.frames[1].mirrored = true;
    ProjectWriter::save(folder->filePath("film.kzfx"), document);
    Request request;
    request.projectPath = folder->filePath("film.kzfx");
    request.format = "raw";
    QString error;
    const std::optional<RenderInput> input = rendercommand::readProject(request, error);
    QVERIFY2(input, qPrintable(error));
    QCOMPARE(input->fps, 12.5);
    QCOMPARE(input->cropSize, QSize(320, 280));
    QCOMPARE(input->applyEffects, true);
    QCOMPARE(input->effect, *document.videoEffectsString);
    QCOMPARE(input->postProcessing, int(Zum::NonRealtimeProcessing));
    QCOMPARE(input->postProcessSettings.value("saturation").toInt(), 0);
    QVERIFY(input->frames.at(1).mirrored);
    QCOMPARE(input->backgroundFolder, folder->path() + "/film_files/bg/");
    QCOMPARE(run(request), int(rendercommand::WholeMovie));
}

void TestRenderCommand::projectThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("words");
    QTest::newRow("none") << QByteArray() << "it cannot be opened";
    QTest::newRow("cut off") << QByteArray("<MorvaneProject><Version") << "it is damaged";
    QTest::newRow("something else") << QByteArray("<html></html>") << "Cannot read the project";
}

void TestRenderCommand::projectThatCannotBeRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, words);
    if (!bytes.isEmpty()) {
        QFile file(folder->filePath("film.kzfx"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QCOMPARE(run({}), int(rendercommand::Failed));
    QVERIFY2(errors.contains(words), qPrintable(errors));
    QCOMPARE(output, QString());
}

void TestRenderCommand::missingPictureIsNoWholeMovie()
{
    writeProject({0, 1, 2});
    QVERIFY(QFile::remove(folder->filePath("film_files/cap/1.png")));
    QCOMPARE(run({}), int(rendercommand::Failed));
    QVERIFY2(errors.startsWith("Cannot load ") && errors.contains("Not whole: "), qPrintable(errors));
    QCOMPARE(MovieProbe(folder->filePath("out/walk.avi")).frames().size(), 2);
}

void TestRenderCommand::onlyHiddenFramesAreNoMovie()
{
    writeProject({0});
    document.frames[0].hidden = true;
    ProjectWriter::save(folder->filePath("film.kzfx"), document);
    QCOMPARE(run({}), int(rendercommand::Failed));
    QCOMPARE(errors, "There is no visible frame to render\n");
}

void TestRenderCommand::folderThatCannotBeMade()
{
    writeProject({0});
    Request request;
    request.outputFolder = folder->filePath("film.kzfx/out");
    QCOMPARE(run(request), int(rendercommand::Failed));
    QCOMPARE(errors, "Cannot cteate dir " + folder->filePath("film.kzfx/out/") + "\n");
}

void TestRenderCommand::programNeedsNoScreen()
{
    writeProject({0, 1, 2});
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    program.setProcessEnvironment(environment);
    program.start(MORVANE_PROGRAM, {"--render", "mkv", "--output", folder->filePath("out"), "--quality", "1",
                                    folder->filePath("film.kzfx")});
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), int(rendercommand::WholeMovie));
    QVERIFY(program.readAllStandardOutput().trimmed().endsWith("/out/walk.mkv"));
    QCOMPARE(MovieProbe(folder->filePath("out/walk.mkv")).frames().size(), 3);
}

void TestRenderCommand::programTellsWrongUsage()
{
    QProcess program;
    program.start(MORVANE_PROGRAM, {"--render", "mp3", "film.kzfx"});
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitCode(), int(rendercommand::WrongUsage));
    QVERIFY(program.readAllStandardError().contains("Unknown format \"mp3\""));
    QCOMPARE(program.readAllStandardOutput(), QByteArray());
}

void TestRenderCommand::interruptedProgramLeavesAMovieThatPlays()
{
#ifdef Q_OS_UNIX
    writeProject({0, 1});
    for (int i = 0; i < 2000; ++i)
        document.frames.append(document.frames.at(i % 2));
    ProjectWriter::save(folder->filePath("film.kzfx"), document);
    QProcess program;
    program.start(MORVANE_PROGRAM,
                  {"--render", "webm", "--output", folder->filePath("out"), folder->filePath("film.kzfx")});
    while (!program.canReadLine())
        QVERIFY(program.waitForReadyRead(30000));
    program.terminate();
    QVERIFY(program.waitForFinished(30000));
    QCOMPARE(program.exitStatus(), QProcess::NormalExit);
    QCOMPARE(program.exitCode(), int(rendercommand::Failed));
    QVERIFY(program.readAllStandardError().contains("Robot interrupted"));
    const MovieProbe probe(folder->filePath("out/walk.webm"));
    QVERIFY(!probe.frames().isEmpty() && probe.frames().size() < 2002);
#endif
}

QTEST_MAIN(TestRenderCommand)
#include "tst_rendercommand.moc"
