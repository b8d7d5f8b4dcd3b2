import QtQuick
import Zum 1.0

// The timeline: a row of controls and the strip of frames. Holds no frame data; everything goes to the model.
Rectangle {
    id: timelineBox

    required property var scene
    property bool compactMode: false
    property bool rangeControlVisible: false

    readonly property bool allowAdd: MainWindow.projectLoaded && !FramesModel.playing
    readonly property bool allowManipulate: FramesModel.framesCount > 0 && !FramesModel.playing
                                            && (FramesModel.selectedCount > 0 || FramesModel.pointedGuid >= 0)
    // Without a project there is only a line of text to show.
    readonly property int wantedHeight: compactMode
        ? 140
        : !MainWindow.projectLoaded
        ? DefFontSizeNormal_x4
        : Math.min(MainWindow.timelineH * (WebcamGlobal.timelineCompact ? 0.78 : 1), parent.height * 0.36)

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

    function moveFrames() {
        FramesModel.actionOnSelectedFrames(Zum.ActMoveFrames);
    }

    function dublicateAndMoveFrames() {
        FramesModel.duplicateQuantity = 1;
        FramesModel.actionOnSelectedFrames(Zum.ActDuplicateAndMoveFrames);
    }

    function dublicateFrames() {
        if (!allowManipulate)
            return;
        if (FramesModel.selectedCount === 0)
            FramesModel.switchSelectionOnSingleFrame(FramesModel.currentIndex);
        FramesModel.actionOnSelectedFrames(Zum.ActDuplicateFrames);
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
        FramesModel.copyModeOn = false;
        FramesModel.cutModeOn = false;
    }

    // While an action runs, the frame that the user points at cannot follow the current row.
    function pointAtCurrent() {
        if (FramesModel.loaded && !FramesModel.playing && FramesModel.currentIndex >= 0
                && FramesModel.currentIndex < FramesModel.framesCount)
            FramesModel.pointedGuid = FramesModel.get(FramesModel.currentIndex, false).guid;
    }

    function searchStaticness() {
        FramesModel.searchStaticness(0, FramesModel.last());
    }

    color: GlobalDarkerColor

    Connections {
        target: WebcamGlobal
        enabled: timelineBox.visible

        function onTimelineGotoStart() {
            FramesModel.currentIndex = 0;
        }

        function onTimelineGotoEnd() {
            FramesModel.currentIndex = FramesModel.last();
        }

        function onTimelinePrevFrame() {
            FramesModel.currentIndex = FramesModel.currentIndex - 1;
        }

        function onTimelineNextFrame() {
            FramesModel.currentIndex = FramesModel.currentIndex + 1;
        }

        function onTimelineSelectFrame() {
            FramesModel.switchSelectionOnSingleFrame(FramesModel.currentIndex);
        }

        function onTimelineDeleteFrames() {
            timelineBox.deleteFrames();
        }

        function onTimelineFrameDuplicate() {
            timelineBox.dublicateFrames();
        }

        function onTimelineDismiss() {
            timelineBox.dismiss();
        }

        function onTimelineShowAddBox() {
            if (controls.item)
                controls.item.openAddBox();
        }
    }

    Connections {
        target: FramesModel

        function onTimelineChanged(action) {
            if (action < 1024)
                timelineBox.searchStaticness();
        }

        function onCurrentActionChanged() {
            if (FramesModel.currentAction === Zum.ActNoAction)
                timelineBox.pointAtCurrent();
        }

        function onLoadedChanged() {
            timelineBox.pointAtCurrent();
        }

        function onDublicateAndMoveFrames() {
            timelineBox.dublicateAndMoveFrames();
        }
    }

    // Without a project none of them could do anything.
    Loader {
        id: controls

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        active: MainWindow.projectLoaded
        visible: !timelineBox.compactMode
        height: visible && item ? item.implicitHeight : 0
        sourceComponent: TimelineControls {
            timeline: timelineBox
        }
    }

    TimelineStrip {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: controls.bottom
        anchors.bottom: parent.bottom
        timeline: timelineBox
    }
}
