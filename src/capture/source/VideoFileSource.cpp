#include "capture/source/VideoFileSource.h"

#include "capture/source/OpenCvSource.h"

#include <QFile>

namespace {

constexpr double usualRate = 25;
constexpr double highestRate = 240;

} // namespace

VideoFileSource::VideoFileSource(QString path, std::shared_ptr<CaptureClock> clock)
    : m_path(std::move(path)), m_pacer(std::move(clock))
{
}

bool VideoFileSource::open()
try {
    OpenCvSource::silenceLog();
    if (!m_capture.open(QFile::encodeName(m_path).toStdString(), cv::CAP_FFMPEG))
        return false;
    const double rate = m_capture.get(cv::CAP_PROP_FPS);
    m_pacer.start(rate > 0 && rate <= highestRate ? rate : usualRate);
    return true;
} catch (const cv::Exception &) {
    return false;
}

bool VideoFileSource::isOpened() const
{
    return m_capture.isOpened();
}

bool VideoFileSource::readOn(cv::Mat &picture)
{
    // The decoder may give a view of a buffer that it fills again.
    cv::Mat decoded;
    if (!m_capture.read(decoded) || decoded.empty())
        return false;
    picture = decoded.clone();
    return true;
}

bool VideoFileSource::read(cv::Mat &picture)
try {
    picture.release();
    if (!isOpened())
        return false;
    m_pacer.waitForNext();
    if (readOn(picture))
        return true;
    m_capture.set(cv::CAP_PROP_POS_FRAMES, 0);
    if (readOn(picture))
        return true;
    // Some containers cannot be wound back.
    return m_capture.open(QFile::encodeName(m_path).toStdString(), cv::CAP_FFMPEG) && readOn(picture);
} catch (const cv::Exception &) {
    return false;
}

bool VideoFileSource::set(int, double)
{
    return false;
}

double VideoFileSource::get(int property)
{
    const bool isSize = property == cv::CAP_PROP_FRAME_WIDTH || property == cv::CAP_PROP_FRAME_HEIGHT;
    return isSize && isOpened() ? m_capture.get(property) : -1;
}

void VideoFileSource::close()
{
    m_capture.release();
}
