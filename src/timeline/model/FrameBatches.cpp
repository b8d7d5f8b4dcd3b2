#include "timeline/model/FrameBatches.h"

#include <QCoreApplication>
#include <QDebug>

namespace {

bool isStepAction(int action)
{
    return action == Zum::ActDelete || action == Zum::ActDuplicateAndMoveFrames
           || action == Zum::ActDuplicateFrames || action == Zum::ActMoveFrames;
}

/// What the progress bar says of an action; nothing for those that are too short for it.
QString labelOf(int action)
{
    switch (action) {
        case Zum::ActDelete:
            return QCoreApplication::translate("FramesModel", "Delete");
        case Zum::ActSelect:
            return QCoreApplication::translate("FramesModel", "Select");
        case Zum::ActDismiss:
            return QCoreApplication::translate("FramesModel", "Dismiss");
        case Zum::ActDuplicateAndMoveFrames:
            return QCoreApplication::translate("FramesModel", "Duplicate and move");
        case Zum::ActDuplicateFrames:
            return QCoreApplication::translate("FramesModel", "Duplicate");
        case Zum::ActMoveFrames:
            return QCoreApplication::translate("FramesModel", "Move");
        case Zum::ActSearchStaticness:
            return QCoreApplication::translate("FramesModel", "Search for staticness");
        case Zum::ActSearchHiddenFrames:
            return QCoreApplication::translate("FramesModel", "Preparing playback");
        default:
            return {};
    }
}

bool isSelectionAction(int action)
{
    switch (action) {
        case Zum::ActSetMirrored:
        case Zum::ActDismiss:
        case Zum::ActSelect:
        case Zum::ActHideFrames:
        case Zum::ActClearCaptured:
        case Zum::ActClearReference:
        case Zum::ActClearFrameContents:
            return true;
        default:
            return false;
    }
}

} // namespace

FrameBatches::FrameBatches(QObject *parent)
    : FrameEditing(parent), m_cancelled(std::make_shared<std::atomic<bool>>(false))
{
}

FrameBatches::~FrameBatches()
{
    *m_cancelled = true;
}

void FrameBatches::clearPendingAction()
{
    const bool duplicating = isResetting();
    *m_cancelled = true;
    m_cancelled = std::make_shared<std::atomic<bool>>(false);
    batch().abandon();
    if (duplicating) {
        endFramesReset();
        emit connectModel();
    }
}

bool FrameBatches::startAction(int action, SelectionMode mode, int from, int to)
{
    if (frames().isEmpty()) {
        qDebug("No frames");
        return false;
    }
    if (!batch().begin(action))
        return false;
    if (mode == SelectedFrames)
        return startOnSelected(action);
    if (mode == RangeOfFrames)
        return startOnRange(action, from, to);
    if (mode != NoFrames)
        qDebug().noquote() << QStringLiteral("Unknown 'selOnly' type %1").arg(int(mode));
    batch().reset();
    return false;
}

void FrameBatches::startIfAccepted(int action, SelectionMode mode, int from, int to)
{
    if (acceptsActions())
        startAction(action, mode, from, to);
}

bool FrameBatches::startOnSelected(int action)
{
    if (action == Zum::ActDismiss) {
        dismissNow();
        return true;
    }
    const QList<int> guids = selection().guids();
    const auto act = [this, action, guids](int position) {
        if (isSelectionAction(action))
            actOnFrame(action, frames().rowOf(guids.at(position)));
        else
            qDebug().noquote()
                << QStringLiteral("iterateFrames/SelectedFrames: Unknown 'actionType' %1").arg(action);
        return true;
    };
    batch().runSliced(int(guids.size()), act, [this, action] { actionCompleted(action); });
    return true;
}

bool FrameBatches::startOnRange(int action, int from, int to)
{
    const HoldScan::Range range = HoldScan::limitRange(from, to, framesCount());
    if (action == Zum::ActSearchStaticness)
        scanHolds(range);
    else if (action == Zum::ActSearchHiddenFrames)
        searchHiddenFrames(range);
    else
        return false;
    return true;
}

/// A frame that has gone since it was selected is passed over.
void FrameBatches::actOnFrame(int action, int row)
{
    if (!isRow(row))
        return;
    switch (action) {
        case Zum::ActSetMirrored:
            switchMirroredOnSingleFrame(row, false);
            break;
        case Zum::ActSelect:
            switchSelection(row, false);
            break;
        case Zum::ActDismiss:
            setData(index(row), false, Zum::Ingroup);
            break;
        case Zum::ActHideFrames:
            setData(index(row), !frameAt(row).hidden, Zum::Hidden);
            break;
        case Zum::ActClearCaptured:
            clearFrame(row, Clearing::Captured);
            break;
        case Zum::ActClearReference:
            clearFrame(row, Clearing::Reference);
            break;
        case Zum::ActClearFrameContents:
            clearFrame(row, Clearing::Both);
            break;
        default:
            break;
    }
}

/// Done at one go: whoever dismisses in answer to the end of an action must leave the model free for the
/// scan that follows.
void FrameBatches::dismissNow()
{
    clearSelectionMarks();
    actionCompleted(Zum::ActDismiss);
}

void FrameBatches::actionCompleted(int action)
{
    batch().reset();
    switch (action) {
        case Zum::ActSelect:
        case Zum::ActDismiss:
            emptySelection();
            break;
        case Zum::ActHideFrames:
            emit changed();
            dismiss();
            break;
        case Zum::ActSearchStaticness:
            dismiss();
            break;
        case Zum::ActClearCaptured:
        case Zum::ActClearReference:
        case Zum::ActClearFrameContents:
        case Zum::ActSetMirrored:
            setCurrentImages();
            emit timelineChanged(action);
            break;
        default:
            break;
    }
}

void FrameBatches::scanCompleted()
{
    actionCompleted(Zum::ActSearchStaticness);
}

void FrameBatches::actionOnSelectedFrames(int action)
{
    if (!acceptsActions() || action == Zum::ActNoAction)
        return;
    const QList<int> guids = selection().guids();
    if (!batch().beginSteps(action, labelOf(action), int(guids.size())))
        return;
    if (action == Zum::ActDelete && guids.isEmpty()) {
        batch().runSliced(
            1, [this](int) { return removeSingleFrame(-1, true, false); },
            [this, action] { stepsCompleted(action); });
        return;
    }
    batch().runSteps(
        [this, action, guids](int position) {
            stepOnFrame(action, guids.at(position));
            return true;
        },
        [this, action] {
            if (isStepAction(action))
                stepsCompleted(action);
            else
                actionCompleted(action);
        });
}

void FrameBatches::stepOnFrame(int action, int guid)
{
    if (action == Zum::ActDuplicateFrames) {
        emit disconnectModel();
        beginFramesReset();
    }
    const int from = frames().rowOf(guid);
    if (action == Zum::ActDelete) {
        if (from >= 0)
            removeSingleFrame(from, true, false);
    } else if (isStepAction(action)) {
        placeFrame(action, from);
    } else if (isSelectionAction(action)) {
        actOnFrame(action, from);
    }
}

/// Moves or copies a frame to where the user points, or copies it in place.
void FrameBatches::placeFrame(int action, int from)
{
    int to = from;
    if (Frame::isGuid(pointedGuid()))
        to = frames().rowOf(pointedGuid());
    else
        qDebug("Have no good m_pointedGuid toIndex will be = fromIndex");
    if (action == Zum::ActMoveFrames)
        moveSingleFrame(from, to, false, true);
    else if (action == Zum::ActDuplicateAndMoveFrames)
        duplicateSingleFrame(from, Zum::CaptureModeAppend, to, false, -1);
    else
        duplicateSingleFrame(from, Zum::CaptureModeAppend, from, false, -1);
}

void FrameBatches::stepsCompleted(int action)
{
    const bool interrupted = !batch().keepGoing();
    if (action == Zum::ActDelete) {
        disarmDeletion();
        if (interrupted)
            qDebug("We were interrupted but we still have items");
        else
            emptySelection();
    }
    if (action == Zum::ActDuplicateFrames) {
        endFramesReset();
        emit connectModel();
    }
    emit countChanged(QModelIndex(), 0, 0);
    batch().reset();
    emit timelineChanged(action);
}

void FrameBatches::cleanSelectedCapFrames()
{
    startIfAccepted(Zum::ActClearCaptured, SelectedFrames);
}

void FrameBatches::cleanSelectedRefFrames()
{
    startIfAccepted(Zum::ActClearReference, SelectedFrames);
}

void FrameBatches::cleanSelectedFrames()
{
    startIfAccepted(Zum::ActClearFrameContents, SelectedFrames);
}

void FrameBatches::duplicateSelected()
{
    actionOnSelectedFrames(Zum::ActDuplicateFrames);
}

void FrameBatches::setSelectedMirrored()
{
    startIfAccepted(Zum::ActSetMirrored, SelectedFrames);
}

void FrameBatches::setSelectedVisibility()
{
    startIfAccepted(Zum::ActHideFrames, SelectedFrames);
}

void FrameBatches::dismiss()
{
    disarmDeletion();
    if (acceptsActions()) {
        startAction(Zum::ActDismiss, SelectedFrames);
        return;
    }
    emptySelection();
    qDebug().noquote() << QStringLiteral("Unready to Dismiss: %1").arg(currentAction());
}

void FrameBatches::searchStaticness(int from, int to)
{
    startIfAccepted(Zum::ActSearchStaticness, RangeOfFrames, from, to);
}

void FrameBatches::checkImagesMissing(int from, int to)
{
    startIfAccepted(Zum::ActCheckImageMissing, RangeOfFrames, from, to);
}
