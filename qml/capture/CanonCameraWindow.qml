import QtQuick
import Zum 1.0

// Stands for a DSLR camera: what every device has, and a clear word that none can be had.
DeviceDummy {
    id: cam

    signal frameSaved()
    signal frameSaveError()
    signal message(int mtype, string mtext)
    signal setEyedropper(point mouse, color colour)
    signal rightClick(point mouse)

    function connects() {
        message(Zum.Info, qsTr("Connecting..."));
        message(Zum.Info, qsTr("This version has no driver for DSLR cameras. Choose web cameras as the device type in the settings"));
        message(Zum.Error, qsTr("Camera not present, not connected or not supported. Check hardware connection"));
    }

    function disconnects() {
        firmWareVer = "";
    }

    function captureFrame() {
    }

    function loadCameraSettings() {
    }

    function getDevices() {
        listOfCameras.clear();
        WebcamGlobal.capturingDevicesListChanged();
    }

    onMessage: (mtype, mtext) => appWindow.tellOfCamera(mtype, mtext)
    Component.onCompleted: {
        WebcamGlobal.ready = !cam.busy;
        MainWindow.capturingDeviceObject = cam;
    }

    Connections {
        target: WebcamGlobal

        function onCapturingDeviceConnect() {
            cam.connects();
        }

        function onCapturingDeviceDisconnect() {
            cam.disconnects();
        }

        function onGetCapturingDevicesList() {
            if (!cam.connected)
                cam.getDevices();
        }
    }
}
