#include "CaptureWindow.h"

#include <QTest>

/// Shooting by the clock, with a clock that ticks by hand.
class TestCaptureTimeLapse : public QObject
{
    Q_OBJECT

private slots:
    void timeLapseShootsByTheClock();
    void timeLapseUnitsCutTheTimes_data();
    void timeLapseUnitsCutTheTimes();
    void timeLapseBlocksTheOtherTabs();
    void timeLapseStopsWhenAShotTakesTooLong();
    void timeLapseStopsWhenTheCameraIsLetGo();
    void timeLapseGoesOnWhenItsCameraComesBack();
    void timeLapseGivesUpOnALostCamera();
    void timeLapseLeavesTheReplaceMode();
    void timeLapseSettingsAreKeptWithTheProject();

private:
    struct HandTicker : Ticker
    {
        int interval = 0;
        bool running = false;
        void start(int intervalMs) override
        {
            interval = intervalMs;
            running = true;
        }
        void stop() override
        {
            running = false;
        }
        bool isActive() const override
        {
            return running;
        }
    };
    /// A window whose time-lapse tool ticks by hand.
    ShellWindow::Options handDriven()
    {
        ShellWindow::Options options = CaptureWindow::options();
        options.timeLapseTicker = [this] {
            auto made = std::make_unique<HandTicker>();
            ticker = made.get();
            return made;
        };
        return options;
    }
    static void click(CaptureWindow &shell, const char *name)
    {
        QQuickItem *item = shell.control(QString::fromLatin1(name));
        QVERIFY2(item != nullptr, name);
        QVERIFY(QMetaObject::invokeMethod(item, "clicked"));
    }
    /// The next tick, once what the last one began has had its turn.
    void tick()
    {
        QCoreApplication::processEvents();
        emit ticker->ticked();
    }

    HandTicker *ticker = nullptr;
};

void TestCaptureTimeLapse::timeLapseShootsByTheClock()
{
    CaptureWindow shell(handDriven());
    click(shell, "cameraTab2");
    QQuickItem *start = shell.control("startTimeLapse");
    QVERIFY(start != nullptr);
    QVERIFY(!start->property("active").toBool());
    QVERIFY(shell.connectCamera());
    QVERIFY(start->property("active").toBool());
    QMetaObject::invokeMethod(shell.control("timesPer"), "edited", Q_ARG(int, 30));
    shell.click(start);
    QVERIFY(shell.global().zeitRafferRunning());
    QCOMPARE(ticker->interval, 2000);
    // The first at once.
    QTRY_COMPARE(shell.framesNow(), 1);
    QTRY_COMPARE(shell.global().capturingInprogress(), -1);
    for (int shots = 2; shots <= 4; ++shots) {
        tick();
        QTRY_COMPARE(shell.framesNow(), shots);
        QTRY_COMPARE(shell.global().capturingInprogress(), -1);
    }
    QVERIFY(shell.control("timeLapseProgress") != nullptr);
    shell.click(start);
    QVERIFY(!shell.global().zeitRafferRunning());
    QVERIFY(!ticker->running);
    QCOMPARE(shell.told("Time-Lapse Photography: Time-lapse photography tool stopped"), 1);
    QTRY_COMPARE(shell.framesInProjectFile(), 4);
}

void TestCaptureTimeLapse::timeLapseUnitsCutTheTimes_data()
{
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("most");
    QTest::addColumn<int>("intervalMs");
    QTest::newRow("Min") << 0 << 30 << 2000;
    QTest::newRow("Hour") << 1 << 120 << 30000;
    QTest::newRow("Day") << 2 << 720 << 120000;
}

void TestCaptureTimeLapse::timeLapseUnitsCutTheTimes()
{
    QFETCH(int, unit);
    CaptureWindow shell(handDriven());
    click(shell, "cameraTab2");
    QQuickItem *units = shell.control("timeUnit");
    QQuickItem *times = shell.control("timesPer");
    QCOMPARE(times->property("value").toInt(), 7);
    QCOMPARE(units->property("currentIndex").toInt(), 0);
    QMetaObject::invokeMethod(units, "chosen", Q_ARG(int, 2));
    QMetaObject::invokeMethod(times, "edited", Q_ARG(int, 720));
    QMetaObject::invokeMethod(units, "chosen", Q_ARG(int, unit));
    QTEST(times->property("value").toInt(), "most");
    QTEST(times->property("maximum").toInt(), "most");
    QTEST(shell.controllers().timeLapse.intervalMs(), "intervalMs");
}

void TestCaptureTimeLapse::timeLapseBlocksTheOtherTabs()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.controllers().timeLapse.start();
    QVERIFY(!shell.control("cameraTab0")->property("active").toBool());
    QVERIFY(!shell.control("cameraTab1")->property("active").toBool());
    QVERIFY(shell.control("cameraTab2")->property("toggled").toBool());
    QVERIFY(shell.control("startTimeLapse") != nullptr);
    QVERIFY(!shell.control("timesPer")->property("active").toBool());
    shell.controllers().timeLapse.stop();
    QVERIFY(shell.control("cameraTab0")->property("active").toBool());
    QVERIFY(shell.control("cameraTab0")->property("toggled").toBool());
}

void TestCaptureTimeLapse::timeLapseStopsWhenAShotTakesTooLong()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.controllers().timeLapse.start();
    QTRY_COMPARE(shell.framesNow(), 1);
    shell.global().setCapturingInprogress(1);
    tick();
    QVERIFY(!shell.global().zeitRafferRunning());
    QCOMPARE(shell.told("Time-Lapse Photography: Cannot capture. Try to increase interval"), 1);
    QCOMPARE(shell.told("Time-lapse photography tool stopped"), 1);
}

void TestCaptureTimeLapse::timeLapseStopsWhenTheCameraIsLetGo()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.controllers().timeLapse.start();
    QTRY_COMPARE(shell.framesNow(), 1);
    QVERIFY(shell.disconnectCamera());
    QVERIFY(!shell.global().zeitRafferRunning());
    QCOMPARE(shell.told("Time-lapse photography tool stopped"), 1);
}

void TestCaptureTimeLapse::timeLapseGoesOnWhenItsCameraComesBack()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.controllers().timeLapse.start();
    QTRY_COMPARE(shell.framesNow(), 1);
    shell.demo().setPresent(false);
    QTRY_VERIFY(!shell.global().connected());
    QVERIFY(shell.global().zeitRafferRunning());
    QCOMPARE(shell.control("timeLapseText")->property("text").toString(), "Waiting for the camera");
    tick();
    tick();
    QVERIFY(shell.global().zeitRafferRunning());
    // Nobody has to press a button.
    shell.demo().setPresent(true);
    QTRY_VERIFY(shell.global().connected());
    QTRY_VERIFY(shell.global().ready());
    tick();
    QTRY_COMPARE(shell.framesNow(), 2);
    QCOMPARE(shell.told("Time-lapse photography tool stopped"), 0);
}

void TestCaptureTimeLapse::timeLapseGivesUpOnALostCamera()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.controllers().timeLapse.start();
    QTRY_COMPARE(shell.framesNow(), 1);
    shell.demo().setPresent(false);
    QTRY_VERIFY(!shell.global().connected());
    for (int i = 0; i < 3; ++i)
        tick();
    QVERIFY(!shell.global().zeitRafferRunning());
    QCOMPARE(shell.told("Time-lapse photography tool stopped"), 1);
    shell.demo().setPresent(true);
    QTest::qWait(100);
    QVERIFY(!shell.global().connected());
}

void TestCaptureTimeLapse::timeLapseLeavesTheReplaceMode()
{
    CaptureWindow shell(handDriven());
    QVERIFY(shell.connectCamera());
    shell.addFrames(2);
    shell.frames().setCaptureMode(Zum::CaptureModeReplace);
    shell.controllers().timeLapse.start();
    QCOMPARE(shell.frames().captureMode(), int(Zum::CaptureModeAppend));
    QTRY_COMPARE(shell.framesNow(), 3);
}

void TestCaptureTimeLapse::timeLapseSettingsAreKeptWithTheProject()
{
    CaptureWindow shell(handDriven());
    shell.controllers().timeLapse.setUnit(1);
    shell.controllers().timeLapse.setTimes(90);
    QVERIFY(!shell.controllers().settings().contains("zeitRafferFreq"));
    shell.global().setMovieTitle("changed");
    shell.press(Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(shell.controllers().settings().value("zeitRafferFreq").toInt(), 90);
    QCOMPARE(shell.controllers().settings().value("zeitRafferType").toInt(), 1);
    ShellWindow::Options options = handDriven();
    options.settings.insert("zeitRafferFreq", 90);
    options.settings.insert("zeitRafferType", 1);
    CaptureWindow next(options);
    QCOMPARE(next.controllers().timeLapse.unit(), 1);
    QCOMPARE(next.controllers().timeLapse.times(), 90);
}

QTEST_MAIN(TestCaptureTimeLapse)
#include "tst_capturetimelapse.moc"
