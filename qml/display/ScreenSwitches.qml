import QtQuick
import Zum 1.0

// The tools of the picture that need one click.
Column {
    id: switches

    required property var scene
    property bool timing: false
    readonly property bool filtering: WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing

    spacing: DefFontSizeNano

    IconButton {
        objectName: "filtersButton"
        icon: "svgicons/filters.svg"
        toggled: WebcamGlobal.hasPostProcessSettings
        toolTip: qsTr("Filters of the picture")
        onClicked: switches.scene.filtersBox()
    }

    // Before and after.
    IconButton {
        icon: switches.filtering ? "svgicons/show.svg" : "svgicons/hide.svg"
        toolTip: switches.filtering ? qsTr("Show pictures as they are") : qsTr("Show pictures with the filters")
        role: Accessible.CheckBox
        active: WebcamGlobal.hasPostProcessSettings
        toggled: switches.filtering
        onClicked: WebcamGlobal.postProcessing = switches.filtering ? Zum.NoProcessing : Zum.NonRealtimeProcessing
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
