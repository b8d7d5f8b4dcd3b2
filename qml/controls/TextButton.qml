import QtQuick

// A button with a text, and a picture before it when there is one. Grows with its text.
ButtonBase {
    id: button

    property string text: ""
    property string icon: ""
    property string trailingIcon: ""
    property bool small: false

    label: text !== "" ? text : toolTip
    implicitWidth: Math.ceil(row.wanted) + 2 * Theme.padding

    Row {
        id: row

        readonly property real gap: button.icon !== "" && button.text !== "" ? Theme.spacing : 0
        readonly property real endGap: button.trailingIcon !== "" ? DefFontSizePico : 0
        readonly property real pictures: picture.width + gap + endGap + trailing.width
        readonly property real wanted: pictures + caption.implicitWidth

        anchors.centerIn: parent

        Icon {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            icon: button.icon
            size: Theme.smallIconSize
        }

        Item {
            width: row.gap
            height: 1
        }

        TextLabel {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth),
                            Math.max(0, button.width - 2 * DefFontSizePico - row.pictures))
            text: button.text
            small: button.small
            color: button.toggled ? Theme.active : Theme.text
            Accessible.ignored: true
        }

        Item {
            width: row.endGap
            height: 1
        }

        Icon {
            id: trailing

            anchors.verticalCenter: parent.verticalCenter
            icon: button.trailingIcon
            size: DefFontSizeNormal
        }
    }
}
