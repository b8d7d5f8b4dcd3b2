#include "project/BackgroundSave.h"

#include "project/ProjectWriter.h"

#include <QtConcurrent>
#include <utility>

BackgroundSave::BackgroundSave(QObject *parent) : QObject(parent)
{
    // Not the threads that all share: a save must not queue up behind a copy of many files.
    m_thread.setObjectName(QStringLiteral("BackgroundSave"));
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(-1);
    connect(&m_watcher, &QFutureWatcherBase::finished, this, &BackgroundSave::endCurrent);
}

BackgroundSave::~BackgroundSave()
{
    blockSignals(true);
    finish();
}

void BackgroundSave::save(const QString &path, ProjectDocument document)
{
    // What waits for another file must not be dropped.
    if (m_next && m_next->path != path)
        finish();
    Save save{path, std::move(document)};
    if (isBusy())
        m_next = std::move(save);
    else
        start(std::move(save));
}

void BackgroundSave::finish()
{
    while (isBusy()) {
        m_watcher.waitForFinished();
        endCurrent();
    }
}

void BackgroundSave::start(Save save)
{
    m_current = save.path;
    m_watcher.setFuture(QtConcurrent::run(
        &m_thread, [save = std::move(save)] { return ProjectWriter::save(save.path, save.document); }));
}

void BackgroundSave::endCurrent()
{
    // The notice of a save that finish() has waited for comes after it.
    if (!isBusy() || !m_watcher.isFinished())
        return;
    const AtomicFile::Result result = m_watcher.result();
    const QString path = *std::exchange(m_current, std::nullopt);
    if (m_next)
        start(*std::exchange(m_next, std::nullopt));
    emit saved(path, result);
}
