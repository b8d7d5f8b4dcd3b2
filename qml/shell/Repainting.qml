import QtQuick

// A pixel that comes and goes, so that the window draws itself anew.
Rectangle {
    id: repainting

    function start() {
        steps.restart();
    }

    width: 0
    height: 1
    color: globalFonColor

    Timer {
        id: steps

        property int left: 0

        interval: 100
        repeat: true
        onRunningChanged: {
            if (running)
                left = 4;
        }
        onTriggered: {
            repainting.width = left % 2 === 0 ? 1 : 0;
            left -= 1;
            if (left === 0)
                stop();
        }
    }
}
