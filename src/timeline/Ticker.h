#pragma once

#include <functional>
#include <QObject>
#include <QTimer>

/// Something that ticks at a steady pace. Injected into the model, so that tests tick by hand.
class Ticker : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Starts anew when it already runs.
    virtual void start(int intervalMs) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;

signals:
    void ticked();
};

/// The pace of a ticker as arithmetic: tick number n is due n intervals after the start, however late the
/// ticks before it came, so that the pace does not drift.
class TickSchedule
{
public:
    /// Longer pauses than this many ticks, such as a machine that slept, are not caught up with.
    static constexpr int mostTicksAtOnce = 12;

    void start(qint64 nowMs, int intervalMs);
    /// How many ticks have come due since the last call.
    int takeDue(qint64 nowMs);
    /// Milliseconds to the next tick, 0 when it is overdue.
    int msToNext(qint64 nowMs) const;

private:
    qint64 m_startMs = 0;
    qint64 m_ticks = 0;
    int m_intervalMs = 1;
};

/// Ticks by the system's steady clock with the most precise timer there is. Ticks that the event loop kept
/// waiting come in a row, so that a playback keeps its time. Lives on the thread of its receiver.
class SteadyTicker : public Ticker
{
    Q_OBJECT

public:
    /// Milliseconds of a clock that never jumps.
    using Clock = std::function<qint64()>;

    explicit SteadyTicker(QObject *parent = nullptr, Clock clock = systemClock());

    void start(int intervalMs) override;
    void stop() override;
    bool isActive() const override
    {
        return m_active;
    }
    static Clock systemClock();

private:
    void tick();
    void scheduleNext();

    QTimer m_timer;
    Clock m_clock;
    TickSchedule m_schedule;
    /// Tells a run from the one before, since a tick may stop and start the ticker.
    int m_run = 0;
    bool m_active = false;
};
