#include "DisplayTest.h"

#include <QWheelEvent>

/// The box that the view lies in, and the helper lines over it: zooming and moving with the mouse, and lines
/// that stay thin.
class TestDisplayView : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void wheelZoomsAroundThePointer();
    void wheelRestsAtTheFittingSize();
    void zoomHasLimits();
    void middleButtonMovesTheZoomedView();
    void viewMovesNoFurtherThanItsPicture();
    void fittingViewDoesNotMove();
    void leftButtonMovesTheZoomedView();
    void eyedropperKeepsTheLeftButton();
    void doubleClickFits();
    void zoomOfTheSharedStateIsFollowed();
    void rightClickPutsTheEyedropperAway();
    void rightClickCallsTheDisconnector();

    void gridCentresOnALine_data();
    void gridCentresOnALine();
    void gridStepsFollowTheScale();
    void linesStayThin_data();
    void linesStayThin();
    void marginsDarkenWhatIsOutsideOfTheFrame();
    void sightIsAnEighthOfTheFrame();
    void wideSightSpansThePicture();
    void safeAreasLieInsideOfTheFrame();
    void safeAreasHaveTicks();
    void borderTellsItsSize();
    void borderTellsItsSizeOnlyIfWanted();
    void thirdsPartTheFrame();
    void thirdsLieOverEverything();
    void linesShowAtTheirOpacity();
    void noLinesWithoutBeingSwitchedOn();

private:
    QPointF pictureMiddle() const
    {
        return m_film->cameraBox()->mapToScene(
            {m_film->cameraBox()->width() / 2, m_film->cameraBox()->height() / 2});
    }
    QPoint viewMiddle() const
    {
        return m_film->flicker()
            ->mapToScene({m_film->flicker()->width() / 2, m_film->flicker()->height() / 2})
            .toPoint();
    }
    void wheel(QPoint at, int steps)
    {
        QWheelEvent event(at, m_film->window().mapToGlobal(at), {}, {0, 120 * steps}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&m_film->window(), &event);
    }
    void drag(Qt::MouseButton button, QPoint from, QPoint by)
    {
        QTest::mousePress(&m_film->window(), button, {}, from);
        for (int step = 1; step <= 8; ++step)
            QTest::mouseMove(&m_film->window(), from + by * step / 8);
        QTest::mouseRelease(&m_film->window(), button, {}, from + by);
    }
    /// The pixels of a row of the view that are greener than the frame.
    QList<int> greenColumns(const QImage &shot, int y) const;
};

void TestDisplayView::initTestCase()
{
    m_film = std::make_unique<DisplayWindow>(2);
    QVERIFY(m_film->waitForPictures());
}

void TestDisplayView::init()
{
    m_film->window().setQmlDialogUrl({});
    global().setConnected(false);
    global().setCamScaleFactor(1);
    global().setEyedropperOn(false);
    global().setCropAreaW(DisplayWindow::frameWidth);
    global().setCropAreaH(DisplayWindow::frameHeight);
    for (const char *line :
         {"marginsOn", "gridOn", "crossOn", "wideCross", "safeAreaOn", "cropAreaOn", "ruleOfThirdsGridOn"})
        global().setProperty(line, false);
    global().setTechInfoOn(true);
    QVERIFY(m_film->waitForPictures());
}

QList<int> TestDisplayView::greenColumns(const QImage &shot, int y) const
{
    QList<int> found;
    const int left = m_film->flicker()->mapToScene({}).toPoint().x();
    for (int x = left; x < left + m_film->flicker()->width(); ++x) {
        const QColor color = shot.pixelColor(x, y);
        if (color.green() > DisplayWindow::capturedColor(0).green() + 40)
            found.append(x);
    }
    return found;
}

void TestDisplayView::wheelZoomsAroundThePointer()
{
    const QPoint at = viewMiddle() + QPoint(90, -50);
    const QPointF under = m_film->cameraBox()->mapFromScene(at);
    wheel(at, 3);
    QCOMPARE(global().camScaleFactor(), 1.2 * 1.2 * 1.2);
    const QPointF after = m_film->cameraBox()->mapFromScene(at);
    QVERIFY2((after - under).manhattanLength() < 2,
             qPrintable(QStringLiteral("%1 %2").arg(after.x()).arg(under.x())));
}

void TestDisplayView::wheelRestsAtTheFittingSize()
{
    global().setCamScaleFactor(1.1);
    wheel(viewMiddle(), -1);
    QCOMPARE(global().camScaleFactor(), 1.0);
    wheel(viewMiddle(), -1);
    QVERIFY(global().camScaleFactor() < 1.0);
    wheel(viewMiddle(), 2);
    QCOMPARE(global().camScaleFactor(), 1.0);
}

void TestDisplayView::zoomHasLimits()
{
    global().setCamScaleFactor(2);
    wheel(viewMiddle(), 60);
    QCOMPARE(global().camScaleFactor(), 16.0);
    wheel(viewMiddle(), -60);
    wheel(viewMiddle(), -60);
    QCOMPARE(global().camScaleFactor(), 0.1);
}

void TestDisplayView::middleButtonMovesTheZoomedView()
{
    global().setCamScaleFactor(4);
    const QPointF before = pictureMiddle();
    drag(Qt::MiddleButton, viewMiddle(), {60, -32});
    const QPointF moved = pictureMiddle() - before;
    QVERIFY2((moved - QPointF(60, -32)).manhattanLength() <= 3,
             qPrintable(QStringLiteral("%1 %2").arg(moved.x()).arg(moved.y())));
}

void TestDisplayView::viewMovesNoFurtherThanItsPicture()
{
    global().setCamScaleFactor(2);
    drag(Qt::MiddleButton, viewMiddle(), {500, 300});
    drag(Qt::MiddleButton, viewMiddle(), {500, 300});
    drag(Qt::MiddleButton, viewMiddle(), {500, 300});
    const QPointF corner = m_film->cameraBox()->mapToItem(m_film->flicker(), {0, 0});
    QVERIFY2(corner.x() > -2 && corner.x() < 2, qPrintable(QString::number(corner.x())));
    QVERIFY(corner.y() > -2);
}

void TestDisplayView::fittingViewDoesNotMove()
{
    const QPointF before = pictureMiddle();
    drag(Qt::MiddleButton, viewMiddle(), {60, 30});
    drag(Qt::LeftButton, viewMiddle(), {60, 30});
    QCOMPARE(pictureMiddle(), before);
}

void TestDisplayView::leftButtonMovesTheZoomedView()
{
    global().setCamScaleFactor(4);
    const QPointF before = pictureMiddle();
    drag(Qt::LeftButton, viewMiddle(), {-80, 40});
    const QPointF moved = pictureMiddle() - before;
    // Small movements are a click.
    QVERIFY2(moved.x() < -50 && moved.y() > 20,
             qPrintable(QStringLiteral("%1 %2").arg(moved.x()).arg(moved.y())));
}

void TestDisplayView::eyedropperKeepsTheLeftButton()
{
    global().setCamScaleFactor(4);
    global().setEyedropperOn(true);
    const QPointF before = pictureMiddle();
    drag(Qt::LeftButton, viewMiddle(), {-80, 40});
    QCOMPARE(pictureMiddle(), before);
    drag(Qt::MiddleButton, viewMiddle(), {-80, 40});
    QVERIFY(pictureMiddle() != before);
}

void TestDisplayView::doubleClickFits()
{
    global().setCamScaleFactor(4);
    drag(Qt::MiddleButton, viewMiddle(), {60, 30});
    QTest::mouseDClick(&m_film->window(), Qt::LeftButton, {}, viewMiddle());
    QCOMPARE(global().camScaleFactor(), 1.0);
    QVERIFY((pictureMiddle() - viewMiddle()).manhattanLength() < 3);
}

void TestDisplayView::zoomOfTheSharedStateIsFollowed()
{
    const qreal width = m_film->cameraBox()->width();
    global().setCamScaleFactor(3);
    const qreal shown =
        m_film->cameraBox()->mapToScene({width, 0}).x() - m_film->cameraBox()->mapToScene({0, 0}).x();
    QCOMPARE(shown, 3 * width);
    QVERIFY((pictureMiddle() - viewMiddle()).manhattanLength() < 3);
}

void TestDisplayView::rightClickPutsTheEyedropperAway()
{
    global().setEyedropperOn(true);
    m_film->click(m_film->cameraBox(), Qt::RightButton);
    QVERIFY(!global().eyedropperOn());
}

void TestDisplayView::rightClickCallsTheDisconnector()
{
    m_film->click(m_film->cameraBox(), Qt::RightButton);
    QVERIFY(m_film->findItem("text", "Disconnect Camera") == nullptr);
    global().setConnected(true);
    m_film->click(m_film->cameraBox(), Qt::RightButton);
    QVERIFY(m_film->findItem("text", "Disconnect Camera") != nullptr);
    m_film->click(m_film->cameraBox(), Qt::RightButton);
    QVERIFY(m_film->findItem("text", "Disconnect Camera") == nullptr);
    m_film->click(m_film->cameraBox(), Qt::RightButton);
    m_film->click(m_film->findItem("text", "Disconnect Camera"));
    QCOMPARE(m_film->window().qmlDialogUrl(), QStringLiteral("CamDisconnectConfirmDialog.qml"));
}

void TestDisplayView::gridCentresOnALine_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<int>("columns");
    QTest::newRow("even count") << 80 << 4;
    QTest::newRow("odd count becomes even") << 107 << 4;
    QTest::newRow("rounded first") << 130 << 2;
    QTest::newRow("larger than the picture") << 300 << 2;
}

void TestDisplayView::gridCentresOnALine()
{
    QFETCH(int, step);
    QFETCH(int, columns);
    global().setGridHStep(step);
    global().setGridOn(true);
    global().setGridOpacity(1);
    QQuickItem *grid = m_film->findItem("columns", columns, m_film->cameraBox());
    QVERIFY(grid != nullptr);
    const QImage shot = m_film->shot();
    const QPoint middle = pictureMiddle().toPoint();
    const QList<int> found = greenColumns(shot, middle.y() + 7);
    QVERIFY2(found.contains(middle.x()) || found.contains(middle.x() - 1),
             qPrintable(QString::number(found.size())));
}

void TestDisplayView::gridStepsFollowTheScale()
{
    global().setGridHStep(40);
    global().setGridVStep(300);
    global().setGridOpacity(1);
    global().setGridOn(true);
    const QList<int> found = greenColumns(m_film->shot(), pictureMiddle().toPoint().y() + 9);
    QVERIFY(found.size() >= 7);
    const qreal wanted = 40 * global().coordSystemScale();
    for (int i = 1; i < found.size(); ++i)
        QVERIFY2(std::abs(found.at(i) - found.at(i - 1) - wanted) <= 1.5,
                 qPrintable(QString::number(found.at(i))));
}

void TestDisplayView::linesStayThin_data()
{
    QTest::addColumn<qreal>("zoom");
    QTest::addColumn<int>("leastPixels");
    QTest::addColumn<int>("mostPixels");
    QTest::newRow("as it fits") << 1.0 << 1 << 1;
    QTest::newRow("a little") << 1.5 << 1 << 1;
    QTest::newRow("four times") << 4.0 << 2 << 3;
    QTest::newRow("smaller") << 0.5 << 1 << 1;
}

void TestDisplayView::linesStayThin()
{
    QFETCH(qreal, zoom);
    QFETCH(int, leastPixels);
    QFETCH(int, mostPixels);
    global().setCrossOn(true);
    global().setWideCross(true);
    global().setSightOpacity(1);
    global().setCamScaleFactor(zoom);
    const QImage shot = m_film->shot();
    const qsizetype width = greenColumns(shot, viewMiddle().y() + 20).size();
    QVERIFY2(width >= leastPixels && width <= mostPixels, qPrintable(QString::number(width)));
}

void TestDisplayView::marginsDarkenWhatIsOutsideOfTheFrame()
{
    global().setCropAreaW(160);
    global().setCropAreaH(88);
    global().setMarginsOn(true);
    global().setMarginsOpacity(1);
    QQuickItem *box = m_film->cameraBox();
    QVERIFY(DisplayWindow::near(m_film->colorAt(box, {0.1, 0.5}), Qt::black));
    QVERIFY(DisplayWindow::near(m_film->colorAt(box, {0.9, 0.5}), Qt::black));
    QVERIFY(DisplayWindow::near(m_film->colorAt(box, {0.5, 0.1}), Qt::black));
    QVERIFY(DisplayWindow::near(m_film->colorAt(box, {0.5, 0.9}), Qt::black));
    QVERIFY(DisplayWindow::near(m_film->colorAt(box), DisplayWindow::capturedColor(0)));
    global().setMarginsOpacity(0.5);
    const QColor half = DisplayWindow::capturedColor(0).darker(200);
    QVERIFY(DisplayWindow::near(m_film->colorAt(box, {0.1, 0.5}), half));
}

void TestDisplayView::sightIsAnEighthOfTheFrame()
{
    global().setCrossOn(true);
    global().setSightOpacity(1);
    const QImage shot = m_film->shot();
    const qreal arm = global().cropAreaH() * global().coordSystemScale() / 8;
    // The row of the horizontal arm lies at the middle or a pixel beside it.
    qsizetype longest = 0;
    for (int dy = -2; dy <= 2; ++dy)
        longest = std::max(longest, greenColumns(shot, pictureMiddle().toPoint().y() + dy).size());
    QVERIFY2(std::abs(longest - arm) <= 2, qPrintable(QString::number(longest)));
    QVERIFY(greenColumns(shot, qRound(pictureMiddle().y() + arm / 2 - 3)).size() == 1);
    QCOMPARE(greenColumns(shot, qRound(pictureMiddle().y() + arm / 2 + 4)).size(), 0);
}

void TestDisplayView::wideSightSpansThePicture()
{
    global().setCrossOn(true);
    global().setWideCross(true);
    global().setSightOpacity(1);
    const QImage shot = m_film->shot();
    qsizetype longest = 0;
    for (int dy = -2; dy <= 2; ++dy)
        longest = std::max(longest, greenColumns(shot, pictureMiddle().toPoint().y() + dy).size());
    QVERIFY(std::abs(longest - m_film->cameraBox()->width()) <= 2);
}

void TestDisplayView::safeAreasLieInsideOfTheFrame()
{
    global().setSafeAreaOn(true);
    global().setSafeAreaOpacity(1);
    const QImage shot = m_film->shot();
    const qreal left = m_film->cameraBox()->mapToScene({0, 0}).x();
    const qreal width = m_film->cameraBox()->width();
    const QList<int> found =
        greenColumns(shot, qRound(pictureMiddle().y() + m_film->cameraBox()->height() / 5));
    QCOMPARE(found.size(), 4);
    const QList<qreal> shares{0.035, 0.05, 0.95, 0.965};
    for (int i = 0; i < 4; ++i)
        QVERIFY2(std::abs(found.at(i) - left - shares.at(i) * width) <= 1.6,
                 qPrintable(QString::number(found.at(i))));
}

void TestDisplayView::safeAreasHaveTicks()
{
    global().setSafeAreaOn(true);
    global().setSafeAreaOpacity(1);
    const QImage shot = m_film->shot();
    qsizetype longest = 0;
    for (int dy = -2; dy <= 2; ++dy)
        longest = std::max(longest, greenColumns(shot, pictureMiddle().toPoint().y() + dy).size());
    const qreal tick = 0.035 * m_film->cameraBox()->width();
    QVERIFY2(std::abs(longest - 2 * tick) <= 4, qPrintable(QString::number(longest)));
}

void TestDisplayView::borderTellsItsSize()
{
    global().setCropAreaOn(true);
    const QString shown = QStringLiteral("320x180 [%1x%2]")
                              .arg(qRound(320 * global().coordSystemScale()))
                              .arg(qRound(180 * global().coordSystemScale()));
    QVERIFY(m_film->findItem("text", shown) != nullptr);
    global().setCamScaleFactor(1 / global().coordSystemScale());
    QVERIFY(m_film->findItem("text", "320x180") != nullptr);
}

void TestDisplayView::borderTellsItsSizeOnlyIfWanted()
{
    global().setCropAreaOn(true);
    global().setTechInfoOn(false);
    global().setCamScaleFactor(1 / global().coordSystemScale());
    QVERIFY(m_film->findItem("text", "320x180") == nullptr);
}

void TestDisplayView::thirdsPartTheFrame()
{
    global().setRuleOfThirdsGridOn(true);
    global().setThirdsGridOpacity(1);
    const QList<int> found = greenColumns(m_film->shot(), pictureMiddle().toPoint().y());
    QCOMPARE(found.size(), 2);
    const qreal left = m_film->cameraBox()->mapToScene({0, 0}).x();
    QVERIFY(std::abs(found.at(0) - left - m_film->cameraBox()->width() / 3) <= 1.5);
    QVERIFY(std::abs(found.at(1) - left - m_film->cameraBox()->width() * 2 / 3) <= 1.5);
}

void TestDisplayView::thirdsLieOverEverything()
{
    global().setRuleOfThirdsGridOn(true);
    global().setMarginsOn(true);
    QQuickItem *margins = m_film->findItem("z", 4.0, m_film->cameraBox());
    QQuickItem *thirds = m_film->findItem("z", 400.0, m_film->cameraBox());
    QVERIFY(margins != nullptr);
    QVERIFY(thirds != nullptr);
    for (const qreal z : {5.0, 6.0, 7.0, 8.0}) {
        global().setGridOn(true);
        global().setCrossOn(true);
        global().setSafeAreaOn(true);
        global().setCropAreaOn(true);
        QVERIFY2(m_film->findItem("z", z, thirds->parentItem()) != nullptr, qPrintable(QString::number(z)));
    }
}

void TestDisplayView::linesShowAtTheirOpacity()
{
    global().setCrossOn(true);
    global().setWideCross(true);
    global().setSightOpacity(0.5);
    const QImage shot = m_film->shot();
    const QColor ground = DisplayWindow::capturedColor(0);
    const QColor wanted(ground.red() / 2, (ground.green() + 255) / 2, ground.blue() / 2);
    const QPoint middle = viewMiddle();
    bool seen = false;
    for (int dx = -2; dx <= 2; ++dx)
        seen = seen || DisplayWindow::near(shot.pixelColor(middle + QPoint(dx, 30)), wanted);
    QVERIFY(seen);
}

void TestDisplayView::noLinesWithoutBeingSwitchedOn()
{
    const QImage shot = m_film->shot();
    for (int dy = -60; dy <= 60; ++dy)
        QCOMPARE(greenColumns(shot, viewMiddle().y() + dy), QList<int>());
}

QTEST_MAIN(TestDisplayView)
#include "tst_displayview.moc"
