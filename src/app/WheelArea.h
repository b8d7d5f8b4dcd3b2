#pragma once

#include <QQuickItem>

/// Gathers the small movements of smooth wheels and touch pads into the whole steps of a plain wheel.
class WheelSteps
{
public:
    /// Whole steps that the event completes: positive when the wheel turns away from the user, or to the left
    /// when it has no vertical part. A turn in the other direction starts anew.
    int take(const QWheelEvent &event);

private:
    int m_rest = 0;
};

/// An area that answers the wheel and lets clicks and hovering through to what lies behind it.
class WheelArea : public QQuickItem
{
    Q_OBJECT

public:
    explicit WheelArea(QQuickItem *parent = nullptr);

signals:
    /// `steps` is never 0; `modifiers` are Qt::KeyboardModifiers.
    void stepped(int steps, int modifiers);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    WheelSteps m_steps;
};
