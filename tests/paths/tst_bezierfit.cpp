#include "paths/BezierFit.h"

#include <QTest>

#include <cmath>
#include <limits>

using morvane::Bezier;
using morvane::FitRange;

class TestBezierFit : public QObject
{
    Q_OBJECT

private slots:
    void chordLengths();
    void chordLengthsOfOneSpot();
    void thirdsOfTheDistance();
    void zeroTangentIsNotScaled();
    void recoversAKnownCurve();
    void backwardHandlesFallBackToThirds();
    void zeroDeterminantFallsBackToThirds();
    void errorIsPlainDistanceAndTheLastWorstPoint();
    void errorThatIsNoNumberIsTheWorst();
    void newtonStepComesNearer();
    void zeroDenominatorLeavesTheParameter();
    void centreTangentPointsBack();
    void normalisesWhatHasALength();
};

namespace {

const Bezier arch{QPointF(0, 0), QPointF(20, 60), QPointF(90, 70), QPointF(100, 0)};

FitRange rangeOf(const Bezier &curve, qsizetype last)
{
    return {0, last, morvane::normalised(curve[1] - curve[0]), morvane::normalised(curve[2] - curve[3])};
}

} // namespace

void TestBezierFit::chordLengths()
{
    const QList<QPointF> points{{9, 9}, {0, 0}, {3, 4}, {3, 19}};
    QCOMPARE(morvane::chordLengthParameters(points, 1, 3), (QList<double>{0.0, 0.25, 1.0}));
}

void TestBezierFit::chordLengthsOfOneSpot()
{
    const QList<QPointF> points(3, QPointF(5, 5));
    QCOMPARE(morvane::chordLengthParameters(points, 0, 2), (QList<double>{0.0, 0.5, 1.0}));
}

void TestBezierFit::thirdsOfTheDistance()
{
    const Bezier curve = morvane::thirdsBezier({{0, 0}, {30, 0}}, {0, 1, {0, 1}, {-1, 0}});
    QCOMPARE(curve, (Bezier{QPointF(0, 0), QPointF(0, 10), QPointF(20, 0), QPointF(30, 0)}));
}

void TestBezierFit::zeroTangentIsNotScaled()
{
    const Bezier curve = morvane::thirdsBezier({{0, 0}, {30, 0}}, {0, 1, {0, 0}, {-1, 0}});
    QCOMPARE(curve[1], QPointF(0, 0));
}

void TestBezierFit::recoversAKnownCurve()
{
    QList<QPointF> points;
    QList<double> parameters;
    for (int at = 0; at <= 20; ++at) {
        parameters.append(at / 20.0);
        points.append(morvane::bezierAt(arch, at / 20.0));
    }
    const Bezier curve = morvane::generateBezier(points, rangeOf(arch, 20), parameters);
    for (std::size_t at = 0; at < curve.size(); ++at)
        QVERIFY(std::hypot(curve[at].x() - arch[at].x(), curve[at].y() - arch[at].y()) < 1e-6);
}

void TestBezierFit::backwardHandlesFallBackToThirds()
{
    // The tangents point away from where the points lie.
    const QList<QPointF> points{{0, 0}, {10, 0}, {20, 0}, {30, 0}};
    const FitRange range{0, 3, {-1, 0}, {1, 0}};
    const Bezier curve = morvane::generateBezier(points, range, morvane::chordLengthParameters(points, 0, 3));
    QCOMPARE(curve, morvane::thirdsBezier(points, range));
}

void TestBezierFit::zeroDeterminantFallsBackToThirds()
{
    const QList<QPointF> points{{0, 0}, {10, 3}, {20, -3}, {30, 0}};
    const FitRange range{0, 3, {0, 0}, {0, 0}};
    const Bezier curve = morvane::generateBezier(points, range, morvane::chordLengthParameters(points, 0, 3));
    QCOMPARE(curve, (Bezier{QPointF(0, 0), QPointF(0, 0), QPointF(30, 0), QPointF(30, 0)}));
}

void TestBezierFit::errorIsPlainDistanceAndTheLastWorstPoint()
{
    const Bezier line{QPointF(0, 0), QPointF(10, 0), QPointF(20, 0), QPointF(30, 0)};
    const QList<QPointF> points{{0, 0}, {6, 4}, {15, 1}, {24, -4}, {30, 0}};
    const QList<double> parameters{0, 0.2, 0.5, 0.8, 1};
    const morvane::FitError error = morvane::measureError(points, {0, 4, {}, {}}, parameters, line);
    QCOMPARE(error.distance, 4.0);
    QCOMPARE(error.splitPoint, 3);
}

void TestBezierFit::errorThatIsNoNumberIsTheWorst()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const Bezier broken{QPointF(0, 0), QPointF(none, 0), QPointF(20, 0), QPointF(30, 0)};
    const morvane::FitError error =
        morvane::measureError({{0, 0}, {1, 1}, {30, 0}}, {0, 2, {}, {}}, {0, 0.5, 1}, broken);
    QVERIFY(std::isinf(error.distance));
    QCOMPARE(error.splitPoint, 1);
}

void TestBezierFit::newtonStepComesNearer()
{
    const QPointF spot = morvane::bezierAt(arch, 0.4);
    const QList<double> improved =
        morvane::reparameterised({{0, 0}, spot, {100, 0}}, {0, 2, {}, {}}, {0, 0.45, 1}, arch);
    QVERIFY(std::abs(improved[1] - 0.4) < 0.01);
}

void TestBezierFit::zeroDenominatorLeavesTheParameter()
{
    const Bezier spot{QPointF(5, 5), QPointF(5, 5), QPointF(5, 5), QPointF(5, 5)};
    const QList<double> improved =
        morvane::reparameterised({{0, 0}, {1, 1}, {2, 2}}, {0, 2, {}, {}}, {0, 0.3, 1}, spot);
    QCOMPARE(improved, (QList<double>{0, 0.3, 1}));
}

void TestBezierFit::centreTangentPointsBack()
{
    QCOMPARE(morvane::centreTangent({{0, 0}, {10, 0}, {20, 0}}, 1), QPointF(-1, 0));
    QCOMPARE(morvane::centreTangent({{0, 0}, {10, 0}, {0, 0}}, 1), QPointF(0, 0));
}

void TestBezierFit::normalisesWhatHasALength()
{
    QCOMPARE(morvane::normalised({3, 4}), QPointF(0.6, 0.8));
    QCOMPARE(morvane::normalised({0, 0}), QPointF(0, 0));
    QCOMPARE(morvane::normalised({1e-13, 0}).x(), 1e-13);
}

QTEST_GUILESS_MAIN(TestBezierFit)
#include "tst_bezierfit.moc"
