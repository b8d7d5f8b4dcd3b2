import QtQuick
import Zum 1.0

// How the scene reacts to the window, the shared state, the frames and the paths.
Item {
    id: connections

    required property var scene
    required property Item keyHandler

    function focusKeys() {
        keyHandler.forceActiveFocus();
    }

    visible: false

    Connections {
        target: FramesModel

        function onAddedJustCapturedFrame() {
            connections.scene.saveProject(Zum.SaveProjectXMLonly);
            WebcamGlobal.timelineGotoEnd();
            if (!selectLastFrame.running)
                selectLastFrame.start();
            if (WebcamGlobal.beepWhenCaptured)
                MainWindow.playSound(1);
        }

        function onProgressTotalChanged() {
            if (FramesModel.progressTotal === 0)
                WebcamGlobal.globalDismiss();
        }

        function onTimelineFpsChanged() {
            WebcamGlobal.timelineFps = FramesModel.timelineFps;
        }
    }

    Connections {
        target: CurvesModel

        function onPathHasChanged() {
            if (MainWindow.projectLoaded)
                WebcamGlobal.changed();
        }
    }

    Connections {
        target: WebcamGlobal

        function onPausedChanged() {
            if (!WebcamGlobal.paused && WebcamGlobal.currentActiveTab === Zum.CaptureTab)
                connections.scene.rescale();
        }

        function onDialogClosing() {
            MainWindow.resetSpecialColor();
            WebcamGlobal.playerPaused = true;
            MainWindow.qmlDialogUrl = "";
            connections.focusKeys();
            MainWindow.clearClipboardFrames();
        }

        function onLastRenderedPathChanged() {
            if (MainWindow.fileExists(WebcamGlobal.lastRenderedPath))
                WebcamGlobal.playerSource = WebcamGlobal.lastRenderedPath;
        }

        function onReloadCapturingDevice() {
            connections.scene.reloadCapturingDevice();
        }

        function onConnectedChanged() {
            WebcamGlobal.updateWebcamSettings();
            if (!WebcamGlobal.connected && WebcamGlobal.closeWhenDisconnected) {
                console.log("Camera disconnected while having Quit request");
                MainWindow.quit(true);
            }
        }

        function onGlobalDismiss() {
            connections.focusKeys();
            WebcamGlobal.frameWrapper = Zum.NoFrameWrapper;
            WebcamGlobal.timelineInteractive = true;
            CurvesModel.clearSelected();
        }

        function onCurrentActiveTabChanged() {
            WebcamGlobal.montageMode = WebcamGlobal.currentActiveTab === Zum.TimingTab;
            WebcamGlobal.layersSettingsOn = false;
        }

        function onAutosave() {
            connections.scene.saveProject(Zum.SaveProjectXMLonly);
        }

        function onSaveAndCleanup() {
            connections.scene.saveProject(Zum.SaveProjectAndCleanup);
        }

        function onSaveProject() {
            connections.scene.saveProject();
        }

        function onProjectCreateNew() {
            connections.scene.createNewProject();
        }

        function onShowProjectPresets() {
            connections.scene.projectPresetsBox();
        }

        function onKey_Backspace() {
            CurvesModel.removePoint();
        }
    }

    Connections {
        target: MainWindow
        enabled: WebcamGlobal.currentActiveTab === Zum.CaptureTab

        // Every change of the file operation rests the live view; opening a project and the end of a dialog
        // wake it again.
        function onCurrentThreadOperationChanged() {
            WebcamGlobal.paused = true;
            wakeAfterOperation.restart();
        }
    }

    // An operation that needs no dialog would leave the live view at rest for good.
    Timer {
        id: wakeAfterOperation

        interval: 1000
        onTriggered: {
            if (MainWindow.currentThreadOperation === Zum.ONoOperation && MainWindow.qmlDialogUrl.length === 0
                    && MainWindow.currentRobotJob === Zum.NoJob && !WebcamGlobal.userIsInactive
                    && WebcamGlobal.connected && WebcamGlobal.currentActiveTab === Zum.CaptureTab)
                WebcamGlobal.paused = false;
        }
    }

    Connections {
        target: MainWindow

        function onQmlDialogUrlChanged() {
            const open = MainWindow.qmlDialogUrl.length > 0;
            const tab = WebcamGlobal.currentActiveTab;
            if (tab === Zum.CaptureTab && WebcamGlobal.connected) {
                WebcamGlobal.paused = open;
                if (open)
                    FramesModel.stop();
            } else if (tab === Zum.TimingTab && open) {
                WebcamGlobal.flipFlop = Zum.NoFlipFlop;
                FramesModel.stop();
            }
        }

        function onStartProjectLoad() {
            if (WebcamGlobal.connected) {
                WebcamGlobal.paused = true;
                connections.scene.rescale();
            }
        }

        function onCurrentRobotJobChanged() {
            if (WebcamGlobal.currentActiveTab === Zum.CaptureTab && WebcamGlobal.connected)
                WebcamGlobal.paused = MainWindow.currentRobotJob !== Zum.NoJob;
        }

        function onProgressTotalChanged() {
            connections.scene.progressBox();
        }

        function onProjLoadedChanged() {
            if (MainWindow.projectLoaded)
                connections.scene.projectIsLoaded();
        }

        function onConfirmClose() {
            FramesModel.stop();
            connections.focusKeys();
            connections.scene.saveConfirmBox();
        }

        function onUserIsActive() {
            WebcamGlobal.inactivityElapsed = 0;
        }

        function onRedrawWindow() {
            connections.scene.repaint();
        }
    }

    Timer {
        id: selectLastFrame

        interval: 500
        onTriggered: {
            if (WebcamGlobal.jumpToLastFrame)
                FramesModel.currentIndex = FramesModel.last();
        }
    }

    Timer {
        interval: 60000
        repeat: true
        running: WebcamGlobal.connected && WebcamGlobal.inactivityWatchOn
                 && MainWindow.currentCapturingDevice === Zum.CapturingDeviceCanonEOS
        onTriggered: WebcamGlobal.checkUserInactivity()
    }
}
