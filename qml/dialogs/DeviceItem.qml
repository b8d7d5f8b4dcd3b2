import QtQuick

// A device of the list: its icon, name, battery, and what is known of its pictures.
FocusScope {
    id: item

    required property string name
    required property int value
    required property string image
    required property string isize
    required property int battery
    property bool current: false
    property bool removable: false
    readonly property string pictures: [image, isize].filter(text => text !== "").join(" ")

    signal chosen()
    signal removed()

    implicitHeight: card.height

    ButtonBase {
        id: card

        objectName: "card"
        anchors.left: parent.left
        anchors.right: item.removable ? remove.left : parent.right
        anchors.rightMargin: item.removable ? Theme.spacing : 0
        height: Math.max(Theme.controlHeight, facts.height) + 2 * Theme.spacing
        focus: true
        toggled: item.current
        label: item.name
        toolTip: qsTr("Use this device")
        onClicked: item.chosen()

        Icon {
            id: picture

            x: Theme.padding
            anchors.verticalCenter: parent.verticalCenter
            icon: MainWindow.getIconByDeviceName(item.name)
        }

        Column {
            id: facts

            anchors.left: picture.right
            anchors.right: parent.right
            anchors.margins: Theme.padding
            anchors.verticalCenter: parent.verticalCenter
            spacing: DefFontSizePico

            TextLabel {
                width: parent.width
                text: item.name
                color: item.current ? Theme.active : Theme.text
                wrapMode: Text.Wrap
                elide: Text.ElideNone
            }

            TextLabel {
                width: parent.width
                small: true
                dim: true
                visible: item.pictures !== ""
                text: item.pictures
                wrapMode: Text.Wrap
            }

            ProgressLine {
                objectName: "battery"
                width: Math.min(implicitWidth, parent.width)
                visible: item.battery > 0
                label: qsTr("Battery")
                total: 100
                current: item.battery
            }
        }
    }

    IconButton {
        id: remove

        objectName: "remove"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: item.removable
        icon: "svgicons/trash.svg"
        toolTip: qsTr("Remove from the list; the file stays")
        onClicked: item.removed()
    }
}
