#include "paths/PathGeometry.h"

#include "paths/PathEdits.h"

#include <QDebug>
#include <QLineF>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace morvane {

namespace {

/// Steps of the search along the path, in canvas units: the first pass and where the refinement ends.
constexpr double coarseStep = 3.0;
constexpr double fineStep = 0.5;
/// A segment may be as long as a file says; this bounds the first pass over it.
constexpr int maxSamplesPerSegment = 4096;

double squaredDistance(QPointF a, QPointF b)
{
    const QPointF way = a - b;
    return QPointF::dotProduct(way, way);
}

/// One drawn piece of a painter path, a line or a cubic.
struct Segment
{
    std::array<QPointF, 4> points;
    bool isLine = true;

    QPointF at(double t) const
    {
        if (isLine)
            return points[0] + (points[3] - points[0]) * t;
        const double s = 1.0 - t;
        return points[0] * (s * s * s) + points[1] * (3.0 * s * s * t) + points[2] * (3.0 * s * t * t)
               + points[3] * (t * t * t);
    }

    /// The length from the start to the parameter, measured as the painter path measures itself.
    double lengthTo(double t) const
    {
        if (isLine)
            return QLineF(points[0], points[3]).length() * t;
        const QPointF a = points[0] + (points[1] - points[0]) * t;
        const QPointF b = points[1] + (points[2] - points[1]) * t;
        const QPointF c = points[2] + (points[3] - points[2]) * t;
        const QPointF ab = a + (b - a) * t;
        const QPointF bc = b + (c - b) * t;
        QPainterPath part(points[0]);
        part.cubicTo(a, ab, ab + (bc - ab) * t);
        return part.length();
    }

    double squaredDistanceOfBox(QPointF position) const
    {
        const auto [left, right] = std::minmax({points[0].x(), points[1].x(), points[2].x(), points[3].x()});
        const auto [top, bottom] = std::minmax({points[0].y(), points[1].y(), points[2].y(), points[3].y()});
        return squaredDistance(
            position, {std::clamp(position.x(), left, right), std::clamp(position.y(), top, bottom)});
    }
};

/// Calls `visit` with each drawn segment in order.
template <typename Function>
void forEachSegment(const QPainterPath &path, Function visit)
{
    QPointF from;
    for (int at = 0; at < path.elementCount(); ++at) {
        const QPainterPath::Element element = path.elementAt(at);
        if (element.isLineTo()) {
            visit(Segment{{from, from, element, element}, true});
        } else if (element.isCurveTo() && at + 2 < path.elementCount()) {
            const QPointF end = path.elementAt(at + 2);
            visit(Segment{{from, element, path.elementAt(at + 1), end}, false});
            at += 2;
            from = end;
            continue;
        }
        from = element;
    }
}

struct Nearest
{
    double squaredDistance = std::numeric_limits<double>::infinity();
    double length = 0.0;
};

/// Walks the segment in coarse steps and then closes in on the best one.
void searchSegment(const Segment &segment, QPointF position, double lengthBefore, double length,
                   Nearest &best)
{
    const int samples =
        std::clamp(int(std::min(length / coarseStep, double(maxSamplesPerSegment))), 1, maxSamplesPerSegment);
    double bestT = 0.0;
    double bestDistance = std::numeric_limits<double>::infinity();
    for (int at = 0; at <= samples; ++at) {
        const double t = double(at) / samples;
        const double distance = squaredDistance(segment.at(t), position);
        if (distance < bestDistance) {
            bestDistance = distance;
            bestT = t;
        }
    }
    for (double step = 0.5 / samples; step * length > fineStep / 2.0; step /= 2.0) {
        for (const double t : {std::max(0.0, bestT - step), std::min(1.0, bestT + step)}) {
            const double distance = squaredDistance(segment.at(t), position);
            if (distance < bestDistance) {
                bestDistance = distance;
                bestT = t;
            }
        }
    }
    if (bestDistance < best.squaredDistance)
        best = {bestDistance, lengthBefore + segment.lengthTo(bestT)};
}

} // namespace

RenderPaths buildRenderPaths(const QList<MPathPoint> &nodes)
{
    RenderPaths paths;
    paths.path.reserve(int(nodes.size()));
    paths.dots.reserve(nodes.size());
    for (qsizetype row = 0; row < nodes.size(); ++row) {
        const MPathPoint &node = nodes[row];
        const QPointF end = node.end();
        switch (row == 0 ? int(MPathPoint::Move) : node.type) {
            case MPathPoint::Line:
                paths.path.lineTo(end);
                break;
            case MPathPoint::Cubic:
                paths.path.cubicTo({node.V1, node.V2}, {node.V3, node.V4}, end);
                break;
            case MPathPoint::Quadratic:
                paths.path.quadTo({node.V1, node.V2}, end);
                break;
            default:
                paths.path.moveTo(end);
                break;
        }
        for (const QPointF &control : node.controls()) {
            paths.handlers.moveTo(end);
            paths.handlers.lineTo(control);
        }
        paths.dots.append(end);
    }
    return paths;
}

bool SubpathTable::isConsistent() const
{
    if (boundingRects.size() == lineStarts.size())
        return true;
    qWarning().noquote() << QStringLiteral(
                                "something went wrong. boundingRects.count() = %1, m_lengths.count() = %2")
                                .arg(boundingRects.size())
                                .arg(lineStarts.size());
    return false;
}

int SubpathTable::holding(int row) const
{
    if (row < 0)
        return -1;
    const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), row);
    return int(next - lineStarts.begin()) - 1;
}

int SubpathTable::at(QPointF position, double thickness) const
{
    int found = -1;
    double smallestArea = std::numeric_limits<double>::infinity();
    for (qsizetype subpath = 0; subpath < boundingRects.size(); ++subpath) {
        const QRectF &rect = boundingRects[subpath];
        const double extraX = std::max(0.0, thickness - rect.width()) / 2.0;
        const double extraY = std::max(0.0, thickness - rect.height()) / 2.0;
        const QRectF target = rect.adjusted(-extraX, -extraY, extraX, extraY);
        const double area = target.width() * target.height();
        if (target.contains(position) && area < smallestArea) {
            smallestArea = area;
            found = int(subpath);
        }
    }
    return found;
}

int SubpathTable::endRow(int subpath, int nodeCount) const
{
    return subpath + 1 < lineStarts.size() ? lineStarts[subpath + 1] : nodeCount;
}

QList<int> findLineStarts(const QList<MPathPoint> &nodes)
{
    QList<int> starts;
    for (qsizetype row = 0; row < nodes.size(); ++row)
        if (row == 0 || nodes[row].type == MPathPoint::Move)
            starts.append(int(row));
    return starts;
}

SubpathTable findSubpaths(const QList<MPathPoint> &nodes)
{
    SubpathTable table;
    table.lineStarts = findLineStarts(nodes);
    for (qsizetype subpath = 0; subpath < table.lineStarts.size(); ++subpath) {
        const int start = table.lineStarts[subpath];
        const int end = table.endRow(int(subpath), int(nodes.size()));
        table.boundingRects.append(endPointBounds(nodes.mid(start, end - start)));
    }
    return table;
}

double nearestLength(const QPainterPath &path, QPointF position)
{
    Nearest best;
    double lengthBefore = 0.0;
    forEachSegment(path, [&](const Segment &segment) {
        const double length = segment.lengthTo(1.0);
        if (segment.squaredDistanceOfBox(position) < best.squaredDistance)
            searchSegment(segment, position, lengthBefore, length, best);
        lengthBefore += length;
    });
    return std::min(best.length, lengthBefore);
}

} // namespace morvane
