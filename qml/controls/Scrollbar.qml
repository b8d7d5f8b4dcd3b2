import QtQuick

// Shows and moves the visible part of a Flickable. Takes no room while everything fits.
Item {
    id: bar

    property Flickable flickable: null
    property bool vertical: true
    property string toolTip: ""
    readonly property real viewSize: !flickable ? 0 : vertical ? flickable.height : flickable.width
    readonly property real contentSize: !flickable ? 0 : vertical ? flickable.contentHeight : flickable.contentWidth
    readonly property real contentPosition: !flickable ? 0 : vertical ? flickable.contentY - flickable.originY
                                                                      : flickable.contentX - flickable.originX
    readonly property real trackSize: vertical ? height : width
    readonly property real handleSize: Math.round(Math.min(trackSize, Math.max(DefFontSizeNormal_x2,
                                                  trackSize * viewSize / Math.max(1, contentSize))))
    readonly property real handlePosition: Math.round(Math.max(0, Math.min(1, contentPosition
                                           / Math.max(1, contentSize - viewSize))) * (trackSize - handleSize))
    readonly property alias pressed: mouse.pressed
    readonly property bool needed: contentSize > viewSize + 0.5

    implicitWidth: needed ? scrollBarW : 0
    implicitHeight: needed ? scrollBarW : 0
    visible: needed
    activeFocusOnTab: needed
    Accessible.role: Accessible.ScrollBar
    Accessible.name: toolTip !== "" ? toolTip : qsTr("Scroll bar")
    Accessible.focusable: true

    Keys.onPressed: event => {
        const back = bar.vertical ? Qt.Key_Up : Qt.Key_Left
        const forth = bar.vertical ? Qt.Key_Down : Qt.Key_Right
        event.accepted = true
        if (event.key === back)
            bar.scrollBy(-DefFontSizeNormal_x2)
        else if (event.key === forth)
            bar.scrollBy(DefFontSizeNormal_x2)
        else if (event.key === Qt.Key_PageUp)
            bar.scrollBy(-bar.viewSize)
        else if (event.key === Qt.Key_PageDown)
            bar.scrollBy(bar.viewSize)
        else if (event.key === Qt.Key_Home)
            bar.scrollTo(0)
        else if (event.key === Qt.Key_End)
            bar.scrollTo(bar.contentSize)
        else
            event.accepted = false
    }

    function scrollBy(pixels) {
        bar.scrollTo(bar.contentPosition + pixels)
    }

    function scrollTo(position) {
        const limited = Math.round(Math.max(0, Math.min(bar.contentSize - bar.viewSize, position)))
        if (bar.vertical)
            bar.flickable.contentY = bar.flickable.originY + limited
        else
            bar.flickable.contentX = bar.flickable.originX + limited
    }

    HoverTip { id: hover }

    Rectangle {
        anchors.fill: parent
        radius: Theme.corner
        color: Theme.well
    }

    Rectangle {
        id: handle

        x: bar.vertical ? 2 : bar.handlePosition
        y: bar.vertical ? bar.handlePosition : 2
        width: bar.vertical ? bar.width - 4 : bar.handleSize
        height: bar.vertical ? bar.handleSize : bar.height - 4
        radius: Theme.corner
        color: mouse.pressed ? Theme.active : hover.hovered ? "#7a7a7a" : "#5c5c5c"
    }

    MouseArea {
        id: mouse

        property real grabOffset: 0

        anchors.fill: parent
        preventStealing: true
        onPressed: event => {
            const at = (bar.vertical ? event.y : event.x) - bar.handlePosition
            const onHandle = at >= 0 && at <= bar.handleSize
            mouse.grabOffset = onHandle ? at : bar.handleSize / 2
            if (!onHandle)
                mouse.drag(event)
        }
        onPositionChanged: event => mouse.drag(event)

        function drag(event) {
            const travel = bar.trackSize - bar.handleSize
            const at = (bar.vertical ? event.y : event.x) - mouse.grabOffset
            if (travel > 0)
                bar.scrollTo(at / travel * (bar.contentSize - bar.viewSize))
        }
    }

    FocusRing { visible: bar.activeFocus }
}
