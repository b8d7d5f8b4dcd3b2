import QtQuick

// The panel of the tab, at the right.
Rectangle {
    id: controlsPanesBox

    required property var scene
    property bool shown: true

    width: shown ? Math.min(ControlsPanesBoxW, parent.width * 0.36) : 0
    visible: width > 0
    color: GlobalDarkerColor

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.margins: DefFontSizeMicro
        contentHeight: pane.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ProjectPane {
            id: pane

            width: flick.width - DefFontSizeMicro
            scene: controlsPanesBox.scene
        }
    }

    Scrollbar {
        anchors.right: parent.right
        anchors.top: flick.top
        anchors.bottom: flick.bottom
        flickable: flick
    }
}
