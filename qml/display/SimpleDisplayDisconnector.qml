import QtQuick

// A bar over the view, called with a right click while a camera is connected: leaves it, moves its lens, zooms.
Rectangle {
    id: bar

    required property var scene
    property bool shown: false

    readonly property var device: MainWindow.capturingDeviceObject
    readonly property real room: parent ? parent.width - DefFontSizeNormal_x2 : 0

    width: row.width + 2 * Theme.padding
    height: row.height + 2 * Theme.padding
    radius: Theme.corner
    color: Theme.panel
    border.width: 1
    border.color: Theme.line
    visible: shown && WebcamGlobal.connected

    Connections {
        target: WebcamGlobal

        function onConnectedChanged() {
            bar.shown = false;
        }

        function onGlobalDismiss() {
            bar.shown = false;
        }
    }

    // Clicks between the buttons are no clicks on the picture.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
    }

    Flow {
        id: row

        readonly property real lensWidth: lens.visible ? lens.implicitWidth + spacing : 0

        x: Theme.padding
        y: Theme.padding
        width: Math.max(0, Math.min(button.implicitWidth + lensWidth + spacing + zoom.implicitWidth, bar.room))
        spacing: Theme.spacing

        TextButton {
            id: button

            objectName: "disconnectCamera"
            width: Math.min(implicitWidth, row.width)
            text: qsTr("Disconnect Camera")
            toolTip: qsTr("Disconnect device")
            icon: "svgicons/disconnect.svg"
            onClicked: {
                bar.shown = false;
                bar.scene.camDisconnectConfirmBox();
            }
        }

        FocusRow {
            id: lens

            visible: bar.device ? bar.device.manualFocusEnabled : false
        }

        ZoomSidePanel {
            id: zoom
        }
    }
}
