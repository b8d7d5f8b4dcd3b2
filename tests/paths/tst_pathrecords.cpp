#include "paths/PathRecords.h"

#include <QTest>

#include <limits>

class TestPathRecords : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip();
    void wrongSelectionTypeIsReported();
    void wrongCoordinateIsReported_data();
    void wrongCoordinateIsReported();
    void wrongCommandIsReported_data();
    void wrongCommandIsReported();
    void somethingThatIsNoRecordIsRefused();
    void guidIsNotTakenFromOutside();
    void endPointFollowsTheCommand();
    void badRecordsAreLeftOutAndCounted();
    void tooManyRecordsAreRefused();
};

namespace {

QVariantMap goodRecord()
{
    MPathPoint node = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    node.GUID = 9;
    node.Ingroup = true;
    node.Store = 44;
    return morvane::recordOf(node);
}

bool reads(const QVariantMap &record)
{
    MPathPoint node;
    return morvane::readRecord(record, &node);
}

} // namespace

void TestPathRecords::roundTrip()
{
    const QVariantList records = morvane::recordsOf({MPathPoint::plain(MPathPoint::Move, {7, 8})});
    QCOMPARE(records.size(), 1);
    MPathPoint node;
    QVERIFY(morvane::readRecord(goodRecord(), &node));
    QVERIFY(node.sameGeometry(MPathPoint::cubic({1, 2}, {3, 4}, {5, 6})));
    QCOMPARE(node.Ingroup, true);
    QCOMPARE(node.Store, 44);
    const morvane::DecodedPath decoded = morvane::nodesOf(records);
    QCOMPARE(decoded.result.status, morvane::PathLoadResult::Loaded);
    QCOMPARE(decoded.nodes.first().end(), QPointF(7, 8));
}

void TestPathRecords::wrongSelectionTypeIsReported()
{
    QVariantMap record = goodRecord();
    record["ingroup"] = "yes";
    QTest::ignoreMessage(QtWarningMsg, "MorvaPointRoles::Ingroup type is not ok");
    QVERIFY(!reads(record));
}

void TestPathRecords::wrongCoordinateIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    for (const char *name : {"IX", "IY", "V1", "V2", "V3", "V4", "V5", "V6", "Store"}) {
        QTest::addRow("%s text", name) << name << QVariant("12");
        QTest::addRow("%s infinite", name) << name << QVariant(std::numeric_limits<double>::infinity());
        QTest::addRow("%s too large", name) << name << QVariant(1e9);
        QTest::addRow("%s list", name) << name << QVariant(QVariantList{1});
    }
    QTest::newRow("IX missing") << "IX" << QVariant();
    QTest::newRow("IY missing") << "IY" << QVariant();
}

void TestPathRecords::wrongCoordinateIsReported()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QVariantMap record = goodRecord();
    record[name] = value;
    QTest::ignoreMessage(QtWarningMsg, qPrintable("Wrong type MorvaPointRoles::" + name));
    QVERIFY(!reads(record));
}

void TestPathRecords::wrongCommandIsReported_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("unknown") << QVariant(4);
    QTest::newRow("negative") << QVariant(-1);
    QTest::newRow("text") << QVariant("2");
    QTest::newRow("missing") << QVariant();
}

void TestPathRecords::wrongCommandIsReported()
{
    QFETCH(QVariant, value);
    QVariantMap record = goodRecord();
    record["Id"] = value;
    QTest::ignoreMessage(QtWarningMsg, "Wrong type MorvaPointRoles::Id");
    QVERIFY(!reads(record));
}

void TestPathRecords::somethingThatIsNoRecordIsRefused()
{
    MPathPoint node = MPathPoint::plain(MPathPoint::Line, {1, 1});
    QTest::ignoreMessage(QtWarningMsg, "Wrong type MorvaPointRoles::IX");
    QVERIFY(!morvane::readRecord(QVariant("2,1,2,3,4,5,6"), &node));
    QCOMPARE(node.end(), QPointF(1, 1));
}

void TestPathRecords::guidIsNotTakenFromOutside()
{
    MPathPoint node;
    QVERIFY(morvane::readRecord(goodRecord(), &node));
    QCOMPARE(node.GUID, 0);
}

void TestPathRecords::endPointFollowsTheCommand()
{
    QVariantMap record = goodRecord();
    record["IX"] = 500.0;
    MPathPoint node;
    QVERIFY(morvane::readRecord(record, &node));
    QCOMPARE(QPointF(node.IX, node.IY), QPointF(5, 6));
}

void TestPathRecords::badRecordsAreLeftOutAndCounted()
{
    QTest::ignoreMessage(QtWarningMsg, "Wrong type MorvaPointRoles::IX");
    const morvane::DecodedPath decoded = morvane::nodesOf({goodRecord(), 12, goodRecord()});
    QCOMPARE(decoded.nodes.size(), 2);
    QCOMPARE(decoded.result.skippedCount, 1);
    QCOMPARE(decoded.result.status, morvane::PathLoadResult::Repaired);
}

void TestPathRecords::tooManyRecordsAreRefused()
{
    const morvane::DecodedPath decoded =
        morvane::nodesOf(QVariantList(morvane::maxPathNodes + 1, goodRecord()));
    QCOMPARE(decoded.result.status, morvane::PathLoadResult::Refused);
    QVERIFY(decoded.nodes.isEmpty());
}

QTEST_GUILESS_MAIN(TestPathRecords)
#include "tst_pathrecords.moc"
