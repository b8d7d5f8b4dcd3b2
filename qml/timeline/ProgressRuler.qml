import QtQuick

// The line of the bar: its ticks, and the part of it that plays.
Item {
    id: ruler

    property int lineY: 0
    property int total: 0
    property real fps: 25
    property real rangeX: 0
    property real rangeWidth: 0
    property bool rangeVisible: false
    readonly property int lineHeight: 3
    // Frames from tick to tick: one or a few, then whole seconds, so that they stand clear of each other.
    readonly property real pixelsPerFrame: total > 0 ? width / total : 0
    readonly property int tickStep: stepFor(pixelsPerFrame)
    readonly property int closest: 3 * DefFontSizeMicro

    function stepFor(pixels) {
        if (pixels <= 0)
            return 0;
        const second = Math.max(1, Math.round(fps));
        const steps = [1, 5, 10].filter(step => step < second).concat(
                    [1, 2, 5, 10, 30, 60, 120, 300, 600, 1800, 3600].map(seconds => seconds * second));
        return steps.find(step => step * pixels >= closest) ?? total;
    }

    Rectangle {
        y: ruler.lineY
        width: parent.width
        height: ruler.lineHeight
        color: Theme.button
    }

    Rectangle {
        visible: ruler.rangeVisible
        x: ruler.rangeX
        y: ruler.lineY
        width: Math.max(1, ruler.rangeWidth)
        height: ruler.lineHeight
        color: Theme.active
        opacity: 0.7
    }

    Repeater {
        // As many as could ever stand there, so that a frame more or less makes none anew.
        model: Math.ceil(ruler.width / ruler.closest) + 1
        delegate: Rectangle {
            required property int index
            readonly property int frame: index * ruler.tickStep

            visible: ruler.tickStep > 0 && frame <= ruler.total
            x: Math.round(frame * ruler.pixelsPerFrame)
            y: ruler.lineY - height
            width: 1
            height: DefFontSizePico
            color: Theme.dimText
            opacity: 0.5
        }
    }
}
