#include "app/CursorShapeArea.h"

#include <QCursor>

CursorShapeArea::CursorShapeArea(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setCursor(Qt::ArrowCursor);
}

Qt::CursorShape CursorShapeArea::cursorShape() const
{
    return cursor().shape();
}

void CursorShapeArea::setCursorShape(Qt::CursorShape shape)
{
    if (shape == cursorShape())
        return;
    setCursor(shape);
    emit cursorShapeChanged();
}
