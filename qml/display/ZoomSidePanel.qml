import QtQuick

// Zooms a view of the picture: farther, nearer, and back to the whole.
Flow {
    id: zoomPanel

    // The value of the shared state that the view follows.
    property string factorName: "camScaleFactor"
    readonly property real factor: WebcamGlobal[factorName]
    readonly property real stepFactor: 1.2
    readonly property real largest: 16

    function zoomTo(wanted) {
        WebcamGlobal[factorName] = Math.max(commonMinScaleFactor, Math.min(largest, wanted));
    }

    spacing: DefFontSizePico

    IconButton {
        objectName: "zoomOut"
        icon: "svgicons/zoom-out.svg"
        toolTip: qsTr("Zoom out") + " [" + qsTr("Wheel") + "]"
        active: zoomPanel.factor > commonMinScaleFactor
        onClicked: zoomPanel.zoomTo(zoomPanel.factor / zoomPanel.stepFactor)
    }

    IconButton {
        objectName: "zoomIn"
        icon: "svgicons/zoom-in.svg"
        toolTip: qsTr("Zoom in") + " [" + qsTr("Wheel") + "]"
        active: zoomPanel.factor < zoomPanel.largest
        onClicked: zoomPanel.zoomTo(zoomPanel.factor * zoomPanel.stepFactor)
    }

    IconButton {
        objectName: "zoomFit"
        icon: "svgicons/zoom-fit.svg"
        toolTip: qsTr("Show the whole picture") + " [" + qsTr("Double click") + "]"
        active: zoomPanel.factor !== 1
        onClicked: zoomPanel.zoomTo(1)
    }
}
