import QtQuick
import Zum 1.0

// The room of the picture. Each tab has a view of its own here.
Item {
    id: screenArea

    required property var scene

    clip: true

    Loader {
        id: displayContainer

        anchors.fill: parent
        active: WebcamGlobal.currentActiveTab === Zum.CaptureTab
        visible: active
        sourceComponent: FirstSteps {
            scene: screenArea.scene
            text: qsTr("Frames that are captured go into a project: one file and a folder beside it.")
            openText: qsTr("The project is ready. This version cannot connect a camera yet.")
        }
    }

    Loader {
        id: ramPreviewContainer

        anchors.fill: parent
        active: WebcamGlobal.currentActiveTab === Zum.TimingTab
        visible: active
        sourceComponent: FirstSteps {
            scene: screenArea.scene
            text: qsTr("The timing of frames is set in a project.")
            openText: qsTr("This version cannot show the pictures of the timeline yet.")
        }
    }

    Loader {
        id: videoPreviewContainer

        anchors.fill: parent
        active: WebcamGlobal.currentActiveTab === Zum.VideoTab
        visible: active
        sourceComponent: EmptyState {
            icon: "svgicons/video.svg"
            title: qsTr("No video")
            text: qsTr("This version cannot play videos yet.")
        }
    }
}
