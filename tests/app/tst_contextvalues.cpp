#include "app/ContextValues.h"
#include "support/PublishedConstants.h"

#include <QtTest>

using namespace morvane;

namespace {

/// The sizes that are cut to whole pixels, worked out by hand for one row of the font table.
struct RowSizes
{
    int normal, smaller;
    int twoThirds, oneAndHalf, sevenEighths, twoAndHalf, threeHalf;
    int smallerTwice, evenSmaller;
    int micro, nano, pico;
    int padding;
    int lineWidth;
};

constexpr std::array<RowSizes, fontRowCount> rows{{
    {13, 11, 8, 19, 22, 32, 39, 22, 9, 6, 4, 3, 8, 2},
    {13, 11, 8, 19, 22, 32, 39, 22, 9, 6, 4, 3, 2, 2},
    {14, 12, 9, 21, 24, 35, 42, 24, 10, 7, 4, 3, 0, 3},
    {18, 16, 11, 27, 31, 45, 54, 32, 14, 9, 6, 4, 4, 3},
    {21, 19, 13, 31, 36, 52, 63, 38, 17, 10, 7, 5, 8, 3},
    {26, 24, 17, 39, 45, 65, 78, 48, 21, 13, 8, 6, 8, 3},
    {31, 29, 20, 46, 54, 77, 93, 58, 26, 15, 10, 7, 8, 3},
    {41, 38, 27, 61, 71, 102, 123, 76, 34, 20, 13, 10, 8, 3},
    {51, 47, 33, 76, 89, 127, 153, 94, 42, 25, 17, 12, 8, 3},
}};

QList<QQmlContext::PropertyPair> valuesOfRow(int row)
{
    const FontSizes sizes = fontSizesOfRow(row);
    return contextValues({{row, row, sizes}, dpiScaleOf(sizes), 80, true});
}

QList<QQmlContext::PropertyPair> expectedSizes(const RowSizes &row)
{
    QList<QQmlContext::PropertyPair> values{
        {"smoothUi", true},
        {"DefFontSizeNormal", row.normal},
        {"DefFontSizeSmaler", row.smaller},
    };
    for (int k = 2; k <= 22; ++k)
        values.append({QString("DefFontSizeNormal_x%1").arg(k), k * row.normal});
    values.append({
        {"DefFontSizeNormal_TwoThirds", row.twoThirds},
        {"DefFontSizeNormal_Pltr", row.oneAndHalf},
        {"DefFontSizeBigger", row.oneAndHalf},
        {"DefFontSizeNormal_SevenEighths", row.sevenEighths},
        {"DefFontSizeNormal_x2Half", row.twoAndHalf},
        {"DefFontSizeNormal_x3Half", row.threeHalf},
        {"DefFontSizeSmaler_2", row.smallerTwice},
        {"DefFontSizeEvenSmaler", row.evenSmaller},
        {"DefFontSizeMicro", row.micro},
        {"DefFontSizeNano", row.nano},
        {"DefFontSizePico", row.pico},
        {"DialogWidth", 46 * row.normal},
        {"scrollBarW", row.normal},
        {"RenderPanH", 25 * row.normal},
        {"ControlsPanesBoxW", 30 * row.normal},
        {"HPadding", row.padding},
    });
    return values;
}

/// The same in every run, and between them what depends on the font and the machine.
QList<QQmlContext::PropertyPair> expectedConstants(const RowSizes &row, double dpiScale)
{
    QList<QQmlContext::PropertyPair> values;
    for (const auto &constant : publishedConstants()) {
        values.append(constant);
        if (constant.name == QLatin1String("RAM_CACHE_MAX"))
            values.append({"SoundsAvailable", true});
        if (constant.name == QLatin1String("defPathSmooting"))
            values.append(QList<QQmlContext::PropertyPair>{
                {"lineWidth", row.lineWidth}, {"timelineScale", 80}, {"DpiScale", dpiScale}});
    }
    return values;
}

} // namespace

class TestContextValues : public QObject
{
    Q_OBJECT

private slots:
    void everyValueInOrderForEveryFontRow_data();
    void everyValueInOrderForEveryFontRow();
    void eachNameIsPublishedOnce();
    void soundsAvailableFollowsTheMachine();
    void chosenFontSizeTakesItsRow_data();
    void chosenFontSizeTakesItsRow();
    void densityPicksTheRowWhenNothingIsChosen_data();
    void densityPicksTheRowWhenNothingIsChosen();
    void settingThatIsNoFontIndexFallsBackToDensity_data();
    void settingThatIsNoFontIndexFallsBackToDensity();
    void rowOutsideTheTableIsTheNearestOne();
    void dpiScaleIsOneAtTheSmallestRow();
    void timelineHeightIsHalfTheWindowWithinLimits_data();
    void timelineHeightIsHalfTheWindowWithinLimits();
};

void TestContextValues::everyValueInOrderForEveryFontRow_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < fontRowCount; ++row)
        QTest::addRow("font index %d", row) << row;
}

void TestContextValues::everyValueInOrderForEveryFontRow()
{
    QFETCH(int, row);
    const RowSizes &sizes = rows[static_cast<std::size_t>(row)];
    const auto expected = expectedSizes(sizes) + expectedConstants(sizes, sizes.normal / 13.0);
    const auto actual = valuesOfRow(row);
    for (int i = 0; i < qMin(expected.size(), actual.size()); ++i) {
        QCOMPARE(actual.at(i).name, expected.at(i).name);
        QVERIFY2(actual.at(i).value.metaType() == expected.at(i).value.metaType(),
                 qPrintable(actual.at(i).name));
        QCOMPARE(actual.at(i).value, expected.at(i).value);
    }
    QCOMPARE(actual.size(), expected.size());
}

void TestContextValues::eachNameIsPublishedOnce()
{
    QSet<QString> names;
    const auto values = valuesOfRow(1);
    for (const auto &value : values)
        names.insert(value.name);
    QCOMPARE(names.size(), values.size());
}

void TestContextValues::soundsAvailableFollowsTheMachine()
{
    for (const bool available : {false, true}) {
        const auto values = contextValues({{1, 1, {13, 11}}, 1.0, 100, available});
        const auto found = std::find_if(values.begin(), values.end(),
                                        [](const auto &value) { return value.name == "SoundsAvailable"; });
        QVERIFY(found != values.end());
        QCOMPARE(found->value, QVariant(available));
    }
}

void TestContextValues::chosenFontSizeTakesItsRow_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("row");
    for (int row = 0; row < fontRowCount; ++row) {
        QTest::addRow("number %d", row) << QVariant(row) << row;
        QTest::addRow("text %d", row) << QVariant(QString::number(row)) << row;
    }
}

void TestContextValues::chosenFontSizeTakesItsRow()
{
    QFETCH(QVariant, stored);
    QFETCH(int, row);
    const RowSizes &sizes = rows[static_cast<std::size_t>(row)];
    const FontChoice expected{row, row, {sizes.normal, sizes.smaller}};
    QVERIFY(chooseFont(stored, 480) == expected);
}

void TestContextValues::densityPicksTheRowWhenNothingIsChosen_data()
{
    QTest::addColumn<int>("density");
    QTest::addColumn<int>("row");
    const QList<QPair<int, int>> table{{96, 0},  {120, 1}, {144, 2}, {192, 3}, {240, 4}, {288, 5},
                                       {384, 6}, {480, 7}, {100, 1}, {0, 1},   {999, 1}};
    for (const auto &[density, row] : table)
        QTest::addRow("density %d", density) << density << row;
}

void TestContextValues::densityPicksTheRowWhenNothingIsChosen()
{
    QFETCH(int, density);
    QFETCH(int, row);
    const RowSizes &sizes = rows[static_cast<std::size_t>(row)];
    const FontChoice expected{-1, row, {sizes.normal, sizes.smaller}};
    QVERIFY(chooseFont(QVariant(), density) == expected);
}

void TestContextValues::settingThatIsNoFontIndexFallsBackToDensity_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("nine") << QVariant(9);
    QTest::newRow("minus one") << QVariant(-1);
    QTest::newRow("a word") << QVariant("large");
    QTest::newRow("empty text") << QVariant("");
    QTest::newRow("a fraction") << QVariant(1.5);
    QTest::newRow("text with a fraction") << QVariant("1.5");
    QTest::newRow("a list") << QVariant(QVariantList{1, 2});
}

void TestContextValues::settingThatIsNoFontIndexFallsBackToDensity()
{
    QFETCH(QVariant, stored);
    const FontChoice expected{-1, 3, {18, 16}};
    QVERIFY(chooseFont(stored, 192) == expected);
}

void TestContextValues::rowOutsideTheTableIsTheNearestOne()
{
    QVERIFY(fontSizesOfRow(-5) == fontSizesOfRow(0));
    QVERIFY(fontSizesOfRow(fontRowCount) == fontSizesOfRow(fontRowCount - 1));
}

void TestContextValues::dpiScaleIsOneAtTheSmallestRow()
{
    QCOMPARE(dpiScaleOf({13, 11}), 1.0);
    QCOMPARE(dpiScaleOf({26, 24}), 2.0);
}

void TestContextValues::timelineHeightIsHalfTheWindowWithinLimits_data()
{
    QTest::addColumn<int>("windowHeight");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("expected");
    QTest::newRow("half, cut to whole pixels") << 401 << 1 << 200;
    QTest::newRow("at most 18 times") << 1080 << 1 << 234;
    QTest::newRow("at least 14 times") << 100 << 1 << 182;
    QTest::newRow("no height yet") << 0 << 1 << 182;
    QTest::newRow("largest letters") << 1200 << 8 << 714;
}

void TestContextValues::timelineHeightIsHalfTheWindowWithinLimits()
{
    QFETCH(int, windowHeight);
    QFETCH(int, row);
    QFETCH(int, expected);
    QCOMPARE(timelineHeight(windowHeight, fontSizesOfRow(row)), expected);
}

QTEST_APPLESS_MAIN(TestContextValues)

#include "tst_contextvalues.moc"
