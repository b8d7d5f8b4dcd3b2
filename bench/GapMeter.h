#pragma once

#include <ctime>
#include <QElapsedTimer>
#include <QTimer>

/// The longest time that the main thread was away from its event loop, from start() to stop(). A timer of a
/// millisecond ticks in the loop; what lies between two ticks is time in which a window could not answer.
class GapMeter
{
public:
    struct Gap
    {
        /// Milliseconds by the clock, also those that other programs took on a busy machine.
        double wall = 0;
        /// The most milliseconds that the main thread itself computed between two ticks.
        double cpu = 0;
    };

    GapMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    }

    void start()
    {
        m_longest = {};
        m_sinceTick.start();
        m_cpuAtTick = cpuMs();
        m_timer.start();
    }
    Gap stop()
    {
        tick();
        m_timer.stop();
        return m_longest;
    }

private:
    static double cpuMs()
    {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }

    void tick()
    {
        const double cpu = cpuMs();
        m_longest.wall = qMax(m_longest.wall, double(m_sinceTick.nsecsElapsed()) / 1e6);
        m_longest.cpu = qMax(m_longest.cpu, cpu - m_cpuAtTick);
        m_sinceTick.start();
        m_cpuAtTick = cpu;
    }

    QTimer m_timer;
    QElapsedTimer m_sinceTick;
    Gap m_longest;
    double m_cpuAtTick = 0;
};
