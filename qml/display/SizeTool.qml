import QtQuick

// How much of the room the picture of the Timing tab takes, and how opaque it is.
Column {
    id: sizeControl

    required property var size
    readonly property real labelWidth: DefFontSizeNormal_x6

    width: parent.width
    spacing: Theme.spacing

    SliderNew {
        width: parent.width
        label: qsTr("Width")
        labelWidth: sizeControl.labelWidth
        toolTip: qsTr("Part of the room's width")
        minimum: 10
        maximum: 100
        defaultValue: 80
        suffix: "%"
        value: Math.round(sizeControl.size.widthShare * 100)
        onMoved: value => sizeControl.size.setWidth(value / 100)
    }

    SliderNew {
        width: parent.width
        label: qsTr("Height")
        labelWidth: sizeControl.labelWidth
        toolTip: qsTr("Part of the room's height")
        minimum: 10
        maximum: 100
        defaultValue: 80
        suffix: "%"
        value: Math.round(sizeControl.size.heightShare * 100)
        onMoved: value => sizeControl.size.setHeight(value / 100)
    }

    SliderNew {
        width: parent.width
        label: qsTr("Opacity")
        labelWidth: sizeControl.labelWidth
        toolTip: qsTr("Opacity of the frame")
        defaultValue: 100
        suffix: "%"
        value: Math.round(WebcamGlobal.foregroundOpacity * 100)
        onMoved: value => WebcamGlobal.foregroundOpacity = value / 100
    }
}
