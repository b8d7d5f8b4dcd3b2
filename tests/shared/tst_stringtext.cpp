#include "shared/StringText.h"

#include <QTest>

class TestStringText : public QObject
{
    Q_OBJECT

private slots:
    void cleanStr_data();
    void cleanStr();
    void everyForbiddenCharacterIsRemoved();
    void separatorsStayUnlessTold();
    void whiteSpaceIsSimplifiedBeforeCharactersGo();
    void fileNamesGetTheirUnderscoresLast();
    void keptCharactersOfTransliterationStay();
    void russianLettersBecomeLatin_data();
    void russianLettersBecomeLatin();
    void blanksBecomeUnderscores();
    void otherCharactersAreDroppedWithALogLine_data();
    void otherCharactersAreDroppedWithALogLine();
};

void TestStringText::cleanStr_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFilename");
    QTest::addColumn<bool>("removeSeparators");
    QTest::addColumn<QString>("clean");
    QTest::newRow("file name") << "  a-b  c " << true << false << "a_b_c";
    QTest::newRow("no file name") << "  a-b  c " << false << false << "a-b c";
    QTest::newRow("empty") << "" << true << true << "";
    QTest::newRow("kept characters") << "Az_09.-" << false << true << "Az_09.-";
    QTest::newRow("letters of any language") << "Сцена 1" << false << true << "Сцена 1";
    QTest::newRow("path") << "/home/x\\y" << false << false << "homexy";
    QTest::newRow("nothing left") << "{?!}" << true << true << "";
    QTest::newRow("tab and line end") << "a\tb\nc" << false << false << "a b c";
}

void TestStringText::cleanStr()
{
    QFETCH(QString, text);
    QFETCH(bool, isFilename);
    QFETCH(bool, removeSeparators);
    QTEST(morvane::cleanStr(text, isFilename, removeSeparators), "clean");
}

void TestStringText::everyForbiddenCharacterIsRemoved()
{
    const QString forbidden = QStringLiteral("{}#!~()+/\\$@^&?[]<>`'\"№,");
    for (const QChar character : forbidden)
        QCOMPARE(morvane::cleanStr(QLatin1Char('a') + QString(character) + QLatin1Char('b')),
                 QStringLiteral("ab"));
}

void TestStringText::separatorsStayUnlessTold()
{
    QCOMPARE(morvane::cleanStr(QStringLiteral("a:b*c|d=e;f")), QStringLiteral("a:b*c|d=e;f"));
    QCOMPARE(morvane::cleanStr(QStringLiteral("a:b*c|d=e;f"), false, true), QStringLiteral("abcdef"));
}

void TestStringText::whiteSpaceIsSimplifiedBeforeCharactersGo()
{
    QCOMPARE(morvane::cleanStr(QStringLiteral("a ( b")), QStringLiteral("a  b"));
    QCOMPARE(morvane::cleanStr(QStringLiteral("( a")), QStringLiteral(" a"));
}

void TestStringText::fileNamesGetTheirUnderscoresLast()
{
    QCOMPARE(morvane::cleanStr(QStringLiteral("( a - b"), true), QStringLiteral("_a___b"));
}

void TestStringText::keptCharactersOfTransliterationStay()
{
    const QString kept = QStringLiteral(
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz1234567890-_,.()[]{}<>~!@#$%^&*+=?");
    QCOMPARE(morvane::translit(kept), kept);
}

void TestStringText::russianLettersBecomeLatin_data()
{
    QTest::addColumn<QString>("latin");
    const QString table = QStringLiteral(
        "А A, Б B, В V, Г G, Д D, Е E, Ё Jo, Ж Zh, З Z, И I, Й J, К K, Л L, М M, Н N, О O, П P, Р R, С S, "
        "Т T, У U, Ф F, Х H, Ц C, Ч Ch, Ш Sh, Щ Sh, Ы I, Э E, Ю Ju, Я Ja");
    const QStringList rows = table.split(QStringLiteral(", "));
    QCOMPARE(rows.size(), 31);
    for (const QString &row : rows) {
        const QString letter = row.section(QLatin1Char(' '), 0, 0);
        const QString latin = row.section(QLatin1Char(' '), 1);
        QTest::newRow(qUtf8Printable(letter)) << latin;
        QTest::newRow(qUtf8Printable(letter.toLower())) << latin.toLower();
    }
}

void TestStringText::russianLettersBecomeLatin()
{
    QTEST(morvane::translit(QString::fromUtf8(QTest::currentDataTag())), "latin");
}

void TestStringText::blanksBecomeUnderscores()
{
    QCOMPARE(morvane::translit(QStringLiteral("Кадр 01 ёж")), QStringLiteral("Kadr_01_jozh"));
}

void TestStringText::otherCharactersAreDroppedWithALogLine_data()
{
    QTest::addColumn<QString>("dropped");
    for (const char *dropped : {"Ъ", "Ь", "ъ", "ь", ";", ":", "/", "\\", "'", "\"", "|", "№", "é", "\t"})
        QTest::newRow(dropped) << QString::fromUtf8(dropped);
}

void TestStringText::otherCharactersAreDroppedWithALogLine()
{
    QFETCH(QString, dropped);
    const QString line = QStringLiteral("Translit error. Index of %1 is -1").arg(dropped);
    QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(line));
    QCOMPARE(morvane::translit(QLatin1Char('a') + dropped + QLatin1Char('b')), QStringLiteral("ab"));
}

QTEST_APPLESS_MAIN(TestStringText)

#include "tst_stringtext.moc"
