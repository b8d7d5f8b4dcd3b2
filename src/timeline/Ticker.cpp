#include "timeline/Ticker.h"

#include <chrono>
#include <utility>

void TickSchedule::start(qint64 nowMs, int intervalMs)
{
    m_startMs = nowMs;
    m_ticks = 0;
    m_intervalMs = qMax(1, intervalMs);
}

int TickSchedule::takeDue(qint64 nowMs)
{
    const qint64 ticks = (nowMs - m_startMs) / m_intervalMs;
    qint64 due = qMax<qint64>(0, ticks - m_ticks);
    if (due > mostTicksAtOnce)
        due = 1;
    m_ticks = qMax(m_ticks, ticks);
    return int(due);
}

int TickSchedule::msToNext(qint64 nowMs) const
{
    return int(qMax<qint64>(0, m_startMs + (m_ticks + 1) * m_intervalMs - nowMs));
}

SteadyTicker::SteadyTicker(QObject *parent, Clock clock) : Ticker(parent), m_clock(std::move(clock))
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &SteadyTicker::tick);
}

void SteadyTicker::start(int intervalMs)
{
    ++m_run;
    m_active = true;
    m_schedule.start(m_clock(), intervalMs);
    scheduleNext();
}

void SteadyTicker::stop()
{
    ++m_run;
    m_active = false;
    m_timer.stop();
}

SteadyTicker::Clock SteadyTicker::systemClock()
{
    return [] {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        return qint64(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
    };
}

void SteadyTicker::tick()
{
    const int run = m_run;
    for (int due = m_schedule.takeDue(m_clock()); due > 0 && run == m_run; --due)
        emit ticked();
    if (run == m_run)
        scheduleNext();
}

void SteadyTicker::scheduleNext()
{
    m_timer.start(m_schedule.msToNext(m_clock()));
}
