import QtQuick

// The line of the position below the strip, with the controls of playback on the Timing tab.
Item {
    id: bar

    required property var timeline
    readonly property bool withPlayback: timeline.rangeControlVisible
    readonly property int unit: timeline.unit

    implicitHeight: Math.round(unit * (withPlayback ? 2.6 : 1.5))

    Loader {
        id: playback

        anchors.left: parent.left
        anchors.leftMargin: active ? DefFontSizeNano : 0
        anchors.verticalCenter: parent.verticalCenter
        active: bar.withPlayback
        visible: active
        width: active && item ? item.implicitWidth : 0
        height: Math.min(Theme.controlHeight, bar.height)
        sourceComponent: PlaybackControls {
            roomy: bar.width > 76 * DefFontSizeNormal && bar.height >= Theme.controlHeight
            roomForNumbers: bar.width > 44 * DefFontSizeNormal && bar.height >= DefFontSizeNormal
        }
    }

    ProgressControl {
        anchors.left: playback.right
        anchors.right: parent.right
        anchors.leftMargin: DefFontSizeMicro
        anchors.rightMargin: DefFontSizeMicro
        height: parent.height
        rangeVisible: bar.withPlayback
        total: bar.timeline.framesTotal
        startIndex: FramesModel.startIndex
        current: FramesModel.currentIndex
        rangeStart: FramesModel.timelineRangeStart
        rangeEnd: FramesModel.timelineRangeEnd
        readyRuns: bar.timeline.readyRuns
        readyPercent: bar.timeline.readyPercent
        fps: FramesModel.timelineFps
        onGrabbed: {
            if (FramesModel.playing)
                FramesModel.stop();
        }
        onCurrentMoved: value => FramesModel.currentIndex = value
        onRangeStartMoved: value => FramesModel.timelineRangeStart = value
        onRangeEndMoved: value => FramesModel.timelineRangeEnd = value
    }
}
