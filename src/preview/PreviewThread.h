#pragma once

#include "preview/RamPreviewWorker.h"

#include <memory>
#include <QThread>

/// A worker and the thread that it lives on, from construction to destruction. Going away waits for the step
/// that is running.
class PreviewThread
{
public:
    PreviewThread(QObject *owner, PictureStore::Surroundings surroundings);
    ~PreviewThread();
    PreviewThread(const PreviewThread &) = delete;
    PreviewThread &operator=(const PreviewThread &) = delete;

    RamPreviewWorker &worker()
    {
        return *m_worker;
    }
    /// Has a slot of the worker called on its thread.
    template <typename... Args>
    void call(void (RamPreviewWorker::*slot)(Args...),
              const std::type_identity_t<std::decay_t<Args>> &...args)
    {
        QMetaObject::invokeMethod(
            m_worker.get(), [worker = m_worker.get(), slot, args...] { (worker->*slot)(args...); },
            Qt::QueuedConnection);
    }

private:
    QThread m_thread;
    std::unique_ptr<RamPreviewWorker> m_worker;
};
