import QtQuick

// A tool of the column beside the picture that opens a panel; what is declared in it stands below each other there.
IconButton {
    id: tool

    property string title: ""
    property real panelWidth: DefFontSizeNormal_x22
    readonly property alias opened: panel.opened
    readonly property real bodyWidth: Math.min(panelWidth, Window.width - 4 * Theme.padding - scrollBarW)
    default property alias panelContent: column.data

    label: title
    role: Accessible.ButtonMenu
    onClicked: {
        panel.toggle();
        if (panel.opened && tool.activeFocus)
            panel.enter();
    }

    function close() {
        panel.close();
    }

    // The corner says that there is more behind it.
    Canvas {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 2
        width: DefFontSizePico + 1
        height: width
        onPaint: {
            const context = getContext("2d");
            context.reset();
            context.fillStyle = Theme.dimText;
            context.moveTo(width, 0);
            context.lineTo(width, height);
            context.lineTo(0, height);
            context.fill();
        }
    }

    DropPanel {
        id: panel

        owner: tool
        beside: true
        // Beside what scrolls stands its bar.
        contentWidth: tool.bodyWidth + (contentHeight + 2 * margin > tool.Window.height ? scrollBarW : 0)
        contentHeight: column.implicitHeight

        Column {
            id: column

            width: tool.bodyWidth
            spacing: Theme.spacing

            TextLabel {
                width: parent.width
                text: tool.title
                color: controlsTextColor
                Accessible.role: Accessible.Heading
            }
        }
    }
}
