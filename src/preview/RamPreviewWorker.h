#pragma once

#include "preview/PictureStore.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

/// Serves the requests of one preview on a thread of its own, and while none waits reads ahead, a picture at
/// a time, writes the disk copies and looks how much room they take.
///
/// All slots run on its thread. It answers by invoking slots of its owner by name, queued: "setCaching",
/// "setCacheUsedPercent", "setCacheMaxInBytes", "imageSizeChanged", "setProportion", "finishedInThread";
/// further "endedInThread" for a request that ends without a picture, "setReadyPictures",
/// "setDiskCacheUsedPercent". The picture itself is to be taken from the handover.
class RamPreviewWorker : public QObject
{
    Q_OBJECT

public:
    /// The owner has to outlive the worker's thread.
    RamPreviewWorker(QObject *owner, PictureStore::Surroundings surroundings);
    ~RamPreviewWorker() override;

    /// Any thread.
    PictureHandover &handover()
    {
        return m_store.handover();
    }
    /// Any thread: makes what is running end early and what comes later end at once.
    void stop()
    {
        m_store.stop();
    }

public slots:
    /// The numbers as in PictureRequest::parameters.
    void requestImage(const QString &imageName, qreal scaleFactor, const QList<int> &params,
                      const QVariantMap &setts);
    void clearCache(const QString &remkey);
    void setCacheMaxInBytes(int cmax);
    void setCacheMax(int mx, bool sendSignal);
    void process();
    /// Replaces the plan; one without names ends the reading ahead.
    void setReadAhead(const ReadAheadPlan &plan);

private:
    PictureStore::Reports reports();
    void workLater();
    template <typename... Values>
    void tell(const char *slot, Values... values);

    QPointer<QObject> m_owner;
    PictureStore m_store;
    bool m_workPosted = false;
};
