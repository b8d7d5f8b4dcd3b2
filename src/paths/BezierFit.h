#pragma once

#include <QList>
#include <QPointF>

#include <array>

/// The numeric steps of curve fitting. Plain functions.
namespace morvane {

using Bezier = std::array<QPointF, 4>;

/// Points first to last of a list, both included, with the unit tangents at either end pointing inwards.
struct FitRange
{
    qsizetype first = 0;
    qsizetype last = 0;
    QPointF startTangent;
    QPointF endTangent;
};

struct FitError
{
    double distance = 0.0;    ///< Largest distance between a point and the curve at its parameter.
    qsizetype splitPoint = 0; ///< The last point that is so far away; an inner point of the range.
};

/// A vector shorter than 1e-12 stays as it is.
QPointF normalised(QPointF vector);

QPointF bezierAt(const Bezier &curve, double u);

/// Distances along the points divided by their sum, from 0 to 1; evenly spread where all points are the
/// same.
QList<double> chordLengthParameters(const QList<QPointF> &points, qsizetype first, qsizetype last);

/// The curve with the tangents of the range and the least squared distance from its points.
Bezier generateBezier(const QList<QPointF> &points, const FitRange &range, const QList<double> &parameters);

/// One Newton-Raphson step towards the parameter of the curve's point nearest to each point.
QList<double> reparameterised(const QList<QPointF> &points, const FitRange &range,
                              const QList<double> &parameters, const Bezier &curve);

FitError measureError(const QList<QPointF> &points, const FitRange &range, const QList<double> &parameters,
                      const Bezier &curve);

/// The end points with handles at a third of their distance along the tangents.
Bezier thirdsBezier(const QList<QPointF> &points, const FitRange &range);

/// The mean direction at an inner point, pointing back.
QPointF centreTangent(const QList<QPointF> &points, qsizetype centre);

} // namespace morvane
