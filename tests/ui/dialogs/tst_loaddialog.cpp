#include "ui/dialogs/DialogHost.h"

#include <memory>
#include <QSignalSpy>
#include <QtTest>

/// The progress dialog, from the first step of a work to its end and closing.
class TestLoadDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void comesWithTheWorkAndGoesWithIt();
    void showsActionAndPercent();
    void tellsTheRemainingTime_data();
    void tellsTheRemainingTime();
    void keepsTheEstimateWhenNothingMoves();
    void forgetsTheEstimateWithAnotherWork();
    void estimatesAtEveryStep();
    void simulatesTheProgressOfATotalOfOne();
    void staysCompletedWhenAskedTo();
    void offersTheVideo();
    void offersTheVideoOfAJobThatBeganBefore();
    void offersNoVideoThatIsNotThere();
    void offersTheExportedFrames();
    void offersNoFramesOfAnotherJob();
    void listsWhatTheWorkerSaid();
    void endWithErrorsKeepsTheDialogOpen();
    void cancelStopsEverything();
    void closingAfterTheEndStopsEverythingToo();
    void escapeDuringAWorkLeavesTheDialogUp();
    void escapeAfterTheEndForgetsTheErrors();

private:
    void begin(int total, const QString &action = "Encoding");
    void finishJob(int job);
    QString shown(const QString &part) const;
    QObject *estimate() const;
    int robotMessages() const;

    std::unique_ptr<DialogHost> d;
};

void TestLoadDialog::init()
{
    d = std::make_unique<DialogHost>();
    d->host.global().setSoundsOn(false);
}

void TestLoadDialog::cleanup()
{
    const QStringList warnings = d->host.warnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

void TestLoadDialog::begin(int total, const QString &action)
{
    d->window.setProgressAction(action);
    d->window.setProgressTotal(total);
    QCOMPARE(d->window.qmlDialogUrl(), "LoadDialog.qml");
    QVERIFY(d->isOpen());
}

void TestLoadDialog::finishJob(int job)
{
    d->window.setCurrentRobotJob(job);
    d->window.setProgressAction(QString());
    d->window.setProgressCurrent(0);
    d->window.setProgressTotal(0);
    d->window.setCurrentRobotJob(Zum::NoJob);
}

QString TestLoadDialog::shown(const QString &part) const
{
    const QQuickItem *item = d->part(part);
    return item ? item->property("text").toString() : QString();
}

QObject *TestLoadDialog::estimate() const
{
    return d->dialog()->property("estimate").value<QObject *>();
}

int TestLoadDialog::robotMessages() const
{
    return d->host.evaluate("children[0].children[0].robotMessgModel.count").toInt();
}

void TestLoadDialog::comesWithTheWorkAndGoesWithIt()
{
    QVERIFY(!d->isOpen());
    begin(10);
    d->window.setProgressTotal(0);
    QVERIFY(!d->isOpen());
    QCOMPARE(d->window.calls, QStringList());
}

void TestLoadDialog::showsActionAndPercent()
{
    begin(240, "Loading Project");
    QCOMPARE(d->texts().constFirst(), "Loading Project");
    QCOMPARE(shown("percent"), "0 %");
    d->window.setProgressCurrent(60);
    QCOMPARE(shown("percent"), "25 %");
    d->window.setProgressCurrent(239);
    QCOMPARE(shown("percent"), "99 %");
    d->window.setProgressCurrent(240);
    QCOMPARE(shown("percent"), "100 %");
    d->window.setProgressCurrent(300);
    QCOMPARE(shown("percent"), "100 %");
    QVERIFY(d->texts().contains("Cancel"));
}

void TestLoadDialog::tellsTheRemainingTime_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("done");
    QTest::addColumn<QString>("text");
    QTest::newRow("seconds") << 240 << 60 << "00 hrs 00 min 24 sec";
    QTest::newRow("minutes") << 100 << 8 << "00 hrs 01 min 32 sec";
    QTest::newRow("hours") << 80000 << 8 << "22 hrs 13 min 12 sec";
    QTest::newRow("days") << 800000 << 8 << "222 hrs 13 min 12 sec";
    QTest::newRow("at the end") << 50 << 50 << "00 hrs 00 min 00 sec";
}

void TestLoadDialog::tellsTheRemainingTime()
{
    QFETCH(int, total);
    QFETCH(int, done);
    QFETCH(QString, text);
    begin(total);
    QCOMPARE(estimate()->property("stepMs").toInt(), 8000);
    QVERIFY(estimate()->property("running").toBool());
    QVERIFY(!d->part("remaining"));
    d->window.setProgressCurrent(done);
    QVERIFY(!d->part("remaining"));
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QCOMPARE(shown("remaining"), "Remaining time: " + text);
}

void TestLoadDialog::keepsTheEstimateWhenNothingMoves()
{
    begin(240);
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QVERIFY(!d->part("remaining"));
    d->window.setProgressCurrent(60);
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QCOMPARE(shown("remaining"), "Remaining time: 00 hrs 00 min 24 sec");
    // Only what was done since the last step counts.
    d->window.setProgressCurrent(70);
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QCOMPARE(shown("remaining"), "Remaining time: 00 hrs 02 min 16 sec");
}

void TestLoadDialog::forgetsTheEstimateWithAnotherWork()
{
    begin(240);
    d->window.setProgressCurrent(60);
    QMetaObject::invokeMethod(estimate(), "takeStep");
    QVERIFY(d->part("remaining"));
    d->window.setProgressTotal(90);
    QVERIFY(!d->part("remaining"));
}

void TestLoadDialog::estimatesAtEveryStep()
{
    begin(240);
    estimate()->setProperty("stepMs", 10);
    d->window.setProgressCurrent(60);
    QTRY_VERIFY(d->part("remaining"));
}

void TestLoadDialog::simulatesTheProgressOfATotalOfOne()
{
    begin(1, "Saving");
    QVERIFY(d->part("progressLine")->property("indeterminate").toBool());
    QVERIFY(!d->part("percent"));
    QVERIFY(!estimate()->property("running").toBool());
    d->window.setProgressTotal(2);
    QVERIFY(!d->part("progressLine")->property("indeterminate").toBool());
    QCOMPARE(shown("percent"), "0 %");
}

void TestLoadDialog::staysCompletedWhenAskedTo()
{
    d->host.global().setDialogRemainsVisible(true);
    begin(10);
    finishJob(Zum::RenderVideo);
    QVERIFY(d->isOpen());
    QCOMPARE(d->texts(), QStringList({"Completed", "Close"}));
    QVERIFY(!d->part("progressLine"));
}

void TestLoadDialog::offersTheVideo()
{
    d->host.global().setDialogRemainsVisible(true);
    begin(10);
    d->host.global().setLastRenderedPath("/films/fox.avi");
    QVERIFY(!d->part("viewVideo"));
    finishJob(Zum::RenderVideo);
    QVERIFY(d->texts().contains("View Video"));
    QVERIFY(!d->part("viewFrames"));
    d->click("viewVideo");
    QCOMPARE(d->window.calls, QStringList("showInGraphicalShell /films/fox.avi"));
    QVERIFY(d->isOpen());
}

void TestLoadDialog::offersTheVideoOfAJobThatBeganBefore()
{
    d->host.global().setDialogRemainsVisible(true);
    d->window.setCurrentRobotJob(Zum::RenderVideo);
    begin(10);
    d->host.global().setLastRenderedPath("/films/fox.avi");
    d->window.setProgressTotal(0);
    d->window.setCurrentRobotJob(Zum::NoJob);
    QVERIFY(d->part("viewVideo"));
}

void TestLoadDialog::offersNoVideoThatIsNotThere()
{
    d->host.global().setDialogRemainsVisible(true);
    begin(10);
    finishJob(Zum::RenderVideo);
    QVERIFY(!d->part("viewVideo"));
}

void TestLoadDialog::offersTheExportedFrames()
{
    d->host.global().setDialogRemainsVisible(true);
    d->host.global().setExportPath("/films/frames/");
    begin(10);
    QVERIFY(!d->part("viewFrames"));
    finishJob(Zum::ExportFrames);
    QVERIFY(d->texts().contains("View Exported Frames"));
    QVERIFY(!d->part("viewVideo"));
    d->click("viewFrames");
    QCOMPARE(d->window.calls, QStringList("showInGraphicalShell /films/frames/"));
}

void TestLoadDialog::offersNoFramesOfAnotherJob()
{
    d->host.global().setDialogRemainsVisible(true);
    d->host.global().setExportPath("/films/frames/");
    d->host.global().setLastRenderedPath("/films/fox.avi");
    begin(10);
    finishJob(Zum::SplitVideo);
    QVERIFY(!d->part("viewFrames"));
    QVERIFY(!d->part("viewVideo"));
}

void TestLoadDialog::listsWhatTheWorkerSaid()
{
    begin(10);
    d->window.messages().reportError("Export path is empty");
    d->window.messages().reportError("Disk full");
    QVERIFY(d->texts().contains("Robot: Export path is empty"));
    QVERIFY(d->texts().contains("Robot: Disk full"));
}

void TestLoadDialog::endWithErrorsKeepsTheDialogOpen()
{
    begin(10);
    d->window.messages().reportError("Disk full");
    finishJob(Zum::SplitVideo);
    QVERIFY(d->isOpen());
    QCOMPARE(d->texts(), QStringList({"Completed", "Robot: Disk full", "Close"}));
    QCOMPARE(d->window.robotErrorCount(), 1);
    // The end of a batch of frames sends this too.
    emit d->host.global().globalDismiss();
    QCOMPARE(robotMessages(), 1);
}

void TestLoadDialog::cancelStopsEverything()
{
    begin(10);
    d->window.messages().reportError("Disk full");
    QCOMPARE(robotMessages(), 1);
    d->clickText("Cancel");
    QVERIFY(!d->isOpen());
    QCOMPARE(d->window.calls, QStringList({"stopLoadingProject", "breakMorvaRobot 2"}));
    QVERIFY(d->frames.calls.contains("stopThreadAction"));
    QCOMPARE(d->window.robotErrorCount(), 0);
    QCOMPARE(robotMessages(), 0);
}

void TestLoadDialog::closingAfterTheEndStopsEverythingToo()
{
    begin(10);
    d->window.messages().reportError("Disk full");
    finishJob(Zum::GenThumbnails);
    d->click("close");
    QVERIFY(!d->isOpen());
    QCOMPARE(d->window.calls, QStringList({"stopLoadingProject", "breakMorvaRobot 2"}));
    QCOMPARE(d->window.robotErrorCount(), 0);
    QCOMPARE(robotMessages(), 0);
}

void TestLoadDialog::escapeDuringAWorkLeavesTheDialogUp()
{
    begin(10);
    d->host.global().setPrintScreenModeOn(true);
    d->host.key(Qt::Key_Escape);
    QVERIFY(d->isOpen());
    QVERIFY(!d->host.global().printScreenModeOn());
    d->host.key(Qt::Key_Return);
    QVERIFY(d->isOpen());
    QCOMPARE(d->window.calls, QStringList());
}

void TestLoadDialog::escapeAfterTheEndForgetsTheErrors()
{
    begin(10);
    d->window.messages().reportError("Disk full");
    finishJob(Zum::GenThumbnails);
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
    QCOMPARE(d->window.robotErrorCount(), 0);
    QCOMPARE(robotMessages(), 0);
}

QTEST_MAIN(TestLoadDialog)

#include "tst_loaddialog.moc"
