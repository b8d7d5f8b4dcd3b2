import QtQuick
import Zum 1.0

// What excludes what in the view of the Capture tab, and which layer comes to the top. All of it stands here; it
// works whether or not the view shows.
Item {
    id: rules

    readonly property string live: "liveViewPreviewIsOn"
    readonly property string captured: "capturePreviewIsOn"
    readonly property string reference: "referencePreviewIsOn"
    readonly property bool stacking: WebcamGlobal.stackMode !== Zum.NoStack
    readonly property bool referenceActive: FramesModel.doubleDecker && !stacking

    function show(state) {
        WebcamGlobal.camboxState = state;
    }

    function withoutFlipFlop() {
        WebcamGlobal.flipFlop = Zum.NoFlipFlop;
    }

    function withoutStack() {
        WebcamGlobal.stackMode = Zum.NoStack;
    }

    // Past the reference while it cannot be on top, or the key would never come back to the live view.
    function nextTab() {
        switch (WebcamGlobal.camboxState) {
        case live:
            return captured;
        case captured:
            return referenceActive ? reference : live;
        default:
            return live;
        }
    }

    function clickLiveView() {
        if (stacking) {
            withoutStack();
            WebcamGlobal.appendMessage(Zum.CommonMessage, Zum.Info, qsTr("Onion-skin OFF"));
        }
        show(live);
    }

    function clickCaptured() {
        if (WebcamGlobal.flipFlopRunning) {
            withoutFlipFlop();
            WebcamGlobal.appendMessage(Zum.CommonMessage, Zum.Info, qsTr("Flip-Flop OFF"));
        }
        show(captured);
    }

    function clickReference() {
        if (referenceActive)
            show(reference);
    }

    function rightClick() {
        WebcamGlobal.eyedropperOn = false;
    }

    function followStack() {
        if (stacking) {
            WebcamGlobal.eyedropperOn = false;
            withoutFlipFlop();
            show(captured);
            WebcamGlobal.opacityCaptured = 20;
        } else {
            WebcamGlobal.opacityCaptured = 100;
        }
        WebcamGlobal.opacityLiveView = 100;
    }

    function followDoubleDecker() {
        WebcamGlobal.opacityReference = FramesModel.doubleDecker ? 100 : 0;
        leaveReference();
    }

    function leaveReference() {
        if (!FramesModel.doubleDecker && WebcamGlobal.camboxState === reference)
            show(captured);
    }

    function startState() {
        WebcamGlobal.eyedropperOn = false;
        withoutStack();
        withoutFlipFlop();
        WebcamGlobal.opacityCaptured = 100;
        WebcamGlobal.opacityLiveView = 100;
        followDoubleDecker();
        WebcamGlobal.camScaleFactor = 1;
        WebcamGlobal.ramScaleFactor = 1;
        show(live);
    }

    visible: false
    Component.onCompleted: {
        followDoubleDecker();
        WebcamGlobal.flickInteractive = true;
    }

    Connections {
        target: WebcamGlobal

        function onBlendChanged() {
            if (WebcamGlobal.blend === Zum.NoBlend)
                return;
            WebcamGlobal.grayscale = false;
            WebcamGlobal.eyedropperOn = false;
            rules.withoutFlipFlop();
        }

        function onGrayscaleChanged() {
            if (WebcamGlobal.grayscale)
                WebcamGlobal.blend = Zum.NoBlend;
        }

        function onStackModeChanged() {
            rules.followStack();
        }

        function onFlipFlopChanged() {
            if (WebcamGlobal.flipFlop === Zum.NoFlipFlop)
                return;
            rules.withoutStack();
            WebcamGlobal.blend = Zum.NoBlend;
        }

        function onFlipFlopRunningChanged() {
            FramesModel.flipFlopRunning = WebcamGlobal.flipFlopRunning;
            if (WebcamGlobal.flipFlopRunning && WebcamGlobal.camboxState === rules.live)
                rules.show(rules.captured);
        }

        function onConnectedChanged() {
            if (WebcamGlobal.connected)
                return;
            WebcamGlobal.eyedropperOn = false;
            rules.withoutFlipFlop();
            rules.withoutStack();
            WebcamGlobal.blend = Zum.NoBlend;
        }

        function onCamboxStateChanged() {
            rules.leaveReference();
        }

        function onSwitchDisplayTab() {
            if (WebcamGlobal.flipFlop === Zum.NoFlipFlop)
                rules.show(rules.nextTab());
        }

        function onDisplayTabShowLiveView() {
            if (WebcamGlobal.flipFlop === Zum.NoFlipFlop)
                rules.show(rules.live);
        }

        function onDisplayTabShowCaptiured() {
            if (WebcamGlobal.flipFlop === Zum.NoFlipFlop)
                rules.show(rules.captured);
        }
    }

    Connections {
        target: FramesModel

        function onPlayingChanged() {
            if (!FramesModel.playing)
                return;
            rules.withoutStack();
            rules.withoutFlipFlop();
            WebcamGlobal.blend = Zum.NoBlend;
        }

        function onDoubleDeckerChanged() {
            rules.followDoubleDecker();
        }
    }

    Connections {
        target: MainWindow

        function onProjLoadedChanged() {
            rules.startState();
        }
    }
}
