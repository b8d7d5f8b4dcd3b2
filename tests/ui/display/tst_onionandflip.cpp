#include "DisplayTest.h"

#include <QSignalSpy>

/// What the view does with several frames: the onion skin, and the flip-flop against the live picture.
class TestOnionAndFlip : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void stackRows_data();
    void stackRows();
    void stackSkipsFramesWithoutPictures();
    void stackSkipsFramesWhosePicturesAreMissing();
    void stackFollowsFrameDepthAndMode();
    void stackIsEmptyOnOtherTabs();
    void stackLiesInTheCapturedLayer();
    void stackPicturesHaveHalfTheLayersOpacity();
    void stackPicturesFitTheView();
    void stackPicturesAreMirroredAsTheirFrames();
    void stackRestsTheLiveView();
    void loadingStackIsNotReady();

    void fadePhases_data();
    void fadePhases();
    void flashPhases_data();
    void flashPhases();
    void flipFlopShowsTheLayersOfItsTab_data();
    void flipFlopShowsTheLayersOfItsTab();
    void flipFlopPausesWithTheView();
    void stoppedFlipFlopRunsToItsEnd();
    void flipFlopGoesByTheClock();
    void flipFlopStopsAPlayback();
    void flipFlopEndsOnOtherTabs();
    void changedTypeStartsAnew();

private:
    QVariant layers(const QString &expression)
    {
        return m_film->layers(expression);
    }
    QList<int> rows();
    QQuickItem *runner()
    {
        return layers("flipFlop").value<QQuickItem *>();
    }
    /// Starts a flip-flop on a clock of the test.
    void start(int type, int durationMs = 1000);
    void passed(qreal ms)
    {
        layers(QStringLiteral("flipFlop.now = () => %1").arg(ms));
        QMetaObject::invokeMethod(runner(), "tick");
    }
    qreal opacity(const char *layer)
    {
        return layers(QString::fromLatin1(layer) + ".opacity").toReal();
    }
};

void TestOnionAndFlip::initTestCase()
{
    m_film = std::make_unique<DisplayWindow>(6);
    QVERIFY(m_film->waitForPictures());
}

void TestOnionAndFlip::init()
{
    global().setMainTabsState("captureUIisOn");
    global().setPaused(false);
    global().setConnected(false);
    global().setFlipFlop(Zum::NoFlipFlop);
    passed(1e9);
    global().setStackMode(Zum::NoStack);
    global().setStackDepth(1);
    frames().setDoubleDecker(true);
    frames().setCurrentIndex(0);
    global().setCamboxState("liveViewPreviewIsOn");
}

/// Of the stack's pictures from below, by the order in which they are drawn.
QList<int> TestOnionAndFlip::rows()
{
    QList<int> found;
    const auto children = layers("onionSkin").value<QQuickItem *>()->childItems();
    for (QQuickItem *child : children) {
        if (child->property("file").isValid())
            found.append(child->property("row").toInt());
    }
    return found;
}

void TestOnionAndFlip::stackRows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("depth");
    QTest::addColumn<QList<int>>("expected");
    const int past = Zum::StackPast;
    const int future = Zum::StackFuture;
    QTest::newRow("none") << int(Zum::NoStack) << 3 << 2 << QList<int>{};
    QTest::newRow("past") << past << 4 << 2 << QList<int>{2, 3};
    QTest::newRow("past, depth 3 on row 1 shows row 0 only") << past << 1 << 3 << QList<int>{0};
    QTest::newRow("past of the first") << past << 0 << 3 << QList<int>{};
    QTest::newRow("future, the nearest on top") << future << 1 << 3 << QList<int>{4, 3, 2};
    QTest::newRow("future up to the last") << future << 4 << 3 << QList<int>{5};
    QTest::newRow("future of the last") << future << 5 << 3 << QList<int>{};
    QTest::newRow("depth 0") << past << 3 << 0 << QList<int>{};
}

void TestOnionAndFlip::stackRows()
{
    QFETCH(int, mode);
    QFETCH(int, current);
    QFETCH(int, depth);
    QFETCH(QList<int>, expected);
    frames().setCurrentIndex(current);
    global().setStackDepth(depth);
    global().setStackMode(mode);
    QCOMPARE(rows(), expected);
    QCOMPARE(layers("onionSkin.count").toInt(), expected.size());
}

void TestOnionAndFlip::stackSkipsFramesWithoutPictures()
{
    frames().appendFrame({});
    frames().appendFrame({{"capFull", "frame_0.png"}});
    frames().setCurrentIndex(7);
    global().setStackDepth(2);
    global().setStackMode(Zum::StackPast);
    QCOMPARE(rows(), QList<int>{5});
    frames().setCurrentIndex(7);
    frames().removeSingleFrame(7, true, true);
    frames().removeSingleFrame(6, true, true);
    QCOMPARE(frames().framesCount(), 6);
}

void TestOnionAndFlip::stackSkipsFramesWhosePicturesAreMissing()
{
    frames().setValue(2, Zum::CapFullMissing, true);
    frames().setCurrentIndex(3);
    global().setStackDepth(2);
    global().setStackMode(Zum::StackPast);
    QCOMPARE(rows(), QList<int>{1});
    frames().setValue(2, Zum::CapFullMissing, false);
}

void TestOnionAndFlip::stackFollowsFrameDepthAndMode()
{
    frames().setCurrentIndex(2);
    global().setStackMode(Zum::StackPast);
    QCOMPARE(rows(), QList<int>{1});
    frames().setCurrentIndex(3);
    QCOMPARE(rows(), QList<int>{2});
    global().setStackDepth(3);
    QCOMPARE(rows(), (QList<int>{0, 1, 2}));
    global().setStackMode(Zum::StackFuture);
    QCOMPARE(rows(), (QList<int>{5, 4}));
    global().setStackMode(Zum::NoStack);
    QCOMPARE(rows(), QList<int>());
}

void TestOnionAndFlip::stackIsEmptyOnOtherTabs()
{
    frames().setCurrentIndex(2);
    global().setStackMode(Zum::StackPast);
    global().setMainTabsState("docsUIisOn");
    QCOMPARE(rows(), QList<int>());
}

void TestOnionAndFlip::stackLiesInTheCapturedLayer()
{
    const auto *layer = layers("bigCapturedPicBox").value<QQuickItem *>();
    QVERIFY(layer->isAncestorOf(layers("onionSkin").value<QQuickItem *>()));
}

void TestOnionAndFlip::stackPicturesHaveHalfTheLayersOpacity()
{
    frames().setCurrentIndex(1);
    global().setStackMode(Zum::StackPast);
    global().setOpacityCaptured(40);
    const auto *picture = m_film->findItem("file", "frame_0.png", layers("onionSkin").value<QQuickItem *>());
    QVERIFY(picture != nullptr);
    QCOMPARE(picture->opacity() * opacity("bigCapturedPicBox"), 40 / 200.0);
    // The ground, the frame at 40 percent, the one before it at 20.
    const auto over = [](int ground, int frame, int before) {
        const qreal first = ground * 0.6 + frame * 0.4;
        return qRound(first * 0.8 + before * 0.2);
    };
    const QColor frame = DisplayWindow::capturedColor(1);
    const QColor before = DisplayWindow::capturedColor(0);
    const QColor wanted(over(0x28, frame.red(), before.red()), over(0x28, frame.green(), before.green()),
                        over(0x28, frame.blue(), before.blue()));
    frames().setDoubleDecker(false);
    QTRY_VERIFY(DisplayWindow::near(m_film->colorAt(m_film->cameraBox(), {0.3, 0.3}), wanted));
}

void TestOnionAndFlip::stackPicturesFitTheView()
{
    frames().setCurrentIndex(1);
    global().setStackMode(Zum::StackPast);
    const auto *picture = m_film->findItem("file", "frame_0.png", layers("onionSkin").value<QQuickItem *>());
    QCOMPARE(picture->width(), global().scaledWidth());
    QCOMPARE(picture->height(), global().scaledHeight());
    QVERIFY(picture->property("asynchronous").toBool());
    QVERIFY(picture->property("source").toString().endsWith("frame_0.png"));
}

void TestOnionAndFlip::stackPicturesAreMirroredAsTheirFrames()
{
    frames().switchMirroredOnSingleFrame(0);
    frames().setCurrentIndex(2);
    global().setStackDepth(2);
    global().setStackMode(Zum::StackPast);
    auto *stack = layers("onionSkin").value<QQuickItem *>();
    QVERIFY(m_film->findItem("file", "frame_0.png", stack)->property("mirror").toBool());
    QVERIFY(!m_film->findItem("file", "frame_1.jpg", stack)->property("mirror").toBool());
    frames().switchMirroredOnSingleFrame(0);
}

void TestOnionAndFlip::stackRestsTheLiveView()
{
    frames().setCurrentIndex(1);
    QSignalSpy pauses(&global(), &WebcamGlobal::pausedChanged);
    global().setStackMode(Zum::StackPast);
    QCOMPARE(pauses.count(), 2);
    QVERIFY(!global().paused());
    global().setPaused(true);
    frames().setCurrentIndex(2);
    QVERIFY(global().paused());
}

void TestOnionAndFlip::loadingStackIsNotReady()
{
    global().setConnected(true);
    global().setReady(true);
    frames().setCurrentIndex(3);
    global().setStackDepth(3);
    QSignalSpy readiness(&global(), &WebcamGlobal::readyChanged);
    global().setStackMode(Zum::StackPast);
    QVERIFY(layers("onionSkin.loading").toInt() > 0);
    QVERIFY(!global().ready());
    QVERIFY(m_film->findItem("dots", 8, m_film->display()) != nullptr);
    QTRY_COMPARE(layers("onionSkin.loading").toInt(), 0);
    QVERIFY(global().ready());
    QVERIFY(m_film->findItem("dots", 8, m_film->display()) == nullptr);
    // A device that is busy by then decides.
    global().setStackMode(Zum::NoStack);
}

void TestOnionAndFlip::start(int type, int durationMs)
{
    global().setFlipFlopDuration(durationMs);
    layers("flipFlop.now = () => 0");
    global().setFlipFlop(type);
    passed(0);
}

void TestOnionAndFlip::fadePhases_data()
{
    QTest::addColumn<qreal>("elapsed");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("start") << 0.0 << 1.0;
    QTest::newRow("quarter") << 250.0 << 0.75;
    QTest::newRow("gone") << 1000.0 << 0.0;
    QTest::newRow("coming back") << 1700.0 << 0.7;
    QTest::newRow("next round") << 2000.0 << 1.0;
    QTest::newRow("a minute later") << 60250.0 << 0.75;
}

void TestOnionAndFlip::fadePhases()
{
    QFETCH(qreal, elapsed);
    QFETCH(qreal, expected);
    start(Zum::FadeFlipFlop);
    passed(elapsed);
    QCOMPARE(opacity("bigCapturedPicBox"), expected);
    QCOMPARE(opacity("bigReferencePicBox"), expected);
    QCOMPARE(opacity("liveLayer"), 1.0);
}

void TestOnionAndFlip::flashPhases_data()
{
    QTest::addColumn<qreal>("elapsed");
    QTest::addColumn<qreal>("expected");
    QTest::newRow("start") << 0.0 << 0.0;
    QTest::newRow("still gone") << 499.0 << 0.0;
    QTest::newRow("back") << 500.0 << 1.0;
    QTest::newRow("still there") << 999.0 << 1.0;
    QTest::newRow("next round") << 1000.0 << 0.0;
}

void TestOnionAndFlip::flashPhases()
{
    QFETCH(qreal, elapsed);
    QFETCH(qreal, expected);
    start(Zum::FlashFlipFlop, 500);
    passed(elapsed);
    QCOMPARE(opacity("bigCapturedPicBox"), expected);
}

void TestOnionAndFlip::flipFlopShowsTheLayersOfItsTab_data()
{
    QTest::addColumn<bool>("captured");
    QTest::addColumn<bool>("reference");
    QTest::newRow("capturePreviewIsOn") << true << false;
    QTest::newRow("referencePreviewIsOn") << false << true;
    QTest::newRow("liveViewPreviewIsOn") << true << true;
}

void TestOnionAndFlip::flipFlopShowsTheLayersOfItsTab()
{
    QFETCH(bool, captured);
    QFETCH(bool, reference);
    start(Zum::FadeFlipFlop);
    global().setCamboxState(QTest::currentDataTag());
    QCOMPARE(layers("bigCapturedPicBox.visible").toBool(), captured);
    QCOMPARE(layers("bigReferencePicBox.visible").toBool(), reference);
}

void TestOnionAndFlip::flipFlopPausesWithTheView()
{
    start(Zum::FadeFlipFlop);
    passed(300);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.7);
    global().setPaused(true);
    passed(5300);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.7);
    global().setPaused(false);
    passed(5400);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.6);
}

void TestOnionAndFlip::stoppedFlipFlopRunsToItsEnd()
{
    start(Zum::FadeFlipFlop);
    passed(1400);
    global().setOpacityCaptured(30);
    global().setFlipFlop(Zum::NoFlipFlop);
    QVERIFY(!global().flipFlopRunning());
    passed(1800);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.8);
    passed(2000);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.3);
    QVERIFY(!layers("flipFlop.active").toBool());
    global().setOpacityCaptured(100);
}

void TestOnionAndFlip::flipFlopGoesByTheClock()
{
    global().setFlipFlopDuration(100);
    layers("flipFlop.now = () => Date.now()");
    QElapsedTimer clock;
    clock.start();
    global().setFlipFlop(Zum::FlashFlipFlop);
    QTRY_COMPARE(opacity("bigCapturedPicBox"), 0.0);
    QTRY_COMPARE(opacity("bigCapturedPicBox"), 1.0);
    QTRY_COMPARE(opacity("bigCapturedPicBox"), 0.0);
    QVERIFY2(clock.elapsed() >= 199, qPrintable(QString::number(clock.elapsed())));
}

void TestOnionAndFlip::flipFlopStopsAPlayback()
{
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(5);
    frames().play();
    QTRY_VERIFY(frames().playing());
    global().setFlipFlop(Zum::FadeFlipFlop);
    QVERIFY(global().flipFlopRunning());
    QTRY_VERIFY(!frames().playing());
    QVERIFY(global().flipFlopRunning());
}

void TestOnionAndFlip::flipFlopEndsOnOtherTabs()
{
    start(Zum::FadeFlipFlop);
    passed(500);
    global().setMainTabsState("timingUIisOn");
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QVERIFY(!layers("flipFlop.active").toBool());
    QVERIFY(!frames().flipFlopRunning());
}

void TestOnionAndFlip::changedTypeStartsAnew()
{
    start(Zum::FadeFlipFlop);
    passed(700);
    global().setFlipFlop(Zum::FlashFlipFlop);
    passed(701);
    QCOMPARE(opacity("bigCapturedPicBox"), 0.0);
    passed(1700);
    QCOMPARE(opacity("bigCapturedPicBox"), 1.0);
}

QTEST_MAIN(TestOnionAndFlip)
#include "tst_onionandflip.moc"
