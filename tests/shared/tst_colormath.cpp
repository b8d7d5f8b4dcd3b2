#include "shared/ColorMath.h"

#include <QTest>

class TestColorMath : public QObject
{
    Q_OBJECT

private slots:
    void hueShiftAddsToTheHue();
    void hueShiftStopsAtBothEnds();
    void saturationShiftAddsToTheSaturation();
    void saturationShiftStopsAtBothEnds();
    void shiftsDropTheAlpha();
    void greyHasNoHueToShift();
    void hslaGivesInts();
    void colorToRgbGivesInts();
    void lighterColorMultiplies();
    void yCbCrToRgb_data();
    void yCbCrToRgb();
    void colorNameToHue_data();
    void colorNameToHue();
};

void TestColorMath::hueShiftAddsToTheHue()
{
    QCOMPARE(morvane::hueShift(QColor(255, 0, 0), 1 / 3.0).toRgb(), QColor(0, 255, 0));
    QCOMPARE(morvane::hueShift(QColor(0, 0, 255), -1 / 3.0).toRgb(), QColor(0, 255, 0));
}

void TestColorMath::hueShiftStopsAtBothEnds()
{
    // The two ends of the circle are the same red.
    QCOMPARE(morvane::hueShift(QColor(0, 0, 255), 0.9).toRgb(), QColor(255, 0, 0));
    QCOMPARE(morvane::hueShift(QColor(0, 255, 0), -0.9).toRgb(), QColor(255, 0, 0));
}

void TestColorMath::saturationShiftAddsToTheSaturation()
{
    const QColor shifted = morvane::saturationShift(QColor::fromHslF(0.5F, 0.25F, 0.5F), 0.5);
    QVERIFY(qAbs(shifted.hslSaturationF() - 0.75F) < 0.001F);
    QVERIFY(qAbs(shifted.hslHueF() - 0.5F) < 0.001F);
    QVERIFY(qAbs(shifted.lightnessF() - 0.5F) < 0.001F);
}

void TestColorMath::saturationShiftStopsAtBothEnds()
{
    const QColor color = QColor::fromHslF(0.5F, 0.25F, 0.5F);
    QCOMPARE(morvane::saturationShift(color, 5).hslSaturationF(), 1.0F);
    QCOMPARE(morvane::saturationShift(color, -5).hslSaturationF(), 0.0F);
}

void TestColorMath::shiftsDropTheAlpha()
{
    const QColor glass(255, 0, 0, 10);
    QCOMPARE(morvane::hueShift(glass, 0).alpha(), 255);
    QCOMPARE(morvane::saturationShift(glass, 0).alpha(), 255);
}

void TestColorMath::greyHasNoHueToShift()
{
    QCOMPARE(morvane::hueShift(QColor(90, 90, 90), 0.5).toRgb(), QColor(90, 90, 90));
}

void TestColorMath::hslaGivesInts()
{
    const QVariantMap map = morvane::hsla(QColor::fromHsl(210, 100, 50));
    QCOMPARE(map.keys(),
             (QStringList{QStringLiteral("hue"), QStringLiteral("lightness"), QStringLiteral("saturation")}));
    QCOMPARE(map.value(QStringLiteral("hue")), QVariant(210));
    QCOMPARE(map.value(QStringLiteral("saturation")), QVariant(100));
    QCOMPARE(map.value(QStringLiteral("lightness")), QVariant(50));
    QCOMPARE(map.first().typeId(), static_cast<int>(QMetaType::Int));
}

void TestColorMath::colorToRgbGivesInts()
{
    const QVariantMap map = morvane::colorToRgb(QColor(1, 2, 3, 4));
    const QVariantMap expected{{QStringLiteral("r"), 1}, {QStringLiteral("g"), 2}, {QStringLiteral("b"), 3}};
    QCOMPARE(map, expected);
    QCOMPARE(map.first().typeId(), static_cast<int>(QMetaType::Int));
}

void TestColorMath::lighterColorMultiplies()
{
    QCOMPARE(morvane::lighterColor(QColor(100, 50, 0), 1.0).toRgb(), QColor(100, 50, 0));
    QCOMPARE(morvane::lighterColor(QColor(100, 50, 0), 1.5).toRgb(), QColor(150, 75, 0));
}

void TestColorMath::yCbCrToRgb_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("cb");
    QTest::addColumn<double>("cr");
    QTest::addColumn<QColor>("color");
    QTest::newRow("black") << 0.0 << 128.0 << 128.0 << QColor(0, 0, 0);
    QTest::newRow("white") << 255.0 << 128.0 << 128.0 << QColor(255, 255, 255);
    // 100 + 1.402 * 10 = 114.02; 100 + 0.34414 * 10 - 0.71414 * 10 = 96.3; 100 - 1.772 * 10 = 82.28
    QTest::newRow("cut, not rounded") << 100.9 << 118.0 << 138.0 << QColor(114, 97, 83);
    QTest::newRow("above and below") << 255.0 << 0.0 << 255.0 << QColor(255, 208, 28);
    QTest::newRow("limited") << 0.0 << 0.0 << 0.0 << QColor(0, 135, 0);
}

void TestColorMath::yCbCrToRgb()
{
    QFETCH(double, y);
    QFETCH(double, cb);
    QFETCH(double, cr);
    QTEST(morvane::yCbCrToRgb(y, cb, cr), "color");
}

void TestColorMath::colorNameToHue_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("hue");
    QTest::newRow("six digits") << "#00ff00" << 120;
    QTest::newRow("three digits") << "#0f0" << 120;
    QTest::newRow("0x") << "0x00FF00" << 120;
    QTest::newRow("bare six") << "00ff00" << 120;
    QTest::newRow("bare three") << "0F0" << 120;
    QTest::newRow("name") << "red" << 0;
    QTest::newRow("a grey gives its lightness") << "808080" << 128;
    QTest::newRow("white") << "white" << 255;
    QTest::newRow("black") << "#000" << 0;
    QTest::newRow("empty counts as blue") << "" << 240;
    QTest::newRow("unknown counts as blue") << "no such colour" << 240;
    QTest::newRow("0x with too few digits") << "0x00FF0" << 240;
    QTest::newRow("0x with no digits") << "0xzzzzzz" << 240;
}

void TestColorMath::colorNameToHue()
{
    QFETCH(QString, name);
    QTEST(morvane::colorNameToHue(name), "hue");
}

QTEST_APPLESS_MAIN(TestColorMath)

#include "tst_colormath.moc"
