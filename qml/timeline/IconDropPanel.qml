import QtQuick

// A square button that opens a panel; what is declared in it stands below each other there.
IconButton {
    id: button

    default property alias panelContent: column.data
    // Of the content.
    property real panelWidth: DefFontSizeNormal_x16
    readonly property bool opened: panel.opened

    function close() {
        panel.close();
    }

    toggled: panel.opened
    role: Accessible.ButtonMenu
    onClicked: {
        panel.toggle();
        if (panel.opened && button.activeFocus)
            panel.enter();
    }

    DropPanel {
        id: panel

        owner: button
        contentWidth: column.width
        contentHeight: column.implicitHeight

        Column {
            id: column

            width: button.panelWidth
            spacing: Theme.spacing
        }
    }
}
