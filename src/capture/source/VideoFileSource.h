#pragma once

#include "capture/source/FramePacer.h"
#include "capture/source/VideoInput.h"
#include "capture/source/VideoSource.h"
#include "shared/ProgramModule.h"

/// A movie that stands in for a camera: it runs at its own rate and begins anew at its end. It has no
/// properties but its size, which cannot be changed.
class VideoFileSource : public VideoSource
{
public:
    VideoFileSource(QString path, std::shared_ptr<CaptureClock> clock,
                    QString moduleFolder = ProgramModule::standardFolder());

    bool open() override;
    QString loadError() const override
    {
        return m_loadError;
    }
    bool isOpened() const override;
    bool read(cv::Mat &picture) override;
    bool set(int property, double value) override;
    double get(int property) override;
    void close() override;

private:
    bool begin();
    bool readOn(cv::Mat &picture);

    QString m_path;
    FramePacer m_pacer;
    QString m_moduleFolder;
    QString m_loadError;
    std::unique_ptr<VideoInput> m_input;
};
