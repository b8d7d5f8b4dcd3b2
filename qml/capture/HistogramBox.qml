import QtQuick

// The histogram of the live picture, once a second.
HistogramPane {
    id: histogramBox

    readonly property var device: MainWindow.capturingDeviceObject

    // The device gives a list of any values.
    function counts(list) {
        return list ? Array.from(list, Number) : [];
    }

    running: WebcamGlobal.histogramOn && WebcamGlobal.connected
    histogramDataY: device ? counts(device.histogramDataY) : []
    histogramDataR: device ? counts(device.histogramDataR) : []
    histogramDataG: device ? counts(device.histogramDataG) : []
    histogramDataB: device ? counts(device.histogramDataB) : []

    CheckButton {
        objectName: "histogramOn"
        width: Math.min(implicitWidth, parent.width)
        text: qsTr("Live")
        toolTip: qsTr("Measure the live view, once a second")
        checked: WebcamGlobal.histogramOn
        onSwitched: on => WebcamGlobal.histogramOn = on
    }
}
