import QtQuick

// A column in the middle of a view, no wider than what reads well. It scrolls where there is too little room.
Item {
    id: view

    property real widest: DefFontSizeNormal_x22 + DefFontSizeNormal_x8
    property alias spacing: column.spacing
    default property alias content: column.data

    implicitWidth: DefFontSizeNormal_x22
    implicitHeight: column.implicitHeight + 2 * DefFontSizeNormal

    Flickable {
        id: flick

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.padding
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        clip: interactive

        Column {
            id: column

            x: Math.round((flick.width - width) / 2)
            y: Math.max(Theme.padding, Math.round((flick.height - height) / 2))
            width: Math.min(flick.width - 2 * Theme.padding - 2 * bar.implicitWidth, view.widest)
            spacing: Theme.padding
        }
    }

    FocusReveal {
        flickable: flick
        bar: bar
        holder: flick.contentItem
    }

    Scrollbar {
        id: bar

        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        flickable: flick
    }
}
