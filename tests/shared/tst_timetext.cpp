#include "shared/TimeText.h"

#include <limits>
#include <QTest>

class TestTimeText : public QObject
{
    Q_OBJECT

private slots:
    void timeStampHasTwelveDigitsFromYearToSecond();
    void timeStampIsOfNowUnlessTold();
    void millisecondsToHHMMSS_data();
    void millisecondsToHHMMSS();
    void secondsToHHMMSS_data();
    void secondsToHHMMSS();
};

void TestTimeText::timeStampHasTwelveDigitsFromYearToSecond()
{
    const QDateTime moment(QDate(2022, 6, 1), QTime(17, 4, 9));
    QCOMPARE(morvane::timeStamp(moment), QStringLiteral("220601170409"));
}

void TestTimeText::timeStampIsOfNowUnlessTold()
{
    const QString before = morvane::timeStamp(QDateTime::currentDateTime());
    const QString stamp = morvane::timeStamp();
    const QString after = morvane::timeStamp(QDateTime::currentDateTime());
    QCOMPARE(stamp.size(), 12);
    QVERIFY(before <= stamp && stamp <= after);
}

void TestTimeText::millisecondsToHHMMSS_data()
{
    QTest::addColumn<int>("milliseconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0 << "00.00.00";
    QTest::newRow("below a second") << 999 << "00.00.00";
    QTest::newRow("an hour, a minute, a second") << 3661000 << "01.01.01";
    QTest::newRow("the last second of a day") << 86399999 << "23.59.59";
    QTest::newRow("wraps after a day") << 86400000 + 61000 << "00.01.01";
}

void TestTimeText::millisecondsToHHMMSS()
{
    QFETCH(int, milliseconds);
    QTEST(morvane::millisecondsToHHMMSS(milliseconds), "text");
}

void TestTimeText::secondsToHHMMSS_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("an hour, a minute, a second") << 3661 << "01.01.01";
    QTest::newRow("the last second of a day") << 86399 << "23.59.59";
    QTest::newRow("wraps after a day") << 86400 + 61 << "00.01.01";
    QTest::newRow("as many as there can be") << std::numeric_limits<int>::max() << "03.14.07";
}

void TestTimeText::secondsToHHMMSS()
{
    QFETCH(int, seconds);
    QTEST(morvane::secondsToHHMMSS(seconds), "text");
}

QTEST_APPLESS_MAIN(TestTimeText)

#include "tst_timetext.moc"
