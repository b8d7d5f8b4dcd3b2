import QtQuick
import Zum 1.0

// What a render would make, what stands against it, and the button that starts it.
Column {
    id: buttons

    required property var scene
    readonly property alias startButton: start
    readonly property bool rendering: MainWindow.currentRobotJob !== Zum.NoJob
    readonly property bool resized: WebcamGlobal.videoExportPolicy === Zum.ExportPolicyCroppedAndResized
    readonly property size movieSize: resized ? WebcamGlobal.exportSize
                                              : Qt.size(WebcamGlobal.cropAreaW, WebcamGlobal.cropAreaH)
    readonly property string problem: problemText()

    spacing: Theme.spacing

    function problemText() {
        if (FramesModel.timelineRangeSize === 0)
            return qsTr("Nothing to render: the range needs two frames or more. Capture more frames, or drag its ends on the timeline");
        if (movieSize.width < ExportVideoMinFrameWidth || movieSize.height < ExportVideoMinFrameHeight)
            return qsTr("Minimum frame size is %1x%2").arg(ExportVideoMinFrameWidth).arg(ExportVideoMinFrameHeight);
        if (movieSize.width % 8 !== 0 || movieSize.height % 8 !== 0)
            return qsTr("Size must be a multiple of 8");
        return "";
    }

    TextLabel {
        objectName: "renderProblem"
        width: parent.width
        visible: text !== ""
        small: true
        color: Theme.warning
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: buttons.problem
    }

    TextLabel {
        objectName: "renderSummary"
        width: parent.width
        small: true
        dim: true
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        text: WebcamGlobal.videoRenderSettsStr
    }

    Item {
        width: parent.width
        height: Math.max(start.height, folder.height)

        DialogButton {
            id: start

            objectName: "startRender"
            anchors.left: parent.left
            anchors.right: folder.left
            anchors.rightMargin: Theme.spacing
            icon: buttons.rendering ? "svgicons/stop.svg" : "svgicons/cinema.svg"
            text: buttons.rendering ? qsTr("Stop") : qsTr("Render Video")
            toolTip: buttons.rendering ? qsTr("Stop after the frame that is being rendered")
                                       : qsTr("Make a movie of the frames in the range")
            toggled: true
            active: starter.ready
            onClicked: starter.press()
        }

        ButtonShowVideoDir {
            id: folder

            anchors.right: parent.right
            anchors.verticalCenter: start.verticalCenter
        }
    }

    RenderStarter {
        id: starter

        scene: buttons.scene
    }
}
