#include "paths/MPathPoint.h"

#include <QMetaProperty>
#include <QTest>

#include <limits>

class TestMPathPoint : public QObject
{
    Q_OBJECT

private slots:
    void endsWhereItsTypeSays();
    void quadraticNodeHasItsEndAtV3AndV4();
    void settingTheEndLeavesHandles();
    void givesItsHandles();
    void keepsItsEndWhenItBecomesAnotherCommand();
    void lineThatBecomesACurveKeepsItsPicture();
    void movesAndScalesWithItsHandles();
    void staysWithinTheLimits();
    void tellsTypesFromOtherNumbers();
    void isReadableByName();
};

void TestMPathPoint::endsWhereItsTypeSays()
{
    QCOMPARE(MPathPoint::plain(MPathPoint::Move, {1, 2}).end(), QPointF(1, 2));
    QCOMPARE(MPathPoint::plain(MPathPoint::Line, {3, 4}).end(), QPointF(3, 4));
    const MPathPoint cubic = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    QCOMPARE(cubic.end(), QPointF(5, 6));
    QCOMPARE(QPointF(cubic.IX, cubic.IY), QPointF(5, 6));
}

void TestMPathPoint::quadraticNodeHasItsEndAtV3AndV4()
{
    const MPathPoint node = MPathPoint::quadratic({1, 2}, {3, 4});
    QCOMPARE(node.type, 3);
    QCOMPARE(QPointF(node.V3, node.V4), QPointF(3, 4));
    QCOMPARE(node.end(), QPointF(3, 4));
    QCOMPARE(QPointF(node.IX, node.IY), QPointF(3, 4));
}

void TestMPathPoint::settingTheEndLeavesHandles()
{
    MPathPoint node = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    node.setEnd({50, 60});
    QCOMPARE(node.controls(), (QList<QPointF>{{1, 2}, {3, 4}}));
    QCOMPARE(QPointF(node.IX, node.IY), QPointF(50, 60));
    node = MPathPoint::quadratic({1, 2}, {3, 4});
    node.setEnd({7, 8});
    QCOMPARE(QPointF(node.V3, node.V4), QPointF(7, 8));
}

void TestMPathPoint::givesItsHandles()
{
    QVERIFY(MPathPoint::plain(MPathPoint::Line, {3, 4}).controls().isEmpty());
    QCOMPARE(MPathPoint::quadratic({1, 2}, {3, 4}).controls(), (QList<QPointF>{{1, 2}}));
}

void TestMPathPoint::keepsItsEndWhenItBecomesAnotherCommand()
{
    MPathPoint node = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    node.GUID = 17;
    node.Ingroup = true;
    node.Store = 9;
    for (const int type : {MPathPoint::Move, MPathPoint::Line, MPathPoint::Cubic, MPathPoint::Quadratic}) {
        const MPathPoint other = node.converted(type, {0, 0});
        QCOMPARE(other.type, type);
        QCOMPARE(other.end(), QPointF(5, 6));
        QCOMPARE(other.GUID, 17);
        QCOMPARE(other.Ingroup, true);
        QCOMPARE(other.Store, 9);
    }
}

void TestMPathPoint::lineThatBecomesACurveKeepsItsPicture()
{
    const MPathPoint line = MPathPoint::plain(MPathPoint::Line, {30, 60});
    QCOMPARE(line.converted(MPathPoint::Cubic, {0, 0}).controls(), (QList<QPointF>{{10, 20}, {20, 40}}));
    QCOMPARE(line.converted(MPathPoint::Quadratic, {0, 0}).controls(), (QList<QPointF>{{15, 30}}));
}

void TestMPathPoint::movesAndScalesWithItsHandles()
{
    MPathPoint node = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    node.translate({10, 20});
    QVERIFY(node.sameGeometry(MPathPoint::cubic({11, 22}, {13, 24}, {15, 26})));
    QCOMPARE(QPointF(node.IX, node.IY), QPointF(15, 26));
    node.scale(2, 3, {11, 22});
    QVERIFY(node.sameGeometry(MPathPoint::cubic({11, 22}, {15, 28}, {19, 34})));
}

void TestMPathPoint::staysWithinTheLimits()
{
    const double limit = morvane::maxPathCoordinate;
    MPathPoint node = MPathPoint::plain(MPathPoint::Line, {limit, -limit});
    node.translate({5, -5});
    QCOMPARE(node.end(), QPointF(limit, -limit));
    node.scale(1e300, 1e300);
    QCOMPARE(node.end(), QPointF(limit, -limit));
    QCOMPARE(morvane::boundedPathCoordinate(std::numeric_limits<double>::quiet_NaN()), 0.0);
    QVERIFY(!morvane::isPathCoordinate(std::numeric_limits<double>::quiet_NaN()));
    QVERIFY(!morvane::isPathCoordinate(std::numeric_limits<double>::infinity()));
    QVERIFY(!morvane::isPathCoordinate(limit * 1.001));
    QVERIFY(morvane::isPathCoordinate(-limit));
}

void TestMPathPoint::tellsTypesFromOtherNumbers()
{
    for (const int type : {0, 1, 2, 3})
        QVERIFY(MPathPoint::isType(type));
    for (const int number : {-1, 4, 100})
        QVERIFY(!MPathPoint::isType(number));
}

void TestMPathPoint::isReadableByName()
{
    MPathPoint node = MPathPoint::cubic({1, 2}, {3, 4}, {5, 6});
    node.GUID = 12;
    const QMetaObject &meta = MPathPoint::staticMetaObject;
    for (const char *name :
         {"Ingroup", "type", "GUID", "V1", "V2", "V3", "V4", "V5", "V6", "IX", "IY", "Store"})
        QVERIFY2(meta.indexOfProperty(name) >= 0, name);
    QCOMPARE(meta.property(meta.indexOfProperty("V5")).readOnGadget(&node).toDouble(), 5.0);
    QCOMPARE(meta.property(meta.indexOfProperty("GUID")).readOnGadget(&node).toInt(), 12);
}

QTEST_GUILESS_MAIN(TestMPathPoint)
#include "tst_mpathpoint.moc"
