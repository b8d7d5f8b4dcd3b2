#pragma once

#include <mutex>
#include <optional>
#include <QString>

/// What is to become of a grabbed picture.
struct CaptureRequest
{
    QString frameExt;
    QString fullPath;
    QString tumbPath;
    /// Size that `crop` cuts to; below 1, or above the picture's, it is the picture's own in that dimension.
    int frameWidth = 0;
    int frameHeight = 0;
    bool crop = false;
    bool grayscale = false;
    bool rotate = false;
};

/// The one shot that may be under way. Asked for on the main thread, carried out on the camera's. Any thread.
class CaptureRequests
{
public:
    struct Taken
    {
        CaptureRequest request;
        int number = 0;
    };

    /// Stores the request. False when a shot is under way already: if that one has not got its picture yet,
    /// it is carried out with the new values.
    bool ask(const CaptureRequest &request)
    {
        const std::lock_guard lock(m_mutex);
        m_request = request;
        if (m_inProgress)
            return false;
        m_inProgress = true;
        m_pending = true;
        ++m_number;
        return true;
    }
    /// What the picture just grabbed is wanted for, if it is wanted.
    std::optional<Taken> take()
    {
        const std::lock_guard lock(m_mutex);
        if (!m_pending)
            return std::nullopt;
        m_pending = false;
        return Taken{m_request, m_number};
    }
    /// The shot of this number is over, whatever came of it. One that was asked for since is not touched.
    void finish(int number)
    {
        const std::lock_guard lock(m_mutex);
        if (number == m_number)
            m_inProgress = false;
    }
    /// The shot under way is over.
    void finishCurrent()
    {
        const std::lock_guard lock(m_mutex);
        m_inProgress = false;
        m_pending = false;
    }

private:
    std::mutex m_mutex;
    CaptureRequest m_request;
    int m_number = 0;
    bool m_inProgress = false;
    bool m_pending = false;
};
