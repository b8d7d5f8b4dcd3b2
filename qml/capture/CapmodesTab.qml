import QtQuick
import Zum 1.0

// The capture button, where its frames go, how many they are, and how many shots there were.
Column {
    id: tab

    // Without it the button stands elsewhere.
    property bool withButton: true
    readonly property int most: 8
    readonly property bool replaces: FramesModel.captureMode === Zum.CaptureModeReplace

    spacing: Theme.spacing

    CaptureButton {
        width: parent.width
        visible: tab.withButton
    }

    FieldRow {
        id: mode

        width: parent.width
        text: qsTr("Mode")

        ChoiceRow {
            objectName: "captureMode"
            width: parent.width
            label: mode.text
            toolTip: qsTr("Put the shot behind the last frame, or in place of the current one")
            model: [qsTr("Append"), qsTr("Replace")]
            currentIndex: tab.replaces ? 1 : 0
            onChosen: index => FramesModel.captureMode = index === 1 ? Zum.CaptureModeReplace : Zum.CaptureModeAppend
        }
    }

    FieldRow {
        id: amount

        width: parent.width
        text: qsTr("Frames per shot")

        NumberInput4 {
            objectName: "framesPerShot"
            width: Math.min(implicitWidth, parent.width)
            toolTip: amount.text
            minimum: 1
            maximum: tab.most
            value: FramesModel.shootMultipleFrames + 1
            onEdited: frames => {
                FramesModel.shootMultipleFrames = frames - 1;
                MainWindow.addSetting("framestocapture", frames - 1);
            }
        }
    }

    FieldRow {
        width: parent.width
        text: qsTr("Shots taken")

        TextLabel {
            objectName: "shotsTaken"
            width: parent.width
            height: Theme.controlHeight
            text: String(FramesModel.shotsTaken)
        }
    }
}
