import QtQuick
import Zum 1.0

// Whether pictures are shown with the project's filters, and the way to their settings.
Column {
    id: filtersTool

    required property var scene
    readonly property bool filtering: WebcamGlobal.postProcessing === Zum.NonRealtimeProcessing

    signal leaving()

    width: parent.width
    spacing: Theme.spacing

    CheckButton {
        width: parent.width
        text: qsTr("Show pictures with filters")
        toolTip: qsTr("The files stay as they are; the film is rendered with the filters")
        checked: filtersTool.filtering
        onSwitched: checked => WebcamGlobal.postProcessing = checked ? Zum.NonRealtimeProcessing : Zum.NoProcessing
    }

    TextButton {
        width: Math.min(implicitWidth, parent.width)
        text: qsTr("Filter settings")
        icon: "svgicons/settings.svg"
        toolTip: qsTr("Contrast, colours, noise, key colour and background")
        onClicked: {
            filtersTool.leaving();
            filtersTool.scene.postProcessFiltersBox();
        }
    }
}
