#pragma once

#include "capture/webcam/CaptureRequests.h"
#include "shared/HistoCalc.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <opencv2/core/mat.hpp>
#include <QImage>
#include <QSize>

class LivePicture;
class ScopeFeed;
class VideoSource;

/// One picture at a time from a camera to the screen, or into the files of a shot. grab() belongs to the
/// camera's thread; what is marked so may be called from any.
class FrameGrabber
{
public:
    struct Hooks
    {
        /// The first picture, or one of another size.
        std::function<void()> sizeChanged;
        std::function<void(const HistoCalc::Channels &)> histogram;
        /// A picture that is shot, as the camera gave it.
        std::function<void(const QImage &, const CaptureRequest &)> save;
    };
    struct Sizes
    {
        /// As the camera gives it, and as it is shown.
        QSize native;
        QSize scaled;
    };

    FrameGrabber(VideoSource &source, LivePicture &picture, ScopeFeed *scopes, CaptureRequests &requests,
                 Hooks hooks);

    /// False when the camera gave nothing, or a picture that is no colour picture of three channels.
    bool grab();

    /// Nothing grabbed yet, so that the next picture counts as a change of size. No shot under way.
    void startAnew();

    /// Readings in a row that gave nothing.
    int failures() const
    {
        return m_failures;
    }
    void forgetFailures()
    {
        m_failures = 0;
    }
    /// Sets the pace of the histogram: pictures a second as measured.
    void setMeasuredRate(double framesPerSecond)
    {
        m_measuredRate = framesPerSecond;
    }

    // Any thread
    Sizes sizes() const;
    /// The size that the camera is asked for at the next grab. What it really gives comes back as a change of
    /// size.
    void requestSize(const QSize &size);
    void setAvailableWidth(int width)
    {
        m_availableWidth = width;
    }
    void setAvailableHeight(int height)
    {
        m_availableHeight = height;
    }
    void setSmooth(bool smooth)
    {
        m_smooth = smooth;
    }
    void setHistogramWanted(bool wanted)
    {
        m_histogramWanted = wanted;
    }

private:
    bool askForSize();
    bool read(cv::Mat &picture);
    QImage shown(const cv::Mat &picture) const;
    void countHistogram(const QImage &picture);
    void noteSize(const QSize &native, const QSize &scaled, bool wasAsked);
    void publish(const QImage &picture, const QSize &native);

    VideoSource &m_source;
    LivePicture &m_picture;
    ScopeFeed *m_scopes;
    CaptureRequests &m_requests;
    Hooks m_hooks;

    std::atomic<int> m_availableWidth = 10;
    std::atomic<int> m_availableHeight = 10;
    std::atomic<bool> m_smooth = true;
    std::atomic<bool> m_histogramWanted = true;

    mutable std::mutex m_sizeMutex;
    QSize m_requested{-1, -1};
    QSize m_current{0, 0};
    QSize m_scaled{0, 0};

    double m_measuredRate = 0;
    int m_failures = 0;
    int m_histogramSkipped = 0;
    int m_scopesSkipped = 0;
};
