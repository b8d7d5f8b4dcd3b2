import QtQuick

// A square of colours with a mark that mouse and arrow keys move. What the two directions mean is drawn by the
// user of it; `markX` and `markY` run from 0 to 1, left to right and top to bottom.
Item {
    id: field

    property real markX: 0
    property real markY: 0
    property bool twoWay: true
    property string label: ""
    property string toolTip: ""
    default property alias content: ground.data

    signal moved(real x, real y)

    activeFocusOnTab: enabled
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.Slider
    Accessible.name: label
    Accessible.description: toolTip
    Accessible.focusable: true

    Keys.onLeftPressed: field.moveTo(field.markX - 0.01, field.markY)
    Keys.onRightPressed: field.moveTo(field.markX + 0.01, field.markY)
    Keys.onUpPressed: field.twoWay ? field.moveTo(field.markX, field.markY - 0.01)
                                   : field.moveTo(field.markX + 0.01, field.markY)
    Keys.onDownPressed: field.twoWay ? field.moveTo(field.markX, field.markY + 0.01)
                                     : field.moveTo(field.markX - 0.01, field.markY)

    function moveTo(x, y) {
        field.moved(Math.max(0, Math.min(1, x)), Math.max(0, Math.min(1, y)))
    }

    HoverTip {}

    Item {
        id: ground

        anchors.fill: parent
    }

    Rectangle {
        x: Math.round(field.markX * field.width - width / 2)
        y: field.twoWay ? Math.round(field.markY * field.height - height / 2) : -1
        width: field.twoWay ? DefFontSizeNormal_TwoThirds : DefFontSizeNano + 2
        height: field.twoWay ? width : field.height + 2
        radius: field.twoWay ? width / 2 : Theme.corner
        color: "transparent"
        border.width: 2
        border.color: "#ffffff"

        Rectangle {
            anchors.fill: parent
            anchors.margins: -1
            radius: field.twoWay ? width / 2 : Theme.corner
            color: "transparent"
            border.width: 1
            border.color: "#202020"
        }
    }

    MouseArea {
        anchors.fill: parent
        preventStealing: true
        onPressed: event => field.moveTo(event.x / width, event.y / height)
        onPositionChanged: event => field.moveTo(event.x / width, event.y / height)
    }

    FocusRing { visible: field.activeFocus }
}
