import QtQuick

// One of a row of tabs; `toggled` marks the one that is open with a line below.
TextButton {
    id: tab

    role: Accessible.PageTab
    framed: false
    ground: hovered ? Theme.buttonHovered : toggled ? Theme.well : "transparent"

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: lineWidth
        color: Theme.active
        visible: tab.toggled
    }
}
