import QtQuick

// A check box whose words take several lines where one is too short.
CheckButton {
    id: check

    property string caption

    label: caption
    implicitWidth: words.x + Math.ceil(words.implicitWidth) + DefFontSizePico
    implicitHeight: Math.max(Theme.controlHeight, words.height)

    TextLabel {
        id: words

        x: 2 + DefFontSizePico + DefFontSizeNormal + Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, check.width - x - DefFontSizePico)
        text: check.caption
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.ignored: true
    }
}
