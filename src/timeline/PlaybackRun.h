#pragma once

#include "shared/Zum.h"

#include <QList>

/// The walk of one playback over a prepared list of rows: which row comes next, and where the walk turns,
/// starts again or ends. One step is one integer from the list.
class PlaybackRun
{
public:
    /// Rows in rising order; empty takes everything away.
    void setRows(const QList<int> &rows)
    {
        m_rows = rows;
    }
    bool isEmpty() const
    {
        return m_rows.isEmpty();
    }
    int firstRow() const
    {
        return m_rows.first();
    }
    int lastRow() const
    {
        return m_rows.last();
    }
    int cursor() const
    {
        return m_cursor;
    }
    void rewind()
    {
        m_cursor = 0;
    }
    /// Goes on from the current row if it is in the list, otherwise from the end that the direction starts
    /// at.
    void start(int currentRow, int direction);
    /// The row under the cursor, -1 when the cursor has left the list.
    int row() const;

    struct Advance
    {
        bool stops = false;
        int direction = Zum::Forward;
    };
    /// Moves the cursor on. At an end it stops, starts again or turns round, as told.
    Advance advance(int direction, bool loop, bool pendulum);

private:
    bool isPosition(int position) const
    {
        return position >= 0 && position < m_rows.size();
    }
    int lastPosition() const
    {
        return int(m_rows.size()) - 1;
    }

    QList<int> m_rows;
    int m_cursor = 0;
};
