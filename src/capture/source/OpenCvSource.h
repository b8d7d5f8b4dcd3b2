#pragma once

#include "capture/source/VideoInput.h"
#include "capture/source/VideoSource.h"
#include "shared/ProgramModule.h"

/// A camera or capture adapter by OpenCV's index.
class OpenCvSource : public VideoSource
{
public:
    explicit OpenCvSource(int index, QString moduleFolder = ProgramModule::standardFolder());

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
    QString m_moduleFolder;
    QString m_loadError;
    std::unique_ptr<VideoInput> m_input;
    int m_index;
};
