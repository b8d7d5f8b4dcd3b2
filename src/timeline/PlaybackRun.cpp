#include "timeline/PlaybackRun.h"

#include <algorithm>

void PlaybackRun::start(int currentRow, int direction)
{
    const auto found = std::lower_bound(m_rows.cbegin(), m_rows.cend(), currentRow);
    if (found != m_rows.cend() && *found == currentRow)
        m_cursor = int(found - m_rows.cbegin());
    else
        m_cursor = direction == Zum::Backward && !m_rows.isEmpty() ? lastPosition() : 0;
}

int PlaybackRun::row() const
{
    return isPosition(m_cursor) ? m_rows.at(m_cursor) : -1;
}

PlaybackRun::Advance PlaybackRun::advance(int direction, bool loop, bool pendulum)
{
    if (direction == Zum::Forward)
        ++m_cursor;
    else if (direction == Zum::Backward)
        --m_cursor;
    if (isPosition(m_cursor))
        return {false, direction};
    if (!loop)
        return {true, direction};
    if (!pendulum || direction == Zum::Backward) {
        m_cursor = 0;
        return {false, Zum::Forward};
    }
    if (direction == Zum::Forward) {
        m_cursor = lastPosition();
        return {false, Zum::Backward};
    }
    return {true, direction};
}
