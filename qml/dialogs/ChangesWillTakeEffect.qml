import QtQuick

// Says that what was just chosen waits for the next start.
Item {
    id: note

    implicitHeight: words.height + DefFontSizePico
    Accessible.role: Accessible.AlertMessage
    Accessible.name: words.text

    Icon {
        id: picture

        icon: "svgicons/info.svg"
        size: Theme.smallIconSize
    }

    TextLabel {
        id: words

        anchors.left: picture.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        color: NoteColor
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: qsTr("Changes will take effect at the next start")
        Accessible.ignored: true
    }
}
