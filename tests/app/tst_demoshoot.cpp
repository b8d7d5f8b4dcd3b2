#include "app/DemoShoot.h"
#include "project/ProjectReader.h"
#include "support/HandTicker.h"
#include "support/ShellWindow.h"

#include <QCloseEvent>
#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QTextStream>

using namespace Qt::StringLiterals;

/// The unattended shoot in the whole program; the window's time is real, the shoot's own is ticked by hand.
class TestDemoShoot : public QObject
{
    Q_OBJECT

private slots:
    void everyStepEndsInItsFile();
    void restsForThoseWhoWatch();
    void projectThatCannotBeMade();
    void cameraThatIsNotThere();
    void cameraThatGoesAway();
    void cameraThatNeverDelivers();
    void saveThatFails();
    void renderThatFails();
    void closedWindow();
    void closedWindowDuringARender();
    void quitByTheMenu();
    void firstReasonStays();
    void endsThoughThePartsRefuse();

private:
    /// The program in its window, with the shoot about to begin.
    struct Stage
    {
        explicit Stage(DemoShoot::Pace pace = {}, const QString &path = {});

        static ShellWindow::Options options();

        bool waitForTheEnd();
        /// Waits until the line of a step has begun.
        bool waitFor(const QString &said);
        ProjectReadResult read() const
        {
            return ProjectReader::readFile(path);
        }

        ShellWindow shell;
        QString said;
        QTextStream out{&said};
        HandTicker *ticker = new HandTicker;
        DemoShoot shoot;
        QString path;
    };
};

ShellWindow::Options TestDemoShoot::Stage::options()
{
    ShellWindow::Options options;
    options.settings.insert(u"currentCapturingDevice"_s, int(Zum::CapturingDeviceWebcam));
    options.shown = false;
    return options;
}

TestDemoShoot::Stage::Stage(DemoShoot::Pace pace, const QString &givenPath)
    : shell(options()), shoot(shell.window(), pace, std::unique_ptr<Ticker>(ticker), out),
      path(givenPath.isEmpty() ? shell.folder() + u"/film.kzfx"_s : givenPath)
{
    shell.dialogs().pathAnswers.append(path);
    shell.window().show();
    shoot.start();
}

bool TestDemoShoot::Stage::waitForTheEnd()
{
    return QTest::qWaitFor([this] { return shell.quits() > 0; }, 240000);
}

bool TestDemoShoot::Stage::waitFor(const QString &words)
{
    return QTest::qWaitFor([&] { return said.contains(words) || shell.quits() > 0; }, 240000)
           && shell.quits() == 0;
}

void TestDemoShoot::everyStepEndsInItsFile()
{
    Stage stage;
    QVERIFY(stage.waitForTheEnd());
    QCOMPARE(stage.shoot.failure(), QString());
    QVERIFY(stage.shoot.isDone());
    QCOMPARE(stage.shell.quits(), 1);
    const QString movies = stage.shell.folder() + u"/film_files/video/demo."_s;
    QCOMPARE(stage.said,
             u"1/7 New project: %1\n"
             "2/7 Connect: Demo Webcam #301\n"
             "3/7 Shoot on twos: 2 4 6 8 10 12 14 16 18 20 22 24\n"
             "4/7 Play: 6 12 18 24\n"_s.arg(stage.path)
                 + stage.said.section('\n', 4));
    const QStringList rest = stage.said.section('\n', 4).split('\n');
    QVERIFY2(rest.at(0).startsWith("5/7 Render WebM: ") && rest.at(0).endsWith(" 100%"),
             qPrintable(rest.at(0)));
    QVERIFY2(rest.at(1).startsWith("6/7 Render AVI: ") && rest.at(1).endsWith(" 100%"),
             qPrintable(rest.at(1)));
    QCOMPARE(rest.mid(2), QStringList({"7/7 Save: 24 frames", ""}));

    const DemoShoot::Outcome &outcome = stage.shoot.outcome();
    QCOMPARE(outcome.projectPath, stage.path);
    QCOMPARE(outcome.movies, QStringList({movies + "webm", movies + "avi"}));
    QCOMPARE(outcome.frames, 24);
    QCOMPARE(outcome.frameSize, QSize(1280, 720));
    QVERIFY(outcome.thumbnailUrl.startsWith("file:"));
    QCOMPARE(stage.shell.controllers().capture.demo().taken(), 12);
    QVERIFY(!stage.shell.global().connected());
    QCOMPARE(stage.shell.dialogs().asked.size(), 1);
    QCOMPARE(stage.shell.sceneWarnings(), QStringList());
}

void TestDemoShoot::restsForThoseWhoWatch()
{
    Stage stage({.betweenSteps = 3, .betweenShots = 2});
    QCOMPARE(stage.ticker->interval, DemoShoot::tickMs);
    stage.ticker->tick(2);
    QTest::qWait(0);
    QCOMPARE(stage.said, QString());
    stage.ticker->tick();
    QVERIFY(stage.waitFor(".kzfx\n"));
    QTest::qWait(0);
    QVERIFY(!stage.said.contains("2/7"));
    stage.ticker->tick(3);
    QVERIFY(stage.waitFor("#301\n"));
    stage.ticker->tick(3);
    QVERIFY(stage.waitFor(": 2"));
    QTRY_COMPARE(stage.shell.global().capturingInprogress(), -1);
    // Later than any shot would take.
    const int delivered = stage.shell.controllers().capture.demo().delivered();
    QTRY_VERIFY(stage.shell.controllers().capture.demo().delivered() > delivered + 10);
    QCOMPARE(stage.shell.frames().framesCount(), 2);
    stage.ticker->tick(2);
    QVERIFY(stage.waitFor(": 2 4"));
    stage.shoot.giveUp("enough");
    QVERIFY(stage.waitForTheEnd());
}

void TestDemoShoot::projectThatCannotBeMade()
{
    Stage stage({}, "/nowhere/film.kzfx");
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().startsWith("Step 1 of 7 (New project) failed: ")
                 && stage.shoot.failure().contains("'/nowhere/film.kzfx' cannot be written"),
             qPrintable(stage.shoot.failure()));
    QVERIFY(!stage.shoot.isDone());
    QCOMPARE(stage.shoot.outcome().projectPath, QString());
}

void TestDemoShoot::cameraThatIsNotThere()
{
    Stage stage;
    stage.shell.controllers().capture.demo().setPresent(false);
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().startsWith("Step 2 of 7 (Connect) failed: Camera not present"),
             qPrintable(stage.shoot.failure()));
    QCOMPARE(stage.read().status, ProjectReadResult::Status::Ok);
}

void TestDemoShoot::cameraThatGoesAway()
{
    Stage stage;
    QVERIFY(stage.waitFor(": 2 4 6"));
    stage.shell.controllers().capture.demo().setPresent(false);
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().startsWith("Step 3 of 7 (Shoot on twos) failed: "),
             qPrintable(stage.shoot.failure()));
    const ProjectReadResult read = stage.read();
    QCOMPARE(read.status, ProjectReadResult::Status::Ok);
    QVERIFY(read.document.frames.size() >= 6);
    QCOMPARE(int(read.document.frames.size()), stage.shoot.outcome().frames);
}

void TestDemoShoot::cameraThatNeverDelivers()
{
    Stage stage({.patience = 10});
    stage.shell.controllers().capture.demo().setDelivering(false);
    QVERIFY(stage.waitFor("Connect:"));
    stage.ticker->tick(10);
    QCOMPARE(stage.shoot.failure(), QString());
    stage.ticker->tick();
    QCOMPARE(stage.shoot.failure(), "Step 2 of 7 (Connect) failed: nothing has moved for 1 s");
    // Its thread is still looking for a picture, and the window closes all the same.
    stage.ticker->tick(100);
    QVERIFY(stage.waitForTheEnd());
}

void TestDemoShoot::saveThatFails()
{
    Stage stage;
    QVERIFY(stage.waitFor(": 2"));
    QVERIFY(QFile::remove(stage.path) && QDir().mkdir(stage.path));
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().startsWith(
                 "Step 3 of 7 (Shoot on twos) failed: The project could not be saved: "),
             qPrintable(stage.shoot.failure()));
}

void TestDemoShoot::renderThatFails()
{
    Stage stage;
    QVERIFY(stage.waitFor("Render WebM"));
    const QString folder = stage.shell.window().videoDirPath();
    QVERIFY(stage.waitFor("Render AVI:"));
    QVERIFY(QDir(folder).removeRecursively());
    QFile file(folder.chopped(1));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().startsWith("Step 6 of 7 (Render AVI) failed: "),
             qPrintable(stage.shoot.failure()));
    QCOMPARE(stage.shoot.outcome().movies.size(), 1);
}

void TestDemoShoot::closedWindow()
{
    Stage stage;
    QVERIFY(stage.waitFor(": 2 4"));
    QCloseEvent event;
    QCoreApplication::sendEvent(&stage.shell.window(), &event);
    QVERIFY(!event.isAccepted());
    QVERIFY(stage.waitForTheEnd());
    QCOMPARE(stage.shoot.failure(), "Stopped in step 3 of 7 (Shoot on twos): the window was closed");
    QVERIFY(!stage.shell.global().connected());
    const ProjectReadResult read = stage.read();
    QCOMPARE(read.status, ProjectReadResult::Status::Ok);
    QCOMPARE(int(read.document.frames.size()), stage.shell.frames().framesCount());
    QCOMPARE(stage.shell.window().qmlDialogUrl(), QString());
}

void TestDemoShoot::closedWindowDuringARender()
{
    Stage stage;
    QVERIFY(stage.waitFor("Render WebM:"));
    QCloseEvent event;
    QCoreApplication::sendEvent(&stage.shell.window(), &event);
    QVERIFY(stage.waitForTheEnd());
    QCOMPARE(stage.shoot.failure(), "Stopped in step 5 of 7 (Render WebM): the window was closed");
    QVERIFY(!stage.shell.window().morvaRobotThreadStarted());
    QCOMPARE(stage.read().document.frames.size(), 24);
}

void TestDemoShoot::quitByTheMenu()
{
    Stage stage;
    QVERIFY(stage.waitFor("Connect: Demo"));
    stage.shell.window().quit();
    QVERIFY(stage.waitForTheEnd());
    QVERIFY2(stage.shoot.failure().endsWith(": the window was closed"), qPrintable(stage.shoot.failure()));
}

void TestDemoShoot::firstReasonStays()
{
    Stage stage;
    stage.shoot.giveUp("interrupted");
    stage.shoot.giveUp("twice");
    QVERIFY(stage.waitForTheEnd());
    QCOMPARE(stage.shoot.failure(), "Stopped in step 1 of 7 (New project): interrupted");
    QCOMPARE(stage.said, QString());
    QVERIFY(!QFile::exists(stage.path));
}

void TestDemoShoot::endsThoughThePartsRefuse()
{
    Stage stage;
    QVERIFY(stage.waitFor(".kzfx"));
    stage.shell.window().setProgressTotal(5);
    stage.shoot.giveUp("interrupted");
    QTest::qWait(0);
    QCOMPARE(stage.shell.window().closeAttempts(), 0);
    stage.ticker->tick(29);
    QCOMPARE(stage.shell.window().closeAttempts(), 0);
    stage.ticker->tick(1);
    QCOMPARE(stage.shell.window().closeAttempts(), 1);
    stage.ticker->tick(49);
    QCOMPARE(stage.shell.quits(), 0);
    stage.ticker->tick(1);
    QCOMPARE(stage.shell.window().closeAttempts(), 6);
    QCOMPARE(stage.shell.quits(), 1);
}

QTEST_MAIN(TestDemoShoot)
#include "tst_demoshoot.moc"
