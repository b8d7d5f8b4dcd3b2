import QtQuick

// The panel of the tab, at the right.
Rectangle {
    id: controlsPanesBox

    required property var scene
    property bool shown: true

    // Without a project there is nothing to set.
    width: shown && MainWindow.projectLoaded ? Math.min(ControlsPanesBoxW, parent.width * 0.36) : 0
    visible: width > 0
    color: GlobalDarkerColor

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.margins: DefFontSizeMicro
        contentHeight: pane.item ? pane.item.height : 0
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Loader {
            id: pane

            width: flick.width - DefFontSizeMicro
            active: MainWindow.projectLoaded
            sourceComponent: ProjectPane {
                scene: controlsPanesBox.scene
            }
        }
    }

    Scrollbar {
        anchors.right: parent.right
        anchors.top: flick.top
        anchors.bottom: flick.bottom
        flickable: flick
    }
}
