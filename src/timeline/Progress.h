#pragma once

#include "shared/PropertyMacros.h"

#include "shared/Zum.h"

#include <QQuickItem>

/// The ruler of the timeline: a position and a range over a number of frames, and where they lie in pixels.
/// Draws nothing itself. A position is shown at position * width / total pixels, 0 without a total.
class Progress : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(qreal current READ current WRITE setCurrent NOTIFY currentChanged)
    Q_PROPERTY(qreal total READ total WRITE setTotal NOTIFY totalChanged)
    Q_PROPERTY(qreal rangeStart READ rangeStart WRITE setRangeStart NOTIFY rangeStartChanged)
    Q_PROPERTY(qreal rangeEnd READ rangeEnd WRITE setRangeEnd NOTIFY rangeEndChanged)
    Q_PROPERTY(qreal currentX READ currentX WRITE setCurrentX NOTIFY currentXChanged)
    Q_PROPERTY(qreal rangeStartX READ rangeStartX WRITE setRangeStartX NOTIFY rangeStartXChanged)
    Q_PROPERTY(qreal rangeEndX READ rangeEndX WRITE setRangeEndX NOTIFY rangeEndXChanged)
    Q_PROPERTY(int milliseconds READ milliseconds WRITE setMilliseconds NOTIFY millisecondsChanged)

    /// Values snap to whole frames.
    MORVANE_PROPERTY(bool, discrete, Discrete, false)
    /// Leaving the end jumps to the start of the range or of the list.
    MORVANE_PROPERTY(bool, autoRewind, AutoRewind, false)
    /// `current` may not leave the range.
    MORVANE_PROPERTY(bool, lockInRange, LockInRange, false)
    /// The parts of `milliseconds`.
    MORVANE_READ_ONLY_PROPERTY(int, mSeconds, MSeconds, 0)
    MORVANE_READ_ONLY_PROPERTY(int, seconds, Seconds, 0)
    MORVANE_READ_ONLY_PROPERTY(int, minutes, Minutes, 0)
    MORVANE_READ_ONLY_PROPERTY(int, hours, Hours, 0)
    /// Where the last write of `current` ended up, a Zum::RangePositions value.
    MORVANE_READ_ONLY_PROPERTY(int, currentPositionName, CurrentPositionName, Zum::UndefinedPosition)

public:
    enum HandlerTypes {
        HandlerCurrent,
        HandlerRangeStart,
        HandlerRangeEnd,
    };
    Q_ENUM(HandlerTypes)

    explicit Progress(QQuickItem *parent = nullptr);

    qreal current() const
    {
        return m_current.value;
    }
    void setCurrent(qreal value);
    qreal total() const
    {
        return m_total;
    }
    void setTotal(qreal total);
    qreal rangeStart() const
    {
        return m_rangeStart.value;
    }
    void setRangeStart(qreal value);
    qreal rangeEnd() const
    {
        return m_rangeEnd.value;
    }
    void setRangeEnd(qreal value);

    /// Writing a pixel position writes the whole frame it lies in.
    qreal currentX() const
    {
        return m_current.x;
    }
    void setCurrentX(qreal x);
    qreal rangeStartX() const
    {
        return m_rangeStart.x;
    }
    void setRangeStartX(qreal x);
    qreal rangeEndX() const
    {
        return m_rangeEnd.x;
    }
    void setRangeEndX(qreal x);

    int milliseconds() const
    {
        return m_milliseconds;
    }
    void setMilliseconds(int milliseconds);

    /// Recomputes the three pixel positions.
    Q_INVOKABLE void goUpdate();
    /// Splits `milliseconds`.
    Q_INVOKABLE void calculateTimes();
    /// Rounds the value of a handler to a whole frame.
    Q_INVOKABLE void discretize(int type);

signals:
    void currentChanged();
    void totalChanged();
    void rangeStartChanged();
    void rangeEndChanged();
    void currentXChanged();
    void rangeStartXChanged();
    void rangeEndXChanged();
    void millisecondsChanged();

    void reachedRangeStart();
    void reachedRangeEnd();
    void reachedStart();
    void reachedEnd();

private:
    using Signal = void (Progress::*)();
    struct Handler
    {
        qreal value = 0;
        qreal x = 0;
    };

    qreal toPixels(qreal value) const;
    qreal toValue(qreal x) const;
    void setX(Handler &handler, qreal x, Signal changed);
    void setRangeHandler(Handler &handler, qreal value, Signal changed, Signal xChanged);
    qreal keepInRange(qreal value);
    qreal keepInList(qreal value);

    Handler m_current;
    Handler m_rangeStart;
    Handler m_rangeEnd;
    qreal m_total = 0;
    int m_milliseconds = 0;
};
