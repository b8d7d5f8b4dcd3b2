#pragma once

#include "paths/MPathPoint.h"

#include <QList>
#include <QObject>
#include <QPointF>

#include <stop_token>

/// Replaces a run of points by a few cubic Bezier segments: the least-squares fit of P. J. Schneider, "An
/// Algorithm for Automatically Fitting Digitized Curves" (Graphics Gems, 1990), with two changes. Distances
/// are not squared, while the bound below which a fit is worth improving is the error squared; and an error
/// is kept between 0.5 and 5 units when an offset is asked for.
///
/// Keeps no state between fits; fits may run on any thread and at the same time.
class CurveFitter : public QObject
{
    Q_OBJECT

public:
    static constexpr double minError = 0.5;
    static constexpr double maxError = 5.0;
    static constexpr int maxIterations = 4;

    /// What a fit did.
    struct Report
    {
        int segmentCount = 0;
        int iterationCount = 0; ///< Reparameterisations in all segments together.
        bool stopped = false;   ///< Told to stop; the result is untouched.
    };

    using QObject::QObject;

    /// The error a fit with offset works with.
    static double boundedError(double error);

    /// Moves the points up and to the left by half of `width` along the given direction, 0 degrees being
    /// straight up, and fits them within the bounded error.
    Report fitWithOffset(QList<MPathPoint> *result, const QList<QPointF> &points, double error,
                         double angleDegrees, double width, const std::stop_token &stop = {}) const;

    /// Appends the segments to the result as cubic nodes without GUID, with a move to the first point ahead
    /// of them if the result was empty. Fewer than two points give nothing.
    Report fit(QList<MPathPoint> *result, const QList<QPointF> &points, double error,
               const std::stop_token &stop = {}) const;
};
