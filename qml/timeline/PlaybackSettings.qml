import QtQuick
import Zum 1.0

// All settings of playback and of its range.
IconDropPanel {
    id: button

    property int direction: Zum.Forward

    signal turnRound()

    icon: "svgicons/settings.svg"
    toolTip: qsTr("Playback and its range")
    panelWidth: DefFontSizeNormal_x22

    NumberInput4 {
        width: parent.width
        label: qsTr("First frame of the range")
        value: FramesModel.timelineRangeStart + FramesModel.startIndex
        minimum: FramesModel.startIndex
        maximum: FramesModel.timelineRangeEnd + FramesModel.startIndex
        onEdited: value => FramesModel.timelineRangeStart = value - FramesModel.startIndex
    }

    NumberInput4 {
        width: parent.width
        label: qsTr("Last frame of the range")
        value: FramesModel.timelineRangeEnd + FramesModel.startIndex
        minimum: FramesModel.timelineRangeStart + FramesModel.startIndex
        maximum: Math.max(0, FramesModel.framesCount - 1) + FramesModel.startIndex
        onEdited: value => FramesModel.timelineRangeEnd = value - FramesModel.startIndex
    }

    TextButton {
        width: Math.min(implicitWidth, parent.width)
        text: qsTr("Whole timeline")
        icon: "svgicons/width.svg"
        toolTip: qsTr("Play all frames")
        active: FramesModel.framesCount > 0
        onClicked: {
            FramesModel.timelineRangeStart = 0;
            FramesModel.timelineRangeEnd = FramesModel.last();
        }
    }

    CheckButton {
        width: parent.width
        text: qsTr("Captured frames extend the range")
        checked: FramesModel.autoMaximizeRange
        onSwitched: checked => {
            FramesModel.autoMaximizeRange = checked;
            MainWindow.addSetting("autoMaximizeRange", checked);
        }
    }

    CheckButton {
        width: parent.width
        text: qsTr("Play again and again")
        checked: FramesModel.loop
        onSwitched: checked => FramesModel.loop = checked
    }

    CheckButton {
        width: parent.width
        text: qsTr("Turn round at the ends")
        checked: FramesModel.pendulum
        onSwitched: checked => FramesModel.pendulum = checked
    }

    CheckButton {
        width: parent.width
        text: qsTr("Play backward")
        checked: button.direction === Zum.Backward
        onSwitched: button.turnRound()
    }

    CheckButton {
        width: parent.width
        text: qsTr("Play the reference frames")
        active: FramesModel.doubleDecker && !FramesModel.playing
        checked: !FramesModel.playingCaptured
        onSwitched: checked => FramesModel.playingCaptured = !checked
    }

    NumberInput5 {
        width: parent.width
        label: qsTr("Frames per second")
        value: FramesModel.timelineFps
        minimum: 1
        maximum: maxFps
        decimals: 2
        onEdited: value => FramesModel.timelineFps = value
    }
}
