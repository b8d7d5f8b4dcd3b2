import QtQuick

// The message list: an icon while there is something to read, and the list that a click unfolds.
Item {
    id: messagesBox

    required property ListModel model
    property bool open: false

    implicitWidth: model.count > 0 ? DefFontSizeNormal_x2 : 0
    implicitHeight: DefFontSizeNormal_x2
    visible: model.count > 0
    onVisibleChanged: {
        if (!visible)
            open = false;
    }

    Connections {
        target: WebcamGlobal

        function onGlobalDismiss() {
            messagesBox.open = false;
        }
    }

    IconButton {
        id: button

        anchors.fill: parent
        icon: messagesBox.model.count > 0
              ? "svgicons/" + WebcamGlobal.stringIconName(messagesBox.model.get(0).type) + ".svg" : ""
        toggled: messagesBox.open
        toolTip: qsTr("Messages")
        onClicked: messagesBox.open = !messagesBox.open
    }

    Rectangle {
        id: list

        readonly property int fullHeight: Math.min(600, content.contentHeight + cleanRow.height + 3 * DefFontSizeNormal_Pltr)

        anchors.top: button.bottom
        anchors.topMargin: DefFontSizeNano
        anchors.right: button.right
        width: 26 * DefFontSizeNormal
        height: messagesBox.open ? fullHeight : 0
        visible: height > 0
        clip: true
        radius: globalCorner
        color: GlobalDarkestColor
        border.width: messagesBox.open ? 1 : 0
        border.color: GlobalButtonColor

        Behavior on height {
            NumberAnimation {
                duration: 300
                easing.type: Easing.OutCubic
            }
        }

        ListView {
            id: content

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: cleanRow.top
            anchors.margins: DefFontSizeNormal_TwoThirds
            clip: true
            spacing: DefFontSizeNano
            model: messagesBox.model
            delegate: Row {
                id: entry

                required property int type
                required property string text

                width: content.width
                spacing: DefFontSizeMicro

                Image {
                    width: DefFontSizeNormal_Pltr
                    height: width
                    sourceSize: Qt.size(width, height)
                    source: "svgicons/" + WebcamGlobal.stringIconName(entry.type) + ".svg"
                }

                TextLabel {
                    width: parent.width - DefFontSizeNormal_x2
                    text: entry.text
                    wrapMode: Text.Wrap
                    small: true
                }
            }
        }

        Scrollbar {
            anchors.right: parent.right
            anchors.top: content.top
            anchors.bottom: content.bottom
            flickable: content
        }

        Item {
            id: cleanRow

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: DefFontSizeNormal_TwoThirds
            height: DefFontSizeNormal_x2

            TextButton {
                anchors.right: parent.right
                text: qsTr("Clean messages")
                onClicked: messagesBox.model.clear()
            }
        }
    }
}
