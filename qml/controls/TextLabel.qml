import QtQuick

// One line of text, cut with an ellipsis when too long; set `wrapMode` for several lines.
Text {
    id: label

    property bool small: false
    property bool dim: false

    textFormat: Text.PlainText
    renderType: Text.NativeRendering
    font.pixelSize: small ? DefFontSizeSmaler : DefFontSizeNormal
    color: dim ? Theme.dimText : Theme.text
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
