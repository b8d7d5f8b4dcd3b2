import QtQuick

// Darkens what it lies on for a moment, to say that something has changed.
Rectangle {
    id: cover

    function flash() {
        time.restart();
    }

    visible: time.running
    color: "#11000000"

    Timer {
        id: time

        interval: 100
    }
}
