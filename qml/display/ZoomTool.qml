import QtQuick

// The zoom of a view: how large it is, and ways to the sizes that are wanted most.
Column {
    id: zoomPanel

    required property string factorName
    // The zoom at which a pixel of the frame is a pixel of the screen; 0 when it is not known.
    property real pixelZoom: 0
    readonly property real factor: WebcamGlobal[factorName]

    function set(zoom) {
        WebcamGlobal[factorName] = Math.max(commonMinScaleFactor, Math.min(16, zoom));
    }

    width: parent.width
    spacing: Theme.spacing

    Flow {
        width: parent.width
        spacing: Theme.spacing

        IconButton {
            icon: "svgicons/zoom-out.svg"
            toolTip: qsTr("Smaller") + " [" + qsTr("Wheel") + "]"
            onClicked: zoomPanel.set(zoomPanel.factor / 1.2)
        }

        IconButton {
            icon: "svgicons/zoom-in.svg"
            toolTip: qsTr("Larger") + " [" + qsTr("Wheel") + "]"
            onClicked: zoomPanel.set(zoomPanel.factor * 1.2)
        }

        TextButton {
            text: qsTr("Fit")
            icon: "svgicons/zoom-fit.svg"
            toolTip: qsTr("The whole picture") + " [" + qsTr("Double click") + "]"
            toggled: zoomPanel.factor === 1
            onClicked: zoomPanel.set(1)
        }

        TextButton {
            text: qsTr("Pixels")
            icon: "svgicons/scale.svg"
            toolTip: qsTr("A pixel of the frame as a pixel of the screen")
            active: zoomPanel.pixelZoom > 0
            toggled: Math.abs(zoomPanel.factor - zoomPanel.pixelZoom) < 0.001
            onClicked: zoomPanel.set(zoomPanel.pixelZoom)
        }
    }

    TextLabel {
        width: parent.width
        text: zoomPanel.pixelZoom > 0 ? qsTr("Shown at %1 % of the frame's size")
                                        .arg(Math.round(zoomPanel.factor / zoomPanel.pixelZoom * 100)) : ""
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
