#include "capture/webcam/FrameGrabber.h"

#include "capture/LivePicture.h"
#include "capture/ScopeFeed.h"
#include "capture/source/VideoSource.h"

#include <opencv2/imgproc.hpp>
#include <opencv2/videoio.hpp>

namespace {

constexpr int picturesPerScope = 4;

/// A screen takes ARGB32, an encoder is quickest with RGB888.
QImage toImage(const cv::Mat &picture, QImage::Format format)
{
    QImage image(picture.cols, picture.rows, format);
    if (image.isNull())
        return image;
    const bool forScreen = format == QImage::Format_ARGB32;
    cv::Mat view(picture.rows, picture.cols, forScreen ? CV_8UC4 : CV_8UC3, image.bits(),
                 size_t(image.bytesPerLine()));
    cv::cvtColor(picture, view, forScreen ? cv::COLOR_BGR2BGRA : cv::COLOR_BGR2RGB);
    return image;
}

} // namespace

FrameGrabber::FrameGrabber(VideoSource &source, LivePicture &picture, ScopeFeed *scopes,
                           CaptureRequests &requests, Hooks hooks)
    : m_source(source), m_picture(picture), m_scopes(scopes), m_requests(requests), m_hooks(std::move(hooks))
{
}

FrameGrabber::Sizes FrameGrabber::sizes() const
{
    const std::lock_guard lock(m_sizeMutex);
    return {m_current, m_scaled};
}

void FrameGrabber::requestSize(const QSize &size)
{
    const std::lock_guard lock(m_sizeMutex);
    m_requested = size;
}

void FrameGrabber::startAnew()
{
    const std::lock_guard lock(m_sizeMutex);
    m_current = {0, 0};
    m_scaled = {0, 0};
    m_requests.finishCurrent();
}

bool FrameGrabber::askForSize()
{
    QSize wanted;
    {
        const std::lock_guard lock(m_sizeMutex);
        if (m_requested == m_current)
            return false;
        wanted = m_requested;
    }
    m_source.set(cv::CAP_PROP_FRAME_WIDTH, wanted.width());
    m_source.set(cv::CAP_PROP_FRAME_HEIGHT, wanted.height());
    return true;
}

bool FrameGrabber::read(cv::Mat &picture)
{
    const bool delivered = m_source.isOpened() && m_source.read(picture) && !picture.empty();
    m_failures = delivered ? 0 : m_failures + 1;
    return delivered;
}

bool FrameGrabber::grab()
{
    const bool asked = askForSize();
    cv::Mat picture;
    if (!read(picture) || picture.type() != CV_8UC3)
        return false;
    if (const auto shot = m_requests.take()) {
        const QImage image = toImage(picture, QImage::Format_RGB888);
        picture.release();
        m_source.frameTaken();
        m_hooks.save(image, shot->request);
        m_requests.finish(shot->number);
        return true;
    }
    const QSize native(picture.cols, picture.rows);
    const QImage image = shown(picture);
    if (image.isNull())
        return false;
    countHistogram(image);
    noteSize(native, image.size(), asked);
    publish(image, native);
    return true;
}

QImage FrameGrabber::shown(const cv::Mat &picture) const
{
    const QSize available(m_availableWidth, m_availableHeight);
    const QSize native(picture.cols, picture.rows);
    if (native.width() <= available.width() && native.height() <= available.height())
        return toImage(picture, QImage::Format_ARGB32);
    const QSize fitting = native.scaled(available, Qt::KeepAspectRatio).expandedTo({1, 1});
    cv::Mat small;
    cv::resize(picture, small, cv::Size(fitting.width(), fitting.height()), 0, 0,
               m_smooth ? cv::INTER_AREA : cv::INTER_NEAREST);
    return toImage(small, QImage::Format_ARGB32);
}

void FrameGrabber::countHistogram(const QImage &picture)
{
    if (!m_histogramWanted || m_histogramSkipped < m_measuredRate) {
        ++m_histogramSkipped;
        return;
    }
    const HistoCalc::Channels histogram = HistoCalc::calculate(picture);
    if (!histogram.y.isEmpty())
        m_hooks.histogram(histogram);
    m_histogramSkipped = 0;
}

// A camera that does not have the size that was asked for goes on with its own, and that answer has to reach
// the one who asked although nothing changed.
void FrameGrabber::noteSize(const QSize &native, const QSize &scaled, bool wasAsked)
{
    {
        const std::lock_guard lock(m_sizeMutex);
        const bool answersOther = wasAsked && m_requested != native;
        m_scaled = scaled;
        if (native == m_current && !answersOther)
            return;
        m_requested = native;
        m_current = native;
    }
    m_hooks.sizeChanged();
}

// A picture that cannot be handed over is dropped; the grab was good all the same.
void FrameGrabber::publish(const QImage &picture, const QSize &native)
{
    m_picture.publish(picture, native, [&](const QImage &before) {
        if (m_scopesSkipped >= picturesPerScope && !before.isNull()) {
            m_scopesSkipped = 0;
            if (m_scopes)
                m_scopes->feed(picture);
        }
        ++m_scopesSkipped;
    });
}
