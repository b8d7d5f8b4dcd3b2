import QtQuick
import Zum 1.0

// The panel of DSLR cameras. None can be connected, so it says so and leads to the devices that can.
CommonCameraControlsPane {
    id: controls

    Component.onCompleted: WebcamGlobal.getCapturingDevicesList()

    TextLabel {
        objectName: "noDriver"
        width: parent.width
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: qsTr("This version has no driver for DSLR cameras. Web cameras, video capture adapters and the built-in demo camera can be used.")
    }

    DialogButton {
        objectName: "useWebCameras"
        width: parent.width
        icon: "images/webcam.svg"
        text: qsTr("Shoot with a web camera")
        toolTip: qsTr("Change the kind of device to web cameras")
        onClicked: appWindow.useWebCameras()
    }
}
