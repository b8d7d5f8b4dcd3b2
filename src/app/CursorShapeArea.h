#pragma once

#include <QQuickItem>

/// Gives the pointer a shape while it is over the area. Clicks and wheel pass through.
class CursorShapeArea : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(Qt::CursorShape cursorShape READ cursorShape WRITE setCursorShape NOTIFY cursorShapeChanged)

public:
    explicit CursorShapeArea(QQuickItem *parent = nullptr);

    Qt::CursorShape cursorShape() const;
    void setCursorShape(Qt::CursorShape shape);

signals:
    void cursorShapeChanged();
};
