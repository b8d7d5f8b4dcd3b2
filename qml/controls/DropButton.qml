import QtQuick

// A button that opens a panel over the window. What is declared in it is the panel's content.
TextButton {
    id: button

    default property alias panelBody: panel.content
    property alias panelContentWidth: panel.contentWidth
    property alias panelContentHeight: panel.contentHeight
    readonly property bool opened: panel.opened

    toggled: panel.opened
    role: Accessible.ButtonMenu
    trailingIcon: text !== "" ? "svgicons/drop-down.svg" : ""
    onClicked: {
        panel.toggle()
        if (panel.opened && button.activeFocus)
            panel.enter()
    }

    function open() {
        panel.open()
    }

    function close() {
        panel.close()
    }

    DropPanel {
        id: panel

        owner: button
    }
}
