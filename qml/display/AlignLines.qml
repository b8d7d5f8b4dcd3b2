import QtQuick

// A grid of hairlines with one in the middle of each direction.
Item {
    id: grid

    property real zoom: 1
    property real stepX: 100
    property real stepY: 100
    readonly property color lineColor: "#6600FF00"
    readonly property int columns: visible ? lineCount(width, stepX) : 0
    readonly property int rows: visible ? lineCount(height, stepY) : 0

    // Even, so that as many cells lie on one side of the middle as on the other. A step of less than two pixels
    // would be a surface.
    function lineCount(size, step) {
        const count = Math.round(size / Math.max(2, step));
        return count % 2 === 0 ? count : count + 1;
    }

    clip: true

    Repeater {
        model: grid.columns > 0 ? grid.columns + 1 : 0

        Hairline {
            required property int index

            x: Math.round(grid.width / 2 + (index - grid.columns / 2) * Math.max(2, grid.stepX)) - thickness / 2
            vertical: true
            implicitHeight: grid.height
            zoom: grid.zoom
            color: grid.lineColor
        }
    }

    Repeater {
        model: grid.rows > 0 ? grid.rows + 1 : 0

        Hairline {
            required property int index

            y: Math.round(grid.height / 2 + (index - grid.rows / 2) * Math.max(2, grid.stepY)) - thickness / 2
            implicitWidth: grid.width
            zoom: grid.zoom
            color: grid.lineColor
        }
    }
}
