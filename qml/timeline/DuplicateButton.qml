import QtQuick

// Duplicates the selected frames or the current one; the arrow beside it opens the choice of how many copies.
Row {
    id: duplicate

    required property var commands
    property bool wordy: true
    readonly property string text: qsTr("Duplicate (%1)  ").arg(FramesModel.duplicateQuantity)

    spacing: 1

    TextButton {
        height: duplicate.height
        text: duplicate.wordy ? duplicate.text : FramesModel.duplicateQuantity
        label: toolTip
        icon: "svgicons/duplicate.svg"
        toolTip: duplicate.text
        active: duplicate.commands.allowManipulate
        onClicked: duplicate.commands.dublicateFrames()
    }

    ButtonRowDropPanel {
        height: duplicate.height
        icon: "svgicons/drop-down.svg"
        toolTip: qsTr("How many copies each frame gets")
        active: duplicate.commands.allowManipulate

        Row {
            id: choices

            // At this the panel closes.
            signal clicked()

            spacing: 1

            Repeater {
                model: 8
                delegate: TextButton {
                    required property int index

                    text: index + 1
                    toolTip: qsTr("Copies: %1").arg(index + 1)
                    toggled: FramesModel.duplicateQuantity === index + 1
                    role: Accessible.RadioButton
                    onClicked: {
                        FramesModel.duplicateQuantity = index + 1;
                        choices.clicked();
                    }
                }
            }
        }
    }
}
