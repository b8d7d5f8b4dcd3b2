import QtQuick
import Zum 1.0

// Which frames shine through the current one.
Column {
    id: onionskin

    readonly property var modes: [Zum.NoStack, Zum.StackPast, Zum.StackFuture]

    width: parent.width
    spacing: Theme.spacing

    ChoiceRow {
        width: parent.width
        label: qsTr("Onion skin")
        model: [qsTr("Off"), qsTr("Frames before"), qsTr("Frames after")]
        currentIndex: onionskin.modes.indexOf(WebcamGlobal.stackMode)
        onChosen: index => WebcamGlobal.stackMode = onionskin.modes[index]
    }

    SliderNew {
        width: parent.width
        label: qsTr("Frames")
        toolTip: qsTr("How many frames shine through")
        minimum: 1
        maximum: 10
        defaultValue: 1
        value: WebcamGlobal.stackDepth
        onMoved: value => WebcamGlobal.stackDepth = value
    }
}
