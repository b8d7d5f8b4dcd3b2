import QtQuick

// Draws the eye: goes off and on a few times when told to.
Timer {
    property bool lit: true
    property int left: 0

    function blink() {
        left = 6;
        lit = false;
        restart();
    }

    interval: 150
    repeat: true
    onTriggered: {
        left -= 1;
        lit = left % 2 === 1 || left === 0;
        if (left === 0)
            stop();
    }
}
