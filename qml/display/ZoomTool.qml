import QtQuick

// The zoom of a view: how large it is, and ways to the sizes that are wanted most.
Column {
    id: zoomTool

    property alias factorName: panel.factorName
    // The zoom at which a pixel of the frame is a pixel of the screen; 0 when it is not known.
    property real pixelZoom: 0

    width: parent.width
    spacing: Theme.spacing

    ZoomSidePanel {
        id: panel

        width: parent.width
        spacing: Theme.spacing

        TextButton {
            text: qsTr("Pixels")
            icon: "svgicons/scale.svg"
            toolTip: qsTr("A pixel of the frame as a pixel of the screen")
            active: zoomTool.pixelZoom > 0
            toggled: Math.abs(panel.factor - zoomTool.pixelZoom) < 0.001
            onClicked: panel.zoomTo(zoomTool.pixelZoom)
        }
    }

    TextLabel {
        width: parent.width
        text: zoomTool.pixelZoom > 0 ? qsTr("Shown at %1 % of the frame's size")
                                       .arg(Math.round(panel.factor / zoomTool.pixelZoom * 100)) : ""
        visible: text !== ""
        dim: true
    }

    TextLabel {
        width: parent.width
        wrapMode: Text.Wrap
        small: true
        dim: true
        text: qsTr("Drag with the middle button to move the picture.")
    }
}
