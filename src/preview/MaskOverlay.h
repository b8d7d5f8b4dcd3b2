#pragma once

#include <QColor>
#include <QList>
#include <QPolygonF>
#include <QQuickPaintedItem>

/// What lies over the picture while the mask is drawn: the filled polygon and the dabs of the brush, in
/// pixels of the item.
class MaskOverlay : public QQuickPaintedItem
{
    Q_OBJECT

public:
    struct Drawing
    {
        QPolygonF nodes;
        QList<QPointF> points;
        QColor pen;
        QColor fill;
        qreal penWidth = 0;

        bool operator==(const Drawing &) const = default;
    };

    using QQuickPaintedItem::QQuickPaintedItem;

    void setDrawing(const Drawing &drawing);
    const Drawing &drawing() const
    {
        return m_drawing;
    }

    void paint(QPainter *painter) override;

private:
    /// Written while the render thread is not painting: painting happens with both threads in step.
    Drawing m_drawing;
};
