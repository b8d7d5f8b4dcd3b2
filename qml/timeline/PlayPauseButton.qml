import QtQuick
import Zum 1.0

// Starts and stops the playing of the range.
IconButton {
    id: button

    readonly property bool preparing: FramesModel.currentAction === Zum.ActSearchHiddenFrames

    icon: FramesModel.playing ? "svgicons/pause.svg" : "svgicons/play.svg"
    toolTip: (FramesModel.playing ? qsTr("Stop") : qsTr("Play the range")) + " [" + qsTr("Space") + "]"
    toggled: FramesModel.playing
    active: FramesModel.framesCount > 0 && !preparing
    onClicked: {
        if (FramesModel.playing)
            FramesModel.stop();
        else
            FramesModel.play();
    }
}
