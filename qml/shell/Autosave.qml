import QtQuick

// Saves now and then. With nothing to save it pauses itself until the next change.
Timer {
    id: autosaveTimer

    interval: MainWindow.autosaveDelay * 60000
    repeat: true
    running: MainWindow.performAutosave && !MainWindow.pauseAutosave
    onTriggered: MainWindow.autosaveTick()
}
