import QtQuick
import Zum 1.0
import "KeyShortcuts.js" as Keymap

// Holds the keyboard focus of the window and turns keys into calls. `scene` offers the functions that keys reach.
Item {
    id: keyHandler

    required property var scene

    // On the capture tab: to the captured frame and back, so that Space shows it while held.
    function quickTabToggle() {
        if (WebcamGlobal.currentActiveTab !== Zum.CaptureTab)
            return;
        if (WebcamGlobal.camboxState === "liveViewPreviewIsOn")
            WebcamGlobal.displayTabShowCaptiured();
        else
            WebcamGlobal.displayTabShowLiveView();
    }

    function onReturn() {
        if (FramesModel.deletionConfirmed) {
            WebcamGlobal.globalDismiss();
            FramesModel.actionOnSelectedFrames(Zum.ActDelete);
        } else if (MainWindow.projectLoaded && WebcamGlobal.capturingInprogress === -1 && WebcamGlobal.connected) {
            WebcamGlobal.doCaptureFrame();
        } else if (MainWindow.projectLoaded) {
            WebcamGlobal.accessToUnavailFeature(Zum.CameraCapture);
        }
        FramesModel.copyModeOn = false;
    }

    function cannotEnableTimeLapse() {
        WebcamGlobal.appendMessage(Zum.ZeitRafferMessage, Zum.Warning,
                                   qsTr("Cannot enable Time-lapse photography tool. Flip-Flop is running"));
    }

    function cannotCloseDialog() {
        WebcamGlobal.appendMessage(Zum.FileMessage, Zum.Warning,
                                   qsTr("MorvaRobot is running. Cannot close dialog"));
    }

    function atRest() {
        return MainWindow.currentRobotJob === Zum.NoJob && MainWindow.progressTotal === 0
            && MainWindow.progressCurrent === 0;
    }

    focus: true
    Keys.onPressed: event => {
        if (Keymap.press(event))
            event.accepted = true;
    }
    Keys.onReleased: event => {
        if (!WebcamGlobal.timelineInteractive)
            WebcamGlobal.timelineInteractive = true;
        if (!MainWindow.qmlDialogVisible && event.key === Qt.Key_Space && !event.isAutoRepeat)
            quickTabToggle();
        WebcamGlobal.keysReleased();
        event.accepted = true;
    }
}
