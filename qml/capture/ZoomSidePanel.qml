import QtQuick

// Zooms the view of the picture: nearer, farther, and back to the whole.
Flow {
    id: zoomPanel

    readonly property real stepFactor: 1.25
    readonly property real largest: 16

    function zoomTo(factor) {
        WebcamGlobal.camScaleFactor = Math.max(commonMinScaleFactor, Math.min(largest, factor));
    }

    spacing: DefFontSizePico

    IconButton {
        objectName: "zoomIn"
        icon: "svgicons/zoom-in.svg"
        toolTip: qsTr("Zoom in")
        active: WebcamGlobal.camScaleFactor < zoomPanel.largest
        onClicked: zoomPanel.zoomTo(WebcamGlobal.camScaleFactor * zoomPanel.stepFactor)
    }

    IconButton {
        objectName: "zoomOut"
        icon: "svgicons/zoom-out.svg"
        toolTip: qsTr("Zoom out")
        active: WebcamGlobal.camScaleFactor > commonMinScaleFactor
        onClicked: zoomPanel.zoomTo(WebcamGlobal.camScaleFactor / zoomPanel.stepFactor)
    }

    IconButton {
        objectName: "zoomFit"
        icon: "svgicons/zoom-fit.svg"
        toolTip: qsTr("Show the whole picture")
        active: WebcamGlobal.camScaleFactor !== 1
        onClicked: zoomPanel.zoomTo(1)
    }
}
