#include "DisplayTest.h"

/// What excludes what in the view of the Capture tab: each rule by name, in the whole program.
class TestDisplayRules : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void blendTurnsOffGrayscaleEyedropperAndFlipFlop();
    void noBlendTurnsNothingOff();
    void grayscaleTurnsOffTheBlend();
    void blendAndGrayscaleAreNeverBothOn();
    void stackTurnsOffEyedropperAndFlipFlop_data();
    void stackTurnsOffEyedropperAndFlipFlop();
    void stackShowsTheCapturedFrameFaintly();
    void clearedStackRestoresTheOpacities();
    void flipFlopTurnsOffStackAndBlend_data();
    void flipFlopTurnsOffStackAndBlend();
    void playbackTurnsOffStackFlipFlopAndBlend_data();
    void playbackTurnsOffStackFlipFlopAndBlend();
    void lostConnectionTurnsEverythingOff_data();
    void lostConnectionTurnsEverythingOff();
    void runningFlipFlopLeavesTheLiveView();
    void runningFlipFlopIsToldToTheTimeline();
    void oneRowLeavesTheReference();
    void oneRowHidesTheReference();
    void twoRowsShowTheReference();
    void referenceCannotStayOnTopWithOneRow();

    void tabKeyGoesRound_data();
    void tabKeyGoesRound();
    void tabKeyStandsStillDuringFlipFlop();
    void spaceKeyShowsTheCapturedFrame();
    void directCommandsStandStillDuringFlipFlop();
    void projectStartsWithTheLiveView();
    void projectStartsWithEverythingOff();
    void startWithOneRowHidesTheReference();

private:
    void startFlipFlop(int type = Zum::FadeFlipFlop)
    {
        global().setFlipFlop(type);
        QVERIFY(global().flipFlopRunning());
    }
};

void TestDisplayRules::initTestCase()
{
    m_film = std::make_unique<DisplayWindow>(4);
}

void TestDisplayRules::init()
{
    if (!m_film->window().projectLoaded())
        QVERIFY(m_film->createProject(QString::fromLatin1(QTest::currentTestFunction())));
    global().setStackMode(Zum::NoStack);
    global().setFlipFlop(Zum::NoFlipFlop);
    global().setBlend(Zum::NoBlend);
    global().setGrayscale(false);
    global().setEyedropperOn(false);
    global().setConnected(false);
    frames().setDoubleDecker(true);
    global().setCamboxState(live);
}

void TestDisplayRules::blendTurnsOffGrayscaleEyedropperAndFlipFlop()
{
    global().setGrayscale(true);
    global().setEyedropperOn(true);
    startFlipFlop();
    global().setBlend(Zum::BlendScreen);
    QVERIFY(!global().grayscale());
    QVERIFY(!global().eyedropperOn());
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QCOMPARE(global().blend(), int(Zum::BlendScreen));
}

void TestDisplayRules::noBlendTurnsNothingOff()
{
    global().setBlend(Zum::BlendScreen);
    global().setEyedropperOn(true);
    global().setBlend(Zum::NoBlend);
    QVERIFY(global().eyedropperOn());
}

void TestDisplayRules::grayscaleTurnsOffTheBlend()
{
    global().setBlend(Zum::BlendDarken);
    global().setGrayscale(true);
    QCOMPARE(global().blend(), int(Zum::NoBlend));
    QVERIFY(global().grayscale());
    global().setGrayscale(false);
    QCOMPARE(global().blend(), int(Zum::NoBlend));
}

void TestDisplayRules::blendAndGrayscaleAreNeverBothOn()
{
    for (int blend = Zum::BlendDarken; blend <= Zum::BlendXor; ++blend) {
        global().setGrayscale(true);
        QCOMPARE(global().blend(), int(Zum::NoBlend));
        global().setBlend(blend);
        QVERIFY(!global().grayscale());
    }
}

void TestDisplayRules::stackTurnsOffEyedropperAndFlipFlop_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("past") << int(Zum::StackPast);
    QTest::newRow("future") << int(Zum::StackFuture);
}

void TestDisplayRules::stackTurnsOffEyedropperAndFlipFlop()
{
    QFETCH(int, mode);
    global().setEyedropperOn(true);
    startFlipFlop();
    global().setStackMode(mode);
    QVERIFY(!global().eyedropperOn());
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QVERIFY(!global().flipFlopRunning());
    QCOMPARE(global().stackMode(), mode);
}

void TestDisplayRules::stackShowsTheCapturedFrameFaintly()
{
    global().setOpacityLiveView(40);
    global().setStackMode(Zum::StackPast);
    QCOMPARE(global().camboxState(), captured);
    QCOMPARE(global().opacityCaptured(), 20.0);
    QCOMPARE(global().opacityLiveView(), 100.0);
}

void TestDisplayRules::clearedStackRestoresTheOpacities()
{
    global().setOpacityCaptured(70);
    global().setStackMode(Zum::StackFuture);
    global().setOpacityCaptured(55);
    global().setOpacityLiveView(30);
    global().setStackMode(Zum::NoStack);
    QCOMPARE(global().opacityCaptured(), 100.0);
    QCOMPARE(global().opacityLiveView(), 100.0);
}

void TestDisplayRules::flipFlopTurnsOffStackAndBlend_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("fade") << int(Zum::FadeFlipFlop);
    QTest::newRow("flash") << int(Zum::FlashFlipFlop);
}

void TestDisplayRules::flipFlopTurnsOffStackAndBlend()
{
    QFETCH(int, type);
    global().setStackMode(Zum::StackPast);
    global().setBlend(Zum::BlendScreen);
    global().setFlipFlop(type);
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
    QCOMPARE(global().blend(), int(Zum::NoBlend));
    QCOMPARE(global().flipFlop(), type);
}

void TestDisplayRules::playbackTurnsOffStackFlipFlopAndBlend_data()
{
    QTest::addColumn<bool>("stacked");
    QTest::newRow("stack and blend") << true;
    QTest::newRow("flip-flop") << false;
}

void TestDisplayRules::playbackTurnsOffStackFlipFlopAndBlend()
{
    QFETCH(bool, stacked);
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(3);
    if (stacked) {
        global().setStackMode(Zum::StackPast);
        global().setBlend(Zum::BlendScreen);
    } else {
        startFlipFlop();
    }
    frames().play();
    QTRY_VERIFY(frames().playing());
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QCOMPARE(global().blend(), int(Zum::NoBlend));
    frames().stop();
}

void TestDisplayRules::lostConnectionTurnsEverythingOff_data()
{
    QTest::addColumn<bool>("stacked");
    QTest::newRow("stack and blend") << true;
    QTest::newRow("flip-flop") << false;
}

void TestDisplayRules::lostConnectionTurnsEverythingOff()
{
    QFETCH(bool, stacked);
    global().setConnected(true);
    if (stacked) {
        global().setStackMode(Zum::StackPast);
        global().setBlend(Zum::BlendScreen);
    } else {
        startFlipFlop();
    }
    global().setEyedropperOn(true);
    global().setConnected(false);
    QVERIFY(!global().eyedropperOn());
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QCOMPARE(global().blend(), int(Zum::NoBlend));
}

void TestDisplayRules::runningFlipFlopLeavesTheLiveView()
{
    QCOMPARE(global().camboxState(), live);
    startFlipFlop();
    QCOMPARE(global().camboxState(), captured);
    global().setFlipFlop(Zum::NoFlipFlop);
    global().setCamboxState(reference);
    startFlipFlop();
    QCOMPARE(global().camboxState(), reference);
}

void TestDisplayRules::runningFlipFlopIsToldToTheTimeline()
{
    startFlipFlop();
    QVERIFY(frames().flipFlopRunning());
    global().setFlipFlop(Zum::NoFlipFlop);
    QVERIFY(!global().flipFlopRunning());
    QVERIFY(!frames().flipFlopRunning());
}

void TestDisplayRules::oneRowLeavesTheReference()
{
    global().setCamboxState(reference);
    frames().setDoubleDecker(false);
    QCOMPARE(global().camboxState(), captured);
    frames().setDoubleDecker(true);
    global().setCamboxState(live);
    frames().setDoubleDecker(false);
    QCOMPARE(global().camboxState(), live);
}

void TestDisplayRules::oneRowHidesTheReference()
{
    global().setOpacityReference(60);
    frames().setDoubleDecker(false);
    QCOMPARE(global().opacityReference(), 0.0);
}

void TestDisplayRules::twoRowsShowTheReference()
{
    frames().setDoubleDecker(false);
    frames().setDoubleDecker(true);
    QCOMPARE(global().opacityReference(), 100.0);
}

void TestDisplayRules::referenceCannotStayOnTopWithOneRow()
{
    frames().setDoubleDecker(false);
    global().setCamboxState(reference);
    QCOMPARE(global().camboxState(), captured);
}

void TestDisplayRules::tabKeyGoesRound_data()
{
    QTest::addColumn<bool>("twoRows");
    QTest::addColumn<bool>("stacked");
    QTest::addColumn<QStringList>("states");
    QTest::newRow("two rows") << true << false << QStringList{captured, reference, live, captured};
    QTest::newRow("one row, past the reference") << false << false << QStringList{captured, live, captured};
    QTest::newRow("onion skin, past the reference") << true << true << QStringList{captured, live, captured};
}

void TestDisplayRules::tabKeyGoesRound()
{
    QFETCH(bool, twoRows);
    QFETCH(bool, stacked);
    QFETCH(QStringList, states);
    frames().setDoubleDecker(twoRows);
    if (stacked)
        global().setStackMode(Zum::StackPast);
    global().setCamboxState(live);
    for (const QString &state : std::as_const(states)) {
        m_film->press(Qt::Key_Tab);
        QCOMPARE(global().camboxState(), state);
    }
}

void TestDisplayRules::tabKeyStandsStillDuringFlipFlop()
{
    startFlipFlop();
    m_film->press(Qt::Key_Tab);
    QCOMPARE(global().camboxState(), captured);
}

void TestDisplayRules::spaceKeyShowsTheCapturedFrame()
{
    QTest::keyPress(&m_film->window(), Qt::Key_Space);
    QCOMPARE(global().camboxState(), captured);
    QTest::keyRelease(&m_film->window(), Qt::Key_Space);
    QCOMPARE(global().camboxState(), live);
}

void TestDisplayRules::directCommandsStandStillDuringFlipFlop()
{
    global().setCamboxState(reference);
    startFlipFlop();
    emit global().displayTabShowCaptiured();
    QCOMPARE(global().camboxState(), reference);
    emit global().displayTabShowLiveView();
    QCOMPARE(global().camboxState(), reference);
    global().setFlipFlop(Zum::NoFlipFlop);
    emit global().displayTabShowCaptiured();
    QCOMPARE(global().camboxState(), captured);
    emit global().displayTabShowLiveView();
    QCOMPARE(global().camboxState(), live);
}

void TestDisplayRules::projectStartsWithTheLiveView()
{
    global().setCamboxState(captured);
    m_film->window().closeProject();
    QTRY_VERIFY(!m_film->window().projectLoaded());
    QCOMPARE(global().camboxState(), live);
    global().setCamboxState(captured);
    QVERIFY(m_film->createProject("other"));
    QCOMPARE(global().camboxState(), live);
}

void TestDisplayRules::projectStartsWithEverythingOff()
{
    global().setStackMode(Zum::StackPast);
    global().setOpacityLiveView(10);
    global().setCamScaleFactor(4);
    QVERIFY(m_film->createProject("other"));
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
    QCOMPARE(global().opacityCaptured(), 100.0);
    QCOMPARE(global().opacityLiveView(), 100.0);
    QCOMPARE(global().opacityReference(), 100.0);
    QCOMPARE(global().camScaleFactor(), 1.0);
}

void TestDisplayRules::startWithOneRowHidesTheReference()
{
    ShellWindow fresh;
    QVERIFY(!fresh.frames().doubleDecker());
    QCOMPARE(fresh.global().opacityReference(), 0.0);
}

QTEST_MAIN(TestDisplayRules)
#include "tst_displayrules.moc"
