#include "FakeEncoder.h"
#include "RobotRun.h"
#include "SmallFilm.h"

#include <QFile>
#include <QSignalSpy>
#include <QTest>

/// The job of a render, with an encoder that only notes what it is asked.
class TestMorvaRobot : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void allFramesAreWrittenInOrder();
    void encoderIsAskedForTheMovie();
    void jobOpensWithTotalAndAction();
    void jobClosesWithItsResult();
    void hiddenAndEmptyFramesVanish();
    void onlyHiddenFramesEndAsFinished();
    void pictureThatCannotBeLoadedIsSkipped();
    void adviceIsGivenOnceAndBeforeItsError();
    void timecodeCountsSkippedPictures();
    void marginsAreReported();
    void cropTooSmall();
    void rateTooLow();
    void bitrateTooLow();
    void allChecksReport();
    void noEncoder();
    void encoderThatIsNotReady();
    void encoderWithoutAnswer();
    void folderThatCannotBeMade();
    void encoderThatRefusesAPictureEndsTheJob();
    void writeErrorAtTheEndIsReported();
    void encoderFeedbackDropsWarnings();
    void policyThreeTakesTheExportSize();
    void webpSettingsReachTheEncoder();
    void rangeOfOneFrame();
    void rangeThatIsNoRange_data();
    void rangeThatIsNoRange();
    void stopBeforeTheJobCounts();
    void stopAtTheEndSaysEncodeAudio();
    void namelessProjectGetsTheTime();
    void fileNameCannotLeaveTheFolder();
    void effectIsAdaptedToItsFilter();
    void jobsOfOtherKindsSayThatTheyAreNotThere();

private:
    RobotTools fakeTools();

    EncoderRecord record;
};

void TestMorvaRobot::init()
{
    record = EncoderRecord();
}

RobotTools TestMorvaRobot::fakeTools()
{
    RobotTools tools;
    tools.makeEncoder = [this](const QString &) {
        return std::make_unique<FakeEncoder>(record);
    };
    tools.lookAhead = 2;
    return tools;
}

void TestMorvaRobot::allFramesAreWrittenInOrder()
{
    const QList<int> marks{0, 1, 1, 2, 3, 4, 5, 6, 6, 6};
    const SmallFilm film(marks);
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QList<int> found;
    for (const QImage &picture : record.pictures)
        found.append(markOf(picture));
    QCOMPARE(found, marks);
    QVERIFY(run.finished);
    QCOMPARE(run.errors, QStringList());
    QCOMPARE(run.progress, (QList<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    QVERIFY(!record.interrupted);
}

void TestMorvaRobot::encoderIsAskedForTheMovie()
{
    SmallFilm film({0, 1, 2, 3});
    film.input.quality = 3;
    film.input.fps = 12.5;
    film.input.rangeStart = 1;
    film.input.frames.removeFirst();
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.createArguments, (QVariantList{film.folder.filePath("video/film"), 320, 280, 3, 12.5,
                                                   "avi", false, "", 2, false}));
    QCOMPARE(record.pictures.size(), 3);
}

void TestMorvaRobot::jobOpensWithTotalAndAction()
{
    const SmallFilm film({0, 1, 2, -1});
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.totals, (QList<int>{4, 0}));
    QCOMPARE(run.actions, (QStringList{"Encoding [ film ]", ""}));
}

void TestMorvaRobot::jobClosesWithItsResult()
{
    record.path = "/a/movie.avi";
    const RobotRun run = RobotRun::render(SmallFilm({0}).input, fakeTools());
    QCOMPARE(run.result, "/a/movie.avi");
    QCOMPARE(run.completed, 1);
    QCOMPARE(run.done, 1);
    QCOMPARE(record.closed, 1);
}

void TestMorvaRobot::hiddenAndEmptyFramesVanish()
{
    SmallFilm film({0, -1, 2, 3, 4});
    film.input.frames[2].hidden = true;
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.pictures.size(), 3);
    QCOMPARE(markOf(record.pictures.at(1)), 3);
    QCOMPARE(run.progress, (QList<int>{1, 2, 3}));
    QVERIFY(run.finished);
    QCOMPARE(run.errors, QStringList());
}

void TestMorvaRobot::onlyHiddenFramesEndAsFinished()
{
    SmallFilm film({0, 1});
    for (RenderFrame &frame : film.input.frames)
        frame.hidden = true;
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QVERIFY(run.finished);
    QCOMPARE(run.written, 0);
    QCOMPARE(run.errors, QStringList());
    QCOMPARE(record.closed, 1);
    // A movie of nothing takes nobody's place.
    QVERIFY(record.interrupted);
}

void TestMorvaRobot::pictureThatCannotBeLoadedIsSkipped()
{
    const SmallFilm film({0, 1, 2});
    QFile::remove(film.picturePath(1));
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.errors, QStringList("Cannot load " + film.picturePath(1) + ". Skipping image"));
    QCOMPARE(run.advice,
             QStringList("Put the picture back into the project's folder, or capture the frame again "
                         "in its place"));
    QCOMPARE(record.pictures.size(), 2);
    QCOMPARE(run.progress, (QList<int>{1, 1, 2}));
    QVERIFY(run.finished);
}

void TestMorvaRobot::adviceIsGivenOnceAndBeforeItsError()
{
    const SmallFilm film({0, 1, 2});
    QFile::remove(film.picturePath(0));
    QFile::remove(film.picturePath(2));
    MorvaRobot robot(Zum::RenderVideo, Zum::NoTarget, film.input.videoFolder + "../", "project", fakeTools());
    QStringList told;
    connect(&robot, &MorvaRobot::advised, this, [&told] { told.append("advice"); });
    connect(&robot, &MorvaRobot::errorStringChanged, this, [&told] { told.append("error"); });
    robot.setRenderInput(film.input);
    robot.renderVideo(nullptr, nullptr);
    QCOMPARE(told, (QStringList{"advice", "error", "error"}));
    // Another job says it anew.
    told.clear();
    robot.setRenderInput(film.input);
    robot.renderVideo(nullptr, nullptr);
    QCOMPARE(told, (QStringList{"advice", "error", "error"}));
}

void TestMorvaRobot::timecodeCountsSkippedPictures()
{
    SmallFilm film({4, 4, 4});
    film.input.timecode = true;
    const RobotRun whole = RobotRun::render(film.input, fakeTools());
    const QImage third = record.pictures.at(2);
    QVERIFY(third != record.pictures.at(1));
    record.pictures.clear();
    QFile::remove(film.picturePath(1));
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.pictures.at(1), third);
    QCOMPARE(whole.errors, QStringList());
}

void TestMorvaRobot::marginsAreReported()
{
    const SmallFilm film({0, 1});
    markedPicture({300, 280}, 1).save(film.picturePath(1));
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.errors, QStringList("Image #1: Margins added (top: 0px, left: 10px)"));
    QVERIFY(run.finished);
}

void TestMorvaRobot::cropTooSmall()
{
    SmallFilm film({0});
    film.input.cropSize = QSize(319, 280);
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.errors, (QStringList{"Frame size: 319x280", "Minimum frame size is 320x280"}));
    QCOMPARE(run.advice, QStringList("Set a larger frame width and height in the Project panel"));
    QVERIFY(record.createArguments.isEmpty());
    QCOMPARE(run.completed, 1);
    QVERIFY(!run.finished);
    QCOMPARE(film.movies(), QStringList());
}

void TestMorvaRobot::rateTooLow()
{
    SmallFilm film({0});
    film.input.fps = 0;
    QCOMPARE(RobotRun::render(film.input, fakeTools()).errors, QStringList("FPS is too low"));
}

void TestMorvaRobot::bitrateTooLow()
{
    SmallFilm film({0});
    film.input.bitrate = 999;
    QCOMPARE(RobotRun::render(film.input, fakeTools()).errors, QStringList("Bitrate is too low"));
}

void TestMorvaRobot::allChecksReport()
{
    SmallFilm film({0});
    film.input.cropSize = QSize(320, 279);
    film.input.fps = -1;
    film.input.bitrate = 0;
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.errors, (QStringList{"Frame size: 320x279", "Minimum frame size is 320x280",
                                      "FPS is too low", "Bitrate is too low"}));
    QCOMPARE(run.advice,
             (QStringList{
                 "Set a larger frame width and height in the Project panel",
                 "Set the frames per second in the Project panel",
                 "The bit rate comes with the project's file: change it there, or import the frames into a "
                 "new project"}));
    QCOMPARE(run.completed, 1);
    QCOMPARE(run.done, 1);
}

void TestMorvaRobot::noEncoder()
{
    RobotTools tools;
    tools.makeEncoder = [](const QString &) {
        return nullptr;
    };
    const RobotRun run = RobotRun::render(SmallFilm({0}).input, tools);
    QCOMPARE(run.errors, QStringList("No Encoder"));
    QCOMPARE(run.advice, QStringList("Choose another format"));
    QCOMPARE(run.completed, 1);
}

void TestMorvaRobot::encoderThatIsNotReady()
{
    record.isOk = false;
    record.answer = {{"ok", false}, {"reason", "No room"}};
    const RobotRun run = RobotRun::render(SmallFilm({0}).input, fakeTools());
    QCOMPARE(run.errors, (QStringList{"Error initializing", "Encoder error: No room"}));
    QCOMPARE(run.advice,
             QStringList("Choose another format or quality, or switch the video effects off, and render "
                         "again"));
    QVERIFY(record.pictures.isEmpty());
}

void TestMorvaRobot::encoderWithoutAnswer()
{
    record.answer = {};
    QCOMPARE(RobotRun::render(SmallFilm({0}).input, fakeTools()).errors,
             QStringList("Got an error from encoder, but with no reason"));
    record.answer = {{"ok", false}, {"reason", 5}};
    QCOMPARE(RobotRun::render(SmallFilm({0}).input, fakeTools()).errors,
             QStringList("Got an error from encoder, but with no reason"));
    QVERIFY(record.pictures.isEmpty());
}

void TestMorvaRobot::folderThatCannotBeMade()
{
    SmallFilm film({0});
    QFile file(film.folder.filePath("video"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.errors, QStringList("Cannot cteate dir " + film.input.videoFolder));
    QVERIFY(record.createArguments.isEmpty());
}

void TestMorvaRobot::encoderThatRefusesAPictureEndsTheJob()
{
    record.refusedPicture = 2;
    const RobotRun run = RobotRun::render(SmallFilm({0, 1, 2, 3, 4}).input, fakeTools());
    QCOMPARE(run.errors, (QStringList{"Error creating video", "Processing image. Robot interrupted"}));
    QVERIFY(!run.finished);
    QVERIFY(record.interrupted);
    QCOMPARE(record.closed, 1);
}

void TestMorvaRobot::writeErrorAtTheEndIsReported()
{
    record.writeError = "No space left";
    const RobotRun run = RobotRun::render(SmallFilm({0}).input, fakeTools());
    QCOMPARE(run.errors, QStringList("Error creating video: No space left"));
    QCOMPARE(run.advice,
             QStringList("Check that the disk is not full and that the project's folder can be written, "
                         "and render again"));
    QVERIFY(!run.finished);
}

void TestMorvaRobot::encoderFeedbackDropsWarnings()
{
    RobotTools tools = fakeTools();
    tools.makeEncoder = [this](const QString &) {
        struct Talking : FakeEncoder
        {
            using FakeEncoder::FakeEncoder;
            int encodeImage(const QImage &image) override
            {
                for (const int level : {Zum::FatalError, Zum::Error, Zum::Warning, Zum::Info})
                    tell("told", level);
                return FakeEncoder::encodeImage(image);
            }
        };
        return std::make_unique<Talking>(record);
    };
    QCOMPARE(RobotRun::render(SmallFilm({0}).input, tools).errors, (QStringList{"0 told", "told", "3 told"}));
}

void TestMorvaRobot::policyThreeTakesTheExportSize()
{
    SmallFilm film({0});
    film.input.policy = Zum::ExportPolicyCroppedAndResized;
    film.input.exportSize = QSize(640, 560);
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.createArguments.at(1).toInt(), 640);
    QCOMPARE(record.createArguments.at(2).toInt(), 560);
    QCOMPARE(record.pictures.first().size(), QSize(640, 560));
}

void TestMorvaRobot::webpSettingsReachTheEncoder()
{
    SmallFilm film({0});
    film.input.webpSettings = {{"quality", 30}};
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.webpSettings, QVariantMap());
    film.input.formatName = "webp";
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.webpSettings, film.input.webpSettings);
}

void TestMorvaRobot::rangeOfOneFrame()
{
    const RobotRun run = RobotRun::render(SmallFilm({3}).input, fakeTools());
    QCOMPARE(run.totals.first(), 1);
    QCOMPARE(record.pictures.size(), 1);
    QCOMPARE(record.createArguments.at(8).toInt(), 0);
    QVERIFY(run.finished);
}

void TestMorvaRobot::rangeThatIsNoRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("total");
    QTest::newRow("reversed") << 3 << 1 << 3;
    QTest::newRow("beyond the last frame") << 0 << 5 << 6;
    QTest::newRow("before the first") << -1 << 2 << 4;
}

void TestMorvaRobot::rangeThatIsNoRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, total);
    SmallFilm film({0, 1, 2, 3, 4});
    film.input.rangeStart = start;
    film.input.rangeEnd = end;
    film.input.frames.clear();
    const RobotRun run = RobotRun::render(film.input, fakeTools());
    QCOMPARE(run.totals.first(), total);
    QVERIFY(record.pictures.isEmpty());
    QVERIFY(!run.finished);
    QCOMPARE(run.completed, 1);
}

void TestMorvaRobot::stopBeforeTheJobCounts()
{
    QTest::ignoreMessage(QtDebugMsg, "Stopping MorvaRobot: No job. Goto finalState");
    const RobotRun run = RobotRun::render(SmallFilm({0, 1, 2}).input, fakeTools(), 0);
    QCOMPARE(run.written, 0);
    QCOMPARE(run.errors, QStringList("Processing image. Robot interrupted"));
    QCOMPARE(run.completed, 1);
}

void TestMorvaRobot::stopAtTheEndSaysEncodeAudio()
{
    QTest::ignoreMessage(QtDebugMsg, "Stopping MorvaRobot: Job is on the go, let's set Stop=true");
    const RobotRun run = RobotRun::render(SmallFilm({0, 1, 2}).input, fakeTools(), 2);
    QCOMPARE(run.actions, (QStringList{"Encoding [ film ]", "Encode audio", ""}));
}

void TestMorvaRobot::namelessProjectGetsTheTime()
{
    RobotRun::render(SmallFilm({0}).input, fakeTools(), -1, QString());
    const QString name = QFileInfo(record.createArguments.first().toString()).fileName();
    QVERIFY2(QRegularExpression("^movie_\\d{12}$").match(name).hasMatch(), qPrintable(name));
}

void TestMorvaRobot::fileNameCannotLeaveTheFolder()
{
    SmallFilm film({0});
    for (const QString name : {"../film", "/tmp/film", "..", ""}) {
        film.input.fileName = name;
        RobotRun::render(film.input, fakeTools());
        QCOMPARE(record.createArguments.first().toString(), film.folder.filePath("video/project"));
    }
}

void TestMorvaRobot::effectIsAdaptedToItsFilter()
{
    SmallFilm film({0});
    film.input.applyEffects = true;
    film.input.effect = "cas=strength=100";
    RobotRun::render(film.input, fakeTools());
    QCOMPARE(record.createArguments.at(6).toBool(), true);
    QCOMPARE(record.createArguments.at(7).toString(), "cas=strength=0.9");
}

void TestMorvaRobot::jobsOfOtherKindsSayThatTheyAreNotThere()
{
    MorvaRobot robot(Zum::ExportFrames, Zum::NoTarget, "/", "project", fakeTools());
    QSignalSpy errors(&robot, &MorvaRobot::errorStringChanged);
    QSignalSpy done(&robot, &MorvaRobot::done);
    robot.exportFrames(nullptr, nullptr);
    QCOMPARE(errors.count(), 1);
    QCOMPARE(done.count(), 1);
}

QTEST_MAIN(TestMorvaRobot)
#include "tst_morvarobot.moc"
