// The filters' dialog and the histogram's pane in the window.

#include "support/ShellWindow.h"

#include <memory>
#include <QImage>
#include <QQmlComponent>
#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestFilterScreens : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void filtersOpenFromTheTools();
    void filterIsStoredWhenItsSliderRests_data();
    void filterIsStoredWhenItsSliderRests();
    void filterAtItsDefaultLeavesNoKey_data();
    void filterAtItsDefaultLeavesNoKey();
    void closingKeepsWhatASliderWasMovedTo();
    void previewSwitchesProcessing();
    void processingIsToldWhilePreviewed();
    void keyColorsAreTheNamedOnes();
    void similarityOfNothingIsOff();
    void pickedColorBecomesTheKey();
    void chosenBackgroundIsCopiedAndShown();
    void backgroundFollowsItsState();
    void settingsOfAProjectAreShown();
    void histogramShowsItsTallestChannelAtTheBack();
    void histogramDrawsItsBars();
    void histogramTakesDataOnlyWhileRunning();
    void histogramHeightIsShownInPerCent();
    void histogramChannelsAreRemembered();

private:
    void openFilters();
    /// A part that is shown; null for a hidden one.
    QQuickItem *part(const QString &name) const
    {
        return m_shell->findItem("objectName", name);
    }
    bool isShown(const QString &name) const
    {
        return part(name) != nullptr;
    }
    void step(const QString &slider, int key);
    std::unique_ptr<QQuickItem> makeHistogram();
    QVariant setting(const QString &key) const
    {
        return m_shell->global().postProcessSettings().value(key);
    }
    /// Shown or not.
    static QQuickItem *child(QQuickItem *item, const QString &name)
    {
        if (item->objectName() == name)
            return item;
        const QList<QQuickItem *> children = item->childItems();
        for (QQuickItem *below : children) {
            if (QQuickItem *found = child(below, name))
                return found;
        }
        return nullptr;
    }

    std::unique_ptr<ShellWindow> m_shell;
};

void TestFilterScreens::init()
{
    m_shell = std::make_unique<ShellWindow>();
    QVERIFY(m_shell->createProject());
}

void TestFilterScreens::cleanup()
{
    const QStringList warnings = m_shell->sceneWarnings();
    m_shell.reset();
    QCOMPARE(warnings, QStringList());
}

void TestFilterScreens::openFilters()
{
    m_shell->window().setQmlDialogUrl(u"FiltersDialog.qml"_s);
    QTRY_VERIFY(part("filtersPreview"));
    QVERIFY(m_shell->settle());
}

/// One step of a slider by the keyboard.
void TestFilterScreens::step(const QString &slider, int key)
{
    QQuickItem *item = part(slider);
    QVERIFY(item);
    item->forceActiveFocus(Qt::TabFocusReason);
    m_shell->press(key);
}

void TestFilterScreens::filtersOpenFromTheTools()
{
    m_shell->click(part("filtersButton"));
    QTRY_VERIFY(part("filtersPreview"));
    QCOMPARE(m_shell->window().qmlDialogUrl(), u"FiltersDialog.qml"_s);
    m_shell->click(part("closeFilters"));
    QTRY_COMPARE(m_shell->window().qmlDialogUrl(), QString());
}

void TestFilterScreens::filterIsStoredWhenItsSliderRests_data()
{
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("standard");
    QTest::newRow("contrast") << 40.0 << 0;
    QTest::newRow("denoise") << 100.0 << 0;
    QTest::newRow("saturation") << 100.0 << 50;
}

void TestFilterScreens::filterIsStoredWhenItsSliderRests()
{
    QFETCH(double, maximum);
    QFETCH(int, standard);
    openFilters();
    const QString key = QTest::currentDataTag();
    const QString slider = key + "Slider";
    QQuickItem *item = part(slider);
    QCOMPARE(item->property("minimum").toDouble(), 0.0);
    QCOMPARE(item->property("maximum").toDouble(), maximum);
    QCOMPARE(item->property("value").toInt(), standard);
    QSignalSpy changes(&m_shell->global(), &WebcamGlobal::postProcessSettingsChanged);
    step(slider, Qt::Key_Right);
    step(slider, Qt::Key_Right);
    QCOMPARE(changes.count(), 0);
    QTRY_COMPARE(setting(key).toInt(), standard + 2);
    QCOMPARE(changes.count(), 1);
}

void TestFilterScreens::filterAtItsDefaultLeavesNoKey_data()
{
    QTest::addColumn<int>("set");
    QTest::newRow("contrast") << 30;
    QTest::newRow("denoise") << 7;
    QTest::newRow("saturation") << 51;
}

void TestFilterScreens::filterAtItsDefaultLeavesNoKey()
{
    QFETCH(int, set);
    const QString key = QTest::currentDataTag();
    m_shell->global().setPostProcessSetting(key, set);
    QTRY_VERIFY(m_shell->global().hasPostProcessSettings());
    openFilters();
    QCOMPARE(part(key + "Slider")->property("value").toInt(), set);
    step(key + "Slider", Qt::Key_Backspace);
    QTRY_VERIFY(m_shell->global().postProcessSettings().isEmpty());
    QTRY_VERIFY(!m_shell->global().hasPostProcessSettings());
}

void TestFilterScreens::closingKeepsWhatASliderWasMovedTo()
{
    openFilters();
    step("contrastSlider", Qt::Key_Right);
    emit m_shell->global().dialogClosing();
    QTRY_COMPARE(setting("contrast").toInt(), 1);
}

void TestFilterScreens::previewSwitchesProcessing()
{
    WebcamGlobal &global = m_shell->global();
    openFilters();
    global.setEyedropperOn(true);
    global.setChromakeyOn(true);
    m_shell->click(part("filtersPreview"));
    QCOMPARE(global.postProcessing(), int(Zum::NonRealtimeProcessing));
    QVERIFY(!global.eyedropperOn());
    QVERIFY(!global.chromakeyOn());
    m_shell->click(part("filtersPreview"));
    QCOMPARE(global.postProcessing(), int(Zum::NoProcessing));
}

void TestFilterScreens::processingIsToldWhilePreviewed()
{
    openFilters();
    m_shell->global().setCachingRightNow(true);
    QVERIFY(!isShown("processing"));
    m_shell->global().setPostProcessing(Zum::NonRealtimeProcessing);
    QVERIFY(isShown("processing"));
    QCOMPARE(part("processing")->property("text").toString(), u"Processing, please wait..."_s);
    m_shell->global().setCachingRightNow(false);
    QVERIFY(!isShown("processing"));
}

void TestFilterScreens::keyColorsAreTheNamedOnes()
{
    openFilters();
    step("similaritySlider", Qt::Key_Right);
    QTRY_COMPARE(setting("chromakey").toString(), u"1;10;#00ff01"_s);
    const QVariantList colors = m_shell->global().chromakeyColors();
    for (const QVariant &color : colors) {
        const QString name = color.toMap().value(u"name"_s).toString();
        QQuickItem *swatch = m_shell->findItem("toolTip", "Key color " + name);
        QVERIFY2(swatch, qPrintable(name));
        QMetaObject::invokeMethod(swatch, "clicked");
        QCOMPARE(setting("chromakey").toString(), "1;10;" + name);
    }
}

void TestFilterScreens::similarityOfNothingIsOff()
{
    m_shell->global().setPostProcessSetting(u"chromakey"_s, u"25;40;#fe4f00"_s);
    openFilters();
    QCOMPARE(part("similaritySlider")->property("value").toInt(), 25);
    QCOMPARE(part("smoothnessSlider")->property("value").toInt(), 40);
    step("similaritySlider", Qt::Key_Home);
    step("similaritySlider", Qt::Key_Backspace);
    QTRY_VERIFY(!m_shell->global().postProcessSettings().contains(u"chromakey"_s));
    // What was chosen is still there when it is switched on again.
    step("similaritySlider", Qt::Key_Right);
    QTRY_COMPARE(setting("chromakey").toString(), u"1;40;#fe4f00"_s);
}

void TestFilterScreens::pickedColorBecomesTheKey()
{
    m_shell->global().setPostProcessSetting(u"chromakey"_s, u"25;40;#fe4f00"_s);
    openFilters();
    QVERIFY(!isShown("pickedColor"));
    m_shell->global().setEyedropperColor(QColor("#123456"));
    QVERIFY(isShown("pickedColor"));
    QMetaObject::invokeMethod(part("pickedColor"), "clicked");
    QCOMPARE(setting("chromakey").toString(), u"25;40;#123456"_s);
}

void TestFilterScreens::chosenBackgroundIsCopiedAndShown()
{
    const QString path = m_shell->folder() + "/hills.png";
    QImage picture(8, 6, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QVERIFY(picture.save(path));
    openFilters();
    m_shell->dialogs().pathAnswers = {path};
    QMetaObject::invokeMethod(part("chooseBackground"), "clicked");
    QCOMPARE(m_shell->global().backgroundImage(), u"hills.png"_s);
    QVERIFY(QFile::exists(m_shell->controllers().paths.tree().backgroundDirPath + "hills.png"));
    QTRY_COMPARE(setting("background").toString(), u"true;1;hills.png;false"_s);
    QCOMPARE(part("backgroundName")->property("text").toString(), u"hills.png"_s);
    QMetaObject::invokeMethod(part("clearBackground"), "clicked");
    QTRY_VERIFY(m_shell->global().postProcessSettings().isEmpty());
    // Nothing chosen changes nothing.
    QMetaObject::invokeMethod(part("chooseBackground"), "clicked");
    QCOMPARE(m_shell->global().backgroundImage(), QString());
}

void TestFilterScreens::backgroundFollowsItsState()
{
    WebcamGlobal &global = m_shell->global();
    global.setBackgroundImage(u"hills.png"_s);
    global.setBackgroundPreviewScale(0.75);
    global.setBackgroundImageIsReference(true);
    QTRY_COMPARE(setting("background").toString(), u"true;0.75;hills.png;true"_s);
    QVERIFY(global.hasPostProcessSettings());
    openFilters();
    QCOMPARE(part("backgroundScaleSlider")->property("value").toInt(), 75);
    global.setBackgroundOn(false);
    QTRY_VERIFY(!global.postProcessSettings().contains(u"background"_s));
    step("backgroundScaleSlider", Qt::Key_Right);
    QCOMPARE(global.backgroundPreviewScale(), 0.75);
}

void TestFilterScreens::settingsOfAProjectAreShown()
{
    m_shell->global().setPostProcessSettings(
        {{u"contrast"_s, 4.5}, {u"saturation"_s, u"much"_s}, {u"chromakey"_s, u"a;b;#00afff"_s}});
    openFilters();
    QCOMPARE(part("contrastSlider")->property("value").toDouble(), 4.5);
    QCOMPARE(part("saturationSlider")->property("value").toDouble(), 50.0);
    QCOMPARE(part("similaritySlider")->property("value").toDouble(), 0.0);
}

std::unique_ptr<QQuickItem> TestFilterScreens::makeHistogram()
{
    QQmlComponent component(m_shell->window().engine(), QUrl(u"qrc:/HistogramPane.qml"_s));
    std::unique_ptr<QQuickItem> pane(
        qobject_cast<QQuickItem *>(component.create(m_shell->window().rootContext())));
    if (pane)
        pane->setParentItem(&m_shell->root());
    return pane;
}

void TestFilterScreens::histogramShowsItsTallestChannelAtTheBack()
{
    const std::unique_ptr<QQuickItem> pane = makeHistogram();
    QVERIFY(pane);
    const auto withPeak = [](double peak) {
        QVariantList list(257, 0.0);
        list[256] = peak;
        list[0] = peak;
        return list;
    };
    pane->setProperty("histogramDataY", withPeak(0.2));
    pane->setProperty("histogramDataR", withPeak(0.5));
    pane->setProperty("histogramDataG", withPeak(0.1));
    pane->setProperty("histogramDataB", withPeak(0.3));
    QStringList backToFront{u"histogramY"_s, u"histogramR"_s, u"histogramG"_s, u"histogramB"_s};
    std::sort(backToFront.begin(), backToFront.end(), [&](const QString &a, const QString &b) {
        return child(pane.get(), a)->z() < child(pane.get(), b)->z();
    });
    QCOMPARE(backToFront, QStringList({u"histogramR"_s, u"histogramB"_s, u"histogramY"_s, u"histogramG"_s}));
}

void TestFilterScreens::histogramDrawsItsBars()
{
    const std::unique_ptr<QQuickItem> pane = makeHistogram();
    QVERIFY(pane);
    pane->setZ(5000);
    pane->setWidth(256 + 200);
    QQuickItem *red = child(pane.get(), u"histogramR"_s);
    const auto barColor = [&](qreal alongWidth, qreal alongHeight) {
        const QPointF place =
            red->mapToScene(QPointF(red->width() * alongWidth, red->height() * alongHeight));
        const QImage shot = m_shell->window().grabWindow();
        return shot.pixelColor((place * shot.width() / m_shell->window().width()).toPoint());
    };
    // Full bars in the left half, half of that in the third quarter, none in the last.
    QVariantList list;
    for (int i = 0; i < 256; ++i)
        list.append(i < 128 ? 0.01 : i < 192 ? 0.005 : 0.0);
    list.append(0.01);
    pane->setProperty("histogramDataR", list);
    const auto isRed = [](const QColor &color) {
        return color.red() > color.blue() + 60;
    };
    QTRY_VERIFY(isRed(barColor(0.25, 0.1)));
    QVERIFY(isRed(barColor(0.6, 0.8)));
    QVERIFY(!isRed(barColor(0.6, 0.3)));
    QVERIFY(!isRed(barColor(0.9, 0.95)));
    pane->setProperty("maxCoeff", 0.5);
    QTRY_VERIFY(isRed(barColor(0.6, 0.1)));
    pane->setProperty("running", false);
    QTRY_VERIFY(!isRed(barColor(0.25, 0.9)));
}

void TestFilterScreens::histogramTakesDataOnlyWhileRunning()
{
    const std::unique_ptr<QQuickItem> pane = makeHistogram();
    QVERIFY(pane);
    const QQuickItem *red = child(pane.get(), "histogramR");
    const auto data = [red] {
        return red->property("histogramData").value<QList<qreal>>();
    };
    pane->setProperty("histogramDataR", QVariantList{0.5, 0.5});
    QCOMPARE(data(), QList<qreal>({0.5, 0.5}));
    pane->setProperty("running", false);
    pane->setProperty("histogramDataR", QVariantList{0.25, 0.5});
    QCOMPARE(data(), QList<qreal>({0.5, 0.5}));
    pane->setProperty("running", true);
    QCOMPARE(data(), QList<qreal>({0.25, 0.5}));
}

void TestFilterScreens::histogramHeightIsShownInPerCent()
{
    const std::unique_ptr<QQuickItem> pane = makeHistogram();
    QVERIFY(pane);
    QQuickItem *slider = child(pane.get(), "histogramHeight");
    QCOMPARE(slider->property("value").toInt(), 100);
    pane->setProperty("maxCoeff", 0.3);
    QCOMPARE(slider->property("value").toInt(), 170);
    QMetaObject::invokeMethod(slider, "moved", Q_ARG(qreal, 195));
    QCOMPARE(pane->property("maxCoeff").toDouble(), 0.05);
    QCOMPARE(child(pane.get(), "histogramB")->property("maxCoeff").toDouble(), 0.05);
}

void TestFilterScreens::histogramChannelsAreRemembered()
{
    {
        const std::unique_ptr<QQuickItem> pane = makeHistogram();
        QVERIFY(pane);
        QVERIFY(child(pane.get(), "channelG")->property("toggled").toBool());
        QMetaObject::invokeMethod(child(pane.get(), "channelG"), "clicked");
        QVERIFY(!child(pane.get(), "histogramG")->isVisible());
        QCOMPARE(m_shell->window().getSetting(u"histogramGChannelOn"_s, true).toBool(), false);
    }
    const std::unique_ptr<QQuickItem> pane = makeHistogram();
    QVERIFY(!child(pane.get(), "histogramG")->isVisible());
    QVERIFY(child(pane.get(), "histogramR")->isVisible());
}

QTEST_MAIN(TestFilterScreens)
#include "tst_filterscreens.moc"
