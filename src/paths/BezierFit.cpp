#include "paths/BezierFit.h"

#include <cmath>
#include <limits>

namespace morvane {

namespace {

constexpr double zeroLength = 1e-12;
constexpr double determinantFloor = 1e-11;
constexpr double alphaFloor = 1e-6;

double dot(QPointF a, QPointF b)
{
    return QPointF::dotProduct(a, b);
}

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

QPointF scaledTo(QPointF vector, double newLength)
{
    const double oldLength = length(vector);
    return oldLength > zeroLength ? vector * (newLength / oldLength) : vector;
}

/// The sums of the least-squares problem: C * (alphaStart, alphaEnd) = X.
struct NormalEquations
{
    double c00 = 0.0;
    double c01 = 0.0;
    double c11 = 0.0;
    double x0 = 0.0;
    double x1 = 0.0;

    double determinant() const
    {
        const double value = c00 * c11 - c01 * c01;
        if (value != 0.0)
            return value;
        const double floor = c00 * c11 * determinantFloor;
        return floor != 0.0 ? floor : determinantFloor;
    }
};

} // namespace

QPointF normalised(QPointF vector)
{
    return scaledTo(vector, 1.0);
}

QPointF bezierAt(const Bezier &curve, double u)
{
    const double v = 1.0 - u;
    return curve[0] * (v * v * v) + curve[1] * (3.0 * u * v * v) + curve[2] * (3.0 * u * u * v)
           + curve[3] * (u * u * u);
}

QList<double> chordLengthParameters(const QList<QPointF> &points, qsizetype first, qsizetype last)
{
    QList<double> parameters{0.0};
    parameters.reserve(last - first + 1);
    for (qsizetype at = first + 1; at <= last; ++at)
        parameters.append(parameters.last() + length(points[at] - points[at - 1]));
    const double total = parameters.last();
    for (qsizetype at = 1; at < parameters.size(); ++at)
        parameters[at] = total > 0.0 ? parameters[at] / total : double(at) / double(last - first);
    return parameters;
}

Bezier thirdsBezier(const QList<QPointF> &points, const FitRange &range)
{
    const QPointF start = points[range.first];
    const QPointF end = points[range.last];
    const double third = length(end - start) / 3.0;
    return {start, start + scaledTo(range.startTangent, third), end + scaledTo(range.endTangent, third), end};
}

Bezier generateBezier(const QList<QPointF> &points, const FitRange &range, const QList<double> &parameters)
{
    const QPointF start = points[range.first];
    const QPointF end = points[range.last];
    NormalEquations sums;
    for (qsizetype at = 0; at < parameters.size(); ++at) {
        const double u = parameters[at];
        const double v = 1.0 - u;
        const double b0 = v * v * v;
        const double b1 = 3.0 * u * v * v;
        const double b2 = 3.0 * u * u * v;
        const double b3 = u * u * u;
        const QPointF a0 = scaledTo(range.startTangent, b1);
        const QPointF a1 = scaledTo(range.endTangent, b2);
        const QPointF rest = points[range.first + at] - (start * (b0 + b1) + end * (b2 + b3));
        sums.c00 += dot(a0, a0);
        sums.c01 += dot(a0, a1);
        sums.c11 += dot(a1, a1);
        sums.x0 += dot(a0, rest);
        sums.x1 += dot(a1, rest);
    }
    const double determinant = sums.determinant();
    const double alphaStart = (sums.x0 * sums.c11 - sums.x1 * sums.c01) / determinant;
    const double alphaEnd = (sums.c00 * sums.x1 - sums.c01 * sums.x0) / determinant;

    // A handle that points the wrong way or has no length: fall back on the heuristic of Wu and Barsky.
    // Written so that a value that is not a number falls back too.
    const bool usable = alphaStart >= alphaFloor && alphaEnd >= alphaFloor && std::isfinite(alphaStart)
                        && std::isfinite(alphaEnd);
    if (!usable)
        return thirdsBezier(points, range);
    return {start, start + range.startTangent * alphaStart, end + range.endTangent * alphaEnd, end};
}

QList<double> reparameterised(const QList<QPointF> &points, const FitRange &range,
                              const QList<double> &parameters, const Bezier &curve)
{
    std::array<QPointF, 3> first;
    for (std::size_t at = 0; at < first.size(); ++at)
        first[at] = (curve[at + 1] - curve[at]) * 3.0;
    const std::array<QPointF, 2> second{(first[1] - first[0]) * 2.0, (first[2] - first[1]) * 2.0};

    QList<double> improved;
    improved.reserve(parameters.size());
    for (qsizetype at = 0; at < parameters.size(); ++at) {
        const double u = parameters[at];
        const double v = 1.0 - u;
        const QPointF away = bezierAt(curve, u) - points[range.first + at];
        const QPointF slope = first[0] * (v * v) + first[1] * (2.0 * u * v) + first[2] * (u * u);
        const QPointF bend = second[0] * v + second[1] * u;
        const double denominator = dot(slope, slope) + dot(away, bend);
        improved.append(denominator == 0.0 ? u : u - dot(away, slope) / denominator);
    }
    return improved;
}

FitError measureError(const QList<QPointF> &points, const FitRange &range, const QList<double> &parameters,
                      const Bezier &curve)
{
    FitError error{0.0, range.first + (range.last - range.first + 1) / 2};
    for (qsizetype at = range.first + 1; at < range.last; ++at) {
        double distance = length(bezierAt(curve, parameters[at - range.first]) - points[at]);
        if (std::isnan(distance))
            distance = std::numeric_limits<double>::infinity();
        if (distance >= error.distance)
            error = {distance, at};
    }
    return error;
}

QPointF centreTangent(const QList<QPointF> &points, qsizetype centre)
{
    const QPointF before = points[centre - 1] - points[centre];
    const QPointF after = points[centre] - points[centre + 1];
    return normalised((before + after) / 2.0);
}

} // namespace morvane
