#include "preview/PreviewThread.h"

PreviewThread::PreviewThread(QObject *owner, PictureStore::Surroundings surroundings)
    : m_worker(std::make_unique<RamPreviewWorker>(owner, std::move(surroundings)))
{
    m_thread.setObjectName(QStringLiteral("RamPreviewWorker"));
    m_worker->moveToThread(&m_thread);
    m_thread.start();
}

PreviewThread::~PreviewThread()
{
    m_worker->stop();
    m_thread.quit();
    m_thread.wait();
}
