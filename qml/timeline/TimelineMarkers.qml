import QtQuick

// Over a frame: whether it is in the play range, and whether the range begins or ends with it.
Item {
    id: markers

    property int row: -1
    readonly property bool isFirst: row === FramesModel.timelineRangeStart
    readonly property bool isLast: row === FramesModel.timelineRangeEnd
    readonly property bool inRange: row >= FramesModel.timelineRangeStart && row <= FramesModel.timelineRangeEnd

    Rectangle {
        visible: markers.inRange
        width: parent.width
        height: 2
        color: activeColor
        opacity: 0.6
    }

    Rectangle {
        visible: markers.isFirst
        width: Math.max(2, Math.floor(markers.height / 5))
        height: parent.height
        color: activeColor
    }

    Rectangle {
        visible: markers.isLast
        anchors.right: parent.right
        width: Math.max(2, Math.floor(markers.height / 5))
        height: parent.height
        color: activeColor
    }
}
