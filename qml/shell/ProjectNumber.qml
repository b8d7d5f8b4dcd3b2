import QtQuick

// A number of the project with its name before it, or above it where the panel is too narrow for both.
Column {
    id: projectNumber

    property string text
    property alias value: input.value
    property alias minimum: input.minimum
    property alias maximum: input.maximum
    property alias step: input.step
    property alias decimals: input.decimals
    readonly property bool narrow: width < 22 * DefFontSizeNormal

    signal edited(real value)

    spacing: DefFontSizePico

    TextLabel {
        visible: projectNumber.narrow
        width: parent.width
        wrapMode: Text.Wrap
        text: projectNumber.text
    }

    NumberInput5 {
        id: input

        width: parent.width
        label: projectNumber.narrow ? "" : projectNumber.text
        toolTip: projectNumber.text
        decimals: 0
        onEdited: value => projectNumber.edited(value)
    }
}
