import QtQuick
import Zum 1.0

// Blinks the layers of frames over the live picture. The clock is the system's and not the animations', which run
// fast where no display sets their pace. Stopped, it goes on to the end of its round; paused, its time stands still.
Item {
    id: runner

    property bool allowed: false
    // Milliseconds of a clock; a test hands in its own.
    property var now: () => Date.now()
    property int type: Zum.NoFlipFlop
    readonly property int duration: Math.max(1, WebcamGlobal.flipFlopDuration)
    readonly property bool wanted: allowed && WebcamGlobal.flipFlop !== Zum.NoFlipFlop
    readonly property bool active: wanted || ending
    property bool ending: false
    property real elapsed: 0
    property real lastTick: 0
    property real endAt: 0
    // Of the layers of frames while active.
    property real layerOpacity: 1

    // A phase takes the duration: one out, one in; the fade slopes, the flash jumps.
    function opacityAt(flipFlop, elapsed, duration) {
        const phase = elapsed % (2 * duration) / duration;
        if (flipFlop === Zum.FlashFlipFlop)
            return phase < 1 ? 0 : 1;
        return phase < 1 ? 1 - phase : phase - 1;
    }

    function endOfRound(elapsed, duration) {
        return Math.ceil(elapsed / (2 * duration)) * 2 * duration;
    }

    function start() {
        type = WebcamGlobal.flipFlop;
        ending = false;
        elapsed = 0;
        lastTick = now();
        show();
    }

    function finish() {
        if (!allowed || elapsed === 0) {
            stop();
            return;
        }
        endAt = endOfRound(elapsed, duration);
        ending = true;
    }

    function stop() {
        ending = false;
        elapsed = 0;
        layerOpacity = 1;
    }

    function show() {
        layerOpacity = opacityAt(type, elapsed, duration);
    }

    function tick() {
        const time = now();
        if (!WebcamGlobal.paused)
            elapsed += Math.max(0, time - lastTick);
        lastTick = time;
        if (ending && elapsed >= endAt)
            stop();
        else
            show();
    }

    visible: false
    onWantedChanged: {
        WebcamGlobal.flipFlopRunning = wanted;
        if (wanted)
            start();
        else
            finish();
    }
    onAllowedChanged: {
        if (!allowed)
            stop();
    }

    Connections {
        target: WebcamGlobal
        enabled: runner.wanted

        function onFlipFlopChanged() {
            if (WebcamGlobal.flipFlop !== Zum.NoFlipFlop)
                runner.start();
        }
    }

    Timer {
        interval: 16
        repeat: true
        running: runner.active
        onTriggered: runner.tick()
    }
}
