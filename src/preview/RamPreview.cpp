// The requests of RamPreview: when the worker is asked, and what becomes of its answers.

#include "preview/RamPreview.h"

#include "preview/ImLightEq.h"
#include "preview/MaskOverlay.h"
#include "preview/TimelineReadAhead.h"
#include "timeline/FramesModel.h"

#include <QDebug>

namespace {

constexpr int smallestCropLimit = 10;
constexpr int forcedUpdateDelayMs = 1000;
constexpr int cachingNoticeMs = 1000;
constexpr int processingDelayMs = 800;
constexpr std::chrono::milliseconds takeLimit{100};

PictureStore::Folders projectFolders()
{
    const Zum::ProjectFolders folders = Zum::projectFolders();
    PictureStore::Folders result{
        folders.capFullDirPath, folders.refFullDirPath, folders.backgroundDirPath, {}};
    if (!folders.projContntDirPath.isEmpty())
        result.copies = folders.projContntDirPath + QStringLiteral("tmp/cache/");
    return result;
}

PictureStore::Surroundings projectSurroundings()
{
    // One chain of filters for each worker, used on its thread only.
    const auto chain = std::make_shared<ImLightEq>();
    const auto filter = [chain](const QImage &image, const QVariantMap &settings, double strength) {
        chain->setBackgroundFolder(Zum::projectFolders().backgroundDirPath);
        return chain->process(image, settings, strength);
    };
    return {&projectFolders, filter, DiskCopies::ofProcess()};
}

/// The tolerance of 1e-12 is relative.
bool isRealChange(qreal a, qreal b)
{
    return !qFuzzyCompare(a, b);
}

} // namespace

RamPreview::RamPreview(QQuickItem *parent)
    : RamPreviewReport(parent), m_thread(this, projectSurroundings()),
      m_cacheMaxInBytes(PictureStore::standardCacheBytes)
{
    setFlag(ItemHasContents);
    setAcceptHoverEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);

    m_cachingNotice.setSingleShot(true);
    m_cachingNotice.setInterval(cachingNoticeMs);
    connect(&m_cachingNotice, &QTimer::timeout, this, &RamPreview::cachingChanged);
    m_processingDelay.setSingleShot(true);
    m_processingDelay.setInterval(processingDelayMs);
    connect(&m_processingDelay, &QTimer::timeout, this, &RamPreview::actuallyRequestImage);

    RamPreviewWorker &worker = m_thread.worker();
    connect(this, qOverload<int, bool>(&RamPreview::cacheMaxInBytes), &worker, &RamPreviewWorker::setCacheMax,
            Qt::QueuedConnection);
    connect(
        this, &RamPreview::cleanCache, &worker, [&worker] { worker.clearCache({}); }, Qt::QueuedConnection);

    const auto resetScale = [this] {
        setScale(1);
        becomeWished();
    };
    connect(this, &RamPreview::cameraViewWidthChanged, this, resetScale);
    connect(this, &RamPreview::cameraViewHeightChanged, this, resetScale);
    connect(this, &RamPreview::scalePolicyChanged, this, &RamPreview::becomeWished);
    connect(this, &RamPreview::playingCapturedChanged, this, &RamPreview::becomeWished);
    connect(this, &RamPreview::playingBackgroundsChanged, this, &RamPreview::becomeWished);
    connect(this, &RamPreview::maskColorChanged, this, [this] { m_forceNext = true; });
    connect(this, &RamPreview::mirroredChanged, this, &RamPreview::repaint);
    connect(this, &RamPreview::smoothChanged, this, &RamPreview::repaint);
    connect(this, &RamPreview::histogramOnChanged, this, &RamPreview::repaint);
    connect(this, &RamPreview::runningChanged, this, &RamPreview::updateReadAhead);
    connectOverlay();
}

RamPreview::~RamPreview() = default;

const QImage &RamPreview::image() const
{
    return m_image;
}

QString RamPreview::imageName() const
{
    return m_imageName;
}

int RamPreview::imageWidth() const
{
    return m_cropLimit.width();
}

int RamPreview::imageHeight() const
{
    return m_cropLimit.height();
}

qreal RamPreview::scaleFactor() const
{
    return m_scaleFactor;
}

int RamPreview::postProcessing() const
{
    return m_postProcessing;
}

QVariantMap RamPreview::settings() const
{
    return m_settings;
}

bool RamPreview::hasSettings() const
{
    return !m_settings.isEmpty();
}

bool RamPreview::renderAllowed() const
{
    return m_renderAllowed;
}

bool RamPreview::caching() const
{
    return m_caching;
}

int RamPreview::cacheMaxInBytes() const
{
    return m_cacheMaxInBytes;
}

FramesModel *RamPreview::timeline() const
{
    return m_timeline;
}

PictureRequest RamPreview::wish() const
{
    PictureRequest wish;
    wish.name = m_imageName;
    wish.scale = m_scaleFactor;
    wish.cropLimit = m_cropLimit;
    wish.target = {cameraViewWidth(), cameraViewHeight()};
    wish.filtered = m_postProcessing == Zum::NonRealtimeProcessing;
    if (playingBackgrounds())
        wish.source = PictureRequest::fromBackgrounds;
    else
        wish.source = playingCaptured() ? PictureRequest::fromCaptured : PictureRequest::fromReference;
    wish.policy = scalePolicy();
    wish.settings = m_settings;
    return wish;
}

void RamPreview::componentComplete()
{
    RamPreviewReport::componentComplete();
    requestImage();
    updateReadAhead();
}

void RamPreview::requestImage(int delay)
{
    if (!m_requesting)
        QTimer::singleShot(delay, this, &RamPreview::actuallyRequestImage);
}

void RamPreview::requestImage()
{
    requestImage(0);
}

void RamPreview::actuallyRequestImage()
{
    if (m_requesting || !m_renderAllowed || m_caching || m_imageName.isEmpty() || !isComponentComplete())
        return;
    m_requesting = true;
    m_asked = wish();
    m_asked.forced = m_forceNext;
    m_forceNext = false;
    m_forceLater = false;
    m_thread.call(&RamPreviewWorker::requestImage, m_asked.name, m_asked.scale, m_asked.parameters(),
                  m_asked.settings);
}

void RamPreview::reload()
{
    requestImage(0);
}

void RamPreview::forceUpdateCurrentImage()
{
    m_forceNext = true;
    m_forceLater = m_requesting;
    requestImage(forcedUpdateDelayMs);
}

void RamPreview::clearCurrentInCache()
{
    if (m_imageName.isEmpty())
        return;
    PictureStore::passDiskCopiesOnce();
    qDebug("Clear cache on clearCurrentInCache");
    clearCache(m_imageName);
}

void RamPreview::clearCache(const QString &remkeys)
{
    takeDelivered();
    m_thread.call(&RamPreviewWorker::clearCache, remkeys);
}

void RamPreview::clearCache()
{
    clearCache(QString());
}

void RamPreview::finishedInThread()
{
    takeDelivered();
    repaint();
    endRequest();
}

void RamPreview::endedInThread()
{
    endRequest();
}

/// False when the worker held on to the picture for too long; the next delivery makes up for it.
bool RamPreview::takeDelivered()
{
    QImage delivered;
    if (!m_thread.worker().handover().take(delivered, takeLimit))
        return false;
    // What comes for a name that was taken away meanwhile is not shown.
    m_image = m_imageName.isEmpty() ? QImage() : delivered;
    m_textPending = true;
    m_textureStale = true;
    setPosition({0, 0});
    if (!m_image.isNull())
        setSize(m_image.size());
    return true;
}

void RamPreview::endRequest()
{
    m_processingPending = false;
    if (m_caching || !m_cachingNotice.isActive())
        m_cachingNotice.start();
    m_caching = false;
    m_requesting = false;
    becomeWished();
}

/// Asks again if what is wanted now is not what was asked for last.
void RamPreview::becomeWished()
{
    PictureRequest wanted = wish();
    // A change of the processing waits for its own time.
    if (m_processingDelay.isActive())
        wanted.filtered = m_asked.filtered;
    if (m_forceLater || !wanted.wantsSameAs(m_asked))
        requestImage();
    updateReadAhead();
}

void RamPreview::setCaching(bool caching)
{
    if (caching == m_caching)
        return;
    m_caching = caching;
    if (caching)
        emit cachingChanged();
    else if (!m_cachingNotice.isActive())
        m_cachingNotice.start();
}

void RamPreview::imageSizeChanged(int width, int height)
{
    setImplicitSize(width, height);
}

void RamPreview::setImageName(const QString &name)
{
    if (name == m_imageName)
        return;
    m_imageName = name;
    emit imageNameChanged();
    if (!name.isEmpty()) {
        requestImage();
        return;
    }
    m_image = {};
    m_textPending = true;
    m_textureStale = true;
    updateRendered();
}

void RamPreview::setImageWidth(int width)
{
    if (width < smallestCropLimit || width == m_cropLimit.width())
        return;
    m_cropLimit.setWidth(width);
    emit imageWidthChanged();
    forgetAndAsk();
}

void RamPreview::setImageHeight(int height)
{
    if (height < smallestCropLimit || height == m_cropLimit.height())
        return;
    m_cropLimit.setHeight(height);
    emit imageHeightChanged();
    forgetAndAsk();
}

void RamPreview::forgetAndAsk()
{
    // Otherwise the running request's end asks again, and the worker sees that the sizes are others.
    if (m_caching || m_requesting)
        return;
    clearCache();
    requestImage();
}

void RamPreview::setScaleFactor(qreal factor)
{
    if (!isRealChange(factor, m_scaleFactor))
        return;
    m_scaleFactor = factor;
    emit scaleFactorChanged();
    if (m_renderAllowed)
        clearCache();
    requestImage();
}

void RamPreview::setPostProcessing(int type)
{
    if (type < Zum::NoProcessing || type > Zum::NonRealtimeProcessing || type == m_postProcessing)
        return;
    m_postProcessing = type;
    emit postProcessingChanged();
    if (m_processingPending || m_caching)
        return;
    m_processingPending = true;
    m_processingDelay.start();
}

void RamPreview::setSettings(const QVariantMap &settings)
{
    if (settings == m_settings)
        return;
    m_settings = settings;
    emit settingsChanged();
    repaint();
    if (!m_renderAllowed)
        return;
    clearCache(PictureRequest::filteredPrefix);
    requestImage();
}

void RamPreview::setRenderAllowed(bool allowed)
{
    if (allowed == m_renderAllowed)
        return;
    m_renderAllowed = allowed;
    emit renderAllowedChanged();
    if (allowed)
        requestImage();
    updateReadAhead();
}

void RamPreview::setCacheMaxInBytes(int bytes)
{
    if (bytes == m_cacheMaxInBytes)
        return;
    m_cacheMaxInBytes = bytes;
    emit cacheMaxInBytesChanged();
    emit cacheMaxInBytes(bytes, false);
}

void RamPreview::setCacheUsedPercent(qreal percent)
{
    RamPreviewReport::setCacheUsedPercent(percent);
}

void RamPreview::setDiskCacheUsedPercent(qreal percent)
{
    RamPreviewReport::setDiskCacheUsedPercent(percent);
}

void RamPreview::setProportion(qreal proportion)
{
    RamPreviewReport::setProportion(proportion);
}

void RamPreview::setTimeline(FramesModel *timeline)
{
    if (timeline == m_timeline)
        return;
    m_timeline = timeline;
    m_readAhead.reset();
    if (timeline) {
        m_readAhead = std::make_unique<TimelineReadAhead>(*timeline);
        connect(m_readAhead.get(), &TimelineReadAhead::planned, this,
                [this](const ReadAheadPlan &plan) { m_thread.call(&RamPreviewWorker::setReadAhead, plan); });
        connect(m_readAhead.get(), &TimelineReadAhead::readyChanged, this,
                [this] { setReady(m_readAhead->readyRuns(), m_readAhead->readyPercent()); });
    } else {
        m_thread.call(&RamPreviewWorker::setReadAhead, ReadAheadPlan());
        setReady({}, 0);
    }
    emit timelineChanged();
    updateReadAhead();
}

void RamPreview::updateReadAhead()
{
    if (m_readAhead && isComponentComplete())
        m_readAhead->setWish(wish(), m_renderAllowed && running());
}

void RamPreview::setReadyPictures(int plan, const QBitArray &ready)
{
    if (m_readAhead)
        m_readAhead->setReady(plan, ready);
}
