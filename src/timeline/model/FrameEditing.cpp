#include "timeline/model/FrameEditing.h"

#include <QCoreApplication>
#include <QDebug>

using morvane::frameKey;

FrameEditing::FrameEditing(QObject *parent) : SelectionState(parent)
{
    connect(this, &FrameEditing::timelineChanged, this, &FrameEditing::emitChanged);
    connect(&m_undo, &UndoStack::countChanged, this, &FrameEditing::undoCountChanged);
    connect(&m_undo, &UndoStack::currentChanged, this, &FrameEditing::undoCurrentChanged);
    connect(this, &FrameEditing::countChanged, this, &FrameEditing::announceAddInsteadOfReplace);
}

void FrameEditing::setDuplicateQuantity(int quantity)
{
    constexpr int mostCopies = 9;
    if (quantity < 1 || quantity > mostCopies || quantity == m_duplicateQuantity)
        return;
    m_duplicateQuantity = quantity;
    emit duplicateQuantityChanged();
}

void FrameEditing::setAddInsteadOfReplace(bool add)
{
    m_addInsteadOfReplace = add;
    announceAddInsteadOfReplace();
}

void FrameEditing::announceAddInsteadOfReplace()
{
    // What is read also depends on whether there are frames.
    if (addInsteadOfReplace() == m_knownAddInsteadOfReplace)
        return;
    m_knownAddInsteadOfReplace = addInsteadOfReplace();
    emit addInstaedOfReplaceChanged();
}

void FrameEditing::appendFrame(const QVariantMap &frame, bool captured, int insertIndex, bool storeForUndo,
                               bool storeModifyUndo, bool awareModel)
{
    Q_UNUSED(storeModifyUndo)
    const int row = insertionRow(insertIndex, storeForUndo);
    Frame added = Frame::fromMap(frame);
    added.setGuid(m_guidCounter++);
    bool hasGuid = false;
    const int guid = morvane::toInteger(frame.value(frameKey(Zum::GUID)), &hasGuid);
    if (hasGuid && frames().rowOf(guid) < 0)
        added.setGuid(guid);
    insertFrameRow(row, added, awareModel);
    setLastAccessedIndex(row);
    announceData(row, row);
    if (captured) {
        appendCaptured(row);
    } else {
        if (storeForUndo && loaded()) {
            writeUndo(Zum::ActionInsert, row);
            writeRedo(Zum::ActionInsert, row);
        }
        emit countChanged(QModelIndex(), row, row);
    }
    setCurrentImages();
}

/// A frame stored for undo lands behind the given row; undo puts a frame back before it.
int FrameEditing::insertionRow(int insertIndex, bool behind) const
{
    const int row = behind && insertIndex >= 0 ? insertIndex + 1 : insertIndex;
    return isRow(row) ? row : frames().count();
}

void FrameEditing::appendCaptured(int row)
{
    ++m_shotsTaken;
    const int copies = shootMultipleFrames();
    if (copies > 0) {
        copyFrames(row, captureMode(), row, copies);
        announceCopies();
        m_shotsTaken += copies;
    }
    emit shotsTakenChanged();
    emit countChanged(QModelIndex(), row, qMin(last(), row + copies));
    emit timelineChanged(Zum::ActInsert);
    emit addedJustCapturedFrame(last());
    if (autoMaximizeRange() && loaded())
        signalRangeEnd(qMax(last(), 0));
}

void FrameEditing::modifyFrame(const QVariantMap &macciB, int modifyIndex, bool saveForUndo,
                               bool MultiCapture)
{
    if (!isRow(modifyIndex)) {
        qDebug().noquote()
            << QStringLiteral("Tried to modify frame #%1, but there is no such frame index").arg(modifyIndex);
        return;
    }
    setLastAccessedIndex(modifyIndex);
    const bool storeForUndo = saveForUndo && loaded();
    if (storeForUndo)
        writeUndo(Zum::ActionModify, modifyIndex);
    writeValues(macciB, modifyIndex);
    if (MultiCapture && shootMultipleFrames() > 0) {
        copyFrames(modifyIndex, Zum::CaptureModeReplace, modifyIndex, shootMultipleFrames());
        announceCopies();
    }
    emit changed();
    if (!loaded())
        return;
    refreshCurrentWithin(modifyIndex, modifyIndex);
    if (storeForUndo)
        writeRedo(Zum::ActionModify, modifyIndex);
}

void FrameEditing::writeValues(const QVariantMap &map, int row)
{
    using Reader = QVariant (*)(const QVariantMap &, const QString &);
    struct Field
    {
        int role;
        Reader read;
    };
    // A name sets its missing flag, so the flags that the map itself holds come after the names.
    static constexpr Field fields[] = {
        {Zum::Ingroup, morvane::readBool},        {Zum::CapFull, morvane::readString},
        {Zum::CapTumb, morvane::readString},      {Zum::RefFull, morvane::readString},
        {Zum::RefTumb, morvane::readString},      {Zum::Mirrored, morvane::readBool},
        {Zum::StaticState, morvane::readInt},     {Zum::PhaseNumber, morvane::readInt},
        {Zum::CapFullMissing, morvane::readBool}, {Zum::RefFullMissing, morvane::readBool},
        {Zum::Hidden, morvane::readBool},
    };
    for (const Field &field : fields) {
        const QVariant value = field.read(map, frameKey(field.role));
        if (!value.isValid())
            continue;
        if (!isRow(row)) {
            // A listener of the value before has taken the row away.
            qDebug().noquote()
                << QStringLiteral("Tried to modify frame #%1, but there is no such farme index").arg(row);
            continue;
        }
        setData(index(row), value, field.role);
    }
}

void FrameEditing::moveSingleFrame(int from, int to, bool directCall, bool storeForUndo)
{
    const int target = to < from ? to + 1 : to;
    setLastAccessedIndex(target);
    if (directCall && isBusy())
        return;
    if (from == target || !isRow(from) || !isRow(target))
        return;
    if (storeForUndo) {
        writeUndo(Zum::ActionMove, from, target);
        writeRedo(Zum::ActionMove, from, target);
    }
    moveFrameRow(from, target);
    refreshCurrentWithin(from, target);
    if (directCall) {
        emit timelineChanged(Zum::ActMoveFrames);
        emit changed();
    }
}

bool FrameEditing::removeSingleFrame(int targetIndx, bool storeForUndo, bool directCall)
{
    if (directCall && isBusy())
        return false;
    int row = targetIndx;
    if (targetIndx == -1 && selection().isEmpty()) {
        row = currentIndex();
    } else if (targetIndx == -1) {
        const int guid = selection().at(progressCurrent());
        row = Frame::isGuid(guid) ? frames().rowOf(guid) : -1;
    }
    removeRow(row, storeForUndo, directCall);
    return true;
}

void FrameEditing::removeRow(int row, bool storeForUndo, bool directCall)
{
    if (isRow(row)) {
        if (storeForUndo) {
            writeUndo(Zum::ActionRemove, row);
            writeRedo(Zum::ActionRemove, row);
        }
        removeFrameRow(row);
        announceRows(row, row, VerticalSortHint);
        setLastAccessedIndex(qMin(row + 1, last()));
        if (directCall) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            if (deletionConfirmed())
                disarmDeletion();
            emit changed();
        }
    }
    setGoingToDeleteCurrentFrame(false);
}

void FrameEditing::duplicateSingleFrame(int from, int captureMode, int insAfterIndex, bool directCall,
                                        int amountOfDuplicates)
{
    if (directCall && isBusy()) {
        qDebug().noquote()
            << QStringLiteral("duplicateSingleFrame: cannot run. Current action=%1").arg(currentAction());
        return;
    }
    if (!isRow(from)) {
        qDebug().noquote() << QStringLiteral("duplicateSingleFrame: bad 'from' index %1 or bad 'to' index %2")
                                  .arg(from)
                                  .arg(insAfterIndex);
        return;
    }
    const int copies = amountOfDuplicates == -1 ? m_duplicateQuantity : amountOfDuplicates;
    copyFrames(from, captureMode, isRow(insAfterIndex) ? insAfterIndex : from, copies);
    if (directCall)
        announceCopies();
}

/// A shot brings its copies along even while an action runs: it has been taken.
void FrameEditing::copyFrames(int from, int captureMode, int behind, int copies)
{
    const QVariantMap copy = get(from, true);
    const int end = behind + copies;
    if (!isResetting())
        emit layoutAboutToBeChanged();
    if (captureMode == Zum::CaptureModeAppend)
        for (int i = 0; i < copies; ++i)
            appendFrame(copy, false, behind, true, false, false);
    else if (captureMode == Zum::CaptureModeReplace)
        for (int row = behind + 1; row <= end; ++row)
            modifyFrame(copy, row, true, false);
    announceData(qBound(0, from + 1, last()), qBound(0, end, last()));
    if (!isResetting())
        emit layoutChanged();
}

void FrameEditing::announceCopies()
{
    emit timelineChanged(Zum::ActDuplicateFrames);
    emit changed();
}

void FrameEditing::switchMirroredOnSingleFrame(int i, bool directCall)
{
    if (!isRow(i) || (directCall && isBusy()))
        return;
    writeUndo(Zum::ActionModify, i);
    setData(index(i), !frameAt(i).mirrored, Zum::Mirrored);
    setLastAccessedIndex(i);
    writeRedo(Zum::ActionModify, i);
    if (i == currentIndex())
        refreshCurrentMirrored();
    if (directCall)
        emit timelineChanged(Zum::ActSetMirrored);
}

void FrameEditing::hideCurrentFrame()
{
    const int row = currentIndex();
    if (!isRow(row))
        return;
    setData(index(row), !frameAt(row).hidden, Zum::Hidden);
    setLastAccessedIndex(row);
    emit timelineChanged(Zum::ActHideFrames);
}

void FrameEditing::cleanupCurrentFrame()
{
    if (!isRow(currentIndex()))
        return;
    clearFrame(currentIndex(), Clearing::Both);
    setCurrentImages();
    emit changed();
}

void FrameEditing::clearFrame(int row, Clearing what)
{
    writeUndo(Zum::ActionModify, row);
    const auto empty = [this, row](std::initializer_list<int> roles) {
        for (const int role : roles)
            setData(index(row), QString(), role);
    };
    if (what != Clearing::Reference)
        empty({Zum::CapFull, Zum::CapTumb});
    if (what != Clearing::Captured)
        empty({Zum::RefFull, Zum::RefTumb});
    setData(index(row), false, Zum::Ingroup);
    writeRedo(Zum::ActionModify, row);
}

void FrameEditing::clear()
{
    if (isBusy()) {
        qDebug("clear()");
        return;
    }
    if (!frames().isEmpty()) {
        m_guidCounter = Frame::firstGuid;
        removeAllFrameRows();
        emit changed();
    }
    emptySelection();
}

void FrameEditing::emitChanged(int)
{
    emit changed();
}
