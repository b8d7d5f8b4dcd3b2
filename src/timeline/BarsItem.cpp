#include "timeline/BarsItem.h"

#include <cmath>
#include <QPainter>

BarsItem::BarsItem(QQuickItem *parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(false);
    setOpaquePainting(false);
}

void BarsItem::markChanged()
{
    polish();
}

void BarsItem::updatePolish()
{
    m_bands = collect();
    update();
}

void BarsItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    markChanged();
}

QSGNode *BarsItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *data)
{
    m_painted = m_bands;
    return QQuickPaintedItem::updatePaintNode(node, data);
}

void BarsItem::paint(QPainter *painter)
{
    const qreal height = contentsBoundingRect().height();
    for (const Band &band : m_painted) {
        const int top = int(std::round(band.top * height));
        const int bottom = qMax(top + 1, int(std::round(band.bottom * height)));
        for (const RowBars::Bar &bar : band.bars)
            painter->fillRect(bar.left, top, bar.right - bar.left, bottom - top, band.color);
    }
}
