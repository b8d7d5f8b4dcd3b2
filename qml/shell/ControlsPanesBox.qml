import QtQuick
import Zum 1.0

// The panel of the tab, at the right.
Rectangle {
    id: controlsPanesBox

    required property var scene
    property bool shown: true
    readonly property bool captures: WebcamGlobal.currentActiveTab === Zum.CaptureTab
    readonly property bool renders: WebcamGlobal.currentActiveTab === Zum.TimingTab
    // What one shoots and renders with never scrolls away, unless the window is too low for it.
    readonly property bool roomyToShoot: height > 40 * DefFontSizeNormal
    readonly property bool roomyToRender: height > 24 * DefFontSizeNormal
    // In a lower one the capture button alone, where something else is still to be seen beside it.
    readonly property bool pinsButton: !roomyToShoot && height > 11 * DefFontSizeNormal

    function goToRender() {
        if (rendering.item)
            rendering.item.startButton.forceActiveFocus(Qt.TabFocusReason);
    }

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
                width: parent.width
                active: MainWindow.projectLoaded
                visible: controlsPanesBox.captures
                sourceComponent: CaptureControlsPane {
                    tabsPlace: controlsPanesBox.roomyToShoot ? shootingPlace : null
                    withButton: !controlsPanesBox.pinsButton
                }
            }

            // Made when it is first shown.
            Loader {
                id: rendering

                property bool wanted: false

                width: parent.width
                active: MainWindow.projectLoaded && wanted
                visible: controlsPanesBox.renders
                onVisibleChanged: wanted = wanted || visible
                sourceComponent: RenderPane {
                    scene: controlsPanesBox.scene
                    footPlace: controlsPanesBox.roomyToRender ? renderingPlace : null
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

        readonly property real content: (shootingPlace.visible ? shootingPlace.height : 0)
                                        + (renderingPlace.visible ? renderingPlace.height : 0)

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: DefFontSizeMicro
        anchors.rightMargin: 2 * DefFontSizeMicro
        height: content > 0 ? content + DefFontSizeMicro : 0

        Column {
            id: shootingPlace

            width: parent.width
            visible: controlsPanesBox.captures

            Loader {
                width: parent.width
                active: MainWindow.projectLoaded && controlsPanesBox.pinsButton
                visible: active
                sourceComponent: CaptureButton {}
            }
        }

        Column {
            id: renderingPlace

            width: parent.width
            visible: controlsPanesBox.renders
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
