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

    function zoomBy(step) {
        const zoom = list.itemAt(1);
        if (WebcamGlobal.connected)
            zoom.set(zoom.value + step);
    }

    Repeater {
        id: list

        model: sliders.rows
        delegate: WebcamSlider {
            required property var modelData

            objectName: "webcamSlider" + modelData.id
            width: sliders.width
            visible: sliders.unfolded
            propId: modelData.id
            label: modelData.title
            labelWidth: Math.round(sliders.width * 0.34)
            minimum: modelData.from
            maximum: modelData.to
            defaultValue: modelData.normal
            step: modelData.step
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
