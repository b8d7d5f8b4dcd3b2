import QtQuick
import Zum 1.0

// Knows whether the user is moving the strip, and rests the live view on the Capture tab meanwhile, so that both
// do not ask for the machine at once.
Item {
    id: hand

    required property var strip
    property bool held: false
    readonly property bool moving: held || lately.running
    // Whether it was this that paused the live view.
    property bool pausedHere: false

    function moved() {
        strip.movedByHand = true;
        lately.restart();
    }

    function holds(holding) {
        held = holding;
        if (holding)
            strip.movedByHand = true;
    }

    visible: false
    onMovingChanged: {
        if (moving && WebcamGlobal.currentActiveTab === Zum.CaptureTab && !WebcamGlobal.paused) {
            pausedHere = true;
            WebcamGlobal.paused = true;
        } else if (!moving && pausedHere) {
            pausedHere = false;
            if (WebcamGlobal.currentActiveTab === Zum.CaptureTab && !MainWindow.qmlDialogVisible)
                WebcamGlobal.paused = false;
        }
    }

    // A turn of the wheel has no end of its own.
    Timer {
        id: lately

        interval: 250
    }
}
