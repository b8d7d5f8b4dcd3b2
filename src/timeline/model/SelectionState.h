#pragma once

#include "timeline/FrameSelection.h"
#include "timeline/model/CurrentFrame.h"

/// Fifth layer of FramesModel: the selection, the first press of a delete, and the buffer of copy and cut.
///
/// Selecting is silent and does nothing while an action or a playback runs, while not loaded, and with no
/// frames.
class SelectionState : public CurrentFrame
{
    Q_OBJECT
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectedCountChanged)
    Q_PROPERTY(bool allSelected READ allSelected NOTIFY allSelectedChanged)
    Q_PROPERTY(bool deletionConfirmed READ deletionConfirmed WRITE setDeletionConfirmed NOTIFY
                   deletionConfirmedChanged STORED false)
    Q_PROPERTY(bool cutModeOn READ cutModeOn WRITE setCutModeOn NOTIFY cutModeOnChanged STORED false)

    /// Paints the current frame as about to go.
    MORVANE_PROPERTY(bool, goingToDeleteCurrentFrame, GoingToDeleteCurrentFrame, false)
    MORVANE_PROPERTY(bool, copyModeOn, CopyModeOn, false)

public:
    using CurrentFrame::CurrentFrame;

    int selectedCount() const
    {
        return m_selection.count();
    }
    bool allSelected() const
    {
        return m_allSelected;
    }
    /// GUIDs of the selected frames, the most recently selected first.
    QList<int> selectedGuids() const
    {
        return m_selection.guids();
    }
    bool deletionConfirmed() const
    {
        return m_deletionConfirmed;
    }
    /// True arms the delete; with nothing selected it is the current frame that will go.
    void setDeletionConfirmed(bool confirmed);
    bool cutModeOn() const
    {
        return m_cutModeOn;
    }
    void setCutModeOn(bool on);

    /// Takes a selected frame out of the selection, unless forced, and puts any other in.
    Q_INVOKABLE void switchSelectionOnSingleFrame(int i, bool forceSelect = false);
    /// Switches each row between the two, both included.
    Q_INVOKABLE void addRangeToGroup(int start, int end);
    /// Empties the list and switches every row: what was selected before ends up deselected.
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void cleanSelectedList(const QModelIndex &parent, int first, int last);
    /// Makes the topmost selected row current, or the last row when nothing is selected.
    Q_INVOKABLE void firstIndexInSelected();
    Q_INVOKABLE void copyFrame();
    /// The row of the copied frame, -1 when it is gone; empties the buffer and moves nothing.
    Q_INVOKABLE int pasteFrame();

signals:
    void selectedCountChanged();
    void allSelectedChanged();
    void deletionConfirmedChanged();
    void cutModeOnChanged();
    void cutmodeChanged();

protected:
    bool acceptsActions() const;
    const FrameSelection &selection() const
    {
        return m_selection;
    }
    void emptySelection();
    /// Takes the mark of the selected frames away; the list stays.
    void clearSelectionMarks();
    void switchSelection(int row, bool forceSelect);
    void disarmDeletion();

private:
    void switchRows(int first, int last);
    void switchRow(int row, bool forceSelect);
    void announceSelection(int lastRow);

    FrameSelection m_selection;
    int m_copiedGuid = Frame::noGuid;
    bool m_allSelected = false;
    bool m_deletionConfirmed = false;
    bool m_cutModeOn = false;
};
