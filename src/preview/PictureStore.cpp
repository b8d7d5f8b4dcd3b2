#include "preview/PictureStore.h"

#include "preview/PictureGeometry.h"
#include "preview/SmoothScaling.h"
#include "preview/SourcePicture.h"
#include "preview/StoredText.h"

#include <QDebug>
#include <QPainter>

namespace {

constexpr std::chrono::milliseconds putLimit{200};
constexpr double fullStrength = 1.0;
/// Pictures that wait for their copy to be written: more are not kept, the oldest is written at once.
constexpr size_t mostPendingCopies = 3;

template <typename Report, typename... Values>
void tell(const Report &report, Values... values)
{
    if (report)
        report(values...);
}

/// Three bytes a pixel, as the budget counts them, where there is no transparency to keep.
QImage compact(const QImage &image)
{
    return image.hasAlphaChannel() ? image : image.convertToFormat(QImage::Format_RGB888);
}

} // namespace

PictureStore::PictureStore(Surroundings surroundings, Reports reports)
    : m_surroundings(std::move(surroundings)), m_reports(std::move(reports)),
      m_cache(std::make_unique<MemoryCache>())
{
    m_cache->setMaxBytes(standardCacheBytes);
}

PictureStore::~PictureStore() = default;

/// One for all stores, as the copies are.
std::atomic<bool> &PictureStore::diskCopiesAllowed()
{
    static std::atomic<bool> allowed = true;
    return allowed;
}

void PictureStore::passDiskCopiesOnce()
{
    diskCopiesAllowed() = false;
}

void PictureStore::request(const PictureRequest &request)
{
    if (m_busy.exchange(true)) {
        qDebug("-Cache is busy");
        tell(m_reports.ended);
        return;
    }
    bool delivers = false;
    if (!m_cache)
        qDebug("-Cache is null");
    else if (!request.name.isEmpty())
        delivers = prepare(request);
    m_busy = false;
    if (delivers)
        deliver(request.key());
    else
        tell(m_reports.ended);
}

/// True when the picture lies in the cache afterwards.
bool PictureStore::prepare(const PictureRequest &request)
{
    takeSizesOf(request);
    moveCursorTo(request);
    const QString path = folderOf(request) + request.name;
    if (!request.forced && m_cache->contains(request.key(), path))
        return true;
    return load(request, path, Purpose::Showing) == Loaded::Stored;
}

/// Pictures that were made for other sizes are of no use any more.
void PictureStore::takeSizesOf(const PictureRequest &request)
{
    if (request.hasSizesOf(m_lastSizes))
        return;
    m_lastSizes = request;
    if (m_cache->isEmpty())
        return;
    m_cache->clear();
    reportUsed(0);
    surveyReady();
}

QString PictureStore::folderOf(const PictureRequest &request) const
{
    const Folders folders = m_surroundings.folders();
    switch (request.source) {
        case PictureRequest::fromBackgrounds:
            return folders.backgrounds;
        case PictureRequest::fromReference:
            return folders.reference;
        default:
            return folders.captured;
    }
}

/// Null when there is no copy, or none that can be read: the frame's own file serves then.
std::unique_ptr<SourcePicture> PictureStore::openCopy(const PictureRequest &request) const
{
    const QString path = m_surroundings.copies->find(m_surroundings.folders().copies, request.name);
    if (path.isEmpty())
        return nullptr;
    auto copy = std::make_unique<SourcePicture>(path);
    return copy->size().isEmpty() ? nullptr : std::move(copy);
}

PictureStore::Loaded PictureStore::load(const PictureRequest &request, const QString &path, Purpose purpose)
{
    const bool shows = purpose == Purpose::Showing;
    if (shows)
        tell(m_reports.caching, true);
    std::unique_ptr<SourcePicture> copy;
    if (diskCopiesAllowed() && !request.forced)
        copy = openCopy(request);
    if (copy) {
        const QSize loaded = copy->size();
        const QSize source = DiskCopies::sourceSize(copy->path(), loaded);
        const Loaded result =
            bring(*copy, PictureGeometry::of(source, loaded, true, request), request, path, source, purpose);
        if (result != Loaded::Failed)
            return result;
    }
    SourcePicture own(path);
    const QSize source = own.size();
    const Loaded result =
        bring(own, PictureGeometry::of(source, source, false, request), request, path, source, purpose);
    if (result == Loaded::Failed && shows && !m_stopping)
        qDebug().noquote() << QStringLiteral("RamPreview: Failed to load image %1").arg(path);
    return result;
}

PictureStore::Loaded PictureStore::bring(SourcePicture &file, const PictureGeometry &geometry,
                                         const PictureRequest &request, const QString &path, QSize source,
                                         Purpose purpose)
{
    const bool shows = purpose == Purpose::Showing;
    if (source.isEmpty() || m_stopping)
        return Loaded::Failed;
    if (!shows && !m_cache->hasRoomFor(geometry.bytes()))
        return Loaded::NoRoom;
    const QImage decoded = file.read(geometry.leastDecoded());
    if (decoded.isNull() || m_stopping)
        return Loaded::Failed;
    if (shows && !diskCopiesAllowed().exchange(true))
        qDebug("Will use disk cache next time");
    if (geometry.needsCopy) {
        while (m_pendingCopies.size() >= mostPendingCopies)
            writeCopy();
        m_pendingCopies.push_back(
            {m_surroundings.folders().copies, request.name, source, geometry.reduced, decoded});
    }
    if (shows) {
        if (request.scale > 0)
            tell(m_reports.imageSize, geometry.target.width(), geometry.target.height());
        if (geometry.tellsProportion)
            tell(m_reports.proportion, geometry.proportion);
    }
    return finish(decoded, geometry, request, path, source);
}

PictureStore::Loaded PictureStore::finish(const QImage &decoded, const PictureGeometry &geometry,
                                          const PictureRequest &request, const QString &path, QSize source)
{
    if (!m_cache->hasRoomFor(geometry.bytes()) && !m_cache->isEmpty()) {
        m_cache->clear();
        reportUsed(0);
        surveyReady();
    }
    // What the cache would refuse is not worth making.
    QImage image;
    if (geometry.bytes() <= m_cache->maxBytes())
        image = shaped(decoded, geometry);
    if (!image.isNull() && request.wantsFilters() && m_surroundings.filter)
        image = m_surroundings.filter(image, request.settings, fullStrength);
    const QString key = request.key();
    if (!image.isNull()) {
        image = compact(image);
        image.setText(
            StoredText::key,
            StoredText{geometry.scale, geometry.coefficient, double(source.width()), double(source.height()),
                       double(geometry.target.width()), double(geometry.target.height())}
                .toString());
    }
    if (image.isNull() || !m_cache->insert(key, {image, path}, geometry.bytes())) {
        qDebug().noquote() << QStringLiteral("Failed to store \"%1\"").arg(key);
        return Loaded::Refused;
    }
    reportUsed(m_cache->usedPercent());
    markReady(request, path);
    return Loaded::Stored;
}

/// Scales and crops. A picture is reduced in one step from what was decoded; one that is larger on screen
/// than its copy comes from the copy's size, so that it looks the same the next time.
QImage PictureStore::shaped(const QImage &decoded, const PictureGeometry &geometry)
{
    const QSize scaled = geometry.scaled;
    const QSize reduced = geometry.reduced;
    const bool grows = scaled.width() > reduced.width() || scaled.height() > reduced.height();
    if (!grows) {
        const QImage image = morvane::scaledSmoothly(decoded, scaled);
        return geometry.kept.size() == scaled ? image : image.copy(geometry.kept);
    }
    const QImage small = morvane::scaledSmoothly(decoded, reduced);
    if (geometry.kept.size() == scaled)
        return morvane::scaledSmoothly(small, scaled);
    // Only what is kept is made: the whole may be many times as large.
    QImage image(geometry.kept.size(),
                 small.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(-geometry.kept.topLeft());
    painter.scale(double(scaled.width()) / small.width(), double(scaled.height()) / small.height());
    painter.drawImage(0, 0, small);
    return image;
}

void PictureStore::deliver(const QString &key)
{
    m_busy = true;
    QImage image;
    if (!m_cache)
        qDebug("find: cache is null");
    else if (const MemoryCache::Entry *entry = m_cache->find(key))
        image = entry->image;
    m_handover.put(image, putLimit);
    m_busy = false;
    tell(m_reports.finished);
    tell(m_reports.caching, false);
}

void PictureStore::clear(const QString &key)
{
    if (m_busy) {
        qDebug("_Cache is busy");
        return;
    }
    if (!m_cache) {
        qDebug("_Cache is null");
        return;
    }
    if (m_cache->isEmpty())
        return;
    if (key.isEmpty()) {
        m_cache->clear();
        reportUsed(0);
    } else {
        for (const QString &known : m_cache->keys()) {
            if (known != key && !known.startsWith(PictureRequest::filteredPrefix))
                continue;
            if (!m_cache->remove(known))
                qDebug().noquote()
                    << QStringLiteral("RamPreviewWorker::clearCache failed to remove %1").arg(known);
        }
        reportUsed(m_cache->usedPercent());
    }
    surveyReady();
}

void PictureStore::setMaxBytes(int bytes, bool report)
{
    if (!m_cache) {
        qDebug("setCacheMaxInBytes: cache is null");
        return;
    }
    if (m_busy) {
        qDebug("Cannot set Cache Max, cache is busy");
        return;
    }
    m_cache->setMaxBytes(bytes);
    surveyReady();
    if (report)
        tell(m_reports.maxBytes, bytes);
}

void PictureStore::release()
{
    m_cache.reset();
    m_pendingCopies.clear();
    m_plan = {};
    m_handover.put({}, putLimit);
}

void PictureStore::reportUsed(double percent) const
{
    tell(m_reports.usedPercent, percent);
}
