import QtQuick

// At the ends of the strip, where there are more frames: a page back or on.
Item {
    id: arrows

    required property var strip
    readonly property var view: strip.flickable
    readonly property real position: view.contentX - view.originX
    readonly property int side: Math.round(1.5 * strip.unit)
    readonly property real page: Math.max(strip.frameWidth, view.width - 2 * strip.frameWidth)

    IconButton {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: arrows.side
        height: Math.min(2 * arrows.side, parent.height)
        opacity: hovered ? 1 : 0.75
        visible: arrows.position > 1
        icon: "svgicons/chevron-left.svg"
        toolTip: qsTr("Earlier frames")
        autoRepeat: true
        onClicked: arrows.strip.scrollBy(-arrows.page)
    }

    IconButton {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: arrows.side
        height: Math.min(2 * arrows.side, parent.height)
        opacity: hovered ? 1 : 0.75
        visible: arrows.position < arrows.view.contentWidth - arrows.view.width - 1
        icon: "svgicons/chevron-right.svg"
        toolTip: qsTr("Later frames")
        autoRepeat: true
        onClicked: arrows.strip.scrollBy(arrows.page)
    }
}
