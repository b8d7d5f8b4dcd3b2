#include "paths/CurveFitter.h"
#include "paths/PathGeometry.h"

#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <memory>

class TestCurveFitter : public QObject
{
    Q_OBJECT

private slots:
    void twoPointsGiveOneSegmentWithHandlesAtAThird();
    void fewerThanTwoPointsGiveNothing();
    void firstNodeIsAMoveInAnEmptyResultOnly();
    void errorStaysBetweenHalfAndFive_data();
    void errorStaysBetweenHalfAndFive();
    void errorOfHalfNeverIterates();
    void errorOfFiveIteratesWhenTheFirstMeasureIsBelowTwentyFive();
    void firstMeasureAboveTheSquareSplitsAtOnce();
    void fitMovesTheStrokeByHalfTheWidth();
    void curveStaysWithinTheError_data();
    void curveStaysWithinTheError();
    void largerErrorGivesNoMoreSegments();
    void oneSpotIsFitted();
    void stoppedFitLeavesTheResult();
    void anyPointsAreFittedWithoutHarm();
};

namespace {

QList<QPointF> wave(double height, int points = 60)
{
    QList<QPointF> stroke;
    for (int at = 0; at < points; ++at)
        stroke.append({at * 5.0, 100.0 + height * std::sin(at * 0.2)});
    return stroke;
}

/// Largest distance from a point to what is drawn of the nodes.
double distanceFrom(const QList<MPathPoint> &nodes, const QList<QPointF> &points)
{
    const QPainterPath path = morvane::buildRenderPaths(nodes).path;
    double worst = 0.0;
    for (const QPointF &point : points) {
        const double length = morvane::nearestLength(path, point);
        const QPointF near = path.pointAtPercent(path.percentAtLength(length));
        worst = std::max(worst, std::hypot(near.x() - point.x(), near.y() - point.y()));
    }
    return worst;
}

} // namespace

void TestCurveFitter::twoPointsGiveOneSegmentWithHandlesAtAThird()
{
    QList<MPathPoint> nodes;
    const CurveFitter::Report report = CurveFitter().fit(&nodes, {{10, 10}, {40, 50}}, 1.0);
    QCOMPARE(report.segmentCount, 1);
    QCOMPARE(nodes.size(), 2);
    QVERIFY(nodes[0].sameGeometry(MPathPoint::plain(MPathPoint::Move, {10, 10})));
    QCOMPARE(nodes[1].type, int(MPathPoint::Cubic));
    QCOMPARE(nodes[1].controls(), (QList<QPointF>{{20, 10 + 40.0 / 3.0}, {30, 50 - 40.0 / 3.0}}));
    QCOMPARE(QPointF(nodes[1].IX, nodes[1].IY), QPointF(40, 50));
}

void TestCurveFitter::fewerThanTwoPointsGiveNothing()
{
    QList<MPathPoint> nodes;
    CurveFitter().fit(&nodes, {}, 1.0);
    CurveFitter().fit(&nodes, {{1, 1}}, 1.0);
    QVERIFY(nodes.isEmpty());
}

void TestCurveFitter::firstNodeIsAMoveInAnEmptyResultOnly()
{
    QList<MPathPoint> nodes;
    CurveFitter().fit(&nodes, {{0, 0}, {10, 0}}, 1.0);
    CurveFitter().fit(&nodes, {{10, 0}, {20, 0}}, 1.0);
    QCOMPARE(nodes.size(), 3);
    QCOMPARE(nodes[0].type, int(MPathPoint::Move));
    QCOMPARE(nodes[1].type, int(MPathPoint::Cubic));
    QCOMPARE(nodes[2].type, int(MPathPoint::Cubic));
}

void TestCurveFitter::errorStaysBetweenHalfAndFive_data()
{
    QTest::addColumn<double>("asked");
    QTest::addColumn<double>("used");
    QTest::newRow("50") << 0.5 << 0.5;
    QTest::newRow("below") << 0.1 << 0.5;
    QTest::newRow("negative") << -3.0 << 0.5;
    QTest::newRow("not a number") << std::nan("") << 0.5;
    QTest::newRow("between") << 3.0 << 3.0;
    QTest::newRow("500") << 5.0 << 5.0;
    QTest::newRow("above") << 80.0 << 5.0;
}

void TestCurveFitter::errorStaysBetweenHalfAndFive()
{
    QFETCH(double, asked);
    QFETCH(double, used);
    QCOMPARE(CurveFitter::boundedError(asked), used);
}

void TestCurveFitter::errorOfHalfNeverIterates()
{
    for (const double height : {1.0, 5.0, 40.0}) {
        QList<MPathPoint> nodes;
        QCOMPARE(CurveFitter().fitWithOffset(&nodes, wave(height), 0.5, 4.0, 1.0).iterationCount, 0);
        QVERIFY(nodes.size() > 1);
    }
}

void TestCurveFitter::errorOfFiveIteratesWhenTheFirstMeasureIsBelowTwentyFive()
{
    // One range: a straight run with a spike of 10 in the middle, so that the first measure is near 10.
    QList<QPointF> points;
    for (int at = 0; at <= 10; ++at)
        points.append({at * 20.0, at == 5 ? 12.0 : 0.0});
    QList<MPathPoint> nodes;
    const CurveFitter::Report report = CurveFitter().fitWithOffset(&nodes, points, 5.0, 4.0, 1.0);
    QVERIFY(report.iterationCount > 0);
    QList<MPathPoint> precise;
    QCOMPARE(CurveFitter().fitWithOffset(&precise, points, 0.5, 4.0, 1.0).iterationCount, 0);
}

void TestCurveFitter::firstMeasureAboveTheSquareSplitsAtOnce()
{
    // There and back: the first curve has no length and misses the middle by 400. Both halves are pairs,
    // which are not measured.
    QList<MPathPoint> nodes;
    const CurveFitter::Report report = CurveFitter().fit(&nodes, {{0, 0}, {400, 0}, {0, 0}}, 5.0);
    QCOMPARE(report.iterationCount, 0);
    QCOMPARE(report.segmentCount, 2);
}

void TestCurveFitter::fitMovesTheStrokeByHalfTheWidth()
{
    QList<MPathPoint> nodes;
    CurveFitter().fitWithOffset(&nodes, {{100, 100}, {150, 100}, {200, 100}}, 0.5, 4.0, 1.0);
    QCOMPARE(nodes.size(), 2);
    const double angle = 4.0 * M_PI / 180.0;
    const QPointF offset(-std::sin(angle) * 0.5, -std::cos(angle) * 0.5);
    QCOMPARE(nodes[0].end(), QPointF(100, 100) + offset);
    QCOMPARE(nodes[1].end(), QPointF(200, 100) + offset);
    QVERIFY(std::abs(std::hypot(offset.x(), offset.y()) - 0.5) < 1e-12);
}

void TestCurveFitter::curveStaysWithinTheError_data()
{
    QTest::addColumn<double>("error");
    for (const double error : {0.5, 1.0, 2.5, 5.0})
        QTest::addRow("%g", error) << error;
}

void TestCurveFitter::curveStaysWithinTheError()
{
    QFETCH(double, error);
    for (const double height : {5.0, 40.0, 120.0}) {
        QList<MPathPoint> nodes;
        CurveFitter().fit(&nodes, wave(height), error);
        QVERIFY(distanceFrom(nodes, wave(height)) <= error + 0.1);
        QCOMPARE(nodes.first().end(), wave(height).first());
        QCOMPARE(nodes.last().end(), wave(height).last());
        QVERIFY(nodes.size() < wave(height).size());
    }
}

void TestCurveFitter::largerErrorGivesNoMoreSegments()
{
    qsizetype before = 1000;
    for (const double error : {0.5, 1.0, 2.0, 5.0}) {
        QList<MPathPoint> nodes;
        CurveFitter().fit(&nodes, wave(60.0, 200), error);
        QVERIFY(nodes.size() <= before);
        before = nodes.size();
    }
}

void TestCurveFitter::oneSpotIsFitted()
{
    QList<MPathPoint> nodes;
    CurveFitter().fit(&nodes, QList<QPointF>(20, QPointF(7, 7)), 0.5);
    QCOMPARE(nodes.size(), 2);
    QCOMPARE(nodes[1].end(), QPointF(7, 7));
    QCOMPARE(nodes[1].controls(), (QList<QPointF>{{7, 7}, {7, 7}}));
}

void TestCurveFitter::stoppedFitLeavesTheResult()
{
    const auto stop = std::make_unique<std::stop_source>();
    stop->request_stop();
    QList<MPathPoint> nodes;
    const CurveFitter::Report report = CurveFitter().fit(&nodes, wave(50), 0.5, stop->get_token());
    QVERIFY(report.stopped);
    QVERIFY(nodes.isEmpty());
}

/// Points at random, the same in every run, with repeats, spikes and far jumps among them.
void TestCurveFitter::anyPointsAreFittedWithoutHarm()
{
    QRandomGenerator random(4711);
    for (int round = 0; round < 300; ++round) {
        QList<QPointF> points;
        const double reach = std::pow(10.0, random.bounded(8.0));
        const int count = random.bounded(2, 60);
        while (points.size() < count) {
            if (!points.isEmpty() && random.bounded(4) == 0)
                points.append(points[random.bounded(int(points.size()))]);
            else
                points.append({random.bounded(2 * reach) - reach, random.bounded(2 * reach) - reach});
        }
        QList<MPathPoint> nodes;
        CurveFitter().fitWithOffset(&nodes, points, random.bounded(6.0), 4.0, 1.0);
        QVERIFY(nodes.size() >= 2 && nodes.size() <= points.size());
        for (const MPathPoint &node : nodes)
            for (const double value : {node.V1, node.V2, node.V3, node.V4, node.V5, node.V6})
                QVERIFY(std::isfinite(value));
    }
}

QTEST_GUILESS_MAIN(TestCurveFitter)
#include "tst_curvefitter.moc"
