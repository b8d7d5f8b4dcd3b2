import QtQuick

// Asks the camera how it is set; its icon turns over to show that it has.
ButtonBase {
    id: button

    toolTip: qsTr("Read camera settings")
    active: WebcamGlobal.connected
    onClicked: {
        picture.rotation += 180;
        WebcamGlobal.updateWebcamSettings();
    }

    Icon {
        id: picture

        objectName: "turningIcon"
        anchors.centerIn: parent
        icon: "svgicons/refresh.svg"

        Behavior on rotation {
            NumberAnimation {
                duration: 400
            }
        }
    }
}
