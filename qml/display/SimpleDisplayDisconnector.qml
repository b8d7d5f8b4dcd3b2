import QtQuick

// A bar over the view, called with a right click while a camera is connected.
Rectangle {
    id: bar

    required property var scene
    property bool shown: false

    width: button.width + 2 * Theme.padding
    height: button.height + 2 * Theme.padding
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

    TextButton {
        id: button

        anchors.centerIn: parent
        text: qsTr("Disconnect Camera")
        icon: "svgicons/disconnect.svg"
        onClicked: {
            bar.shown = false;
            bar.scene.camDisconnectConfirmBox();
        }
    }
}
