#include "paths/PathEdits.h"

#include <algorithm>

namespace morvane {

namespace {

/// Bounds that grow point by point; QRectF::united would ignore rectangles without an extent.
class Bounds
{
public:
    void add(QPointF point)
    {
        if (m_empty) {
            m_low = m_high = point;
            m_empty = false;
            return;
        }
        m_low = {std::min(m_low.x(), point.x()), std::min(m_low.y(), point.y())};
        m_high = {std::max(m_high.x(), point.x()), std::max(m_high.y(), point.y())};
    }

    QRectF rect() const
    {
        return m_empty ? QRectF() : QRectF(m_low, m_high);
    }

private:
    bool m_empty = true;
    QPointF m_low;
    QPointF m_high;
};

} // namespace

PathEdit PathEdit::insertion(int index, const MPathPoint &node)
{
    return {Zum::ActionInsert, index, {}, node};
}

PathEdit PathEdit::removal(int index, const MPathPoint &node)
{
    return {Zum::ActionRemove, index, node, {}};
}

PathEdit PathEdit::change(int index, const MPathPoint &before, const MPathPoint &after)
{
    return {Zum::ActionModify, index, before, after};
}

int PathEdit::guid() const
{
    return action == Zum::ActionInsert ? after.GUID : before.GUID;
}

PathEdit PathEdit::inverse() const
{
    PathEdit other{action, index, after, before};
    if (action == Zum::ActionInsert)
        other.action = Zum::ActionRemove;
    else if (action == Zum::ActionRemove)
        other.action = Zum::ActionInsert;
    return other;
}

PathEdits planRemoval(const QList<MPathPoint> &nodes, QList<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());

    PathEdits edits;
    bool startIsGone = false;
    qsizetype next = 0;
    for (int row = rows.isEmpty() ? 0 : rows.first(); row < nodes.size(); ++row) {
        const MPathPoint &node = nodes[row];
        const bool removed = next < rows.size() && rows[next] == row;
        if (row == 0 || node.type == MPathPoint::Move)
            startIsGone = false;
        if (removed) {
            ++next;
            startIsGone = startIsGone || row == 0 || node.type == MPathPoint::Move;
            continue;
        }
        if (startIsGone)
            edits.append(PathEdit::change(row, node, node.converted(MPathPoint::Move, {})));
        startIsGone = false;
        if (next == rows.size())
            break;
    }
    for (auto row = rows.crbegin(); row != rows.crend(); ++row)
        edits.append(PathEdit::removal(*row, nodes[*row]));
    return edits;
}

PathEdits planLineUp(const QList<MPathPoint> &nodes, const QList<int> &rows, Zum::Orientation orientation)
{
    PathEdits edits;
    if (rows.isEmpty())
        return edits;
    const QPointF model = nodes[rows.first()].end();
    for (const int row : rows) {
        MPathPoint moved = nodes[row];
        const QPointF end = moved.end();
        moved.setEnd(orientation == Zum::Vertical ? QPointF(model.x(), end.y())
                                                  : QPointF(end.x(), model.y()));
        if (!moved.sameGeometry(nodes[row]))
            edits.append(PathEdit::change(row, nodes[row], moved));
    }
    return edits;
}

PathEdits planMove(const QList<MPathPoint> &nodes, const QList<int> &rows, QPointF offset)
{
    PathEdits edits;
    for (const int row : rows) {
        MPathPoint moved = nodes[row];
        moved.translate(offset);
        if (!moved.sameGeometry(nodes[row]))
            edits.append(PathEdit::change(row, nodes[row], moved));
    }
    return edits;
}

PathEdits planDeformation(const QList<MPathPoint> &nodes, const QList<int> &rows,
                          const QList<MPathPoint> &shape, const QRectF &target)
{
    const QRectF bounds = endPointBounds(shape);
    const double scaleX = bounds.width() > 0.0 ? target.width() / bounds.width() : 1.0;
    const double scaleY = bounds.height() > 0.0 ? target.height() / bounds.height() : 1.0;
    PathEdits edits;
    for (qsizetype at = 0; at < rows.size(); ++at) {
        const MPathPoint &node = nodes[rows[at]];
        MPathPoint deformed = shape[at];
        deformed.scale(scaleX, scaleY, bounds.topLeft());
        deformed.translate(target.topLeft() - bounds.topLeft());
        if (!deformed.sameGeometry(node))
            edits.append(PathEdit::change(rows[at], node, deformed));
    }
    return edits;
}

PathEdits planStraightening(const QList<MPathPoint> &nodes, const QList<int> &rows)
{
    PathEdits edits;
    for (const int row : rows)
        if (nodes[row].isCurve())
            edits.append(PathEdit::change(row, nodes[row], nodes[row].converted(MPathPoint::Line, {})));
    return edits;
}

QList<MPathPoint> rectangleNodes(QPointF corner, QPointF oppositeCorner)
{
    const QPointF second(oppositeCorner.x(), corner.y());
    const QPointF fourth(corner.x(), oppositeCorner.y());
    return {MPathPoint::plain(MPathPoint::Move, corner), MPathPoint::plain(MPathPoint::Line, second),
            MPathPoint::plain(MPathPoint::Line, oppositeCorner), MPathPoint::plain(MPathPoint::Line, fourth),
            MPathPoint::plain(MPathPoint::Line, corner)};
}

QRectF endPointBounds(const QList<MPathPoint> &nodes, const QList<int> &rows)
{
    Bounds bounds;
    for (const int row : rows)
        bounds.add(nodes[row].end());
    return bounds.rect();
}

QRectF endPointBounds(const QList<MPathPoint> &nodes)
{
    Bounds bounds;
    for (const MPathPoint &node : nodes)
        bounds.add(node.end());
    return bounds.rect();
}

} // namespace morvane
