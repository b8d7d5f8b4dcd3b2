import QtQuick
import Zum 1.0
import Progress 1.0

// Playing on the Timing tab. What has no room beside the play button stands in the panel of the last one.
Row {
    id: playback

    property bool roomy: true
    property bool roomForNumbers: true
    // The model turns round at the ends without a word, so it is asked again when a run begins and ends.
    readonly property int direction: (FramesModel.playing, FramesModel.playDirection)
    readonly property real side: height

    function turnRound() {
        FramesModel.playDirection = FramesModel.playDirection === Zum.Forward ? Zum.Backward : Zum.Forward;
    }

    function two(number) {
        return String(number).padStart(2, "0");
    }

    spacing: DefFontSizePico

    // Splits the length into its parts.
    Progress {
        id: length

        visible: false
        milliseconds: Math.round(FramesModel.duration)
    }

    PlayPauseButton {
        width: playback.side
        height: playback.side
    }

    IconButton {
        width: playback.side
        height: playback.side
        icon: "svgicons/rewind.svg"
        toolTip: qsTr("Back to the beginning of the range")
        active: FramesModel.framesCount > 0
        onClicked: FramesModel.rewind()
    }

    IconButton {
        visible: playback.roomy
        width: playback.side
        height: playback.side
        icon: "svgicons/loop.svg"
        toolTip: qsTr("Play again and again")
        toggled: FramesModel.loop
        role: Accessible.CheckBox
        onClicked: FramesModel.loop = !FramesModel.loop
    }

    IconButton {
        visible: playback.roomy
        width: playback.side
        height: playback.side
        icon: "svgicons/pendulum.svg"
        toolTip: qsTr("Turn round at the ends")
        toggled: FramesModel.pendulum
        role: Accessible.CheckBox
        onClicked: FramesModel.pendulum = !FramesModel.pendulum
    }

    IconButton {
        visible: playback.roomy
        width: playback.side
        height: playback.side
        icon: playback.direction === Zum.Backward ? "svgicons/direction-backward.svg"
                                                  : "svgicons/direction-forward.svg"
        toolTip: playback.direction === Zum.Backward ? qsTr("Plays backward") : qsTr("Plays forward")
        onClicked: playback.turnRound()
    }

    NumberInput5 {
        visible: playback.roomy
        value: FramesModel.timelineFps
        minimum: 1
        maximum: maxFps
        decimals: 2
        suffix: qsTr("fps")
        toolTip: qsTr("Frames per second")
        onEdited: value => FramesModel.timelineFps = value
    }

    TextLabel {
        id: numbers

        readonly property int frames: Math.floor(length.mSeconds * FramesModel.timelineFps / 1000 + 0.001)
        readonly property string duration: length.hours + ":" + playback.two(length.minutes) + ":"
                                           + playback.two(length.seconds) + ":" + playback.two(frames)
        property string toolTip: FramesModel.playing
                                 ? qsTr("Frames shown in the last second")
                                 : qsTr("Length of the range: hours, minutes, seconds, frames")

        visible: playback.roomForNumbers
        width: Math.ceil(widest.advanceWidth) + DefFontSizeMicro
        height: playback.height
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Math.min(DefFontSizeNormal, playback.height)
        text: FramesModel.playing ? qsTr("%1 fps").arg(FramesModel.actualFps) : duration
        color: FramesModel.playing ? Theme.active : Theme.text

        HoverTip {}

        TextMetrics {
            id: widest

            font: numbers.font
            text: "00:00:00:00"
        }
    }

    PlaybackSettings {
        width: playback.side
        height: playback.side
        direction: playback.direction
        onTurnRound: playback.turnRound()
    }
}
