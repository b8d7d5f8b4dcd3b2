import QtQuick
import Zum 1.0

// The row of controls over the strip: what can be done with frames at the left, where the user is at the right.
Item {
    id: controls

    required property var timeline
    required property var commands
    readonly property int margin: Math.max(2, Math.floor(timeline.unit / 4))
    readonly property bool selection: FramesModel.selectedCount > 0 && !FramesModel.playing
    // Room for the words beside the icons.
    readonly property bool wordy: width > 84 * DefFontSizeNormal
    readonly property bool roomy: width > 60 * DefFontSizeNormal

    // Large letters get no more height than they need.
    readonly property int buttonHeight: Math.min(Theme.controlHeight,
                                        Math.max(2 * timeline.unit, DefFontSizeNormal + 2 * DefFontSizePico + 2))

    function openAddBox() {
        addButton.openPanel();
    }

    function closeAddBox() {
        addButton.closePanel();
        replaceButton.closePanel();
    }

    implicitHeight: buttonHeight + 2 * margin
    z: 1

    Flickable {
        id: flick

        anchors.left: parent.left
        anchors.leftMargin: DefFontSizeNano
        anchors.right: counters.left
        anchors.rightMargin: DefFontSizeMicro
        height: parent.height
        contentWidth: row.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width

        Row {
            id: row

            y: controls.margin
            spacing: DefFontSizeNano

            AddRemoveFramesPanel {
                id: addButton

                height: controls.buttonHeight
                text: controls.roomy ? qsTr("Add") : ""
                icon: "svgicons/add.svg"
                toolTip: qsTr("Add frames after the current one") + " [=]"
                adding: true
                active: controls.commands.allowAdd
                commands: controls.commands
            }

            AddRemoveFramesPanel {
                id: replaceButton

                height: controls.buttonHeight
                text: controls.roomy ? qsTr("Replace") : ""
                icon: "svgicons/replace.svg"
                toolTip: qsTr("Replace what is in the current frame")
                adding: false
                active: controls.commands.allowAdd && FramesModel.framesCount > 0
                commands: controls.commands
            }

            IconButton {
                width: controls.buttonHeight
                height: controls.buttonHeight
                icon: "svgicons/hide.svg"
                toolTip: qsTr("Hide or show: hidden frames are neither played nor exported")
                active: controls.commands.allowManipulate
                onClicked: controls.commands.hideFrames()
            }

            ButtonRowDropPanel {
                height: controls.buttonHeight
                icon: "svgicons/clear.svg"
                toolTip: qsTr("Clear what is in the selected frames or the current one")
                active: controls.commands.allowManipulate

                TextButton {
                    text: qsTr("Captured")
                    icon: "svgicons/clear-captured.svg"
                    toolTip: qsTr("Clear the captured picture")
                    onClicked: controls.commands.clearCaptured()
                }

                TextButton {
                    text: qsTr("Reference")
                    icon: "svgicons/clear-reference.svg"
                    toolTip: qsTr("Clear the reference picture")
                    active: FramesModel.doubleDecker
                    onClicked: controls.commands.clearReference()
                }

                TextButton {
                    text: qsTr("Cleanup All")
                    icon: "svgicons/clear.svg"
                    toolTip: qsTr("Clear both pictures")
                    onClicked: controls.commands.clearAll()
                }
            }

            DuplicateButton {
                height: controls.buttonHeight
                wordy: controls.wordy
                commands: controls.commands
            }

            IconButton {
                width: controls.buttonHeight
                height: controls.buttonHeight
                icon: "svgicons/move.svg"
                toolTip: qsTr("Move the selected frames behind the current one")
                active: controls.selection
                onClicked: controls.commands.moveFrames()
            }

            TextButton {
                height: controls.buttonHeight
                text: controls.roomy ? qsTr("Delete") : ""
                icon: "svgicons/delete.svg"
                toolTip: FramesModel.deletionConfirmed ? qsTr("Press again to delete, right click to cancel")
                                                       : qsTr("Delete the selected frames or the current one")
                                                         + " [Del]"
                toggled: FramesModel.deletionConfirmed
                active: controls.commands.allowManipulate
                onClicked: controls.commands.deleteFrames()
                onRightClicked: controls.commands.cancelDeletion()
            }

            TextButton {
                height: controls.buttonHeight
                text: controls.wordy ? qsTr("Deselect") : ""
                icon: "svgicons/deselect.svg"
                toolTip: qsTr("Cancel the selection") + " [Esc]"
                active: FramesModel.selectedCount > 0
                onClicked: controls.commands.dismiss()
            }
        }
    }

    TimelineCounters {
        id: counters

        anchors.right: parent.right
        anchors.rightMargin: DefFontSizeNano
        y: controls.margin
        height: controls.buttonHeight
        roomy: controls.roomy
        roomForField: controls.width > 34 * DefFontSizeNormal
        commands: controls.commands
    }
}
