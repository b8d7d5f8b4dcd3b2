import QtQuick
import Zum 1.0

// Blinks the captured frame over the live picture, to see what has moved.
Pane {
    id: flipFlop

    readonly property var kinds: [Zum.NoFlipFlop, Zum.FlashFlipFlop, Zum.FadeFlipFlop]
    readonly property int stepMs: 500

    title: qsTr("Flip-Flop")

    ChoiceRow {
        objectName: "flipFlopKind"
        width: parent.width
        label: flipFlop.title
        toolTip: qsTr("Blink the captured frame over the live view")
        model: [qsTr("Off"), qsTr("Flash"), qsTr("Fade")]
        active: WebcamGlobal.connected && FramesModel.framesCount > 0 || WebcamGlobal.flipFlop !== Zum.NoFlipFlop
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
