import QtQuick
import Zum 1.0

// What shows in each state of the tabs, and what else changes when the tab does.
Item {
    id: rules

    required property string tabsState

    readonly property bool compacted: tabsState.endsWith("_compacted")
    readonly property bool maximized: tabsState.endsWith("_maximized")
    readonly property bool plain: !compacted && !maximized
    readonly property string tab: tabsState.replace(/_(compacted|maximized)$/, "")
    readonly property bool capture: tab === "captureUIisOn"
    readonly property bool timing: tab === "timingUIisOn"
    readonly property bool video: tab === "playbackUIisOn"
    readonly property bool docs: tab === "docsUIisOn"

    // What is being exported must stay as it is.
    readonly property bool blocked: [Zum.RenderVideo, Zum.ExportFrames].includes(MainWindow.currentRobotJob)

    readonly property bool timelineShown: (capture || timing) && !maximized
    readonly property bool statusBarShown: (capture || timing) && plain
    readonly property bool panesShown: !docs && plain
    readonly property bool mainControlsShown: !docs && plain
    readonly property bool screenShown: !docs
    readonly property bool screenControlsShown: !docs && !maximized
    readonly property bool toggleRowShown: !maximized

    function enterCapture() {
        WebcamGlobal.playerPaused = true;
        WebcamGlobal.ramPaused = true;
        WebcamGlobal.currentActiveTab = Zum.CaptureTab;
        WebcamGlobal.paused = false;
        FramesModel.stop();
    }

    function enterTiming() {
        WebcamGlobal.playerPaused = true;
        withoutStackAndFlipFlop();
        WebcamGlobal.ramPaused = false;
        WebcamGlobal.currentActiveTab = Zum.TimingTab;
        WebcamGlobal.paused = true;
    }

    function enterVideo() {
        withoutStackAndFlipFlop();
        WebcamGlobal.ramPaused = true;
        WebcamGlobal.currentActiveTab = Zum.VideoTab;
        WebcamGlobal.videoExtractorOn = false;
        FramesModel.stop();
        WebcamGlobal.paused = true;
        WebcamGlobal.playerPaused = false;
    }

    function enterDocs() {
        WebcamGlobal.playerPaused = true;
        WebcamGlobal.ramPaused = true;
        withoutStackAndFlipFlop();
        WebcamGlobal.currentActiveTab = Zum.DocsTab;
        FramesModel.stop();
        WebcamGlobal.paused = true;
    }

    function withoutStackAndFlipFlop() {
        WebcamGlobal.stackMode = Zum.NoStack;
        WebcamGlobal.flipFlop = Zum.NoFlipFlop;
    }

    // Asks for the name itself: what is bound to it may not have followed yet.
    function enter() {
        switch (tab) {
        case "captureUIisOn":
            enterCapture();
            break;
        case "timingUIisOn":
            enterTiming();
            break;
        case "playbackUIisOn":
            enterVideo();
            break;
        case "docsUIisOn":
            enterDocs();
            break;
        }
    }

    visible: false
    onTabChanged: enter()
    Component.onCompleted: enter()
}
