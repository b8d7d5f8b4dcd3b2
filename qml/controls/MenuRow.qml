import QtQuick

// One command of a menu: picture, text and its shortcut.
Rectangle {
    id: row

    property string text: ""
    property string icon: ""
    property string shortcut: ""
    property bool active: true
    property bool current: false

    signal entered()
    signal clicked()

    implicitHeight: Theme.controlHeight
    radius: Theme.corner
    color: current && active ? Theme.buttonHovered : "transparent"
    enabled: active
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.description: shortcut
    Accessible.onPressAction: row.clicked()

    HoverHandler {
        onHoveredChanged: if (hovered) row.entered()
    }

    Icon {
        x: Theme.padding
        anchors.verticalCenter: parent.verticalCenter
        icon: row.icon
        size: Theme.smallIconSize
        opacity: row.enabled ? 1 : Theme.disabledOpacity
    }

    TextLabel {
        anchors.left: parent.left
        anchors.leftMargin: 2 * Theme.padding + Theme.smallIconSize
        anchors.right: keys.left
        height: parent.height
        text: row.text
        opacity: row.enabled ? 1 : Theme.disabledOpacity
        Accessible.ignored: true
    }

    TextLabel {
        id: keys

        anchors.right: parent.right
        anchors.rightMargin: Theme.padding
        height: parent.height
        text: row.shortcut
        dim: true
        opacity: row.enabled ? 1 : Theme.disabledOpacity
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        onClicked: row.clicked()
    }
}
