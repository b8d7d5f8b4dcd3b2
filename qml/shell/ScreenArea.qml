import QtQuick
import Zum 1.0

// The room of the picture. Each tab has a view of its own here.
Item {
    id: screenArea

    required property var scene
    property bool tabsShown: true
    readonly property alias rules: displayRules
    readonly property alias timingSize: ramPreviewSize
    readonly property bool onCapture: WebcamGlobal.currentActiveTab === Zum.CaptureTab
    readonly property bool onTiming: WebcamGlobal.currentActiveTab === Zum.TimingTab
    // The part of the Capture tab's view that is left for its picture.
    readonly property real roomWidth: capture.item ? capture.item.roomWidth : width
    readonly property real roomHeight: capture.item ? capture.item.roomHeight : height
    // The zoom at which a pixel of a frame is one of the screen.
    readonly property real capturePixelZoom: WebcamGlobal.coordSystemScale > 0 ? 1 / WebcamGlobal.coordSystemScale : 0
    readonly property real timingPixelZoom: timing.item && timing.item.ramView.shownScale > 0
                                            ? 1 / timing.item.ramView.shownScale : 0

    // What of the play range lies in memory: pairs of rows, and the share of the range in per cent.
    readonly property var readyRuns: timing.item ? timing.item.ramView.preview.readyRuns : []
    readonly property real readyPercent: timing.item ? timing.item.ramView.preview.readyPercent : 0

    clip: true

    DisplayRules {
        id: displayRules
    }

    PostProcessState {}

    TimingSize {
        id: ramPreviewSize
    }

    Item {
        id: displayContainer

        anchors.fill: parent
        visible: screenArea.onCapture

        // Stays once it was made, with the pictures that it has read.
        LastingLoader {
            id: capture

            anchors.fill: parent
            wanted: MainWindow.projectLoaded && screenArea.onCapture
            wantedStill: MainWindow.projectLoaded
            sourceComponent: Display {
                scene: screenArea.scene
                rules: displayRules
                running: displayContainer.visible
                tabsShown: screenArea.tabsShown
            }
        }

        Loader {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            height: MainWindow.projectLoaded ? screenArea.roomHeight : parent.height
            active: screenArea.onCapture
                    && (!MainWindow.projectLoaded || FramesModel.framesCount === 0 && !WebcamGlobal.connected)
            sourceComponent: FirstSteps {
                scene: screenArea.scene
            }
        }
    }

    Item {
        id: ramPreviewContainer

        anchors.fill: parent
        visible: screenArea.onTiming

        LastingLoader {
            id: timing

            anchors.fill: parent
            wanted: MainWindow.projectLoaded && screenArea.onTiming
            wantedStill: MainWindow.projectLoaded
            sourceComponent: TimingDisplay {
                running: ramPreviewContainer.visible
                size: ramPreviewSize
            }
        }

        NoProject {
            anchors.fill: parent
            active: screenArea.onTiming && !MainWindow.projectLoaded
            scene: screenArea.scene
            text: qsTr("The timing of frames is set in a project.")
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
