import QtQuick
import Zum 1.0

// The line at the top: menu, tabs, what is known of the project, messages and the window's state.
Rectangle {
    id: topLine

    required property var scene
    required property var rules
    required property ListModel messagesModel
    readonly property alias toggleRow: tabs

    // Enough room for the words of the tabs; without it they show as icons.
    readonly property bool roomy: width > 62 * DefFontSizeNormal

    implicitHeight: DefFontSizeNormal_x2Half
    color: GlobalDarkerColor

    Row {
        id: leftSide

        visible: topLine.rules.toggleRowShown
        anchors.verticalCenter: parent.verticalCenter
        x: DefFontSizeNano
        spacing: DefFontSizeNano

        MenuListBox {
            scene: topLine.scene
        }

        Row {
            id: tabs

            readonly property var entries: [
                { name: "captureUIisOn", text: qsTr("Capture"), icon: "svgicons/capture.svg" },
                { name: "timingUIisOn", text: qsTr("Timing"), icon: "svgicons/timing.svg" },
                { name: "playbackUIisOn", text: qsTr("Video"), icon: "svgicons/video.svg" },
                { name: "docsUIisOn", text: qsTr("Docs"), icon: "svgicons/docs.svg" }
            ]

            state: WebcamGlobal.mainTabsState
            spacing: 2

            Repeater {
                model: tabs.entries
                delegate: TabButton {
                    id: tab

                    required property var modelData

                    text: topLine.roomy ? modelData.text : ""
                    icon: topLine.roomy ? "" : modelData.icon
                    label: modelData.text
                    toolTip: topLine.roomy ? "" : modelData.text
                    toggled: topLine.rules.tab === modelData.name
                    active: !topLine.rules.blocked
                    onClicked: WebcamGlobal.mainTabsState = modelData.name
                }
            }
        }
    }

    ProjectStatus {
        visible: topLine.rules.toggleRowShown
        anchors.left: leftSide.right
        anchors.leftMargin: DefFontSizeNormal
        anchors.right: rightSide.left
        anchors.rightMargin: DefFontSizeMicro
        anchors.verticalCenter: parent.verticalCenter
    }

    Row {
        id: rightSide

        readonly property real y0: (topLine.implicitHeight - DefFontSizeNormal_x2) / 2

        anchors.right: parent.right
        anchors.rightMargin: DefFontSizeNano
        y: y0
        spacing: 2

        LastingLoader {
            wanted: topLine.messagesModel.count > 0
            visible: topLine.rules.toggleRowShown && wanted
            sourceComponent: MessagesBox {
                model: topLine.messagesModel
            }
        }

        IconButton {
            id: showHideRightPanel

            visible: topLine.rules.panesShown && !topLine.rules.video && MainWindow.projectLoaded
            icon: WebcamGlobal.rightPanelPinned ? "svgicons/panel-hide.svg" : "svgicons/panel-show.svg"
            toggled: WebcamGlobal.rightPanelPinned
            toolTip: WebcamGlobal.rightPanelPinned ? qsTr("Hide the right panel") : qsTr("Show the right panel")
            onClicked: WebcamGlobal.rightPanelPinned = !WebcamGlobal.rightPanelPinned
        }

        IconButton {
            id: maximizedBtn

            readonly property bool isMaximized: topLine.rules.maximized

            visible: !topLine.rules.docs
            icon: isMaximized ? "svgicons/restore.svg" : "svgicons/maximize.svg"
            toggled: isMaximized
            toolTip: isMaximized ? qsTr("Return to normal state") + " [F6]" : qsTr("Only the picture") + " [F6]"
            onClicked: topLine.scene.switchLayout("maximized")
        }

        IconButton {
            icon: MainWindow.isFullscreen ? "svgicons/fullscreen-exit.svg" : "svgicons/fullscreen.svg"
            toggled: MainWindow.isFullscreen
            toolTip: MainWindow.isFullscreen ? qsTr("Leave full screen") + " [F11]" : qsTr("Full screen") + " [F11]"
            onClicked: topLine.scene.toggleFullscreen()
        }
    }
}
