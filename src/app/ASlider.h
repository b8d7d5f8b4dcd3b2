#pragma once

#include "app/WheelArea.h"
#include "shared/PropertyMacros.h"

#include <QQuickItem>

/// The behaviour of a horizontal slider; the scene draws it from `position`.
///
/// A value set by the owner is taken as it is, also outside the limits, and sends no moved(). The user's
/// moves stay within the limits: dragging and clicking, Left and Down, Right and Up (one step), PageUp and
/// PageDown (ten steps), Home and End, the wheel (one step), and a double click or Backspace, which give the
/// default value. Tab comes to it. Its name in QML is "Aslider".
class ASlider : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(bool pressed READ isPressed NOTIFY pressedChanged)
    Q_PROPERTY(qreal position READ position NOTIFY positionChanged)
    MORVANE_PROPERTY(qreal, minimum, Minimum, 0.0)
    MORVANE_PROPERTY(qreal, maximum, Maximum, 100.0)
    MORVANE_PROPERTY(qreal, value, Value, 0.0)
    MORVANE_PROPERTY(qreal, defaultValue, DefaultValue, 0.0)
    /// Of keys and wheel; 0 and below stands for a hundredth of the range.
    MORVANE_PROPERTY(qreal, step, Step, 1.0)
    /// Whether dragging too stops at whole steps from the minimum only.
    MORVANE_PROPERTY(bool, discrete, Discrete, false)
    /// Width in pixels of the drawn handle: its centre is what stands at the value.
    MORVANE_PROPERTY(qreal, handleSize, HandleSize, 0.0)
    /// Off, the wheel goes to what lies behind, such as a panel that scrolls.
    MORVANE_PROPERTY(bool, wheelEnabled, WheelEnabled, true)

public:
    explicit ASlider(QQuickItem *parent = nullptr);

    bool isPressed() const;
    /// Where the value lies between the limits, 0.0 .. 1.0.
    qreal position() const;

public slots:
    /// As the keys do; counts as the user's move.
    void stepBy(int steps);
    void reset();

signals:
    /// The user has moved the slider to another value.
    void moved(qreal value);
    void pressedChanged();
    void positionChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void setPressed(bool pressed);
    void moveTo(qreal value);
    void dragTo(qreal x);
    qreal usedStep() const;
    qreal snapped(qreal value) const;
    qreal handleCentre() const;

    WheelSteps m_wheelSteps;
    qreal m_grabOffset = 0.0;
    bool m_pressed = false;
};
