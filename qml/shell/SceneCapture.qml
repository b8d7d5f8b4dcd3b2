import QtQuick
import Zum 1.0

// A shot from the press of the button to its row. CaptureWorkflow says when one may begin, what its files are called
// and which rows it fills; the device only writes to the paths it is given.
SceneProject {
    id: sceneCapture

    // The frame of the film is being drawn on the live picture.
    property bool choosingCropArea: false

    function nextShot() {
        return CaptureWorkflow.nextShot(MainWindow.capFullDirPath, MainWindow.capTumbDirPath);
    }

    function doCaptureFrame() {
        if (!CaptureWorkflow.mayCapture())
            return;
        const shot = nextShot();
        WebcamGlobal.captureFrame(WebcamGlobal.frameExt, shot.fullPath, shot.tumbPath);
        WebcamGlobal.unsavedCapturedTumb = shot.tumbName;
        WebcamGlobal.unsavedCapturedFull = shot.fullName;
    }

    // For the device's wrapper: true when it may take the picture now.
    function beginShot() {
        return MainWindow.projectLoaded && CaptureWorkflow.beginShot();
    }

    // For the device's wrapper, once picture and thumbnail lie on the disk.
    function finishShot() {
        const rows = FramesModel.framesCount;
        CaptureWorkflow.finishShot();
        // A shot that adds rows is saved by whoever hears of the new rows.
        if (FramesModel.framesCount === rows)
            saveProject(Zum.SaveProjectXMLonly);
    }

    // For the device's wrapper: the camera has gone by itself, and the shared state still says that it is there.
    function cameraGoes() {
        TimeLapse.cameraLost();
        CameraList.cameraLost();
    }

    // Fits a picture that has just come, or come in another size, without the wait that a window being drawn
    // larger needs.
    function fitNow() {
        const fit = Math.min(screenArea.roomWidth / Math.max(1, WebcamGlobal.width),
                             screenArea.roomHeight / Math.max(1, WebcamGlobal.height));
        const scale = WebcamGlobal.resize ? fit : Math.min(fit, 1);
        if (WebcamGlobal.paused || !(scale > 0))
            return;
        const cut = Math.min(1, WebcamGlobal.width / Math.max(1, WebcamGlobal.coordSystemWidth));
        WebcamGlobal.displayScale = scale;
        WebcamGlobal.coordSystemScale = Math.fround(Math.round(cut * scale * 10000) / 10000);
    }

    function tellOfCamera(type, text) {
        WebcamGlobal.appendMessage(Zum.CameraMessage, type, text);
    }

    function framesPerShotSetting() {
        const stored = parseInt(MainWindow.getSetting("framestocapture", 0));
        return isNaN(stored) ? 0 : Math.max(0, Math.min(7, stored));
    }

    function readTimeLapse() {
        TimeLapse.unit = Number(MainWindow.getSetting("zeitRafferType", 0)) || 0;
        TimeLapse.times = Number(MainWindow.getSetting("zeitRafferFreq", 7)) || 7;
    }

    Component.onCompleted: {
        FramesModel.shootMultipleFrames = framesPerShotSetting();
        WebcamGlobal.useFrameNameMask = String(MainWindow.getSetting("useFrameNameMask", false)) === "true";
        readTimeLapse();
    }

    Connections {
        target: WebcamGlobal

        function onDoCaptureFrame() {
            sceneCapture.doCaptureFrame();
        }

        function onImageQualityError() {
            sceneCapture.imageQualityBox();
        }

        function onSaved() {
            MainWindow.addSetting("zeitRafferFreq", TimeLapse.times);
            MainWindow.addSetting("zeitRafferType", TimeLapse.unit);
        }
    }

    Connections {
        target: FramesModel

        function onCaptureModeChanged() {
            CaptureWorkflow.makeRoomToReplace();
        }

        function onShootMultipleFramesChanged() {
            CaptureWorkflow.makeRoomToReplace();
        }
    }

    // A time-lapse that waits for its camera has nobody there to press the button.
    Connections {
        target: CameraList

        function onLostCameraReturned() {
            if (TimeLapse.waitsForCamera && !WebcamGlobal.busy)
                WebcamGlobal.capturingDeviceConnect();
        }
    }

    Connections {
        target: MainWindow

        function onProjLoadedChanged() {
            if (!MainWindow.projectLoaded)
                TimeLapse.stop();
        }
    }
}
