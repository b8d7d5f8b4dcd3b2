#pragma once

#include <opencv2/core/mat.hpp>
#include <QString>

/// Where pictures come from: a camera, a file, or the built-in stage. Made on any thread, and then used from
/// the camera's thread alone, where every call may block for as long as the hardware takes. Property numbers
/// are those of OpenCV's video input. Never throws.
class VideoSource
{
public:
    VideoSource() = default;
    virtual ~VideoSource() = default;
    VideoSource(const VideoSource &) = delete;
    VideoSource &operator=(const VideoSource &) = delete;

    virtual bool open() = 0;
    /// After an open() that failed for want of a part of the program, not of the device: what is wrong.
    virtual QString loadError() const
    {
        return {};
    }
    virtual bool isOpened() const = 0;
    /// Blocks until there is a picture, and gives it in the order blue, green, red. False, or an empty one,
    /// when nothing was delivered. The picture may be given again, so nobody changes its
    /// pixels.
    virtual bool read(cv::Mat &picture) = 0;
    virtual bool set(int property, double value) = 0;
    /// The value, or a negative number when the source does not have the property.
    virtual double get(int property) = 0;
    virtual void close() = 0;
    /// The picture read last is one that was shot.
    virtual void frameTaken()
    {
    }
};
