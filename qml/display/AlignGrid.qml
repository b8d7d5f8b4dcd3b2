import QtQuick

// The helper lines over a picture. As large as the picture; the frame of the film stands in its middle and may be
// larger. Sizes of the frame and of the grid's steps are pixels of the frame, times `displayScale` on screen.
Item {
    id: alignGrid

    required property real displayScale
    // How far the view that holds it is zoomed.
    property real zoom: 1

    readonly property bool hasFrame: frameW >= 1 && frameH >= 1
    readonly property real frameW: WebcamGlobal.cropAreaW * displayScale
    readonly property real frameH: WebcamGlobal.cropAreaH * displayScale
    readonly property real frameX: Math.round((width - frameW) / 2)
    readonly property real frameY: Math.round((height - frameH) / 2)

    AlignMargins {
        z: 4
        anchors.fill: parent
        visible: WebcamGlobal.marginsOn && alignGrid.hasFrame
        opacity: WebcamGlobal.marginsOpacity
        hole: Qt.rect(alignGrid.frameX, alignGrid.frameY, alignGrid.frameW, alignGrid.frameH)
    }

    AlignLines {
        z: 5
        anchors.fill: parent
        visible: WebcamGlobal.gridOn
        opacity: WebcamGlobal.gridOpacity
        zoom: alignGrid.zoom
        stepX: WebcamGlobal.gridHStep * alignGrid.displayScale
        stepY: WebcamGlobal.gridVStep * alignGrid.displayScale
    }

    AlignSight {
        z: 6
        anchors.fill: parent
        visible: WebcamGlobal.crossOn
        opacity: WebcamGlobal.sightOpacity
        zoom: alignGrid.zoom
        wide: WebcamGlobal.wideCross
        arm: alignGrid.frameH / 8
    }

    Loader {
        z: 7
        x: alignGrid.frameX
        y: alignGrid.frameY
        width: alignGrid.frameW
        height: alignGrid.frameH
        opacity: WebcamGlobal.safeAreaOpacity
        active: WebcamGlobal.safeAreaOn && alignGrid.hasFrame
        sourceComponent: SafeAreas {
            zoom: alignGrid.zoom
        }
    }

    CropBorder {
        z: 8
        x: alignGrid.frameX
        y: alignGrid.frameY
        width: alignGrid.frameW
        height: alignGrid.frameH
        visible: WebcamGlobal.cropAreaOn && alignGrid.hasFrame
        zoom: alignGrid.zoom
    }

    Loader {
        z: 400
        x: alignGrid.frameX
        y: alignGrid.frameY
        width: alignGrid.frameW
        height: alignGrid.frameH
        opacity: WebcamGlobal.thirdsGridOpacity
        active: WebcamGlobal.ruleOfThirdsGridOn && alignGrid.hasFrame
        sourceComponent: ThirdsLines {
            zoom: alignGrid.zoom
        }
    }
}
