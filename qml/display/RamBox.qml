import QtQuick
import Zum 1.0

// One layer of frames in the view: the current captured or reference frame, as large as its pixels are in the
// view's coordinates and cut to the view's picture. What is declared in it lies over the frame.
Item {
    id: ramBox

    property string imageName: ""
    property bool captured: true
    property color color: "#e24040"
    property real frameScale: 1
    property bool running: false
    property real zoom: 1
    default property alias content: over.data
    readonly property alias preview: picture
    readonly property bool oversize: WebcamGlobal.techInfoOn && picture.imageName !== ""
                                     && 1 - picture.currentCroppedCoefX > 0.1

    width: WebcamGlobal.scaledWidth
    height: WebcamGlobal.scaledHeight

    Item {
        anchors.centerIn: parent
        width: picture.width
        height: picture.height

        FramePreview {
            id: picture

            imageName: ramBox.imageName
            imageWidth: WebcamGlobal.scaledWidth
            imageHeight: WebcamGlobal.scaledHeight
            cameraViewWidth: WebcamGlobal.scaledWidth
            cameraViewHeight: WebcamGlobal.scaledHeight
            scaleFactor: ramBox.frameScale
            cacheMaxInBytes: CAPTURE_CACHE_MAX
            playingCaptured: ramBox.captured
            color: ramBox.color
            blend: WebcamGlobal.blend
            histogramOn: false
            running: ramBox.running
            renderAllowed: ramBox.running && MainWindow.currentRobotJob === Zum.NoJob
            Accessible.name: ramBox.captured ? qsTr("Captured frame") : qsTr("Reference frame")
        }
    }

    Item {
        id: over

        anchors.fill: parent
    }

    OversizeSign {
        visible: ramBox.oversize
        zoom: ramBox.zoom
        share: picture.currentCroppedCoefX
        viewSize: ramBox.width
    }
}
