pragma Singleton

import QtQuick

// How far a user has come for the first time: each step is hinted at until it has been taken once. Kept in the
// settings.
QtObject {
    id: steps

    readonly property int none: 0
    readonly property int shot: 1
    readonly property int played: 2
    readonly property int rendered: 3

    property int last: none
    readonly property bool all: last === rendered

    function store(step) {
        last = step;
        MainWindow.addSetting("firstStepsDone", step);
    }

    function read() {
        const stored = parseInt(MainWindow.getSetting("firstStepsDone", none)) || none;
        last = Math.max(none, Math.min(rendered, stored));
    }

    // A step that was taken makes those before it needless.
    function reach(step) {
        if (step > last)
            store(step);
    }

    function switchHints(on) {
        store(on ? none : rendered);
    }

    Component.onCompleted: read()
}
