import QtQuick

// A panel over the window that belongs to a control: opens below it, or above where there is no room below.
// A click elsewhere only closes it; so do Escape and the window's globalDismiss.
FocusScope {
    id: panel

    // The control; it gets the keyboard back from a panel that was left with Escape.
    required property Item owner
    property alias box: frame
    default property alias content: holder.data
    property real contentWidth: 0
    property real contentHeight: 0
    // Opens at the right side of the control instead, for one of a column.
    property bool beside: false
    readonly property bool opened: visible
    readonly property real margin: Theme.padding

    parent: owner.Window.contentItem
    anchors.fill: parent
    z: 2500
    visible: false

    Keys.onEscapePressed: {
        panel.close()
        panel.owner.forceActiveFocus()
    }

    function open() {
        ToolTips.hide(panel.owner)
        panel.visible = true
        panel.place()
    }

    function close() {
        panel.visible = false
    }

    function toggle() {
        if (panel.visible)
            panel.close()
        else
            panel.open()
    }

    // With the keyboard, the first control of the panel comes next.
    function enter() {
        const first = holder.nextItemInFocusChain(true)
        if (first)
            first.forceActiveFocus(Qt.TabFocusReason)
    }

    function place() {
        if (!panel.visible || !panel.parent)
            return
        const corner = panel.owner.mapToItem(panel.parent, 0, 0)
        const below = corner.y + panel.owner.height + 1
        const above = corner.y - frame.height - 1
        const y = panel.beside ? corner.y : below + frame.height <= panel.height || above < 0 ? below : above
        const x = panel.beside ? corner.x + panel.owner.width + DefFontSizePico : corner.x
        frame.x = Math.round(Math.max(0, Math.min(panel.width - frame.width, x)))
        frame.y = Math.round(Math.max(0, Math.min(panel.height - frame.height, y)))
    }

    Connections {
        target: WebcamGlobal
        function onGlobalDismiss() { panel.close() }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: panel.close()
        onWheel: event => { event.accepted = true }
    }

    Rectangle {
        id: frame

        width: Math.min(panel.contentWidth + 2 * panel.margin, panel.width)
        height: Math.min(panel.contentHeight + 2 * panel.margin, panel.height)
        radius: Theme.corner
        color: Theme.panel
        border.width: 1
        border.color: Theme.line
        onWidthChanged: panel.place()
        onHeightChanged: panel.place()

        // The panel's own ground keeps clicks to itself.
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }

        Flickable {
            id: view

            anchors.fill: parent
            anchors.margins: panel.margin
            contentWidth: panel.contentWidth
            contentHeight: panel.contentHeight
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentHeight > height || contentWidth > width
            clip: interactive

            Item {
                id: holder

                width: panel.contentWidth
                height: panel.contentHeight
            }
        }

        Scrollbar {
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            flickable: view
        }
    }
}
