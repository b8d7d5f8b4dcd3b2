import QtQuick
import Zum 1.0

// The functions of the scene that open a dialog: each only names its file, the dialog layer does the rest.
FocusScope {
    id: sceneDialogs

    // What progresses is a shot that the capturing device saves.
    property bool savingShot: false

    function showDialog(fileName) {
        MainWindow.qmlDialogUrl = fileName;
    }

    function devSelectDialog() {
        showDialog("DeviceSelectionDialog.qml");
    }

    function camReconnectConfirmBox() {
        showDialog("CamReconnectConfirmDialog.qml");
    }

    function camDisconnectConfirmBox() {
        showDialog("CamDisconnectConfirmDialog.qml");
    }

    function camReloadDeviceConfirmBox() {
        showDialog("CamReloadDeviceConfirmDialog.qml");
    }

    function imageQualityBox() {
        showDialog("ImageQualityDialog.qml");
    }

    function saveConfirmBox() {
        showDialog("SaveConfirmDialog.qml");
    }

    function cleanupConfirmBox() {
        showDialog("CleanupConfirmDialog.qml");
    }

    function projectPresetsBox() {
        showDialog("ProjectPresets.qml");
    }

    function filtersBox() {
        showDialog("FiltersDialog.qml");
    }

    // The effects that a render applies.
    function postProcessFiltersBox() {
        showDialog("PostProcessFiltersDialog.qml");
    }

    function aboutBox() {
        showDialog("About.qml");
    }

    function lastProjects() {
        showDialog("LastProjects.qml");
    }

    function propertiesBox() {
        showDialog("PropertiesDialog.qml");
    }

    function emptyBox() {
        showDialog("Empty.qml");
    }

    // Follows the progress: the dialog stays after the end when there is something to read in it.
    function progressBox() {
        if (MainWindow.progressTotal === 0)
            slowShot.stop();
        if (MainWindow.progressTotal > 0 && savingShot)
            slowShot.start();
        else if (MainWindow.progressTotal > 0)
            showDialog("LoadDialog.qml");
        else if (MainWindow.robotErrorCount > 0)
            showDialog("LoadDialog.qml");
        else if (!WebcamGlobal.dialogRemainsVisible && MainWindow.qmlDialogUrl === "LoadDialog.qml")
            showDialog("");
    }

    // A shot is mostly saved before a dialog could be read, and whoever shoots looks at the picture.
    Timer {
        id: slowShot

        interval: 700
        onTriggered: sceneDialogs.showDialog("LoadDialog.qml")
    }
}
