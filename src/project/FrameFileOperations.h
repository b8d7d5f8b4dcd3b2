#pragma once

#include "project/FrameFiles.h"
#include "project/ProjectCleanup.h"
#include "project/ProjectTree.h"

#include <functional>
#include <memory>
#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

class MessageCentre;
class ProgressState;
class ProjectFrames;
class ThreadOperation;
struct ImportCopyResult;
struct FolderCopyResult;

/// The long file operations of a project, one at a time by ThreadOperation: filling the timeline, copying
/// the frames of another project, copying the folders on "save as", and cleaning up.
///
/// The pool looks at files and copies them, on values of its own; the main thread applies the results in
/// order, a few milliseconds at a time. A start that finds another operation running logs a line, returns
/// false and is dropped. Main thread only.
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
    /// Starts in OAddFrames, which the caller has begun, or at rest. Ends with framesAdded; the operation is
    /// still OAddFrames then when complete.
    bool addFrames(const QList<ProjectFrame> &frames, const ProjectTree &tree);
    /// Copies the files of another project's frames into this one's folders. A file of the same name and
    /// another content is kept: the copy gets a free name. Ends with framesCopied.
    bool copyFrames(const QList<ProjectFrame> &frames, const ProjectTree &from, const ProjectTree &to);
    /// Copies the pictures, videos and temporary files of a project that was saved under a new name. Ends
    /// with projectCopied.
    bool copyProjectFolders(const ProjectTree &from, const ProjectTree &to);
    /// Removes the files that nothing names from the chosen folders. Ends with cleanedUp.
    bool cleanup(ProjectCleanup::Folders folders, const ProjectCleanup::Names &names,
                 const ProjectTree &tree);

    bool isRunning() const;
    /// Asks the running operation to stop at the next file or frame; it ends with its signal as Cancelled.
    void cancel();
    /// Drops a fill at once, without its signal: another project takes its place.
    void abandonAdding();
    /// For the way out of the program: waits for a copy, cancels and waits for everything else. No signal of
    /// an operation comes afterwards.
    void finish();

    /// How long one turn of the event loop may spend on filling the timeline.
    void setSliceMs(int milliseconds)
    {
        m_sliceMs = milliseconds;
    }

signals:
    void framesAdded(FrameFileOperations::End end);
    /// `frames` name the files as they are called in this project.
    void framesCopied(FrameFileOperations::End end, const QList<ProjectFrame> &frames, int failures);
    void projectCopied(FrameFileOperations::End end, int failures);
    void cleanedUp(FrameFileOperations::End end);

private:
    void checkNextChunk();
    void applySlice();
    void endAdding(End end);
    void endImportCopy();
    void endFolderCopy();
    void endCleanup();
    template <typename Result>
    void showProgressOf(QFutureWatcher<Result> &watcher);

    ThreadOperation &m_operation;
    ProjectFrames &m_frames;
    ProgressState &m_progress;
    MessageCentre &m_messages;

    QFutureWatcher<QList<CheckedFrame>> m_checking;
    QFutureWatcher<ImportCopyResult> m_importCopy;
    QFutureWatcher<FolderCopyResult> m_folderCopy;
    QFutureWatcher<ProjectCleanup::Outcome> m_cleaning;

    QTimer m_nextSlice;
    QList<ProjectFrame> m_toAdd;
    QList<CheckedFrame> m_checked;
    ProjectTree m_tree;
    qsizetype m_frameIndex = 0;
    qsizetype m_checkedIndex = 0;
    int m_sliceMs = 8;
    bool m_adding = false;
    bool m_cancelled = false;
};
