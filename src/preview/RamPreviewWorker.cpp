#include "preview/RamPreviewWorker.h"

#include <utility>

RamPreviewWorker::RamPreviewWorker(QObject *owner, PictureStore::Surroundings surroundings)
    : m_owner(owner), m_store(std::move(surroundings), reports())
{
}

RamPreviewWorker::~RamPreviewWorker()
{
    m_store.release();
}

template <typename... Values>
void RamPreviewWorker::tell(const char *slot, Values... values)
{
    if (m_owner)
        QMetaObject::invokeMethod(m_owner, slot, Qt::QueuedConnection,
                                  QArgument<Values>(QMetaType::fromType<Values>().name(), values)...);
}

PictureStore::Reports RamPreviewWorker::reports()
{
    PictureStore::Reports reports;
    reports.caching = [this](bool caching) {
        tell("setCaching", caching);
    };
    reports.imageSize = [this](int width, int height) {
        tell("imageSizeChanged", width, height);
    };
    reports.proportion = [this](double proportion) {
        tell<qreal>("setProportion", proportion);
    };
    reports.usedPercent = [this](double percent) {
        tell<qreal>("setCacheUsedPercent", percent);
    };
    reports.maxBytes = [this](int bytes) {
        tell("setCacheMaxInBytes", bytes);
    };
    reports.finished = [this] {
        tell("finishedInThread");
    };
    reports.ended = [this] {
        tell("endedInThread");
    };
    reports.ready = [this](int plan, const QBitArray &ready) {
        tell("setReadyPictures", plan, ready);
    };
    reports.diskUsedPercent = [this](double percent) {
        tell<qreal>("setDiskCacheUsedPercent", percent);
    };
    return reports;
}

void RamPreviewWorker::requestImage(const QString &imageName, qreal scaleFactor, const QList<int> &params,
                                    const QVariantMap &setts)
{
    m_store.request(PictureRequest::of(imageName, scaleFactor, params, setts));
    workLater();
}

void RamPreviewWorker::clearCache(const QString &remkey)
{
    m_store.clear(remkey);
    workLater();
}

void RamPreviewWorker::setCacheMaxInBytes(int cmax)
{
    setCacheMax(cmax, false);
}

void RamPreviewWorker::setCacheMax(int mx, bool sendSignal)
{
    m_store.setMaxBytes(mx, sendSignal);
    workLater();
}

void RamPreviewWorker::process()
{
}

void RamPreviewWorker::setReadAhead(const ReadAheadPlan &plan)
{
    m_store.setReadAhead(plan);
    workLater();
}

/// Posts one piece of work at a time, so that a request which came in meanwhile stands before the next one.
void RamPreviewWorker::workLater()
{
    if (std::exchange(m_workPosted, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_workPosted = false;
            if (m_store.workWhileIdle())
                workLater();
        },
        Qt::QueuedConnection);
}
