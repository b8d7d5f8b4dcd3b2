import QtQuick
import Zum 1.0

// Follows a long work to its end: what it is, how far it has come, how long it will take, and what the worker
// had to say.
DialogBox {
    id: dialog

    property alias estimate: remaining
    // The kind of job followed last; the window forgets it with the job's end.
    property int job: Zum.NoJob
    property bool closedByUser: false
    readonly property bool running: MainWindow.progressTotal > 0
    // A total of one says that nobody can count the steps.
    readonly property bool counted: MainWindow.progressTotal > 1
    readonly property bool failed: MainWindow.robotErrorCount > 0
    readonly property bool hasVideo: !running && job === Zum.RenderVideo && WebcamGlobal.lastRenderedPath !== ""
    readonly property bool hasFrames: !running && job === Zum.ExportFrames && WebcamGlobal.exportPath !== ""

    function follow() {
        if (MainWindow.currentRobotJob !== Zum.NoJob)
            job = MainWindow.currentRobotJob;
    }

    function forgetErrors() {
        MainWindow.robotErrorCount = 0;
        appWindow.robotMessgModel.clear();
    }

    function close() {
        closedByUser = true;
        forgetErrors();
        MainWindow.stopLoadingProject();
        FramesModel.stopThreadAction();
        MainWindow.breakMorvaRobot("2");
        WebcamGlobal.dialogClosing();
    }

    heading: running ? MainWindow.progressAction : qsTr("Completed")
    Component.onCompleted: follow()
    Component.onDestruction: {
        if (!closedByUser && MainWindow.progressTotal === 0)
            forgetErrors();
    }

    buttons: [
        DialogButton {
            objectName: "viewVideo"
            visible: dialog.hasVideo
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            icon: "svgicons/video.svg"
            text: qsTr("View Video")
            toolTip: WebcamGlobal.lastRenderedPath
            onClicked: MainWindow.showInGraphicalShell(WebcamGlobal.lastRenderedPath)
        },
        DialogButton {
            objectName: "viewFrames"
            visible: dialog.hasFrames
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            icon: "svgicons/folder-open.svg"
            text: qsTr("View Exported Frames")
            toolTip: WebcamGlobal.exportPath
            onClicked: MainWindow.showInGraphicalShell(WebcamGlobal.exportPath)
        },
        DialogButton {
            objectName: "close"
            width: Math.min(implicitWidth, dialog.width - 2 * dialog.margin)
            text: dialog.running ? qsTr("Cancel") : qsTr("Close")
            toolTip: dialog.running ? qsTr("Stop this work") : text
            toggled: !dialog.running
            onClicked: dialog.close()
        }
    ]

    LoadProgress {
        width: parent.width
        visible: dialog.running
        total: MainWindow.progressTotal
        current: MainWindow.progressCurrent
        counted: dialog.counted
        remainingText: remaining.text
    }

    Repeater {
        model: dialog.failed ? appWindow.robotMessgModel : null
        delegate: LoadMessage {
            width: parent ? parent.width : 0
        }
    }

    RemainingTime {
        id: remaining

        running: dialog.counted
        total: MainWindow.progressTotal
        current: MainWindow.progressCurrent
    }

    Connections {
        target: MainWindow

        function onCurrentRobotJobChanged() {
            dialog.follow();
        }
    }
}
