import QtQuick

// Where the user is: the current frame, how many there are, how many are selected; then what goes with the
// current frame, and the copy buffer.
Row {
    id: counters

    required property var commands
    property bool roomy: true
    // For a field with the current number rather than the number alone.
    property bool roomForField: true
    readonly property bool bufferFull: FramesModel.copyModeOn || FramesModel.cutModeOn

    spacing: DefFontSizeMicro

    NumberInput4 {
        visible: FramesModel.framesCount > 0 && counters.roomForField
        height: counters.height
        value: FramesModel.currentIndex + FramesModel.startIndex
        minimum: FramesModel.startIndex
        maximum: FramesModel.startIndex + Math.max(0, FramesModel.framesCount - 1)
        toolTip: qsTr("Number of the current frame")
        active: !FramesModel.playing
        onEdited: value => FramesModel.currentIndex = value - FramesModel.startIndex
    }

    TextLabel {
        visible: FramesModel.framesCount > 0 && !counters.roomForField
        height: counters.height
        text: FramesModel.currentIndex + FramesModel.startIndex
    }

    TextLabel {
        height: counters.height
        text: (counters.roomy ? qsTr("Total") + " " : "/ ") + FramesModel.framesCount
        dim: true
    }

    TextLabel {
        visible: counters.roomy || FramesModel.selectedCount > 0
        height: counters.height
        text: (counters.roomy ? qsTr("Selected") + " " : "+ ") + FramesModel.selectedCount
        dim: FramesModel.selectedCount === 0
    }

    IconButton {
        width: counters.height
        height: counters.height
        icon: "svgicons/mirror.svg"
        toolTip: qsTr("Mirror")
        active: counters.commands.allowManipulate
        toggled: FramesModel.currentMirrored
        onClicked: counters.commands.mirrorFrames()
    }

    CurrentFrameInfoBtn {
        width: counters.height
        height: counters.height
        active: FramesModel.framesCount > 0
    }

    TextButton {
        height: counters.height
        visible: counters.bufferFull
        icon: FramesModel.cutModeOn ? "svgicons/cut.svg" : "svgicons/copy.svg"
        text: FramesModel.selectedCount > 0 ? FramesModel.selectedCount : 1
        label: toolTip
        toolTip: (FramesModel.cutModeOn ? qsTr("Cut frames: %1. Click to paste them, right click to forget them")
                                        : qsTr("Copied frames: %1. Click to paste them, right click to forget them"))
                 .arg(text)
        toggled: true
        active: counters.commands.allowManipulate
        onClicked: counters.commands.pasteFrames()
        onRightClicked: counters.commands.forgetBuffer()
    }
}
