#pragma once

#include "paths/MPathPoint.h"
#include "shared/Zum.h"

#include <QList>
#include <QRectF>

/// Edits of a path as values. A plan is computed from the nodes as they are, in one go; carrying it out,
/// recording it and taking it back are the same thing for every operation.
namespace morvane {

/// One step on one node. ActionInsert puts `after` at `index`, ActionRemove takes `before` away,
/// ActionModify replaces `before` with `after`. Removal and replacement find their node by GUID; `index` is
/// where it was when the plan was made.
struct PathEdit
{
    Zum::UndoRedoTypes action = Zum::NoUndoAction;
    int index = -1;
    MPathPoint before;
    MPathPoint after;

    static PathEdit insertion(int index, const MPathPoint &node);
    static PathEdit removal(int index, const MPathPoint &node);
    static PathEdit change(int index, const MPathPoint &before, const MPathPoint &after);

    int guid() const;
    /// The edit that takes this one back.
    PathEdit inverse() const;
};

using PathEdits = QList<PathEdit>;

/// Takes the listed rows away. A subpath that loses its first node starts at the next one that is left.
PathEdits planRemoval(const QList<MPathPoint> &nodes, QList<int> rows);

/// The end points of the rows take the x (Zum::Vertical) or the y (Zum::Horizontal) of the first of them.
PathEdits planLineUp(const QList<MPathPoint> &nodes, const QList<int> &rows, Zum::Orientation orientation);

/// Moves the rows, handles and all.
PathEdits planMove(const QList<MPathPoint> &nodes, const QList<int> &rows, QPointF offset);

/// Scales `shape`, one node for each of the rows, from its bounds to the target rectangle. An extent of zero
/// cannot be scaled and stays.
PathEdits planDeformation(const QList<MPathPoint> &nodes, const QList<int> &rows,
                          const QList<MPathPoint> &shape, const QRectF &target);

/// Curves among the rows become lines to the same end.
PathEdits planStraightening(const QList<MPathPoint> &nodes, const QList<int> &rows);

/// The closed subpath around a rectangle: a move and four lines.
QList<MPathPoint> rectangleNodes(QPointF corner, QPointF oppositeCorner);

/// Smallest rectangle around the end points; null for no rows.
QRectF endPointBounds(const QList<MPathPoint> &nodes, const QList<int> &rows);
QRectF endPointBounds(const QList<MPathPoint> &nodes);

} // namespace morvane
