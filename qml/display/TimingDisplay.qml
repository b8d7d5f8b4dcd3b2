import QtQuick
import Zum 1.0

// The view of the Timing tab: the frame that plays, in a box that zooms.
Item {
    id: timingDisplay

    required property var size
    property bool running: false
    readonly property alias view: flicker
    readonly property alias ramView: preview
    readonly property bool empty: FramesModel.framesCount === 0

    Rectangle {
        anchors.fill: parent
        color: Theme.well
    }

    FlickerBox {
        id: flicker

        anchors.fill: parent
        contentWidth: preview.width
        contentHeight: preview.height
        zoom: WebcamGlobal.ramScaleFactor
        leftButtonMoves: !WebcamGlobal.eyedropperOn && !WebcamGlobal.maskToolOn && WebcamGlobal.flickInteractive
        onZoomWanted: zoom => WebcamGlobal.ramScaleFactor = zoom
        onRightClicked: WebcamGlobal.eyedropperOn = false

        QRamPreview {
            id: preview

            visible: !timingDisplay.empty
            running: timingDisplay.running
            zoom: WebcamGlobal.ramScaleFactor
            boxWidth: flicker.width * timingDisplay.size.widthShare
            boxHeight: flicker.height * timingDisplay.size.heightShare
        }
    }

    EmptyState {
        anchors.fill: parent
        visible: timingDisplay.empty
        icon: "svgicons/timing.svg"
        title: MainWindow.projName
        text: qsTr("Frames play here once the timeline has some.")
    }

    BusySign {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: Theme.spacing
        width: DefFontSizeNormal_x2
        height: width
        running: WebcamGlobal.ramPreviewCaching && !FramesModel.playing && timingDisplay.running
    }

    Loader {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.spacing
        width: Math.min(DefFontSizeNormal_x22, parent.width / 2)
        active: WebcamGlobal.ramHistogramOn && !timingDisplay.empty
        sourceComponent: HistogramPane {
            running: timingDisplay.running && !FramesModel.playing
            histogramDataY: Array.from(preview.preview.histogramDataY)
            histogramDataR: Array.from(preview.preview.histogramDataR)
            histogramDataG: Array.from(preview.preview.histogramDataG)
            histogramDataB: Array.from(preview.preview.histogramDataB)
        }
    }
}
