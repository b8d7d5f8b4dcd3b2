import QtQuick
import WebCamera 1.0
import Zum 1.0

// The capturing device for web cameras and video capture adapters, and the rest of what every device has.
WebCamera {
    id: cam

    property bool useIcc: false
    property string iccPath: ""
    property bool photoSaveTIFF: false
    property bool photoSaveRAW: false
    property bool dofEnabled: false
    property string imageQualityCurrent: ""
    property string imageSizeCurrent: ""
    property string lensFocusInfo: ""
    property bool wbTempValueEnabled: false
    property int wbTempValue: WbTempMin
    property real zoomRectPosX: 0
    property real zoomRectPosY: 0
    property bool manualFocusEnabled: false
    property bool floatingPanelVisible: false
    property int batteryLevel: -1
    readonly property ListModel listOfCameras: cameras
    property bool connectAgain: false

    function connectOrReconnect() {
        connectAgain = cam.connected;
        if (connectAgain)
            cam.disconnects();
        else
            cam.connects();
    }

    // Without a camera the view has a size of its own.
    function tellSize() {
        if (!cam.connected)
            return;
        WebcamGlobal.width = cam.width;
        WebcamGlobal.height = cam.height;
        appWindow.fitNow();
    }

    function hasConnected() {
        WebcamGlobal.connected = true;
        tellSize();
        WebcamGlobal.connectedCamIndex = WebcamGlobal.camindex;
        appWindow.tellOfCamera(Zum.Info, qsTr("Connected"));
    }

    function hasDisconnected() {
        const again = connectAgain;
        connectAgain = false;
        CaptureWorkflow.dropShot();
        WebcamGlobal.connected = false;
        WebcamGlobal.connectedCamIndex = WebcamGlobal.camindex;
        if (cameras.count > 0)
            appWindow.tellOfCamera(Zum.Info, qsTr("Disconnected"));
        if (again)
            cam.connects();
    }

    global: WebcamGlobal
    availWidth: screenArea.roomWidth
    availHeight: screenArea.roomHeight
    grayscale: WebcamGlobal.grayscale
    rotate: WebcamGlobal.rotate
    renderSmooth: WebcamGlobal.smoothRender
    histogramOn: WebcamGlobal.histogramOn
    eyedropperOn: WebcamGlobal.eyedropperOn
    powerFactor: WebcamGlobal.powerFactor
    transform: Scale {
        origin.x: cam.width / 2
        origin.y: cam.height / 2
        xScale: WebcamGlobal.displayScale
        yScale: WebcamGlobal.displayScale
    }

    onWidthChanged: tellSize()
    onHeightChanged: tellSize()
    onBusyChanged: WebcamGlobal.ready = !cam.busy
    onFpsChanged: WebcamGlobal.fps = cam.fps
    onMessage: (mtype, mtext) => appWindow.tellOfCamera(mtype, mtext)
    onFrameSaved: appWindow.finishShot()
    onFrameSaveError: CaptureWorkflow.dropShot()
    onFrameNotSaved: CaptureWorkflow.dropShot()
    onCameraLost: appWindow.cameraGoes()
    onSetEyedropper: (mouse, colour) => {
        WebcamGlobal.eyedropperPos = mouse;
        WebcamGlobal.eyedropperColor = colour;
        WebcamGlobal.eyedropperColorValue = WebcamGlobal.colorToRgb(colour);
        WebcamGlobal.eyedropperVisible = true;
    }
    onProgressActionChanged: MainWindow.progressAction = cam.progressAction
    onProgressCurrentChanged: MainWindow.progressCurrent = cam.progressCurrent
    onProgressTotalChanged: {
        appWindow.savingShot = cam.progressTotal > 0;
        MainWindow.progressTotal = cam.progressTotal;
    }
    onConnectedChanged: {
        if (cam.connected)
            hasConnected();
        else if (WebcamGlobal.connected)
            hasDisconnected();
    }
    Component.onCompleted: {
        WebcamGlobal.ready = !cam.busy;
        MainWindow.capturingDeviceObject = cam;
    }

    MorvaListModel {
        id: cameras
    }

    // The device keeps a pause only while its thread runs, so it is told again once it does.
    Binding {
        cam.paused: WebcamGlobal.paused
        when: cam.threadIsRunning
    }

    Connections {
        target: WebcamGlobal

        function onCapturingDeviceConnect() {
            cam.connectOrReconnect();
        }

        function onCapturingDeviceDisconnect() {
            cam.disconnects();
        }

        function onCaptureFrame(frameExt, fullPath, tumbPath) {
            if (appWindow.beginShot())
                cam.captureFrame(frameExt, fullPath, tumbPath, WebcamGlobal.cropAreaW, WebcamGlobal.cropAreaH,
                                 WebcamGlobal.crop, WebcamGlobal.grayscale, WebcamGlobal.rotate);
        }

        function onSetFrameSize(width, height) {
            cam.setFrameSize(width, height);
        }

        function onShowCamSettings() {
            cam.showSettingsDialog(1);
        }
    }
}
