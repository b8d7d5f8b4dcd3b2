#include "paths/Curves.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace {

constexpr int longestPolyline = 5;
constexpr int fewestPointsToFit = 3;

} // namespace

void Curves::appendToBuffer(qreal x, qreal y)
{
    // The press that began the stroke was refused with its signal; one is enough.
    if (locked())
        return;
    if (const auto position = m_buffer.append({x, y}))
        newPoint(handDrawnPointType(), position->x(), position->y());
}

void Curves::smoothOut(int)
{
    if (busy() || m_strokeLength <= longestPolyline || refuseEdit())
        return;
    const QList<MPathPoint> stroke = lastNodes(std::exchange(m_strokeLength, 0));
    if (stroke.isEmpty())
        return;
    m_fitJob.start(stroke, smoothValue());
    emit busyChanged();
}

bool Curves::_optimize(int len)
{
    m_strokeLength = 0;
    if (len == 0 || busy() || refuseEdit())
        return false;
    const QList<MPathPoint> stroke = lastNodes(len);
    return !stroke.isEmpty() && putInPlace(morvane::fitStroke(stroke, smoothValue()));
}

QList<MPathPoint> Curves::lastNodes(int len) const
{
    if (len < fewestPointsToFit || len > count())
        return {};
    return nodes().mid(count() - len);
}

void Curves::completed()
{
    if (!busy())
        return;
    const auto fit = m_fitJob.takeOutcome();
    if (busy())
        return;
    if (fit && !locked())
        putInPlace(*fit);
    emit busyChanged();
}

bool Curves::putInPlace(const morvane::StrokeFit &fit)
{
    const int length = int(fit.stroke.size());
    const int first = rowOf(fit.stroke.first().GUID, count() - length);
    const auto same = [](const MPathPoint &a, const MPathPoint &b) {
        return a.GUID == b.GUID && a.sameGeometry(b);
    };
    const bool unchanged = first >= 0 && first + length <= count()
                           && std::equal(fit.stroke.begin(), fit.stroke.end(), nodes().begin() + first, same);
    if (!unchanged || fit.curve.isEmpty())
        return false;

    // The drawn nodes are gone for good, so nothing of them can be undone any more; the curve in their place
    // is one step.
    QSet<int> gone;
    morvane::PathEdits removals;
    for (int row = first + length - 1; row >= first; --row) {
        gone.insert(nodes()[row].GUID);
        removals.append(morvane::PathEdit::removal(row, nodes()[row]));
    }
    carryOut(removals);
    m_history.forget(gone);

    morvane::PathEdits insertions;
    for (MPathPoint node : fit.curve) {
        node.translate({}); // keeps a wild handle within the limits
        node.GUID = takeGuid();
        insertions.append(morvane::PathEdit::insertion(first + int(insertions.size()), node));
    }
    perform(insertions);
    return true;
}

void Curves::curveToLine()
{
    QList<int> rows = selectedRows();
    if (rows.isEmpty() || refuseEdit())
        return;
    if (isRow(currentIndex())) {
        const morvane::SubpathTable table{{}, lineStarts()};
        const int current = table.holding(currentIndex());
        rows.removeIf([&](int row) { return table.holding(row) != current; });
    }
    perform(morvane::planStraightening(nodes(), rows));
    updateRenderPaths();
    clearSelected();
}
