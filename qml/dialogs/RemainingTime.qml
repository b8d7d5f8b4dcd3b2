import QtQuick
import "RemainingTime.js" as Estimate

// Estimates how long a work will still take, anew every step. `text` is empty until something is known.
Timer {
    id: estimate

    required property int total
    required property int current
    property int stepMs: 8000
    property int currentBefore: 0
    property real remainingMs: -1
    readonly property string text: remainingMs < 0 ? "" : worded(Estimate.parts(remainingMs))

    function worded(time) {
        return time.hours + " " + qsTranslate("LoadDialog", "hrs") + " " + time.minutes + " "
            + qsTranslate("LoadDialog", "min") + " " + time.seconds + " " + qsTranslate("LoadDialog", "sec");
    }

    function restartEstimate() {
        remainingMs = -1;
        currentBefore = current;
        if (running)
            restart();
    }

    // A step without any progress tells nothing: the last estimate stays.
    function takeStep() {
        const found = Estimate.remainingMs(total, current, currentBefore, stepMs);
        if (found >= 0)
            remainingMs = found;
        currentBefore = current;
    }

    interval: stepMs
    repeat: true
    onTotalChanged: restartEstimate()
    onTriggered: takeStep()
    Component.onCompleted: restartEstimate()
}
