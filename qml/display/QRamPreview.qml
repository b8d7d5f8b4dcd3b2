import QtQuick
import Zum 1.0

// The picture of the Timing tab: the frame that plays, fitted into a part of the room, with the helper lines over it.
Item {
    id: ramView

    property bool running: false
    property real zoom: 1
    // The largest size in pixels.
    property real boxWidth: 0
    property real boxHeight: 0
    readonly property alias preview: picture
    readonly property string frameName: FramesModel.playingCaptured ? FramesModel.currentCaptured
                                                                    : FramesModel.currentReference
    // A picture from before a change of the room is stretched until its new copy is there.
    readonly property real fit: picture.width > 0 && picture.height > 0
                                ? Math.min(boxWidth / picture.width, boxHeight / picture.height) : 1
    readonly property real shownScale: picture.imageScale * fit

    width: Math.round(picture.width * fit)
    height: Math.round(picture.height * fit)
    onBoxWidthChanged: resized.restart()
    onBoxHeightChanged: resized.restart()

    Timer {
        id: resized

        interval: 300
        onTriggered: {
            const changed = picture.cameraViewWidth !== Math.round(ramView.boxWidth)
                          || picture.cameraViewHeight !== Math.round(ramView.boxHeight);
            picture.cameraViewWidth = Math.round(ramView.boxWidth);
            picture.cameraViewHeight = Math.round(ramView.boxHeight);
            if (changed) {
                picture.clearCache();
                picture.reload();
            }
        }
    }

    Item {
        width: picture.width
        height: picture.height
        scale: ramView.fit
        transformOrigin: Item.TopLeft

        FramePreview {
            id: picture

            imageName: ramView.frameName
            scaleFactor: 0
            cameraViewWidth: Math.max(10, Math.round(ramView.boxWidth))
            cameraViewHeight: Math.max(10, Math.round(ramView.boxHeight))
            cacheMaxInBytes: RAM_CACHE_MAX
            playingCaptured: FramesModel.playingCaptured
            opacity: WebcamGlobal.foregroundOpacity
            running: ramView.running
            histogramOn: !FramesModel.playing && WebcamGlobal.ramHistogramOn
            renderAllowed: !WebcamGlobal.ramPaused && FramesModel.framesCount > 0
                           && FramesModel.currentAction === Zum.ActNoAction
            timeline: FramesModel
            Accessible.name: qsTr("Frame of the timeline")
        }
    }

    AlignGrid {
        z: 1
        anchors.fill: parent
        visible: ramView.frameName !== ""
        displayScale: ramView.shownScale
        zoom: ramView.zoom
    }

    Binding {
        target: WebcamGlobal
        property: "ramPreviewCaching"
        value: picture.caching
    }

    Binding {
        target: WebcamGlobal
        property: "ramCacheUsedPercent"
        value: picture.cacheUsedPercent
    }
}
