#pragma once

#include "capture/webcam/CaptureRequests.h"
#include "capture/webcam/FrameGrabber.h"
#include "capture/webcam/FrameSaver.h"

#include <atomic>
#include <memory>
#include <QThread>
#include <QVariant>

class CaptureClock;
class LivePicture;
class ScopeFeed;
class VideoSource;

/// A webcam's thread: all talk with the camera, the loop that grabs its pictures, the saving of shots. One
/// object for one connection. It speaks to the device and to the live view item by WebCamEvent alone, and
/// both must live until it has finished.
///
/// The object belongs to the thread that it is: its slots are called through its event loop. start() and what
/// is marked so may be called from any thread.
class WebCamLiveViewThread : public QThread, private SaveObserver
{
    Q_OBJECT

public:
    struct Setup
    {
        std::unique_ptr<VideoSource> source;
        std::shared_ptr<CaptureClock> clock;
        LivePicture *picture = nullptr;
        ScopeFeed *scopes = nullptr;
        QObject *window = nullptr;
        QObject *display = nullptr;
        int availWidth = 10;
        int availHeight = 10;
        bool smooth = true;
        bool histogram = true;
    };

    static constexpr int shortestIntervalMs = 33;
    /// From this power factor on the live view rests.
    static constexpr int pausingPowerFactor = 1000;

    explicit WebCamLiveViewThread(Setup setup);
    ~WebCamLiveViewThread() override;

    // Any thread
    /// Whether shots are taken: the loop has begun and has not ended.
    bool isConnected() const
    {
        return m_connected;
    }
    /// Ends the connection, also one that is still being tried.
    void requestStop();
    void captureFrame(const CaptureRequest &request);
    FrameGrabber::Sizes sizes() const
    {
        return m_grabber.sizes();
    }
    void setFrameSize(int width, int height)
    {
        m_grabber.requestSize({width, height});
    }
    void setSmooth(bool smooth)
    {
        m_grabber.setSmooth(smooth);
    }
    void setHistogramWanted(bool wanted)
    {
        m_grabber.setHistogramWanted(wanted);
    }
    /// Before start().
    FrameSaver &saver()
    {
        return m_saver;
    }

public slots:
    /// One turn of the loop.
    void accuireEvfImage();
    void setAvailWidth(int aw);
    void setAvailHeight(int ah);
    /// Below 34 as fast as the loop goes, to 400 the pause between pictures in milliseconds, above 999 none
    /// at all.
    void setPowerFactor(int pf);
    /// Sets a property of Zum::WebcamProperties to 0 .. 255, or reads it with a negative value.
    void webCameraProperty(int propId, int value);
    /// The camera driver's own dialog.
    void showSettingsDialog(int show);

signals:
    void stopRunning();
    void continueRunning(int interval);
    /// What the camera answered; -1 when it did not take a value.
    void webCameraPropChanged(int prop, qreal camValue);

protected:
    void run() override;

private:
    enum class Opened {
        Yes,
        No,
        /// The program no longer wants it.
        GivenUp,
    };
    Opened openCamera();
    bool pauseUnlessStopped(int ms);
    void runLoop();
    void measureRate();
    void postToWindow(int number, const QVariant &value = {}, int priority = Qt::NormalEventPriority);
    void postToDisplay(int number);

    void progressTotal(int total) override;
    void progressCurrent(int current) override;
    void progressAction(const QString &action) override;
    void frameSaved(const QString &fullPath, const QString &tumbPath) override;
    void thumbnailFailed(const QString &reason) override;
    void imageFailed(const QString &reason) override;

    std::unique_ptr<VideoSource> m_source;
    std::shared_ptr<CaptureClock> m_clock;
    LivePicture &m_picture;
    QObject *m_window;
    QObject *m_display;
    CaptureRequests m_requests;
    FrameSaver m_saver{*this};
    FrameGrabber m_grabber;
    std::atomic<bool> m_connected = false;
    std::atomic<bool> m_stopRequested = false;
    int m_intervalMs = shortestIntervalMs;
    bool m_pausedByPowerFactor = false;
    int m_passes = 0;
    qint64 m_passesSinceMs = 0;
};
