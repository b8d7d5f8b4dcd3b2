#include "project/FrameFileOperations.h"

#include "project/PoolProgress.h"
#include "project/ProjectFrames.h"
#include "project/ThreadOperation.h"
#include "shared/MessageCentre.h"
#include "shared/ProgressState.h"

#include <QElapsedTimer>
#include <QtConcurrent>
#include <QtDebug>
#include <utility>

namespace {

/// Frames whose files are looked for in one go; small enough that a break shows at once.
constexpr qsizetype chunkSize = 512;

QList<CheckedFrame> checkAll(const QList<ProjectFrame> &frames, const ProjectTree &tree)
{
    QList<CheckedFrame> checked;
    checked.reserve(frames.size());
    for (const ProjectFrame &frame : frames)
        checked.append(FrameFiles::check(frame, tree));
    return checked;
}

} // namespace

FrameFileOperations::FrameFileOperations(ThreadOperation &operation, ProjectFrames &frames,
                                         ProgressState &progress, MessageCentre &messages, QObject *parent)
    : QObject(parent), m_operation(operation), m_frames(frames), m_progress(progress), m_messages(messages)
{
    m_nextSlice.setSingleShot(true);
    m_nextSlice.setInterval(0);
    connect(&m_nextSlice, &QTimer::timeout, this, &FrameFileOperations::applySlice);
    connect(&m_checking, &QFutureWatcherBase::finished, this, &FrameFileOperations::applySlice);
    connect(&m_frameCopy, &QFutureWatcherBase::finished, this, &FrameFileOperations::onFramesCopied);
    connect(&m_folderCopy, &QFutureWatcherBase::finished, this, &FrameFileOperations::onFoldersCopied);
    connect(&m_cleaning, &QFutureWatcherBase::finished, this, &FrameFileOperations::onCleanedUp);
}

FrameFileOperations::~FrameFileOperations()
{
    finish();
}

bool FrameFileOperations::take(int operation, const char *busyLine)
{
    const bool poolIsBusy = m_poolProgress != nullptr || m_adding;
    if (!poolIsBusy && m_operation.currentThreadOperation() == operation)
        return true;
    if (!poolIsBusy && m_operation.begin(static_cast<Zum::CurrentThreadOperations>(operation)))
        return true;
    qDebug("%s", busyLine);
    return false;
}

std::shared_ptr<PoolProgress> FrameFileOperations::newProgress()
{
    m_poolProgress = std::make_shared<PoolProgress>(m_progress);
    return m_poolProgress;
}

FrameFileOperations::End FrameFileOperations::endPoolWork()
{
    const End end = m_poolProgress->isCancelled() ? End::Cancelled : End::Complete;
    m_poolProgress->detach();
    m_poolProgress.reset();
    return end;
}

bool FrameFileOperations::addFrames(const QList<ProjectFrame> &frames, const ProjectTree &tree)
{
    if (!take(Zum::OAddFrames, "doAddFrames: Thread is busy"))
        return false;
    m_toAdd = frames;
    m_tree = tree;
    m_frameIndex = 0;
    m_checkedIndex = 0;
    m_chunk.clear();
    m_chunkIndex = 0;
    m_adding = true;
    m_addingCancelled = false;
    m_frames.beginFill();
    checkNextChunk();
    m_nextSlice.start();
    return true;
}

// The pool looks at the files of the chunk behind the one that is being added.
void FrameFileOperations::checkNextChunk()
{
    if (m_checkedIndex == m_toAdd.size())
        return;
    const QList<ProjectFrame> frames = m_toAdd.mid(m_checkedIndex, chunkSize);
    m_checkedIndex += frames.size();
    m_checking.setFuture(QtConcurrent::run(checkAll, frames, m_tree));
}

// False while the pool is still at it.
bool FrameFileOperations::takeChunk()
{
    if (!m_checking.isFinished())
        return false;
    m_chunk = m_checking.result();
    m_chunkIndex = 0;
    checkNextChunk();
    return true;
}

void FrameFileOperations::applySlice()
{
    if (!m_adding)
        return;
    QElapsedTimer time;
    time.start();
    while (m_frameIndex < m_toAdd.size() && !m_addingCancelled && time.elapsed() < qMax(1, m_sliceMs)) {
        if (m_chunkIndex == m_chunk.size() && !takeChunk())
            break;
        const CheckedFrame &frame = m_chunk.at(m_chunkIndex++);
        ++m_frameIndex;
        m_frames.append(frame);
        FrameFiles::report(frame.missingPaths, m_messages);
        m_anyMissing = m_anyMissing || !frame.missingPaths.isEmpty();
        if (m_sliceMs == 0)
            break;
    }
    m_progress.setProgressCurrent(int(m_frameIndex));
    if (m_addingCancelled)
        endAdding(End::Cancelled);
    else if (m_frameIndex == m_toAdd.size())
        endAdding(End::Complete);
    else if (m_chunkIndex < m_chunk.size() || m_checking.isFinished())
        m_nextSlice.start();
}

void FrameFileOperations::endAdding(End end)
{
    m_adding = false;
    m_nextSlice.stop();
    m_toAdd.clear();
    m_chunk.clear();
    m_chunkIndex = 0;
    m_frameIndex = 0;
    if (std::exchange(m_anyMissing, false))
        m_messages.post(Zum::FileMessage, Zum::Info, FrameFiles::adviceForMissing());
    m_frames.endFill();
    emit framesAdded(end);
}

void FrameFileOperations::abandonAdding()
{
    if (!m_adding)
        return;
    m_adding = false;
    m_nextSlice.stop();
    m_checking.waitForFinished();
    m_toAdd.clear();
    m_chunk.clear();
    m_frames.endFill();
    m_operation.end();
}

bool FrameFileOperations::copyFrames(const QList<ProjectFrame> &frames, const ProjectTree &from,
                                     const ProjectTree &to)
{
    if (!take(Zum::OCopyFrames, "doCopyFrames: Thread is busy"))
        return false;
    m_frameCopy.setFuture(QtConcurrent::run([progress = newProgress(), frames, from, to] {
        return FileCopy::frames(*progress, frames, from, to);
    }));
    return true;
}

void FrameFileOperations::onFramesCopied()
{
    if (!m_poolProgress)
        return;
    const End end = endPoolWork();
    const FileCopy::FramesResult result = m_frameCopy.result();
    emit framesCopied(end, result.frames, result.failures);
}

bool FrameFileOperations::copyProjectFolders(const ProjectTree &from, const ProjectTree &to)
{
    if (!take(Zum::OCopyFramesOnSaveAs, "do CopyToDir: thread is busy"))
        return false;
    m_folderCopy.setFuture(QtConcurrent::run(
        [progress = newProgress(), from, to] { return FileCopy::projectFolders(*progress, from, to); }));
    return true;
}

void FrameFileOperations::onFoldersCopied()
{
    if (!m_poolProgress)
        return;
    const End end = endPoolWork();
    emit projectCopied(end, m_folderCopy.result());
}

bool FrameFileOperations::cleanup(ProjectCleanup::Folders folders, const ProjectCleanup::Keep &keep,
                                  const ProjectTree &tree)
{
    if (!take(Zum::OCleanupProject, "Do Cleanup Current Project: thread is busy"))
        return false;
    m_cleaning.setFuture(QtConcurrent::run([progress = newProgress(), folders, keep, tree] {
        return ProjectCleanup::run(*progress, folders, keep, tree);
    }));
    return true;
}

void FrameFileOperations::onCleanedUp()
{
    if (!m_poolProgress)
        return;
    const End end = endPoolWork();
    emit cleanedUp(end, m_cleaning.result().failed);
}

void FrameFileOperations::cancel()
{
    m_addingCancelled = true;
    if (m_poolProgress)
        m_poolProgress->cancel();
}

void FrameFileOperations::finish()
{
    abandonAdding();
    if (m_poolProgress) {
        const int operation = m_operation.currentThreadOperation();
        const bool isCopy = operation == Zum::OCopyFrames || operation == Zum::OCopyFramesOnSaveAs;
        if (!isCopy)
            m_poolProgress->cancel();
        m_poolProgress->detach();
        m_poolProgress.reset();
    }
    m_frameCopy.waitForFinished();
    m_folderCopy.waitForFinished();
    m_cleaning.waitForFinished();
    m_operation.end();
}
