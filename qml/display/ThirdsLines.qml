import QtQuick

// Two lines in each direction that part the frame in thirds.
Item {
    id: thirds

    property real zoom: 1
    readonly property color lineColor: "#00FF00"

    Repeater {
        model: 2

        Hairline {
            required property int index

            x: Math.round(thirds.width * (index + 1) / 3)
            vertical: true
            implicitHeight: thirds.height
            zoom: thirds.zoom
            color: thirds.lineColor
        }
    }

    Repeater {
        model: 2

        Hairline {
            required property int index

            y: Math.round(thirds.height * (index + 1) / 3)
            implicitWidth: thirds.width
            zoom: thirds.zoom
            color: thirds.lineColor
        }
    }
}
