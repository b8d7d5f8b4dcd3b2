import QtQuick

// A button whose words take several lines where one is too short.
ButtonBase {
    id: button

    property string text
    property string icon

    label: text
    implicitWidth: Math.ceil(words.implicitWidth) + words.x + Theme.padding
    implicitHeight: Math.max(Theme.controlHeight, words.height + 2 * DefFontSizePico)

    Icon {
        id: picture

        x: Theme.padding
        anchors.verticalCenter: parent.verticalCenter
        icon: button.icon
        size: Theme.smallIconSize
    }

    TextLabel {
        id: words

        x: Theme.padding + (button.icon !== "" ? picture.width + Theme.spacing : 0)
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, button.width - x - Theme.padding)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: button.text
        color: button.toggled ? Theme.active : Theme.text
        Accessible.ignored: true
    }
}
