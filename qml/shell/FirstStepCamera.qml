import QtQuick
import Zum 1.0

// The second step: which camera is chosen, and the ways to one that works. The built-in one always does.
FirstStep {
    id: step

    required property var scene
    readonly property bool withoutDriver: MainWindow.currentCapturingDevice === Zum.CapturingDeviceCanonEOS
    readonly property bool connecting: !WebcamGlobal.connected && (WebcamGlobal.busy || scene.cameraWanted)
    readonly property bool demoChosen: !withoutDriver && WebcamGlobal.camindex === CameraList.demoIndex
    // What the camera said when it could not be connected.
    property string failure: ""

    function takeFocus() {
        connect.forceActiveFocus(Qt.TabFocusReason);
    }

    // The keys go back to the window, for the buttons rest and then are gone.
    function start(index) {
        FocusHome.goHome();
        scene.connectCamera(index);
    }

    function wordsForNow() {
        if (connecting)
            return qsTr("Connecting...");
        if (failure !== "")
            return failure + ". " + qsTr("Close other programs that use it, choose another camera, or take the demo camera.");
        if (withoutDriver)
            return qsTr("This version has no driver for DSLR cameras. Shoot with a web camera or with the built-in demo camera.");
        return WebcamGlobal.cameraName;
    }

    number: 2
    title: qsTr("Connect a camera")
    text: done ? WebcamGlobal.cameraName : present ? wordsForNow() : qsTr("A web camera, or the built-in demo camera.")
    warns: present && !connecting && failure !== ""
    onConnectingChanged: {
        if (connecting)
            failure = "";
    }

    Connections {
        target: WebcamGlobal

        function onAppendMessage(sender, type, text) {
            if (sender === Zum.CameraMessage && type === Zum.Error)
                step.failure = step.withoutDriver ? "" : text;
        }
    }

    Flow {
        width: parent.width
        spacing: Theme.spacing

        DialogButton {
            id: connect

            objectName: "connectFirst"
            width: Math.min(implicitWidth, parent.width)
            text: step.withoutDriver ? qsTr("Connect a Web Camera") : qsTr("Connect")
            icon: "svgicons/connect.svg"
            toolTip: step.withoutDriver ? qsTr("Change the kind of device to web cameras and connect the first one")
                                        : qsTr("Connect %1").arg(WebcamGlobal.cameraName) + " [F5]"
            toggled: true
            active: !step.connecting
            onClicked: step.start(-1)
        }

        DialogButton {
            objectName: "chooseFirst"
            width: Math.min(implicitWidth, parent.width)
            visible: !step.withoutDriver
            text: qsTr("Choose a Camera")
            icon: "svgicons/list.svg"
            toolTip: qsTr("Available devices")
            active: !step.connecting
            onClicked: step.scene.chooseCamera()
        }

        DialogButton {
            objectName: "demoFirst"
            width: Math.min(implicitWidth, parent.width)
            visible: !step.demoChosen
            text: qsTr("Demo Camera")
            icon: "svgicons/star.svg"
            toolTip: qsTr("Connect the built-in camera, which shows a puppet on a stage")
            active: !step.connecting
            onClicked: step.start(CameraList.demoIndex)
        }
    }
}
