#pragma once

#include "paths/Curves.h"

#include <QSignalSpy>

/// What the tests of the path model share.
namespace curvestest {

/// A move to (0, 0) and lines to (10, 10), (20, 20) and so on.
inline void addLine(Curves &curves, int length, QPointF from = {})
{
    for (int at = 0; at < length; ++at)
        curves.newPoint(at == 0 ? MPathPoint::Move : MPathPoint::Line, from.x() + at * 10.0,
                        from.y() + at * 10.0);
}

/// A stroke of nodes along an arch.
inline void addStroke(Curves &curves, int length, QPointF from = {})
{
    for (int at = 0; at < length; ++at)
        curves.newPoint(at == 0 ? MPathPoint::Move : MPathPoint::Line, from.x() + at * 8.0,
                        from.y() + at * (length - at) * 0.5);
}

inline QList<QPointF> ends(const Curves &curves)
{
    QList<QPointF> points;
    for (int row = 0; row < curves.count(); ++row)
        points.append({curves.get(row).IX, curves.get(row).IY});
    return points;
}

inline QList<int> types(const Curves &curves)
{
    QList<int> numbers;
    for (int row = 0; row < curves.count(); ++row)
        numbers.append(curves.get(row).type);
    return numbers;
}

/// Rows of the selected nodes, ascending.
inline QList<int> selection(const Curves &curves)
{
    QList<int> rows;
    for (int row = 0; row < curves.count(); ++row)
        if (curves.get(row).Ingroup)
            rows.append(row);
    return rows;
}

inline void select(Curves &curves, const QList<int> &rows)
{
    for (const int row : rows)
        curves.updateData(row, 1.0, Curves::Ingroup);
}

} // namespace curvestest
