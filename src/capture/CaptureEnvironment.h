#pragma once

#include "capture/CaptureClock.h"
#include "capture/FileCameras.h"
#include "capture/source/DemoWebcam.h"
#include "capture/system/DeviceMonitor.h"
#include "capture/system/VideoNodes.h"

#include <functional>
#include <memory>
#include <QObject>
#include <QVariantList>

class LivePicture;
class ScopeFeed;
class Settings;

/// What capturing devices need of the world: the machine's cameras, the built-in one and the user's files,
/// time, and the place of the live picture. The program has one, which the scene's devices find by its name
/// among the context properties; a test hands in its own. Main thread. Lives longer than every device.
class CaptureEnvironment : public QObject
{
    Q_OBJECT

public:
    /// Name of the context property.
    static constexpr auto contextName = "CaptureEnvironment";
    /// Index and name of the built-in camera. The index lies above all that can be typed in.
    static constexpr int demoIndex = 301;
    static QString demoName();

    struct Parts
    {
        std::shared_ptr<CaptureClock> clock;
        std::unique_ptr<VideoNodes> nodes;
        std::unique_ptr<DeviceMonitor> monitor;
        /// Opens the cameras of the machine; OpenCV does when nothing is given.
        std::function<std::unique_ptr<VideoSource>(int index)> openHardware;
        /// Whether the built-in camera stands in the list.
        bool demo = true;
    };

    CaptureEnvironment(Parts parts, Settings &settings, QObject *parent = nullptr);
    ~CaptureEnvironment() override;

    /// The machine itself.
    static Parts system();
    /// The one that the scene around `item` was given, or none.
    static CaptureEnvironment *of(const QObject *item);

    /// All that can be opened, as maps with "name" and "index": the machine's cameras in the order of their
    /// indexes, then the built-in one, then the user's files.
    QVariantList devices();

    /// What an index stands for.
    std::unique_ptr<VideoSource> makeSource(int index) const;

    std::shared_ptr<CaptureClock> clock() const
    {
        return m_parts.clock;
    }
    LivePicture &livePicture() const
    {
        return *m_livePicture;
    }
    void setLivePicture(LivePicture &picture)
    {
        m_livePicture = &picture;
    }
    /// Where scopes get their pictures; none when null. Set before a device connects.
    ScopeFeed *scopes() const
    {
        return m_scopes;
    }
    void setScopes(ScopeFeed *scopes)
    {
        m_scopes = scopes;
    }
    FileCameras &files()
    {
        return m_files;
    }
    DemoWebcamControls &demo() const
    {
        return *m_demo;
    }

signals:
    /// A camera has come or gone.
    void devicesChanged();

private:
    Parts m_parts;
    FileCameras m_files;
    std::shared_ptr<DemoWebcamControls> m_demo;
    LivePicture *m_livePicture;
    ScopeFeed *m_scopes = nullptr;
};
