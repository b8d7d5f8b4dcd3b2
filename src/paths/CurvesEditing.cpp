#include "paths/Curves.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numeric>

namespace {

bool refuseNumbers(const char *operation, std::initializer_list<qreal> numbers)
{
    const bool finite =
        std::all_of(numbers.begin(), numbers.end(), [](qreal value) { return std::isfinite(value); });
    if (!finite)
        qWarning("%s: a coordinate is not a number", operation);
    return !finite;
}

QPointF boundedPoint(qreal x, qreal y)
{
    return {morvane::boundedPathCoordinate(x), morvane::boundedPathCoordinate(y)};
}

/// A node from the arguments of a call. The end of a curve stands in its own arguments; a caller that gives
/// handles only leaves them at zero and means (x, y).
MPathPoint makeNode(int type, QPointF point, QPointF v12, QPointF v34, QPointF v56)
{
    switch (type) {
        case MPathPoint::Cubic:
            return MPathPoint::cubic(v12, v34, v56.isNull() ? point : v56);
        case MPathPoint::Quadratic:
            return MPathPoint::quadratic(v12, v34.isNull() ? point : v34);
        default:
            return MPathPoint::plain(type, point);
    }
}

double MPathPoint::*coordinateField(int role)
{
    switch (role) {
        case Curves::V1:
            return &MPathPoint::V1;
        case Curves::V2:
            return &MPathPoint::V2;
        case Curves::V3:
            return &MPathPoint::V3;
        case Curves::V4:
            return &MPathPoint::V4;
        case Curves::V5:
            return &MPathPoint::V5;
        case Curves::V6:
            return &MPathPoint::V6;
        default:
            return nullptr;
    }
}

/// Writes a value other than the selection; false for a role that cannot be written so.
bool writeValue(MPathPoint &node, int role, double value, QPointF previousEnd)
{
    switch (role) {
        case Curves::IX:
            node.setEnd({value, node.end().y()});
            return true;
        case Curves::IY:
            node.setEnd({node.end().x(), value});
            return true;
        case Curves::Store:
            node.Store = int(value);
            return true;
        case Curves::Id:
            if (!MPathPoint::isType(int(value)))
                return false;
            if (node.type != int(value))
                node = node.converted(int(value), previousEnd);
            return true;
        default:
            break;
    }
    double MPathPoint::*const field = coordinateField(role);
    if (!field)
        return false;
    node.*field = value;
    node.refreshEnd();
    return true;
}

bool writePoint(MPathPoint &node, int role, QPointF point)
{
    switch (role) {
        case Curves::XandY:
            node.setEnd(point);
            return true;
        case Curves::V1andV2:
            node.V1 = point.x();
            node.V2 = point.y();
            break;
        case Curves::V3andV4:
            node.V3 = point.x();
            node.V4 = point.y();
            break;
        case Curves::V5andV6:
            node.V5 = point.x();
            node.V6 = point.y();
            break;
        default:
            return false;
    }
    node.refreshEnd();
    return true;
}

} // namespace

void Curves::newPoint(int type, qreal x, qreal y, bool update, int insertAfter, qreal v1, qreal v2, qreal v3,
                      qreal v4, qreal v5, qreal v6)
{
    if (refuseEdit() || refuseNumbers("newPoint", {x, y, v1, v2, v3, v4, v5, v6}) || refuseGrowth(1))
        return;
    if (!MPathPoint::isType(type)) {
        qWarning("newPoint: unknown type %d", type);
        return;
    }
    if (insertAfter != -1 && !isRow(insertAfter)) {
        qWarning("newPoint: no node to insert after at %d", insertAfter);
        return;
    }
    MPathPoint node =
        makeNode(type, boundedPoint(x, y), boundedPoint(v1, v2), boundedPoint(v3, v4), boundedPoint(v5, v6));
    node.GUID = takeGuid();
    const int row = insertAfter == -1 ? count() : insertAfter + 1;
    if (update && row == count())
        m_strokeLength = type == MPathPoint::Move ? 1 : m_strokeLength + 1;
    perform({morvane::PathEdit::insertion(row, node)}, morvane::PathHistory::NoGesture, update);
}

void Curves::newRect(qreal x1, qreal y1, qreal x2, qreal y2)
{
    if (refuseEdit() || refuseNumbers("newRect", {x1, y1, x2, y2}))
        return;
    const QPointF corner = boundedPoint(x1, y1);
    const QPointF opposite = boundedPoint(x2, y2);
    QList<MPathPoint> outline = morvane::rectangleNodes(corner, opposite);
    if (corner == opposite || refuseGrowth(outline.size()))
        return;
    morvane::PathEdits edits;
    for (MPathPoint &node : outline) {
        node.GUID = takeGuid();
        edits.append(morvane::PathEdit::insertion(count() + int(edits.size()), node));
    }
    m_strokeLength = 0;
    perform(edits);
}

void Curves::updateData(int ind, qreal value, int role, bool updRenderPaths)
{
    if (!isRow(ind) || refuseNumbers("updateData", {value}))
        return;
    if (role == Ingroup) {
        setSelected({ind}, value != 0.0);
        return;
    }
    if (refuseEdit())
        return;
    MPathPoint node = nodes()[ind];
    const QPointF previousEnd = ind > 0 ? nodes()[ind - 1].end() : node.end();
    if (writeValue(node, role, morvane::boundedPathCoordinate(value), previousEnd))
        changeNode(ind, node, updRenderPaths);
}

void Curves::updatePos(int ind, qreal x, qreal y, int role)
{
    if (!isRow(ind) || refuseEdit() || refuseNumbers("updatePos", {x, y}))
        return;
    MPathPoint node = nodes()[ind];
    if (writePoint(node, role, boundedPoint(x, y)))
        changeNode(ind, node);
}

bool Curves::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!isRow(index.row()) || (role != Ingroup && refuseEdit()))
        return false;
    MPathPoint probe;
    if (value.typeId() == QMetaType::QPointF) {
        const QPointF point = value.toPointF();
        if (!std::isfinite(point.x()) || !std::isfinite(point.y()) || !writePoint(probe, role, point))
            return false;
        updatePos(index.row(), point.x(), point.y(), role);
        return true;
    }
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || (role != Ingroup && !writeValue(probe, role, number, {})))
        return false;
    updateData(index.row(), number, role);
    return true;
}

void Curves::changeNode(int row, const MPathPoint &changed, bool redraw)
{
    const MPathPoint &node = nodes()[row];
    if (changed.sameGeometry(node) && changed.Store == node.Store)
        return;
    const int gesture = row == currentIndex() ? node.GUID : int(morvane::PathHistory::NoGesture);
    perform({morvane::PathEdit::change(row, node, changed)}, gesture, redraw);
}

void Curves::duplicatePoint(int indx)
{
    if (!isRow(indx) || refuseEdit() || refuseGrowth(1))
        return;
    // A second move would cut the subpath in two; a curve that ends where it starts would draw a loop unless
    // its handles are there too.
    const MPathPoint &node = nodes()[indx];
    MPathPoint copy = node.converted(MPathPoint::Line, {});
    if (node.isCurve())
        copy = copy.converted(node.type, node.end());
    copy.GUID = takeGuid();
    m_strokeLength = 0;
    perform({morvane::PathEdit::insertion(indx + 1, copy)});
}

void Curves::removePoint()
{
    const bool current = isRow(currentIndex()) && !nodes()[currentIndex()].Ingroup;
    const QList<int> rows = current ? QList<int>{currentIndex()} : selectedRows();
    if (rows.isEmpty() || refuseEdit())
        return;
    m_strokeLength = 0;
    const bool losesCurrent = rows.contains(currentIndex());
    perform(morvane::planRemoval(nodes(), rows));
    if (losesCurrent)
        setCurrentIndex(-1);
}

void Curves::clearAll()
{
    if (count() == 0 || refuseEdit())
        return;
    QList<int> rows(count());
    std::iota(rows.begin(), rows.end(), 0);
    if (storeForUndo())
        m_history.push(morvane::planRemoval(nodes(), rows));
    replacePath({});
    reportEdit();
}

void Curves::replacePath(const QList<MPathPoint> &nodes)
{
    m_fitJob.abandon();
    m_buffer.clear();
    m_strokeLength = 0;
    m_dragShape.clear();
    emit disconnectModel();
    resetNodes(nodes);
    emit connectModel();
    setCurrentIndex(-1);
    updateRenderPaths();
    renewSelection();
}

void Curves::lineupVertical()
{
    lineup(Zum::Vertical);
}

void Curves::lineupHorizontal()
{
    lineup(Zum::Horizontal);
}

void Curves::lineup(Zum::Orientation orientation)
{
    if (selectedCount() > 0 && !refuseEdit())
        perform(morvane::planLineUp(nodes(), selectedRows(), orientation));
}

bool Curves::dragsSelection() const
{
    return !m_dragShape.isEmpty() && m_dragGuids == selectedGuids();
}

void Curves::moveSelectdPoints(qreal x, qreal y)
{
    if (selectedCount() == 0 || refuseEdit() || refuseNumbers("moveSelectdPoints", {x, y}))
        return;
    const QPointF offset = boundedPoint(x, y) - selectedBounds().topLeft();
    perform(morvane::planMove(nodes(), selectedRows(), offset),
            dragsSelection() ? selectionGesture : int(morvane::PathHistory::NoGesture));
}

void Curves::deformSelectdPoints(qreal rectWidth, qreal rectHeight)
{
    if (selectedCount() == 0 || refuseEdit() || refuseNumbers("deformSelectdPoints", {rectWidth, rectHeight}))
        return;
    const bool drags = dragsSelection();
    const QList<int> rows = selectedRows();
    const QSizeF size(std::clamp(rectWidth, 1.0, morvane::maxPathCoordinate),
                      std::clamp(rectHeight, 1.0, morvane::maxPathCoordinate));
    perform(morvane::planDeformation(nodes(), rows, drags ? m_dragShape : nodesAt(rows),
                                     QRectF(selectedBounds().topLeft(), size)),
            drags ? selectionGesture : int(morvane::PathHistory::NoGesture));
}

void Curves::saveSelected()
{
    m_history.seal();
    m_dragShape = nodesAt(selectedRows());
    m_dragGuids = selectedGuids();
}

QList<MPathPoint> Curves::nodesAt(const QList<int> &rows) const
{
    QList<MPathPoint> found;
    for (const int row : rows)
        found.append(nodes()[row]);
    return found;
}
