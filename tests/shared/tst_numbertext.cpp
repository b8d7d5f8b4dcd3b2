#include "shared/NumberText.h"

#include <QTest>

class TestNumberText : public QObject
{
    Q_OBJECT

private slots:
    void formatNumber_data();
    void formatNumber();
    void sizeIsSixUnlessTold();
    void setOfNumbersOfAnEmptyListIsEmpty();
    void setOfNumbersJoinsThePaddedNumbers();
    void setOfNumbersSkipsWhatIsNoInt();
    void setOfNumbersCutsOneCharacterOfALongSeparator();
    void setOfNumbersWithoutASeparatorLosesItsLastDigit();
    void roundUp_data();
    void roundUp();
    void slidersStopAtTheirMinimum();
};

void TestNumberText::formatNumber_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("text");
    QTest::newRow("small number is padded") << 3 << 6 << "000003";
    QTest::newRow("zero") << 0 << 6 << "000000";
    QTest::newRow("exact fit") << 123456 << 6 << "123456";
    QTest::newRow("long number loses leading digits") << 1234567 << 6 << "234567";
    QTest::newRow("nine") << 7 << 9 << "000000007";
    QTest::newRow("no zeros beyond eight") << 7 << 12 << "000000007";
    QTest::newRow("no zeros beyond eight, two digits") << 42 << 12 << "0000000042";
    QTest::newRow("nothing") << 7 << 0 << "";
    QTest::newRow("negative") << -3 << 6 << "0000-3";
}

void TestNumberText::formatNumber()
{
    QFETCH(int, value);
    QFETCH(int, size);
    QTEST(morvane::formatNumber(value, size), "text");
}

void TestNumberText::sizeIsSixUnlessTold()
{
    QCOMPARE(morvane::formatNumber(12), QStringLiteral("000012"));
}

void TestNumberText::setOfNumbersOfAnEmptyListIsEmpty()
{
    QCOMPARE(morvane::formatSetOfNumbers({}, QStringLiteral(","), 6), QString());
}

void TestNumberText::setOfNumbersJoinsThePaddedNumbers()
{
    QCOMPARE(morvane::formatSetOfNumbers({1, 22, 333}, QStringLiteral(","), 3),
             QStringLiteral("001,022,333"));
}

void TestNumberText::setOfNumbersSkipsWhatIsNoInt()
{
    const QVariantList mixed{1, QStringLiteral("2"), 3.0, true, QVariant(), qint64(4), 5};
    QCOMPARE(morvane::formatSetOfNumbers(mixed, QStringLiteral(";"), 2), QStringLiteral("01;05"));
}

void TestNumberText::setOfNumbersCutsOneCharacterOfALongSeparator()
{
    QCOMPARE(morvane::formatSetOfNumbers({1, 2}, QStringLiteral(", "), 2), QStringLiteral("01, 02,"));
}

void TestNumberText::setOfNumbersWithoutASeparatorLosesItsLastDigit()
{
    QCOMPARE(morvane::formatSetOfNumbers({1, 2}, QString(), 2), QStringLiteral("010"));
}

void TestNumberText::roundUp_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("rounded");
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 8;
    QTest::newRow("7") << 7 << 8;
    QTest::newRow("8") << 8 << 8;
    QTest::newRow("9") << 9 << 16;
    QTest::newRow("1080") << 1080 << 1080;
    QTest::newRow("negative multiple") << -8 << -8;
    QTest::newRow("negative truncates") << -9 << 0;
    QTest::newRow("just below zero") << -1 << 8;
}

void TestNumberText::roundUp()
{
    QFETCH(int, value);
    QTEST(morvane::roundUp(value), "rounded");
}

void TestNumberText::slidersStopAtTheirMinimum()
{
    QCOMPARE(morvane::tenThousandths(25, 0), 0.0025);
    QCOMPARE(morvane::tenThousandths(-5, 0), 0.0);
    QCOMPARE(morvane::thousandths(25, 1), 0.025);
    QCOMPARE(morvane::thousandths(0, 1), 0.001);
}

QTEST_APPLESS_MAIN(TestNumberText)

#include "tst_numbertext.moc"
