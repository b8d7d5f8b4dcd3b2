#include "capture/source/VideoFileSource.h"

#include <opencv2/videoio.hpp>
#include <QFile>

namespace {

constexpr double usualRate = 25;
constexpr double highestRate = 240;

} // namespace

VideoFileSource::VideoFileSource(QString path, std::shared_ptr<CaptureClock> clock, QString moduleFolder)
    : m_path(std::move(path)), m_pacer(std::move(clock)), m_moduleFolder(std::move(moduleFolder))
{
}

bool VideoFileSource::begin()
{
    return m_input->openMovie(QFile::encodeName(m_path).toStdString());
}

bool VideoFileSource::open()
{
    m_input = VideoInput::load(m_moduleFolder, m_loadError);
    if (!m_input || !begin())
        return false;
    const double rate = m_input->get(cv::CAP_PROP_FPS);
    m_pacer.start(rate > 0 && rate <= highestRate ? rate : usualRate);
    return true;
}

bool VideoFileSource::isOpened() const
{
    return m_input && m_input->isOpened();
}

bool VideoFileSource::readOn(cv::Mat &picture)
{
    // The decoder may give a view of a buffer that it fills again.
    cv::Mat decoded;
    if (!m_input->read(decoded) || decoded.empty())
        return false;
    picture = decoded.clone();
    return true;
}

bool VideoFileSource::read(cv::Mat &picture)
{
    picture.release();
    if (!isOpened())
        return false;
    m_pacer.waitForNext();
    if (readOn(picture))
        return true;
    m_input->set(cv::CAP_PROP_POS_FRAMES, 0);
    if (readOn(picture))
        return true;
    // Some containers cannot be wound back.
    return begin() && readOn(picture);
}

bool VideoFileSource::set(int, double)
{
    return false;
}

double VideoFileSource::get(int property)
{
    const bool isSize = property == cv::CAP_PROP_FRAME_WIDTH || property == cv::CAP_PROP_FRAME_HEIGHT;
    return isSize && isOpened() ? m_input->get(property) : -1;
}

void VideoFileSource::close()
{
    m_input.reset();
}
