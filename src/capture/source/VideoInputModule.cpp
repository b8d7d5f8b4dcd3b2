#include "capture/source/VideoInput.h"

#include <opencv2/core/utils/logger.hpp>
#include <opencv2/videoio.hpp>
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

/// The library's own log is silenced, for the whole process: what the user has to know is told by the device.
class OpenCvInput : public VideoInput
{
public:
    OpenCvInput()
    {
        cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    }
    ~OpenCvInput() override
    {
        try {
            m_capture.release();
        } catch (const cv::Exception &) {
            // A device that has gone cannot be let go of in order.
        }
    }

    bool openCamera(int index) override
    try {
        if (!m_capture.open(index, backEnd))
            return false;
        m_capture.set(cv::CAP_PROP_BUFFERSIZE, buffers);
        return true;
    } catch (const cv::Exception &) {
        return false;
    }

    bool openMovie(const std::string &path) override
    try {
        return m_capture.open(path, cv::CAP_FFMPEG);
    } catch (const cv::Exception &) {
        return false;
    }

    bool isOpened() const override
    {
        return m_capture.isOpened();
    }

    bool read(cv::Mat &picture) override
    try {
        return m_capture.read(picture);
    } catch (const cv::Exception &) {
        return false;
    }

    bool set(int property, double value) override
    try {
        return m_capture.set(property, value);
    } catch (const cv::Exception &) {
        return false;
    }

    double get(int property) const override
    try {
        return m_capture.get(property);
    } catch (const cv::Exception &) {
        return -1;
    }

private:
    cv::VideoCapture m_capture;
};

} // namespace

extern "C" Q_DECL_EXPORT VideoInput *MORVANE_MODULE_ENTRY()
{
    return new OpenCvInput;
}
