import QtQuick

// What a part of a box is about.
TextLabel {
    width: parent ? parent.width : 0
    topPadding: DefFontSizePico
    dim: true
    wrapMode: Text.Wrap
    elide: Text.ElideNone
    Accessible.role: Accessible.Heading
}
