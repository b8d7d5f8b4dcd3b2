#pragma once

#include "capture/webcam/WebCamReports.h"

#include <memory>
#include <QPointer>

class CaptureEnvironment;
class WebCamCaptureWnd;
class WebCamEvent;
class WebcamGlobal;
class WebCamLiveViewThread;

/// The capturing device for all that OpenCV's video input opens, and for the built-in camera: "WebCamera" of
/// the module "WebCamera" 1.0. Owns the camera's thread, one for each connection, and the live view item; is
/// the only object of a webcam that the scene talks to. Main thread.
///
/// Its states: idle, connecting (`busy`), connected, and paused within connected.
class WebCamWindow : public WebCamReports
{
    Q_OBJECT
    Q_PROPERTY(bool threadIsRunning READ threadIsRunning NOTIFY threadIsRunningChanged)
    /// Pictures a second as measured, 0 while not connected.
    Q_PROPERTY(int fps READ fps NOTIFY fpsChanged)
    Q_PROPERTY(QObject *global READ global WRITE setGlobal NOTIFY globalChanged)
    Q_PROPERTY(bool rotate READ rotate WRITE setRotate NOTIFY rotateChanged)
    /// Can be written only while the thread runs.
    Q_PROPERTY(bool paused READ paused WRITE setPaused NOTIFY pausedChanged)
    Q_PROPERTY(bool renderSmooth READ renderSmooth WRITE setRenderSmooth NOTIFY renderSmoothChanged)
    Q_PROPERTY(bool histogramOn READ histogramOn WRITE setHistogramOn NOTIFY histogramOnChanged)
    Q_PROPERTY(bool grayscale READ grayscale WRITE setGrayscale NOTIFY grayscaleChanged)
    /// The pause between two pictures, in milliseconds; see WebCamLiveViewThread::setPowerFactor().
    Q_PROPERTY(int powerFactor READ powerFactor WRITE setPowerFactor NOTIFY powerFactorChanged)
    /// The room for the live picture, in pixels.
    Q_PROPERTY(int availWidth READ availWidth WRITE setAvailWidth NOTIFY availWidthChanged)
    Q_PROPERTY(int availHeight READ availHeight WRITE setAvailHeight NOTIFY availHeightChanged)
    Q_PROPERTY(bool eyedropperOn READ eyedropperOn WRITE setEyedropperOn NOTIFY eyedropperOnChanged)
    /// The live view item, with the `blend` and `grayscale` that the scene's effect shall show.
    Q_PROPERTY(QQuickItem *liveView READ liveView CONSTANT)

public:
    explicit WebCamWindow(QQuickItem *parent = nullptr);
    ~WebCamWindow() override;

    /// Instead of the one that the scene was given; before the first connection.
    void setEnvironment(CaptureEnvironment *environment);

    bool threadIsRunning() const
    {
        return m_thread != nullptr;
    }
    int fps() const
    {
        return connected() ? m_fps : 0;
    }
    QObject *global() const;
    void setGlobal(QObject *global);
    bool rotate() const
    {
        return m_rotate;
    }
    void setRotate(bool rotate);
    bool paused() const
    {
        return m_paused;
    }
    void setPaused(bool paused);
    bool renderSmooth() const
    {
        return m_renderSmooth;
    }
    void setRenderSmooth(bool smooth);
    bool histogramOn() const
    {
        return m_histogramOn;
    }
    void setHistogramOn(bool on);
    bool grayscale() const
    {
        return m_grayscale;
    }
    void setGrayscale(bool grayscale);
    int powerFactor() const
    {
        return m_powerFactor;
    }
    void setPowerFactor(int powerFactor);
    int availWidth() const
    {
        return m_availWidth;
    }
    void setAvailWidth(int width);
    int availHeight() const
    {
        return m_availHeight;
    }
    void setAvailHeight(int height);
    bool eyedropperOn() const
    {
        return m_eyedropperOn;
    }
    void setEyedropperOn(bool on);
    QQuickItem *liveView() const;

public slots:
    void printMessage(int err, const QString &text);
    /// Nothing to do: a project keeps no settings of a webcam.
    void loadCameraSettings();
    void updateScreen();
    /// The thread has ended: waits for it, frees it, and tells that the connection is gone.
    void disconnectsContinued();
    void setZoomRectPos();
    /// Asks for pictures of another size. What the camera really gives comes as coordSystemWidth and -Height.
    void setFrameSize(int x, int y);
    void connects();
    void connects(bool getListOnly);
    void disconnects();
    void calcHistogramData();
    /// Saves the next grabbed picture. Without a running loop the request is dropped without a word, but for
    /// frameNotSaved().
    void captureFrame(const QString &frameExt, const QString &fullPath, const QString &tumbPath,
                      int frameWidth, int frameHeight, bool crop, bool grayscale, bool rotate);
    void showSettingsDialog(int show);

signals:
    void threadIsRunningChanged();
    void fpsChanged();
    void globalChanged();
    void rotateChanged();
    void pausedChanged();
    void renderSmoothChanged();
    void histogramOnChanged();
    void grayscaleChanged();
    /// The pause that the camera's thread shall keep: `powerFactor`, or 1000 while paused.
    void powerFactorChanged(int powerFactor);
    void availWidthChanged(int width);
    void availHeightChanged(int height);
    void eyedropperOnChanged();

protected:
    void componentComplete() override;
    void customEvent(QEvent *event) override;

private:
    void makeThread();
    void connectThread();
    void takeBusy(bool busy);
    void takeFirmWare();
    void takeRate(const QVariant &rate);
    void takeSizes();
    void noCamera(const QString &loadError = {});
    void frameWasSaved(const QVariantMap &paths);
    void takeReport(const WebCamEvent &event);
    void postToDisplay(int number, int priority = Qt::NormalEventPriority);

    QPointer<CaptureEnvironment> m_environment;
    QPointer<WebcamGlobal> m_global;
    WebCamCaptureWnd *m_display;
    std::shared_ptr<WebCamLiveViewThread> m_thread;
    int m_fps = 25;
    int m_powerFactor = 0;
    /// What a resumed live view goes back to.
    int m_powerFactorAfterPause = 300;
    int m_availWidth = 10;
    int m_availHeight = 10;
    bool m_rotate = false;
    bool m_paused = false;
    bool m_renderSmooth = true;
    bool m_histogramOn = true;
    bool m_grayscale = false;
    bool m_eyedropperOn = false;
};
