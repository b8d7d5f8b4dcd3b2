import QtQuick

// A bar over the picture that a right click brings and takes away: leaves the camera, moves its lens, zooms.
Rectangle {
    id: bar

    readonly property var device: MainWindow.capturingDeviceObject
    readonly property real room: parent ? parent.width - DefFontSizeNormal_x2 : 0

    width: Math.min(row.implicitWidth, room) + 2 * Theme.padding
    height: row.height + 2 * Theme.padding
    radius: Theme.corner
    color: Theme.panel
    border.width: 1
    border.color: Theme.line
    visible: device ? device.floatingPanelVisible : false
    Accessible.role: Accessible.ToolBar
    Accessible.name: qsTr("Camera")

    // Clicks between the buttons are no clicks on the picture.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }

    Flow {
        id: row

        readonly property real wanted: leave.implicitWidth + focusRow.shownWidth + zoom.implicitWidth + 2 * spacing

        x: Theme.padding
        y: Theme.padding
        width: Math.min(wanted, bar.room)
        spacing: Theme.spacing

        TextButton {
            id: leave

            objectName: "disconnectCamera"
            width: Math.min(implicitWidth, bar.room)
            icon: "svgicons/disconnect.svg"
            text: qsTr("Disconnect Camera")
            toolTip: qsTr("Disconnect device")
            onClicked: {
                bar.device.floatingPanelVisible = false;
                WebcamGlobal.capturingDeviceDisconnect();
            }
        }

        FocusRow {
            id: focusRow

            readonly property real shownWidth: visible ? implicitWidth : 0

            visible: bar.device ? bar.device.manualFocusEnabled : false
        }

        ZoomSidePanel {
            id: zoom
        }
    }
}
