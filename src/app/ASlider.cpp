#include "app/ASlider.h"

#include "app/PageSteps.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qreal stepsOfUnsetStep = 100.0;

/// Takes the dust of repeated additions off a value.
qreal withoutDust(qreal value)
{
    constexpr qreal grain = 1e6;
    return std::round(value * grain) / grain;
}

} // namespace

ASlider::ASlider(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    // Here, for a type of a module 1.0 the scene cannot: the property came with a later revision of the base.
    setActiveFocusOnTab(true);
    connect(this, &ASlider::valueChanged, this, &ASlider::positionChanged);
    connect(this, &ASlider::minimumChanged, this, &ASlider::positionChanged);
    connect(this, &ASlider::maximumChanged, this, &ASlider::positionChanged);
}

bool ASlider::isPressed() const
{
    return m_pressed;
}

qreal ASlider::position() const
{
    const qreal range = maximum() - minimum();
    return range > 0 ? std::clamp((value() - minimum()) / range, 0.0, 1.0) : 0.0;
}

void ASlider::stepBy(int steps)
{
    moveTo(value() + steps * usedStep());
}

void ASlider::reset()
{
    moveTo(defaultValue());
}

void ASlider::setPressed(bool pressed)
{
    if (m_pressed == pressed)
        return;
    m_pressed = pressed;
    setKeepMouseGrab(pressed);
    emit pressedChanged();
}

void ASlider::moveTo(qreal newValue)
{
    const qreal limited = std::min(std::max(withoutDust(snapped(newValue)), minimum()), maximum());
    if (limited == value())
        return;
    setValue(limited);
    emit moved(limited);
}

void ASlider::dragTo(qreal x)
{
    const qreal length = width() - handleSize();
    if (length <= 0)
        return;
    const qreal share = std::clamp((x - handleSize() / 2) / length, 0.0, 1.0);
    moveTo(minimum() + share * (maximum() - minimum()));
}

qreal ASlider::usedStep() const
{
    return step() > 0 ? step() : (maximum() - minimum()) / stepsOfUnsetStep;
}

qreal ASlider::snapped(qreal value) const
{
    if (!discrete() || usedStep() <= 0)
        return value;
    return minimum() + std::round((value - minimum()) / usedStep()) * usedStep();
}

qreal ASlider::handleCentre() const
{
    return handleSize() / 2 + position() * (width() - handleSize());
}

void ASlider::mousePressEvent(QMouseEvent *event)
{
    setPressed(true);
    const qreal fromCentre = event->position().x() - handleCentre();
    const bool onHandle = std::abs(fromCentre) <= handleSize() / 2;
    m_grabOffset = onHandle ? fromCentre : 0.0;
    if (!onHandle)
        dragTo(event->position().x());
}

void ASlider::mouseMoveEvent(QMouseEvent *event)
{
    dragTo(event->position().x() - m_grabOffset);
}

void ASlider::mouseReleaseEvent(QMouseEvent *)
{
    setPressed(false);
}

void ASlider::mouseDoubleClickEvent(QMouseEvent *)
{
    reset();
}

void ASlider::mouseUngrabEvent()
{
    setPressed(false);
}

void ASlider::keyPressEvent(QKeyEvent *event)
{
    constexpr Qt::KeyboardModifiers commandKeys = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    event->setAccepted(!(event->modifiers() & commandKeys));
    if (!event->isAccepted())
        return;
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Down:
            return stepBy(-1);
        case Qt::Key_Right:
        case Qt::Key_Up:
            return stepBy(1);
        case Qt::Key_PageDown:
            return stepBy(-morvane::pageSteps);
        case Qt::Key_PageUp:
            return stepBy(morvane::pageSteps);
        case Qt::Key_Home:
            return moveTo(minimum());
        case Qt::Key_End:
            return moveTo(maximum());
        case Qt::Key_Backspace:
            return reset();
        default:
            event->ignore();
    }
}

void ASlider::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(wheelEnabled());
    if (wheelEnabled())
        stepBy(m_wheelSteps.take(*event));
}
