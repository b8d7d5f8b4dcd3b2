#pragma once

#include <QtGlobal>
#include <vector>

/// Runs of rows as bars in whole pixels over a width that stands for all rows. Each bar is at least a pixel
/// wide and bars that touch become one, so that there are never more bars than pixels, however many rows
/// there are.
class RowBars
{
public:
    /// Pixels from `left` up to but not including `right`.
    struct Bar
    {
        int left = 0;
        int right = 0;

        bool operator==(const Bar &other) const = default;
    };

    RowBars(int rows, qreal width) : m_rows(rows), m_width(width)
    {
    }
    /// Both rows included. Runs come in rising order; what lies outside of the rows is cut off.
    void add(int firstRow, int lastRow);
    const std::vector<Bar> &bars() const
    {
        return m_bars;
    }

private:
    int m_rows;
    qreal m_width;
    std::vector<Bar> m_bars;
};
