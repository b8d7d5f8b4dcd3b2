import QtQuick
import Zum 1.0

// The mouse on the strip: clicks, drags from one row to another, and the middle button that moves the strip.
MouseArea {
    id: selector

    required property var strip
    // Of a drag under way: where it began and where it is, -1 without one.
    property int startRow: -1
    property int endRow: -1
    readonly property bool selecting: WebcamGlobal.timelineInteractive
    readonly property bool dragging: startRow >= 0 && endRow >= 0 && startRow !== endRow
    readonly property int margin: DefFontSizeNormal_x2
    // -1 near the left edge, 1 near the right one.
    readonly property int pull: !dragging ? 0 : mouseX < margin ? -1 : mouseX > width - margin ? 1 : 0
    property real pressedX: 0
    property real pressedContent: 0

    signal picked(int row, int modifiers)
    signal dragged(int from, int to, int modifiers)
    signal contextWanted(int row, real x, real y)

    // A place beside the frames counts as the nearest of them.
    function nearestRow(x) {
        const row = strip.rowAt(Math.max(0, Math.min(width - 1, x)));
        return row >= 0 ? row : strip.flickable.count - 1;
    }

    function follow(x) {
        if (startRow >= 0)
            endRow = nearestRow(x);
    }

    function forget() {
        startRow = -1;
        endRow = -1;
    }

    acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
    preventStealing: true
    cursorShape: pressedButtons & Qt.MiddleButton ? Qt.ClosedHandCursor
                 : dragging && !selecting ? Qt.DragMoveCursor : Qt.ArrowCursor
    onPressed: event => {
        FocusHome.commitEditing();
        pressedX = event.x;
        pressedContent = strip.flickable.contentX - strip.flickable.originX;
        if (event.button === Qt.MiddleButton)
            strip.handMoves(true);
        startRow = event.button === Qt.LeftButton ? strip.rowAt(event.x) : -1;
        endRow = startRow;
    }
    onPositionChanged: event => {
        if (pressedButtons & Qt.MiddleButton)
            strip.scrollTo(pressedContent - (event.x - pressedX));
        else
            follow(event.x);
    }
    onReleased: event => {
        strip.handMoves(false);
        if (event.button === Qt.RightButton) {
            const row = strip.rowAt(event.x);
            if (row >= 0)
                contextWanted(row, event.x, event.y);
        }
        if (event.button !== Qt.LeftButton || startRow < 0)
            return;
        follow(event.x);
        const from = startRow;
        const to = endRow;
        forget();
        if (from === to)
            picked(from, event.modifiers);
        else
            dragged(from, to, event.modifiers);
    }
    onCanceled: {
        strip.handMoves(false);
        forget();
    }

    Timer {
        interval: 40
        repeat: true
        running: selector.pull !== 0
        onTriggered: {
            selector.strip.scrollBy(selector.pull * selector.strip.frameWidth / 2);
            selector.follow(selector.mouseX);
        }
    }

    // The rows that a drag would select.
    Rectangle {
        readonly property int first: Math.min(selector.startRow, selector.endRow)
        readonly property int last: Math.max(selector.startRow, selector.endRow)

        visible: selector.dragging && selector.selecting
        x: visible ? selector.strip.placeOf(first) : 0
        width: visible ? (last - first + 1) * selector.strip.frameWidth : 0
        height: selector.height
        color: activeColor
        opacity: 0.2
    }

    // Where a drag would put what it moves: behind the row under the pointer.
    Rectangle {
        visible: selector.dragging && !selector.selecting
        x: visible ? selector.strip.placeOf(selector.endRow + 1) - width / 2 : 0
        width: DefFontSizePico
        height: selector.height
        color: activeColor
    }
}
