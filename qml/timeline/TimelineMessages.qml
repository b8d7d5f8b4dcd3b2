import QtQuick
import Zum 1.0

// What stands on the strip instead of frames or over them.
Item {
    id: messages

    required property var timeline
    required property var commands
    required property bool connected
    readonly property bool noProject: !MainWindow.projectLoaded
    readonly property bool noFrames: MainWindow.projectLoaded && FramesModel.framesCount === 0 && connected

    Blinker {
        id: blinker
    }

    Connections {
        target: WebcamGlobal

        function onAccessToUnavailFeature(feature) {
            if (feature === Zum.CameraCapture || feature === Zum.ProjectAccess)
                blinker.blink();
        }
    }

    Column {
        anchors.centerIn: parent
        width: parent.width - DefFontSizeNormal_x4
        spacing: Theme.spacing
        visible: messages.noProject || messages.noFrames

        TextLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            dim: true
            opacity: blinker.lit ? 1 : 0.15
            text: messages.noProject
                  ? qsTr("No project. Create or load project to capture, add, remove or modify frames")
                  : qsTr("No Frames")
        }

        Loader {
            anchors.horizontalCenter: parent.horizontalCenter
            active: messages.noFrames && messages.timeline.showQuickLoadPannel && !messages.timeline.compactMode
                    && messages.height > DefFontSizeNormal_x6
            visible: active
            sourceComponent: AddRemoveEntries {
                commands: messages.commands
                adding: true
                inOneLine: true
            }
        }
    }

    BusySign {
        anchors.centerIn: parent
        width: Math.min(implicitWidth, parent.height - DefFontSizeNano)
        height: width
        running: !messages.connected
    }

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: DefFontSizePico
        visible: FramesModel.selectedCount > 0 && messages.connected
        width: Math.min(Math.ceil(hint.implicitWidth) + DefFontSizeNormal_x2, parent.width)
        height: Math.round(1.7 * messages.timeline.unit)
        radius: Theme.corner
        color: hover.hovered ? Theme.button : Theme.well
        border.width: 1
        border.color: Theme.line
        Accessible.role: Accessible.Button
        Accessible.name: hint.text
        Accessible.onPressAction: messages.commands.dismiss()

        TextLabel {
            id: hint

            anchors.centerIn: parent
            width: Math.min(Math.ceil(implicitWidth), parent.width - DefFontSizeMicro)
            font.pixelSize: Math.min(DefFontSizeSmaler, messages.timeline.unit)
            text: qsTr("Click here or press Esc to cancel selection")
            Accessible.ignored: true
        }

        HoverHandler {
            id: hover

            cursorShape: Qt.PointingHandCursor
        }

        MouseArea {
            anchors.fill: parent
            onClicked: messages.commands.dismiss()
        }
    }
}
