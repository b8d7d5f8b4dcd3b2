#include "paths/PathListModel.h"

#include <QMetaEnum>

int PathListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_nodes.size());
}

QVariant PathListModel::data(const QModelIndex &index, int role) const
{
    if (!isRow(index.row()))
        return {};
    const MPathPoint &node = m_nodes[index.row()];
    switch (role) {
        case Ingroup:
            return node.Ingroup;
        case V1:
            return node.V1;
        case V2:
            return node.V2;
        case V3:
            return node.V3;
        case V4:
            return node.V4;
        case V5:
            return node.V5;
        case V6:
            return node.V6;
        case IX:
            return node.IX;
        case IY:
            return node.IY;
        case Store:
            return node.Store;
        case GUID:
            return node.GUID;
        case Id:
            return node.type;
        case XandY:
            return QPointF(node.IX, node.IY);
        case V1andV2:
            return QPointF(node.V1, node.V2);
        case V3andV4:
            return QPointF(node.V3, node.V4);
        case V5andV6:
            return QPointF(node.V5, node.V6);
        case ParentGuid: {
            const int subpath = morvane::SubpathTable{{}, lineStarts()}.holding(index.row());
            return m_nodes[lineStarts()[subpath]].GUID;
        }
        default:
            return {};
    }
}

QHash<int, QByteArray> PathListModel::roleNames() const
{
    const QMetaEnum roles = QMetaEnum::fromType<MorvaPointRoles>();
    QHash<int, QByteArray> names;
    for (int at = 0; at < roles.keyCount(); ++at)
        names.insert(roles.value(at), roles.key(at));
    names[GUID] = "guid";
    names[Ingroup] = "ingroup";
    return names;
}

int PathListModel::rowOf(int guid, int hint) const
{
    if (isRow(hint) && m_nodes[hint].GUID == guid)
        return hint;
    for (qsizetype row = 0; row < m_nodes.size(); ++row)
        if (m_nodes[row].GUID == guid)
            return int(row);
    return -1;
}

const QList<int> &PathListModel::lineStarts() const
{
    if (!m_lineStartsKnown) {
        m_lineStarts = morvane::findLineStarts(m_nodes);
        m_lineStartsKnown = true;
    }
    return m_lineStarts;
}

void PathListModel::insertNode(int row, const MPathPoint &node)
{
    beginInsertRows({}, row, row);
    m_nodes.insert(row, node);
    m_lineStartsKnown = false;
    endInsertRows();
    announceRows(row, row);
    // Scripts of the scene wait for layoutChanged. A layout must not change around an insertion, so the pair
    // comes behind it; and the hint keeps list views from building every delegate anew for each new node.
    emit layoutAboutToBeChanged({}, HorizontalSortHint);
    emit layoutChanged({}, HorizontalSortHint);
}

void PathListModel::removeNode(int row)
{
    beginRemoveRows({}, row, row);
    m_nodes.removeAt(row);
    m_lineStartsKnown = false;
    endRemoveRows();
}

void PathListModel::replaceNode(int row, const MPathPoint &node)
{
    m_nodes[row] = node;
    m_lineStartsKnown = false;
}

void PathListModel::announceRows(int first, int last, const QList<int> &roles)
{
    emit dataChanged(index(first), index(last), roles);
}

void PathListModel::resetNodes(const QList<MPathPoint> &nodes)
{
    beginResetModel();
    m_nodes = nodes;
    for (MPathPoint &node : m_nodes)
        node.GUID = takeGuid();
    m_lineStartsKnown = false;
    endResetModel();
}
