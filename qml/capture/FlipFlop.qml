import QtQuick
import Zum 1.0

// Blinks the frame against the live picture, to see what has moved.
Column {
    id: flipFlop

    readonly property var kinds: [Zum.NoFlipFlop, Zum.FlashFlipFlop, Zum.FadeFlipFlop]
    readonly property int stepMs: 500

    width: parent.width
    spacing: Theme.spacing

    ChoiceRow {
        objectName: "flipFlopKind"
        width: parent.width
        label: qsTr("Flip-Flop")
        toolTip: qsTr("Blink the captured frame over the live view")
        model: [qsTr("Off"), qsTr("Flash"), qsTr("Fade")]
        currentIndex: flipFlop.kinds.indexOf(WebcamGlobal.flipFlop)
        onChosen: index => WebcamGlobal.flipFlop = flipFlop.kinds[index]
    }

    SliderNew {
        objectName: "flipFlopDuration"
        width: parent.width
        label: qsTr("Duration")
        toolTip: qsTr("How long one half of the blinking takes")
        suffix: " " + qsTr("sec.")
        decimals: 1
        minimum: WebcamGlobal.flipMinDuration / 1000
        maximum: WebcamGlobal.flipMaxDuration / 1000
        step: flipFlop.stepMs / 1000
        defaultValue: 1
        value: WebcamGlobal.flipFlopDuration / 1000
        wheelWithoutFocus: false
        onMoved: seconds => WebcamGlobal.flipFlopDuration = Math.round(seconds * 1000 / flipFlop.stepMs) * flipFlop.stepMs
    }
}
