import QtQuick
import Zum 1.0

// What the timeline's buttons, keys and drags do with frames. Everything goes to the model.
QtObject {
    id: commands

    required property var timeline
    readonly property bool allowAdd: MainWindow.projectLoaded && !FramesModel.playing
    readonly property bool allowManipulate: FramesModel.framesCount > 0 && !FramesModel.playing
                                            && (FramesModel.selectedCount > 0 || FramesModel.pointedGuid >= 0)

    function copyFrames() {
        arm(true);
    }

    function cutFrames() {
        arm(false);
    }

    function arm(copy) {
        if (!allowManipulate)
            return;
        FramesModel.copyModeOn = copy;
        FramesModel.cutModeOn = !copy;
        if (FramesModel.selectedCount === 0) {
            FramesModel.duplicateQuantity = 1;
            FramesModel.copyFrame();
        }
    }

    function pasteFrames() {
        if (FramesModel.copyModeOn)
            pasteCopy();
        else if (FramesModel.cutModeOn)
            pasteCut();
    }

    function pasteCopy() {
        if (FramesModel.selectedCount > 0) {
            dublicateAndMoveFrames();
        } else {
            const row = FramesModel.pasteFrame();
            if (row >= 0)
                FramesModel.duplicateSingleFrame(row, Zum.CaptureModeAppend, FramesModel.currentIndex, true, 1);
        }
        FramesModel.copyModeOn = false;
    }

    function pasteCut() {
        if (FramesModel.selectedCount > 0) {
            moveFrames();
        } else {
            const row = FramesModel.pasteFrame();
            if (row >= 0)
                FramesModel.moveSingleFrame(row, FramesModel.currentIndex);
        }
        FramesModel.cutModeOn = false;
        FramesModel.emitChanged(0);
    }

    function forgetBuffer() {
        FramesModel.copyModeOn = false;
        FramesModel.cutModeOn = false;
    }

    function moveFrames() {
        timeline.getCurrentMiddleFrame();
        FramesModel.actionOnSelectedFrames(Zum.ActMoveFrames);
    }

    function dublicateAndMoveFrames() {
        FramesModel.duplicateQuantity = 1;
        FramesModel.actionOnSelectedFrames(Zum.ActDuplicateAndMoveFrames);
    }

    function dublicateFrames() {
        if (!allowManipulate)
            return;
        selectCurrentIfNone();
        FramesModel.actionOnSelectedFrames(Zum.ActDuplicateFrames);
    }

    // For the actions that only know the selection.
    function selectCurrentIfNone() {
        if (FramesModel.selectedCount === 0)
            FramesModel.switchSelectionOnSingleFrame(FramesModel.currentIndex);
    }

    // The first press arms, the second deletes.
    function deleteFrames() {
        if (!allowManipulate)
            return;
        if (!FramesModel.deletionConfirmed)
            FramesModel.deletionConfirmed = true;
        else if (FramesModel.selectedCount > 0)
            FramesModel.actionOnSelectedFrames(Zum.ActDelete);
        else if (FramesModel.removeSingleFrame(-1, true, true))
            FramesModel.timelineChanged(Zum.ActDelete);
    }

    function cancelDeletion() {
        FramesModel.deletionConfirmed = false;
    }

    function hideFrames() {
        if (FramesModel.selectedCount > 0)
            FramesModel.setSelectedVisibility();
        else
            FramesModel.hideCurrentFrame();
    }

    function mirrorFrames() {
        if (FramesModel.selectedCount > 0)
            FramesModel.setSelectedMirrored();
        else
            FramesModel.switchMirroredOnSingleFrame(FramesModel.currentIndex);
    }

    function clearCaptured() {
        selectCurrentIfNone();
        FramesModel.cleanSelectedCapFrames();
    }

    function clearReference() {
        selectCurrentIfNone();
        FramesModel.cleanSelectedRefFrames();
    }

    function clearAll() {
        selectCurrentIfNone();
        FramesModel.cleanSelectedFrames();
    }

    function addEmptyFrame() {
        if (FramesModel.addInsteadOfReplace || FramesModel.framesCount === 0) {
            FramesModel.appendFrame({}, false, FramesModel.currentIndex);
            FramesModel.timelineChanged(Zum.ActInsert);
        } else {
            FramesModel.cleanupCurrentFrame();
        }
    }

    function dismiss() {
        FramesModel.dismiss();
        forgetBuffer();
    }

    function searchStaticness() {
        FramesModel.searchStaticness(0, FramesModel.last());
    }

    // While an action runs, the frame that the user points at cannot follow the current row.
    function pointAtCurrent() {
        if (FramesModel.loaded && !FramesModel.playing && FramesModel.currentIndex >= 0
                && FramesModel.currentIndex < FramesModel.framesCount)
            FramesModel.pointedGuid = FramesModel.get(FramesModel.currentIndex, false).guid;
    }

    // Over the strip from one row to another: selects the rows between or, with Alt, moves frames or, with Ctrl
    // too, copies of them.
    function drag(from, to, modifiers) {
        if (WebcamGlobal.timelineInteractive) {
            FramesModel.addRangeToGroup(from, to);
            return;
        }
        const copies = modifiers & Qt.ControlModifier;
        if (FramesModel.selectedCount > 0 && FramesModel.get(from, false).ingroup) {
            FramesModel.currentIndex = to;
            if (copies)
                dublicateAndMoveFrames();
            else
                moveFrames();
        } else if (copies) {
            FramesModel.duplicateSingleFrame(from, Zum.CaptureModeAppend, to, true);
        } else {
            FramesModel.moveSingleFrame(from, to, true);
        }
    }

    function pick(row, modifiers) {
        if (modifiers & Qt.ShiftModifier) {
            timeline.scene.addToGroup(row);
        } else if (modifiers & Qt.ControlModifier) {
            FramesModel.switchSelectionOnSingleFrame(row);
        } else {
            WebcamGlobal.globalDismiss();
            FramesModel.currentIndex = row;
        }
    }
}
