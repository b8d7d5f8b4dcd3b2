import QtQuick
import Zum 1.0

// The panel of the tab, at the right.
Rectangle {
    id: controlsPanesBox

    required property var scene
    property bool shown: true
    readonly property bool renders: WebcamGlobal.currentActiveTab === Zum.TimingTab
    // Unless the window is very low, what one renders with never scrolls away.
    readonly property bool roomy: height > 24 * DefFontSizeNormal

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

            // Made when it is first shown.
            Loader {
                id: renderPane

                property bool wanted: false

                width: parent.width
                active: MainWindow.projectLoaded && wanted
                visible: controlsPanesBox.renders
                onVisibleChanged: wanted = wanted || visible
                sourceComponent: RenderPane {
                    scene: controlsPanesBox.scene
                    footPlace: controlsPanesBox.roomy ? renderPlace : null
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
        visible: controlsPanesBox.renders
        height: visible && renderPlace.implicitHeight > 0 ? renderPlace.implicitHeight + DefFontSizeMicro : 0

        Column {
            id: renderPlace

            width: parent.width
        }
    }

    FocusReveal {
        flickable: flick
        bar: bar
        holder: panes
    }

    Scrollbar {
        id: bar

        anchors.right: parent.right
        anchors.top: flick.top
        anchors.bottom: flick.bottom
        flickable: flick
    }
}
