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
    onSetEyedropper: (mouse, colour) => {
        WebcamGlobal.eyedropperVisible = mouse.x >= 0 && mouse.y >= 0;
        WebcamGlobal.eyedropperPos = mouse;
        WebcamGlobal.eyedropperColor = colour;
    }

    Connections {
        target: FramesModel

        function onCurrentShouldBeUpdated() {
            picture.clearCurrentInCache();
            picture.reload();
        }
    }
}
