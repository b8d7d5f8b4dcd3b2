import QtQuick
import Zum 1.0

// The properties of a web camera that a slider can set.
Column {
    id: sliders

    readonly property var rows: [
        { title: qsTr("Focus"), id: Zum.WebcamFocus, from: 0, to: 40, normal: 0, step: 5 },
        { title: qsTr("Zoom"), id: Zum.WebcamZoom, from: 1, to: 100, normal: 1, step: 1 },
        { title: qsTr("Brightness"), id: Zum.WebcamBrightness, from: 0, to: 255, normal: 128, step: 1 },
        { title: qsTr("Contrast"), id: Zum.WebcamContrast, from: 0, to: 255, normal: 32, step: 1 },
        { title: qsTr("Saturation"), id: Zum.WebcamSaturation, from: 0, to: 255, normal: 32, step: 1 },
        { title: qsTr("Gain"), id: Zum.WebcamGain, from: 0, to: 127, normal: 26, step: 1 },
        { title: qsTr("Sharpness"), id: Zum.WebcamSharpness, from: 0, to: 255, normal: 72, step: 1 }
    ]
    // One step of the keys that zoom.
    readonly property int zoomStep: 5
    property bool unfolded: true
    // A slider's name stands above it where both have no room beside each other.
    readonly property bool narrow: width < words.widest + DefFontSizeNormal_x12

    function zoomBy(step) {
        const zoom = list.itemAt(1).slider;
        if (WebcamGlobal.connected)
            zoom.set(zoom.value + step);
    }

    TextMetrics {
        id: words

        readonly property real widest: Math.ceil(advanceWidth) + 1

        font.pixelSize: DefFontSizeNormal
        text: sliders.rows.reduce((longest, row) => row.title.length > longest.length ? row.title : longest, "")
    }

    Repeater {
        id: list

        model: sliders.rows
        delegate: Column {
            id: row

            required property var modelData
            readonly property alias slider: control

            width: sliders.width
            visible: sliders.unfolded

            TextLabel {
                width: parent.width
                visible: sliders.narrow
                text: row.modelData.title
                Accessible.ignored: true
            }

            WebcamSlider {
                id: control

                objectName: "webcamSlider" + row.modelData.id
                width: parent.width
                propId: row.modelData.id
                label: sliders.narrow ? "" : row.modelData.title
                toolTip: row.modelData.title
                labelWidth: sliders.narrow ? 0 : words.widest
                minimum: row.modelData.from
                maximum: row.modelData.to
                defaultValue: row.modelData.normal
                step: row.modelData.step
            }
        }
    }

    Connections {
        target: WebcamGlobal

        function onFocusNear2() {
            sliders.zoomBy(sliders.zoomStep);
        }

        function onFocusFar2() {
            sliders.zoomBy(-sliders.zoomStep);
        }
    }
}
