import QtQuick

// How the camera's picture is treated. Some of it only shows, some goes into the files; the tool tips tell.
Flow {
    id: flags

    readonly property string frameSize: WebcamGlobal.cropAreaW + "x" + WebcamGlobal.cropAreaH

    spacing: Theme.spacing

    CheckButton {
        objectName: "rotate"
        width: Math.min(implicitWidth, flags.width)
        text: qsTr("Rotate 180") + "°"
        toolTip: qsTr("Turn the live view and the captured frames upside down")
        active: WebcamGlobal.connected
        checked: WebcamGlobal.rotate
        onSwitched: on => WebcamGlobal.rotate = on
    }

    CheckButton {
        objectName: "grayscale"
        width: Math.min(implicitWidth, flags.width)
        text: qsTr("B/W")
        toolTip: qsTr("Live view and captured frames without colours")
        active: WebcamGlobal.connected
        checked: WebcamGlobal.grayscale
        onSwitched: on => WebcamGlobal.grayscale = on
    }

    CheckButton {
        objectName: "smoothRender"
        width: Math.min(implicitWidth, flags.width)
        text: qsTr("Anti-Alias")
        toolTip: qsTr("Smooth live view; takes more of the processor")
        active: WebcamGlobal.connected
        checked: WebcamGlobal.smoothRender
        onSwitched: on => WebcamGlobal.smoothRender = on
    }

    CheckButton {
        objectName: "crop"
        width: Math.min(implicitWidth, flags.width)
        text: qsTr("Save Cropped")
        toolTip: qsTr("Crop captured image to specified frame size") + " " + flags.frameSize
        active: WebcamGlobal.connected
        checked: WebcamGlobal.crop
        onSwitched: on => WebcamGlobal.crop = on
    }
}
