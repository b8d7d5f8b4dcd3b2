import QtQuick

// Says that a picture was cut to the view: the outer rectangle stands for the whole, the inner one for what is left.
Item {
    id: sign

    property real zoom: 1
    // What the cut has left of the width, 0 to 1.
    property real share: 1
    property real viewSize: 0
    readonly property real margin: DefFontSizeMicro / zoom
    readonly property string toolTip: qsTr("The frame size is larger than the camera resolution")

    x: margin
    y: margin
    z: 1
    width: viewSize / 12
    height: width * 0.66
    Accessible.role: Accessible.Indicator
    Accessible.name: toolTip

    HoverTip {}

    Rectangle {
        anchors.fill: parent
        color: "#80000000"
        border.width: 2 / sign.zoom
        border.color: Theme.warning
    }

    Rectangle {
        anchors.centerIn: parent
        width: sign.width * sign.share
        height: sign.height * sign.share
        color: "transparent"
        border.width: 1 / sign.zoom
        border.color: Theme.text
    }

    Icon {
        anchors.centerIn: parent
        icon: "svgicons/warn.svg"
        size: Math.max(8, sign.height * 0.6)
    }
}
