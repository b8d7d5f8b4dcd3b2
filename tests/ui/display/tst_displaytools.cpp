#include "DisplayTest.h"

/// The tabs below the picture and the tools beside it: what they set, what they say, and how they are
/// reached.
class TestDisplayTools : public DisplayTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void tabsAreClicked();
    void clickedTabShowsAsOpen();
    void capturedTabEndsAFlipFlop();
    void liveTabEndsAStack();
    void otherTabsKeepStackAndFlipFlop();
    void referenceTabIsInactive_data();
    void referenceTabIsInactive();
    void slidersSetTheOpacities_data();
    void slidersSetTheOpacities();
    void sliderFollowsTheOpacity();
    void narrowTabsShowAsPictures();

    void toolsOfATab_data();
    void toolsOfATab();
    void toolsNeedAProject();
    void everyToolHasItsWords();
    void toolsAreReachedByKeyboard();
    void helperLinesAreSwitched_data();
    void helperLinesAreSwitched();
    void gridSliderSetsBothSteps();
    void onionSkinIsChosen();
    void flipFlopIsChosen();
    void blendOffersTwelveTypes();
    void blendIsChosen();
    void blackAndWhiteIsSwitched();
    void referenceSizeIsSet();
    void zoomIsChosen();
    void filtersAreShownOrNot();
    void currentFrameIsMirrored();
    void pictureIsTheLargestThing();

private:
    QQuickItem *column()
    {
        return m_film->item("screenControls");
    }
    QQuickItem *tabs()
    {
        return m_film->display()->property("tabs").value<QQuickItem *>();
    }
    QQuickItem *tab(const char *name)
    {
        return m_film->findItem("label", QString::fromLatin1(name), tabs());
    }
    /// A control of an open panel.
    QQuickItem *inPanel(const char *property, const QString &value)
    {
        return m_film->findItem(property, value);
    }
    void open(const QString &title)
    {
        m_film->click(m_film->findItem("title", title, column()));
        QVERIFY(m_film->settle());
    }
    void key(QQuickItem *item, int key)
    {
        QVERIFY(item != nullptr);
        item->forceActiveFocus(Qt::TabFocusReason);
        m_film->press(key);
    }
};

void TestDisplayTools::initTestCase()
{
    m_film = std::make_unique<DisplayWindow>(4);
    QVERIFY(m_film->waitForPictures());
}

void TestDisplayTools::init()
{
    emit global().globalDismiss();
    m_film->window().setQmlDialogUrl({});
    global().setMainTabsState("captureUIisOn");
    global().setConnected(false);
    global().setStackMode(Zum::NoStack);
    global().setFlipFlop(Zum::NoFlipFlop);
    global().setBlend(Zum::NoBlend);
    global().setGrayscale(false);
    global().setCamScaleFactor(1);
    global().setOpacityCaptured(100);
    m_film->frames().setDoubleDecker(true);
    global().setCamboxState(live);
    m_film->frames().setCurrentIndex(0);
}

void TestDisplayTools::tabsAreClicked()
{
    m_film->click(tab("Captured"));
    QCOMPARE(global().camboxState(), captured);
    m_film->click(tab("Reference"));
    QCOMPARE(global().camboxState(), reference);
    m_film->click(tab("Live View"));
    QCOMPARE(global().camboxState(), live);
}

void TestDisplayTools::clickedTabShowsAsOpen()
{
    global().setCamboxState(captured);
    QVERIFY(tab("Captured")->property("toggled").toBool());
    QVERIFY(!tab("Live View")->property("toggled").toBool());
    QVERIFY(!tab("Reference")->property("toggled").toBool());
}

void TestDisplayTools::capturedTabEndsAFlipFlop()
{
    global().setFlipFlop(Zum::FadeFlipFlop);
    m_film->click(tab("Captured"));
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
    QCOMPARE(m_film->messages().constFirst(), QStringLiteral(": Flip-Flop OFF"));
    const qsizetype count = m_film->messages().size();
    m_film->click(tab("Captured"));
    QCOMPARE(m_film->messages().size(), count);
}

void TestDisplayTools::liveTabEndsAStack()
{
    global().setStackMode(Zum::StackPast);
    m_film->click(tab("Live View"));
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
    QCOMPARE(global().camboxState(), live);
    QCOMPARE(m_film->messages().constFirst(), QStringLiteral(": Onion-skin OFF"));
    const qsizetype count = m_film->messages().size();
    m_film->click(tab("Live View"));
    QCOMPARE(m_film->messages().size(), count);
}

void TestDisplayTools::otherTabsKeepStackAndFlipFlop()
{
    global().setStackMode(Zum::StackPast);
    m_film->click(tab("Captured"));
    QCOMPARE(global().stackMode(), int(Zum::StackPast));
    global().setFlipFlop(Zum::FadeFlipFlop);
    m_film->click(tab("Reference"));
    QCOMPARE(global().flipFlop(), int(Zum::FadeFlipFlop));
    QCOMPARE(global().camboxState(), reference);
}

void TestDisplayTools::referenceTabIsInactive_data()
{
    QTest::addColumn<bool>("twoRows");
    QTest::addColumn<int>("stack");
    QTest::addColumn<bool>("active");
    QTest::newRow("two rows") << true << int(Zum::NoStack) << true;
    QTest::newRow("one row") << false << int(Zum::NoStack) << false;
    QTest::newRow("onion skin") << true << int(Zum::StackFuture) << false;
}

void TestDisplayTools::referenceTabIsInactive()
{
    QFETCH(bool, twoRows);
    QFETCH(int, stack);
    QFETCH(bool, active);
    m_film->frames().setDoubleDecker(twoRows);
    global().setStackMode(stack);
    QCOMPARE(tab("Reference")->property("active").toBool(), active);
    m_film->click(tab("Reference"));
    QCOMPARE(global().camboxState() == reference, active);
}

void TestDisplayTools::slidersSetTheOpacities_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("live view") << QByteArray("opacityLiveView") << "Opacity of the live picture";
    QTest::newRow("captured") << QByteArray("opacityCaptured") << "Opacity of the captured frame";
    QTest::newRow("reference") << QByteArray("opacityReference") << "Opacity of the reference frame";
}

void TestDisplayTools::slidersSetTheOpacities()
{
    QFETCH(QByteArray, property);
    QFETCH(QString, toolTip);
    global().setConnected(true);
    global().setProperty(property.constData(), 50);
    QQuickItem *slider = m_film->findItem("toolTip", toolTip, tabs());
    key(slider, Qt::Key_Right);
    QCOMPARE(global().property(property.constData()).toReal(), 51.0);
    key(slider, Qt::Key_End);
    QCOMPARE(global().property(property.constData()).toReal(), 100.0);
    key(slider, Qt::Key_Home);
    QCOMPARE(global().property(property.constData()).toReal(), 0.0);
    key(slider, Qt::Key_Backspace);
    QCOMPARE(global().property(property.constData()).toReal(), 100.0);
}

void TestDisplayTools::sliderFollowsTheOpacity()
{
    global().setOpacityCaptured(33);
    QCOMPARE(m_film->findItem("toolTip", "Opacity of the captured frame", tabs())->property("value").toReal(),
             33.0);
}

void TestDisplayTools::narrowTabsShowAsPictures()
{
    QCOMPARE(tab("Captured")->property("text").toString(), QStringLiteral("Captured"));
    m_film->window().resize(720, 600);
    QTRY_COMPARE(tab("Captured")->property("text").toString(), QString());
    QVERIFY(tab("Captured")->property("toolTip").toString().contains("Captured"));
    m_film->click(tab("Captured"));
    QCOMPARE(global().camboxState(), captured);
    m_film->window().resize(1280, 760);
    QTRY_COMPARE(tab("Captured")->property("text").toString(), QStringLiteral("Captured"));
}

void TestDisplayTools::toolsOfATab_data()
{
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("hidden");
    const QStringList everywhere{"Zoom", "Helper lines"};
    const QStringList capture{"Onion skin", "Flip-flop", "Blend: No Blend", "Size of the reference"};
    const QStringList timing{"Size of the picture"};
    QTest::newRow("captureUIisOn") << everywhere + capture << timing;
    QTest::newRow("timingUIisOn") << everywhere + timing << capture;
}

void TestDisplayTools::toolsOfATab()
{
    QFETCH(QStringList, shown);
    QFETCH(QStringList, hidden);
    global().setMainTabsState(QTest::currentDataTag());
    for (const QString &title : std::as_const(shown))
        QVERIFY2(m_film->findItem("title", title, column()) != nullptr, qPrintable(title));
    for (const QString &title : std::as_const(hidden))
        QVERIFY2(m_film->findItem("title", title, column()) == nullptr, qPrintable(title));
}

void TestDisplayTools::toolsNeedAProject()
{
    QVERIFY(column()->width() > 0);
    global().setProjectChanged(false);
    m_film->window().closeProject();
    QTRY_VERIFY(!m_film->window().projectLoaded());
    QCOMPARE(column()->width(), 0.0);
    m_film = std::make_unique<DisplayWindow>(4);
    QVERIFY(m_film->waitForPictures());
}

void TestDisplayTools::everyToolHasItsWords()
{
    const QList<QQuickItem *> buttons = column()->findChildren<QQuickItem *>();
    int count = 0;
    for (const QQuickItem *button : buttons) {
        if (!button->property("autoRepeat").isValid() || !button->isVisible())
            continue;
        ++count;
        QVERIFY(!button->property("toolTip").toString().isEmpty());
        QVERIFY(!button->property("label").toString().isEmpty());
        QVERIFY(button->property("tabStop").toBool());
    }
    QVERIFY(count >= 8);
}

void TestDisplayTools::toolsAreReachedByKeyboard()
{
    QQuickItem *tool = m_film->findItem("title", "Helper lines", column());
    key(tool, Qt::Key_Space);
    QVERIFY(tool->property("opened").toBool());
    // The first control of the panel has the keyboard: Space switches it, Escape comes back.
    const bool before = global().cropAreaOn();
    m_film->press(Qt::Key_Space);
    QCOMPARE(global().cropAreaOn(), !before);
    m_film->press(Qt::Key_Escape);
    QVERIFY(!tool->property("opened").toBool());
    QVERIFY(tool->hasActiveFocus());
}

void TestDisplayTools::helperLinesAreSwitched_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("opacity");
    QTest::newRow("Frame border") << QByteArray("cropAreaOn") << QByteArray("frameBorderOpacity");
    QTest::newRow("Margins") << QByteArray("marginsOn") << QByteArray("marginsOpacity");
    QTest::newRow("Safe areas") << QByteArray("safeAreaOn") << QByteArray("safeAreaOpacity");
    QTest::newRow("Rule of thirds") << QByteArray("ruleOfThirdsGridOn") << QByteArray("thirdsGridOpacity");
    QTest::newRow("Sight") << QByteArray("crossOn") << QByteArray("sightOpacity");
    QTest::newRow("Grid") << QByteArray("gridOn") << QByteArray("gridOpacity");
    QTest::newRow("Sizes and warnings") << QByteArray("techInfoOn") << QByteArray();
}

void TestDisplayTools::helperLinesAreSwitched()
{
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, opacity);
    const QString name = QTest::currentDataTag();
    global().setProperty(property.constData(), false);
    open("Helper lines");
    m_film->click(inPanel("text", name));
    QVERIFY(global().property(property.constData()).toBool());
    if (!opacity.isEmpty()) {
        global().setProperty(opacity.constData(), 0.5);
        key(inPanel("toolTip", "Opacity: " + name), Qt::Key_Right);
        QVERIFY(std::abs(global().property(opacity.constData()).toReal() - 0.51) < 0.001);
    }
    m_film->click(inPanel("text", name));
    QVERIFY(!global().property(property.constData()).toBool());
}

void TestDisplayTools::gridSliderSetsBothSteps()
{
    global().setGridOn(true);
    open("Helper lines");
    QQuickItem *slider = inPanel("label", "Step");
    key(slider, Qt::Key_Home);
    QCOMPARE(global().gridHStep(), 10);
    QCOMPARE(global().gridVStep(), 10);
    key(slider, Qt::Key_End);
    QCOMPARE(global().gridHStep(), 300);
    QCOMPARE(global().gridVStep(), 300);
    global().setGridOn(false);
}

void TestDisplayTools::onionSkinIsChosen()
{
    open("Onion skin");
    m_film->click(inPanel("text", "Frames before"));
    QCOMPARE(global().stackMode(), int(Zum::StackPast));
    m_film->click(inPanel("text", "Frames after"));
    QCOMPARE(global().stackMode(), int(Zum::StackFuture));
    key(inPanel("label", "Frames"), Qt::Key_Right);
    QCOMPARE(global().stackDepth(), 2);
    m_film->click(inPanel("text", "Off"));
    QCOMPARE(global().stackMode(), int(Zum::NoStack));
}

void TestDisplayTools::flipFlopIsChosen()
{
    open("Flip-flop");
    m_film->click(inPanel("text", "Flash"));
    QCOMPARE(global().flipFlop(), int(Zum::FlashFlipFlop));
    m_film->click(inPanel("text", "Fade"));
    QCOMPARE(global().flipFlop(), int(Zum::FadeFlipFlop));
    global().setFlipFlopDuration(1000);
    QQuickItem *slider = inPanel("label", "Duration");
    key(slider, Qt::Key_Right);
    QCOMPARE(global().flipFlopDuration(), 1500);
    key(slider, Qt::Key_Home);
    QCOMPARE(global().flipFlopDuration(), 500);
    key(slider, Qt::Key_End);
    QCOMPARE(global().flipFlopDuration(), 5000);
    m_film->click(inPanel("text", "Off"));
    QCOMPARE(global().flipFlop(), int(Zum::NoFlipFlop));
}

void TestDisplayTools::blendOffersTwelveTypes()
{
    open("Blend: No Blend");
    const QVariantList all = global().blendModes();
    for (int blend = 0; blend < all.size(); ++blend) {
        const QString text = all.at(blend).toMap().value("text").toString();
        QVERIFY2((inPanel("text", text) != nullptr) == (blend <= Zum::BlendExclusion), qPrintable(text));
    }
}

void TestDisplayTools::blendIsChosen()
{
    open("Blend: No Blend");
    m_film->click(inPanel("text", "Difference"));
    QCOMPARE(global().blend(), int(Zum::BlendDifference));
    m_film->click(inPanel("text", "No Blend"));
    QCOMPARE(global().blend(), int(Zum::NoBlend));
}

void TestDisplayTools::blackAndWhiteIsSwitched()
{
    open("Blend: No Blend");
    m_film->click(inPanel("text", "Black and white"));
    QVERIFY(global().grayscale());
    m_film->click(inPanel("text", "Black and white"));
    QVERIFY(!global().grayscale());
}

void TestDisplayTools::referenceSizeIsSet()
{
    open("Size of the reference");
    QQuickItem *slider = inPanel("toolTip", "Size of the reference frame, in per cent");
    key(slider, Qt::Key_Home);
    QCOMPARE(global().referenceImageScale(), 10.0);
    key(slider, Qt::Key_End);
    QCOMPARE(global().referenceImageScale(), 300.0);
    key(slider, Qt::Key_Backspace);
    QCOMPARE(global().referenceImageScale(), 100.0);
}

void TestDisplayTools::zoomIsChosen()
{
    open("Zoom");
    m_film->click(inPanel("toolTip", "Zoom in [Wheel]"));
    QCOMPARE(global().camScaleFactor(), 1.2);
    m_film->click(inPanel("toolTip", "Zoom out [Wheel]"));
    QCOMPARE(global().camScaleFactor(), 1.0);
    m_film->click(inPanel("text", "Pixels"));
    QCOMPARE(global().camScaleFactor(), 1 / global().coordSystemScale());
    m_film->click(inPanel("toolTip", "Show the whole picture [Double click]"));
    QCOMPARE(global().camScaleFactor(), 1.0);
}

void TestDisplayTools::filtersAreShownOrNot()
{
    QVERIFY(m_film->findItem("toolTip", "Filters of the picture", column()) != nullptr);
    global().setPostProcessSetting("contrast", 10);
    m_film->click(m_film->findItem("toolTip", "Show pictures with the filters", column()));
    QCOMPARE(global().postProcessing(), int(Zum::NonRealtimeProcessing));
    m_film->click(m_film->findItem("toolTip", "Show pictures as they are", column()));
    QCOMPARE(global().postProcessing(), int(Zum::NoProcessing));
    global().removePostProcessSetting("contrast");
    QVERIFY(!m_film->findItem("toolTip", "Show pictures with the filters", column())
                 ->property("active")
                 .toBool());
    m_film->click(m_film->findItem("toolTip", "Filters of the picture", column()));
    QCOMPARE(m_film->window().qmlDialogUrl(), QStringLiteral("FiltersDialog.qml"));
}

void TestDisplayTools::currentFrameIsMirrored()
{
    QQuickItem *mirror = m_film->findItem("toolTip", "Mirror the current frame", column());
    m_film->click(mirror);
    QVERIFY(m_film->frames().currentMirrored());
    QVERIFY(mirror->property("toggled").toBool());
    QTRY_COMPARE(m_film->frames().currentAction(), int(Zum::ActNoAction));
    m_film->click(mirror);
    QVERIFY(!m_film->frames().currentMirrored());
}

void TestDisplayTools::pictureIsTheLargestThing()
{
    m_film->frames().setDoubleDecker(false);
    m_film->window().resize(1024, 600);
    QVERIFY(m_film->settle());
    const auto area = [](const QQuickItem *item) {
        return item->width() * item->height();
    };
    const qreal picture = area(m_film->flicker());
    for (const char *id :
         {"topLine", "mainControlBox", "screenControls", "controlsPanesBox", "timelineBox", "statusBar"})
        QVERIFY2(area(m_film->item(id)) < picture,
                 qPrintable(QStringLiteral("%1: %2 to %3").arg(id).arg(area(m_film->item(id))).arg(picture)));
    m_film->window().resize(1280, 760);
}

QTEST_MAIN(TestDisplayTools)
#include "tst_displaytools.moc"
