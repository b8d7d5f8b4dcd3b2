#pragma once

#include "paths/MPathPoint.h"
#include "paths/PathGeometry.h"

#include <QAbstractListModel>
#include <QHash>
#include <QList>

/// The rows of the path model: holds the nodes, gives them out by role and signals each change of a row. It
/// knows nothing of undo, locks or drawing; `Curves` builds on it. Main thread only.
class PathListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum MorvaPointRoles {
        Ingroup,
        V1,
        V2,
        V3,
        V4,
        V5,
        V6,
        IX,
        IY,
        Store,
        GUID,
        Id,
        XandY, ///< QPointF of the end point; the three below of V fields.
        V1andV2,
        V3andV4,
        V5andV6,
        ParentGuid, ///< GUID of the first node of the subpath.
    };
    Q_ENUM(MorvaPointRoles)

    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const QList<MPathPoint> &nodes() const
    {
        return m_nodes;
    }
    bool isRow(int row) const
    {
        return row >= 0 && row < m_nodes.size();
    }
    /// The row of a node, or -1. `hint` is where it is likely to be.
    int rowOf(int guid, int hint = -1) const;
    /// Rows of the subpaths' first nodes, ascending.
    const QList<int> &lineStarts() const;

protected:
    int takeGuid()
    {
        return m_nextGuid++;
    }
    /// The row must be in range. An insertion also emits dataChanged and layoutChanged.
    void insertNode(int row, const MPathPoint &node);
    void removeNode(int row);
    /// Replaces without a signal; the caller announces the changed rows together.
    void replaceNode(int row, const MPathPoint &node);
    void announceRows(int first, int last, const QList<int> &roles = {});
    /// Replaces everything by a model reset. The nodes get new GUIDs.
    void resetNodes(const QList<MPathPoint> &nodes);

private:
    QList<MPathPoint> m_nodes;
    mutable QList<int> m_lineStarts;
    mutable bool m_lineStartsKnown = false;
    int m_nextGuid = 1;
};
