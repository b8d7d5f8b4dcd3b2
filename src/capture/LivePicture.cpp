#include "capture/LivePicture.h"

#include <chrono>
#include <thread>

namespace {

// By asking again: the other side holds the lock for a moment only, and a mutex with a time limit of its own
// is one that the thread sanitizer cannot follow.
std::unique_lock<std::mutex> tryLock(std::mutex &mutex)
{
    std::unique_lock lock(mutex, std::defer_lock);
    const auto limit =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(LivePicture::lockTimeoutMs);
    while (!lock.try_lock() && std::chrono::steady_clock::now() < limit)
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    return lock;
}

} // namespace

LivePicture &LivePicture::processWide()
{
    static LivePicture picture;
    return picture;
}

bool LivePicture::publish(const QImage &picture, const QSize &nativeSize,
                          const std::function<void(const QImage &)> &underLock)
{
    // The picture before is let go of after the lock, for that may free a large piece of memory.
    QImage before;
    const auto lock = tryLock(m_mutex);
    if (!lock.owns_lock())
        return false;
    if (underLock)
        underLock(m_picture);
    m_nativeSize = nativeSize;
    before = picture;
    m_picture.swap(before);
    return true;
}

std::optional<LivePicture::Taken> LivePicture::take()
{
    m_announced = false;
    const auto lock = tryLock(m_mutex);
    if (!lock.owns_lock())
        return std::nullopt;
    m_copying = true;
    Taken taken{m_picture, m_nativeSize};
    m_copying = false;
    return taken;
}

bool LivePicture::announce()
{
    return !m_copying && !m_announced.exchange(true);
}

void LivePicture::dropAnnouncement()
{
    m_announced = false;
}

void LivePicture::clear()
{
    const std::lock_guard lock(m_mutex);
    m_picture = QImage();
    m_nativeSize = QSize();
    m_announced = false;
}

std::unique_lock<std::mutex> LivePicture::hold()
{
    return std::unique_lock(m_mutex);
}
