#pragma once

#include "capture/CaptureClock.h"
#include "capture/CaptureEnvironment.h"
#include "capture/source/VideoSource.h"

#include <atomic>
#include <functional>
#include <mutex>
#include <utility>
#include <vector>

/// Imitates time: a wait is over at once, and a timer after a millisecond, but both let the clock go on by
/// what they stand for.
class FakeCaptureClock : public CaptureClock
{
public:
    qint64 nowMs() const override
    {
        return m_now;
    }
    void wait(int ms) override
    {
        m_now += ms;
        m_waited += ms;
    }
    int timerDelay(int ms) override
    {
        m_now += ms;
        m_lastDelay = ms;
        return 1;
    }
    /// Time spent in waits alone.
    qint64 waitedMs() const
    {
        return m_waited;
    }
    int lastDelayMs() const
    {
        return m_lastDelay;
    }

private:
    std::atomic<qint64> m_now = 0;
    std::atomic<qint64> m_waited = 0;
    std::atomic<int> m_lastDelay = 0;
};

/// What an imitated camera does and what was asked of it. Any thread.
class ScriptedCamera
{
public:
    /// Fills the picture of reading number `reading`, from 0; false when the camera gives nothing.
    using Reading = std::function<bool(int reading, cv::Mat &picture)>;

    std::atomic<bool> opens = true;
    std::atomic<bool> takesProperties = true;
    std::atomic<double> propertyValue = 77;
    std::atomic<int> readings = 0;
    std::atomic<int> taken = 0;
    std::atomic<int> closed = 0;

    void onRead(Reading reading)
    {
        const std::lock_guard lock(m_mutex);
        m_reading = std::move(reading);
    }
    Reading reading() const
    {
        const std::lock_guard lock(m_mutex);
        return m_reading;
    }
    void note(int property, double value)
    {
        const std::lock_guard lock(m_mutex);
        m_sets.emplace_back(property, value);
    }
    std::vector<std::pair<int, double>> sets() const
    {
        const std::lock_guard lock(m_mutex);
        return m_sets;
    }
    static Reading plain(int width, int height, int type = CV_8UC3)
    {
        return [=](int reading, cv::Mat &picture) {
            picture = cv::Mat(height, width, type, cv::Scalar(reading % 256, 60, 200, 255));
            return true;
        };
    }

private:
    mutable std::mutex m_mutex;
    Reading m_reading = plain(64, 48);
    std::vector<std::pair<int, double>> m_sets;
};

/// The camera as its thread sees it.
class ScriptedSource : public VideoSource
{
public:
    explicit ScriptedSource(std::shared_ptr<ScriptedCamera> camera) : m_camera(std::move(camera))
    {
    }
    bool open() override
    {
        m_open = m_camera->opens;
        return m_open;
    }
    bool isOpened() const override
    {
        return m_open;
    }
    bool read(cv::Mat &picture) override
    {
        return m_camera->reading()(m_camera->readings++, picture);
    }
    bool set(int property, double value) override
    {
        m_camera->note(property, value);
        return m_camera->takesProperties;
    }
    double get(int) override
    {
        return m_camera->propertyValue;
    }
    void close() override
    {
        m_open = false;
        ++m_camera->closed;
    }
    void frameTaken() override
    {
        ++m_camera->taken;
    }

private:
    std::shared_ptr<ScriptedCamera> m_camera;
    bool m_open = false;
};

/// Imitates the machine's video nodes.
class FakeNodes : public VideoNodes
{
public:
    explicit FakeNodes(std::shared_ptr<QList<VideoNode>> nodes) : m_nodes(std::move(nodes))
    {
    }
    QList<VideoNode> list() override
    {
        return *m_nodes;
    }

private:
    std::shared_ptr<QList<VideoNode>> m_nodes;
};

/// A machine with imitated time and cameras. `camera` stands behind every index of the machine's own; what is
/// in `nodes` stands in the list.
struct FakeMachine
{
    std::shared_ptr<FakeCaptureClock> clock = std::make_shared<FakeCaptureClock>();
    std::shared_ptr<ScriptedCamera> camera = std::make_shared<ScriptedCamera>();
    std::shared_ptr<QList<VideoNode>> nodes = std::make_shared<QList<VideoNode>>();
    /// Emit its changed() to plug something in or out.
    DeviceMonitor *monitor = nullptr;

    CaptureEnvironment::Parts parts()
    {
        auto listener = std::make_unique<DeviceMonitor>();
        monitor = listener.get();
        CaptureEnvironment::Parts parts;
        parts.clock = clock;
        parts.nodes = std::make_unique<FakeNodes>(nodes);
        parts.monitor = std::move(listener);
        parts.openHardware = [camera = camera](int) {
            return std::make_unique<ScriptedSource>(camera);
        };
        return parts;
    }
};
