import QtQuick
import Zum 1.0

// Which capturing device the scene holds: the kinds there are, choosing one and swapping it.
SceneCapture {
    id: sceneDevices

    readonly property CameraConnector emptyCamera: CameraConnector {
        name: "Undefined"
    }
    readonly property CameraConnector webCamera: CameraConnector {
        name: "web camera"
        window: "NewWebCameraWindow.qml"
        controls: "NewWebCameraControls.qml"
    }
    readonly property CameraConnector nikonCamera: CameraConnector {
        name: "Nikon DSLR camera"
        window: "NikonCameraWindow.qml"
        controls: "NikonCameraControls.qml"
    }
    readonly property CameraConnector canonCamera: CameraConnector {
        name: "Canon EOS camera"
        window: "CanonCameraWindow.qml"
        controls: "CanonCameraControls.qml"
    }
    readonly property CameraConnector sonyCamera: CameraConnector {
        name: "Sony camera"
        window: "SonyCameraWindow.qml"
        controls: "SonyCameraControls.qml"
    }
    readonly property CameraConnector hdmiTethering: CameraConnector {
        name: "Video capture"
        window: "NewWebCameraWindow.qml"
        controls: "NewWebCameraControls.qml"
    }
    readonly property alias deviceDummy: dummy
    // Where the live picture shows. The device itself stays whatever shows, with a camera connected to it.
    property Item liveViewPlace: null
    // A camera is to be connected as soon as its kind is loaded: the wanted index, or -1 for the one chosen.
    property bool cameraWanted: false
    property int wantedIndex: -1

    function loadCapturingPlugin() {
        if (WebcamGlobal.connected)
            return;
        if (!MainWindow.capturingDeviceObject)
            MainWindow.capturingDeviceObject = dummy;
        const kind = Number(MainWindow.getSetting("currentCapturingDevice", Zum.CapturingDeviceCanonEOS));
        MainWindow.currentCapturingDevice = kind;
        if (kind === Zum.CapturingDeviceCanonEOS)
            MainWindow.cameraQML = canonCamera;
        else if (kind === Zum.CapturingDeviceHDMITethering)
            MainWindow.cameraQML = hdmiTethering;
        else
            MainWindow.cameraQML = webCamera;
    }

    function deviceThreadRuns() {
        const device = MainWindow.capturingDeviceObject;
        return device ? device.threadIsRunning : false;
    }

    // Takes the device away, gives it time to let go of the hardware, and loads the chosen kind anew.
    function reloadCapturingDevice() {
        if (deviceThreadRuns() || WebcamGlobal.connected || reloadPause.running)
            return;
        MainWindow.cameraQML = emptyCamera;
        MainWindow.capturingDeviceObject = dummy;
        reloadPause.start();
    }

    function useWebCameras() {
        MainWindow.addSetting("currentCapturingDevice", Zum.CapturingDeviceWebcam);
        reloadCapturingDevice();
    }

    function chooseCamera() {
        WebcamGlobal.getCapturingDevicesList();
        devSelectDialog();
    }

    // One press from any kind of device to a camera that can be had.
    function connectCamera(index) {
        cameraWanted = true;
        wantedIndex = index;
        WebcamGlobal.displayTabShowLiveView();
        if (MainWindow.currentCapturingDevice === Zum.CapturingDeviceCanonEOS)
            useWebCameras();
        else if (!reloadPause.running)
            connectWanted();
    }

    function connectWanted() {
        if (!cameraWanted)
            return;
        cameraWanted = false;
        if (WebcamGlobal.connected)
            return;
        if (CameraList.rows.length === 0 || wantedIndex >= 0)
            WebcamGlobal.getCapturingDevicesList();
        if (wantedIndex >= 0)
            CameraList.choose(wantedIndex);
        WebcamGlobal.capturingDeviceConnect();
    }

    DeviceDummy {
        id: dummy
    }

    DeviceList {}

    Loader {
        parent: sceneDevices.liveViewPlace ? sceneDevices.liveViewPlace : sceneDevices
        anchors.centerIn: parent
        visible: sceneDevices.liveViewPlace !== null
        source: MainWindow.cameraQML ? MainWindow.cameraQML.window : ""
    }

    Timer {
        id: reloadPause

        interval: 1200
        onTriggered: {
            if (!WebcamGlobal.connected)
                sceneDevices.loadCapturingPlugin();
            sceneDevices.connectWanted();
        }
    }
}
