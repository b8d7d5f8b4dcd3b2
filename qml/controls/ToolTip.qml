import QtQuick

// The tool tip of a window. Stands at its root, above everything.
Rectangle {
    id: tip

    property int delayMs: 600
    readonly property Item target: ToolTips.target
    readonly property bool wanted: target !== null && text !== "" && target.Window.window === tip.Window.window
                                   && WebcamGlobal.showToolTips
    readonly property string text: target ? target["toolTip"] : ""

    z: 3000
    width: Math.ceil(label.width) + 2 * Theme.spacing
    height: Math.ceil(label.height) + 2 * DefFontSizePico
    radius: Theme.corner
    color: Theme.button
    border.width: 1
    border.color: Theme.line
    visible: false
    Accessible.role: Accessible.ToolTip
    Accessible.name: text

    onWantedChanged: {
        tip.visible = false
        tip.restart()
    }
    onTargetChanged: tip.restart()

    function restart() {
        delay.stop()
        if (tip.wanted)
            delay.start()
        else
            tip.visible = false
    }

    // Below the control, above it where there is no room below, and inside the window always.
    function place() {
        const corner = tip.target.mapToItem(tip.parent, 0, 0)
        const below = corner.y + tip.target.height + DefFontSizePico
        const above = corner.y - tip.height - DefFontSizePico
        const y = below + tip.height <= tip.parent.height ? below : above
        tip.y = Math.round(Math.max(0, Math.min(tip.parent.height - tip.height, y)))
        tip.x = Math.round(Math.max(0, Math.min(tip.parent.width - tip.width,
                                                corner.x + (tip.target.width - tip.width) / 2)))
    }

    Timer {
        id: delay

        interval: tip.delayMs
        onTriggered: {
            tip.visible = tip.wanted
            if (tip.wanted)
                tip.place()
        }
    }

    TextLabel {
        id: label

        x: Theme.spacing
        y: DefFontSizePico
        width: Math.min(Math.ceil(implicitWidth), DefFontSizeNormal_x22,
                        tip.parent ? tip.parent.width - 2 * Theme.spacing : DefFontSizeNormal_x22)
        text: tip.text
        wrapMode: Text.Wrap
        Accessible.ignored: true
        onHeightChanged: if (tip.visible && tip.target) tip.place()
        onWidthChanged: if (tip.visible && tip.target) tip.place()
    }
}
