import QtQuick

// The colour of the picture's point under the pointer, beside the pointer.
Rectangle {
    id: info

    readonly property color shown: WebcamGlobal.eyedropperColor
    readonly property point at: parent ? parent.mapFromItem(null, WebcamGlobal.eyedropperPos.x,
                                                            WebcamGlobal.eyedropperPos.y) : Qt.point(0, 0)
    readonly property real gap: DefFontSizeNormal
    readonly property real roomX: parent ? parent.width : 0
    readonly property real roomY: parent ? parent.height : 0

    function level(part) {
        return Math.round(part * 255);
    }

    x: Math.round(at.x + gap + width <= roomX ? at.x + gap : at.x - gap - width)
    y: Math.round(at.y + gap + height <= roomY ? at.y + gap : at.y - gap - height)
    width: row.width + 2 * DefFontSizeNano
    height: row.height + 2 * DefFontSizeNano
    radius: Theme.corner
    color: Theme.well
    border.width: 1
    border.color: Theme.line
    visible: WebcamGlobal.eyedropperOn && WebcamGlobal.eyedropperVisible
    Accessible.role: Accessible.StaticText
    Accessible.name: text.text

    Row {
        id: row

        x: DefFontSizeNano
        y: DefFontSizeNano
        spacing: Theme.spacing

        Rectangle {
            objectName: "eyedropperColour"
            width: DefFontSizeNormal_x2
            height: text.height
            color: info.shown
            border.width: 1
            border.color: Theme.line
        }

        TextLabel {
            id: text

            objectName: "eyedropperText"
            small: true
            text: "R " + info.level(info.shown.r) + "  G " + info.level(info.shown.g) + "  B " + info.level(info.shown.b)
                  + "\n" + info.shown
        }
    }
}
