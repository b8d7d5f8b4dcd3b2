#pragma once

#include "capture/source/VideoSource.h"

#include <opencv2/videoio.hpp>

/// A camera or capture adapter by OpenCV's index. The library's own log is silenced: what the user has to
/// know is told by the device.
class OpenCvSource : public VideoSource
{
public:
    explicit OpenCvSource(int index);

    bool open() override;
    bool isOpened() const override;
    bool read(cv::Mat &picture) override;
    bool set(int property, double value) override;
    double get(int property) override;
    void close() override;

    /// Keeps the library from writing into the terminal. Process-wide.
    static void silenceLog();

private:
    cv::VideoCapture m_capture;
    int m_index;
};
