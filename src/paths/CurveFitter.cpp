#include "paths/CurveFitter.h"

#include "paths/BezierFit.h"

#include <QtMath>

#include <cmath>
#include <optional>

using morvane::Bezier;
using morvane::FitRange;

namespace {

/// One fit of a whole run: takes ranges from a stack of its own, as a recursion could go as deep as there
/// are points.
class Run
{
public:
    Run(const QList<QPointF> &points, double error) : m_points(points), m_error(error)
    {
    }

    QList<Bezier> segments(const FitRange &whole, CurveFitter::Report &report, const std::stop_token &stop)
    {
        QList<Bezier> found;
        QList<FitRange> open{whole};
        while (!open.isEmpty()) {
            if (stop.stop_requested()) {
                report.stopped = true;
                return {};
            }
            const FitRange range = open.takeLast();
            qsizetype splitPoint = range.first;
            if (const auto curve = fitRange(range, splitPoint, report)) {
                found.append(*curve);
                continue;
            }
            const QPointF tangent = morvane::centreTangent(m_points, splitPoint);
            open.append({splitPoint, range.last, -tangent, range.endTangent});
            open.append({range.first, splitPoint, range.startTangent, tangent});
        }
        return found;
    }

private:
    /// A curve within the error, or nothing and the point where to split.
    std::optional<Bezier> fitRange(const FitRange &range, qsizetype &splitPoint, CurveFitter::Report &report)
    {
        if (range.last - range.first == 1)
            return morvane::thirdsBezier(m_points, range);

        QList<double> parameters = morvane::chordLengthParameters(m_points, range.first, range.last);
        Bezier curve = morvane::generateBezier(m_points, range, parameters);
        morvane::FitError measured = morvane::measureError(m_points, range, parameters, curve);
        if (measured.distance < m_error)
            return curve;
        if (measured.distance < m_error * m_error) {
            for (int iteration = 0; iteration < CurveFitter::maxIterations; ++iteration) {
                ++report.iterationCount;
                parameters = morvane::reparameterised(m_points, range, parameters, curve);
                curve = morvane::generateBezier(m_points, range, parameters);
                measured = morvane::measureError(m_points, range, parameters, curve);
                if (measured.distance < m_error)
                    return curve;
            }
        }
        splitPoint = measured.splitPoint;
        return std::nullopt;
    }

    const QList<QPointF> &m_points;
    const double m_error;
};

} // namespace

double CurveFitter::boundedError(double error)
{
    if (error > maxError)
        return maxError;
    return error > minError ? error : minError;
}

CurveFitter::Report CurveFitter::fitWithOffset(QList<MPathPoint> *result, const QList<QPointF> &points,
                                               double error, double angleDegrees, double width,
                                               const std::stop_token &stop) const
{
    const double angle = qDegreesToRadians(angleDegrees);
    const QPointF offset(std::sin(angle) * width * 0.5, std::cos(angle) * width * 0.5);
    QList<QPointF> shifted;
    shifted.reserve(points.size());
    for (const QPointF &point : points)
        shifted.append(point - offset);
    return fit(result, shifted, boundedError(error), stop);
}

CurveFitter::Report CurveFitter::fit(QList<MPathPoint> *result, const QList<QPointF> &points, double error,
                                     const std::stop_token &stop) const
{
    Report report;
    const qsizetype last = points.size() - 1;
    if (last < 1)
        return report;
    const FitRange whole{0, last, morvane::normalised(points[1] - points[0]),
                         morvane::normalised(points[last - 1] - points[last])};
    const QList<Bezier> segments = Run(points, error).segments(whole, report, stop);
    if (segments.isEmpty())
        return report;
    if (result->isEmpty())
        result->append(MPathPoint::plain(MPathPoint::Move, segments.first()[0]));
    for (const Bezier &segment : segments)
        result->append(MPathPoint::cubic(segment[1], segment[2], segment[3]));
    report.segmentCount = int(segments.size());
    return report;
}
