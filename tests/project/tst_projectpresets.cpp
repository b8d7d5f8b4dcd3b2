#include "project/ProjectPresetList.h"

#include <QTest>

/// The frame sizes that the preset dialog offers.
class TestProjectPresets : public QObject
{
    Q_OBJECT

private slots:
    void thereIsOneForEachProportionRateAndWidth();
    void theFirstIsTheWidestAtSixteenToNine();
    void heightsAreRoundedUpToEight();
    void theOrderIsProportionThenRateThenWidth();
};

void TestProjectPresets::thereIsOneForEachProportionRateAndWidth()
{
    QCOMPARE(morvane::proportions().size(), 4);
    QCOMPARE(morvane::presetsWidths().size(), 27);
    QCOMPARE(morvane::projectPresets().size(), 4 * 2 * 27);
}

void TestProjectPresets::theFirstIsTheWidestAtSixteenToNine()
{
    const QVariantMap first = morvane::projectPresets().first().toMap();
    QCOMPARE(first, QVariantMap({{"name", "7680x4320"},
                                 {"proportion", "16:9"},
                                 {"fps", 24},
                                 {"framewidth", 7680},
                                 {"frameheight", 4320}}));
}

void TestProjectPresets::heightsAreRoundedUpToEight()
{
    for (const QVariant &preset : morvane::projectPresets()) {
        const QVariantMap map = preset.toMap();
        QCOMPARE(map.value("framewidth").toInt() % 8, 0);
        QCOMPARE(map.value("frameheight").toInt() % 8, 0);
    }
    // 8 * 750 / (16 / 9) is 3375.
    const QVariantMap narrow = morvane::projectPresets().at(5).toMap();
    QCOMPARE(narrow.value("name").toString(), QStringLiteral("6000x3376"));
}

void TestProjectPresets::theOrderIsProportionThenRateThenWidth()
{
    const auto at = [](int index) {
        return morvane::projectPresets().at(index).toMap();
    };
    QCOMPARE(at(26).value("framewidth").toInt(), 96 * 8);
    QCOMPARE(at(27).value("fps").toInt(), 12);
    QCOMPARE(at(27).value("proportion").toString(), QStringLiteral("16:9"));
    QCOMPARE(at(54).value("proportion").toString(), QStringLiteral("16:10"));
    QCOMPARE(at(108).value("proportion").toString(), QStringLiteral("14:9"));
    QCOMPARE(at(162).value("proportion").toString(), QStringLiteral("4:3"));
}

QTEST_APPLESS_MAIN(TestProjectPresets)
#include "tst_projectpresets.moc"
