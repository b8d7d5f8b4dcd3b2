#include "timeline/RowBars.h"

#include <cmath>

void RowBars::add(int firstRow, int lastRow)
{
    const int first = qMax(0, firstRow);
    const int last = qMin(lastRow, m_rows - 1);
    if (first > last || m_width < 1)
        return;
    const int left = int(std::floor(first * m_width / m_rows));
    const int right = qMax(left + 1, int(std::ceil((last + 1.0) * m_width / m_rows)));
    if (!m_bars.empty() && left <= m_bars.back().right)
        m_bars.back().right = qMax(m_bars.back().right, right);
    else
        m_bars.push_back({left, right});
}
