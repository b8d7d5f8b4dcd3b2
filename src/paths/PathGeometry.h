#pragma once

#include "paths/MPathPoint.h"

#include <QList>
#include <QPainterPath>
#include <QPolygonF>
#include <QRectF>

/// What is drawn of a path, and questions about its shape. Plain functions of the nodes.
namespace morvane {

struct RenderPaths
{
    QPainterPath path;     ///< The curve.
    QPainterPath handlers; ///< A line from each node to each of its control points.
    QPolygonF dots;        ///< The end points.
};

/// The first node is drawn as a move whatever its command, since there is no point to draw from.
RenderPaths buildRenderPaths(const QList<MPathPoint> &nodes);

/// Where the subpaths lie: for each the bounds of its end points and the row of its first node.
struct SubpathTable
{
    QList<QRectF> boundingRects;
    QList<int> lineStarts;

    /// Whether the two lists belong together; logs "something went wrong. boundingRects.count() = %1,
    /// m_lengths.count() = %2" if they do not.
    bool isConsistent() const;
    /// The subpath that holds a row; -1 for a negative row or without subpaths.
    int holding(int row) const;
    /// The smallest subpath whose bounds hold the position, or -1. Bounds count as at least `thickness`
    /// wide and high, so that a straight line can be hit.
    int at(QPointF position, double thickness) const;
    /// One past the last row of a subpath.
    int endRow(int subpath, int nodeCount) const;
};

QList<int> findLineStarts(const QList<MPathPoint> &nodes);
SubpathTable findSubpaths(const QList<MPathPoint> &nodes);

/// The length along the path, from its start, of the point of the path nearest to the position; 0 for a path
/// without length. Found to half a canvas unit. QPainterPath::percentAtLength() leads back to the point.
double nearestLength(const QPainterPath &path, QPointF position);

} // namespace morvane
