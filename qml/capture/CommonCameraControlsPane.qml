import QtQuick

// The frame of a device's panel. What is declared in it stands below each other, and is dim while there is
// nothing that it could set.
Pane {
    id: pane

    default property alias kids: body.data
    property string hint: qsTr("Camera is not connected. Click 'Connect' to enable ") + WebcamGlobal.cameraName

    title: qsTr("Camera Controls")
    content: [
        TextLabel {
            objectName: "notConnectedHint"
            width: pane.contentWidth
            visible: !WebcamGlobal.connected
            text: pane.hint
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            dim: true
        },
        Column {
            id: body

            width: pane.contentWidth
            spacing: Theme.spacing
        }
    ]
}
