#pragma once

#include "timeline/HoldScan.h"
#include "timeline/model/FrameEditing.h"

#include <memory>
#include <optional>

/// Seventh layer of FramesModel: actions on all selected frames, and the scan for holds and missing files.
///
/// Each action is silent and does nothing while another action or a playback runs, while not loaded, and with
/// no frames. It takes currentAction at once and ends later, from the event loop, with timelineChanged. An
/// action walks the frames that were selected when it began.
class FrameBatches : public FrameEditing
{
    Q_OBJECT

public:
    /// Which frames an action is for.
    enum SelectionMode {
        SelectedFrames,
        NoFrames,
        RangeOfFrames,
    };

    explicit FrameBatches(QObject *parent = nullptr);
    ~FrameBatches() override;

    /// Folders of the project by role name, each with a trailing "/"; the scan looks for files there.
    const QVariantMap &folders() const
    {
        return m_folders;
    }
    void setFolders(const QVariantMap &folders)
    {
        m_folders = folders;
    }

    /// Starts an action of its own accord, without regard to playback or loading; logs why it refuses.
    bool startAction(int action, SelectionMode mode, int from = 0, int to = 0);
    /// Drops a running action where it stands, as a project does that goes away.
    void clearPendingAction();

    /// Delete, duplicate, move, and duplicate and move: one undo record per frame, one step after the other,
    /// with progress. A delete with nothing selected takes the current frame.
    Q_INVOKABLE void actionOnSelectedFrames(int action);
    Q_INVOKABLE void cleanSelectedCapFrames();
    Q_INVOKABLE void cleanSelectedRefFrames();
    Q_INVOKABLE void cleanSelectedFrames();
    Q_INVOKABLE void duplicateSelected();
    /// Switches the mirroring of each frame rather than setting it.
    Q_INVOKABLE void setSelectedMirrored();
    Q_INVOKABLE void setSelectedVisibility();
    Q_INVOKABLE void dismiss();
    /// Marks the holds and the missing files of a range, then empties the selection.
    Q_INVOKABLE void searchStaticness(int from, int to);
    /// Takes the model without any further effect, until clearPendingAction.
    Q_INVOKABLE void checkImagesMissing(int from, int to);

protected:
    /// Rows to play, in order. Called when the preparation of a playback has ended and the model is idle.
    virtual void playbackPrepared(const QList<int> &rows) = 0;

private:
    struct Scan;

    void startIfAccepted(int action, SelectionMode mode, int from = 0, int to = 0);
    bool startOnSelected(int action);
    bool startOnRange(int action, int from, int to);
    void actOnFrame(int action, int row);
    void stepOnFrame(int action, int guid);
    void placeFrame(int action, int from);
    void dismissNow();
    void scanHolds(HoldScan::Range range);
    void applyHolds(const std::shared_ptr<Scan> &scan);
    void applyFinding(const HoldScan::Finding &finding, int row);
    void searchHiddenFrames(HoldScan::Range range);
    void scanCompleted();
    void stepsCompleted(int action);
    void actionCompleted(int action);

    QVariantMap m_folders;
    std::shared_ptr<std::atomic<bool>> m_cancelled;
};
