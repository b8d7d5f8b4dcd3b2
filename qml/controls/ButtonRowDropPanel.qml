import QtQuick

// A button that opens a row of buttons; a click on one of those declared in it closes the row again.
DropButton {
    id: button

    default property alias panelContent: row.data

    panelContentWidth: row.implicitWidth
    panelContentHeight: row.implicitHeight
    Component.onCompleted: button.closeOnClicks()

    function closeOnClicks() {
        for (let i = 0; i < row.children.length; ++i) {
            if (row.children[i].clicked)
                row.children[i].clicked.connect(button.close)
        }
    }

    Row {
        id: row

        spacing: Theme.spacing
    }
}
