import QtQuick
import Zum 1.0

// Takes a picture, while there is a camera to take it and a project to put it into.
DialogButton {
    id: button

    readonly property bool replaces: FramesModel.captureMode === Zum.CaptureModeReplace

    objectName: "captureButton"
    height: Math.max(implicitHeight, Math.round(1.4 * Theme.controlHeight))
    icon: "svgicons/capture.svg"
    text: replaces ? qsTr("Replace Frame") : qsTr("Capture Frame")
    toolTip: qsTr("Capture a frame") + " [Enter]"
    active: WebcamGlobal.connected && MainWindow.projectLoaded && WebcamGlobal.capturingInprogress < 0
    onClicked: WebcamGlobal.doCaptureFrame()
}
