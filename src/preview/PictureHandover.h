#pragma once

#include <chrono>
#include <mutex>
#include <QImage>

/// The one thing that a worker and its preview share: the last picture delivered. Pictures are implicitly
/// shared, so that nothing is copied while the lock is held. Any thread.
class PictureHandover
{
public:
    /// False when the lock could not be had in that time; the picture then stays the old one.
    bool put(const QImage &image, std::chrono::milliseconds limit)
    {
        const std::unique_lock lock(m_mutex, deadline(limit));
        if (lock.owns_lock())
            m_image = image;
        return lock.owns_lock();
    }
    /// False when the lock could not be had in that time; `image` then stays as it is.
    bool take(QImage &image, std::chrono::milliseconds limit)
    {
        const std::unique_lock lock(m_mutex, deadline(limit));
        if (lock.owns_lock())
            image = m_image;
        return lock.owns_lock();
    }
    /// Runs something that no one may take or put a picture meanwhile.
    template <typename Call>
    void whileLocked(Call call)
    {
        const std::lock_guard lock(m_mutex);
        call();
    }

private:
    /// A time of the day and not a span: of the two kinds of wait the thread sanitizer knows only this one.
    static std::chrono::system_clock::time_point deadline(std::chrono::milliseconds limit)
    {
        return std::chrono::system_clock::now() + limit;
    }

    std::timed_mutex m_mutex;
    QImage m_image;
};
