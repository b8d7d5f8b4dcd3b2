import QtQuick
import Zum 1.0

// Switches the camera's own focusing, where it has one.
TextButton {
    id: button

    property bool checked: false
    property bool available: true

    text: qsTr("Auto Focus") + " " + (checked ? qsTr("ON") : qsTr("OFF"))
    toolTip: available ? qsTr("Let the camera focus by itself") : qsTr("This camera has no auto focus to switch")
    role: Accessible.CheckBox
    toggled: checked
    active: WebcamGlobal.connected && available
    onClicked: WebcamGlobal.webCameraProperty(Zum.WebcamAutofocus, checked ? 0 : 1)

    function ask() {
        if (WebcamGlobal.connected)
            WebcamGlobal.webCameraProperty(Zum.WebcamAutofocus, -1);
    }

    Component.onCompleted: ask()

    Connections {
        target: WebcamGlobal

        function onConnectedChanged() {
            button.ask();
        }

        function onWebCameraPropChanged(propId, value) {
            if (propId !== Zum.WebcamAutofocus)
                return;
            button.available = value >= 0;
            if (button.available)
                button.checked = value > 0;
        }
    }
}
