import QtQuick
import Zum 1.0

// The view of the Capture tab: the layers, in a box that zooms, and the tabs below them.
Item {
    id: display

    required property var rules
    required property var scene
    property bool running: false
    property bool tabsShown: true
    readonly property alias cameraBox: layers
    readonly property alias view: flicker
    readonly property alias tabs: viewTabs
    readonly property real roomWidth: flicker.width
    readonly property real roomHeight: flicker.height

    function showOrHideBar() {
        rules.rightClick();
        disconnector.shown = !disconnector.shown && WebcamGlobal.connected;
    }

    Component.onCompleted: scene.liveViewPlace = layers.livePlace

    Connections {
        target: MainWindow.capturingDeviceObject
        ignoreUnknownSignals: true

        function onRightClick() {
            display.showOrHideBar();
        }
    }

    Rectangle {
        anchors.fill: flicker
        color: Theme.well
    }

    FlickerBox {
        id: flicker

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: viewTabs.top
        contentWidth: WebcamGlobal.scaledWidth
        contentHeight: WebcamGlobal.scaledHeight
        zoom: WebcamGlobal.camScaleFactor
        leftButtonMoves: !WebcamGlobal.eyedropperOn && !WebcamGlobal.maskToolOn && WebcamGlobal.flickInteractive
        onZoomWanted: zoom => WebcamGlobal.camScaleFactor = zoom
        onRightClicked: display.showOrHideBar()

        CameraBox {
            id: layers

            running: display.running
            zoom: WebcamGlobal.camScaleFactor
        }
    }

    DisplayGeometry {
        id: geometry

        roomWidth: display.roomWidth
        roomHeight: display.roomHeight

        Connections {
            target: layers.captured.preview

            function onSourceImageInfoChanged() {
                geometry.meet(layers.captured.preview.sourceImageWidth, layers.captured.preview.sourceImageHeight);
            }
        }
    }

    DisplayOverlay {
        anchors.fill: flicker
    }

    // Why the tab of the live picture shows a frame.
    Rectangle {
        anchors.left: flicker.left
        anchors.bottom: flicker.bottom
        anchors.margins: Theme.spacing
        width: noCamera.implicitWidth + 2 * Theme.spacing
        height: noCamera.implicitHeight + 2 * DefFontSizePico
        visible: display.tabsShown && !WebcamGlobal.connected
                 && WebcamGlobal.camboxState === "liveViewPreviewIsOn"
                 && FramesModel.framesCount > 0 && 2 * width < flicker.width && 4 * height < flicker.height
        radius: Theme.corner
        color: "#99000000"

        TextLabel {
            id: noCamera

            anchors.centerIn: parent
            text: qsTr("No camera: the captured frame shows")
            small: true
        }
    }

    SimpleDisplayDisconnector {
        id: disconnector

        anchors.horizontalCenter: flicker.horizontalCenter
        anchors.bottom: flicker.bottom
        anchors.bottomMargin: Theme.padding
        scene: display.scene
    }

    BusySign {
        anchors.right: flicker.right
        anchors.top: flicker.top
        anchors.margins: Theme.padding
        running: layers.stack.loading > 0
    }

    MainViewTabs {
        id: viewTabs

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: DefFontSizePico
        visible: display.tabsShown
        height: visible ? implicitHeight : 0
        rules: display.rules
    }
}
