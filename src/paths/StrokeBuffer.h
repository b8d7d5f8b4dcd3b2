#pragma once

#include <QList>
#include <QPointF>

#include <optional>

namespace morvane {

/// Thins the mouse positions of a drawn stroke: every fourth one makes a node, which keeps the view fluent
/// while drawing.
class StrokeBuffer
{
public:
    static constexpr qsizetype length = 4;

    /// Takes a position; gives the position of a new node when one is due. A position of exactly (0, 0)
    /// stands for a mouse that has no position and makes none: the next position takes its place.
    std::optional<QPointF> append(QPointF position)
    {
        m_positions.append(position);
        while (m_positions.size() > length)
            m_positions.removeFirst();
        if (m_positions.size() < length || (position.x() == 0.0 && position.y() == 0.0))
            return std::nullopt;
        clear();
        return position;
    }

    void clear()
    {
        m_positions.clear();
    }

private:
    QList<QPointF> m_positions;
};

} // namespace morvane
