#include "capture/CaptureClock.h"

#include <chrono>
#include <QThread>

qint64 SystemCaptureClock::nowMs() const
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

void SystemCaptureClock::wait(int ms)
{
    if (ms > 0)
        QThread::msleep(ulong(ms));
}
