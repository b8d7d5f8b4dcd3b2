#pragma once

#include "timeline/Ticker.h"

/// Ticks when the test says so.
class HandTicker : public Ticker
{
public:
    using Ticker::Ticker;

    void start(int intervalMs) override
    {
        ++starts;
        interval = intervalMs;
        m_active = true;
    }
    void stop() override
    {
        m_active = false;
    }
    bool isActive() const override
    {
        return m_active;
    }
    /// Does nothing when stopped, as a timer does.
    void tick(int times = 1)
    {
        for (int i = 0; i < times && m_active; ++i)
            emit ticked();
    }

    int interval = 0;
    int starts = 0;

private:
    bool m_active = false;
};
