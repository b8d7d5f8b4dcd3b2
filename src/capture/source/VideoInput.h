#pragma once

#include <memory>
#include <opencv2/core/mat.hpp>
#include <QString>
#include <string>

/// OpenCV's video input, one camera or movie at a time. It comes from a module, because it brings along ten
/// times as many libraries as the rest of the program. One thread at a time. Never throws.
class VideoInput
{
public:
    /// What the module exports.
    using Make = VideoInput *();

    /// Loads the module when it is not there yet, which takes a while; null when that fails, and `error` says
    /// why.
    static std::unique_ptr<VideoInput> load(const QString &moduleFolder, QString &error);

    VideoInput() = default;
    virtual ~VideoInput() = default;
    VideoInput(const VideoInput &) = delete;
    VideoInput &operator=(const VideoInput &) = delete;

    virtual bool openCamera(int index) = 0;
    /// The path as the file system has it.
    virtual bool openMovie(const std::string &path) = 0;
    virtual bool isOpened() const = 0;
    virtual bool read(cv::Mat &picture) = 0;
    /// Properties by OpenCV's numbers; a value is negative when there is none.
    virtual bool set(int property, double value) = 0;
    virtual double get(int property) const = 0;
};
