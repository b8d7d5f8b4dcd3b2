#include "support/ShownItems.h"
#include "ui/render/RenderTest.h"

using namespace Qt::StringLiterals;

/// The dialog of the video effects: what it offers, and that each value reaches the project as it is chosen
/// and comes back from there.
class TestVideoEffectsDialog : public RenderTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void offersTheCatalogue();
    void choosingTakesTheDefaults_data();
    void choosingTakesTheDefaults();
    void noEffectRemovesIt();
    void controlOfEachValue_data();
    void controlOfEachValue();
    void sliderChangesItsValue_data();
    void sliderChangesItsValue();
    void greyIsKeptAsAColour();
    void listChangesItsValue();
    void otherValuesStayAsTheyAre();
    void valuesComeBackFromTheProject();
    void listHasNoMoreFramesThanTheFilm();
    void valueOutsideOfTheListShowsAsItIs();
    void previewListsTheValues();
    void effectLeftIsFoundAgain();
    void unknownEffectIsNoneOfTheCatalogue();
    void choicesMarkTheProjectChanged();
    void openingChangesNothing_data();
    void openingChangesNothing();
    void keyboardChoosesEffectAndValues();
    void everyTextIsWhole_data();
    void everyTextIsWhole();

private:
    void open(const QString &effect = {});
    void choose(int index);
    QQuickItem *sliderOf(const QString &key) const;
    QQuickItem *dialog() const
    {
        return w->shell().evaluate(u"dialog.item"_s).value<QQuickItem *>();
    }
};

void TestVideoEffectsDialog::initTestCase()
{
    RenderWindow::Options options;
    options.frames = 20;
    w = std::make_unique<RenderWindow>(options);
}

void TestVideoEffectsDialog::init()
{
    w->global().setVideoEffectsString({});
}

void TestVideoEffectsDialog::open(const QString &effect)
{
    w->global().setVideoEffectsString(effect);
    w->click("openEffects");
    QTRY_VERIFY(dialog());
    QVERIFY(w->shell().settle());
}

void TestVideoEffectsDialog::choose(int index)
{
    w->click(w->choice("effects", index));
}

QQuickItem *TestVideoEffectsDialog::sliderOf(const QString &key) const
{
    QQuickItem *row = w->part("effect_" + key);
    return row == nullptr ? nullptr : w->shell().findItem("objectName", "effectSlider", row);
}

void TestVideoEffectsDialog::offersTheCatalogue()
{
    open();
    QStringList offered;
    for (int i = 0; QQuickItem *button = w->choice("effects", i); ++i)
        offered.append(button->property("text").toString());
    QCOMPARE(offered, (QStringList{"No Effect", "Normalize", "Colorize", "Antiflicker", "Sharpen",
                                   "Average Blur", "Gaussian Blur", "Spatial Smoothing"}));
    QVERIFY(w->choice("effects", 0)->property("toggled").toBool());
}

void TestVideoEffectsDialog::choosingTakesTheDefaults_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("effect");
    QTest::newRow("Normalize")
        << 1
        << "normalize=blackpt=000000:independence=1.0:smoothing=2:strength=1.0:whitept="
           "ffffff";
    QTest::newRow("Colorize") << 2 << "colorize=hue=200:lightness=0.5:mix=1.0:saturation=0.5";
    QTest::newRow("Antiflicker") << 3 << "deflicker=mode=am:size=2";
    QTest::newRow("Sharpen") << 4 << "cas=strength=1";
    QTest::newRow("Average Blur") << 5 << "avgblur=sizeX=1";
    QTest::newRow("Gaussian Blur") << 6 << "gblur=sigma=0.5:steps=1";
    QTest::newRow("Spatial Smoothing") << 7 << "bilateral=sigmaR=0:sigmaS=0";
}

void TestVideoEffectsDialog::choosingTakesTheDefaults()
{
    QFETCH(int, index);
    QFETCH(QString, effect);
    open();
    choose(index);
    QCOMPARE(w->global().videoEffectsString(), effect);
    QCOMPARE(w->global().videoEffectsStringParsed(), effect);
    QVERIFY(w->global().applyPostProcessEffects());
    QVERIFY(w->choice("effects", index)->property("toggled").toBool());
    QCOMPARE(w->global().currentFilterHumanReadableName(), QTest::currentDataTag());
}

void TestVideoEffectsDialog::noEffectRemovesIt()
{
    open("cas=strength=40");
    choose(0);
    QCOMPARE(w->global().videoEffectsString(), QString());
    QVERIFY(!w->global().applyPostProcessEffects());
    QVERIFY(!w->part("effect_strength"));
    QCOMPARE(w->global().currentFilterHumanReadableName(), "No Effect");
}

void TestVideoEffectsDialog::controlOfEachValue_data()
{
    QTest::addColumn<QString>("effect");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("slider");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<bool>("color");
    QTest::newRow("a grey") << "normalize=blackpt=000000"
                            << "blackpt" << true << 0.0 << 255.0 << true;
    QTest::newRow("a hue") << "colorize=hue=200"
                           << "hue" << true << 0.0 << 360.0 << true;
    QTest::newRow("strength") << "cas=strength=1"
                              << "strength" << true << 1.0 << 100.0 << false;
    QTest::newRow("radius") << "avgblur=sizeX=1"
                            << "sizeX" << true << 1.0 << 50.0 << false;
    QTest::newRow("steps") << "gblur=sigma=0.5"
                           << "steps" << true << 1.0 << 10.0 << false;
    QTest::newRow("spatial weight") << "bilateral=sigmaR=0"
                                    << "sigmaS" << true << 0.0 << 1000.0 << false;
    QTest::newRow("range weight") << "bilateral=sigmaR=0"
                                  << "sigmaR" << true << 0.0 << 100.0 << false;
    QTest::newRow("frames") << "deflicker=size=2"
                            << "size" << false << 0.0 << 0.0 << false;
    QTest::newRow("mode") << "deflicker=size=2"
                          << "mode" << false << 0.0 << 0.0 << false;
    QTest::newRow("tenths") << "gblur=sigma=0.5"
                            << "sigma" << false << 0.0 << 0.0 << false;
}

void TestVideoEffectsDialog::controlOfEachValue()
{
    QFETCH(QString, effect);
    QFETCH(QString, key);
    QFETCH(bool, slider);
    open(effect);
    QQuickItem *row = w->part("effect_" + key);
    QVERIFY(row);
    QVERIFY(!row->property("toolTip").toString().isEmpty());
    QCOMPARE(sliderOf(key) != nullptr, slider);
    QTEST(w->shell().findItem("objectName", "effectColor", row) != nullptr, "color");
    if (!slider)
        return;
    QTEST(sliderOf(key)->property("minimum").toDouble(), "minimum");
    QTEST(sliderOf(key)->property("maximum").toDouble(), "maximum");
}

void TestVideoEffectsDialog::sliderChangesItsValue_data()
{
    QTest::addColumn<QString>("effect");
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("changed");
    QTest::newRow("strength") << "cas=strength=1"
                              << "strength" << 60 << "cas=strength=60";
    QTest::newRow("radius") << "avgblur=sizeX=1"
                            << "sizeX" << 9 << "avgblur=sizeX=9";
    QTest::newRow("hue") << "colorize=hue=200:lightness=0.5:mix=1.0:saturation=0.5"
                         << "hue" << 0 << "colorize=hue=0:lightness=0.5:mix=1.0:saturation=0.5";
    QTest::newRow("weight") << "bilateral=sigmaR=5:sigmaS=5"
                            << "sigmaS" << 1000 << "bilateral=sigmaR=5:sigmaS=1000";
    QTest::newRow("grey")
        << "normalize=blackpt=000000:whitept=ffffff"
        << "blackpt" << 16
        << "normalize=blackpt=101010:independence=1.0:smoothing=2:strength=1.0:whitept=ffffff";
}

void TestVideoEffectsDialog::sliderChangesItsValue()
{
    QFETCH(QString, effect);
    QFETCH(QString, key);
    QFETCH(int, value);
    QFETCH(QString, changed);
    open(effect);
    QVERIFY(QMetaObject::invokeMethod(sliderOf(key), "moved", Q_ARG(double, static_cast<double>(value))));
    QCOMPARE(w->global().videoEffectsString(), changed);
    QCOMPARE(sliderOf(key)->property("value").toInt(), value);
}

void TestVideoEffectsDialog::greyIsKeptAsAColour()
{
    open();
    choose(1);
    for (const int level : {0, 1, 127, 128, 254, 255}) {
        QMetaObject::invokeMethod(sliderOf("whitept"), "moved", Q_ARG(double, static_cast<double>(level)));
        const QString hex = QString::number(level, 16).rightJustified(2, '0');
        QVERIFY(w->global().videoEffectsString().endsWith("whitept=" + hex + hex + hex));
        QCOMPARE(sliderOf("whitept")->property("value").toInt(), level);
    }
}

void TestVideoEffectsDialog::listChangesItsValue()
{
    open("deflicker=mode=am:size=2");
    w->clickText("Arithmetic mean");
    w->click(w->entry("Median"));
    QCOMPARE(w->global().videoEffectsString(), "deflicker=mode=median:size=2");
    QVERIFY(w->text("Median"));
    QVERIFY(!w->text("Arithmetic mean"));
    w->clickText("Min");
    w->click(w->entry("16"));
    QCOMPARE(w->global().videoEffectsString(), "deflicker=mode=median:size=16");
}

void TestVideoEffectsDialog::otherValuesStayAsTheyAre()
{
    const QString before =
        "normalize=blackpt=101010:independence=0.3:smoothing=8:strength=0.7:whitept=c0c0c0";
    open(before);
    QMetaObject::invokeMethod(sliderOf("blackpt"), "moved", Q_ARG(double, 32.0));
    QCOMPARE(w->global().videoEffectsString(), QString(before).replace("101010", "202020"));
}

void TestVideoEffectsDialog::valuesComeBackFromTheProject()
{
    open("normalize=blackpt=101010:independence=0.3:smoothing=8:strength=0.7:whitept=c0c0c0");
    QCOMPARE(sliderOf("blackpt")->property("value").toInt(), 16);
    QCOMPARE(sliderOf("whitept")->property("value").toInt(), 192);
    for (const char *key : {"smoothing=8", "independence=0.3", "strength=0.7"}) {
        const QString part = "effect_" + QString(key).section('=', 0, 0);
        QVERIFY2(w->shell().findItem("text", QString(key).section('=', 1), w->part(part)), key);
    }
}

void TestVideoEffectsDialog::listHasNoMoreFramesThanTheFilm()
{
    open("deflicker=mode=am:size=2");
    w->clickText("Min");
    for (const char *offered : {"4", "8", "16", "Max"})
        QVERIFY2(w->entry(offered), offered);
    for (const char *tooMany : {"32", "64"})
        QVERIFY2(!w->entry(tooMany), tooMany);
}

void TestVideoEffectsDialog::valueOutsideOfTheListShowsAsItIs()
{
    open("deflicker=mode=am:size=5");
    QVERIFY(w->shell().findItem("text", "5", w->part("effect_size")));
    QCOMPARE(w->global().videoEffectsString(), "deflicker=mode=am:size=5");
}

void TestVideoEffectsDialog::previewListsTheValues()
{
    open("deflicker=mode=am:size=8");
    QCOMPARE(w->textOf("effectPreview"), "mode: am, size: 8");
    QCOMPARE(dialog()->property("previewModel").toStringList(), (QStringList{"mode", "size"}));
    choose(0);
    QVERIFY(!w->part("effectPreview"));
}

void TestVideoEffectsDialog::effectLeftIsFoundAgain()
{
    open("cas=strength=40");
    choose(5);
    choose(4);
    QCOMPARE(w->global().videoEffectsString(), "cas=strength=40");
}

void TestVideoEffectsDialog::unknownEffectIsNoneOfTheCatalogue()
{
    open("hue=s=0");
    for (int i = 0; QQuickItem *button = w->choice("effects", i); ++i)
        QVERIFY(!button->property("toggled").toBool());
    QCOMPARE(w->global().videoEffectsString(), "hue=s=0");
    choose(0);
    QCOMPARE(w->global().videoEffectsString(), QString());
}

void TestVideoEffectsDialog::choicesMarkTheProjectChanged()
{
    open();
    w->global().setProjectChanged(false);
    choose(4);
    QTRY_VERIFY(w->global().projectChanged());
}

void TestVideoEffectsDialog::openingChangesNothing_data()
{
    QTest::addColumn<QString>("effect");
    QTest::newRow("none") << "";
    QTest::newRow("whole")
        << "normalize=blackpt=101010:independence=0.3:smoothing=8:strength=0.7:whitept=c0c0c0";
    QTest::newRow("out of its limits") << "cas=strength=400";
    QTest::newRow("unknown") << "hue=s=0";
}

void TestVideoEffectsDialog::openingChangesNothing()
{
    QFETCH(QString, effect);
    w->global().setVideoEffectsString(effect);
    w->global().setProjectChanged(false);
    w->click("openEffects");
    QTRY_VERIFY(dialog());
    QCOMPARE(w->global().videoEffectsString(), effect);
    QVERIFY(!w->global().projectChanged());
}

void TestVideoEffectsDialog::keyboardChoosesEffectAndValues()
{
    open();
    w->part("effects")->forceActiveFocus(Qt::TabFocusReason);
    for (int i = 0; i < 4; ++i)
        w->shell().press(Qt::Key_Right);
    QCOMPARE(w->global().videoEffectsString(), "cas=strength=1");
    w->shell().press(Qt::Key_Tab);
    w->shell().press(Qt::Key_Right);
    QCOMPARE(w->global().videoEffectsString(), "cas=strength=2");
    w->shell().press(Qt::Key_Escape);
    QCOMPARE(w->dialogFile(), QString());
}

void TestVideoEffectsDialog::everyTextIsWhole_data()
{
    QTest::addColumn<QString>("effect");
    for (const char *effect : {"normalize", "colorize", "deflicker", "cas", "avgblur", "gblur", "bilateral"})
        QTest::newRow(effect) << effect + u"=a=1"_s;
}

void TestVideoEffectsDialog::everyTextIsWhole()
{
    QFETCH(QString, effect);
    open(effect);
    QCOMPARE(shownItems::textsOutside(dialog()), QStringList());
    w->keepPicture("effect_" + effect.section('=', 0, 0));
}

QTEST_MAIN(TestVideoEffectsDialog)
#include "tst_videoeffectsdialog.moc"
