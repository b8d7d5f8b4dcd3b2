import QtQuick

// Darkens what lies outside of the film's frame.
Item {
    id: margins

    required property rect hole

    readonly property real leftEdge: Math.max(0, hole.x)
    readonly property real rightEdge: Math.min(width, hole.x + hole.width)
    readonly property real topEdge: Math.max(0, hole.y)
    readonly property real bottomEdge: Math.min(height, hole.y + hole.height)

    Rectangle {
        width: margins.leftEdge
        height: margins.height
        color: "black"
    }

    Rectangle {
        x: margins.rightEdge
        width: margins.width - x
        height: margins.height
        color: "black"
    }

    Rectangle {
        x: margins.leftEdge
        width: margins.rightEdge - margins.leftEdge
        height: margins.topEdge
        color: "black"
    }

    Rectangle {
        x: margins.leftEdge
        y: margins.bottomEdge
        width: margins.rightEdge - margins.leftEdge
        height: margins.height - y
        color: "black"
    }
}
