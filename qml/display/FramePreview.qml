import QtQuick
import CRamPreview 1.0

// A picture of the current frame as every view shows it: mirrored and filtered as the project has it, with the
// eyedropper, and read anew when its file was written.
CRamPreview {
    id: picture

    mirrored: FramesModel.currentMirrored
    postProcessing: WebcamGlobal.postProcessing
    settings: WebcamGlobal.postProcessSettings
    eyedropperOn: WebcamGlobal.eyedropperOn
    sourceConnected: WebcamGlobal.connected
    Accessible.role: Accessible.Graphic
    // The colour stays when the pointer has left; a click keeps it and puts the eyedropper away.
    onSetEyedropper: (mouse, colour) => {
        const over = mouse.x >= 0 && mouse.y >= 0;
        WebcamGlobal.eyedropperVisible = over && WebcamGlobal.eyedropperOn;
        WebcamGlobal.eyedropperPos = mouse;
        if (over)
            WebcamGlobal.eyedropperColor = colour;
    }
    onMousePressed: {
        WebcamGlobal.eyedropperOn = false;
        WebcamGlobal.eyedropperVisible = false;
    }

    Connections {
        target: FramesModel

        function onCurrentShouldBeUpdated() {
            picture.clearCurrentInCache();
            picture.reload();
        }
    }
}
