#include "capture/webcam/WebCamLiveViewThread.h"

#include "capture/CaptureClock.h"
#include "capture/LivePicture.h"
#include "capture/source/VideoSource.h"
#include "capture/webcam/WebCamEvent.h"
#include "shared/Zum.h"

#include <array>
#include <cmath>
#include <opencv2/videoio.hpp>
#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QtDebug>
#include <QTimer>

namespace {

// Cameras need a while until they deliver their first picture.
constexpr int firstPictureTries = 20;
constexpr int firstPicturePauseMs = 500;
constexpr int lastTryPauseMs = 1500;

constexpr int mostFailures = 4;
constexpr int pausedTurnMs = 400;
constexpr int ratePeriodMs = 4000;
constexpr int longestIntervalMs = 400;
constexpr int highestPropertyValue = 255;

// In the order of Zum::WebcamProperties.
constexpr std::array<int, 11> openCvProperties{
    cv::CAP_PROP_BRIGHTNESS, cv::CAP_PROP_CONTRAST, cv::CAP_PROP_SATURATION,    cv::CAP_PROP_HUE,
    cv::CAP_PROP_GAIN,       cv::CAP_PROP_EXPOSURE, cv::CAP_PROP_AUTO_EXPOSURE, cv::CAP_PROP_SHARPNESS,
    cv::CAP_PROP_ZOOM,       cv::CAP_PROP_FOCUS,    cv::CAP_PROP_AUTOFOCUS};

QVariantList toVariants(const QList<qreal> &values)
{
    return {values.cbegin(), values.cend()};
}

} // namespace

WebCamLiveViewThread::WebCamLiveViewThread(Setup setup)
    : m_source(std::move(setup.source)), m_clock(std::move(setup.clock)), m_picture(*setup.picture),
      m_window(setup.window), m_display(setup.display),
      m_grabber(*m_source, m_picture, setup.scopes, m_requests,
                {[this] {
                     // Pictures of the first tries would have the device connected before a shot can be
                     // taken.
                     if (m_connected)
                         postToWindow(WebCamEvent::SizeChanged, {}, 1);
                 },
                 [this](const HistoCalc::Channels &channels) {
                     postToWindow(WebCamEvent::HistogramY, toVariants(channels.y));
                     postToWindow(WebCamEvent::HistogramR, toVariants(channels.r));
                     postToWindow(WebCamEvent::HistogramG, toVariants(channels.g));
                     postToWindow(WebCamEvent::HistogramB, toVariants(channels.b));
                 },
                 [this](const QImage &image, const CaptureRequest &request) {
                     m_saver.save(image, request);
                 }})
{
    m_grabber.setAvailableWidth(setup.availWidth);
    m_grabber.setAvailableHeight(setup.availHeight);
    m_grabber.setSmooth(setup.smooth);
    m_grabber.setHistogramWanted(setup.histogram);
    setObjectName(QStringLiteral("WebCamLiveView"));
    moveToThread(this);
}

WebCamLiveViewThread::~WebCamLiveViewThread()
{
    requestStop();
    wait();
}

void WebCamLiveViewThread::requestStop()
{
    m_stopRequested = true;
    emit stopRunning();
}

void WebCamLiveViewThread::captureFrame(const CaptureRequest &request)
{
    if (!m_requests.ask(request))
        postToWindow(WebCamEvent::Warning, tr("Taking a picture. Please wait"));
}

void WebCamLiveViewThread::postToWindow(int number, const QVariant &value, int priority)
{
    QCoreApplication::postEvent(m_window, new WebCamEvent(number, value), priority);
}

void WebCamLiveViewThread::postToDisplay(int number)
{
    QCoreApplication::postEvent(m_display, new WebCamEvent(number));
}

void WebCamLiveViewThread::run()
{
    m_passesSinceMs = m_clock->nowMs();
    m_picture.clear();
    switch (openCamera()) {
        case Opened::Yes:
            runLoop();
            break;
        case Opened::No:
            postToWindow(WebCamEvent::NoCamera, m_source->loadError());
            break;
        case Opened::GivenUp:
            break;
    }
    postToDisplay(WebCamEvent::LoopEnded);
    m_source->close();
}

// False when the connection is no longer wanted.
bool WebCamLiveViewThread::pauseUnlessStopped(int ms)
{
    QCoreApplication::processEvents();
    if (!m_stopRequested)
        m_clock->wait(ms);
    return !m_stopRequested;
}

WebCamLiveViewThread::Opened WebCamLiveViewThread::openCamera()
{
    if (!m_source->isOpened() && !m_source->open())
        return Opened::No;
    bool grabbed = m_grabber.grab();
    for (int tries = 0; !grabbed && tries < firstPictureTries; ++tries) {
        if (!pauseUnlessStopped(firstPicturePauseMs))
            return Opened::GivenUp;
        grabbed = m_grabber.grab();
    }
    if (m_grabber.grab())
        return m_stopRequested ? Opened::GivenUp : Opened::Yes;
    return pauseUnlessStopped(lastTryPauseMs) ? Opened::No : Opened::GivenUp;
}

void WebCamLiveViewThread::runLoop()
{
    m_grabber.startAnew();
    m_grabber.forgetFailures();
    m_connected = true;
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    connect(this, &WebCamLiveViewThread::stopRunning, &loop, &QEventLoop::quit);
    connect(this, &WebCamLiveViewThread::stopRunning, &timer, &QTimer::stop);
    connect(
        this, &WebCamLiveViewThread::continueRunning, &timer,
        [&](int interval) {
            if (!m_stopRequested)
                timer.start(m_clock->timerDelay(interval));
        },
        Qt::DirectConnection);
    connect(&timer, &QTimer::timeout, this, &WebCamLiveViewThread::accuireEvfImage, Qt::DirectConnection);
    timer.start(m_clock->timerDelay(m_intervalMs));
    QCoreApplication::processEvents();
    if (!m_stopRequested)
        loop.exec();
    m_connected = false;
    qDebug("Closed web camera thread");
}

void WebCamLiveViewThread::accuireEvfImage()
{
    if (m_pausedByPowerFactor) {
        m_passes = 0;
        m_passesSinceMs = m_clock->nowMs();
        emit continueRunning(pausedTurnMs);
        return;
    }
    const bool grabbed = m_grabber.grab();
    if (!grabbed && m_grabber.failures() > mostFailures) {
        postToWindow(WebCamEvent::NoCamera);
        m_grabber.forgetFailures();
        requestStop();
        return;
    }
    if (grabbed && m_picture.announce())
        postToDisplay(WebCamEvent::NewPicture);
    measureRate();
    emit continueRunning(m_intervalMs);
}

void WebCamLiveViewThread::measureRate()
{
    ++m_passes;
    const qint64 now = m_clock->nowMs();
    if (now - m_passesSinceMs < ratePeriodMs)
        return;
    m_passesSinceMs = now;
    const double rate = m_passes * 0.25;
    m_passes = 0;
    m_grabber.setMeasuredRate(rate);
    postToWindow(WebCamEvent::Rate, int(std::lround(rate)));
}

void WebCamLiveViewThread::setAvailWidth(int aw)
{
    m_grabber.setAvailableWidth(aw);
}

void WebCamLiveViewThread::setAvailHeight(int ah)
{
    m_grabber.setAvailableHeight(ah);
}

void WebCamLiveViewThread::setPowerFactor(int pf)
{
    if (pf >= pausingPowerFactor) {
        m_pausedByPowerFactor = true;
    } else if (pf <= longestIntervalMs) {
        m_intervalMs = pf <= shortestIntervalMs ? shortestIntervalMs : pf;
        m_pausedByPowerFactor = false;
    }
}

void WebCamLiveViewThread::webCameraProperty(int propId, int value)
{
    if (!m_source->isOpened() || m_pausedByPowerFactor)
        return;
    if (propId < 0 || propId >= int(openCvProperties.size()))
        return;
    const int property = openCvProperties.at(size_t(propId));
    if (value < 0) {
        emit webCameraPropChanged(propId, m_source->get(property));
        return;
    }
    if (value > highestPropertyValue)
        return;
    if (!m_source->set(property, value))
        emit webCameraPropChanged(propId, -1);
    if (propId == Zum::WebcamAutoExposure || propId == Zum::WebcamAutofocus)
        emit webCameraPropChanged(propId, m_source->get(property));
}

void WebCamLiveViewThread::showSettingsDialog(int show)
{
    if (m_connected && m_source->isOpened())
        m_source->set(cv::CAP_PROP_SETTINGS, show);
}

void WebCamLiveViewThread::progressTotal(int total)
{
    postToWindow(WebCamEvent::ProgressTotal, total);
}

void WebCamLiveViewThread::progressCurrent(int current)
{
    postToWindow(WebCamEvent::ProgressCurrent, current);
}

void WebCamLiveViewThread::progressAction(const QString &action)
{
    postToWindow(WebCamEvent::ProgressAction, action);
}

void WebCamLiveViewThread::frameSaved(const QString &fullPath, const QString &tumbPath)
{
    const QVariantMap paths{{QStringLiteral("full"), fullPath}, {QStringLiteral("tumb"), tumbPath}};
    // Over before it is told, for whoever hears of it may ask for the next shot at once.
    m_requests.finishCurrent();
    postToWindow(WebCamEvent::FrameSaved, paths, 1);
}

void WebCamLiveViewThread::thumbnailFailed(const QString &reason)
{
    if (!reason.isEmpty())
        postToWindow(
            WebCamEvent::Warning,
            tr("The thumbnail could not be saved: %1. Make room on the disk, or check that the project's "
               "folder can be written, and capture the frame again")
                .arg(reason));
    m_requests.finishCurrent();
    postToWindow(WebCamEvent::ThumbnailFailed, {}, 1);
}

void WebCamLiveViewThread::imageFailed(const QString &reason)
{
    const QString text =
        tr("The picture could not be saved: %1. Make room on the disk, or check that the project's "
           "folder can be written, and capture the frame again")
            .arg(reason);
    m_requests.finishCurrent();
    postToWindow(WebCamEvent::FrameFailed, text, 1);
}
