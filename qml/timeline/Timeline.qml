import QtQuick
import Zum 1.0

// The timeline: a row of controls, the strip of frames, and below it the bar, the indicator and a scroll bar.
// Holds no frame data; everything goes to the model.
Rectangle {
    id: timelineBox

    required property var scene
    property bool rangeControlVisible: false
    property bool compactMode: false
    property bool arrowsVisible: true
    // Of the thumbnails' size.
    property real contentScale: timelineScale / 100
    property int currentMiddleFrame: -1
    property bool showQuickLoadPannel: true
    // What of the frames is in memory: pairs [first row, last row], and the share of the range in per cent.
    property var readyRuns: []
    property real readyPercent: 0
    readonly property alias leftMostIndex: frameStrip.leftMostIndex
    readonly property int framesTotal: MainWindow.projectLoaded ? Math.max(0, FramesModel.framesCount - 1) : 0
    readonly property alias allowAdd: edits.allowAdd
    readonly property alias allowManipulate: edits.allowManipulate
    readonly property alias strip: frameStrip
    readonly property alias commands: edits

    readonly property bool barShown: MainWindow.projectLoaded && FramesModel.framesCount > 0
    // What heights are made of: the letters' size, or less where large letters would leave no room for frames.
    readonly property int unit: Math.max(9, Math.min(DefFontSizeNormal, Math.floor(height / (compactMode ? 9 : 14))))
    // Without a project there is only a line of text to show.
    readonly property int wantedHeight: compactMode
        ? 140
        : !MainWindow.projectLoaded
        ? DefFontSizeNormal_x4
        : Math.min(MainWindow.timelineH * (WebcamGlobal.timelineCompact ? 0.78 : 1),
                   Math.max(parent.height * 0.36, Math.min(parent.height * 0.5, DefFontSizeNormal_x7)))

    function copyFrames() {
        edits.copyFrames();
    }

    function cutFrames() {
        edits.cutFrames();
    }

    function pasteFrames() {
        edits.pasteFrames();
    }

    function openAddBox() {
        if (allowAdd && controls.item)
            controls.item.openAddBox();
    }

    function closeAddBox() {
        if (controls.item)
            controls.item.closeAddBox();
    }

    function getCurrentMiddleFrame() {
        const row = frameStrip.rowAt(frameStrip.viewWidth / 2);
        currentMiddleFrame = row >= 0 ? row : FramesModel.lastAccessedIndex;
        return currentMiddleFrame;
    }

    function getVisibleFramesIndxs() {
        return frameStrip.getVisibleFramesIndxs();
    }

    color: GlobalDarkerColor

    TimelineCommands {
        id: edits

        timeline: timelineBox
    }

    TimelineReactions {
        timeline: timelineBox
        commands: edits
        strip: frameStrip
    }

    // Without a project none of them could do anything.
    Loader {
        id: controls

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        z: 1
        active: MainWindow.projectLoaded
        visible: !timelineBox.compactMode
        height: visible && item ? item.implicitHeight : 0
        sourceComponent: TimelineControls {
            timeline: timelineBox
            commands: edits
        }
    }

    Loader {
        id: leftColumn

        anchors.left: parent.left
        anchors.top: controls.bottom
        anchors.bottom: bar.top
        active: MainWindow.projectLoaded
        visible: !timelineBox.compactMode
        width: visible && item ? item.implicitWidth : 0
        sourceComponent: TimelineLeftColumn {
            timeline: timelineBox
            commands: edits
        }
    }

    TimelineStrip {
        id: frameStrip

        anchors.left: leftColumn.right
        anchors.right: parent.right
        anchors.top: controls.bottom
        anchors.bottom: bar.top
        timeline: timelineBox
        commands: edits
    }

    Loader {
        id: bar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: indicator.top
        active: timelineBox.barShown
        height: item ? item.implicitHeight : 0
        sourceComponent: TimelineBar {
            timeline: timelineBox
        }
    }

    TimelineIndicatorRow {
        id: indicator

        anchors.left: frameStrip.left
        anchors.right: parent.right
        anchors.bottom: scroll.top
        height: timelineBox.barShown ? Math.max(6, Math.round(timelineBox.unit * 0.7)) : 0
        visible: timelineBox.barShown
    }

    Scrollbar {
        id: scroll

        anchors.left: frameStrip.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        // Its room stays while all frames fit, so that nothing jumps.
        height: timelineBox.barShown ? Math.min(scrollBarW, timelineBox.unit) : 0
        toolTip: qsTr("Scroll the timeline")
        flickable: frameStrip.flickable
        vertical: false
        onPressedChanged: frameStrip.handMoves(pressed)
    }
}
