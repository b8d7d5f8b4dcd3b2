#include "shared/ScreenDensity.h"

#include <QTest>

class TestScreenDensity : public QObject
{
    Q_OBJECT

private slots:
    void snapped_data();
    void snapped();
    void fontIndex_data();
    void fontIndex();
};

void TestScreenDensity::snapped_data()
{
    QTest::addColumn<int>("logicalDpi");
    QTest::addColumn<int>("density");
    QTest::newRow("96 counts as 96, nothing is below it") << 96 << 96;
    QTest::newRow("120 counts as 150") << 120 << 144;
    QTest::newRow("144 counts as 216") << 144 << 192;
    QTest::newRow("192 counts as 384, an exact hit falls below") << 192 << 288;
    QTest::newRow("193 counts as 388, above the hit") << 193 << 384;
    QTest::newRow("240 counts as 600") << 240 << 480;
    QTest::newRow("97 counts as 98") << 97 << 96;
    QTest::newRow("107 counts as 119") << 107 << 96;
    QTest::newRow("108 counts as 121") << 108 << 120;
    QTest::newRow("72 counts as 54, below all") << 72 << 96;
    QTest::newRow("0") << 0 << 96;
    QTest::newRow("376 counts as 1472, still near enough") << 376 << 480;
    QTest::newRow("377 counts as 1480, too far from all") << 377 << 96;
    QTest::newRow("1000 counts as 10416, too far from all") << 1000 << 96;
}

void TestScreenDensity::snapped()
{
    QFETCH(int, logicalDpi);
    QTEST(ScreenDensity::snapped(logicalDpi), "density");
}

void TestScreenDensity::fontIndex_data()
{
    QTest::addColumn<int>("density");
    QTest::addColumn<int>("index");
    QTest::newRow("96") << 96 << 0;
    QTest::newRow("120") << 120 << 1;
    QTest::newRow("144") << 144 << 2;
    QTest::newRow("192") << 192 << 3;
    QTest::newRow("240") << 240 << 4;
    QTest::newRow("288") << 288 << 5;
    QTest::newRow("384") << 384 << 6;
    QTest::newRow("480") << 480 << 7;
    QTest::newRow("any other") << 100 << 1;
    QTest::newRow("nothing") << 0 << 1;
}

void TestScreenDensity::fontIndex()
{
    QFETCH(int, density);
    QTEST(ScreenDensity::fontIndex(density), "index");
}

QTEST_APPLESS_MAIN(TestScreenDensity)

#include "tst_screendensity.moc"
