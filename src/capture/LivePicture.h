#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <QImage>
#include <QSize>

/// The newest picture of a camera, written by the camera's thread and read by the item that shows it. There
/// is no queue: a new picture takes the place of the one before, whether that was shown or not. Neither side
/// ever waits longer than 100 ms for the other; a picture that cannot be had by then is dropped. Any thread.
///
/// A published picture is never written again, so readers share its pixels instead of copying them.
class LivePicture
{
public:
    static constexpr int lockTimeoutMs = 100;

    struct Taken
    {
        QImage picture;
        /// Of the picture as the camera gave it, before it was cut down for the screen.
        QSize nativeSize;
    };

    /// The one that the program's camera and its display share.
    static LivePicture &processWide();

    /// Puts `picture` in the place of the one before. `underLock` sees the one before, null at the first
    /// time. False when the picture had to be dropped.
    bool publish(const QImage &picture, const QSize &nativeSize,
                 const std::function<void(const QImage &before)> &underLock = {});

    /// The newest picture; a null one when there is none yet, nothing when it could not be had. Takes a
    /// pending announcement back.
    std::optional<Taken> take();

    /// Whether the reader shall be told of a new picture: not while it copies one, and not while it has been
    /// told and not come. So at most one notice is under way, however slow the reader is.
    bool announce();
    /// The reader heard of a picture and does not want it.
    void dropAnnouncement();

    /// No picture and no announcement, as at the start.
    void clear();

    /// Keeps both sides out until the result is destroyed.
    [[nodiscard]] std::unique_lock<std::mutex> hold();

private:
    std::mutex m_mutex;
    QImage m_picture;
    QSize m_nativeSize;
    std::atomic<bool> m_copying = false;
    std::atomic<bool> m_announced = false;
};
