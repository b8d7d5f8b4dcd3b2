import QtQuick
import Zum 1.0

// Blinks the frame against the live picture.
Column {
    id: flipFlop

    readonly property var types: [Zum.NoFlipFlop, Zum.FlashFlipFlop, Zum.FadeFlipFlop]

    width: parent.width
    spacing: Theme.spacing

    ChoiceRow {
        width: parent.width
        label: qsTr("Flip-flop")
        model: [qsTr("Off"), qsTr("Flash"), qsTr("Fade")]
        currentIndex: flipFlop.types.indexOf(WebcamGlobal.flipFlop)
        onChosen: index => WebcamGlobal.flipFlop = flipFlop.types[index]
    }

    SliderNew {
        width: parent.width
        label: qsTr("Duration")
        toolTip: qsTr("How long the frame takes to come, and to go")
        minimum: WebcamGlobal.flipMinDuration / 1000
        maximum: WebcamGlobal.flipMaxDuration / 1000
        step: 0.5
        decimals: 1
        defaultValue: 1
        suffix: " " + qsTr("sec.")
        value: WebcamGlobal.flipFlopDuration / 1000
        onMoved: value => WebcamGlobal.flipFlopDuration = Math.round(value * 1000)
    }
}
