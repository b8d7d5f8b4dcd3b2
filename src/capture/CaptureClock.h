#pragma once

#include <QtGlobal>

/// Time as a camera's thread and a simulated camera see it. Handed in, so that tests let minutes of waiting
/// pass in milliseconds. Any thread.
class CaptureClock
{
public:
    virtual ~CaptureClock() = default;

    /// Milliseconds of a clock that never jumps.
    virtual qint64 nowMs() const = 0;
    /// Holds the calling thread up.
    virtual void wait(int ms) = 0;
    /// How long a timer of the event loop has to run to stand for `ms`.
    virtual int timerDelay(int ms) = 0;
};

/// The machine's steady clock.
class SystemCaptureClock : public CaptureClock
{
public:
    qint64 nowMs() const override;
    void wait(int ms) override;
    int timerDelay(int ms) override
    {
        return ms;
    }
};
