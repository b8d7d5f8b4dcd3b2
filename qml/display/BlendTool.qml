import QtQuick
import Zum 1.0

// How the layers of frames are put over what lies below them, and whether the live picture is gray.
Column {
    id: blendModes

    // The last two of the list cannot be chosen.
    readonly property var offered: WebcamGlobal.blendModes.slice(0, 12)
    readonly property int columns: Math.max(1, Math.floor(width / (14 * DefFontSizeNormal)))

    width: parent.width
    spacing: Theme.spacing

    Grid {
        id: grid

        width: parent.width
        columns: blendModes.columns
        spacing: 1

        Repeater {
            model: blendModes.offered

            TextButton {
                required property int index
                required property var modelData

                width: Math.floor((grid.width - (grid.columns - 1) * grid.spacing) / grid.columns)
                text: modelData.text
                icon: modelData.icon
                role: Accessible.RadioButton
                toggled: WebcamGlobal.blend === index
                onClicked: WebcamGlobal.blend = index
            }
        }
    }

    CheckButton {
        width: parent.width
        text: qsTr("Black and white")
        toolTip: qsTr("The live picture without its colours")
        checked: WebcamGlobal.grayscale
        onSwitched: checked => WebcamGlobal.grayscale = checked
    }
}
