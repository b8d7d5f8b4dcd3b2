#pragma once

#include "capture/CaptureClock.h"

#include <algorithm>
#include <memory>

/// Holds the reader of a simulated camera up until its next picture is due. A reader that comes late gets its
/// picture at once and the pace starts anew from there, as with a camera that drops what nobody fetched.
class FramePacer
{
public:
    explicit FramePacer(std::shared_ptr<CaptureClock> clock) : m_clock(std::move(clock))
    {
    }

    void start(double framesPerSecond)
    {
        m_periodMs = 1000.0 / framesPerSecond;
        m_dueMs = double(m_clock->nowMs());
    }
    void waitForNext()
    {
        const auto now = double(m_clock->nowMs());
        if (now < m_dueMs)
            m_clock->wait(int(m_dueMs - now + 0.5));
        m_dueMs = std::max(m_dueMs, now) + m_periodMs;
    }

private:
    std::shared_ptr<CaptureClock> m_clock;
    double m_periodMs = 40;
    double m_dueMs = 0;
};
