import QtQuick
import Zum 1.0

// The panel of the tab, at the right.
Rectangle {
    id: controlsPanesBox

    required property var scene
    property bool shown: true
    readonly property bool captures: WebcamGlobal.currentActiveTab === Zum.CaptureTab
    // In a high window what one shoots with never scrolls away.
    readonly property bool roomy: height > 40 * DefFontSizeNormal

    // Without a project there is nothing to set.
    width: shown && MainWindow.projectLoaded ? Math.min(ControlsPanesBoxW, parent.width * 0.36) : 0
    visible: width > 0
    color: GlobalDarkerColor

    Flickable {
        id: flick

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: bottom.top
        anchors.margins: DefFontSizeMicro
        contentHeight: panes.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: panes

            width: flick.width - DefFontSizeMicro
            spacing: DefFontSizeMicro

            Loader {
                id: capturePane

                width: parent.width
                active: MainWindow.projectLoaded
                visible: controlsPanesBox.captures
                sourceComponent: CaptureControlsPane {
                    tabsPlace: controlsPanesBox.roomy ? bottomPlace : null
                }
            }

            Loader {
                width: parent.width
                active: MainWindow.projectLoaded
                sourceComponent: ProjectPane {
                    scene: controlsPanesBox.scene
                }
            }
        }
    }

    Item {
        id: bottom

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: DefFontSizeMicro
        anchors.rightMargin: 2 * DefFontSizeMicro
        visible: controlsPanesBox.captures
        height: visible ? bottomPlace.implicitHeight + DefFontSizeMicro : 0

        Column {
            id: bottomPlace

            width: parent.width

            CaptureButton {
                width: parent.width
                visible: !controlsPanesBox.roomy
            }
        }
    }

    Scrollbar {
        anchors.right: parent.right
        anchors.top: flick.top
        anchors.bottom: flick.bottom
        flickable: flick
    }
}
