#include "DisplayTest.h"

/// The view of the Timing tab: the picture that plays, its size, its cache and what stands around it.
class TestTimingDisplay : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void picture_data();
    void picture();
    void playingReferencesShowsThem();
    void pictureTakesItsPartOfTheRoom();
    void partOfTheRoomIsLimited_data();
    void partOfTheRoomIsLimited();
    void partOfTheRoomIsKept();
    void slidersSetThePartOfTheRoom();
    void renderAllowed();
    void runsOnItsTabOnly();
    void cacheHasTheLargeBudget();
    void cacheStandsInTheTopLine();
    void opacityOfTheForeground();
    void helperLinesFollowThePicture();
    void zoomIsItsOwn();
    void histogramShowsAndRestsWhilePlaying();
    void picturesStayAcrossTabs();
    void projectWithoutFramesSaysSo();
    void playedFramesAreSeen();

private:
    QQuickItem *ramView()
    {
        return m_film->timingDisplay()->property("ramView").value<QQuickItem *>();
    }
    QQuickItem *preview()
    {
        return ramView()->property("preview").value<QQuickItem *>();
    }
    QQuickItem *view()
    {
        return m_film->timingDisplay()->property("view").value<QQuickItem *>();
    }
    bool shows(const QColor &color)
    {
        return DisplayTest::shows(ramView(), color);
    }
    QObject *size()
    {
        return m_film->evaluate("screenArea.timingSize").value<QObject *>();
    }
};

void TestTimingDisplay::initTestCase()
{
    m_film = std::make_unique<DisplayWindow>(4);
    global().setMainTabsState("timingUIisOn");
    global().setCropAreaOn(false);
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
}

void TestTimingDisplay::init()
{
    global().setMainTabsState("timingUIisOn");
    frames().stop();
    frames().setPlayingCaptured(true);
    frames().setCurrentIndex(0);
    global().setRamScaleFactor(1);
    global().setForegroundOpacity(1);
    global().setRamHistogramOn(false);
}

void TestTimingDisplay::picture_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("PNG") << 2;
    QTest::newRow("JPEG") << 1;
}

void TestTimingDisplay::picture()
{
    QFETCH(int, row);
    frames().setCurrentIndex(row);
    QVERIFY(shows(DisplayWindow::capturedColor(row)));
}

void TestTimingDisplay::playingReferencesShowsThem()
{
    frames().setPlayingCaptured(false);
    QVERIFY(shows(DisplayWindow::referenceColor(0)));
    QVERIFY(!preview()->property("playingCaptured").toBool());
    frames().setPlayingCaptured(true);
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
}

void TestTimingDisplay::pictureTakesItsPartOfTheRoom()
{
    const qreal fit = std::min(view()->width() * 0.8 / 320, view()->height() * 0.8 / 180);
    QTRY_VERIFY(std::abs(ramView()->width() - 320 * fit) <= 2);
    QVERIFY(std::abs(ramView()->height() - 180 * fit) <= 2);
    QMetaObject::invokeMethod(size(), "setWidth", Q_ARG(QVariant, 0.4));
    QTRY_VERIFY(std::abs(ramView()->width() - view()->width() * 0.4) <= 2);
    // Sharp again, and not only stretched.
    QTRY_VERIFY(std::abs(preview()->width() - ramView()->width()) <= 1);
    QMetaObject::invokeMethod(size(), "setWidth", Q_ARG(QVariant, 0.8));
    QTRY_VERIFY(std::abs(preview()->width() - 320 * fit) <= 2);
}

void TestTimingDisplay::partOfTheRoomIsLimited_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qreal>("used");
    QTest::newRow("nothing") << QVariant() << 0.8;
    QTest::newRow("good") << QVariant(0.5) << 0.5;
    QTest::newRow("too small") << QVariant(0.01) << 0.1;
    QTest::newRow("too large") << QVariant(7) << 1.0;
    QTest::newRow("no number") << QVariant("wide") << 0.8;
}

void TestTimingDisplay::partOfTheRoomIsLimited()
{
    QFETCH(QVariant, stored);
    QFETCH(qreal, used);
    ShellWindow::Options options;
    options.shown = false;
    if (stored.isValid()) {
        options.settings.insert("ramPreviewWidth", stored);
        options.settings.insert("ramPreviewHeight", stored);
    }
    ShellWindow shell(options);
    const auto *read = shell.evaluate("screenArea.timingSize").value<QObject *>();
    QCOMPARE(read->property("widthShare").toReal(), used);
    QCOMPARE(read->property("heightShare").toReal(), used);
}

void TestTimingDisplay::partOfTheRoomIsKept()
{
    QMetaObject::invokeMethod(size(), "setHeight", Q_ARG(QVariant, 0.3));
    QCOMPARE(m_film->window().getSetting("ramPreviewHeight", 0).toReal(), 0.3);
    QMetaObject::invokeMethod(size(), "setHeight", Q_ARG(QVariant, 5));
    QCOMPARE(m_film->window().getSetting("ramPreviewHeight", 0).toReal(), 1.0);
    QMetaObject::invokeMethod(size(), "setHeight", Q_ARG(QVariant, 0.8));
    QCOMPARE(global().ramPreviewWidth(), 540);
}

void TestTimingDisplay::slidersSetThePartOfTheRoom()
{
    m_film->click(m_film->findItem("title", "Size of the picture", m_film->item("screenControls")));
    QVERIFY(m_film->settle());
    QQuickItem *slider = m_film->findItem("toolTip", "Part of the room's width");
    QVERIFY(slider != nullptr);
    slider->forceActiveFocus(Qt::TabFocusReason);
    m_film->press(Qt::Key_Home);
    QCOMPARE(size()->property("widthShare").toReal(), 0.1);
    m_film->press(Qt::Key_Backspace);
    QCOMPARE(size()->property("widthShare").toReal(), 0.8);
    emit global().globalDismiss();
}

void TestTimingDisplay::renderAllowed()
{
    QVERIFY(preview()->property("renderAllowed").toBool());
    global().setRamPaused(true);
    QVERIFY(!preview()->property("renderAllowed").toBool());
    global().setRamPaused(false);
    QVERIFY(preview()->property("renderAllowed").toBool());
    frames().searchStaticness(0, frames().last());
    QVERIFY(!preview()->property("renderAllowed").toBool());
    QTRY_VERIFY(preview()->property("renderAllowed").toBool());
}

void TestTimingDisplay::runsOnItsTabOnly()
{
    QVERIFY(preview()->property("running").toBool());
    global().setMainTabsState("captureUIisOn");
    QVERIFY(!preview()->property("running").toBool());
    QVERIFY(!preview()->property("renderAllowed").toBool());
}

void TestTimingDisplay::cacheHasTheLargeBudget()
{
    QCOMPARE(preview()->property("cacheMaxInBytes").toInt(), 870912000);
}

void TestTimingDisplay::cacheStandsInTheTopLine()
{
    QTRY_VERIFY(global().ramCacheUsedPercent() > 0);
    const QString text = QStringLiteral("\u00b7 cache %1 %").arg(qRound(global().ramCacheUsedPercent()));
    QVERIFY(m_film->findItem("text", text, m_film->item("topLine")) != nullptr);
    global().setMainTabsState("captureUIisOn");
    QVERIFY(m_film->findItem("text", text, m_film->item("topLine")) == nullptr);
}

void TestTimingDisplay::opacityOfTheForeground()
{
    global().setForegroundOpacity(0.5);
    const QColor color = DisplayWindow::capturedColor(0);
    const auto half = [](int value) {
        return (value + 0x28) / 2;
    };
    QVERIFY(shows(QColor(half(color.red()), half(color.green()), half(color.blue()))));
}

void TestTimingDisplay::helperLinesFollowThePicture()
{
    global().setRuleOfThirdsGridOn(true);
    global().setThirdsGridOpacity(1);
    const QImage shot = m_film->shot();
    const QPointF third = ramView()->mapToScene({ramView()->width() / 3, ramView()->height() / 2});
    bool seen = false;
    for (int dx = -2; dx <= 2; ++dx)
        seen =
            seen || DisplayWindow::near(shot.pixelColor(third.toPoint() + QPoint(dx, 0)), QColor(0, 255, 0));
    QVERIFY(seen);
    global().setRuleOfThirdsGridOn(false);
}

void TestTimingDisplay::zoomIsItsOwn()
{
    const qreal width = ramView()->width();
    global().setCamScaleFactor(3);
    global().setRamScaleFactor(2);
    QCOMPARE(ramView()->mapToScene({width, 0}).x() - ramView()->mapToScene({0, 0}).x(), 2 * width);
    global().setCamScaleFactor(1);
}

void TestTimingDisplay::histogramShowsAndRestsWhilePlaying()
{
    QVERIFY(m_film->findItem("title", "Histogram", m_film->timingDisplay()) == nullptr);
    m_film->click(m_film->findItem("toolTip", "Histogram", m_film->item("screenControls")));
    QQuickItem *pane = m_film->findItem("title", "Histogram", m_film->timingDisplay());
    QVERIFY(pane != nullptr);
    QVERIFY(preview()->property("histogramOn").toBool());
    frames().setCurrentIndex(3);
    QTRY_COMPARE(pane->property("histogramDataR").toList().size(), 257);
    QVERIFY(pane->property("histogramDataR").toList().at(DisplayWindow::capturedColor(3).red()).toReal()
            > 0.5);
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(3);
    frames().play();
    QTRY_VERIFY(frames().playing());
    QVERIFY(!preview()->property("histogramOn").toBool());
    frames().stop();
}

void TestTimingDisplay::picturesStayAcrossTabs()
{
    const QQuickItem *before = preview();
    const auto *display = m_film->timingDisplay();
    global().setMainTabsState("captureUIisOn");
    global().setMainTabsState("docsUIisOn");
    global().setMainTabsState("timingUIisOn");
    QCOMPARE(m_film->timingDisplay(), display);
    QCOMPARE(preview(), before);
}

void TestTimingDisplay::playedFramesAreSeen()
{
    frames().setTimelineFps(10);
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(3);
    frames().setCurrentIndex(0);
    frames().play();
    QTRY_VERIFY(frames().playing());
    QList<int> seen;
    const bool all = QTest::qWaitFor(
        [&] {
            const QColor color = m_film->colorAt(ramView(), {0.3, 0.3});
            for (int row = 0; row < 4; ++row) {
                if (DisplayWindow::near(color, DisplayWindow::capturedColor(row)) && !seen.contains(row))
                    seen.append(row);
            }
            return seen.size() == 4;
        },
        5000);
    frames().stop();
    QVERIFY(all);
}

void TestTimingDisplay::projectWithoutFramesSaysSo()
{
    global().setProjectChanged(false);
    QVERIFY(m_film->createProject("empty"));
    QTRY_VERIFY(m_film->findItem("text", "Frames play here once the timeline has some.") != nullptr);
    m_film = std::make_unique<DisplayWindow>(4);
    global().setMainTabsState("timingUIisOn");
    global().setCropAreaOn(false);
    QVERIFY(m_film->findItem("text", "Frames play here once the timeline has some.") == nullptr);
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
}

QTEST_MAIN(TestTimingDisplay)
#include "tst_timingdisplay.moc"
