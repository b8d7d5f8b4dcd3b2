#include "timeline/Frame.h"

#include "shared/Zum.h"

#include <QTest>

class tst_Frame : public QObject
{
    Q_OBJECT

private slots:
    void startsWithItsDefaults();
    void keepsItsGuidWhenTheNewOneIsOutOfRange_data();
    void keepsItsGuidWhenTheNewOneIsOutOfRange();
    void isTheSameFrameByGuidOnly();
    void servesTheRolesOfTheTable_data();
    void servesTheRolesOfTheTable();
    void takesOnlyValuesOfTheRolesKind_data();
    void takesOnlyValuesOfTheRolesKind();
    void logsANumberThatDoesNotFit();
    void readsAMapByKind();
    void fillsAMapInFullAndCompactForm();
    void describesNoFrame();
};

void tst_Frame::startsWithItsDefaults()
{
    const Frame frame;
    QCOMPARE(frame.guid(), -1);
    QCOMPARE(frame.staticState, -1);
    QCOMPARE(frame.phase, 0);
    QVERIFY(!frame.hidden && !frame.ingroup && !frame.mirrored);
    QVERIFY(!frame.gotCapImg && !frame.gotRefImg && !frame.capfullmiss && !frame.reffullmiss);
}

void tst_Frame::keepsItsGuidWhenTheNewOneIsOutOfRange_data()
{
    QTest::addColumn<int>("offered");
    QTest::addColumn<bool>("taken");
    QTest::newRow("none") << -1 << false;
    QTest::newRow("below") << 9999999 << false;
    QTest::newRow("first") << 10000000 << true;
    QTest::newRow("last") << 99999999 << true;
    QTest::newRow("above") << 100000000 << false;
}

void tst_Frame::keepsItsGuidWhenTheNewOneIsOutOfRange()
{
    QFETCH(int, offered);
    QFETCH(bool, taken);
    Frame frame;
    QVERIFY(frame.setGuid(55555555));
    QCOMPARE(frame.setGuid(offered), taken);
    QCOMPARE(frame.guid(), taken ? offered : 55555555);
}

void tst_Frame::isTheSameFrameByGuidOnly()
{
    Frame a;
    Frame b;
    a.setGuid(20000000);
    b.setGuid(20000000);
    b.setCapFull(QStringLiteral("other.jpg"));
    QVERIFY(a == b);
    b.setGuid(20000001);
    b.setCapFull(QString());
    QVERIFY(!(a == b));
}

void tst_Frame::servesTheRolesOfTheTable_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("served");
    const struct
    {
        int role;
        const char *name;
        bool served;
    } rows[] = {
        {0, "frameIndx", false},    {1, "cudaGuid", false},  {2, "cudaNextGuid", false},
        {3, "cudaPrevGuid", false}, {4, "undoAct", false},   {5, "ingroup", true},
        {6, "capFull", true},       {7, "", false},          {8, "", false},
        {9, "capTumb", true},       {10, "refFull", true},   {11, "refTumb", true},
        {12, "static", true},       {13, "phase", true},     {14, "guid", true},
        {15, "nextGuid", false},    {16, "prevGuid", false}, {17, "gotCapImg", true},
        {18, "gotRefImg", true},    {19, "mirrored", true},  {20, "capfullmiss", true},
        {21, "reffullmiss", true},  {22, "hidden", true},    {23, "", false},
    };
    for (const auto &row : rows)
        QTest::addRow("%d", row.role) << row.role << QString::fromLatin1(row.name) << row.served;
}

void tst_Frame::servesTheRolesOfTheTable()
{
    QFETCH(int, role);
    QFETCH(QString, name);
    QFETCH(bool, served);
    QCOMPARE(morvane::frameKey(role), name);
    QCOMPARE(Frame().value(role).isValid(), served);
}

void tst_Frame::takesOnlyValuesOfTheRolesKind_data()
{
    QTest::addColumn<int>("role");
    QTest::addColumn<QVariant>("good");
    QTest::addColumn<QVariant>("bad");
    QTest::newRow("capFull") << int(Zum::CapFull) << QVariant("a") << QVariant(1);
    QTest::newRow("refFull") << int(Zum::RefFull) << QVariant("a") << QVariant(1);
    QTest::newRow("capTumb") << int(Zum::CapTumb) << QVariant("a") << QVariant(1);
    QTest::newRow("refTumb") << int(Zum::RefTumb) << QVariant("a") << QVariant(1);
    QTest::newRow("hidden") << int(Zum::Hidden) << QVariant(true) << QVariant(1);
    QTest::newRow("ingroup") << int(Zum::Ingroup) << QVariant(true) << QVariant("true");
    QTest::newRow("mirrored") << int(Zum::Mirrored) << QVariant(true) << QVariant(1);
    QTest::newRow("capfullmiss") << int(Zum::CapFullMissing) << QVariant(true) << QVariant(1);
    QTest::newRow("reffullmiss") << int(Zum::RefFullMissing) << QVariant(true) << QVariant(1);
    QTest::newRow("static") << int(Zum::StaticState) << QVariant(2) << QVariant("2");
    QTest::newRow("phase") << int(Zum::PhaseNumber) << QVariant(7) << QVariant("7");
}

void tst_Frame::takesOnlyValuesOfTheRolesKind()
{
    QFETCH(int, role);
    QFETCH(QVariant, good);
    QFETCH(QVariant, bad);
    Frame frame;
    const QVariant before = frame.value(role);
    QCOMPARE(frame.setValue(role, bad), Frame::Write::Ignored);
    QCOMPARE(frame.value(role), before);
    QCOMPARE(frame.setValue(role, good), Frame::Write::Stored);
    QCOMPARE(frame.value(role), good);
}

void tst_Frame::logsANumberThatDoesNotFit()
{
    Frame frame;
    frame.phase = 4;
    frame.staticState = 2;
    QTest::ignoreMessage(QtDebugMsg, "setData: Error decoding Phase number");
    frame.setValue(Zum::PhaseNumber, QVariant(qlonglong(1) << 40));
    QCOMPARE(frame.phase, 4);
    QTest::ignoreMessage(QtDebugMsg, "setData: Error decoding Static number");
    frame.setValue(Zum::StaticState, QVariant(~qulonglong(0)));
    QCOMPARE(frame.staticState, -1);
}

void tst_Frame::readsAMapByKind()
{
    const QVariantMap map{{"b", true}, {"s", "text"}, {"i", 5}};
    QVERIFY(!morvane::readBool(map, "none").isValid());
    QVERIFY(!morvane::readString(map, "none").isValid());
    QVERIFY(!morvane::readInt(map, "none").isValid());
    QCOMPARE(morvane::readBool(map, "b"), QVariant(true));
    QCOMPARE(morvane::readBool(map, "i"), QVariant(false));
    QCOMPARE(morvane::readString(map, "s"), QVariant("text"));
    QCOMPARE(morvane::readString(map, "i"), QVariant(QString()));
    QCOMPARE(morvane::readInt(map, "i"), QVariant(5));
    QCOMPARE(morvane::readInt(map, "s"), QVariant(-1));
}

void tst_Frame::fillsAMapInFullAndCompactForm()
{
    Frame frame;
    frame.setGuid(30000000);
    frame.phase = 3;
    const QVariantMap compact = frame.toMap(10000007, true);
    QCOMPARE(compact.keys(),
             QStringList({"capFull", "capTumb", "capfullmiss", "gotCapImg", "gotRefImg", "guid", "hidden",
                          "mirrored", "prevGuid", "refFull", "refTumb", "reffullmiss"}));
    QCOMPARE(compact.value("prevGuid"), QVariant(10000007));
    const QVariantMap full = frame.toMap(-1, false);
    QCOMPARE(full.size(), 15);
    QCOMPARE(full.value("phase"), QVariant(3));
    QCOMPARE(full.value("static"), QVariant(-1));
    QCOMPARE(full.value("ingroup"), QVariant(false));
}

void tst_Frame::describesNoFrame()
{
    const QVariantMap map = Frame::emptyMap();
    QCOMPARE(map.keys(), QStringList({"capFull", "capTumb", "guid", "hidden", "ingroup", "mirrored", "phase",
                                      "prevGuid", "refFull", "refTumb", "static"}));
    for (const QString key : {"guid", "prevGuid", "phase", "static"})
        QCOMPARE(map.value(key), QVariant(-1));
}

QTEST_GUILESS_MAIN(tst_Frame)
#include "tst_frame.moc"
