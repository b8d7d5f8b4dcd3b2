import QtQuick
import Zum 1.0

// The room of the picture. Each tab has a view of its own here.
Item {
    id: screenArea

    required property var scene

    clip: true

    FirstSteps {
        id: displayContainer

        anchors.fill: parent
        visible: WebcamGlobal.currentActiveTab === Zum.CaptureTab
        scene: screenArea.scene
        text: qsTr("Frames that are captured go into a project: one file and a folder beside it.")
        openText: qsTr("The project is ready. This version cannot connect a camera yet.")
    }

    FirstSteps {
        id: ramPreviewContainer

        anchors.fill: parent
        visible: WebcamGlobal.currentActiveTab === Zum.TimingTab
        scene: screenArea.scene
        text: qsTr("The timing of frames is set in a project.")
        openText: qsTr("This version cannot show the pictures of the timeline yet.")
    }

    EmptyState {
        id: videoPreviewContainer

        anchors.fill: parent
        visible: WebcamGlobal.currentActiveTab === Zum.VideoTab
        icon: "svgicons/video.svg"
        title: qsTr("No video")
        text: qsTr("This version cannot play videos yet.")
    }
}
