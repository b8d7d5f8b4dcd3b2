import QtQuick

// A line of hints: what a few keys and clicks do on the timeline, or the first step that is still to be taken.
Rectangle {
    id: statusBar

    required property var scene
    readonly property var hints: [
        { keys: qsTr("Esc"), text: qsTr("cancel") },
        { keys: qsTr("Ctrl + Left click"), text: qsTr("select a frame") },
        { keys: qsTr("Shift + Left click"), text: qsTr("select up to here") },
        { keys: qsTr("Middle mouse button + drag"), text: qsTr("move the view") },
        { keys: qsTr("Alt + drag"), text: qsTr("move frames") },
        { keys: qsTr("Ctrl + D"), text: qsTr("duplicate") }
    ]

    implicitHeight: DefFontSizeNormal_SevenEighths
    color: GlobalDarkerColor
    clip: true

    StepHint {
        id: stepHint

        anchors.fill: parent
        scene: statusBar.scene
    }

    Row {
        id: row

        visible: !stepHint.shown
        anchors.verticalCenter: parent.verticalCenter
        x: DefFontSizeNormal_TwoThirds
        spacing: DefFontSizeNormal_Pltr

        Repeater {
            model: statusBar.hints
            delegate: Row {
                id: hint

                required property var modelData

                spacing: DefFontSizeNano
                // A hint that does not fit whole is left out rather than cut.
                opacity: x + width <= statusBar.width - 2 * row.x ? 1 : 0

                TextLabel {
                    text: hint.modelData.keys
                    small: true
                }

                TextLabel {
                    text: hint.modelData.text
                    small: true
                    dim: true
                }
            }
        }
    }
}
