#pragma once

#include "timeline/BarsItem.h"

#include "shared/PropertyMacros.h"

#include <QVariantList>

/// Shows which rows of many something is true for, as a band over the width of all rows.
class RowBand : public BarsItem
{
    Q_OBJECT
    /// How many rows the width stands for.
    MORVANE_PROPERTY(int, rows, Rows, 0)
    /// Pairs [first row, last row], both included, in rising order. What is no such pair is passed over.
    MORVANE_PROPERTY(QVariantList, runs, Runs)
    MORVANE_PROPERTY(QColor, color, Color, Qt::white)

public:
    explicit RowBand(QQuickItem *parent = nullptr);

protected:
    std::vector<Band> collect() const override;
};
