import QtQuick

// What one shoots with: the device, its own panel, the live histogram, and below them the tabs of shooting.
Column {
    id: captureControlsPane

    // The tabs, for a place that never scrolls away where there is one.
    property Item tabsPlace: null
    // Without it the capture button stands elsewhere.
    property bool withButton: true
    readonly property alias tabs: cameraTabs

    // The panel's file binds to the device object, so it comes after that.
    function loadControls() {
        const connector = MainWindow.cameraQML;
        controls.source = MainWindow.capturingDeviceObject && connector ? connector.controls : "";
    }

    spacing: Theme.spacing
    Component.onCompleted: loadControls()

    Connections {
        target: MainWindow

        function onCapturingDeviceObjectChanged() {
            captureControlsPane.loadControls();
        }
    }

    ConnectionsBox {
        width: parent.width
    }

    Loader {
        id: controls

        objectName: "deviceControls"
        width: parent.width
    }

    Column {
        id: tabsBelow

        width: parent.width

        CameraTabs {
            id: cameraTabs

            parent: captureControlsPane.tabsPlace ? captureControlsPane.tabsPlace : tabsBelow
            width: parent ? parent.width : 0
            withButton: captureControlsPane.withButton
        }
    }

    HistogramBox {
        width: parent.width
    }
}
