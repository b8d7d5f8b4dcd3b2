import QtQuick
import TimelineIndicator 1.0

// The whole film in a thin line: holds at the top, hidden frames below them, selected ones at the bottom.
Rectangle {
    id: row

    property string toolTip: qsTr("Holds, hidden frames and the selection over the whole timeline")

    color: Theme.well
    Accessible.role: Accessible.Graphic
    Accessible.name: toolTip

    TimelineIndicator {
        anchors.fill: parent
        model: FramesModel
        holdColor: staticFrameColor
        selectedColor: "#9A0101"
        hiddenColor: "#93e308"
    }

    HoverTip {}
}
