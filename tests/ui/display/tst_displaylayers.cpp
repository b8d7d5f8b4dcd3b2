#include "DisplayTest.h"

/// The layers of the Capture tab's view: which lies on top, how opaque and how large each is, what lies in
/// them and when they rest.
class TestDisplayLayers : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void orderFollowsTheTabs_data();
    void orderFollowsTheTabs();
    void topLayerIsSeen_data();
    void topLayerIsSeen();
    void opacityLetsTheLayersBelowThrough();
    void layersFollowTheCurrentFrame();
    void frameWithoutAPictureShowsNone();
    void liveLayerCoversOnlyWithADevice();
    void referenceHasAScaleOfItsOwn();
    void mirroredFrameShowsMirrored();
    void framesRestWhilePlaying();
    void framesRestWhileAJobRuns();
    void framesRestOnOtherTabs();
    void rewrittenFileIsReadAnew();

    void blendMixesTheLayers_data();
    void blendMixesTheLayers();
    void blendTakesWhatIsBelowAsOne();

    void viewFitsTheFilmsFrame();
    void viewGrowsWithLargerFrames();
    void viewWithoutEnlargingStaysAtItsSize();
    void viewFollowsItsRoom();
    void viewOfADeviceIsTheDevices();
    void viewTellsWhereTheFrameLies();
    void viewAloneMakesNoProjectDirty();
    void closedProjectLetsGoOfThePicture();

    void cutPictureIsTold();
    void cutPictureIsToldOnlyIfWanted();
    void slightCutIsNotTold();
    void viewSaysThatThereIsNoCamera();
    void projectWithoutFramesSaysWhatIsNext();

private:
    /// The colour of the view beside its middle, once it is that one.
    bool shows(const QColor &color, QPointF place = {0.3, 0.3})
    {
        return DisplayTest::shows(m_film->cameraBox(), color, place);
    }
    void fresh(int rows = 3)
    {
        m_film.reset();
        m_film = std::make_unique<DisplayWindow>(rows);
        QVERIFY(rows == 0 || m_film->waitForPictures());
        global().setCropAreaOn(false);
    }
};

namespace {

QImage halves(QSize size, const QColor &left, const QColor &right)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(right);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width() / 2; ++x)
            image.setPixelColor(x, y, left);
    return image;
}

QColor mixed(const QColor &above, const QColor &below, qreal opacity)
{
    const auto mix = [opacity](int a, int b) {
        return qRound(a * opacity + b * (1 - opacity));
    };
    return QColor(mix(above.red(), below.red()), mix(above.green(), below.green()),
                  mix(above.blue(), below.blue()));
}

} // namespace

void TestDisplayLayers::initTestCase()
{
    fresh();
}

void TestDisplayLayers::init()
{
    global().setConnected(false);
    global().setStackMode(Zum::NoStack);
    global().setFlipFlop(Zum::NoFlipFlop);
    global().setBlend(Zum::NoBlend);
    frames().setDoubleDecker(true);
    global().setOpacityCaptured(100);
    global().setOpacityReference(100);
    global().setOpacityLiveView(100);
    global().setReferenceImageScale(100);
    global().setCamboxState("liveViewPreviewIsOn");
    frames().setCurrentIndex(0);
}

void TestDisplayLayers::orderFollowsTheTabs_data()
{
    QTest::addColumn<int>("live");
    QTest::addColumn<int>("captured");
    QTest::addColumn<int>("reference");
    QTest::newRow("liveViewPreviewIsOn") << 2 << 1 << 0;
    QTest::newRow("capturePreviewIsOn") << 0 << 2 << 1;
    QTest::newRow("referencePreviewIsOn") << 1 << 0 << 2;
}

void TestDisplayLayers::orderFollowsTheTabs()
{
    QFETCH(int, live);
    QFETCH(int, captured);
    QFETCH(int, reference);
    global().setCamboxState(QTest::currentDataTag());
    QCOMPARE(m_film->layers("liveLayer.z").toInt(), live);
    QCOMPARE(m_film->layers("bigCapturedPicBox.z").toInt(), captured);
    QCOMPARE(m_film->layers("bigReferencePicBox.z").toInt(), reference);
}

void TestDisplayLayers::topLayerIsSeen_data()
{
    QTest::addColumn<QColor>("seen");
    QTest::newRow("liveViewPreviewIsOn") << QColor(Qt::black);
    QTest::newRow("capturePreviewIsOn") << DisplayWindow::capturedColor(0);
    QTest::newRow("referencePreviewIsOn") << DisplayWindow::referenceColor(0);
}

void TestDisplayLayers::topLayerIsSeen()
{
    QFETCH(QColor, seen);
    global().setConnected(true);
    global().setCamboxState(QTest::currentDataTag());
    QVERIFY(shows(seen));
}

void TestDisplayLayers::opacityLetsTheLayersBelowThrough()
{
    const QColor captured = DisplayWindow::capturedColor(0);
    const QColor reference = DisplayWindow::referenceColor(0);
    global().setCamboxState("capturePreviewIsOn");
    global().setOpacityCaptured(25);
    QVERIFY(shows(mixed(captured, reference, 0.25)));
    global().setCamboxState("referencePreviewIsOn");
    global().setOpacityCaptured(100);
    global().setOpacityReference(60);
    QVERIFY(shows(mixed(reference, captured, 0.6)));
    global().setConnected(true);
    global().setOpacityLiveView(50);
    QVERIFY(shows(mixed(reference, mixed(Qt::black, captured, 0.5), 0.6)));
}

void TestDisplayLayers::layersFollowTheCurrentFrame()
{
    for (const int row : {1, 2, 0}) {
        frames().setCurrentIndex(row);
        global().setCamboxState("capturePreviewIsOn");
        QVERIFY(shows(DisplayWindow::capturedColor(row)));
        global().setCamboxState("referencePreviewIsOn");
        QVERIFY(shows(DisplayWindow::referenceColor(row)));
    }
}

void TestDisplayLayers::frameWithoutAPictureShowsNone()
{
    frames().appendFrame({});
    frames().setCurrentIndex(frames().last());
    QVERIFY(shows(QColor("#282828")));
    frames().setCurrentIndex(0);
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
}

void TestDisplayLayers::liveLayerCoversOnlyWithADevice()
{
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
    global().setConnected(true);
    QVERIFY(shows(Qt::black));
    global().setConnected(false);
    QVERIFY(shows(DisplayWindow::capturedColor(0)));
}

void TestDisplayLayers::referenceHasAScaleOfItsOwn()
{
    global().setCamboxState("referencePreviewIsOn");
    global().setReferenceImageScale(50);
    QVERIFY(shows(DisplayWindow::referenceColor(0), {0.3, 0.3}));
    QVERIFY(shows(DisplayWindow::capturedColor(0), {0.2, 0.2}));
    const qreal scale = global().coordSystemScale();
    QCOMPARE(m_film->layers("bigReferencePicBox.preview.scaleFactor").toReal(), scale * 0.5);
    QCOMPARE(m_film->layers("bigCapturedPicBox.preview.scaleFactor").toReal(), scale);
}

void TestDisplayLayers::mirroredFrameShowsMirrored()
{
    m_film->addPicture(halves({320, 180}, Qt::white, Qt::blue), "halves.png");
    frames().setCurrentIndex(frames().last());
    QVERIFY(shows(Qt::white, {0.3, 0.5}));
    frames().switchMirroredOnSingleFrame(frames().currentIndex());
    QVERIFY(frames().currentMirrored());
    QVERIFY(shows(Qt::blue, {0.3, 0.5}));
    QVERIFY(shows(Qt::white, {0.7, 0.5}));
}

void TestDisplayLayers::framesRestWhilePlaying()
{
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.renderAllowed").toBool());
    frames().setTimelineRangeStart(0);
    frames().setTimelineRangeEnd(2);
    frames().play();
    QTRY_VERIFY(frames().playing());
    QVERIFY(!m_film->layers("bigCapturedPicBox.preview.renderAllowed").toBool());
    QVERIFY(!m_film->layers("bigReferencePicBox.preview.running").toBool());
    frames().stop();
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.renderAllowed").toBool());
}

void TestDisplayLayers::framesRestWhileAJobRuns()
{
    m_film->controllers().robot.setCurrentRobotJob(Zum::NoJob + 1);
    QVERIFY(!m_film->layers("bigCapturedPicBox.preview.renderAllowed").toBool());
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.running").toBool());
    m_film->controllers().robot.setCurrentRobotJob(Zum::NoJob);
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.renderAllowed").toBool());
}

void TestDisplayLayers::framesRestOnOtherTabs()
{
    for (const char *tab : {"timingUIisOn", "playbackUIisOn", "docsUIisOn"}) {
        global().setMainTabsState(tab);
        QVERIFY2(!m_film->layers("bigCapturedPicBox.preview.running").toBool(), tab);
    }
    global().setMainTabsState("captureUIisOn");
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.running").toBool());
}

void TestDisplayLayers::rewrittenFileIsReadAnew()
{
    m_film->addPicture(halves({320, 180}, Qt::white, Qt::white), "rewritten.png");
    frames().setCurrentIndex(frames().last());
    QVERIFY(shows(Qt::white));
    QVERIFY(halves({320, 180}, Qt::blue, Qt::blue).save(m_film->window().capFullDirPath() + "rewritten.png"));
    emit frames().currentShouldBeUpdated();
    QVERIFY(shows(Qt::blue));
}

void TestDisplayLayers::blendMixesTheLayers_data()
{
    QTest::addColumn<int>("blend");
    QTest::addColumn<QColor>("seen");
    const QColor a = DisplayWindow::capturedColor(0);
    const QColor b = DisplayWindow::referenceColor(0);
    const auto each = [&](auto mix) {
        return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
    };
    QTest::newRow("none") << int(Zum::NoBlend) << a;
    QTest::newRow("darken") << int(Zum::BlendDarken) << each([](int x, int y) { return std::min(x, y); });
    QTest::newRow("lighten") << int(Zum::BlendLighten) << each([](int x, int y) { return std::max(x, y); });
    QTest::newRow("difference") << int(Zum::BlendDifference)
                                << each([](int x, int y) { return std::abs(x - y); });
    QTest::newRow("multiply") << int(Zum::BlendMultiply) << each([](int x, int y) { return x * y / 255; });
}

void TestDisplayLayers::blendMixesTheLayers()
{
    QFETCH(int, blend);
    QFETCH(QColor, seen);
    global().setCamboxState("capturePreviewIsOn");
    global().setBlend(blend);
    QVERIFY(shows(seen));
    QCOMPARE(m_film->layers("bigCapturedPicBox.preview.blend").toInt(), blend);
}

void TestDisplayLayers::blendTakesWhatIsBelowAsOne()
{
    global().setConnected(true);
    global().setOpacityLiveView(50);
    global().setCamboxState("referencePreviewIsOn");
    global().setBlend(Zum::BlendDifference);
    const QColor below = mixed(Qt::black, DisplayWindow::capturedColor(0), 0.5);
    const QColor above = DisplayWindow::referenceColor(0);
    QVERIFY(shows(QColor(std::abs(below.red() - above.red()), std::abs(below.green() - above.green()),
                         std::abs(below.blue() - above.blue()))));
}

void TestDisplayLayers::viewFitsTheFilmsFrame()
{
    fresh(0);
    QCOMPARE(global().width(), 320);
    QCOMPARE(global().coordSystemWidth(), 320.0);
    const qreal fit = std::min(m_film->flicker()->width() / 320, m_film->flicker()->height() / 180);
    QVERIFY(std::abs(global().coordSystemScale() - fit) < 0.0002);
    QCOMPARE(global().scaledWidth(), qRound(320 * fit));
    QCOMPARE(global().scaledHeight(), qRound(180 * fit));
    fresh();
}

void TestDisplayLayers::viewGrowsWithLargerFrames()
{
    fresh();
    m_film->addPicture(halves({640, 360}, Qt::white, Qt::white), "large.png");
    frames().setCurrentIndex(frames().last());
    QTRY_COMPARE(global().coordSystemWidth(), 640.0);
    QVERIFY(shows(Qt::white, {0.05, 0.05}));
    QVERIFY(shows(Qt::white, {0.95, 0.95}));
    // The smaller ones keep their size beside it.
    frames().setCurrentIndex(0);
    QVERIFY(shows(DisplayWindow::capturedColor(0), {0.3, 0.3}));
    QVERIFY(shows(QColor("#282828"), {0.2, 0.2}));
    QCOMPARE(global().coordSystemWidth(), 640.0);
    fresh();
}

void TestDisplayLayers::viewWithoutEnlargingStaysAtItsSize()
{
    global().setResize(false);
    QCOMPARE(global().displayScale(), 1.0);
    QCOMPARE(global().scaledWidth(), 320);
    global().setResize(true);
    QVERIFY(global().scaledWidth() > 320);
}

void TestDisplayLayers::viewFollowsItsRoom()
{
    const int before = global().scaledWidth();
    m_film->window().resize(1024, 600);
    QTRY_VERIFY(global().scaledWidth() < before);
    QVERIFY(global().scaledWidth() <= m_film->flicker()->width());
    QVERIFY(global().scaledHeight() <= m_film->flicker()->height());
    m_film->window().resize(1280, 760);
    QTRY_COMPARE(global().scaledWidth(), before);
}

void TestDisplayLayers::viewOfADeviceIsTheDevices()
{
    global().setConnected(true);
    global().setWidth(640);
    global().setHeight(480);
    global().setCoordSystemWidth(640);
    global().setCoordSystemHeight(480);
    m_film->evaluate("rescale()");
    QTRY_COMPARE(global().scaledHeight(), qRound(480 * global().displayScale()));
    QTRY_VERIFY(std::abs(global().scaledHeight() - m_film->flicker()->height()) <= 1);
    frames().setCurrentIndex(1);
    QCOMPARE(global().width(), 640);
    global().setConnected(false);
    QTRY_COMPARE(global().width(), 320);
}

void TestDisplayLayers::viewTellsWhereTheFrameLies()
{
    global().setCropAreaW(200);
    global().setCropAreaH(100);
    QTRY_COMPARE(global().cropAreaX(), 60);
    QTRY_COMPARE(global().cropAreaY(), 40);
    global().setCropAreaW(DisplayWindow::frameWidth);
    global().setCropAreaH(DisplayWindow::frameHeight);
    QTRY_COMPARE(global().cropAreaX(), 0);
}

void TestDisplayLayers::viewAloneMakesNoProjectDirty()
{
    global().setProjectChanged(false);
    m_film->window().resize(1024, 600);
    frames().setCurrentIndex(1);
    global().setCoordSystemWidth(700);
    global().setConnected(true);
    global().setConnected(false);
    global().setMainTabsState("timingUIisOn");
    QVERIFY(m_film->settle());
    global().setMainTabsState("captureUIisOn");
    m_film->window().resize(1280, 760);
    QVERIFY(m_film->waitForPictures());
    QVERIFY(!global().projectChanged());
}

void TestDisplayLayers::closedProjectLetsGoOfThePicture()
{
    global().setProjectChanged(false);
    m_film->window().closeProject();
    QTRY_VERIFY(!m_film->window().projectLoaded());
    QCOMPARE(global().width(), 0);
    QCOMPARE(global().coordSystemWidth(), 100.0);
    QCOMPARE(global().coordSystemScale(), 1.0);
    fresh();
}

void TestDisplayLayers::cutPictureIsTold()
{
    fresh();
    global().setConnected(true);
    global().setWidth(320);
    global().setHeight(180);
    m_film->addPicture(halves({400, 180}, Qt::white, Qt::white), "wide.png");
    frames().setCurrentIndex(frames().last());
    const QString text = QStringLiteral("The frame size is larger than the camera resolution");
    QTRY_VERIFY(m_film->findItem("toolTip", text, m_film->cameraBox()) != nullptr);
    QQuickItem *sign = m_film->findItem("toolTip", text, m_film->cameraBox());
    QVERIFY(std::abs(sign->width() - global().scaledWidth() / 12.0) < 1);
    // The inner rectangle shows what is left of the whole.
    QVERIFY(m_film->findItem("width", sign->width() * sign->property("share").toReal(), sign) != nullptr);
    QVERIFY(std::abs(sign->property("share").toReal() - 0.8) < 0.02);
}

void TestDisplayLayers::cutPictureIsToldOnlyIfWanted()
{
    frames().setCurrentIndex(frames().last());
    global().setConnected(true);
    global().setTechInfoOn(false);
    QVERIFY(m_film->findItem("toolTip", "The frame size is larger than the camera resolution",
                             m_film->cameraBox())
            == nullptr);
    global().setTechInfoOn(true);
}

void TestDisplayLayers::slightCutIsNotTold()
{
    fresh();
    global().setConnected(true);
    global().setWidth(320);
    global().setHeight(180);
    m_film->addPicture(halves({340, 180}, Qt::white, Qt::white), "wider.png");
    frames().setCurrentIndex(frames().last());
    QVERIFY(shows(Qt::black));
    global().setCamboxState("capturePreviewIsOn");
    QVERIFY(shows(Qt::white));
    QVERIFY(m_film->layers("bigCapturedPicBox.preview.currentCroppedCoefX").toReal() < 0.98);
    QVERIFY(m_film->findItem("toolTip", "The frame size is larger than the camera resolution",
                             m_film->cameraBox())
            == nullptr);
    fresh();
}

void TestDisplayLayers::viewSaysThatThereIsNoCamera()
{
    const QString text = QStringLiteral("No camera: the captured frame shows");
    QVERIFY(m_film->findItem("text", text, m_film->display()) != nullptr);
    global().setConnected(true);
    QVERIFY(m_film->findItem("text", text, m_film->display()) == nullptr);
    global().setConnected(false);
    global().setCamboxState("capturePreviewIsOn");
    QVERIFY(m_film->findItem("text", text, m_film->display()) == nullptr);
}

void TestDisplayLayers::projectWithoutFramesSaysWhatIsNext()
{
    const QString text = QStringLiteral("Pose the puppet and press Enter for each frame.");
    QVERIFY(m_film->findItem("text", text) == nullptr);
    fresh(0);
    QVERIFY(m_film->findItem("text", text) != nullptr);
    fresh();
}

QTEST_MAIN(TestDisplayLayers)
#include "tst_displaylayers.moc"
