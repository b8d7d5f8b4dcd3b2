import QtQuick

// Makes its item when it is first wanted and keeps it as long as it may still be.
Loader {
    id: loader

    property bool wanted: false
    property bool wantedStill: true

    function follow() {
        active = wantedStill && (wanted || active);
    }

    active: false
    onWantedChanged: follow()
    onWantedStillChanged: follow()
    Component.onCompleted: follow()
}
