import QtQuick

// The tools of the picture that need one click.
Column {
    id: switches

    property bool timing: false

    spacing: DefFontSizeNano

    IconButton {
        visible: switches.timing
        icon: "svgicons/histogram.svg"
        toolTip: qsTr("Histogram")
        role: Accessible.CheckBox
        toggled: WebcamGlobal.ramHistogramOn
        onClicked: WebcamGlobal.ramHistogramOn = !WebcamGlobal.ramHistogramOn
    }

    IconButton {
        icon: "svgicons/mirror.svg"
        toolTip: qsTr("Mirror the current frame")
        role: Accessible.CheckBox
        active: FramesModel.framesCount > 0 && !FramesModel.playing
        toggled: FramesModel.currentMirrored
        onClicked: FramesModel.switchMirroredOnSingleFrame(FramesModel.currentIndex)
    }
}
