import QtQuick

// One property of a web camera. What the camera answers is taken over when the slider can show it.
SliderNew {
    id: slider

    required property int propId
    readonly property int highestAnswer: 255

    function ask() {
        WebcamGlobal.webCameraProperty(propId, -1);
    }

    function set(wanted) {
        slider.value = Math.max(minimum, Math.min(maximum, wanted));
        WebcamGlobal.webCameraProperty(propId, Math.round(slider.value));
    }

    active: WebcamGlobal.connected
    value: defaultValue
    wheelWithoutFocus: false
    onMoved: value => slider.set(value)

    Connections {
        target: WebcamGlobal

        function onWebCameraPropChanged(propId, value) {
            if (propId === slider.propId && value >= 0 && value <= slider.highestAnswer)
                slider.value = value;
        }

        function onUpdateWebcamSettings() {
            slider.ask();
        }
    }
}
