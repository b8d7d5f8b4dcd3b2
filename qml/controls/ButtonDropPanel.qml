import QtQuick

// A button that opens a panel; what is declared in it stands below each other there.
DropButton {
    id: button

    default property alias panelContent: column.data
    property alias contentSpacing: column.spacing
    // Of the content; as wide as its widest control when 0.
    property real panelWidth: 0

    panelContentWidth: column.width
    panelContentHeight: column.implicitHeight

    Column {
        id: column

        width: button.panelWidth > 0 ? button.panelWidth : implicitWidth
        spacing: Theme.spacing
    }
}
