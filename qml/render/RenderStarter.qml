import QtQuick
import Zum 1.0

// Starts a render, or breaks the job that runs. First everything lets go of what the render needs: the memory that
// pictures take, and the movie file that the player holds open.
Item {
    id: starter

    required property var scene
    readonly property bool ready: FramesModel.timelineRangeSize > 0 && !MainWindow.morvaRobotThreadStarted

    visible: false

    // Once begun this runs to its end, whatever is pressed meanwhile.
    function press() {
        WebcamGlobal.clearCache();
        WebcamGlobal.playerPlaying = false;
        WebcamGlobal.playerSource = "default.avi";
        MainWindow.qmlDialogUrl = "Empty.qml";
        pause.start();
    }

    function startOrBreak() {
        if (MainWindow.currentRobotJob !== Zum.NoJob) {
            MainWindow.breakMorvaRobot("3");
            showProgress();
        } else if (!MainWindow.runMorvaRobot(Zum.RenderVideo)) {
            scene.tell(Zum.Warning, qsTr("The render could not be started. Wait for the end of the work that runs, and try again"));
            showProgress();
        }
    }

    // Nothing may stay behind that cannot be closed.
    function showProgress() {
        if (MainWindow.progressTotal > 0)
            scene.progressBox();
        else
            WebcamGlobal.dialogClosing();
    }

    Timer {
        id: pause

        interval: 800
        onTriggered: starter.startOrBreak()
    }
}
