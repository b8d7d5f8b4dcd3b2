import QtQuick

// A dialog's box with its heading.
DialogPane {
    id: box

    property string heading
    // A heading that is too long, or takes too much of a low window, scrolls with the content.
    readonly property bool headingFits: headingMetrics.advanceWidth <= width - 2 * margin
                                        && roomY > DefFontSizeNormal_x16
    // How high a list may get and still be seen whole.
    readonly property real listRoom: roomY - 2 * margin - headHeight - footHeight

    title: headingFits ? heading : ""
    Accessible.name: heading
    Keys.forwardTo: keys.shortcuts

    TextMetrics {
        id: headingMetrics

        font.pixelSize: DefFontSizeBigger
        text: box.heading
    }

    DialogKeys {
        id: keys

        parent: box
        dialog: box
    }

    TextLabel {
        width: parent.width
        visible: !box.headingFits
        font.pixelSize: DefFontSizeBigger
        text: box.heading
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        Accessible.role: Accessible.Heading
    }
}
