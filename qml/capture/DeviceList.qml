import QtQuick
import OsSpecific 1.0
import Zum 1.0

// Brings the list of cameras to the scene's device, and keeps the name of the chosen one up to date.
Item {
    id: deviceList

    function showRows() {
        const device = MainWindow.capturingDeviceObject;
        if (!device || !device.listOfCameras)
            return;
        device.listOfCameras.clear();
        for (const row of CameraList.rows)
            device.listOfCameras.append(row);
    }

    visible: false
    Component.onCompleted: CameraList.refreshCamName()

    OsSpecific {
        id: system

        onUsbCapturingDevicesListChanged: CameraList.fill(system.usbCapturingDevicesList)
        onDeviceChanged: {
            if (!WebcamGlobal.connected)
                WebcamGlobal.getCapturingDevicesList();
        }
    }

    Connections {
        target: CameraList

        function onRowsChanged() {
            deviceList.showRows();
        }
    }

    Connections {
        target: MainWindow

        function onCapturingDeviceObjectChanged() {
            deviceList.showRows();
        }
    }

    Connections {
        target: WebcamGlobal

        function onGetCapturingDevicesList() {
            system.getDevices();
        }

        // Handlers of the scene come before those of the list, which would store the index too late for itself.
        function onCamindexChanged() {
            MainWindow.addSetting("lastWebcamIndex", WebcamGlobal.camindex);
            CameraList.refreshCamName();
        }

        function onCapturingDevicesListChanged() {
            CameraList.refreshCamName();
        }

        function onConnectedChanged() {
            CameraList.refreshCamName();
        }

        function onChanged() {
            CameraList.refreshCamName();
        }
    }
}
