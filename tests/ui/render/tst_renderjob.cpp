#include "support/ShownItems.h"
#include "ui/render/RenderTest.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// From the press of the start button to the movie: what the press does first, the progress, the end with its
/// button, what went wrong, and stopping. The movies are read back by the public tool `ffprobe`.
class TestRenderJob : public RenderTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void pressClearsTheWayAndWaits();
    void pauseRunsToItsEnd();
    void pressDuringThePauseStartsOneJob();
    void startThatIsRefusedLeavesNoDialog();
    void pressDuringAJobBreaksIt();
    void breakShowsTheProgressOfTheJob();

    void rendersFromThePane_data();
    void rendersFromThePane();
    void rendersWithEffectFiltersAndTimecode();
    void tabsComeBackAfterTheEnd();
    void endOffersTheMovie();
    void playerTakesTheMovieThatIsThere();
    void rendersTheSameNameAgain();
    void errorsKeepTheDialogAndAreListed();
    void refusedSizeIsTold();
    void cancelStopsAndKeepsWhatIsThere();

private:
    void press();
    void render();
    bool atRest() const
    {
        return !w->window().morvaRobotThreadStarted() && w->window().currentRobotJob() == Zum::NoJob;
    }
    QString movie(const QString &name) const
    {
        return w->window().videoDirPath() + name;
    }
    static QJsonObject stream(const QString &path, const QString &kind);
    QStringList dialogTexts() const;
    /// Between the press and the start. Short, where a test waits for it.
    QObject *pause = nullptr;
};

namespace {

constexpr QSize frameSize(320, 288);

} // namespace

void TestRenderJob::initTestCase()
{
    w = std::make_unique<RenderWindow>();
    pause = w->shell().timer(800);
    QVERIFY(pause);
}

/// One window serves all: back to a film of twelve pictures and a folder without movies.
void TestRenderJob::init()
{
    WebcamGlobal &g = w->global();
    g.setMainTabsState(u"timingUIisOn"_s);
    g.setCropAreaW(frameSize.width());
    g.setCropAreaH(frameSize.height());
    g.setVideoExportPolicy(Zum::ExportPolicyCropped);
    g.setRenderFormatNameStr(u"avi"_s);
    g.setRenderFileName(u"videotest"_s);
    g.setRenderTimecode(false);
    g.setVideoEffectsString({});
    g.setPostProcessing(Zum::NoProcessing);
    g.setPostProcessSettings({});
    g.setLastRenderedPath({});
    pause->setProperty("interval", 20);
    w->frames().setTimelineRangeEnd(11);
    w->writePictures(frameSize);
    w->shell().desktop().shown.clear();
    QDir(w->window().videoDirPath()).removeRecursively();
    QVERIFY(w->shell().settle());
}

void TestRenderJob::press()
{
    w->click("startRender");
}

void TestRenderJob::render()
{
    QSignalSpy changed(&w->window(), &MainWindow::morvaRobotThreadStartedChanged);
    press();
    // It begins and it ends.
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
    QVERIFY(atRest());
}

QJsonObject TestRenderJob::stream(const QString &path, const QString &kind)
{
    QProcess probe;
    probe.start(u"ffprobe"_s, {u"-v"_s, u"error"_s, u"-count_frames"_s, u"-show_streams"_s, u"-of"_s,
                               u"json"_s, u"-select_streams"_s, kind, path});
    probe.waitForFinished();
    return QJsonDocument::fromJson(probe.readAllStandardOutput())[u"streams"][0].toObject();
}

QStringList TestRenderJob::dialogTexts() const
{
    return shownItems::texts(w->shell().evaluate(u"dialog.item"_s).value<QQuickItem *>());
}

void TestRenderJob::pressClearsTheWayAndWaits()
{
    QSignalSpy cleared(&w->global(), &WebcamGlobal::clearCache);
    w->global().setPlayerPlaying(true);
    w->global().setPlayerSource("/films/fox.avi");
    pause->setProperty("interval", 800);
    press();
    QCOMPARE(cleared.count(), 1);
    QVERIFY(!w->global().playerPlaying());
    QCOMPARE(w->global().playerSource(), "default.avi");
    QCOMPARE(w->dialogFile(), "Empty.qml");
    QVERIFY(pause->property("running").toBool());
    QVERIFY(!w->window().morvaRobotThreadStarted());
    QCOMPARE(w->window().progressTotal(), 0);
    pause->setProperty("running", false);
}

void TestRenderJob::pauseRunsToItsEnd()
{
    QSignalSpy changed(&w->window(), &MainWindow::morvaRobotThreadStartedChanged);
    press();
    w->window().setQmlDialogUrl({});
    w->global().setMainTabsState("captureUIisOn");
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
    QVERIFY(QFileInfo::exists(movie("videotest.avi")));
}

void TestRenderJob::pressDuringThePauseStartsOneJob()
{
    QSignalSpy begun(&w->window(), &MainWindow::robotRenderVideo);
    QSignalSpy stopped(&w->window(), &MainWindow::stopRobot);
    QSignalSpy changed(&w->window(), &MainWindow::morvaRobotThreadStartedChanged);
    QQuickItem *button = w->part("startRender");
    press();
    QMetaObject::invokeMethod(button, "clicked");
    QTRY_COMPARE_WITH_TIMEOUT(changed.count(), 2, 20000);
    QCOMPARE(begun.count(), 1);
    QCOMPARE(stopped.count(), 0);
}

void TestRenderJob::startThatIsRefusedLeavesNoDialog()
{
    QTest::ignoreMessage(QtWarningMsg, "MainWindow::runMorvaRobot Error: Thread is still running");
    RobotSupervisor &robot = w->shell().controllers().robot;
    press();
    robot.setMorvaRobotThreadStarted(true);
    QTRY_COMPARE(w->dialogFile(), QString());
    robot.setMorvaRobotThreadStarted(false);
    QVERIFY(w->shell().messages().join(' ').contains(
        "The render could not be started. Wait for the end of the work that runs"));
}

void TestRenderJob::pressDuringAJobBreaksIt()
{
    QSignalSpy stopped(&w->window(), &MainWindow::stopRobot);
    RobotSupervisor &robot = w->shell().controllers().robot;
    robot.setCurrentRobotJob(Zum::ExportFrames);
    QCOMPARE(w->textOf("startRender"), "Stop");
    press();
    QTRY_COMPARE(stopped.count(), 1);
    QCOMPARE(w->dialogFile(), QString());
    QVERIFY(!w->window().morvaRobotThreadStarted());
    robot.setCurrentRobotJob(Zum::NoJob);
    QCOMPARE(w->textOf("startRender"), "Render Video");
}

void TestRenderJob::breakShowsTheProgressOfTheJob()
{
    RobotSupervisor &robot = w->shell().controllers().robot;
    robot.setCurrentRobotJob(Zum::ExportFrames);
    press();
    w->window().setProgressTotal(10);
    w->window().setQmlDialogUrl("Empty.qml");
    QTRY_COMPARE(w->dialogFile(), "LoadDialog.qml");
    w->window().setProgressTotal(0);
    QCOMPARE(w->dialogFile(), QString());
    robot.setCurrentRobotJob(Zum::NoJob);
}

void TestRenderJob::rendersFromThePane_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("policy");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("codec");
    QTest::addColumn<QString>("audio");
    QTest::addColumn<QSize>("size");
    const int crop = Zum::ExportPolicyCropped;
    QTest::newRow("AVI") << 0 << crop << "fox.avi"
                         << "mpeg4"
                         << "mp2" << frameSize;
    QTest::newRow("WebM") << 2 << crop << "fox.webm"
                          << "vp8"
                          << "opus" << frameSize;
    QTest::newRow("MKV, scaled") << 3 << static_cast<int>(Zum::ExportPolicyCroppedAndResized) << "fox.mkv"
                                 << "vp8"
                                 << "" << QSize(640, 576);
}

void TestRenderJob::rendersFromThePane()
{
    QFETCH(int, format);
    QFETCH(int, policy);
    QFETCH(QString, file);
    QFETCH(QSize, size);
    w->type("renderFileName", "fox");
    w->click(w->choice("renderFormat", format));
    w->click(w->choice("renderQuality", 1));
    w->global().setVideoExportPolicy(policy);
    w->global().setExportSizeW(640);
    w->global().updateExportSizes();
    w->frames().setTimelineFps(12);
    render();
    QCOMPARE(w->window().robotErrorCount(), 0);
    QCOMPARE(w->global().lastRenderedPath(), movie(file));
    const QJsonObject video = stream(movie(file), "v");
    QTEST(video["codec_name"].toString(), "codec");
    QCOMPARE(QSize(video["width"].toInt(), video["height"].toInt()), size);
    QCOMPARE(video["nb_read_frames"].toString(), "12");
    QTEST(stream(movie(file), "a")["codec_name"].toString(), "audio");
}

void TestRenderJob::rendersWithEffectFiltersAndTimecode()
{
    w->click("openEffects");
    w->click(w->choice("effects", 4));
    w->click("closeEffects");
    w->click("renderTimecode");
    w->click("filtersPreview");
    w->global().setPostProcessSetting("contrast", 20);
    render();
    QCOMPARE(w->window().robotErrorCount(), 0);
    QCOMPARE(w->global().videoRenderSettsStr(), "AVI 320x288, crop, filters, timecode, effects");
    QCOMPARE(stream(movie("videotest.avi"), "v")["nb_read_frames"].toString(), "12");
}

void TestRenderJob::tabsComeBackAfterTheEnd()
{
    render();
    w->click("close");
    w->clickText("Capture");
    QCOMPARE(w->global().mainTabsState(), "captureUIisOn");
}

void TestRenderJob::endOffersTheMovie()
{
    render();
    QCOMPARE(w->dialogFile(), "LoadDialog.qml");
    QCOMPARE(dialogTexts(), QStringList({"Completed", "View Video", "Close"}));
    w->click("viewVideo");
    QCOMPARE(w->shell().desktop().shown, QStringList{movie("videotest.avi")});
    QCOMPARE(w->global().playerSource(), movie("videotest.avi"));
    w->click("close");
    QCOMPARE(w->dialogFile(), QString());
    QVERIFY(!w->global().dialogRemainsVisible());
}

void TestRenderJob::playerTakesTheMovieThatIsThere()
{
    w->global().setPlayerSource("default.avi");
    w->global().setLastRenderedPath("/nowhere/fox.avi");
    QCOMPARE(w->global().playerSource(), "default.avi");
    w->global().setLastRenderedPath({});
    QCOMPARE(w->global().playerSource(), "default.avi");
    w->global().setLastRenderedPath(w->window().projPath());
    QCOMPARE(w->global().playerSource(), w->window().projPath());
}

void TestRenderJob::rendersTheSameNameAgain()
{
    render();
    w->click("close");
    w->frames().setTimelineRangeEnd(5);
    render();
    QCOMPARE(stream(movie("videotest.avi"), "v")["nb_read_frames"].toString(), "6");
    QCOMPARE(w->global().playerSource(), movie("videotest.avi"));
}

void TestRenderJob::errorsKeepTheDialogAndAreListed()
{
    const QString lost = w->window().capFullDirPath() + "frame_3.jpg";
    QVERIFY(QFile::remove(lost));
    render();
    QCOMPARE(w->window().robotErrorCount(), 1);
    QCOMPARE(w->dialogFile(), "LoadDialog.qml");
    const QStringList texts = dialogTexts();
    QVERIFY(texts.contains("Completed"));
    QVERIFY2(texts.contains("Robot: Cannot load " + lost + ". Skipping image"), qPrintable(texts.join('\n')));
    // What to do about it stands below it.
    const qsizetype told = texts.indexOf("Robot: Cannot load " + lost + ". Skipping image");
    QVERIFY2(texts.value(told + 1).contains("capture the frame again"), qPrintable(texts.join('\n')));
    QVERIFY(texts.contains("View Video"));
    QCOMPARE(stream(movie("videotest.avi"), "v")["nb_read_frames"].toString(), "11");
    w->click("close");
    QCOMPARE(w->window().robotErrorCount(), 0);
    QCOMPARE(w->dialogFile(), QString());
}

void TestRenderJob::refusedSizeIsTold()
{
    w->global().setCropAreaW(312);
    render();
    const QStringList texts = dialogTexts();
    QVERIFY(texts.contains("Robot: Frame size: 312x288"));
    QVERIFY(texts.contains("Robot: Minimum frame size is 320x280"));
    QVERIFY(!texts.contains("View Video"));
    QVERIFY(!QFileInfo::exists(movie("videotest.avi")));
}

void TestRenderJob::cancelStopsAndKeepsWhatIsThere()
{
    // A film so long that the click comes first: one picture, shown over and over.
    for (int i = 0; i < 800; ++i)
        w->frames().appendFrame({{"capFull", "frame_0.jpg"}});
    w->frames().setTimelineRangeEnd(w->frames().last());
    press();
    QTRY_VERIFY(w->window().progressCurrent() > 5);
    QCOMPARE(w->dialogFile(), "LoadDialog.qml");
    QCOMPARE(w->part("close")->property("text").toString(), "Cancel");
    w->click("close");
    QTRY_VERIFY(atRest());
    QTRY_COMPARE(w->dialogFile(), "LoadDialog.qml");
    const QStringList texts = dialogTexts();
    QVERIFY2(texts.contains("Robot: Processing image. Robot interrupted"), qPrintable(texts.join('\n')));
    QVERIFY(texts.contains("View Video"));
    const int frames = stream(movie("videotest.avi"), "v")["nb_read_frames"].toString().toInt();
    QVERIFY(frames > 5);
    QVERIFY(frames < 812);
}

QTEST_MAIN(TestRenderJob)
#include "tst_renderjob.moc"
