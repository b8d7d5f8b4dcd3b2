import QtQuick
import Progress 1.0
import RowBand 1.0

// Where the current frame stands in the film and what part of it plays, with what of it is in memory. The
// values belong to the owner: a drag or a key only asks for others, and while a handle is held it does not follow.
Item {
    id: control

    property int total: 0
    property int current: 0
    property int rangeStart: 0
    property int rangeEnd: 0
    property int startIndex: 0
    property real fps: 25
    property bool rangeVisible: false
    property var readyRuns: []
    property real readyPercent: 0
    readonly property string currentLabel: ruled.current + startIndex
    readonly property string startLabel: ruled.rangeStart + startIndex
    readonly property string endLabel: ruled.rangeEnd + startIndex
    readonly property bool dragging: currentHandle.held || startHandle.held || endHandle.held
    readonly property alias progress: ruled
    // The upper part belongs to the position, the lower one to the range.
    readonly property int upper: rangeVisible ? Math.ceil(height / 2) : height
    readonly property string toolTip: readyPercent > 0 ? qsTr("In memory: %1 %").arg(Math.round(readyPercent)) : ""

    signal grabbed()
    signal currentMoved(int value)
    signal rangeStartMoved(int value)
    signal rangeEndMoved(int value)

    Progress {
        id: ruled

        x: DefFontSizeNormal
        width: control.width - 2 * x
        height: control.height
        discrete: true
        total: control.total
    }

    Binding {
        target: ruled
        property: "current"
        value: control.current
        when: !currentHandle.held
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: ruled
        property: "rangeStart"
        value: control.rangeStart
        when: !startHandle.held
        restoreMode: Binding.RestoreNone
    }

    Binding {
        target: ruled
        property: "rangeEnd"
        value: control.rangeEnd
        when: !endHandle.held
        restoreMode: Binding.RestoreNone
    }

    ProgressRuler {
        id: ruler

        x: ruled.x
        width: ruled.width
        height: parent.height
        lineY: control.rangeVisible ? control.upper : Math.round(control.height / 2)
        total: control.total
        fps: control.fps
        rangeX: ruled.rangeStartX
        rangeWidth: ruled.rangeEndX - ruled.rangeStartX
        rangeVisible: control.rangeVisible
    }

    // A frame is as wide as the step from one to the next, and stands around its place on the line.
    RowBand {
        readonly property real cell: control.total > 0 ? ruled.width / control.total : ruled.width

        x: ruled.x - cell / 2
        y: ruler.lineY + ruler.lineHeight
        width: control.total > 0 ? ruled.width + cell : ruled.width
        height: 2
        rows: control.total + 1
        runs: control.readyRuns
        color: NoteColor
    }

    MouseArea {
        anchors.fill: ruled
        anchors.leftMargin: -ruled.x
        anchors.rightMargin: -ruled.x
        preventStealing: true
        onPressed: event => {
            control.grabbed();
            currentHandle.held = true;
            currentHandle.moveTo(mapToItem(ruled, event.x, 0).x);
        }
        onPositionChanged: event => currentHandle.moveTo(mapToItem(ruled, event.x, 0).x)
        onReleased: currentHandle.held = false
        onCanceled: currentHandle.held = false

        HoverHandler {
            id: hover

            onHoveredChanged: {
                if (hovered)
                    ToolTips.show(control);
                else
                    ToolTips.hide(control);
            }
        }
    }

    RangeHandle {
        id: startHandle

        visible: control.rangeVisible
        progress: ruled
        handler: Progress.HandlerRangeStart
        side: -1
        lineY: ruler.lineY
        height: control.height - control.upper
        text: control.startLabel
        toolTip: qsTr("First frame of the range")
        lowest: 0
        highest: ruled.rangeEnd
        onMoved: value => control.rangeStartMoved(value)
    }

    RangeHandle {
        id: endHandle

        visible: control.rangeVisible
        progress: ruled
        handler: Progress.HandlerRangeEnd
        side: 1
        lineY: ruler.lineY
        height: control.height - control.upper
        text: control.endLabel
        toolTip: qsTr("Last frame of the range")
        lowest: ruled.rangeStart
        highest: control.total
        onMoved: value => control.rangeEndMoved(value)
    }

    RangeHandle {
        id: currentHandle

        progress: ruled
        handler: Progress.HandlerCurrent
        side: 0
        lineY: ruler.lineY
        height: control.upper
        text: control.currentLabel
        toolTip: qsTr("Current frame")
        lowest: 0
        highest: control.total
        onGrabbed: control.grabbed()
        onMoved: value => control.currentMoved(value)
    }
}
