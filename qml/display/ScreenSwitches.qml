import QtQuick
import Zum 1.0

// The tools that need one click: filters, histogram, mirror.
Column {
    id: switches

    required property var scene
    property bool timing: false
    readonly property bool filtering: WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing

    spacing: DefFontSizeNano

    IconButton {
        icon: "svgicons/filters.svg"
        toolTip: switches.filtering ? qsTr("Show the pictures without filters") : qsTr("Show the pictures with filters")
        role: Accessible.CheckBox
        toggled: switches.filtering
        onClicked: WebcamGlobal.postProcessing = switches.filtering ? Zum.NoProcessing : Zum.NonRealtimeProcessing
    }

    IconButton {
        icon: "svgicons/contrast.svg"
        toolTip: qsTr("Settings of the filters")
        onClicked: switches.scene.postProcessFiltersBox()
    }

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
