#pragma once

#include "timeline/model/SelectionState.h"
#include "timeline/UndoStack.h"

/// Sixth layer of FramesModel: the edits of single frames and their undo.
///
/// `directCall` means that the user calls: the edit is refused while a batch action runs, and announces
/// itself with timelineChanged. A batch leaves it false for each of its steps. Refusals leave the state as it
/// was, with at most a log line.
class FrameEditing : public SelectionState
{
    Q_OBJECT
    Q_PROPERTY(int undoCount READ undoCount NOTIFY undoCountChanged)
    Q_PROPERTY(int undoCurrent READ undoCurrent NOTIFY undoCurrentChanged)
    Q_PROPERTY(int duplicateQuantity READ duplicateQuantity WRITE setDuplicateQuantity NOTIFY
                   duplicateQuantityChanged STORED false)
    Q_PROPERTY(bool addInsteadOfReplace READ addInsteadOfReplace WRITE setAddInsteadOfReplace NOTIFY
                   addInstaedOfReplaceChanged STORED false)
    Q_PROPERTY(int shotsTaken READ shotsTaken NOTIFY shotsTakenChanged)

    /// Extra frames per capture: a capture makes this many plus one.
    MORVANE_PROPERTY(int, shootMultipleFrames, ShootMultipleFrames, 1)
    MORVANE_PROPERTY(int, captureMode, CaptureMode, Zum::CaptureModeAppend)

public:
    explicit FrameEditing(QObject *parent = nullptr);

    int undoCount() const
    {
        return m_undo.count();
    }
    int undoCurrent() const
    {
        return m_undo.current();
    }
    int duplicateQuantity() const
    {
        return m_duplicateQuantity;
    }
    /// Copies per duplicate, 1 to 9; anything else is ignored.
    void setDuplicateQuantity(int quantity);
    /// Import adds frames instead of replacing; false whenever there are none, whatever was written.
    bool addInsteadOfReplace() const
    {
        return m_addInsteadOfReplace && !frames().isEmpty();
    }
    void setAddInsteadOfReplace(bool add);
    /// Frames added by captures in this run.
    int shotsTaken() const
    {
        return m_shotsTaken;
    }

    /// Lands behind insertIndex, or before it when not stored for undo; at the end when that is no row.
    /// A captured frame brings its extra copies along.
    Q_INVOKABLE void appendFrame(const QVariantMap &frame, bool captured = false, int insertIndex = -1,
                                 bool storeForUndo = true, bool storeModifyUndo = true,
                                 bool awareModel = true);
    /// Writes what the map holds, the GUID excepted.
    Q_INVOKABLE void modifyFrame(const QVariantMap &macciB, int modifyIndex, bool saveForUndo = true,
                                 bool MultiCapture = false);
    /// Moves the frame so that it stands behind row `to`.
    Q_INVOKABLE void moveSingleFrame(int from, int to, bool directCall = false, bool storeForUndo = true);
    /// -1 means the current frame or, with a selection, the selected one whose turn it is.
    Q_INVOKABLE bool removeSingleFrame(int targetIndx = -1, bool storeForUndo = true,
                                       bool directCall = false);
    /// Copies name the same files. -1 copies means duplicateQuantity.
    Q_INVOKABLE void duplicateSingleFrame(int from, int captureMode, int insAfterIndex = -1,
                                          bool directCall = false, int amountOfDuplicates = -1);
    Q_INVOKABLE void switchMirroredOnSingleFrame(int i, bool directCall = true);
    Q_INVOKABLE void hideCurrentFrame();
    Q_INVOKABLE void cleanupCurrentFrame();
    Q_INVOKABLE void clear();

    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void dismissUndos(const QModelIndex &parent, int first, int last);
    Q_INVOKABLE void calcLastUndoIndex();
    Q_INVOKABLE void emitChanged(int action);

signals:
    /// An edit is finished; the action is a Zum::ActTypes value.
    void timelineChanged(int action);
    void undoCountChanged();
    void undoCurrentChanged();
    void duplicateQuantityChanged();
    void addInstaedOfReplaceChanged();
    void shotsTakenChanged();
    /// A captured frame is in; the row is the last one.
    void addedJustCapturedFrame(int currIndex);
    void dublicateAndMoveFrames();

protected:
    enum class Clearing {
        Captured,
        Reference,
        Both,
    };
    void clearFrame(int row, Clearing what);

private:
    void announceAddInsteadOfReplace();
    enum class Direction {
        Undo,
        Redo,
    };
    void appendCaptured(int row);
    void copyFrames(int from, int captureMode, int behind, int copies);
    void announceCopies();
    int insertionRow(int insertIndex, bool behind) const;
    void writeValues(const QVariantMap &map, int row);
    void removeRow(int row, bool storeForUndo, bool directCall);
    QVariantMap snapshot(int action, int row, int to) const;
    void writeUndo(int action, int row, int to = -1);
    void writeRedo(int action, int row, int to = -1);
    bool apply(const UndoStack::Entry &entry, Direction direction);
    void step(Direction direction);

    UndoStack m_undo;
    int m_guidCounter = Frame::firstGuid;
    int m_duplicateQuantity = 1;
    bool m_addInsteadOfReplace = false;
    bool m_knownAddInsteadOfReplace = false;
    int m_shotsTaken = 0;
};
