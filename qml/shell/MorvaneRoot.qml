import QtQuick
import Zum 1.0

// The scene of the main window: its parts and where they stand.
SceneDevices {
    id: appWindow

    readonly property alias toggleRow: topLine.toggleRow
    readonly property alias messagesModel: messages.messagesModel
    readonly property alias robotMessgModel: messages.robotMessgModel
    readonly property alias dialog: dialogLayer
    readonly property alias popup: popupMessage
    readonly property alias panes: controlsPanesBox
    readonly property int adding: repainting.width

    width: MainWindow.windowSize.width
    height: MainWindow.windowSize.height
    onWidthChanged: MainWindow.redrawing()
    onHeightChanged: MainWindow.redrawing()
    Keys.forwardTo: [keyHandler]
    Component.onCompleted: {
        FocusHome.home = keyHandler;
        loadCapturingPlugin();
        progressBox();
        panels.read();
        keyHandler.forceActiveFocus();
    }

    function rescale() {
        WebcamGlobal.calculateDisplayAndCoordSystemScale(screenArea.roomWidth, screenArea.roomHeight);
    }

    function repaint() {
        repainting.start();
    }

    function toggleFullscreen() {
        if (MainWindow.isFullscreen)
            MainWindow.normal();
        else
            MainWindow.fullscreen();
    }

    function switchLayout(lmode) {
        if (tabRules.docs)
            return;
        const marker = "_" + lmode;
        const leaving = WebcamGlobal.mainTabsState.endsWith(marker);
        WebcamGlobal.mainTabsState = tabRules.tab + (leaving ? "" : marker);
        if (!leaving)
            popupMessage.show(qsTr("Return to normal state") + (lmode === "compacted" ? " [F9]" : " [F6]"));
    }

    function stopPlayRamPreview() {
        if (FramesModel.playing)
            FramesModel.stop();
        else
            FramesModel.play();
    }

    function copyFrames() {
        timelineBox.copyFrames();
    }

    function cutFrames() {
        timelineBox.cutFrames();
    }

    function pasteFrames() {
        timelineBox.pasteFrames();
    }

    // The picture's window for a second screen is not part of this version.
    function previewWindow() {
        tell(Zum.Info, qsTr("This version has no preview window yet. F6 shows only the picture."));
    }

    function importClipboardImages() {
        tell(Zum.Info, qsTr("This version cannot import pictures yet. A camera can play them: add them to the list of devices."));
    }

    function projectIsLoaded() {
        addLastProject();
        WebcamGlobal.projectChanged = false;
        if (WebcamGlobal.currentActiveTab === Zum.CaptureTab)
            WebcamGlobal.paused = false;
        rescale();
        if (WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing)
            WebcamGlobal.postProcessingChanged();
    }

    Rectangle {
        anchors.fill: parent
        color: globalFonColor
    }

    TabRules {
        id: tabRules

        tabsState: WebcamGlobal.mainTabsState
    }

    PanelSettings {
        id: panels
    }

    ScreenArea {
        id: screenArea

        anchors.left: screenControls.right
        anchors.right: controlsPanesBox.left
        anchors.top: topLine.bottom
        anchors.bottom: timelineBox.top
        // Scaling leaves the timeline's place as it is, so the picture takes what it sets free.
        anchors.bottomMargin: (timelineBox.scale - 1) * timelineBox.height
        visible: tabRules.screenShown
        scene: appWindow
        tabsShown: tabRules.screenControlsShown
        onRoomWidthChanged: appWindow.rescale()
        onRoomHeightChanged: appWindow.rescale()
    }

    ScreenControls {
        id: screenControls

        z: 100
        anchors.left: mainControlBox.right
        anchors.top: screenArea.top
        anchors.bottom: screenArea.bottom
        shown: tabRules.screenControlsShown
        scene: appWindow
        timingSize: screenArea.timingSize
        capturePixelZoom: screenArea.capturePixelZoom
        timingPixelZoom: screenArea.timingPixelZoom
    }

    DocsView {
        id: docsView

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: topLine.bottom
        anchors.bottom: parent.bottom
        active: tabRules.docs
    }

    MainControlBox {
        id: mainControlBox

        z: 127
        anchors.left: parent.left
        anchors.top: topLine.bottom
        anchors.bottom: timelineBox.top
        visible: tabRules.mainControlsShown
        width: visible ? implicitWidth : 0
        scene: appWindow
    }

    ControlsPanesBox {
        id: controlsPanesBox

        anchors.right: parent.right
        anchors.top: topLine.bottom
        anchors.bottom: timelineBox.top
        shown: tabRules.panesShown && !tabRules.video && WebcamGlobal.rightPanelPinned
        scene: appWindow
    }

    Timeline {
        id: timelineBox

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: statusBar.top
        width: parent.width / scale
        scale: tabRules.compacted ? 0.8 : 1
        transformOrigin: Item.Bottom
        visible: tabRules.timelineShown
        compactMode: tabRules.compacted
        rangeControlVisible: tabRules.timing
        readyRuns: screenArea.readyRuns
        readyPercent: screenArea.readyPercent
        height: visible ? wantedHeight : 0
        scene: appWindow
    }

    StatusBar {
        id: statusBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: tabRules.statusBarShown
        height: visible ? implicitHeight : 0
        scene: appWindow
    }

    TopLine {
        id: topLine

        z: 620
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: tabRules.toggleRowShown ? implicitHeight : 1
        rules: tabRules
        scene: appWindow
        messagesModel: messages.messagesModel
    }

    PopupMessage {
        id: popupMessage
    }

    Dialog {
        id: dialogLayer

        z: 1001
        anchors.fill: parent
    }

    ToolTip {
        z: 2100
    }

    MessageRouter {
        id: messages
    }

    RootConnections {
        scene: appWindow
        keyHandler: keyHandler
    }

    Autosave {}

    Repainting {
        id: repainting
    }

    KeyShortcuts {
        id: keyHandler

        scene: appWindow
    }
}
