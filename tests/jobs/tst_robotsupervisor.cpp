#include "FakeEncoder.h"
#include "MovieProbe.h"

#include "jobs/MorvaRobot.h"
#include "jobs/RobotSupervisor.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"
#include "shared/WebcamGlobal.h"
#include "timeline/FramesModel.h"

#include <QDir>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// The program around the supervisor, with a project of small pictures.
struct World
{
    World()
    {
        global.setCropAreaW(320);
        global.setCropAreaH(280);
        global.setRenderFileName("film");
        QDir(folder.path()).mkpath("cap");
        frames.setFolders({{"capFull", folder.filePath("cap/")}});
        project = {true, folder.path() + "/", "project"};
        supervisor = std::make_unique<RobotSupervisor>(
            RobotServices{global, frames, progress, messages, [this] { return project; }, tools()});
    }

    RobotTools tools()
    {
        RobotTools tools = RobotTools::standard();
        tools.makeEncoder = [this](const QString &) {
            return std::make_unique<FakeEncoder>(record);
        };
        return tools;
    }

    void addFrames(int count)
    {
        for (int i = 0; i < count; ++i) {
            const QString name = QString("%1.png").arg(i);
            markedPicture({320, 280}, i).save(folder.filePath("cap/" + name));
            frames.appendFrame({{"capFull", name}});
        }
        frames.setTimelineRangeStart(0);
        frames.setTimelineRangeEnd(count - 1);
    }

    bool finish()
    {
        return QTest::qWaitFor([this] { return !supervisor->morvaRobotThreadStarted(); }, 10000);
    }

    QTemporaryDir folder;
    WebcamGlobal global;
    FramesModel frames;
    ProgressState progress;
    MessageCentre messages;
    RobotProject project;
    EncoderRecord record;
    std::unique_ptr<RobotSupervisor> supervisor;
};

} // namespace

class TestRobotSupervisor : public QObject
{
    Q_OBJECT

private slots:
    void restsAtFirst();
    void startsWithAProjectOnly();
    void startShowsThatItBegins();
    void jobRunsAndIsWoundUp();
    void secondStartLeavesTheFirstAlone();
    void startWhileTheThreadRuns();
    void oneJobAfterTheOther();
    void nextJobStartsFromTheEndOfTheLast();
    void stopReachesTheJob();
    void breakWithoutAJobReachesNobody();
    void errorsAreCountedAndSent();
    void lastRenderedPathNeedsAFile_data();
    void lastRenderedPathNeedsAFile();
    void playerLetsGoOfTheMovie_data();
    void playerLetsGoOfTheMovie();
    void jobSeesWhatWasSetWhenItBegan();
    void unknownImportTargetRunsNothing();
    void dialogStaysAfterTheJobsThatHaveAResult();
    void windUpIsDoneOnce();
    void destroyedDuringAJob();
    void jobsThatAreNotThereEndWithAMessage_data();
    void jobsThatAreNotThereEndWithAMessage();
};

void TestRobotSupervisor::restsAtFirst()
{
    const World world;
    QCOMPARE(world.supervisor->currentRobotJob(), int(Zum::NoJob));
    QVERIFY(!world.supervisor->morvaRobotThreadStarted());
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestRobotSupervisor::startsWithAProjectOnly()
{
    World world;
    world.project.loaded = false;
    QTest::ignoreMessage(QtWarningMsg, "No project, cannot run robot");
    QVERIFY(!world.supervisor->runMorvaRobot(Zum::RenderVideo));
    world.project.loaded = true;
    world.project.dirPath.clear();
    QTest::ignoreMessage(QtWarningMsg, "No project, cannot run robot");
    QVERIFY(!world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QCOMPARE(world.progress.progressTotal(), 0);
}

void TestRobotSupervisor::startShowsThatItBegins()
{
    World world;
    world.addFrames(2);
    world.global.setLastRenderedPath("old");
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo, {"a", "b"}));
    QCOMPARE(world.progress.progressTotal(), 100);
    QCOMPARE(world.progress.progressCurrent(), 0);
    QCOMPARE(world.progress.progressAction(), "Initializing. Please wait...");
    QVERIFY(world.supervisor->morvaRobotThreadStarted());
    QCOMPARE(world.supervisor->currentRobotJob(), int(Zum::NoJob));
    QCOMPARE(world.supervisor->inputList(), (QStringList{"a", "b"}));
    QCOMPARE(world.global.lastRenderedPath(), QString());
    QVERIFY(world.finish());
}

void TestRobotSupervisor::jobRunsAndIsWoundUp()
{
    World world;
    world.addFrames(5);
    QSignalSpy jobs(world.supervisor.get(), &RobotSupervisor::currentRobotJobChanged);
    QStringList actions;
    connect(&world.progress, &ProgressState::progressActionChanged, this,
            [&] { actions.append(world.progress.progressAction()); });
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo, {"a"}));
    QVERIFY(world.finish());
    QCOMPARE(world.record.pictures.size(), 5);
    QCOMPARE(jobs.count(), 2);
    QCOMPARE(actions, (QStringList{"Initializing. Please wait...", "Encoding [ film ]", ""}));
    QCOMPARE(world.progress.progressTotal(), 0);
    QCOMPARE(world.progress.progressCurrent(), 0);
    QCOMPARE(world.supervisor->currentRobotJob(), int(Zum::NoJob));
    QCOMPARE(world.supervisor->inputList(), QStringList());
    QCOMPARE(world.messages.robotErrorCount(), 0);
}

void TestRobotSupervisor::secondStartLeavesTheFirstAlone()
{
    QSemaphore gate;
    World world;
    world.addFrames(8);
    world.record.beforePicture = [&gate] {
        gate.acquire();
    };
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QTRY_COMPARE(world.progress.progressAction(), "Encoding [ film ]");
    QTest::ignoreMessage(QtWarningMsg, "One Robot is already running");
    QVERIFY(!world.supervisor->runMorvaRobot(Zum::ExportFrames, {"x"}));
    QCOMPARE(world.progress.progressTotal(), 8);
    QCOMPARE(world.progress.progressAction(), "Encoding [ film ]");
    QCOMPARE(world.supervisor->currentRobotJob(), int(Zum::RenderVideo));
    gate.release(8);
    QVERIFY(world.finish());
    QCOMPARE(world.record.pictures.size(), 8);
}

void TestRobotSupervisor::startWhileTheThreadRuns()
{
    World world;
    world.addFrames(1);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QTest::ignoreMessage(QtWarningMsg, "MainWindow::runMorvaRobot Error: Thread is still running");
    QVERIFY(!world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
}

void TestRobotSupervisor::oneJobAfterTheOther()
{
    World world;
    world.addFrames(2);
    for (int job = 1; job <= 5; ++job) {
        QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
        QVERIFY(world.finish());
        QCOMPARE(world.record.pictures.size(), 2 * job);
    }
}

void TestRobotSupervisor::nextJobStartsFromTheEndOfTheLast()
{
    World world;
    world.addFrames(2);
    int started = 1;
    connect(world.supervisor.get(), &RobotSupervisor::morvaRobotThreadStartedChanged, this, [&] {
        if (!world.supervisor->morvaRobotThreadStarted() && started < 4) {
            ++started;
            QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
        }
    });
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QTRY_COMPARE_WITH_TIMEOUT(world.record.closed, 4, 20000);
    QVERIFY(world.finish());
    QCOMPARE(world.record.pictures.size(), 8);
}

void TestRobotSupervisor::stopReachesTheJob()
{
    QSemaphore gate(1);
    World world;
    world.addFrames(8);
    world.record.beforePicture = [&gate] {
        gate.acquire();
    };
    connect(&world.progress, &ProgressState::progressCurrentChanged, this, [&] {
        if (world.progress.progressCurrent() == 1) {
            world.supervisor->breakMorvaRobot("2");
            gate.release(8);
        }
    });
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    // The picture on its way at that moment still goes in.
    QVERIFY2(world.record.pictures.size() <= 2, qPrintable(QString::number(world.record.pictures.size())));
    QCOMPARE(world.messages.errorString(), "Processing image. Robot interrupted");
    QCOMPARE(world.messages.robotErrorCount(), 1);
    QVERIFY(world.record.interrupted);
}

void TestRobotSupervisor::breakWithoutAJobReachesNobody()
{
    World world;
    QSignalSpy stops(world.supervisor.get(), &RobotSupervisor::stopRobot);
    world.supervisor->breakMorvaRobot("3");
    QCOMPARE(stops.count(), 1);
    world.addFrames(2);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    world.supervisor->breakMorvaRobot("3");
    QCOMPARE(world.record.pictures.size(), 2);
}

void TestRobotSupervisor::errorsAreCountedAndSent()
{
    World world;
    world.addFrames(3);
    QFile::remove(world.folder.filePath("cap/1.png"));
    QSignalSpy sent(&world.messages, &MessageCentre::appendMessage);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    QCOMPARE(world.messages.robotErrorCount(), 1);
    // The advice comes first, so that the error stands above it in the list.
    QCOMPARE(sent.count(), 2);
    for (const QList<QVariant> &message : std::as_const(sent))
        QCOMPARE(message.at(0).toInt(), int(Zum::RobotMessage));
    QCOMPARE(sent.first().at(1).toInt(), int(Zum::Info));
    QVERIFY(sent.first().at(2).toString().startsWith("Put the picture back "));
    QCOMPARE(sent.last().at(1).toInt(), int(Zum::Error));
    QVERIFY(sent.last().at(2).toString().startsWith("Cannot load "));
}

void TestRobotSupervisor::lastRenderedPathNeedsAFile_data()
{
    QTest::addColumn<QString>("made");
    QTest::addColumn<bool>("there");
    QTest::newRow("nothing was made") << "" << false;
    QTest::newRow("made and there") << "movie.avi" << true;
    QTest::newRow("gone meanwhile") << "gone.avi" << false;
}

void TestRobotSupervisor::lastRenderedPathNeedsAFile()
{
    QFETCH(QString, made);
    QFETCH(bool, there);
    World world;
    world.addFrames(1);
    world.record.path = made.isEmpty() ? QString() : world.folder.filePath(made);
    if (there) {
        QFile file(world.record.path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    } else if (!made.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Tried to gen video, but no generated file was found: "
                                                      + world.record.path + "<--"));
    }
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    QCOMPARE(world.global.lastRenderedPath(), there ? world.record.path : QString());
}

void TestRobotSupervisor::playerLetsGoOfTheMovie_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("letsGo");
    QTest::newRow("the movie that is replaced") << "video/film.avi" << true;
    QTest::newRow("another movie") << "video/other.avi" << false;
}

void TestRobotSupervisor::playerLetsGoOfTheMovie()
{
    QFETCH(QString, name);
    QFETCH(bool, letsGo);
    World world;
    world.addFrames(1);
    world.global.setPlayerSource(world.folder.filePath(name));
    world.global.setPlayerPlaying(true);
    world.global.setPlayerPaused(true);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    QCOMPARE(world.global.playerSource().isEmpty(), letsGo);
    QCOMPARE(world.global.playerPlaying(), !letsGo);
    QCOMPARE(world.global.playerPaused(), !letsGo);
}

void TestRobotSupervisor::jobSeesWhatWasSetWhenItBegan()
{
    World world;
    world.addFrames(30);
    connect(world.supervisor.get(), &RobotSupervisor::robotRenderVideo, this, [&] {
        world.global.setCropAreaW(640);
        world.global.setRenderFileName("other");
        world.frames.clear();
    });
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.finish());
    QCOMPARE(world.record.pictures.size(), 30);
    QCOMPARE(world.record.createArguments.at(0).toString(), world.folder.filePath("video/film"));
    QCOMPARE(world.record.createArguments.at(1).toInt(), 320);
}

void TestRobotSupervisor::unknownImportTargetRunsNothing()
{
    World world;
    QSignalSpy sent(world.supervisor.get(), &RobotSupervisor::robotRenderThumbs);
    QSignalSpy connected(world.supervisor.get(), &RobotSupervisor::connectModel);
    QTest::ignoreMessage(QtWarningMsg, "runMorvaRobot: Unknown target");
    QVERIFY(world.supervisor->runMorvaRobot(Zum::GenThumbnails, {"a.png"}, Zum::NoTarget));
    QVERIFY(world.finish());
    QCOMPARE(sent.count() + connected.count(), 0);
    QCOMPARE(world.supervisor->currentRobotJob(), int(Zum::NoJob));
}

void TestRobotSupervisor::dialogStaysAfterTheJobsThatHaveAResult()
{
    World world;
    world.addFrames(1);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QVERIFY(world.global.dialogRemainsVisible());
    emit world.global.dialogClosing();
    QVERIFY(world.finish());
    emit world.global.dialogClosing();
    QVERIFY(!world.global.dialogRemainsVisible());
    QVERIFY(world.supervisor->runMorvaRobot(Zum::UpdateFromRAWs));
    QVERIFY(!world.global.dialogRemainsVisible());
    QVERIFY(world.finish());
}

void TestRobotSupervisor::windUpIsDoneOnce()
{
    World world;
    world.global.setLastRenderedPath("kept");
    world.supervisor->stopMorvaRobot();
    world.supervisor->stop_MorvaRobot();
    QCOMPARE(world.global.lastRenderedPath(), "kept");
    world.addFrames(1);
    QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
    QTest::ignoreMessage(QtWarningMsg, "MorvaRobot is not running, cannot stop it again");
    world.supervisor->stopMorvaRobot("too early");
    QVERIFY(world.finish());
}

void TestRobotSupervisor::destroyedDuringAJob()
{
    for (int i = 0; i < 5; ++i) {
        World world;
        world.addFrames(30);
        QVERIFY(world.supervisor->runMorvaRobot(Zum::RenderVideo));
        QTest::qWait(i * 5);
        world.supervisor.reset();
        QVERIFY(world.record.pictures.size() <= 30);
    }
}

void TestRobotSupervisor::jobsThatAreNotThereEndWithAMessage_data()
{
    QTest::addColumn<int>("job");
    QTest::addColumn<int>("target");
    QTest::newRow("export") << int(Zum::ExportFrames) << int(Zum::NoTarget);
    QTest::newRow("video import") << int(Zum::SplitVideo) << int(Zum::NoTarget);
    QTest::newRow("image import") << int(Zum::GenThumbnails) << int(Zum::ReferenceImages);
}

void TestRobotSupervisor::jobsThatAreNotThereEndWithAMessage()
{
    QFETCH(int, job);
    QFETCH(int, target);
    World world;
    QSignalSpy dialog(world.supervisor.get(), &RobotSupervisor::dialogIsOver);
    QSignalSpy connected(world.supervisor.get(), &RobotSupervisor::connectModel);
    QVERIFY(world.supervisor->runMorvaRobot(job, {}, target));
    QVERIFY(world.finish());
    QCOMPARE(world.messages.robotErrorCount(), 1);
    // The dialog stays open for what went wrong.
    QCOMPARE(dialog.count(), 0);
    QCOMPARE(connected.count(), job == Zum::GenThumbnails ? 1 : 0);
    QVERIFY(!world.frames.isResetting());
}

QTEST_MAIN(TestRobotSupervisor)
#include "tst_robotsupervisor.moc"
