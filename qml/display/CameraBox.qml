import QtQuick
import Zum 1.0

// The layers of the Capture tab's view: the live picture, the current captured and the current reference frame, one
// on top of the other as the state of the tabs has it, and the helper lines over them.
Item {
    id: cameraBox

    property bool running: false
    property real zoom: 1
    readonly property string state_: WebcamGlobal.camboxState
    readonly property bool flipping: flipFlop.active
    readonly property bool onCaptured: state_ === "capturePreviewIsOn"
    readonly property bool onReference: state_ === "referencePreviewIsOn"
    readonly property bool framesRun: running && MainWindow.projectLoaded && !FramesModel.playing
    readonly property alias live: liveLayer
    // Where the capturing device's item belongs.
    readonly property alias livePlace: captureWindow
    readonly property alias captured: bigCapturedPicBox
    readonly property alias reference: bigReferencePicBox
    readonly property alias stack: onionSkin

    // The place of each layer from below, 0 to 2.
    readonly property int liveZ: onCaptured ? 0 : onReference ? 1 : 2
    readonly property int capturedZ: onCaptured ? 2 : onReference ? 0 : 1
    readonly property int referenceZ: onCaptured ? 1 : onReference ? 2 : 0

    function frameLayerAt(place) {
        return capturedZ === place ? bigCapturedPicBox : referenceZ === place ? bigReferencePicBox : null;
    }

    function layerAt(place) {
        return liveZ === place ? liveLayer : frameLayerAt(place);
    }

    width: WebcamGlobal.scaledWidth
    height: WebcamGlobal.scaledHeight

    FlipFlopRunner {
        id: flipFlop

        allowed: cameraBox.running && MainWindow.projectLoaded
    }

    Item {
        id: stage

        anchors.fill: parent

        // What the topmost layer is blended with.
        Item {
            id: lower

            anchors.fill: parent

            BlendEffect {
                z: 2
                anchors.fill: parent
                source: cameraBox.frameLayerAt(1)
                backdrop: cameraBox.layerAt(0)
                blend: WebcamGlobal.blend
                zoom: cameraBox.zoom
            }
        }

        BlendEffect {
            z: 3
            anchors.fill: parent
            source: cameraBox.frameLayerAt(2)
            backdrop: lower
            blend: WebcamGlobal.blend
            zoom: cameraBox.zoom
        }
    }

    RamBox {
        id: bigReferencePicBox

        parent: z === 2 ? stage : lower
        z: cameraBox.referenceZ
        visible: FramesModel.doubleDecker && (!cameraBox.flipping || !cameraBox.onCaptured)
        captured: false
        color: "#93e308"
        imageName: FramesModel.currentReference
        opacity: cameraBox.flipping ? flipFlop.layerOpacity : WebcamGlobal.opacityReference / 100
        frameScale: WebcamGlobal.coordSystemScale * WebcamGlobal.referenceImageScale / 100
        running: cameraBox.framesRun && FramesModel.doubleDecker
        zoom: cameraBox.zoom
    }

    RamBox {
        id: bigCapturedPicBox

        parent: z === 2 ? stage : lower
        z: cameraBox.capturedZ
        visible: !cameraBox.flipping || !cameraBox.onReference
        imageName: FramesModel.currentCaptured
        opacity: cameraBox.flipping ? flipFlop.layerOpacity : WebcamGlobal.opacityCaptured / 100
        frameScale: WebcamGlobal.coordSystemScale
        running: cameraBox.framesRun
        zoom: cameraBox.zoom

        Stack {
            id: onionSkin

            anchors.fill: parent
            running: cameraBox.framesRun
        }
    }

    Item {
        id: liveLayer

        parent: z === 2 ? stage : lower
        z: cameraBox.liveZ
        width: WebcamGlobal.scaledWidth
        height: WebcamGlobal.scaledHeight
        opacity: WebcamGlobal.opacityLiveView / 100
        // Without a device there is nothing that could cover the frames.
        visible: WebcamGlobal.connected

        Rectangle {
            anchors.fill: parent
            color: "black"
        }

        Item {
            id: captureWindow

            anchors.fill: parent
        }

        BlendEffect {
            anchors.fill: parent
            source: captureWindow
            grayscale: WebcamGlobal.grayscale
            zoom: cameraBox.zoom
        }
    }

    AlignGrid {
        z: 4
        anchors.fill: parent
        displayScale: WebcamGlobal.coordSystemScale
        zoom: cameraBox.zoom
    }
}
