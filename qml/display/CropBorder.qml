import QtQuick

// The edge of the film's frame, with its size in pixels and, when it is shown at another, that in brackets.
Item {
    id: border

    property real zoom: 1
    readonly property string sizeText: WebcamGlobal.cropAreaW + "x" + WebcamGlobal.cropAreaH
    readonly property string shownText: Math.round(width * zoom) + "x" + Math.round(height * zoom)

    HairlineFrame {
        anchors.fill: parent
        opacity: WebcamGlobal.frameBorderOpacity
        zoom: border.zoom
        color: Theme.active
    }

    // Keeps its size on screen, and stands inside of the edge, where it is not cut off; not where it would hide
    // the picture.
    Rectangle {
        id: label

        x: border.width - width * scale - DefFontSizePico / border.zoom
        y: border.height - height * scale - DefFontSizePico / border.zoom
        width: Math.ceil(text.implicitWidth) + 2 * DefFontSizePico
        height: Math.ceil(text.implicitHeight)
        transformOrigin: Item.TopLeft
        scale: 1 / border.zoom
        visible: WebcamGlobal.techInfoOn && 2 * width < border.width * border.zoom
                 && 3 * height < border.height * border.zoom
        radius: Theme.corner
        color: "#99000000"

        TextLabel {
            id: text

            x: DefFontSizePico
            small: true
            text: border.shownText === border.sizeText ? border.sizeText
                                                       : border.sizeText + " [" + border.shownText + "]"
        }
    }
}
