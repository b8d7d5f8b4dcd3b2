import QtQuick
import Zum 1.0

// The device's icon and name, the button that connects it, and the way to the list of devices. For a moment
// what the device has to say stands in place of its name.
Column {
    id: box

    readonly property bool tells: messageTime.running && WebcamGlobal.cameraMessageText.length > 0
    readonly property bool connecting: !WebcamGlobal.connected && WebcamGlobal.busy

    function switchConnection() {
        if (WebcamGlobal.connected)
            appWindow.camDisconnectConfirmBox();
        else
            WebcamGlobal.capturingDeviceConnect();
    }

    spacing: Theme.spacing

    Item {
        width: parent.width
        height: Math.max(Theme.controlHeight, caption.implicitHeight)

        IconButton {
            id: deviceIcon

            objectName: "deviceIcon"
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            icon: MainWindow.currentCapturingDeviceIcon
            toolTip: MainWindow.currentCapturingDeviceType + ". " + qsTr("Click to choose another kind of device")
            onClicked: appWindow.propertiesBox()
        }

        TextLabel {
            id: caption

            objectName: "deviceLabel"
            anchors.left: deviceIcon.right
            anchors.right: listButton.left
            anchors.margins: Theme.spacing
            anchors.verticalCenter: parent.verticalCenter
            text: box.tells ? WebcamGlobal.cameraMessageText : WebcamGlobal.cameraName
            color: box.tells ? Theme.active : WebcamGlobal.connected ? Theme.text : Theme.dimText
            opacity: blinker.lit ? 1 : 0.15
            wrapMode: Text.Wrap
            maximumLineCount: 3
        }

        IconButton {
            id: listButton

            objectName: "deviceListButton"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            icon: "svgicons/list.svg"
            active: !WebcamGlobal.connected
            toolTip: qsTr("Available devices")
            onClicked: appWindow.chooseCamera()
        }
    }

    TextButton {
        objectName: "connectButton"
        width: parent.width
        icon: WebcamGlobal.connected ? "svgicons/disconnect.svg" : "svgicons/connect.svg"
        text: WebcamGlobal.connected ? qsTr("Disconnect") : qsTr("Connect")
        toolTip: (WebcamGlobal.connected ? qsTr("Disconnect device") : qsTr("Connect device")) + " [F5]"
        active: !box.connecting
        toggled: WebcamGlobal.connected
        onClicked: box.switchConnection()
        onRightClicked: {
            if (!WebcamGlobal.connected)
                appWindow.camReloadDeviceConfirmBox();
        }
    }

    Timer {
        id: messageTime

        objectName: "cameraMessageTime"
        interval: 3500
    }

    Blinker {
        id: blinker
    }

    Connections {
        target: WebcamGlobal

        function onAppendMessage(msgSender) {
            if (msgSender === Zum.CameraMessage)
                messageTime.restart();
        }

        function onAccessToUnavailFeature() {
            if (MainWindow.projectLoaded)
                blinker.blink();
        }
    }
}
