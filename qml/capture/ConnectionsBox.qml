import QtQuick

// The device: what it is, how to get it and how to let it go.
Pane {
    id: connectionsBox

    title: qsTr("Camera")

    WebCameraConnectBox {
        width: parent.width
    }
}
