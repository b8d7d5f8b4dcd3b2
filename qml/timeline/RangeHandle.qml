import QtQuick
import Progress 1.0

// A handle of the bar with its number: for the position in the middle of its place, for the ends of the range
// beside it. By mouse, and by the arrow keys, PageUp, PageDown, Home and End.
Item {
    id: handle

    required property Progress progress
    // Progress.HandlerCurrent, HandlerRangeStart or HandlerRangeEnd.
    required property int handler
    // -1 left of its place, 1 right of it, 0 over it.
    property int side: 0
    property int lineY: 0
    property string text: ""
    property string toolTip: ""
    property int lowest: 0
    property int highest: 0
    property bool held: false
    readonly property bool isCurrent: handler === Progress.HandlerCurrent
    readonly property real place: progress.x + (isCurrent ? progress.currentX
                                  : handler === Progress.HandlerRangeStart ? progress.rangeStartX
                                                                           : progress.rangeEndX)
    readonly property int value: isCurrent ? progress.current
                                 : handler === Progress.HandlerRangeStart ? progress.rangeStart : progress.rangeEnd

    signal grabbed()
    signal moved(int value)

    // To the frame nearest to a pixel of the bar.
    function moveTo(x) {
        if (progress.width > 0)
            setValue(Math.round(x * progress.total / progress.width));
    }

    function setValue(wanted) {
        const value = Math.max(lowest, Math.min(highest, wanted));
        if (value === handle.value)
            return;
        if (isCurrent)
            progress.current = value;
        else if (handler === Progress.HandlerRangeStart)
            progress.rangeStart = value;
        else
            progress.rangeEnd = value;
        handle.moved(value);
    }

    function stepBy(frames) {
        handle.grabbed();
        setValue(value + frames);
    }

    x: Math.round(Math.max(0, Math.min(parent.width - width,
                                       side < 0 ? place - width + 1 : side > 0 ? place : place - width / 2)))
    y: isCurrent ? 0 : parent.height - height
    width: Math.ceil(label.implicitWidth) + DefFontSizeMicro
    activeFocusOnTab: visible
    Accessible.role: Accessible.Slider
    Accessible.name: toolTip
    Accessible.description: text
    Accessible.focusable: true
    Accessible.onIncreaseAction: handle.stepBy(1)
    Accessible.onDecreaseAction: handle.stepBy(-1)
    Keys.onPressed: event => {
        const steps = { [Qt.Key_Left]: -1, [Qt.Key_Right]: 1, [Qt.Key_PageUp]: -10, [Qt.Key_PageDown]: 10,
                        [Qt.Key_Home]: lowest - value, [Qt.Key_End]: highest - value };
        event.accepted = event.key in steps;
        if (event.accepted)
            stepBy(steps[event.key]);
    }

    Rectangle {
        readonly property int lineEnd: handle.isCurrent ? handle.lineY + 3 : handle.height

        x: Math.round(handle.place - handle.x) - (handle.side < 0 ? 0 : 1)
        y: handle.isCurrent ? 0 : handle.lineY - handle.y
        width: 2
        height: lineEnd - y
        color: handle.isCurrent ? Theme.text : Theme.active
    }

    Rectangle {
        anchors.fill: parent
        anchors.topMargin: handle.isCurrent ? 0 : 3
        anchors.bottomMargin: handle.isCurrent ? 1 : 0
        radius: Theme.corner
        color: handle.held ? Theme.buttonPressed : hover.hovered ? Theme.buttonHovered : Theme.button
        border.width: 1
        border.color: handle.isCurrent ? Theme.text : Theme.active

        TextLabel {
            id: label

            anchors.centerIn: parent
            font.pixelSize: Math.max(8, Math.min(DefFontSizeSmaler, handle.height - 4))
            color: handle.isCurrent ? Theme.text : Theme.active
            text: handle.text
            Accessible.ignored: true
        }
    }

    HoverTip {
        id: hover
    }

    MouseArea {
        property real grabOffset: 0

        anchors.fill: parent
        preventStealing: true
        cursorShape: Qt.SizeHorCursor
        onPressed: event => {
            handle.grabbed();
            grabOffset = mapToItem(handle.progress, event.x, 0).x - (handle.place - handle.progress.x);
            handle.held = true;
        }
        onPositionChanged: event => handle.moveTo(mapToItem(handle.progress, event.x, 0).x - grabOffset)
        onReleased: handle.held = false
        onCanceled: handle.held = false
    }

    FocusRing {
        visible: handle.activeFocus
    }
}
