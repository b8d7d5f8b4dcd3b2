import QtQuick

// A button with a text, and a picture before it when there is one. Grows with its text.
ButtonBase {
    id: button

    property string text: ""
    property string icon: ""
    property bool small: false

    label: text !== "" ? text : toolTip
    implicitWidth: Math.ceil(row.wanted) + 2 * Theme.padding

    Row {
        id: row

        readonly property real gap: button.icon !== "" && button.text !== "" ? Theme.spacing : 0
        readonly property real wanted: picture.width + gap + caption.implicitWidth

        anchors.centerIn: parent
        spacing: gap

        Icon {
            id: picture

            anchors.verticalCenter: parent.verticalCenter
            icon: button.icon
            size: Theme.smallIconSize
        }

        TextLabel {
            id: caption

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth),
                            Math.max(0, button.width - 2 * DefFontSizePico - picture.width - row.gap))
            text: button.text
            small: button.small
            color: button.toggled ? Theme.active : Theme.text
            Accessible.ignored: true
        }
    }
}
