#include "capture/source/OpenCvSource.h"

#include <opencv2/core/utils/logger.hpp>
#include <QtGlobal>

namespace {

// The list of cameras holds V4L2 nodes. Left to choose, the library asks every back end that it has, and one
// of them takes a photo camera on USB for itself.
#ifdef Q_OS_LINUX
constexpr int backEnd = cv::CAP_V4L2;
#else
constexpr int backEnd = cv::CAP_ANY;
#endif

// With the usual four buffers a slow pace of grabbing shows, and shoots, pictures of a second ago.
constexpr int buffers = 2;

} // namespace

OpenCvSource::OpenCvSource(int index) : m_index(index)
{
}

void OpenCvSource::silenceLog()
{
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
}

bool OpenCvSource::open()
try {
    silenceLog();
    if (!m_capture.open(m_index, backEnd))
        return false;
    m_capture.set(cv::CAP_PROP_BUFFERSIZE, buffers);
    return true;
} catch (const cv::Exception &) {
    return false;
}

bool OpenCvSource::isOpened() const
{
    return m_capture.isOpened();
}

bool OpenCvSource::read(cv::Mat &picture)
try {
    return m_capture.read(picture);
} catch (const cv::Exception &) {
    return false;
}

bool OpenCvSource::set(int property, double value)
try {
    return m_capture.set(property, value);
} catch (const cv::Exception &) {
    return false;
}

double OpenCvSource::get(int property)
try {
    return m_capture.get(property);
} catch (const cv::Exception &) {
    return -1;
}

void OpenCvSource::close()
try {
    m_capture.release();
} catch (const cv::Exception &) {
    // A device that has gone cannot be let go of in order.
}
