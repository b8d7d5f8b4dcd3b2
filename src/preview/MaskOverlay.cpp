#include "preview/MaskOverlay.h"

#include <QPainter>

void MaskOverlay::setDrawing(const Drawing &drawing)
{
    if (drawing == m_drawing)
        return;
    m_drawing = drawing;
    update();
}

void MaskOverlay::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing, smooth());
    constexpr qreal outlineWidth = 1;
    painter->setPen(QPen(m_drawing.pen, outlineWidth));
    painter->setBrush(m_drawing.fill);
    if (m_drawing.nodes.size() > 1)
        painter->drawPolygon(m_drawing.nodes);
    painter->setPen(QPen(m_drawing.pen, m_drawing.penWidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawPoints(m_drawing.points.constData(), int(m_drawing.points.size()));
}
