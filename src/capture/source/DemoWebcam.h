#pragma once

#include "capture/source/DemoStage.h"
#include "capture/source/FramePacer.h"
#include "capture/source/VideoSource.h"

#include <array>
#include <atomic>
#include <QObject>
#include <QSize>

/// What a Demo Webcam is told to do, beside what its thread asks of it. Every call from any thread.
class DemoWebcamControls : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Plugged in; without it, it cannot be opened, and an open one delivers nothing more.
    void setPresent(bool present);
    bool isPresent() const
    {
        return m_present;
    }
    /// Delivers pictures; without it, it can be opened but every reading comes back empty.
    void setDelivering(bool delivers)
    {
        m_delivering = delivers;
    }
    bool isDelivering() const
    {
        return m_delivering;
    }
    /// Pictures of a size of the teller's own; an empty one for those that the camera is asked for.
    void setForcedSize(const QSize &size);
    QSize forcedSize() const;
    /// Channels of a picture: 3 as a camera gives, 1 or 4.
    void setChannels(int channels)
    {
        m_channels = channels;
    }
    int channels() const
    {
        return m_channels;
    }
    /// Pictures delivered and pictures shot so far.
    int delivered() const
    {
        return m_delivered;
    }
    int taken() const
    {
        return m_taken;
    }
    void countDelivered()
    {
        ++m_delivered;
    }
    void countTaken()
    {
        ++m_taken;
    }

signals:
    void presentChanged();

private:
    std::atomic<bool> m_present = true;
    std::atomic<bool> m_delivering = true;
    std::atomic<int> m_channels = 3;
    std::atomic<quint64> m_forcedSize = 0;
    std::atomic<int> m_delivered = 0;
    std::atomic<int> m_taken = 0;
};

/// A webcam made of drawing: a puppet on a stage, 30 pictures a second, 1280x720 or 1920x1080. Whenever a
/// picture is shot the puppet moves a little, as if somebody had posed it. It has all properties of a webcam,
/// and each can be seen.
class DemoWebcam : public VideoSource
{
public:
    static constexpr double framesPerSecond = 30;

    DemoWebcam(std::shared_ptr<CaptureClock> clock, std::shared_ptr<DemoWebcamControls> controls);

    bool open() override;
    bool isOpened() const override
    {
        return m_open;
    }
    bool read(cv::Mat &picture) override;
    bool set(int property, double value) override;
    double get(int property) override;
    void close() override;
    void frameTaken() override;

private:
    struct Property
    {
        int number;
        double value;
        double highest;
    };

    Property *find(int number);
    double value(int number);
    void chooseSize();
    cv::Mat render();
    void adjustTones(cv::Mat &picture);
    void adjustColours(cv::Mat &picture);
    void adjustSharpness(cv::Mat &picture);

    FramePacer m_pacer;
    std::shared_ptr<DemoWebcamControls> m_controls;
    DemoStage m_stage;
    std::array<Property, 11> m_properties;
    /// The picture as it stands until something changes.
    cv::Mat m_rendered;
    QSize m_size;
    double m_askedWidth = 0;
    double m_askedHeight = 0;
    int m_pose = 0;
    bool m_open = false;
};
