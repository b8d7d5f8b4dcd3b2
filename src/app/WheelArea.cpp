#include "app/WheelArea.h"

int WheelSteps::take(const QWheelEvent &event)
{
    const QPoint turn = event.angleDelta();
    const int delta = turn.y() != 0 ? turn.y() : turn.x();
    if ((delta > 0) != (m_rest > 0))
        m_rest = 0;
    m_rest += delta;
    const int steps = m_rest / QWheelEvent::DefaultDeltasPerStep;
    m_rest -= steps * QWheelEvent::DefaultDeltasPerStep;
    return steps;
}

WheelArea::WheelArea(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::NoButton);
}

void WheelArea::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (const int steps = m_steps.take(*event); steps != 0)
        emit stepped(steps, event->modifiers().toInt());
}
