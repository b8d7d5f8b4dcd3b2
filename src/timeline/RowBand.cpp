#include "timeline/RowBand.h"

RowBand::RowBand(QQuickItem *parent) : BarsItem(parent)
{
    connect(this, &RowBand::rowsChanged, this, &RowBand::markChanged);
    connect(this, &RowBand::runsChanged, this, &RowBand::markChanged);
    connect(this, &RowBand::colorChanged, this, &RowBand::markChanged);
}

std::vector<BarsItem::Band> RowBand::collect() const
{
    RowBars bars(rows(), width());
    for (const QVariant &run : runs()) {
        const QVariantList pair = run.toList();
        if (pair.size() == 2)
            bars.add(pair.at(0).toInt(), pair.at(1).toInt());
    }
    return {{color(), 0, 1, bars.bars()}};
}
