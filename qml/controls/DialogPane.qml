import QtQuick

// The box of a dialog: a title, the content below each other, and a row of buttons. The content scrolls where
// the window has no room for it. The tallest and widest it may get follows from its window.
FocusScope {
    id: dialog

    property string title: ""
    default property alias content: column.data
    property alias buttons: buttonRow.data
    property real contentSpacing: Theme.padding
    readonly property real roomX: Window.window ? Window.width - DefFontSizeNormal_x2 : DialogWidth
    readonly property real roomY: Window.window ? Window.height - DefFontSizeNormal_x2 : DefFontSizeNormal_x22
    readonly property real margin: DefFontSizeNormal
    readonly property real headHeight: title !== "" ? Theme.controlHeight + Theme.spacing : 0
    readonly property real footHeight: buttonRow.wanted > 0 ? buttonRow.height + margin : 0

    implicitWidth: Math.max(0, Math.min(DialogWidth, roomX))
    implicitHeight: Math.max(0, Math.min(Math.ceil(2 * margin + headHeight + column.height + footHeight), roomY))
    Accessible.role: Accessible.Dialog
    Accessible.name: title

    Rectangle {
        anchors.fill: parent
        radius: Theme.corner
        color: Theme.panel
    }

    // Clicks beside the controls are no clicks on what lies behind the dialog.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onWheel: event => { event.accepted = true }
    }

    TextLabel {
        x: dialog.margin
        y: dialog.margin
        width: parent.width - 2 * dialog.margin
        height: Theme.controlHeight
        font.pixelSize: DefFontSizeBigger
        text: dialog.title
        visible: text !== ""
        Accessible.role: Accessible.Heading
    }

    Flickable {
        id: view

        x: dialog.margin
        y: dialog.margin + dialog.headHeight
        width: parent.width - 2 * dialog.margin - (bar.needed ? bar.width + Theme.spacing : 0)
        height: Math.max(0, parent.height - y - dialog.margin - dialog.footHeight)
        clip: bar.needed
        contentWidth: width
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        interactive: bar.needed

        Column {
            id: column

            width: view.width
            spacing: dialog.contentSpacing
        }
    }

    Scrollbar {
        id: bar

        anchors.right: parent.right
        anchors.rightMargin: Theme.spacing
        y: view.y
        height: view.height
        flickable: view
    }

    Flow {
        id: buttonRow

        readonly property real wanted: wantedWidth(children)

        anchors.right: parent.right
        anchors.rightMargin: dialog.margin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: dialog.margin
        width: Math.min(wanted, dialog.width - 2 * dialog.margin)
        spacing: Theme.spacing

        function wantedWidth(items) {
            let sum = 0
            for (let i = 0; i < items.length; ++i) {
                if (items[i].visible)
                    sum += items[i].width + (sum > 0 ? buttonRow.spacing : 0)
            }
            return sum
        }
    }

    function reveal(item) {
        revealing.show(item)
    }

    FocusReveal {
        id: revealing

        flickable: view
        bar: bar
        holder: column
    }
}
