#pragma once

#include "timeline/RowBars.h"

#include <QColor>
#include <QQuickPaintedItem>

/// An item that is nothing but coloured bars, painted as one picture. What is to be seen is collected once
/// for each frame of the scene in which something has changed.
class BarsItem : public QQuickPaintedItem
{
    Q_OBJECT

public:
    explicit BarsItem(QQuickItem *parent = nullptr);

    /// Bars of one colour between two heights of the item, 0 at its top and 1 at its bottom.
    struct Band
    {
        QColor color;
        qreal top = 0;
        qreal bottom = 1;
        std::vector<RowBars::Bar> bars;
    };
    /// As last collected, the lowest first.
    const std::vector<Band> &bands() const
    {
        return m_bands;
    }

    void paint(QPainter *painter) override;

protected:
    /// Asks for a new collection; cheap, may be called as often as anything changes.
    void markChanged();
    virtual std::vector<Band> collect() const = 0;

    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    std::vector<Band> m_bands;
    /// What the render thread paints, handed over while the main thread stands.
    std::vector<Band> m_painted;
};
