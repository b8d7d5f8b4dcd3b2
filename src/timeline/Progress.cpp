#include "timeline/Progress.h"

#include <cmath>

Progress::Progress(QQuickItem *parent) : QQuickItem(parent)
{
    connect(this, &QQuickItem::widthChanged, this, &Progress::goUpdate);
    connect(this, &Progress::totalChanged, this, &Progress::goUpdate);
}

void Progress::setCurrent(qreal value)
{
    const qreal wanted = discrete() ? std::round(value) : value;
    const qreal kept = lockInRange() ? keepInRange(wanted) : keepInList(wanted);
    if (morvane::sameValue(kept, m_current.value))
        return;
    m_current.value = kept;
    emit currentChanged();
    setX(m_current, toPixels(kept), &Progress::currentXChanged);
}

qreal Progress::keepInRange(qreal value)
{
    if (value > rangeStart() && value < rangeEnd()) {
        setCurrentPositionName(Zum::UndefinedPosition);
        return value;
    }
    if (value <= rangeStart()) {
        setCurrentPositionName(Zum::ReachedRangeStart);
        emit reachedRangeStart();
        return rangeStart();
    }
    setCurrentPositionName(Zum::ReachedRangeEnd);
    emit reachedRangeEnd();
    return autoRewind() ? rangeStart() : rangeEnd();
}

qreal Progress::keepInList(qreal value)
{
    if (total() > 0 && value >= total()) {
        setCurrentPositionName(Zum::ReachedEnd);
        emit reachedEnd();
        return autoRewind() ? 0 : value;
    }
    if (value <= 0) {
        setCurrentPositionName(Zum::ReachedStart);
        emit reachedStart();
        return value;
    }
    setCurrentPositionName(Zum::UndefinedPosition);
    return value;
}

void Progress::setTotal(qreal total)
{
    if (morvane::sameValue(total, m_total))
        return;
    m_total = total;
    emit totalChanged();
}

void Progress::setRangeStart(qreal value)
{
    setRangeHandler(m_rangeStart, value, &Progress::rangeStartChanged, &Progress::rangeStartXChanged);
}

void Progress::setRangeEnd(qreal value)
{
    setRangeHandler(m_rangeEnd, value, &Progress::rangeEndChanged, &Progress::rangeEndXChanged);
}

void Progress::setCurrentX(qreal x)
{
    setCurrent(toValue(x));
}

void Progress::setRangeStartX(qreal x)
{
    setRangeStart(toValue(x));
}

void Progress::setRangeEndX(qreal x)
{
    setRangeEnd(toValue(x));
}

void Progress::setMilliseconds(int milliseconds)
{
    if (milliseconds == m_milliseconds)
        return;
    m_milliseconds = milliseconds;
    emit millisecondsChanged();
    calculateTimes();
}

void Progress::goUpdate()
{
    setX(m_current, toPixels(m_current.value), &Progress::currentXChanged);
    setX(m_rangeStart, toPixels(m_rangeStart.value), &Progress::rangeStartXChanged);
    setX(m_rangeEnd, toPixels(m_rangeEnd.value), &Progress::rangeEndXChanged);
}

void Progress::calculateTimes()
{
    constexpr int secondMs = 1000;
    constexpr int minuteMs = 60 * secondMs;
    constexpr int hourMs = 60 * minuteMs;
    setMSeconds(m_milliseconds % secondMs);
    setSeconds(m_milliseconds % minuteMs / secondMs);
    setMinutes(m_milliseconds % hourMs / minuteMs);
    setHours(m_milliseconds / hourMs);
}

void Progress::discretize(int type)
{
    switch (type) {
        case HandlerCurrent:
            setCurrent(std::round(current()));
            break;
        case HandlerRangeStart:
            setRangeStart(std::round(rangeStart()));
            break;
        case HandlerRangeEnd:
            setRangeEnd(std::round(rangeEnd()));
            break;
        default:
            break;
    }
}

qreal Progress::toPixels(qreal value) const
{
    return total() > 0 ? value * width() / total() : 0;
}

qreal Progress::toValue(qreal x) const
{
    return width() > 0 ? std::floor(x * total() / width()) : 0;
}

void Progress::setX(Handler &handler, qreal x, Signal changed)
{
    if (morvane::sameValue(x, handler.x))
        return;
    handler.x = x;
    emit(this->*changed)();
}

void Progress::setRangeHandler(Handler &handler, qreal value, Signal changed, Signal xChanged)
{
    const qreal kept = discrete() ? std::round(value) : value;
    if (morvane::sameValue(kept, handler.value))
        return;
    handler.value = kept;
    emit(this->*changed)();
    setX(handler, toPixels(kept), xChanged);
}
