#include "timeline/ModelSupport.h"

#include <QRandomGenerator>

namespace {

/// Ten frames, of which the range from 2 to 6 plays.
std::unique_ptr<TestModel> rangedModel()
{
    auto model = std::make_unique<TestModel>(10);
    model->setTimelineRangeStart(2);
    model->setTimelineRangeEnd(6);
    model->setCurrentIndex(2);
    return model;
}

void start(TestModel &model)
{
    model.play();
    QVERIFY(model.settle());
    QVERIFY(model.playing());
}

/// The rows that so many ticks show.
QList<int> rowsShown(TestModel &model, int ticks)
{
    QList<int> rows;
    for (int i = 0; i < ticks && model.playing(); ++i) {
        model.playTicker.tick();
        rows.append(model.currentIndex());
    }
    return rows;
}

} // namespace

class tst_Playback : public QObject
{
    Q_OBJECT

private slots:
    void preparesBeforeItRuns();
    void playsTheRangeInALoop();
    void skipsHiddenFrames();
    void showsEachRowOfAHoldForOneInterval();
    void goesOnFromInsideTheRange();
    void beginsAtTheStartOfTheRangeOutsideIt_data();
    void beginsAtTheStartOfTheRangeOutsideIt();
    void comesBackForwardFromABackwardLoop();
    void turnsSilentlyAtTheEnds();
    void stopsAtTheFirstEndWithoutALoop();
    void stopsWhenTheRangeShrinksBelowTheList();
    void stopsForTheFlipFlop();
    void logsEveryTickWithNothingToPlay();
    void keepsTheIntervalOfARangeOfOneFrame();
    void keepsThePeriodWhenTheRateChanges();
    void behavesAsStopWithoutAnInterval();
    void logsThatItIsNotReady_data();
    void logsThatItIsNotReady();
    void refusesASecondRunWithoutHarmToTheFirst();
    void doesNotStartWhenStoppedWhilePreparing();
    void keepsThePointedFrameUntilItStops();
    void samplesTheRate();
    void rewinds();
    void waitsWhileAnActionRuns();
    void showsNothingInNoDirection();
    void stopsWhenItsRowHasGone();
    void logsThatTheRateIsNotAboveZero();
    void showsTheRightNumberOfFramesInAMinute_data();
    void showsTheRightNumberOfFramesInAMinute();
};

void tst_Playback::preparesBeforeItRuns()
{
    const auto model = rangedModel();
    QSignalSpy paused(model.get(), &FramesModel::pausedChanged);
    QSignalSpy playing(model.get(), &FramesModel::playingChanged);
    model->play();
    QCOMPARE(model->currentAction(), int(Zum::ActSearchHiddenFrames));
    QVERIFY(!model->playing() && !model->paused());
    QVERIFY(!model->playTicker.isActive());
    QCOMPARE(model->rateTicker.interval, 1000);
    QVERIFY(model->settle());
    QVERIFY(model->playing());
    QVERIFY(model->playTicker.isActive());
    QCOMPARE(model->playTicker.interval, 40);
    QCOMPARE(paused.count(), 1);
    QCOMPARE(playing.count(), 1);
    model->stop();
    QVERIFY(!model->playing() && model->paused());
    QVERIFY(!model->playTicker.isActive() && !model->rateTicker.isActive());
    QCOMPARE(paused.count(), 2);
    QCOMPARE(playing.count(), 2);
}

void tst_Playback::playsTheRangeInALoop()
{
    const auto model = rangedModel();
    start(*model);
    QCOMPARE(rowsShown(*model, 8), QList<int>({2, 3, 4, 5, 6, 2, 3, 4}));
    QCOMPARE(model->currentCaptured(), QString("c4"));
}

void tst_Playback::skipsHiddenFrames()
{
    const auto model = rangedModel();
    model->setValue(3, Zum::Hidden, true);
    model->setValue(6, Zum::Hidden, true);
    start(*model);
    QCOMPARE(rowsShown(*model, 5), QList<int>({2, 4, 5, 2, 4}));
}

void tst_Playback::showsEachRowOfAHoldForOneInterval()
{
    const auto model = rangedModel();
    for (int row = 3; row <= 5; ++row)
        model->setValue(row, Zum::CapFull, "hold");
    start(*model);
    QSignalSpy shown(model.get(), &FramesModel::currentIndexChanged);
    QCOMPARE(rowsShown(*model, 5), QList<int>({2, 3, 4, 5, 6}));
    QCOMPARE(shown.count(), 5);
}

void tst_Playback::goesOnFromInsideTheRange()
{
    const auto model = rangedModel();
    model->setCurrentIndex(4);
    start(*model);
    QCOMPARE(model->currentIndex(), 4);
    QCOMPARE(rowsShown(*model, 3), QList<int>({4, 5, 6}));
}

void tst_Playback::beginsAtTheStartOfTheRangeOutsideIt_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("begins");
    QTest::newRow("past the end") << 9 << int(Zum::Forward) << 2;
    QTest::newRow("at the end") << 6 << int(Zum::Forward) << 2;
    QTest::newRow("before the start") << 0 << int(Zum::Forward) << 2;
    QTest::newRow("past the end, backward") << 9 << int(Zum::Backward) << 6;
    QTest::newRow("at the start, backward") << 2 << int(Zum::Backward) << 6;
}

void tst_Playback::beginsAtTheStartOfTheRangeOutsideIt()
{
    QFETCH(int, current);
    QFETCH(int, direction);
    QFETCH(int, begins);
    const auto model = rangedModel();
    model->setCurrentIndex(current);
    model->setPlayDirection(direction);
    start(*model);
    QCOMPARE(model->currentIndex(), begins);
    QCOMPARE(rowsShown(*model, 1), QList<int>({begins}));
}

void tst_Playback::comesBackForwardFromABackwardLoop()
{
    const auto model = rangedModel();
    model->setPlayDirection(Zum::Backward);
    start(*model);
    QCOMPARE(rowsShown(*model, 8), QList<int>({6, 5, 4, 3, 2, 2, 3, 4}));
    QCOMPARE(model->playDirection(), int(Zum::Forward));
}

void tst_Playback::turnsSilentlyAtTheEnds()
{
    const auto model = rangedModel();
    model->setPendulum(true);
    QSignalSpy turned(model.get(), &FramesModel::playDirectionChanged);
    start(*model);
    QCOMPARE(rowsShown(*model, 12), QList<int>({2, 3, 4, 5, 6, 6, 5, 4, 3, 2, 2, 3}));
    QCOMPARE(turned.count(), 0);
}

void tst_Playback::stopsAtTheFirstEndWithoutALoop()
{
    for (const bool pendulum : {false, true}) {
        const auto model = rangedModel();
        model->setLoop(false);
        model->setPendulum(pendulum);
        start(*model);
        QCOMPARE(rowsShown(*model, 20), QList<int>({2, 3, 4, 5, 6}));
        QVERIFY(!model->playing() && model->paused());
        QCOMPARE(model->currentIndex(), 6);
    }
}

void tst_Playback::stopsWhenTheRangeShrinksBelowTheList()
{
    const auto model = rangedModel();
    start(*model);
    rowsShown(*model, 2);
    model->setTimelineRangeEnd(5);
    model->playTicker.tick();
    QVERIFY(!model->playing());
    QCOMPARE(model->currentIndex(), 3);

    start(*model);
    model->setTimelineRangeStart(3);
    model->playTicker.tick();
    QVERIFY(!model->playing());

    start(*model);
    model->setTimelineRangeStart(1);
    model->setTimelineRangeEnd(8);
    model->playTicker.tick();
    QVERIFY(model->playing());
}

void tst_Playback::stopsForTheFlipFlop()
{
    const auto model = rangedModel();
    start(*model);
    model->setFlipFlopRunning(true);
    QVERIFY(model->playing());
    model->playTicker.tick();
    QVERIFY(!model->playing());
}

void tst_Playback::logsEveryTickWithNothingToPlay()
{
    const auto model = rangedModel();
    for (int row = 2; row <= 6; ++row)
        model->setValue(row, Zum::Hidden, true);
    start(*model);
    LogLines log;
    model->playTicker.tick(3);
    const QString line = "jump indexes list is empty";
    QCOMPARE(log.take(), QStringList({line, line, line}));
    QVERIFY(model->playing());
    model->stop();
    model->playTicker.tick(3);
    QCOMPARE(log.take(), QStringList());
}

void tst_Playback::keepsTheIntervalOfARangeOfOneFrame()
{
    const auto model = rangedModel();
    model->setTimelineRangeEnd(2);
    model->setTimelineFps(10);
    QCOMPARE(model->timelineRangeSize(), 0);
    QCOMPARE(model->duration(), 0.0);
    start(*model);
    QCOMPARE(model->playTicker.interval, 40);
}

void tst_Playback::keepsThePeriodWhenTheRateChanges()
{
    const auto model = rangedModel();
    start(*model);
    model->setTimelineFps(10);
    QCOMPARE(model->interval(), 100.0);
    QCOMPARE(model->playTicker.interval, 40);
    QCOMPARE(model->playTicker.starts, 1);
}

void tst_Playback::behavesAsStopWithoutAnInterval()
{
    TestModel model(5);
    QCOMPARE(model.interval(), 0.0);
    LogLines log;
    model.play();
    QVERIFY(model.paused());
    QCOMPARE(model.currentAction(), 0);
    QCOMPARE(log.take(), QStringList());
}

void tst_Playback::logsThatItIsNotReady_data()
{
    QTest::addColumn<QString>("reason");
    for (const char *reason : {"busy", "not loaded", "no frames"})
        QTest::newRow(reason) << QString::fromLatin1(reason);
}

void tst_Playback::logsThatItIsNotReady()
{
    QFETCH(QString, reason);
    const auto model = rangedModel();
    if (reason == "busy")
        model->searchStaticness(0, 0);
    else if (reason == "not loaded")
        model->setLoaded(false);
    else
        model->clear();
    LogLines log;
    model->play();
    QCOMPARE(log.take(), QStringList{"FramesModel::begin - Not ready to start Timer"});
    QVERIFY(model->settle());
    QVERIFY(!model->playing());
}

void tst_Playback::refusesASecondRunWithoutHarmToTheFirst()
{
    const auto model = rangedModel();
    start(*model);
    rowsShown(*model, 2);
    LogLines log;
    model->play();
    QCOMPARE(log.take(), QStringList{"Cannot start ram play: m_currentAction=0, m_playing=1, m_loaded=1, "
                                     "m_frames.isEmpty()=0"});
    QCOMPARE(rowsShown(*model, 2), QList<int>({4, 5}));
}

void tst_Playback::doesNotStartWhenStoppedWhilePreparing()
{
    const auto model = rangedModel();
    model->play();
    model->stop();
    QVERIFY(model->settle());
    QVERIFY(!model->playing() && model->paused());
    QVERIFY(!model->playTicker.isActive());
}

void tst_Playback::keepsThePointedFrameUntilItStops()
{
    const auto model = rangedModel();
    QCOMPARE(model->pointedGuid(), model->guidAt(2));
    start(*model);
    rowsShown(*model, 3);
    QCOMPARE(model->pointedGuid(), model->guidAt(2));
    LogLines log;
    model->setCurrentIndex(5);
    QCOMPARE(log.take(),
             QStringList{"Cannot setPointedGuid, m_currentAction=0, m_playing=1, m_currentIndex=5"});
    model->stop();
    QCOMPARE(model->pointedGuid(), model->guidAt(5));
}

void tst_Playback::samplesTheRate()
{
    const auto model = rangedModel();
    start(*model);
    QSignalSpy sampled(model.get(), &FramesModel::actualFpsChanged);
    model->playTicker.tick(12);
    model->rateTicker.tick();
    QCOMPARE(model->actualFps(), 12);
    QCOMPARE(sampled.count(), 1);
    QVERIFY(model->rateTicker.isActive());
    model->rateTicker.tick();
    QCOMPARE(model->actualFps(), 12);
    QVERIFY(!model->rateTicker.isActive());
}

void tst_Playback::rewinds()
{
    const auto model = rangedModel();
    model->setCurrentIndex(4);
    QSignalSpy moved(model.get(), &FramesModel::currentIndexChanged);
    model->rewind();
    QCOMPARE(model->currentIndex(), 2);
    model->setPlayDirection(Zum::Backward);
    model->rewind();
    QCOMPARE(model->currentIndex(), 6);
    QCOMPARE(moved.count(), 2);
}

void tst_Playback::waitsWhileAnActionRuns()
{
    const auto model = rangedModel();
    start(*model);
    rowsShown(*model, 2);
    QVERIFY(model->startAction(Zum::ActSearchStaticness, FramesModel::RangeOfFrames));
    LogLines log;
    model->playTicker.tick(3);
    QCOMPARE(model->currentIndex(), 3);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(model->settle());
    model->playTicker.tick();
    QCOMPARE(model->currentIndex(), 4);
}

void tst_Playback::showsNothingInNoDirection()
{
    const auto model = rangedModel();
    start(*model);
    model->setPlayDirection(Zum::NoDirection);
    QSignalSpy moved(model.get(), &FramesModel::currentIndexChanged);
    model->playTicker.tick(3);
    QCOMPARE(moved.count(), 0);
    QVERIFY(model->playing());
}

void tst_Playback::stopsWhenItsRowHasGone()
{
    const auto model = rangedModel();
    start(*model);
    rowsShown(*model, 3);
    while (model->framesCount() > 5)
        model->removeSingleFrame(0, false);
    // The range was repaired with the list; put it back to where it was.
    model->setTimelineRangeEnd(6);
    model->playTicker.tick(2);
    QVERIFY(!model->playing());
}

void tst_Playback::logsThatTheRateIsNotAboveZero()
{
    const auto model = rangedModel();
    LogLines log;
    model->setTimelineFps(0);
    QCOMPARE(log.take(), QStringList{"Unable start playing. Timeline Fps = 0"});
    QCOMPARE(model->interval(), 0.0);
    model->play();
    QVERIFY(model->paused() && !model->playing());
}

void tst_Playback::showsTheRightNumberOfFramesInAMinute_data()
{
    QTest::addColumn<int>("rate");
    QTest::newRow("25 a second") << 25;
    QTest::newRow("50 a second") << 50;
}

// Sixty seconds of a machine whose event loop is now and then late, up to several frames.
void tst_Playback::showsTheRightNumberOfFramesInAMinute()
{
    QFETCH(int, rate);
    constexpr int seconds = 60;
    const auto model = rangedModel();
    model->setTimelineFps(rate);
    start(*model);
    QSignalSpy shown(model.get(), &FramesModel::currentIndexChanged);
    QRandomGenerator chance(2026);
    TickSchedule schedule;
    qint64 now = 12345;
    schedule.start(now, model->playTicker.interval);
    const qint64 end = now + seconds * 1000;
    while (true) {
        now += schedule.msToNext(now) + (chance.bounded(20) == 0 ? chance.bounded(110) : chance.bounded(4));
        if (now > end)
            break;
        model->playTicker.tick(schedule.takeDue(now));
    }
    model->playTicker.tick(schedule.takeDue(end));
    QVERIFY2(qAbs(int(shown.count()) - rate * seconds) <= 1, qPrintable(QString::number(shown.count())));
}

QTEST_GUILESS_MAIN(tst_Playback)
#include "tst_playback.moc"
