import QtQuick
import Zum 1.0

// The panel of web cameras and video capture adapters.
CommonCameraControlsPane {
    id: controls

    Component.onCompleted: WebcamGlobal.getCapturingDevicesList()

    FieldRow {
        width: parent.width
        text: qsTr("Resolution")

        ResolutionButton {
            objectName: "resolution"
            width: parent.width
            active: WebcamGlobal.connected
            toolTip: qsTr("Size of the camera's picture")
        }
    }

    WebcamFlags {
        width: parent.width
    }

    PowerFactor {
        width: parent.width
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        ReadSettingsButton {
            objectName: "readSettings"
        }

        TextButton {
            objectName: "cameraSettings"
            visible: Qt.platform.os === "windows"
            width: Math.min(implicitWidth, parent.width)
            text: qsTr("Camera Settings")
            active: WebcamGlobal.connected
            toolTip: qsTr("The settings dialog of the camera's driver")
            onClicked: WebcamGlobal.showCamSettings()
        }

        AutoFocusButton {
            objectName: "autoFocus"
            width: Math.min(implicitWidth, parent.width)
        }

        IconButton {
            objectName: "drawFrame"
            icon: "svgicons/crop.svg"
            toolTip: qsTr("Draw the frame of the film on the live view")
            active: WebcamGlobal.connected
            toggled: appWindow.choosingCropArea
            onClicked: appWindow.choosingCropArea = !appWindow.choosingCropArea
        }

        IconButton {
            objectName: "eyedropper"
            icon: "svgicons/eyedropper.svg"
            toolTip: qsTr("Show the colour under the pointer")
            active: WebcamGlobal.connected
            toggled: WebcamGlobal.eyedropperOn
            onClicked: WebcamGlobal.eyedropperOn = !WebcamGlobal.eyedropperOn
        }
    }

    TextButton {
        objectName: "cameraControls"
        width: parent.width
        text: qsTr("Camera Controls")
        trailingIcon: sliders.unfolded ? "svgicons/chevron-up.svg" : "svgicons/chevron-down.svg"
        toggled: sliders.unfolded
        toolTip: qsTr("Show or hide the sliders of the camera")
        onClicked: sliders.unfolded = !sliders.unfolded
    }

    WebcamSliders {
        id: sliders

        width: parent.width
        unfolded: false
    }
}
