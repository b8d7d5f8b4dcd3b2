import QtQuick

// One message of the background worker.
Item {
    id: message

    required property int type
    required property string text

    implicitHeight: Math.max(picture.height, words.height)

    Icon {
        id: picture

        icon: "svgicons/" + WebcamGlobal.stringIconName(message.type) + ".svg"
        size: Theme.smallIconSize
    }

    TextLabel {
        id: words

        anchors.left: picture.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        text: message.text
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
