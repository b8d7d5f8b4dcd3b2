import QtQuick

// Shows which control the keyboard speaks to. The user sets `visible`.
Rectangle {
    anchors.fill: parent
    z: 10
    color: "transparent"
    radius: Theme.corner
    border.width: lineWidth
    border.color: Theme.focusLine
}
