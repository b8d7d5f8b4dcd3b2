#include "jobs/render/EffectValues.h"

#include <QTest>

using effectvalues::Record;

class TestEffectValues : public QObject
{
    Q_OBJECT

private slots:
    void valuesComeIntoTheFiltersRange_data();
    void valuesComeIntoTheFiltersRange();
    void emptyEffectStaysEmpty();
    void effectWithoutRecordsPassesUnchanged();
    void missingKeysLeaveColorizeAsItIs();
    void colourGetsItsPrefix();
    void textThatIsNoEffect();
    void effectOfAnotherFilter();
    void valueThatIsNoNumberStays();
    void wrongInputRange();
    void wrongOutputRange();
};

void TestEffectValues::valuesComeIntoTheFiltersRange_data()
{
    QTest::addColumn<QString>("effect");
    QTest::addColumn<QString>("adapted");
    QTest::newRow("lowest sharpness is raised") << "cas=strength=1"
                                                << "cas=strength=0.1";
    QTest::newRow("highest sharpness") << "cas=strength=100"
                                       << "cas=strength=0.9";
    QTest::newRow("sharpness beyond the control") << "cas=strength=5000"
                                                  << "cas=strength=0.9";
    QTest::newRow("middle sharpness") << "cas=strength=50"
                                      << "cas=strength=0.45";
    QTest::newRow("largest spatial weight is scaled") << "bilateral=sigmaR=100:sigmaS=1000"
                                                      << "bilateral=sigmaR=1:sigmaS=51.2";
    QTest::newRow("no weight") << "bilateral=sigmaR=0:sigmaS=0"
                               << "bilateral=sigmaR=0:sigmaS=0";
    QTest::newRow("decimals are cut") << "bilateral=sigmaR=33.339:sigmaS=1"
                                      << "bilateral=sigmaR=0.33:sigmaS=0.051";
    QTest::newRow("similarity") << "chromakey=blend=50:color=00ff00:similarity=0"
                                << "chromakey=blend=0.5:color=0x00ff00:similarity=0.01";
}

void TestEffectValues::valuesComeIntoTheFiltersRange()
{
    QFETCH(QString, effect);
    QTEST(effectvalues::adapted(effect), "adapted");
}

void TestEffectValues::emptyEffectStaysEmpty()
{
    QCOMPARE(effectvalues::adapted(""), "");
}

void TestEffectValues::effectWithoutRecordsPassesUnchanged()
{
    QCOMPARE(effectvalues::adapted("deflicker=mode=am:size=129"), "deflicker=mode=am:size=129");
    QCOMPARE(effectvalues::adapted("gblur=steps=1:sigma=0.5"), "gblur=steps=1:sigma=0.5");
}

void TestEffectValues::missingKeysLeaveColorizeAsItIs()
{
    const QString text = "colorize=hue=200:lightness=0.5:mix=1.0:saturation=0.5";
    for (const char *key : {"similarity", "blend", "color"})
        QTest::ignoreMessage(QtDebugMsg,
                             qPrintable(QString("boundEffectValue: filter property %1 not found").arg(key)));
    QTest::ignoreMessage(QtDebugMsg, qPrintable("Filter to be passed to the renderer: " + text));
    QCOMPARE(effectvalues::adapted(text), text);
}

void TestEffectValues::colourGetsItsPrefix()
{
    QCOMPARE(effectvalues::adapted("colorkey=color=0102ff:zone=1"), "colorkey=color=0x0102ff:zone=1");
}

void TestEffectValues::textThatIsNoEffect()
{
    QTest::ignoreMessage(QtWarningMsg, "boundEffectValue: 'filtername' property not found");
    QCOMPARE(effectvalues::boundEffectValue("", "cas", effectvalues::recordsOf("cas")), "");
}

void TestEffectValues::effectOfAnotherFilter()
{
    QTest::ignoreMessage(QtWarningMsg, "boundEffectValue: filter 'cas' not found");
    QCOMPARE(effectvalues::boundEffectValue("gblur=sigma=1", "cas", effectvalues::recordsOf("cas")), "");
}

void TestEffectValues::valueThatIsNoNumberStays()
{
    for (const QString value : {"much", "nan", "inf"}) {
        QTest::ignoreMessage(QtWarningMsg, "boundEffectValue: filter property strength is not a number");
        QCOMPARE(effectvalues::adapted("cas=strength=" + value), "cas=strength=" + value);
    }
}

void TestEffectValues::wrongInputRange()
{
    const Record record{"strength", Record::Range{0, 1, 5, 5, -1}, {}, {}};
    QTest::ignoreMessage(QtWarningMsg, "boundEffectValue: wrong inpMin or inpMax values set");
    QCOMPARE(effectvalues::boundEffectValue("cas=strength=1", "cas", {record}), "");
}

void TestEffectValues::wrongOutputRange()
{
    const Record record{"strength", Record::Range{1, 1, 0, 5, -1}, {}, {}};
    QTest::ignoreMessage(QtWarningMsg, "boundEffectValue: wrong outMin or outMax values set");
    QCOMPARE(effectvalues::boundEffectValue("cas=strength=1", "cas", {record}), "");
}

QTEST_GUILESS_MAIN(TestEffectValues)
#include "tst_effectvalues.moc"
