import QtQuick

// A cross in the middle of the picture.
Item {
    id: sight

    property real zoom: 1
    property bool wide: false
    property real arm: 0
    readonly property color lineColor: "#00FF00"

    Hairline {
        x: Math.round((sight.width - width) / 2)
        y: (sight.height - thickness) / 2
        implicitWidth: sight.wide ? sight.width : sight.arm
        zoom: sight.zoom
        color: sight.lineColor
    }

    Hairline {
        x: (sight.width - thickness) / 2
        y: Math.round((sight.height - height) / 2)
        vertical: true
        implicitHeight: sight.wide ? sight.height : sight.arm
        zoom: sight.zoom
        color: sight.lineColor
    }
}
