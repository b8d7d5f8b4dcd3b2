#include "capture/webcam/WebCamWindow.h"

#include "capture/CaptureEnvironment.h"
#include "capture/LivePicture.h"
#include "capture/source/VideoSource.h"
#include "capture/webcam/WebCamCaptureWnd.h"
#include "capture/webcam/WebCamEvent.h"
#include "capture/webcam/WebCamLiveViewThread.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"

#include <QFileInfo>
#include <QtDebug>

namespace {

constexpr int threadEndPauseMs = 800;
/// A thread tells of its end from within, a moment before it has ended.
constexpr int lastMomentMs = 20;

} // namespace

WebCamWindow::WebCamWindow(QQuickItem *parent) : WebCamReports(parent), m_display(new WebCamCaptureWnd(this))
{
    setSize(QSizeF(540, 360));
    connect(m_display, &WebCamCaptureWnd::setEyedropper, this, &WebCamWindow::setEyedropper);
    connect(m_display, &WebCamCaptureWnd::mousePressed, this, &WebCamWindow::mousePressed);
    connect(m_display, &WebCamCaptureWnd::rightClick, this, &WebCamWindow::rightClick);
    connect(this, &WebCamWindow::enableEyedropper, m_display, &WebCamCaptureWnd::setEyedropperOn);
}

WebCamWindow::~WebCamWindow()
{
    if (m_thread)
        m_thread->disconnect(this);
    m_thread.reset();
}

void WebCamWindow::setEnvironment(CaptureEnvironment *environment)
{
    m_environment = environment;
    if (environment)
        m_display->setLivePicture(environment->livePicture());
}

void WebCamWindow::componentComplete()
{
    WebCamReports::componentComplete();
    if (!m_environment)
        setEnvironment(CaptureEnvironment::of(this));
}

QQuickItem *WebCamWindow::liveView() const
{
    return m_display;
}

QObject *WebCamWindow::global() const
{
    return m_global;
}

void WebCamWindow::setGlobal(QObject *global)
{
    if (m_global) {
        m_global->disconnect(this);
        m_global->disconnect(m_display);
        if (m_thread)
            m_global->disconnect(m_thread.get());
    }
    m_global = qobject_cast<WebcamGlobal *>(global);
    emit globalChanged();
    if (!m_global)
        return;
    connect(m_global, &WebcamGlobal::cameraSettingsJustLoaded, this, &WebCamWindow::loadCameraSettings);
    connect(m_global, &WebcamGlobal::currentBlend, m_display, &WebCamCaptureWnd::setBlend);
}

void WebCamWindow::postToDisplay(int number, int priority)
{
    QCoreApplication::postEvent(m_display, new WebCamEvent(number), priority);
}

// The three that shape a picture are posted even when they stay as they are: a new picture starts right by
// that.
void WebCamWindow::setRotate(bool rotate)
{
    const bool changes = m_rotate != rotate;
    m_rotate = rotate;
    if (m_thread)
        postToDisplay(rotate ? WebCamEvent::RotatedOn : WebCamEvent::RotatedOff);
    if (changes)
        emit rotateChanged();
}

void WebCamWindow::setRenderSmooth(bool smooth)
{
    const bool changes = m_renderSmooth != smooth;
    m_renderSmooth = smooth;
    setSmooth(smooth);
    if (m_thread) {
        m_thread->setSmooth(smooth);
        postToDisplay(smooth ? WebCamEvent::SmoothOn : WebCamEvent::SmoothOff);
    }
    if (changes)
        emit renderSmoothChanged();
}

void WebCamWindow::setGrayscale(bool grayscale)
{
    const bool changes = m_grayscale != grayscale;
    m_grayscale = grayscale;
    postToDisplay(grayscale ? WebCamEvent::GrayscaleOn : WebCamEvent::GrayscaleOff);
    if (changes)
        emit grayscaleChanged();
}

void WebCamWindow::setPaused(bool paused)
{
    if (!m_thread || m_paused == paused)
        return;
    m_paused = paused;
    postToDisplay(paused ? WebCamEvent::AcceptingOff : WebCamEvent::AcceptingOn, 1);
    emit pausedChanged();
    if (paused) {
        m_powerFactorAfterPause = m_powerFactor;
        emit powerFactorChanged(WebCamLiveViewThread::pausingPowerFactor);
    } else {
        emit powerFactorChanged(m_powerFactorAfterPause);
    }
}

void WebCamWindow::setPowerFactor(int powerFactor)
{
    if (m_powerFactor == powerFactor)
        return;
    m_powerFactor = powerFactor;
    // A paused live view stays so, and goes on at the new pace.
    if (m_paused)
        m_powerFactorAfterPause = powerFactor;
    emit powerFactorChanged(m_paused ? WebCamLiveViewThread::pausingPowerFactor : powerFactor);
}

void WebCamWindow::setHistogramOn(bool on)
{
    if (m_histogramOn == on)
        return;
    m_histogramOn = on;
    if (m_thread)
        m_thread->setHistogramWanted(on);
    emit histogramOnChanged();
}

void WebCamWindow::setAvailWidth(int width)
{
    if (m_availWidth == width)
        return;
    m_availWidth = width;
    emit availWidthChanged(width);
}

void WebCamWindow::setAvailHeight(int height)
{
    if (m_availHeight == height)
        return;
    m_availHeight = height;
    emit availHeightChanged(height);
}

void WebCamWindow::setEyedropperOn(bool on)
{
    if (m_eyedropperOn == on)
        return;
    m_eyedropperOn = on;
    emit enableEyedropper(on);
    emit eyedropperOnChanged();
}

void WebCamWindow::printMessage(int, const QString &text)
{
    qDebug() << text;
}

void WebCamWindow::loadCameraSettings()
{
}

void WebCamWindow::updateScreen()
{
    setClip(true);
    update();
    m_display->update();
}

void WebCamWindow::setZoomRectPos()
{
}

void WebCamWindow::calcHistogramData()
{
}

void WebCamWindow::setFrameSize(int x, int y)
{
    if (m_thread)
        m_thread->setFrameSize(x, y);
}

void WebCamWindow::connects()
{
    connects(false);
}

void WebCamWindow::connects(bool)
{
    if (m_thread) {
        qDebug("Cannot start - thread is already running");
        return;
    }
    emit message(Zum::Info, tr("Connecting..."));
    takeBusy(true);
    if (!m_environment) {
        noCamera();
        takeBusy(false);
        return;
    }
    makeThread();
    // Before the start, for a thread that finds no camera has ended in a moment.
    connectThread();
    m_thread->start(QThread::HighestPriority);
    emit threadIsRunningChanged();
}

void WebCamWindow::makeThread()
{
    WebCamLiveViewThread::Setup setup;
    setup.source = m_environment->makeSource(m_global ? m_global->camindex() : 0);
    setup.clock = m_environment->clock();
    setup.picture = &m_environment->livePicture();
    setup.scopes = m_environment->scopes();
    setup.window = this;
    setup.display = m_display;
    setup.availWidth = m_availWidth;
    setup.availHeight = m_availHeight;
    setup.smooth = m_renderSmooth;
    setup.histogram = m_histogramOn;
    m_thread = std::make_shared<WebCamLiveViewThread>(std::move(setup));
    postToDisplay(WebCamEvent::AcceptingOn);
}

void WebCamWindow::connectThread()
{
    WebCamLiveViewThread *thread = m_thread.get();
    connect(this, &WebCamWindow::availWidthChanged, thread, &WebCamLiveViewThread::setAvailWidth);
    connect(this, &WebCamWindow::availHeightChanged, thread, &WebCamLiveViewThread::setAvailHeight);
    connect(this, &WebCamWindow::powerFactorChanged, thread, &WebCamLiveViewThread::setPowerFactor);
    connect(thread, &QThread::finished, this, [this, thread] {
        // One that was freed already has nothing more to tell.
        if (m_thread.get() == thread)
            disconnectsContinued();
    });
    if (!m_global) {
        qDebug("WebCamWindow::init failed to conect to global");
        return;
    }
    connect(m_global, &WebcamGlobal::webCameraProperty, thread, &WebCamLiveViewThread::webCameraProperty);
    connect(thread, &WebCamLiveViewThread::webCameraPropChanged, m_global,
            &WebcamGlobal::webCameraPropChanged);
}

void WebCamWindow::disconnects()
{
    takeFirmWare();
    if (m_thread)
        m_thread->requestStop();
}

void WebCamWindow::disconnectsContinued()
{
    if (!m_thread)
        return;
    m_thread->wait(lastMomentMs);
    while (!m_thread->isFinished()) {
        qDebug("Waiting for Thread to finish...");
        m_thread->wait(threadEndPauseMs);
    }
    m_thread.reset();
    if (m_paused) {
        m_paused = false;
        emit pausedChanged();
    }
    emit threadIsRunningChanged();
    takeBusy(false);
    const bool wasConnected = connected();
    setConnected(false);
    emit fpsChanged();
    if (!wasConnected)
        emit connectedChanged();
}

void WebCamWindow::captureFrame(const QString &frameExt, const QString &fullPath, const QString &tumbPath,
                                int frameWidth, int frameHeight, bool crop, bool grayscale, bool rotate)
{
    if (m_thread && m_thread->isConnected())
        m_thread->captureFrame(
            {frameExt, fullPath, tumbPath, frameWidth, frameHeight, crop, grayscale, rotate});
    else
        emit frameNotSaved();
}

void WebCamWindow::showSettingsDialog(int show)
{
    if (m_thread && m_thread->isConnected())
        QMetaObject::invokeMethod(
            m_thread.get(), [thread = m_thread.get(), show] { thread->showSettingsDialog(show); },
            Qt::QueuedConnection);
}

void WebCamWindow::takeBusy(bool busy)
{
    setBusy(busy);
    if (m_global)
        m_global->setBusy(busy);
}

void WebCamWindow::takeFirmWare()
{
    setFirmWareVer(QString());
    emit firmWareVerChanged();
}

void WebCamWindow::takeRate(const QVariant &rate)
{
    if (!rate.isValid()) {
        qDebug("Failed to get FPS");
        return;
    }
    m_fps = rate.toInt();
    emit fpsChanged();
}

void WebCamWindow::takeSizes()
{
    if (!m_thread)
        return;
    const FrameGrabber::Sizes sizes = m_thread->sizes();
    // A size of nothing is that of a thread that has just begun anew: the real one is on its way.
    if (sizes.native.isEmpty())
        return;
    if (m_global) {
        m_global->setCoordSystemHeight(sizes.native.height());
        m_global->setCoordSystemWidth(sizes.native.width());
    }
    setCoordSystemWidth(sizes.native.width());
    setCoordSystemHeight(sizes.native.height());
    emit coordSystemChanged();
    setSize(sizes.scaled);
    setRotate(m_rotate);
    setGrayscale(m_grayscale);
    setRenderSmooth(m_renderSmooth);
    if (connected())
        return;
    setConnected(true);
    takeBusy(false);
}

void WebCamWindow::noCamera(const QString &loadError)
{
    if (!connected() && loadError.isEmpty())
        emit message(Zum::Info,
                     tr("Close other programs that use the camera, choose another one in the list of "
                        "devices, or take the Demo Webcam"));
    emit message(Zum::Error,
                 loadError.isEmpty()
                     ? tr("Camera not present, not connected or not supported. Check hardware connection")
                     : tr("The part of the program that reads cameras and movies is missing or damaged. "
                          "Install the program again. %1")
                           .arg(loadError));
    takeFirmWare();
    if (connected()) {
        emit message(Zum::Info, tr("The camera is gone. Everything shot so far is in the project. "
                                   "Connect again to go on where it stopped"));
        emit cameraLost();
    }
    if (m_thread)
        m_thread->requestStop();
}

void WebCamWindow::frameWasSaved(const QVariantMap &paths)
{
    // The names may be later ones than those that were asked for.
    if (m_global && !paths.isEmpty()) {
        m_global->setUnsavedCapturedFull(
            QFileInfo(paths.value(QStringLiteral("full")).toString()).fileName());
        m_global->setUnsavedCapturedTumb(
            QFileInfo(paths.value(QStringLiteral("tumb")).toString()).fileName());
    }
    if (busy())
        takeBusy(false);
    emit frameSaved();
}

void WebCamWindow::customEvent(QEvent *event)
{
    const auto *said = static_cast<WebCamEvent *>(event);
    switch (int(event->type())) {
        case WebCamEvent::LiveViewFailed:
            emit message(Zum::Info, tr("Failed to initialize LiveView. Probably your camera does not support "
                                       "this feature"));
            noCamera();
            break;
        case WebCamEvent::NoCamera:
            noCamera(said->value().toString());
            break;
        case WebCamEvent::Rate:
            takeRate(said->value());
            break;
        case WebCamEvent::Warning:
            emit message(Zum::Warning, said->value().toString());
            break;
        case WebCamEvent::NoConnection:
            emit message(Zum::Error, tr("No connection with camera"));
            break;
        case WebCamEvent::FrameSaved:
            frameWasSaved(said->value().toMap());
            break;
        case WebCamEvent::ThumbnailFailed:
            emit frameSaveError();
            emit message(Zum::Warning, tr("Failed to receive image from camera"));
            break;
        case WebCamEvent::FrameFailed:
            emit message(Zum::Error, said->value().toString());
            emit frameNotSaved();
            break;
        case WebCamEvent::Busy:
        case WebCamEvent::NotBusy:
            takeBusy(int(event->type()) == WebCamEvent::Busy);
            break;
        case WebCamEvent::SizeChanged:
            takeSizes();
            break;
        default:
            takeReport(*said);
            break;
    }
}

void WebCamWindow::takeReport(const WebCamEvent &event)
{
    const QVariant &value = event.value();
    switch (int(event.type())) {
        case WebCamEvent::HistogramY:
            setHistogramDataY(value.toList());
            break;
        case WebCamEvent::HistogramR:
            setHistogramDataR(value.toList());
            break;
        case WebCamEvent::HistogramG:
            setHistogramDataG(value.toList());
            break;
        case WebCamEvent::HistogramB:
            setHistogramDataB(value.toList());
            break;
        case WebCamEvent::ProgressCurrent:
            setProgressCurrent(value.toInt());
            break;
        case WebCamEvent::ProgressTotal:
            setProgressTotal(value.toInt());
            break;
        case WebCamEvent::ProgressAction:
            setProgressAction(value.toString());
            break;
        default:
            break;
    }
}
