import QtQuick
import Zum 1.0

// The dialog layer: at most one dialog over a dimmed scene, loaded by the name that the window holds.
FocusScope {
    id: dialog

    readonly property bool active: MainWindow.qmlDialogUrl.length > 0
    readonly property bool closable: MainWindow.qmlDialogUrl !== "LoadDialog.qml"
                                     && MainWindow.qmlDialogUrl !== "Empty.qml"
    readonly property alias item: loader.item

    signal dialogCurtainClick(real x, real y)

    function close() {
        WebcamGlobal.dialogClosing();
        WebcamGlobal.afterConfirmAction = Zum.NoAfterConfirmAction;
    }

    visible: active
    onActiveChanged: {
        MainWindow.qmlDialogVisible = active;
        if (!active)
            WebcamGlobal.dialogClosing();
        if (WebcamGlobal.currentActiveTab === Zum.CaptureTab)
            WebcamGlobal.paused = active;
    }

    Rectangle {
        id: curtain

        anchors.fill: parent
        color: "black"
        opacity: WebcamGlobal.capturingInprogress >= 0 ? 0.75 : 0.3
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.AllButtons
        onClicked: mouse => dialog.dialogCurtainClick(mouse.x, mouse.y)
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: frame

        visible: loader.status === Loader.Ready
        anchors.centerIn: loader
        width: loader.width + 2 * DefFontSizeNormal
        height: loader.height + 2 * DefFontSizeNormal
        radius: globalCorner
        color: "white"
        opacity: 0.3
    }

    Loader {
        id: loader

        anchors.centerIn: parent
        asynchronous: false
        source: dialog.active ? "qrc:/" + MainWindow.qmlDialogUrl : ""
        onStatusChanged: {
            // Later: the name is still being taken over.
            if (status === Loader.Error)
                Qt.callLater(dialog.close);
        }

        // Keeps clicks beside the dialog's controls from the curtain.
        MouseArea {
            anchors.fill: parent
            z: -1
            acceptedButtons: Qt.AllButtons
        }
    }

    BusySign {
        anchors.centerIn: parent
        running: dialog.active && loader.status === Loader.Loading
    }

    IconButton {
        id: closeButton

        visible: dialog.closable && loader.status === Loader.Ready
        // At the frame's corner, but never out of the window.
        x: Math.min(frame.x + frame.width - width * 2 / 3, dialog.width - width)
        y: Math.max(frame.y - height / 3, 0)
        icon: "svgicons/close.svg"
        toolTip: qsTr("Close")
        onClicked: dialog.close()
    }
}
