import QtQuick

// A box with a text beside it. `checked` belongs to the owner: a click only asks for the other state.
ButtonBase {
    id: check

    property string text: ""
    property bool checked: false

    signal switched(bool checked)

    label: text !== "" ? text : toolTip
    role: Accessible.CheckBox
    toggled: checked
    framed: false
    ground: hovered ? Theme.buttonHovered : "transparent"
    implicitWidth: box.width + (text !== "" ? Theme.spacing + Math.ceil(caption.implicitWidth) : 0)
                   + 2 * DefFontSizePico

    onClicked: check.switched(!check.checked)

    Rectangle {
        id: box

        x: DefFontSizePico
        anchors.verticalCenter: parent.verticalCenter
        width: DefFontSizeNormal + 2
        height: width
        radius: Theme.corner
        color: Theme.button
        border.width: 1
        border.color: check.checked ? Theme.active : check.hovered ? Theme.dimText : "#6a6a6a"

        Rectangle {
            anchors.fill: parent
            anchors.margins: DefFontSizePico
            radius: 1
            color: Theme.active
            visible: check.checked
        }
    }

    TextLabel {
        id: caption

        anchors.left: box.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: check.text
        Accessible.ignored: true
    }
}
