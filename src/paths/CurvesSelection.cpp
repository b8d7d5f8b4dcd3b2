#include "paths/CurvesSelection.h"

#include "paths/PathEdits.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <numeric>

int CurvesSelection::selectedCount() const
{
    return int(m_selected.size());
}

QVariantMap CurvesSelection::selectedRect() const
{
    const QRectF bounds = selectedBounds();
    return {{QStringLiteral("x"), bounds.x()},
            {QStringLiteral("y"), bounds.y()},
            {QStringLiteral("width"), bounds.width()},
            {QStringLiteral("height"), bounds.height()}};
}

QRectF CurvesSelection::selectedBounds() const
{
    return morvane::endPointBounds(nodes(), selectedRows());
}

QList<int> CurvesSelection::selectedRows() const
{
    QList<int> rows;
    if (m_selected.isEmpty())
        return rows;
    QHash<int, int> places;
    for (qsizetype row = 0; row < nodes().size(); ++row)
        if (nodes()[row].Ingroup)
            places.insert(nodes()[row].GUID, int(row));
    for (const int guid : m_selected)
        if (const auto place = places.constFind(guid); place != places.constEnd())
            rows.append(*place);
    return rows;
}

void CurvesSelection::setSelected(const QList<int> &rows, bool selected)
{
    for (const int row : rows) {
        if (!isRow(row) || nodes()[row].Ingroup == selected)
            continue;
        MPathPoint node = nodes()[row];
        node.Ingroup = selected;
        replaceNode(row, node);
        if (selected)
            m_selected.append(node.GUID);
        announceRows(row, row, {Ingroup});
    }
    renewSelection();
}

void CurvesSelection::renewSelection()
{
    QSet<int> selected;
    for (const MPathPoint &node : nodes())
        if (node.Ingroup)
            selected.insert(node.GUID);
    m_selected.removeIf([&selected](int guid) { return !selected.remove(guid); });
    // Nodes that came in selected follow in the order of the path.
    for (const MPathPoint &node : nodes())
        if (selected.contains(node.GUID))
            m_selected.append(node.GUID);
    if (selectedCount() != m_knownCount) {
        m_knownCount = selectedCount();
        emit selectedCountChanged();
    }
    if (const QRectF bounds = selectedBounds(); bounds != m_knownBounds) {
        m_knownBounds = bounds;
        emit selectedRectChanged();
    }
}

void CurvesSelection::addCurrentToSeleted()
{
    setSelected({currentIndex()}, true);
}

void CurvesSelection::removeCurrentFromSeleted()
{
    setSelected({currentIndex()}, false);
}

void CurvesSelection::clearSelected()
{
    setSelected(selectedRows(), false);
}

void CurvesSelection::selectInRect(int x1, int y1, int x2, int y2)
{
    const auto [left, right] = std::minmax({x1, x2});
    const auto [top, bottom] = std::minmax({y1, y2});
    QList<int> rows;
    for (qsizetype row = 0; row < nodes().size(); ++row) {
        const MPathPoint &node = nodes()[row];
        if (node.IX >= left && node.IX <= right && node.IY >= top && node.IY <= bottom)
            rows.append(int(row));
    }
    setSelected(rows, true);
}

void CurvesSelection::selectLine(int indx)
{
    if (!isRow(indx))
        return;
    const morvane::SubpathTable table = morvane::findSubpaths(nodes());
    selectSubpath(table, table.holding(indx));
}

void CurvesSelection::guessClicked(qreal x, qreal y)
{
    const morvane::SubpathTable table = morvane::findSubpaths(nodes());
    selectSubpath(table, table.at({x, y}, pointSize()));
}

void CurvesSelection::selectSubpath(const morvane::SubpathTable &table, int subpath)
{
    if (!table.isConsistent() || subpath < 0)
        return;
    QList<int> rows(table.endRow(subpath, int(nodes().size())) - table.lineStarts[subpath]);
    std::iota(rows.begin(), rows.end(), table.lineStarts[subpath]);
    setSelected(rows, true);
}
