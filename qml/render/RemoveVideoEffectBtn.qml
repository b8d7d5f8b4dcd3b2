import QtQuick

// Takes the video effect out of the project.
IconButton {
    icon: "svgicons/clear.svg"
    toolTip: qsTr("Remove the video effect")
    active: WebcamGlobal.videoEffectsString !== ""
    onClicked: WebcamGlobal.videoEffectsString = ""
}
