import QtQuick

// One of the helper lines: whether it shows and how opaque. The values belong to the owner.
Item {
    id: row

    property string text: ""
    property string toolTip: ""
    property bool checked: false
    property real lineOpacity: 0.8
    property bool hasOpacity: true

    signal switched(bool checked)
    signal opacityMoved(real value)

    width: parent.width
    implicitHeight: Theme.controlHeight

    CheckButton {
        id: check

        width: row.hasOpacity ? Math.round(row.width * 0.52) : row.width
        text: row.text
        toolTip: row.toolTip
        checked: row.checked
        onSwitched: checked => row.switched(checked)
    }

    SliderNew {
        anchors.left: check.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        visible: row.hasOpacity
        active: row.checked
        suffix: "%"
        value: Math.round(row.lineOpacity * 100)
        defaultValue: 80
        toolTip: qsTr("Opacity") + ": " + row.text
        onMoved: value => row.opacityMoved(value / 100)
    }
}
