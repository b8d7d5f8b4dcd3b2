import QtQuick
import Zum 1.0

// The list of the frames. It makes delegates for what is in sight and a little beside it, and uses them again.
ListView {
    id: view

    property int frameWidth: 0
    property int thumbWidth: 0
    property int unit: DefFontSizeNormal
    readonly property bool connected: state === "connected"

    orientation: ListView.Horizontal
    boundsBehavior: Flickable.StopAtBounds
    highlightFollowsCurrentItem: false
    cacheBuffer: width / 2
    reuseItems: true
    interactive: false
    state: "connected"
    states: [
        State {
            name: "connected"

            PropertyChanges {
                target: view
                model: FramesModel
            }
        },
        // While rows multiply the list does without the model.
        State {
            name: "unconnected"

            PropertyChanges {
                target: view
                model: null
            }
        }
    ]
    delegate: TimelineFrame {
        width: view.frameWidth
        height: view.height
        thumbWidth: view.thumbWidth
        unit: view.unit
    }
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Frames")

    // A new model would set the index back, so this comes after it.
    Binding {
        target: view
        property: "currentIndex"
        value: FramesModel.currentIndex
        when: view.model !== null
        restoreMode: Binding.RestoreNone
    }
}
