import QtQuick

// A straight line that stays thin on the screen however far the view is zoomed.
Rectangle {
    id: line

    property real zoom: 1
    property bool vertical: false
    readonly property real thickness: Math.max(0.65, 1 / zoom)

    width: vertical ? thickness : implicitWidth
    height: vertical ? implicitHeight : thickness
    antialiasing: false
}
