import QtQuick
import Zum 1.0

// How often to shoot by the clock, the button that starts and stops it, and the time until the next shot.
Column {
    id: zeitRaffer

    readonly property bool running: WebcamGlobal.zeitRafferRunning
    property real intervalStart: 0
    property real elapsedMs: 0

    function intervalText(ms) {
        const seconds = Math.round(ms / 100) / 10;
        if (seconds < 120)
            return qsTr("A frame every %1 s").arg(Number(seconds.toFixed(1)));
        return qsTr("A frame every %1 min.").arg(Number((seconds / 60).toFixed(1)));
    }

    spacing: Theme.spacing

    Flow {
        width: parent.width
        spacing: Theme.spacing

        NumberInput4 {
            objectName: "timesPer"
            width: Math.min(implicitWidth, parent.width)
            toolTip: qsTr("How many frames to shoot in that time")
            active: !zeitRaffer.running
            minimum: 1
            maximum: TimeLapse.limit
            value: TimeLapse.times
            onEdited: times => TimeLapse.times = times
        }

        TextLabel {
            height: Theme.controlHeight
            text: qsTr("Times per")
        }

        ChoiceRow {
            objectName: "timeUnit"
            width: Math.min(implicitWidth, parent.width)
            label: qsTr("Times per")
            toolTip: qsTr("At most 30 a minute, 120 an hour, 720 a day")
            active: !zeitRaffer.running
            model: [qsTr("Min"), qsTr("Hour"), qsTr("Day")]
            currentIndex: TimeLapse.unit
            onChosen: index => TimeLapse.unit = index
        }
    }

    DialogButton {
        objectName: "startTimeLapse"
        width: parent.width
        icon: zeitRaffer.running ? "svgicons/stop.svg" : "svgicons/timelapse.svg"
        text: zeitRaffer.running ? qsTr("Stop") : qsTr("Start")
        toolTip: zeitRaffer.running ? qsTr("Stop shooting by the clock") : qsTr("Shoot by the clock")
        active: WebcamGlobal.connected || zeitRaffer.running
        toggled: zeitRaffer.running
        onClicked: {
            if (zeitRaffer.running)
                TimeLapse.stop();
            else
                TimeLapse.start();
        }
    }

    ProgressLine {
        objectName: "timeLapseProgress"
        width: parent.width
        visible: zeitRaffer.running
        label: qsTr("Time to the next frame")
        total: TimeLapse.intervalMs
        current: zeitRaffer.elapsedMs
    }

    TextLabel {
        objectName: "timeLapseText"
        width: parent.width
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        small: true
        dim: true
        text: TimeLapse.waitsForCamera ? qsTr("Waiting for the camera") : zeitRaffer.intervalText(TimeLapse.intervalMs)
    }

    Connections {
        target: TimeLapse

        function onFired() {
            zeitRaffer.intervalStart = Date.now();
        }
    }

    Timer {
        interval: 100
        repeat: true
        running: zeitRaffer.running && zeitRaffer.visible
        triggeredOnStart: true
        onTriggered: zeitRaffer.elapsedMs = Math.min(TimeLapse.intervalMs,
                                                     Date.now() - zeitRaffer.intervalStart)
    }
}
