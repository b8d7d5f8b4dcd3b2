#include "capture/CaptureWorkflow.h"
#include "capture/TimeLapse.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"
#include "support/HandTicker.h"
#include "timeline/FramesModel.h"

#include <QSignalSpy>
#include <QTest>

/// What decides about a shot, and the time-lapse tool.
class TestCaptureWorkflow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aShotNeedsAReadyAndFreeDevice();
    void theNumberIsTheCountOfFrames();
    void theNumberIsTheCurrentRowWhenReplacing();
    void namesAndPaths();
    void namesWithTheMask();
    void timeStampIsOfNowUnlessTold();
    void theBusyMarkHoldsTheRowToFill();
    void twoQuickPressesGiveOneShotAndOneWarning();
    void anAppendedShotGetsItsRow();
    void onTwosAShotFillsTwoRows();
    void aReplacingShotTakesTheCurrentRow();
    void replacingTheLastFrameWithThreeFramesMovesBackTwo();
    void replacingInAShortTimelineStartsAtItsFirstRow();
    void replacingInAnEmptyTimelineAppends();
    void aFailedShotGivesTheMarkBack();

    void intervalsOfTheUnits_data();
    void intervalsOfTheUnits();
    void aLargerNumberIsCutToTheLimitOfTheUnit();
    void timeLapseNeedsACamera();
    void timeLapseFiresAtOnceAndThenSteadily();
    void timeLapseLeavesReplaceMode();
    void anIntervalShorterThanATransferStopsAtTheSecondFiring();
    void stoppingTells();
    void disconnectingStopsTheTool();
    void aLostCameraMayComeBackWithinTwoIntervals();
    void aLostCameraThatStaysAwayStopsTheTool();
    void ticksThatCameLateAreOneShot();
    void aChangeOfPaceStartsTheTickerAnew();

private:
    void fillRows(int rows)
    {
        for (int i = 0; i < rows; ++i)
            frames->appendFrame({{"capFull", QString("%1.jpg").arg(i)}});
        frames->setLoaded(true);
    }
    QString fullOf(int row) const
    {
        return frames->get(row).value("capFull").toString();
    }
    QStringList messages() const
    {
        QStringList texts;
        for (const QVariantList &message : *told)
            texts.append(message.at(2).toString());
        return texts;
    }
    /// The next tick, once what the last one began has had its turn.
    void tick()
    {
        QCoreApplication::processEvents();
        ticker->tick();
    }
    void connectCamera(bool connected)
    {
        global->setConnected(connected);
    }

    std::unique_ptr<WebcamGlobal> global;
    std::unique_ptr<FramesModel> frames;
    std::unique_ptr<CaptureWorkflow> workflow;
    std::unique_ptr<QSignalSpy> told;
    std::unique_ptr<QSignalSpy> asked;
    HandTicker *ticker = nullptr;
    std::unique_ptr<TimeLapse> lapse;
};

void TestCaptureWorkflow::init()
{
    global = std::make_unique<WebcamGlobal>();
    frames = std::make_unique<FramesModel>();
    frames->setShootMultipleFrames(0);
    workflow = std::make_unique<CaptureWorkflow>(*global, *frames, [] { return QString("260101120000"); });
    told = std::make_unique<QSignalSpy>(global.get(), &WebcamGlobal::appendMessage);
    asked = std::make_unique<QSignalSpy>(global.get(), &WebcamGlobal::doCaptureFrame);
    auto hand = std::make_unique<HandTicker>();
    ticker = hand.get();
    lapse = std::make_unique<TimeLapse>(*global, *frames, std::move(hand));
}

void TestCaptureWorkflow::cleanup()
{
    lapse.reset();
    workflow.reset();
    told.reset();
    asked.reset();
    frames.reset();
    global.reset();
}

void TestCaptureWorkflow::aShotNeedsAReadyAndFreeDevice()
{
    QVERIFY(!workflow->mayCapture());
    global->setReady(true);
    QVERIFY(workflow->mayCapture());
    global->setSavingFrame(true);
    QVERIFY(!workflow->mayCapture());
    global->setSavingFrame(false);
    global->setCapturingInprogress(0);
    QVERIFY(!workflow->mayCapture());
}

void TestCaptureWorkflow::theNumberIsTheCountOfFrames()
{
    QCOMPARE(workflow->nextNumber(), 0);
    fillRows(5);
    frames->setCurrentIndex(2);
    QCOMPARE(workflow->nextNumber(), 5);
    frames->setCaptureMode(Zum::CaptureModeNone);
    QCOMPARE(workflow->nextNumber(), 5);
}

void TestCaptureWorkflow::theNumberIsTheCurrentRowWhenReplacing()
{
    fillRows(5);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    frames->setCurrentIndex(2);
    QCOMPARE(workflow->nextNumber(), 2);
}

void TestCaptureWorkflow::namesAndPaths()
{
    fillRows(3);
    global->setThumbExt("jpeg");
    const QVariantMap shot = workflow->nextShot("/p/cap/", "/p/cap/tmb/");
    QCOMPARE(shot.value("fullName").toString(), QString("frame_norm_000003_260101120000.jpg"));
    QCOMPARE(shot.value("tumbName").toString(), QString("frame_mini_000003_260101120000.jpeg"));
    QCOMPARE(shot.value("fullPath").toString(), QString("/p/cap/frame_norm_000003_260101120000.jpg"));
    QCOMPARE(shot.value("tumbPath").toString(), QString("/p/cap/tmb/frame_mini_000003_260101120000.jpeg"));
}

void TestCaptureWorkflow::namesWithTheMask()
{
    global->setUseFrameNameMask(true);
    global->setFrameNameMask("scene7");
    const QVariantMap shot = workflow->nextShot("/p/", "/t/");
    QCOMPARE(shot.value("fullPath").toString(), QString("/p/scene7_000000_260101120000.jpg"));
    QCOMPARE(shot.value("tumbPath").toString(), QString("/t/scene7_mini_000000_260101120000.jpg"));
}

void TestCaptureWorkflow::timeStampIsOfNowUnlessTold()
{
    const CaptureWorkflow now(*global, *frames);
    const QString before = global->timeStamp();
    const QString name = now.nextShot("", "").value("fullName").toString();
    const QString after = global->timeStamp();
    const QString stamp = name.mid(name.size() - 16, 12);
    QVERIFY(before <= stamp && stamp <= after);
}

void TestCaptureWorkflow::theBusyMarkHoldsTheRowToFill()
{
    fillRows(4);
    frames->setCurrentIndex(1);
    QVERIFY(workflow->beginShot());
    QCOMPARE(global->capturingInprogress(), 4);
    workflow->dropShot();
    frames->setCaptureMode(Zum::CaptureModeReplace);
    QVERIFY(workflow->beginShot());
    QCOMPARE(global->capturingInprogress(), 1);
}

void TestCaptureWorkflow::twoQuickPressesGiveOneShotAndOneWarning()
{
    QVERIFY(workflow->beginShot());
    QVERIFY(!workflow->beginShot());
    QCOMPARE(told->size(), 1);
    QCOMPARE(told->first(),
             (QVariantList{int(Zum::CameraMessage), int(Zum::Warning), "Taking a picture. Please wait"}));
    QCOMPARE(global->capturingInprogress(), 0);
}

void TestCaptureWorkflow::anAppendedShotGetsItsRow()
{
    fillRows(2);
    QSignalSpy added(frames.get(), &FramesModel::addedJustCapturedFrame);
    QVERIFY(workflow->beginShot());
    global->setUnsavedCapturedFull("new.jpg");
    global->setUnsavedCapturedTumb("small.jpg");
    workflow->finishShot();
    QCOMPARE(global->capturingInprogress(), -1);
    QCOMPARE(frames->framesCount(), 3);
    QCOMPARE(fullOf(2), QString("new.jpg"));
    QCOMPARE(frames->get(2).value("capTumb").toString(), QString("small.jpg"));
    QCOMPARE(added.size(), 1);
    QCOMPARE(frames->shotsTaken(), 1);
}

void TestCaptureWorkflow::onTwosAShotFillsTwoRows()
{
    fillRows(1);
    frames->setShootMultipleFrames(1);
    global->setUnsavedCapturedFull("new.jpg");
    workflow->beginShot();
    workflow->finishShot();
    QCOMPARE(frames->framesCount(), 3);
    QCOMPARE(fullOf(1), fullOf(2));
    QCOMPARE(frames->shotsTaken(), 2);
}

void TestCaptureWorkflow::aReplacingShotTakesTheCurrentRow()
{
    fillRows(4);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    frames->setCurrentIndex(1);
    global->setUnsavedCapturedFull("new.jpg");
    QSignalSpy changes(frames.get(), &FramesModel::timelineChanged);
    QSignalSpy replaced(workflow.get(), &CaptureWorkflow::shotReplaced);
    workflow->beginShot();
    workflow->finishShot();
    QCOMPARE(frames->framesCount(), 4);
    QCOMPARE(fullOf(1), QString("new.jpg"));
    QCOMPARE(fullOf(2), QString("2.jpg"));
    QCOMPARE(changes.last().first().toInt(), int(Zum::ActInsert));
    QCOMPARE(replaced.size(), 1);
    QCOMPARE(replaced.first().first().toInt(), 1);
}

void TestCaptureWorkflow::replacingTheLastFrameWithThreeFramesMovesBackTwo()
{
    fillRows(6);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    frames->setShootMultipleFrames(2);
    frames->setCurrentIndex(5);
    global->setUnsavedCapturedFull("new.jpg");
    workflow->beginShot();
    workflow->finishShot();
    QCOMPARE(frames->currentIndex(), 3);
    QCOMPARE(fullOf(2), QString("2.jpg"));
    for (int row = 3; row < 6; ++row)
        QCOMPARE(fullOf(row), QString("new.jpg"));
    QCOMPARE(frames->framesCount(), 6);
    // The same at once, when the amount changes; nothing in append mode.
    frames->setCurrentIndex(5);
    workflow->makeRoomToReplace();
    QCOMPARE(frames->currentIndex(), 3);
    frames->setCurrentIndex(1);
    workflow->makeRoomToReplace();
    QCOMPARE(frames->currentIndex(), 1);
    frames->setCaptureMode(Zum::CaptureModeAppend);
    frames->setCurrentIndex(5);
    workflow->makeRoomToReplace();
    QCOMPARE(frames->currentIndex(), 5);
}

void TestCaptureWorkflow::replacingInAShortTimelineStartsAtItsFirstRow()
{
    fillRows(2);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    frames->setShootMultipleFrames(7);
    frames->setCurrentIndex(1);
    global->setUnsavedCapturedFull("new.jpg");
    workflow->beginShot();
    workflow->finishShot();
    QCOMPARE(frames->currentIndex(), 0);
    QCOMPARE(fullOf(0), QString("new.jpg"));
    QCOMPARE(fullOf(1), QString("new.jpg"));
}

void TestCaptureWorkflow::replacingInAnEmptyTimelineAppends()
{
    frames->setLoaded(true);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    global->setUnsavedCapturedFull("new.jpg");
    workflow->beginShot();
    workflow->finishShot();
    QCOMPARE(frames->framesCount(), 1);
    QCOMPARE(fullOf(0), QString("new.jpg"));
}

void TestCaptureWorkflow::aFailedShotGivesTheMarkBack()
{
    workflow->beginShot();
    workflow->dropShot();
    QCOMPARE(global->capturingInprogress(), -1);
    QCOMPARE(frames->framesCount(), 0);
    QVERIFY(workflow->beginShot());
}

void TestCaptureWorkflow::intervalsOfTheUnits_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("times");
    QTest::addColumn<int>("intervalMs");
    QTest::newRow("30 a minute") << int(TimeLapse::Minute) << 30 << 2000;
    QTest::newRow("7 a minute") << int(TimeLapse::Minute) << 7 << 8571;
    QTest::newRow("120 an hour") << int(TimeLapse::Hour) << 120 << 30000;
    QTest::newRow("720 a day") << int(TimeLapse::Day) << 720 << 120000;
    QTest::newRow("1 a day") << int(TimeLapse::Day) << 1 << 86400000;
    QTest::newRow("0 is 1") << int(TimeLapse::Minute) << 0 << 60000;
    QTest::newRow("above the limit") << int(TimeLapse::Minute) << 31 << 2000;
}

void TestCaptureWorkflow::intervalsOfTheUnits()
{
    QFETCH(int, unit);
    QFETCH(int, times);
    QFETCH(int, intervalMs);
    QCOMPARE(lapse->times(), 7);
    QCOMPARE(lapse->unit(), 0);
    lapse->setUnit(unit);
    lapse->setTimes(times);
    QCOMPARE(lapse->intervalMs(), intervalMs);
}

void TestCaptureWorkflow::aLargerNumberIsCutToTheLimitOfTheUnit()
{
    lapse->setUnit(TimeLapse::Day);
    lapse->setTimes(500);
    QSignalSpy times(lapse.get(), &TimeLapse::timesChanged);
    lapse->setUnit(TimeLapse::Hour);
    QCOMPARE(lapse->times(), 120);
    lapse->setUnit(TimeLapse::Minute);
    QCOMPARE(lapse->times(), 30);
    QCOMPARE(times.size(), 2);
    lapse->setUnit(99);
    QCOMPARE(lapse->unit(), int(TimeLapse::Day));
    QCOMPARE(lapse->times(), 30);
}

void TestCaptureWorkflow::timeLapseNeedsACamera()
{
    lapse->start();
    QVERIFY(!global->zeitRafferRunning() && asked->isEmpty() && !ticker->isActive());
}

void TestCaptureWorkflow::timeLapseFiresAtOnceAndThenSteadily()
{
    connectCamera(true);
    QSignalSpy fired(lapse.get(), &TimeLapse::fired);
    lapse->setTimes(30);
    lapse->start();
    QVERIFY(global->zeitRafferRunning());
    QCOMPARE(asked->size(), 1);
    QCOMPARE(ticker->interval, 2000);
    tick();
    tick();
    QCOMPARE(asked->size(), 3);
    QCOMPARE(fired.size(), 3);
    lapse->start();
    QCOMPARE(asked->size(), 3);
}

void TestCaptureWorkflow::timeLapseLeavesReplaceMode()
{
    connectCamera(true);
    frames->setCaptureMode(Zum::CaptureModeReplace);
    lapse->start();
    QCOMPARE(frames->captureMode(), int(Zum::CaptureModeAppend));
}

void TestCaptureWorkflow::anIntervalShorterThanATransferStopsAtTheSecondFiring()
{
    connectCamera(true);
    connect(global.get(), &WebcamGlobal::doCaptureFrame, workflow.get(), &CaptureWorkflow::beginShot);
    lapse->start();
    QVERIFY(global->zeitRafferRunning());
    tick();
    QVERIFY(!global->zeitRafferRunning() && !ticker->isActive());
    QCOMPARE(asked->size(), 1);
    QCOMPARE(told->first(), (QVariantList{int(Zum::ZeitRafferMessage), int(Zum::Info),
                                          "Cannot capture. Try to increase interval"}));
    QCOMPARE(messages().last(), QString("Time-lapse photography tool stopped"));
    QCOMPARE(told->size(), 2);
}

void TestCaptureWorkflow::stoppingTells()
{
    lapse->stop();
    QVERIFY(told->isEmpty());
    connectCamera(true);
    lapse->start();
    lapse->stop();
    QCOMPARE(told->first(), (QVariantList{int(Zum::ZeitRafferMessage), int(Zum::Info),
                                          "Time-lapse photography tool stopped"}));
    QVERIFY(!ticker->isActive());
}

void TestCaptureWorkflow::disconnectingStopsTheTool()
{
    connectCamera(true);
    lapse->start();
    connectCamera(false);
    QVERIFY(!global->zeitRafferRunning());
    QCOMPARE(messages(), QStringList{"Time-lapse photography tool stopped"});
}

void TestCaptureWorkflow::aLostCameraMayComeBackWithinTwoIntervals()
{
    connectCamera(true);
    lapse->start();
    for (int round = 0; round < 2; ++round) {
        lapse->cameraLost();
        connectCamera(false);
        QVERIFY(lapse->waitsForCamera() && global->zeitRafferRunning());
        const auto shots = asked->size();
        tick();
        tick();
        QVERIFY(global->zeitRafferRunning());
        QCOMPARE(asked->size(), shots);
        connectCamera(true);
        QVERIFY(!lapse->waitsForCamera());
        tick();
        QCOMPARE(asked->size(), shots + 1);
    }
    QVERIFY(told->isEmpty());
    // The loss is over: a disconnection is one.
    connectCamera(false);
    QVERIFY(!global->zeitRafferRunning());
}

void TestCaptureWorkflow::aLostCameraThatStaysAwayStopsTheTool()
{
    connectCamera(true);
    lapse->start();
    lapse->cameraLost();
    connectCamera(false);
    tick();
    tick();
    QVERIFY(global->zeitRafferRunning());
    tick();
    QVERIFY(!global->zeitRafferRunning() && !lapse->waitsForCamera());
    QCOMPARE(messages(), QStringList{"Time-lapse photography tool stopped"});
}

void TestCaptureWorkflow::ticksThatCameLateAreOneShot()
{
    connectCamera(true);
    lapse->start();
    QCoreApplication::processEvents();
    emit ticker->ticked();
    global->setCapturingInprogress(3);
    emit ticker->ticked();
    QVERIFY(global->zeitRafferRunning());
    QCOMPARE(asked->size(), 2);
}

void TestCaptureWorkflow::aChangeOfPaceStartsTheTickerAnew()
{
    lapse->setTimes(10);
    QCOMPARE(ticker->interval, 0);
    connectCamera(true);
    lapse->start();
    QCOMPARE(ticker->interval, 6000);
    lapse->setTimes(20);
    QCOMPARE(ticker->interval, 3000);
    QCOMPARE(asked->size(), 1);
}

QTEST_GUILESS_MAIN(TestCaptureWorkflow)
#include "tst_captureworkflow.moc"
