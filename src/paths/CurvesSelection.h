#pragma once

#include "paths/CurvesDrawing.h"

#include <QList>
#include <QRectF>
#include <QVariantMap>

/// Which nodes of the path are selected, in the order in which they were. Selecting changes nothing that a
/// project keeps and is allowed on a locked path.
class CurvesSelection : public CurvesDrawing
{
    Q_OBJECT
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)
    Q_PROPERTY(QVariantMap selectedRect READ selectedRect NOTIFY selectedRectChanged)

public:
    using CurvesDrawing::CurvesDrawing;

    int selectedCount() const;
    /// Bounds of the selected nodes' end points under "x", "y", "width", "height"; zeros without selection.
    QVariantMap selectedRect() const;

public slots:
    void addCurrentToSeleted();
    void removeCurrentFromSeleted();
    void clearSelected();
    // These three add to what is selected.
    /// Nodes whose end point lies in the rectangle of two opposite corners, border included.
    void selectInRect(int x1, int y1, int x2, int y2);
    /// The subpath that holds the node.
    void selectLine(int indx);
    /// The smallest subpath whose bounds hold the position.
    void guessClicked(qreal x, qreal y);

signals:
    void selectedCountChanged();
    void selectedRectChanged();

protected:
    /// Rows in the order of selection.
    QList<int> selectedRows() const;
    /// GUIDs in that order.
    const QList<int> &selectedGuids() const
    {
        return m_selected;
    }
    QRectF selectedBounds() const;
    void setSelected(const QList<int> &rows, bool selected);
    /// Brings order and bounds up to date after nodes have changed, come or gone.
    void renewSelection();

private:
    void selectSubpath(const morvane::SubpathTable &table, int subpath);

    QList<int> m_selected;
    int m_knownCount = 0;
    QRectF m_knownBounds;
};
