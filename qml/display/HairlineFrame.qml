import QtQuick

// The outline of a rectangle in hairlines, inside of its edges.
Item {
    id: outline

    property real zoom: 1
    property color color: "#00FF00"
    readonly property real thickness: Math.max(0.65, 1 / zoom)

    Hairline {
        implicitWidth: outline.width
        zoom: outline.zoom
        color: outline.color
    }

    Hairline {
        y: outline.height - outline.thickness
        implicitWidth: outline.width
        zoom: outline.zoom
        color: outline.color
    }

    Hairline {
        vertical: true
        implicitHeight: outline.height
        zoom: outline.zoom
        color: outline.color
    }

    Hairline {
        x: outline.width - outline.thickness
        vertical: true
        implicitHeight: outline.height
        zoom: outline.zoom
        color: outline.color
    }
}
