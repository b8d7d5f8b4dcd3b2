import QtQuick

// Where action and titles are safe from the edges of a screen: two outlines, and a tick inwards from the middle of
// each side.
Item {
    id: areas

    property real zoom: 1
    readonly property real actionX: width * 0.035
    readonly property real actionY: height * 0.035
    readonly property real titleX: width * 0.05
    readonly property real titleY: height * 0.05
    readonly property color lineColor: "#00FF00"

    HairlineFrame {
        anchors.fill: parent
        anchors.leftMargin: areas.actionX
        anchors.rightMargin: areas.actionX
        anchors.topMargin: areas.actionY
        anchors.bottomMargin: areas.actionY
        zoom: areas.zoom
        color: areas.lineColor
    }

    HairlineFrame {
        anchors.fill: parent
        anchors.leftMargin: areas.titleX
        anchors.rightMargin: areas.titleX
        anchors.topMargin: areas.titleY
        anchors.bottomMargin: areas.titleY
        zoom: areas.zoom
        color: areas.lineColor
    }

    Repeater {
        model: 2

        Hairline {
            required property int index

            x: index === 0 ? areas.actionX : areas.width - areas.actionX - width
            y: (areas.height - thickness) / 2
            implicitWidth: areas.actionX
            zoom: areas.zoom
            color: areas.lineColor
        }
    }

    Repeater {
        model: 2

        Hairline {
            required property int index

            x: (areas.width - thickness) / 2
            y: index === 0 ? areas.actionY : areas.height - areas.actionY - height
            vertical: true
            implicitHeight: areas.actionY
            zoom: areas.zoom
            color: areas.lineColor
        }
    }
}
