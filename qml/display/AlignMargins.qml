import QtQuick

// Darkens what lies outside of the film's frame.
Item {
    id: margins

    required property rect hole

    readonly property real left: Math.max(0, hole.x)
    readonly property real right: Math.min(width, hole.x + hole.width)
    readonly property real top: Math.max(0, hole.y)
    readonly property real bottom: Math.min(height, hole.y + hole.height)

    Rectangle {
        width: margins.left
        height: margins.height
        color: "black"
    }

    Rectangle {
        x: margins.right
        width: margins.width - x
        height: margins.height
        color: "black"
    }

    Rectangle {
        x: margins.left
        width: margins.right - margins.left
        height: margins.top
        color: "black"
    }

    Rectangle {
        x: margins.left
        y: margins.bottom
        width: margins.right - margins.left
        height: margins.height - y
        color: "black"
    }
}
