#include "shared/VideoEffect.h"
#include "shared/WebcamGlobal.h"

#include <QColor>
#include <QSignalSpy>
#include <QTest>

namespace effect = morvane::effect;

namespace {

QVariantMap choice(const QVariant &value)
{
    return {{"name", "a choice"}, {"value", value}};
}

QVariantMap variable(const QString &name, const QVariant &selected, const QVariantList &choices = {})
{
    return {{"propname", name}, {"selected", selected}, {"prop", choices}};
}

QVariantMap entry(const QString &pattern, const QVariantList &variables)
{
    return {{"comment", "An effect"}, {"filter", pattern}, {"variables", variables}};
}

QVariantMap sharpen(const QString &selected = {})
{
    return entry("cas=strength=[strength]", {variable("strength", selected, {choice("1"), choice("100")})});
}

} // namespace

class TestVideoEffect : public QObject
{
    Q_OBJECT

private slots:
    void nameEndsAtTheFirstEqualsSign();
    void parsedIntoNameAndPairs();
    void emptyTextHasNoMap();
    void partThatIsNoPairIsLoggedAndLeftOut();
    void placeToBeFilledComesOutEmpty();
    void builtInTheOrderOfTheKeys();
    void lastKeyBeforeFilterLeavesAColon();
    void trailingColonOfATemplateIsDropped();
    void whatIsSelectedWins();
    void firstChoiceIsTheDefault();
    void numberOnAScaleOfGreysIsAColour();
    void colourGivesItsName();
    void entryWithoutAnything();
    void entryWithoutVariables();
    void entryWithoutTemplate();
    void entryWithAnEmptyName();
    void variableThatCannotBeRead_data();
    void variableThatCannotBeRead();
    void writingCleansAndPutsIntoForce();
    void emptyEffectIsNotApplied();
    void sameTextAgainSignalsNothing();
    void silentChangeIsToldLater();
    void withoutUpdateNothingIsStored();
    void currentEffectIsFoundAmongEntries();
    void readingTheCurrentEffectKeepsItsValues();
    void noCurrentEffectGivesAnEmptyMap();
    void valueOfTheCurrentEffect();
};

void TestVideoEffect::nameEndsAtTheFirstEqualsSign()
{
    QCOMPARE(effect::filterName("cas=strength=50"), "cas");
    QCOMPARE(effect::filterName("hflip"), "hflip");
    QCOMPARE(effect::filterName(""), "");
}

void TestVideoEffect::parsedIntoNameAndPairs()
{
    const QVariantMap map = effect::parse(" gblur =sigma=0.5:steps=1");
    const QVariantMap wanted{
        {"filter", " gblur =sigma=0.5:steps=1"}, {"filtername", "gblur"}, {"sigma", "0.5"}, {"steps", "1"}};
    QCOMPARE(map, wanted);
}

void TestVideoEffect::emptyTextHasNoMap()
{
    QCOMPARE(effect::parse(""), QVariantMap());
    QCOMPARE(effect::parse("=a=b"), QVariantMap());
}

void TestVideoEffect::partThatIsNoPairIsLoggedAndLeftOut()
{
    QTest::ignoreMessage(QtWarningMsg, "Too much values in:  b=2=3");
    QTest::ignoreMessage(QtWarningMsg, "Too much values in:  c");
    const QVariantMap map = effect::parse("x=a=1:b=2=3:c");
    QCOMPARE(map.keys(), (QStringList{"a", "filter", "filtername"}));
}

void TestVideoEffect::placeToBeFilledComesOutEmpty()
{
    const QVariantMap map = effect::parse("deflicker=mode=[mode]:size=4");
    QCOMPARE(map.value("mode"), QVariant(QString()));
    QCOMPARE(map.value("size"), QVariant("4"));
}

void TestVideoEffect::builtInTheOrderOfTheKeys()
{
    QCOMPARE(effect::build(effect::parse("gblur=steps=1:sigma=0.5")), "gblur=sigma=0.5:steps=1");
}

void TestVideoEffect::lastKeyBeforeFilterLeavesAColon()
{
    QCOMPARE(effect::build(effect::parse("x=blend=1:color=2")), "x=blend=1:color=2:");
    QCOMPARE(effect::build(effect::parse("x=blend=1:zone=2")), "x=blend=1:zone=2");
}

void TestVideoEffect::trailingColonOfATemplateIsDropped()
{
    QCOMPARE(effect::build(effect::parse("bilateral=sigmaS=3:sigmaR=4:")), "bilateral=sigmaR=4:sigmaS=3");
}

void TestVideoEffect::whatIsSelectedWins()
{
    QCOMPARE(effect::fromEntry(sharpen("57")).value("filter").toString(), "cas=strength=57");
}

void TestVideoEffect::firstChoiceIsTheDefault()
{
    const QVariantMap normalize =
        entry("normalize=smoothing=[smoothing]", {variable("smoothing", "", {choice("2"), choice("4")})});
    QCOMPARE(effect::fromEntry(normalize).value("filter").toString(), "normalize=smoothing=2");
    QCOMPARE(effect::fromEntry(entry("x=n=[n]", {variable("n", {}, {choice(7)})})).value("n").toString(),
             "7");
}

void TestVideoEffect::numberOnAScaleOfGreysIsAColour()
{
    QVariantMap black = variable("blackpt", "16");
    black.insert("control", effect::Grayscale);
    QCOMPARE(effect::fromEntry(entry("normalize=blackpt=#000000", {black})).value("blackpt").toString(),
             "#101010");
}

void TestVideoEffect::colourGivesItsName()
{
    const QVariantMap keyed = entry("chromakey=color=[color]", {variable("color", QColor(1, 2, 255))});
    QCOMPARE(effect::fromEntry(keyed).value("color").toString(), "#0102ff");
}

void TestVideoEffect::entryWithoutAnything()
{
    QTest::ignoreMessage(QtWarningMsg, "parseAndApplySingleVideoEffect: No data");
    QCOMPARE(effect::fromEntry({}), QVariantMap());
}

void TestVideoEffect::entryWithoutVariables()
{
    QTest::ignoreMessage(QtWarningMsg, "No values");
    QTest::ignoreMessage(QtWarningMsg, "Type: QString, exists: 1");
    const QVariantMap map = effect::fromEntry({{"filter", "gblur=sigma=1"}, {"variables", "none"}});
    QCOMPARE(map.value("filter").toString(), "gblur=sigma=1");
}

void TestVideoEffect::entryWithoutTemplate()
{
    QTest::ignoreMessage(QtWarningMsg, "No filter string. Return an empty map");
    QCOMPARE(effect::fromEntry({{"filter", 4}, {"variables", QVariantList()}}), QVariantMap());
}

void TestVideoEffect::entryWithAnEmptyName()
{
    QTest::ignoreMessage(QtWarningMsg, "Video filter name is empty. Cannot continue");
    QCOMPARE(effect::fromEntry(entry("=a=1", {})), QVariantMap());
}

void TestVideoEffect::variableThatCannotBeRead_data()
{
    QTest::addColumn<QVariantMap>("variable");
    QTest::addColumn<QString>("line");
    QTest::newRow("neither name nor selection")
        << QVariantMap{{"other", 1}} << "Type of 'propname' is (null), type of 'selected' is (null)";
    QTest::newRow("no choices") << variable("a", "") << "No props provided";
    QTest::newRow("choices that are no list")
        << QVariantMap{{"propname", "a"}, {"prop", 3}} << "We have props but cannot extract them. Type:int";
    QTest::newRow("a choice that is no map")
        << variable("a", "", {4}) << "Found first default value but its (int), not a Map as it should be";
    QTest::newRow("a choice without value") << variable("a", "", {QVariantMap{{"name", "n"}}})
                                            << "Found a first default item but it has no 'value'";
    QTest::newRow("a value of a strange kind")
        << variable("a", "", {choice(QVariantList{1})})
        << "Unsupported type of default value (QVariantList) passed to parseAndApplySingleVideoEffect method";
}

void TestVideoEffect::variableThatCannotBeRead()
{
    QFETCH(QVariantMap, variable);
    QFETCH(QString, line);
    if (line.contains("(null)"))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Type of 'propname' is .*"));
    else
        QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
    QTest::ignoreMessage(QtWarningMsg, "Wrong ret value from processFilterProperty");
    QCOMPARE(effect::fromEntry(entry("x=a=5", {variable})).value("filter").toString(), "x=a=5:");
}

void TestVideoEffect::writingCleansAndPutsIntoForce()
{
    WebcamGlobal global;
    QSignalSpy text(&global, &WebcamGlobal::videoEffectsStringChanged);
    QSignalSpy parsed(&global, &WebcamGlobal::videoEffectsStringParsedChanged);
    QSignalSpy applied(&global, &WebcamGlobal::applyPostProcessEffectsChanged);
    QSignalSpy dirty(&global, &WebcamGlobal::changed);
    global.setVideoEffectsString("normalize=blackpt=#101010:whitept=#ffffff");
    QCOMPARE(global.videoEffectsString(), "normalize=blackpt=101010:whitept=ffffff");
    QCOMPARE(global.videoEffectsStringParsed(), global.videoEffectsString());
    QVERIFY(global.applyPostProcessEffects());
    for (const QSignalSpy *spy : {&text, &parsed, &applied, &dirty})
        QCOMPARE(spy->count(), 1);
}

void TestVideoEffect::emptyEffectIsNotApplied()
{
    WebcamGlobal global;
    QVERIFY(!global.applyPostProcessEffects());
    global.setVideoEffectsString("gblur=sigma=1");
    global.setVideoEffectsString("");
    QVERIFY(!global.applyPostProcessEffects());
    QCOMPARE(global.videoEffectsStringParsed(), "");
}

void TestVideoEffect::sameTextAgainSignalsNothing()
{
    WebcamGlobal global;
    global.setVideoEffectsString("gblur=sigma=1");
    QSignalSpy text(&global, &WebcamGlobal::videoEffectsStringChanged);
    QSignalSpy dirty(&global, &WebcamGlobal::changed);
    global.setVideoEffectsString("gblur=sigma=1");
    QCOMPARE(text.count() + dirty.count(), 0);
}

void TestVideoEffect::silentChangeIsToldLater()
{
    WebcamGlobal global;
    QSignalSpy text(&global, &WebcamGlobal::videoEffectsStringChanged);
    QSignalSpy dirty(&global, &WebcamGlobal::changed);
    QSignalSpy parsed(&global, &WebcamGlobal::videoEffectsStringParsedChanged);
    global.parseAndApplySingleVideoEffect(sharpen("40"), false);
    QCOMPARE(global.videoEffectsString(), "cas=strength=40");
    QCOMPARE(text.count() + dirty.count() + parsed.count(), 0);
    QVERIFY(!global.applyPostProcessEffects());

    global.setVideoEffectsStringParsed();
    QCOMPARE(global.videoEffectsStringParsed(), "cas=strength=40");
    QVERIFY(global.applyPostProcessEffects());
    global.parseAndApplySingleVideoEffect(sharpen("40"));
    QCOMPARE(text.count(), 1);
    QCOMPARE(dirty.count(), 1);
}

void TestVideoEffect::withoutUpdateNothingIsStored()
{
    WebcamGlobal global;
    const QVariantMap map = global.parseAndApplySingleVideoEffect(sharpen("40"), true, false);
    QCOMPARE(map.value("strength").toString(), "40");
    QCOMPARE(global.videoEffectsString(), "");
}

void TestVideoEffect::currentEffectIsFoundAmongEntries()
{
    WebcamGlobal global;
    global.setVideoEffectsString("cas=strength=57");
    const QVariantList catalogue{entry("gblur=sigma=0.5", {}), sharpen()};
    const QVariantMap map = global.parseCurrentVideoEffect(catalogue);
    QCOMPARE(map.value("filtername").toString(), "cas");
    QCOMPARE(map.value("strength").toString(), "57");
}

void TestVideoEffect::readingTheCurrentEffectKeepsItsValues()
{
    WebcamGlobal global;
    global.setVideoEffectsString("cas=strength=57");
    QSignalSpy dirty(&global, &WebcamGlobal::changed);
    global.parseCurrentVideoEffect({sharpen("3")}, true);
    QCOMPARE(global.videoEffectsString(), "cas=strength=57");
    QCOMPARE(dirty.count(), 0);
}

void TestVideoEffect::noCurrentEffectGivesAnEmptyMap()
{
    WebcamGlobal global;
    QCOMPARE(global.parseCurrentVideoEffect({sharpen()}), QVariantMap());
    global.setVideoEffectsString("unknown=a=1");
    QCOMPARE(global.parseCurrentVideoEffect({sharpen()}), QVariantMap());
    QCOMPARE(global.videoEffectsString(), "unknown=a=1");
}

void TestVideoEffect::valueOfTheCurrentEffect()
{
    WebcamGlobal global;
    global.setVideoEffectsString("gblur=sigma=0.5:steps=3");
    QCOMPARE(global.videoEffectValue("sigma", QMetaType::Double), QVariant(0.5));
    QCOMPARE(global.videoEffectValue("steps", QMetaType::Int), QVariant(3));
    QCOMPARE(global.videoEffectValue("steps", QMetaType::QString), QVariant("3"));
    QCOMPARE(global.videoEffectValue("planes", QMetaType::Int), QVariant());
}

QTEST_GUILESS_MAIN(TestVideoEffect)
#include "tst_videoeffect.moc"
