#include "paths/PathStringCodec.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using morvane::DecodedPath;
using morvane::PathLoadResult;

class TestPathStringCodec : public QObject
{
    Q_OBJECT

private slots:
    void emptyPathIsEmptyText();
    void writesSevenFieldsForEachNode();
    void trailingSemicolonChangesNothing();
    void oneNodeRoundTripsExactly_data();
    void oneNodeRoundTripsExactly();
    void wrongNumberOfFieldsIsReported_data();
    void wrongNumberOfFieldsIsReported();
    void unreadableTypeIsReported();
    void unknownTypeIsReported();
    void unreadableCoordinateIsReported_data();
    void unreadableCoordinateIsReported();
    void damagedNodesAreLeftOutAndCounted();
    void textWithoutAnyGoodNodeIsRefused();
    void tooManyNodesAreRefused();
    void tooLongTextIsRefused();
    void floodOfDamageIsLoggedTwentyTimesOnly();
    void base64RoundTrip();
    void brokenBase64IsRefused();
    void anyTextIsReadWithoutHarm();
};

void TestPathStringCodec::emptyPathIsEmptyText()
{
    QCOMPARE(morvane::encodePath({}), QString());
    const DecodedPath decoded = morvane::decodePath(u"");
    QVERIFY(decoded.nodes.isEmpty());
    QCOMPARE(decoded.result.status, PathLoadResult::Loaded);
    QVERIFY(decoded.result.message.isEmpty());
    QCOMPARE(morvane::encodePathBase64({}), QString());
    QVERIFY(morvane::decodePathBase64(u"").result.ok());
}

void TestPathStringCodec::writesSevenFieldsForEachNode()
{
    const QList<MPathPoint> nodes{MPathPoint::plain(MPathPoint::Move, {1, 2.5}),
                                  MPathPoint::cubic({-1, 0}, {0.333333333, 1e-7}, {1234567, 100})};
    QCOMPARE(morvane::encodePath(nodes), "0,1,2.5,0,0,0,0;2,-1,0,0.333333,1e-07,1.23457e+06,100;");
}

void TestPathStringCodec::trailingSemicolonChangesNothing()
{
    const DecodedPath with = morvane::decodePath(u"0,1,2,0,0,0,0;1,3,4,0,0,0,0;");
    const DecodedPath without = morvane::decodePath(u"0,1,2,0,0,0,0;1,3,4,0,0,0,0");
    const DecodedPath doubled = morvane::decodePath(u";0,1,2,0,0,0,0;;1,3,4,0,0,0,0;;");
    QCOMPARE(with.nodes.size(), 2);
    for (const DecodedPath &other : {without, doubled}) {
        QCOMPARE(other.result.status, PathLoadResult::Loaded);
        QCOMPARE(other.nodes.size(), 2);
        for (int row = 0; row < 2; ++row)
            QVERIFY(other.nodes[row].sameGeometry(with.nodes[row]));
    }
}

void TestPathStringCodec::oneNodeRoundTripsExactly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QPointF>("end");
    QTest::newRow("move") << "0,1.5,-2,0,0,0,0;" << QPointF(1.5, -2);
    QTest::newRow("line") << "1,640.25,480.5,0,0,0,0;" << QPointF(640.25, 480.5);
    QTest::newRow("cubic") << "2,1,2,3,4,5,6;" << QPointF(5, 6);
    QTest::newRow("quadratic") << "3,1,2,3,4,0,0;" << QPointF(3, 4);
    QTest::newRow("exponents") << "1,1.23457e+06,1e-07,0,0,0,0;" << QPointF(1234570, 1e-7);
}

void TestPathStringCodec::oneNodeRoundTripsExactly()
{
    QFETCH(QString, text);
    QFETCH(QPointF, end);
    const DecodedPath decoded = morvane::decodePath(text);
    QCOMPARE(decoded.nodes.size(), 1);
    QCOMPARE(QPointF(decoded.nodes.first().IX, decoded.nodes.first().IY), end);
    QCOMPARE(morvane::encodePath(decoded.nodes), text);
}

void TestPathStringCodec::wrongNumberOfFieldsIsReported_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("six") << "0,1,2,3,4,5";
    QTest::newRow("eight") << "0,1,2,3,4,5,6,7";
    QTest::newRow("one") << "hello";
    QTest::newRow("blank") << " ";
}

void TestPathStringCodec::wrongNumberOfFieldsIsReported()
{
    QFETCH(QString, text);
    QTest::ignoreMessage(QtWarningMsg, "Wrong data passed to parsePathNode");
    QVERIFY(!morvane::decodePath(text).result.ok());
}

void TestPathStringCodec::unreadableTypeIsReported()
{
    QTest::ignoreMessage(QtWarningMsg, "Fail to read int");
    QVERIFY(!morvane::decodePath(u"1.5,1,2,3,4,5,6").result.ok());
}

void TestPathStringCodec::unknownTypeIsReported()
{
    QTest::ignoreMessage(QtWarningMsg, "Wrong data passed to parsePathNode");
    QVERIFY(!morvane::decodePath(u"4,1,2,3,4,5,6").result.ok());
}

void TestPathStringCodec::unreadableCoordinateIsReported_data()
{
    QTest::addColumn<QString>("value");
    for (const char *value : {"", "x", "nan", "inf", "-inf", "1e400", "1e8", "-10000001", "1 2", "0x10"})
        QTest::newRow(value[0] ? value : "empty") << value;
}

void TestPathStringCodec::unreadableCoordinateIsReported()
{
    QFETCH(QString, value);
    QTest::ignoreMessage(QtWarningMsg, "Fail to read double");
    QVERIFY(!morvane::decodePath(QStringLiteral("2,1,2,3,%1,5,6;").arg(value)).result.ok());
}

void TestPathStringCodec::damagedNodesAreLeftOutAndCounted()
{
    QTest::ignoreMessage(QtWarningMsg, "Fail to read double");
    const DecodedPath decoded = morvane::decodePath(u"0,1,2,0,0,0,0;1,x,4,0,0,0,0;1,5,6,0,0,0,0;");
    QCOMPARE(decoded.result.status, PathLoadResult::Repaired);
    QVERIFY(decoded.result.ok());
    QCOMPARE(decoded.result.nodeCount, 2);
    QCOMPARE(decoded.result.skippedCount, 1);
    QCOMPARE(decoded.result.message, "The vector path is damaged: nodes left out: 1");
    QCOMPARE(decoded.nodes[1].end(), QPointF(5, 6));
}

void TestPathStringCodec::textWithoutAnyGoodNodeIsRefused()
{
    QTest::ignoreMessage(QtWarningMsg, "Wrong data passed to parsePathNode");
    const DecodedPath decoded = morvane::decodePath(u"nothing like a path");
    QCOMPARE(decoded.result.status, PathLoadResult::Refused);
    QCOMPARE(decoded.result.message, "The vector path is damaged and was not read");
    QVERIFY(decoded.nodes.isEmpty());
}

void TestPathStringCodec::tooManyNodesAreRefused()
{
    const QString node = QStringLiteral("1,1,2,0,0,0,0;");
    QCOMPARE(morvane::decodePath(node.repeated(morvane::maxPathNodes)).nodes.size(), morvane::maxPathNodes);
    const DecodedPath decoded = morvane::decodePath(node.repeated(morvane::maxPathNodes + 1));
    QCOMPARE(decoded.result.status, PathLoadResult::Refused);
    QCOMPARE(decoded.result.message, "The vector path has too many nodes and was not read");
    QVERIFY(decoded.nodes.isEmpty());
}

void TestPathStringCodec::tooLongTextIsRefused()
{
    const QString text(morvane::maxPathTextLength + 1, u';');
    QCOMPARE(morvane::decodePath(text).result.message, "The vector path is too long and was not read");
    QVERIFY(morvane::decodePath(QStringView(text).chopped(1)).result.ok());
    const QString base64(morvane::maxPathTextLength / 3 * 4 + 4, u'A');
    QCOMPARE(morvane::decodePathBase64(base64).result.message,
             "The vector path is too long and was not read");
}

void TestPathStringCodec::floodOfDamageIsLoggedTwentyTimesOnly()
{
    for (int line = 0; line < 20; ++line)
        QTest::ignoreMessage(QtWarningMsg, "Wrong data passed to parsePathNode");
    QTest::ignoreMessage(QtWarningMsg, "Path nodes left out: 1000");
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    const DecodedPath decoded = morvane::decodePath(QStringLiteral("x;").repeated(1000));
    QCOMPARE(decoded.result.status, PathLoadResult::Refused);
}

void TestPathStringCodec::base64RoundTrip()
{
    const QList<MPathPoint> nodes{MPathPoint::plain(MPathPoint::Move, {1, 2}),
                                  MPathPoint::quadratic({3, 4}, {5, 6})};
    const QString base64 = morvane::encodePathBase64(nodes);
    QCOMPARE(base64, QString::fromLatin1(QByteArray("0,1,2,0,0,0,0;3,3,4,5,6,0,0;").toBase64()));
    const DecodedPath decoded = morvane::decodePathBase64(base64);
    QCOMPARE(decoded.nodes.size(), 2);
    QVERIFY(decoded.nodes[1].sameGeometry(nodes[1]));
}

void TestPathStringCodec::brokenBase64IsRefused()
{
    const DecodedPath decoded = morvane::decodePathBase64(u"***");
    QCOMPARE(decoded.result.status, PathLoadResult::Refused);
    QCOMPARE(decoded.result.message, "The vector path is damaged and was not read");
}

/// Texts that were damaged at random, the same in every run: whatever is read is within the limits and can be
/// written and read again.
void TestPathStringCodec::anyTextIsReadWithoutHarm()
{
    const QLoggingCategory::CategoryFilter quiet = [](QLoggingCategory *category) {
        category->setEnabled(QtWarningMsg, false);
    };
    const auto loud = QLoggingCategory::installFilter(quiet);
    QRandomGenerator random(20260);
    const QString alphabet = QStringLiteral("0123456789.,;-+eE infax\u0000\u00e9\u4e2d");
    const QString sound = QStringLiteral("0,1,2,0,0,0,0;2,1.5,-2e3,3,4,5,6;3,9,8,7,6,0,0;1,4,5,0,0,0,0;");
    int loaded = 0;
    for (int round = 0; round < 4000; ++round) {
        QString text = round % 4 == 0 ? QString() : sound;
        const int changes = random.bounded(1, 12);
        for (int change = 0; change < changes; ++change) {
            const qsizetype at = random.bounded(int(text.size()) + 1);
            const QChar letter = alphabet[random.bounded(int(alphabet.size()))];
            switch (random.bounded(3)) {
                case 0:
                    text.insert(at, letter);
                    break;
                case 1:
                    text.remove(at, random.bounded(1, 6));
                    break;
                default:
                    text.replace(at, 1, letter);
                    break;
            }
        }
        for (const DecodedPath &decoded :
             {morvane::decodePath(text), morvane::decodePathBase64(text),
              morvane::decodePathBase64(QString::fromLatin1(text.toUtf8().toBase64()))}) {
            QCOMPARE(decoded.result.nodeCount, int(decoded.nodes.size()));
            QCOMPARE(decoded.result.message.isEmpty(), decoded.result.status == PathLoadResult::Loaded);
            for (const MPathPoint &node : decoded.nodes) {
                QVERIFY(MPathPoint::isType(node.type));
                for (const double value : {node.V1, node.V2, node.V3, node.V4, node.V5, node.V6})
                    QVERIFY(morvane::isPathCoordinate(value));
                QCOMPARE(QPointF(node.IX, node.IY), node.end());
            }
            const QString written = morvane::encodePath(decoded.nodes);
            QCOMPARE(morvane::encodePath(morvane::decodePath(written).nodes), written);
            loaded += int(decoded.nodes.size());
        }
    }
    QLoggingCategory::installFilter(loud);
    QVERIFY(loaded > 1000);
}

QTEST_GUILESS_MAIN(TestPathStringCodec)
#include "tst_pathstringcodec.moc"
