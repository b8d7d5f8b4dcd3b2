#include "timeline/model/SelectionState.h"

#include <QDebug>

void SelectionState::setDeletionConfirmed(bool confirmed)
{
    if (confirmed == m_deletionConfirmed)
        return;
    m_deletionConfirmed = confirmed;
    setGoingToDeleteCurrentFrame(confirmed && m_selection.isEmpty());
    emit deletionConfirmedChanged();
}

void SelectionState::setCutModeOn(bool on)
{
    if (on == m_cutModeOn)
        return;
    m_cutModeOn = on;
    emit cutModeOnChanged();
    emit cutmodeChanged();
}

bool SelectionState::acceptsActions() const
{
    return !isBusy() && !playing() && loaded() && !frames().isEmpty();
}

void SelectionState::switchSelectionOnSingleFrame(int i, bool forceSelect)
{
    if (acceptsActions())
        switchSelection(i, forceSelect);
}

void SelectionState::switchSelection(int row, bool forceSelect)
{
    if (!isRow(row))
        return;
    switchRow(row, forceSelect);
    announceData(row, row);
    announceSelection(row);
}

void SelectionState::addRangeToGroup(int start, int end)
{
    if (acceptsActions() && isRow(start) && isRow(end))
        switchRows(qMin(start, end), qMax(start, end));
}

void SelectionState::selectAll()
{
    if (!acceptsActions())
        return;
    m_selection.clear();
    switchRows(0, last());
}

void SelectionState::switchRows(int first, int last)
{
    for (int row = first; row <= last; ++row)
        switchRow(row, false);
    // Said once for all rows: thousands of frames are selected by one key.
    announceData(first, last, {Zum::Ingroup});
    announceSelection(last);
}

void SelectionState::switchRow(int row, bool forceSelect)
{
    Frame &frame = frameList().at(row);
    if (frame.ingroup && !forceSelect) {
        m_selection.deselect(frame.guid());
        frame.ingroup = false;
        return;
    }
    const int removed = m_selection.select(frame.guid());
    if (removed > 0)
        qDebug().noquote()
            << QStringLiteral("Dublicate %1. Removed dublicate guids %2").arg(frame.guid()).arg(removed);
    frame.ingroup = true;
}

void SelectionState::announceSelection(int lastRow)
{
    setLastAccessedIndex(lastRow);
    emit selectedCountChanged();
    const bool all = m_selection.count() == frames().count();
    if (all == m_allSelected)
        return;
    m_allSelected = all;
    emit allSelectedChanged();
}

void SelectionState::emptySelection()
{
    m_selection.clear();
    m_allSelected = false;
    emit selectedCountChanged();
    emit allSelectedChanged();
}

void SelectionState::clearSelectionMarks()
{
    int first = last();
    int lowest = 0;
    for (const int guid : m_selection.guids()) {
        const int row = frames().rowOf(guid);
        if (row < 0)
            continue;
        frameList().at(row).ingroup = false;
        first = qMin(first, row);
        lowest = qMax(lowest, row);
    }
    if (!m_selection.isEmpty() && first <= lowest)
        announceData(first, lowest, {Zum::Ingroup});
}

void SelectionState::cleanSelectedList(const QModelIndex &, int, int)
{
    emptySelection();
}

void SelectionState::firstIndexInSelected()
{
    if (!acceptsActions())
        return;
    int smallest = -1;
    for (const int guid : m_selection.guids()) {
        const int row = frames().rowOf(guid);
        if (row >= 0 && (smallest < 0 || row < smallest))
            smallest = row;
    }
    setCurrentIndex(smallest >= 0 ? smallest : last());
}

void SelectionState::copyFrame()
{
    if (Frame::isGuid(pointedGuid()) && !isBusy()) {
        m_copiedGuid = pointedGuid();
        qDebug().noquote() << QStringLiteral("Copy frame to fuffer: %1").arg(m_copiedGuid);
    } else {
        qDebug() << QStringLiteral("copyFrame: Bad guid: %1 or busy").arg(pointedGuid());
    }
}

int SelectionState::pasteFrame()
{
    if (isBusy() || !Frame::isGuid(m_copiedGuid) || frames().isEmpty()) {
        qDebug().noquote()
            << QStringLiteral("pasteFrame: Bad guid: %1 or busy or m_frames is empty").arg(m_copiedGuid);
        return -1;
    }
    const int row = frames().rowOf(m_copiedGuid);
    m_copiedGuid = Frame::noGuid;
    return row;
}

void SelectionState::disarmDeletion()
{
    setGoingToDeleteCurrentFrame(false);
    setDeletionConfirmed(false);
}
