import QtQuick
import Zum 1.0

// The row of controls over the strip.
Item {
    id: controls

    required property var timeline

    function openAddBox() {
        if (timeline.allowAdd)
            addBox.openPanel();
    }

    // Room for the words beside the icons.
    readonly property bool roomy: width > 66 * DefFontSizeNormal

    implicitHeight: DefFontSizeNormal_x2Half
    z: 1

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.leftMargin: DefFontSizeNano
        anchors.rightMargin: counters.width + DefFontSizeMicro
        contentWidth: row.width
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentWidth > width

        Row {
            id: row

            y: (controls.height - DefFontSizeNormal_x2) / 2
            spacing: DefFontSizeNano

            IconButton {
                id: addBox

                function openPanel() {
                    FramesModel.addInsteadOfReplace = true;
                    controls.timeline.addEmptyFrame();
                }

                icon: "svgicons/add.svg"
                toolTip: qsTr("Add an empty frame after the current one")
                active: controls.timeline.allowAdd
                onClicked: openPanel()
            }

            IconButton {
                icon: "svgicons/hide.svg"
                toolTip: qsTr("Hide or show: hidden frames are neither played nor exported")
                active: controls.timeline.allowManipulate
                onClicked: FramesModel.selectedCount > 0 ? FramesModel.setSelectedVisibility()
                                                         : FramesModel.hideCurrentFrame()
            }

            IconButton {
                icon: "svgicons/mirror.svg"
                toolTip: qsTr("Mirror")
                active: controls.timeline.allowManipulate
                toggled: FramesModel.currentMirrored
                onClicked: FramesModel.selectedCount > 0
                           ? FramesModel.setSelectedMirrored()
                           : FramesModel.switchMirroredOnSingleFrame(FramesModel.currentIndex)
            }

            IconButton {
                icon: "svgicons/clear-captured.svg"
                toolTip: qsTr("Clear the captured picture of the selected frames")
                active: FramesModel.selectedCount > 0 && !FramesModel.playing
                onClicked: FramesModel.cleanSelectedCapFrames()
            }

            IconButton {
                icon: "svgicons/clear-reference.svg"
                toolTip: qsTr("Clear the reference picture of the selected frames")
                active: FramesModel.selectedCount > 0 && !FramesModel.playing && FramesModel.doubleDecker
                onClicked: FramesModel.cleanSelectedRefFrames()
            }

            IconButton {
                icon: "svgicons/duplicate.svg"
                toolTip: qsTr("Duplicate (%1)  ").arg(FramesModel.duplicateQuantity)
                active: controls.timeline.allowManipulate
                onClicked: controls.timeline.dublicateFrames()
            }

            NumberInput4 {
                value: FramesModel.duplicateQuantity
                minimum: DupliQuantityMin
                maximum: DupliQuantityMax
                toolTip: qsTr("How many copies each frame gets")
                active: controls.timeline.allowManipulate
                onEdited: value => FramesModel.duplicateQuantity = value
            }

            IconButton {
                icon: "svgicons/move.svg"
                toolTip: qsTr("Move the selected frames behind the current one")
                active: FramesModel.selectedCount > 0 && !FramesModel.playing
                onClicked: controls.timeline.moveFrames()
            }

            TextButton {
                text: controls.roomy ? qsTr("Delete") : ""
                icon: "svgicons/delete.svg"
                toolTip: FramesModel.deletionConfirmed ? qsTr("Press again to delete, right click to cancel")
                                                       : qsTr("Delete the selected frames or the current one")
                toggled: FramesModel.deletionConfirmed
                active: controls.timeline.allowManipulate
                onClicked: controls.timeline.deleteFrames()
                onRightClicked: FramesModel.deletionConfirmed = false
            }

            TextButton {
                text: controls.roomy ? qsTr("Deselect") : ""
                icon: "svgicons/deselect.svg"
                toolTip: qsTr("Cancel the selection") + " [Esc]"
                active: FramesModel.selectedCount > 0
                onClicked: controls.timeline.dismiss()
            }

            IconButton {
                icon: "svgicons/refresh.svg"
                toolTip: qsTr("Update static frames indication")
                active: FramesModel.framesCount > 0 && !FramesModel.playing
                onClicked: controls.timeline.searchStaticness()
            }
        }
    }

    Row {
        id: counters

        anchors.right: parent.right
        anchors.rightMargin: DefFontSizeMicro
        anchors.verticalCenter: parent.verticalCenter
        spacing: DefFontSizeMicro

        TextLabel {
            visible: FramesModel.copyModeOn || FramesModel.cutModeOn
            text: (FramesModel.cutModeOn ? qsTr("Cut: %1") : qsTr("Copied: %1")).arg(Math.max(1, FramesModel.selectedCount))
            color: activeColor
        }

        TextLabel {
            visible: FramesModel.framesCount > 0
            text: "# " + (FramesModel.currentIndex + FramesModel.startIndex)
        }

        TextLabel {
            visible: controls.roomy
            text: qsTr("Total") + " " + FramesModel.framesCount
            dim: true
        }

        TextLabel {
            visible: controls.roomy || FramesModel.selectedCount > 0
            text: qsTr("Selected") + " " + FramesModel.selectedCount
            dim: FramesModel.selectedCount === 0
        }
    }
}
