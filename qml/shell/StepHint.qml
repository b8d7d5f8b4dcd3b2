import QtQuick
import Zum 1.0

// The hint at what to do for the first time: shoot, play, render. One line with the button that does it.
Item {
    id: hint

    required property var scene
    readonly property bool onCapture: WebcamGlobal.currentActiveTab === Zum.CaptureTab
    readonly property bool canShoot: onCapture && WebcamGlobal.connected
    readonly property bool canPlay: FramesModel.timelineRangeSize > 0
    readonly property bool atWork: FramesModel.playing || MainWindow.currentRobotJob !== Zum.NoJob
    readonly property string due: MainWindow.projectLoaded && !atWork ? nextStep() : ""
    readonly property bool shown: due !== ""
    readonly property var entries: ({
        shoot: {
            icon: "svgicons/capture.svg",
            text: qsTr("Pose the puppet and press Enter"),
            button: qsTr("Capture Frame"),
            toolTip: qsTr("Capture the first frame") + " [Enter]",
            run: () => WebcamGlobal.doCaptureFrame()
        },
        again: {
            icon: "svgicons/capture.svg",
            text: qsTr("Move the puppet a little and press Enter again"),
            button: qsTr("Capture Frame"),
            toolTip: qsTr("Capture the next frame") + " [Enter]",
            run: () => WebcamGlobal.doCaptureFrame()
        },
        play: {
            icon: "svgicons/play.svg",
            text: qsTr("See it move: the Timing tab plays the frames"),
            button: qsTr("Play"),
            toolTip: onCapture ? qsTr("Go to the Timing tab and play. Space plays there")
                               : qsTr("Play the range") + " [" + qsTr("Space") + "]",
            run: () => hint.play()
        },
        render: {
            icon: "svgicons/cinema.svg",
            text: qsTr("Make a movie of it"),
            button: qsTr("Render Video"),
            toolTip: qsTr("Go to the button that makes the movie, on the Timing tab"),
            run: () => hint.goToRender()
        }
    })
    readonly property var entry: shown ? entries[due] : null

    function nextStep() {
        switch (FirstStepsDone.last) {
        case FirstStepsDone.none:
            return canShoot ? "shoot" : "";
        case FirstStepsDone.shot:
            return canPlay ? "play" : canShoot && FramesModel.framesCount < 2 ? "again" : "";
        case FirstStepsDone.played:
            return canPlay ? "render" : "";
        default:
            return "";
        }
    }

    function play() {
        WebcamGlobal.mainTabsState = "timingUIisOn";
        if (!FramesModel.playing)
            FramesModel.play();
    }

    // The press is left to the user, who may want another format.
    function goToRender() {
        WebcamGlobal.mainTabsState = "timingUIisOn";
        WebcamGlobal.rightPanelPinned = true;
        scene.panes.goToRender();
    }

    objectName: "stepHint"
    visible: shown
    Accessible.role: Accessible.AlertMessage
    Accessible.name: words.text

    Connections {
        target: FramesModel

        function onAddedJustCapturedFrame() {
            FirstStepsDone.reach(FirstStepsDone.shot);
        }

        function onPlayingChanged() {
            if (FramesModel.playing)
                FirstStepsDone.reach(FirstStepsDone.played);
        }
    }

    Connections {
        target: WebcamGlobal

        function onLastRenderedPathChanged() {
            if (WebcamGlobal.lastRenderedPath !== "")
                FirstStepsDone.reach(FirstStepsDone.rendered);
        }
    }

    Icon {
        id: picture

        x: Theme.padding
        anchors.verticalCenter: parent.verticalCenter
        icon: hint.entry ? hint.entry.icon : ""
        size: Math.min(Theme.smallIconSize, hint.height - 2)
    }

    TextLabel {
        id: words

        objectName: "stepHintText"
        anchors.left: picture.right
        anchors.leftMargin: Theme.spacing
        anchors.verticalCenter: parent.verticalCenter
        // The button says it too, where the line is too short for both.
        visible: Math.ceil(implicitWidth) <= run.maximumX - x - Theme.padding
        width: visible ? Math.ceil(implicitWidth) : 0
        small: true
        color: Theme.active
        text: hint.entry ? hint.entry.text : ""
    }

    TextButton {
        id: run

        readonly property real maximumX: close.x - width - Theme.padding

        objectName: "stepHintButton"
        x: words.x + words.width + Theme.padding
        y: 1
        height: hint.height - 2
        small: true
        text: hint.entry ? hint.entry.button : ""
        toolTip: hint.entry ? hint.entry.toolTip : ""
        toggled: true
        active: WebcamGlobal.capturingInprogress < 0
        onClicked: hint.entry.run()
    }

    IconButton {
        id: close

        objectName: "stepHintClose"
        anchors.right: parent.right
        anchors.rightMargin: Theme.padding
        y: 1
        width: height
        height: hint.height - 2
        icon: "svgicons/close.svg"
        toolTip: qsTr("No more hints. The settings bring them back")
        onClicked: FirstStepsDone.switchHints(false)
    }
}
