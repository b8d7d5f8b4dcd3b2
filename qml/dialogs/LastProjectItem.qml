import QtQuick

// A recent project: its picture and what is known of it. One whose file is gone can only be removed.
FocusScope {
    id: item

    required property string name
    required property string path
    required property int frames
    required property string frameSize
    required property string date
    required property string time
    required property string thumbnail
    required property bool available
    property bool current: false
    readonly property string folder: path.substring(0, path.lastIndexOf("/"))
    // The button that removes stands beside the words, or below them in a narrow dialog.
    readonly property bool stacked: width < 2 * DefFontSizeNormal_x15
    readonly property real removeRoom: available ? 0 : Theme.spacing + (stacked ? remove.height : remove.width)
    readonly property real shade: available ? 1 : 0.45
    readonly property real pictureWidth: Math.min(DefFontSizeNormal_x7, width / 4)

    signal chosen()
    signal removed()

    function focusItem(reason) {
        (available ? card : remove).forceActiveFocus(reason);
    }

    implicitHeight: card.height

    ButtonBase {
        id: card

        objectName: "card"
        anchors.left: parent.left
        anchors.right: parent.right
        height: Math.max(picture.height, facts.height) + 2 * Theme.spacing + (item.stacked ? item.removeRoom : 0)
        active: item.available
        toggled: item.current
        label: item.name
        toolTip: item.path
        onClicked: item.chosen()
    }

    Image {
        id: picture

        x: Theme.spacing
        y: Theme.spacing
        width: item.pictureWidth
        height: Math.round(width * 2 / 3)
        opacity: item.shade
        sourceSize: Qt.size(width, height)
        source: item.thumbnail
        fillMode: Image.PreserveAspectFit
        asynchronous: true
        Accessible.ignored: true
    }

    Column {
        id: facts

        anchors.left: picture.right
        anchors.leftMargin: Theme.padding
        anchors.right: parent.right
        anchors.rightMargin: Theme.padding + (item.stacked ? 0 : item.removeRoom)
        y: Theme.spacing
        spacing: DefFontSizePico

        TextLabel {
            width: parent.width
            opacity: item.shade
            text: item.name
            color: item.current ? Theme.active : Theme.text
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }

        TextLabel {
            width: parent.width
            opacity: item.shade
            small: true
            text: qsTranslate("LastProjects", "Frames: %1").arg(item.frames) + ", " + item.frameSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }

        TextLabel {
            width: parent.width
            opacity: item.shade
            small: true
            text: item.date + ", " + item.time
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }

        TextLabel {
            width: parent.width
            small: true
            dim: item.available
            color: item.available ? Theme.dimText : Theme.warning
            text: item.available ? item.folder
                                 : qsTranslate("LastProjects", "Not available:") + " " + item.path
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
    }

    DialogButton {
        id: remove

        objectName: "remove"
        visible: !item.available
        width: Math.min(implicitWidth, item.width / 2)
        anchors.right: parent.right
        anchors.rightMargin: Theme.spacing
        anchors.bottom: card.bottom
        anchors.bottomMargin: Theme.spacing
        icon: "svgicons/trash.svg"
        text: qsTranslate("LastProjects", "Remove")
        toolTip: qsTranslate("LastProjects", "Remove from the list")
        onClicked: item.removed()
    }
}
