#pragma once

#include "project/FileCopy.h"
#include "project/FrameFiles.h"
#include "project/ProjectCleanup.h"
#include "project/ProjectTree.h"

#include <memory>
#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

class MessageCentre;
class PoolProgress;
class ProgressState;
class ProjectFrames;
class ThreadOperation;

/// The long file operations of a project, one at a time by ThreadOperation: filling the timeline, copying
/// the frames of another project, copying the folders on "save as", and cleaning up.
///
/// The pool looks at files and copies them, on values of its own; the main thread applies the results in
/// order, a few milliseconds at a time. A start that finds another operation running logs a line, returns
/// false and is dropped. The end signals come on the main thread while the operation is still set: whoever
/// hears them continues it or ends it. Main thread only.
class FrameFileOperations : public QObject
{
    Q_OBJECT

public:
    /// How a run ended.
    enum class End {
        Complete,
        /// By cancel(): what was done so far stays.
        Cancelled,
    };

    FrameFileOperations(ThreadOperation &operation, ProjectFrames &frames, ProgressState &progress,
                        MessageCentre &messages, QObject *parent = nullptr);
    ~FrameFileOperations() override;

    /// Fills the timeline with the frames in order, at its end, after looking for their files in `tree`.
    /// Starts at rest or in OAddFrames. The text and the total of the progress are the caller's.
    bool addFrames(const QList<ProjectFrame> &frames, const ProjectTree &tree);
    /// Copies the files of another project's frames into this one's folders. Starts at rest or in
    /// OCopyFrames.
    bool copyFrames(const QList<ProjectFrame> &frames, const ProjectTree &from, const ProjectTree &to);
    /// Copies the pictures, videos and temporary files of a project that was saved under a new name. Starts
    /// at rest or in OCopyFramesOnSaveAs.
    bool copyProjectFolders(const ProjectTree &from, const ProjectTree &to);
    /// Removes the files that nothing names from the chosen folders. Starts at rest or in OCleanupProject.
    bool cleanup(ProjectCleanup::Folders folders, const ProjectCleanup::Keep &keep, const ProjectTree &tree);

    /// Asks the running operation to stop at the next file or frame; it ends with its signal as Cancelled.
    void cancel();
    /// Drops a fill at once, without its signal, and gives its operation back: another project comes.
    void abandonAdding();
    /// For the way out of the program: lets a copy run to its end, cancels everything else, and waits. No
    /// end signal comes afterwards.
    void finish();

    /// How long one turn of the event loop may spend on filling the timeline; 0 makes it one frame a turn.
    void setSliceMs(int milliseconds)
    {
        m_sliceMs = milliseconds;
    }

signals:
    void framesAdded(FrameFileOperations::End end);
    /// `frames` name the files as they are called in this project.
    void framesCopied(FrameFileOperations::End end, const QList<ProjectFrame> &frames, int failures);
    void projectCopied(FrameFileOperations::End end, int failures);
    void cleanedUp(FrameFileOperations::End end, int failures);

private:
    bool take(int operation, const char *busyLine);
    std::shared_ptr<PoolProgress> newProgress();
    End endPoolWork();
    void checkNextChunk();
    bool takeChunk();
    void applySlice();
    void endAdding(End end);
    void onFramesCopied();
    void onFoldersCopied();
    void onCleanedUp();

    ThreadOperation &m_operation;
    ProjectFrames &m_frames;
    ProgressState &m_progress;
    MessageCentre &m_messages;

    QFutureWatcher<QList<CheckedFrame>> m_checking;
    QFutureWatcher<FileCopy::FramesResult> m_frameCopy;
    QFutureWatcher<int> m_folderCopy;
    QFutureWatcher<ProjectCleanup::Outcome> m_cleaning;
    /// Of the operation that runs in the pool; null at rest and while the timeline is filled.
    std::shared_ptr<PoolProgress> m_poolProgress;

    QTimer m_nextSlice;
    ProjectTree m_tree;
    QList<ProjectFrame> m_toAdd;
    /// A chunk of the frames whose files have been looked for, and the first of them not yet added.
    QList<CheckedFrame> m_chunk;
    qsizetype m_chunkIndex = 0;
    qsizetype m_frameIndex = 0;
    /// The first frame whose files nobody looks for yet.
    qsizetype m_checkedIndex = 0;
    int m_sliceMs = 8;
    bool m_adding = false;
    bool m_addingCancelled = false;
    bool m_anyMissing = false;
};
