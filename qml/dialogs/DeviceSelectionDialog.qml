import QtQuick
import Zum 1.0

// The devices that can be had, to choose one of them by a click or by its index.
DialogBox {
    id: dialog

    readonly property bool ofCanon: MainWindow.currentCapturingDevice === Zum.CapturingDeviceCanonEOS
    readonly property var device: MainWindow.capturingDeviceObject
    readonly property int highestIndex: 300

    function choose(index) {
        CameraList.choose(index);
        WebcamGlobal.dialogClosing();
    }

    function addFile() {
        const index = MainWindow.addFileCamera();
        if (index >= 0)
            CameraList.choose(index);
    }

    heading: qsTr("Available %1").arg(ofCanon ? qsTr("Cameras") : qsTr("Web Cameras and USB Video Capture Devices"))

    buttons: [
        DialogButton {
            objectName: "addFileCamera"
            visible: !dialog.ofCanon
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            icon: "svgicons/add.svg"
            text: qsTr("Add file as camera...")
            toolTip: qsTr("Shoot from a video file or from numbered images")
            onClicked: dialog.addFile()
        }
    ]

    Column {
        objectName: "deviceList"
        width: parent.width
        spacing: Theme.spacing

        Repeater {
            id: items

            model: dialog.device ? dialog.device.listOfCameras : null
            delegate: DeviceItem {
                width: parent.width
                current: value === WebcamGlobal.camindex
                removable: MainWindow.isFileCamera(value)
                onChosen: dialog.choose(value)
                onRemoved: MainWindow.removeFileCamera(value)
            }
        }
    }

    EmptyState {
        width: parent.width
        visible: items.count === 0
        icon: "svgicons/camera.svg"
        title: qsTr("No Devices")
        text: dialog.ofCanon ? qsTr("This version has no driver for DSLR cameras. Choose web cameras as the device type in the settings.") : ""
    }

    NumberInput4 {
        objectName: "deviceIndex"
        width: Math.min(implicitWidth, parent.width)
        label: qsTr("Device index")
        toolTip: qsTr("Try to set device index manually")
        minimum: 0
        maximum: dialog.highestIndex
        value: WebcamGlobal.camindex <= dialog.highestIndex ? WebcamGlobal.camindex : 0
        onEdited: index => CameraList.choose(index)
    }
}
